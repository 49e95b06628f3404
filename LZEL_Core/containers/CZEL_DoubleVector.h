// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_DoubleVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_DoubleVector` is the exact-size array of `double`: a
// `CZEL_OrderedVector<double>` with the vector's operations, `Min`, `Max` and
// `Sort(ascending)`, assignment to and from `CZEL_DoubleList`, and the root
// mean square of its items. The members it shares with every named vector
// class are described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   double raw[] = {3, 4};
//   CZEL_DoubleVector v(raw, 2);
//   double rms = v.GetRMS();        // sqrt(12.5)

#ifndef LZEL_CORE_CONTAINERS_CZEL_DOUBLE_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_DOUBLE_VECTOR_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_DoubleList;

class ZEL_API CZEL_DoubleVector : public CZEL_OrderedVector<double> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_DoubleVector, CZEL_DoubleList, double)

 public:
  // The root mean square: the square root of the sum of the squares, taken in
  // item order, divided by the length. An empty vector is not looked for and
  // yields the NaN of 0 / 0.
  double GetRMS() const;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_DOUBLE_VECTOR_H_
