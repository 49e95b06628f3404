// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint32Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint32Vector` is the exact-size array of `ZEL::u32` (32-bit unsigned): a
// `CZEL_OrderedVector<ZEL::u32>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Uint32List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint32Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   ZEL::u32 smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT32_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT32_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint32List;

class ZEL_API CZEL_Uint32Vector : public CZEL_OrderedVector<ZEL::u32> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Uint32Vector, CZEL_Uint32List, ZEL::u32)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT32_VECTOR_H_
