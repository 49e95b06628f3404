// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_Int32Rect.h>

ZEL_NAMED_RECT_DEFINITIONS(CZEL_Int32Rect, int)
