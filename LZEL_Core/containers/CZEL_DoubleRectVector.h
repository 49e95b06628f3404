// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleRectVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleRectVector` is the exact-size array of `CZEL_DoubleRect` (double
// rectangles): a `CZEL_Vector<CZEL_DoubleRect>` with assignment to and from
// `CZEL_DoubleRectList`. New slots hold default values; items are deep copies,
// assigned one by one. The members it adds are those of every named vector
// class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DoubleRectVector items(2, CZEL_DoubleRect(0.0, 0.0, 1.0, 2.0));
//   CZEL_DoubleRectList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoubleRectList;

class ZEL_API CZEL_DoubleRectVector : public CZEL_Vector<CZEL_DoubleRect> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_DoubleRectVector, CZEL_DoubleRectList, CZEL_DoubleRect)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_RECT_VECTOR_H_
