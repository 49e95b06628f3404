// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32Vector` is the exact-size array of `int` (32-bit signed): a
// `CZEL_OrderedVector<int>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Int32List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   int smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32List;

class ZEL_API CZEL_Int32Vector : public CZEL_OrderedVector<int> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int32Vector, CZEL_Int32List, int)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_VECTOR_H_
