// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoubleRectList.h>

#include <LZEL_Core/containers/CZEL_DoubleRectVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_DoubleRectList, CZEL_DoubleRectVector, CZEL_DoubleRect,
                           CZEL_List<CZEL_DoubleRect>)
