// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint64List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint64List` is the cursor list of `ZEL::u64` (64-bit unsigned): a `CZEL_OrderedList<ZEL::u64>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Uint64Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint64List list(3, 3);
//   CZEL_Uint64Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT64_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT64_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint64Vector;

class ZEL_API CZEL_Uint64List : public CZEL_OrderedList<ZEL::u64> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Uint64List, CZEL_Uint64Vector, ZEL::u64)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT64_LIST_H_
