// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int8List.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int8List` is the cursor list of `signed char` (8-bit signed): a `CZEL_OrderedList<signed char>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_Int8Vector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int8List list(3, 3);
//   CZEL_Int8Vector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT8_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT8_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int8Vector;

class ZEL_API CZEL_Int8List : public CZEL_OrderedList<signed char> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int8List, CZEL_Int8Vector, signed char)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT8_LIST_H_
