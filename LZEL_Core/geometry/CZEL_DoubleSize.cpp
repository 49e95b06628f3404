// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/geometry/CZEL_DoubleSize.h>

ZEL_NAMED_PAIR_DEFINITIONS(CZEL_DoubleSize, CZEL_Size<double>, double)
