// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_DoubleRect.h>

ZEL_NAMED_RECT_DEFINITIONS(CZEL_DoubleRect, double)
