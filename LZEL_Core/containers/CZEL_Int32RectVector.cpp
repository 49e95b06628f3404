// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32RectVector.h>

#include <LZEL_Core/containers/CZEL_Int32RectList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int32RectVector, CZEL_Int32RectList, CZEL_Int32Rect,
                             CZEL_Vector<CZEL_Int32Rect>)
