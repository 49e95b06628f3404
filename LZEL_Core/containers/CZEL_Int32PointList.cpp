// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32PointList.h>

#include <LZEL_Core/containers/CZEL_Int32PointVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int32PointList, CZEL_Int32PointVector, CZEL_Int32Point,
                           CZEL_List<CZEL_Int32Point>)
