// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_ValueContainerExterns.h
// -----------------------------------------------------------------------------
//
// The container templates over the value classes of the bit-level, calendar,
// geometry and address subsystems, with `extern template` declarations: their
// code is instantiated once, in the library (ZEL_ValueContainerInstances.cpp).
// `ZEL_CONTAINER_VALUE_CLASSES(X)` lists those element classes; each gets
// `CZEL_Vector` and `CZEL_List`. They stand apart from the list in
// <LZEL_Core/containers/ZEL_ContainerElements.h> because their headers sit
// above the containers: a value class may use containers itself.

#ifndef LZEL_CORE_CONTAINERS_ZEL_VALUE_CONTAINER_EXTERNS_H_
#define LZEL_CORE_CONTAINERS_ZEL_VALUE_CONTAINER_EXTERNS_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/values/CZEL_BitSet.h>
#include <LZEL_Core/values/CZEL_DecimalNumber.h>
#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/geometry/CZEL_Int32Point.h>
#include <LZEL_Core/geometry/CZEL_DoublePoint.h>
#include <LZEL_Core/geometry/CZEL_Int32Size.h>
#include <LZEL_Core/geometry/CZEL_Int32Rect.h>
#include <LZEL_Core/geometry/CZEL_DoubleRect.h>

#define ZEL_CONTAINER_VALUE_CLASSES(X) \
  X(CZEL_BitSet)                       \
  X(CZEL_DecimalNumber)                \
  X(CZEL_Date)                         \
  X(CZEL_Time)                         \
  X(CZEL_IpAddress)                    \
  X(CZEL_Int32Point)                   \
  X(CZEL_DoublePoint)                  \
  X(CZEL_Int32Size)                    \
  X(CZEL_Int32Rect)                    \
  X(CZEL_DoubleRect)

#define ZEL_EXTERN_VALUE_CONTAINERS(T)      \
  ZEL_EXTERN_TEMPLATE(class CZEL_Vector<T>) \
  ZEL_EXTERN_TEMPLATE(class CZEL_List<T>)

ZEL_CONTAINER_VALUE_CLASSES(ZEL_EXTERN_VALUE_CONTAINERS)

#undef ZEL_EXTERN_VALUE_CONTAINERS

#endif  // LZEL_CORE_CONTAINERS_ZEL_VALUE_CONTAINER_EXTERNS_H_
