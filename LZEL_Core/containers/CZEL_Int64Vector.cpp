// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int64Vector.h>

#include <LZEL_Core/containers/CZEL_Int64List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int64Vector, CZEL_Int64List, ZEL::i64,
                             CZEL_OrderedVector<ZEL::i64>)
