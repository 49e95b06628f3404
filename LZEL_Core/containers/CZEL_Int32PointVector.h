// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32PointVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32PointVector` is the exact-size array of `CZEL_Int32Point` (integer
// points): a `CZEL_Vector<CZEL_Int32Point>` with assignment to and from
// `CZEL_Int32PointList`. New slots hold default values; items are deep copies,
// assigned one by one. The members it adds are those of every named vector
// class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32PointVector items(2, CZEL_Int32Point(3, 4));
//   CZEL_Int32PointList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32PointList;

class ZEL_API CZEL_Int32PointVector : public CZEL_Vector<CZEL_Int32Point> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int32PointVector, CZEL_Int32PointList, CZEL_Int32Point)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_VECTOR_H_
