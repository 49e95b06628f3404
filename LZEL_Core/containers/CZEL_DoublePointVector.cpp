// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoublePointVector.h>

#include <LZEL_Core/containers/CZEL_DoublePointList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_DoublePointVector, CZEL_DoublePointList, CZEL_DoublePoint,
                             CZEL_Vector<CZEL_DoublePoint>)
