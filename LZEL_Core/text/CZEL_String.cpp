#include <LZEL_Core/text/CZEL_String.h>
