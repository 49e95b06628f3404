// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32Vector.h>

#include <LZEL_Core/containers/CZEL_Int32List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int32Vector, CZEL_Int32List, int, CZEL_OrderedVector<int>)
