// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Int32SizeVector.h>

#include <LZEL_Core/containers/CZEL_Int32SizeList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_Int32SizeVector, CZEL_Int32SizeList, CZEL_Int32Size,
                             CZEL_Vector<CZEL_Int32Size>)
