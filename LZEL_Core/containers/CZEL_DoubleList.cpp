// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoubleList.h>

#include <LZEL_Core/containers/CZEL_DoubleVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_DoubleList, CZEL_DoubleVector, double, CZEL_OrderedList<double>)
