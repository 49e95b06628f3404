// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint16List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint16List` is the cursor list of `ZEL::u16` (16-bit unsigned): a `CZEL_OrderedList<ZEL::u16>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Uint16Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint16List list(3, 3);
//   CZEL_Uint16Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT16_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT16_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint16Vector;

class ZEL_API CZEL_Uint16List : public CZEL_OrderedList<ZEL::u16> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Uint16List, CZEL_Uint16Vector, ZEL::u16)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT16_LIST_H_
