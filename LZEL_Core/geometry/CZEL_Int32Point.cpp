// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_Int32Point.h>

ZEL_NAMED_PAIR_DEFINITIONS(CZEL_Int32Point, CZEL_Point<int>, int)
