// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32PointVector.h>

#include <LZEL_Core/containers/CZEL_Int32PointList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int32PointVector, CZEL_Int32PointList, CZEL_Int32Point,
                             CZEL_Vector<CZEL_Int32Point>)
