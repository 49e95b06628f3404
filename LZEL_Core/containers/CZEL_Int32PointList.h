// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32PointList.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32PointList` is the cursor list of `CZEL_Int32Point` (integer
// points): a `CZEL_List<CZEL_Int32Point>` with assignment to and from
// `CZEL_Int32PointVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32PointList items;
//   items += CZEL_Int32Point(3, 4);
//   CZEL_Int32PointVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32PointVector;

class ZEL_API CZEL_Int32PointList : public CZEL_List<CZEL_Int32Point> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int32PointList, CZEL_Int32PointVector, CZEL_Int32Point)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_POINT_LIST_H_
