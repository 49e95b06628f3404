// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoublePointList.h>

#include <LZEL_Core/containers/CZEL_DoublePointVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_DoublePointList, CZEL_DoublePointVector, CZEL_DoublePoint,
                           CZEL_List<CZEL_DoublePoint>)
