// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint64Vector.h>

#include <LZEL_Core/containers/CZEL_Uint64List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Uint64Vector, CZEL_Uint64List, ZEL::u64,
                             CZEL_OrderedVector<ZEL::u64>)
