// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32RectVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32RectVector` is the exact-size array of `CZEL_Int32Rect` (integer
// rectangles): a `CZEL_Vector<CZEL_Int32Rect>` with assignment to and from
// `CZEL_Int32RectList`. New slots hold default values; items are deep copies,
// assigned one by one. The members it adds are those of every named vector
// class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32RectVector items(2, CZEL_Int32Rect(0, 0, 4, 4));
//   CZEL_Int32RectList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32RectList;

class ZEL_API CZEL_Int32RectVector : public CZEL_Vector<CZEL_Int32Rect> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int32RectVector, CZEL_Int32RectList, CZEL_Int32Rect)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_RECT_VECTOR_H_
