// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoublePointVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoublePointVector` is the exact-size array of `CZEL_DoublePoint`
// (double points): a `CZEL_Vector<CZEL_DoublePoint>` with assignment to and
// from `CZEL_DoublePointList`. New slots hold default values; items are deep
// copies, assigned one by one. The members it adds are those of every named
// vector class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_DoublePointVector items(2, CZEL_DoublePoint(0.5, 1.5));
//   CZEL_DoublePointList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoublePointList;

class ZEL_API CZEL_DoublePointVector : public CZEL_Vector<CZEL_DoublePoint> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_DoublePointVector, CZEL_DoublePointList, CZEL_DoublePoint)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_POINT_VECTOR_H_
