// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint16List.h>

#include <LZEL_Core/containers/CZEL_Uint16Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Uint16List, CZEL_Uint16Vector, ZEL::u16, CZEL_OrderedList<ZEL::u16>)
