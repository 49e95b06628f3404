// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int16Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int16Vector` is the exact-size array of `short` (16-bit signed): a
// `CZEL_OrderedVector<short>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, and assignment to and from `CZEL_Int16List`. The members it adds
// are those of every named vector class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int16Vector vector(4, 3);         // four items; a count of 0 throws
//   vector[0] = 1;
//   short smallest = vector.Min();

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT16_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT16_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int16List;

class ZEL_API CZEL_Int16Vector : public CZEL_OrderedVector<short> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int16Vector, CZEL_Int16List, short)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT16_VECTOR_H_
