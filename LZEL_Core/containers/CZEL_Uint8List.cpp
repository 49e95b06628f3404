// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint8List.h>

#include <LZEL_Core/containers/CZEL_Uint8Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Uint8List, CZEL_Uint8Vector, ZEL::u8, CZEL_OrderedList<ZEL::u8>)
