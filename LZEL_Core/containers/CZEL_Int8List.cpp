// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int8List.h>

#include <LZEL_Core/containers/CZEL_Int8Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int8List, CZEL_Int8Vector, signed char,
                           CZEL_OrderedList<signed char>)
