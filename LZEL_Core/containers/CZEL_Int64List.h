// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int64List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int64List` is the cursor list of `ZEL::i64` (64-bit signed): a `CZEL_OrderedList<ZEL::i64>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Int64Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int64List list(3, 3);
//   CZEL_Int64Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT64_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT64_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int64Vector;

class ZEL_API CZEL_Int64List : public CZEL_OrderedList<ZEL::i64> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int64List, CZEL_Int64Vector, ZEL::i64)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT64_LIST_H_
