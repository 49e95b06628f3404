// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32List.h>

#include <LZEL_Core/containers/CZEL_Int32Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int32List, CZEL_Int32Vector, int, CZEL_OrderedList<int>)
