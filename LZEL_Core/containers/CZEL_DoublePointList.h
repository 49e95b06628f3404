// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoublePointList.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoublePointList` is the cursor list of `CZEL_DoublePoint` (double
// points): a `CZEL_List<CZEL_DoublePoint>` with assignment to and from
// `CZEL_DoublePointVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DoublePointList items;
//   items += CZEL_DoublePoint(0.5, 1.5);
//   CZEL_DoublePointVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoublePointVector;

class ZEL_API CZEL_DoublePointList : public CZEL_List<CZEL_DoublePoint> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_DoublePointList, CZEL_DoublePointVector, CZEL_DoublePoint)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_LIST_H_
