// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint64List.h>

#include <LZEL_Core/containers/CZEL_Uint64Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Uint64List, CZEL_Uint64Vector, ZEL::u64, CZEL_OrderedList<ZEL::u64>)
