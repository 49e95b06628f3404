// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint16Vector.h>

#include <LZEL_Core/containers/CZEL_Uint16List.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Uint16Vector, CZEL_Uint16List, ZEL::u16,
                             CZEL_OrderedVector<ZEL::u16>)
