// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint32List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint32List` is the cursor list of `ZEL::u32` (32-bit unsigned): a `CZEL_OrderedList<ZEL::u32>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Uint32Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint32List list(3, 3);
//   CZEL_Uint32Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT32_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT32_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint32Vector;

class ZEL_API CZEL_Uint32List : public CZEL_OrderedList<ZEL::u32> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Uint32List, CZEL_Uint32Vector, ZEL::u32)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT32_LIST_H_
