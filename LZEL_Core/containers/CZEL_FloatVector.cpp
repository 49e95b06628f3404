// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_FloatVector.h>

#include <LZEL_Core/containers/CZEL_FloatList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_FloatVector, CZEL_FloatList, float, CZEL_OrderedVector<float>)
