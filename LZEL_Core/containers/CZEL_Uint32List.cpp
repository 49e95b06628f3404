// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint32List.h>

#include <LZEL_Core/containers/CZEL_Uint32Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Uint32List, CZEL_Uint32Vector, ZEL::u32, CZEL_OrderedList<ZEL::u32>)
