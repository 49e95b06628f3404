// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int64Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int64Vector` is the exact-size array of `ZEL::i64` (64-bit signed): a
// `CZEL_OrderedVector<ZEL::i64>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Int64List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int64Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   ZEL::i64 smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT64_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT64_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int64List;

class ZEL_API CZEL_Int64Vector : public CZEL_OrderedVector<ZEL::i64> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int64Vector, CZEL_Int64List, ZEL::i64)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT64_VECTOR_H_
