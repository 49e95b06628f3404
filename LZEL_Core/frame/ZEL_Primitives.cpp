#include <LZEL_Core/frame/ZEL_Primitives.h>
