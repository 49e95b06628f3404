// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint32Vector.h>

#include <LZEL_Core/containers/CZEL_Uint32List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Uint32Vector, CZEL_Uint32List, ZEL::u32,
                             CZEL_OrderedVector<ZEL::u32>)
