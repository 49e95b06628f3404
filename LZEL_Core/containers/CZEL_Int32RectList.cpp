// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32RectList.h>

#include <LZEL_Core/containers/CZEL_Int32RectVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int32RectList, CZEL_Int32RectVector, CZEL_Int32Rect,
                           CZEL_List<CZEL_Int32Rect>)
