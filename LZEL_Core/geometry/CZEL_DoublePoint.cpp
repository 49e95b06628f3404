// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_DoublePoint.h>

ZEL_NAMED_PAIR_DEFINITIONS(CZEL_DoublePoint, CZEL_Point<double>, double)
