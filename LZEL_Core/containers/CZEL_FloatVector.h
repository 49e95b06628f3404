// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_FloatVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_FloatVector` is the exact-size array of `float` (32-bit IEEE): a
// `CZEL_OrderedVector<float>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_FloatList`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_FloatVector vector(4, 2.5);         // four items; a count of 0 throws
//   vector[0] = 1;
//   float smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_FLOAT_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_FLOAT_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_FloatList;

class ZEL_API CZEL_FloatVector : public CZEL_OrderedVector<float> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_FloatVector, CZEL_FloatList, float)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_FLOAT_VECTOR_H_
