// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32SizeList.h>

#include <LZEL_Core/containers/CZEL_Int32SizeVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_Int32SizeList, CZEL_Int32SizeVector, CZEL_Int32Size,
                           CZEL_List<CZEL_Int32Size>)
