// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleRectList.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleRectList` is the cursor list of `CZEL_DoubleRect` (double
// rectangles): a `CZEL_List<CZEL_DoubleRect>` with assignment to and from
// `CZEL_DoubleRectVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DoubleRectList items;
//   items += CZEL_DoubleRect(0.0, 0.0, 1.0, 2.0);
//   CZEL_DoubleRectVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoubleRectVector;

class ZEL_API CZEL_DoubleRectList : public CZEL_List<CZEL_DoubleRect> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_DoubleRectList, CZEL_DoubleRectVector, CZEL_DoubleRect)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_LIST_H_
