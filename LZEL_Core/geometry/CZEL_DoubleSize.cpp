#include <LZEL_Core/geometry/CZEL_DoubleSize.h>

ZEL_NAMED_PAIR_DEFINITIONS(CZEL_DoubleSize, CZEL_Size<double>, double)
