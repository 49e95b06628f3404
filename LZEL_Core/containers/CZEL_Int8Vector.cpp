// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int8Vector.h>

#include <LZEL_Core/containers/CZEL_Int8List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int8Vector, CZEL_Int8List, signed char,
                             CZEL_OrderedVector<signed char>)
