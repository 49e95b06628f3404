// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32List` is the cursor list of `int` (32-bit signed): a `CZEL_OrderedList<int>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Int32Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32List list(3, 3);
//   CZEL_Int32Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32Vector;

class ZEL_API CZEL_Int32List : public CZEL_OrderedList<int> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int32List, CZEL_Int32Vector, int)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_LIST_H_
