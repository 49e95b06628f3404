// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int64List.h>

#include <LZEL_Core/containers/CZEL_Int64Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int64List, CZEL_Int64Vector, ZEL::i64, CZEL_OrderedList<ZEL::i64>)
