// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int16Vector.h>

#include <LZEL_Core/containers/CZEL_Int16List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int16Vector, CZEL_Int16List, short, CZEL_OrderedVector<short>)
