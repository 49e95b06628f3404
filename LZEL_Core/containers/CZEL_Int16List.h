// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int16List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int16List` is the cursor list of `short` (16-bit signed): a `CZEL_OrderedList<short>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Int16Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int16List list(3, 3);
//   CZEL_Int16Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT16_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT16_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int16Vector;

class ZEL_API CZEL_Int16List : public CZEL_OrderedList<short> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int16List, CZEL_Int16Vector, short)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT16_LIST_H_
