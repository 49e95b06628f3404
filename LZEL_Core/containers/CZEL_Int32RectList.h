// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32RectList.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32RectList` is the cursor list of `CZEL_Int32Rect` (integer
// rectangles): a `CZEL_List<CZEL_Int32Rect>` with assignment to and from
// `CZEL_Int32RectVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32RectList items;
//   items += CZEL_Int32Rect(0, 0, 4, 4);
//   CZEL_Int32RectVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32RectVector;

class ZEL_API CZEL_Int32RectList : public CZEL_List<CZEL_Int32Rect> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int32RectList, CZEL_Int32RectVector, CZEL_Int32Rect)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_LIST_H_
