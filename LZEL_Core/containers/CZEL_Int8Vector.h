// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int8Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int8Vector` is the exact-size array of `signed char` (8-bit signed): a
// `CZEL_OrderedVector<signed char>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Int8List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int8Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   signed char smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT8_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT8_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int8List;

class ZEL_API CZEL_Int8Vector : public CZEL_OrderedVector<signed char> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int8Vector, CZEL_Int8List, signed char)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT8_VECTOR_H_
