// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint16Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint16Vector` is the exact-size array of `ZEL::u16` (16-bit unsigned): a
// `CZEL_OrderedVector<ZEL::u16>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Uint16List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint16Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   ZEL::u16 smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT16_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT16_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint16List;

class ZEL_API CZEL_Uint16Vector : public CZEL_OrderedVector<ZEL::u16> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Uint16Vector, CZEL_Uint16List, ZEL::u16)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT16_VECTOR_H_
