// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int16List.h>

#include <LZEL_Core/containers/CZEL_Int16Vector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int16List, CZEL_Int16Vector, short, CZEL_OrderedList<short>)
