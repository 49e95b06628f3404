// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoubleRectVector.h>

#include <LZEL_Core/containers/CZEL_DoubleRectList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_DoubleRectVector, CZEL_DoubleRectList, CZEL_DoubleRect,
                             CZEL_Vector<CZEL_DoubleRect>)
