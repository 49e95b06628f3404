// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_FloatList.h>

#include <LZEL_Core/containers/CZEL_FloatVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_FloatList, CZEL_FloatVector, float, CZEL_OrderedList<float>)
