// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Uint8List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Uint8List` is the cursor list of `ZEL::u8` (8-bit unsigned): a `CZEL_OrderedList<ZEL::u8>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Uint8Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Uint8List list(3, 3);
//   CZEL_Uint8Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_UINT8_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_UINT8_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Uint8Vector;

class ZEL_API CZEL_Uint8List : public CZEL_OrderedList<ZEL::u8> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Uint8List, CZEL_Uint8Vector, ZEL::u8)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_UINT8_LIST_H_
