// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint64Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint64Vector` is the exact-size array of `ZEL::u64` (64-bit unsigned): a
// `CZEL_OrderedVector<ZEL::u64>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Uint64List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint64Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   ZEL::u64 smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT64_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT64_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint64List;

class ZEL_API CZEL_Uint64Vector : public CZEL_OrderedVector<ZEL::u64> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Uint64Vector, CZEL_Uint64List, ZEL::u64)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT64_VECTOR_H_
