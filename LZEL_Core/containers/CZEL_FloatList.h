// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_FloatList.h
// -----------------------------------------------------------------------------
//
// `CZEL_FloatList` is the cursor list of `float` (32-bit IEEE): a `CZEL_OrderedList<float>`
// with the list's cursor operations, `Min`, `Max` and `Sort(ascending)`, and
// assignment to and from `CZEL_FloatVector`. The members it adds are those of every
// named list class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_FloatList list(3, 2.5);
//   CZEL_FloatVector vector;
//   vector = list;                  // three items; the list's cursor on its tail
//   list = vector;                  // back again; the cursor on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_FLOAT_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_FLOAT_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_FloatVector;

class ZEL_API CZEL_FloatList : public CZEL_OrderedList<float> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_FloatList, CZEL_FloatVector, float)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_FLOAT_LIST_H_
