#ifndef LZEL_CORE_TEXT_CZEL_STRING_H_
#define LZEL_CORE_TEXT_CZEL_STRING_H_

#include <LZEL_Core/frame/ZEL_Types.h>

#endif  // LZEL_CORE_TEXT_CZEL_STRING_H_
