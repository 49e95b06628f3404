// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_ContainerExterns.h
// -----------------------------------------------------------------------------
//
// The container templates with `extern template` declarations for every
// element type of <LZEL_Core/containers/ZEL_ContainerElements.h>. Their code
// is instantiated once, in the library, and exported from it; a program that
// includes this header (directly or through any named container class)
// links against those instances instead of compiling its own.

#ifndef LZEL_CORE_CONTAINERS_ZEL_CONTAINER_EXTERNS_H_
#define LZEL_CORE_CONTAINERS_ZEL_CONTAINER_EXTERNS_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_OrderedList.h>
#include <LZEL_Core/containers/CZEL_OrderedVector.h>
#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/CZEL_VectorListOps.h>
#include <LZEL_Core/containers/ZEL_ContainerElements.h>

#define ZEL_EXTERN_CONTAINERS(T)            \
  ZEL_EXTERN_TEMPLATE(class CZEL_Vector<T>) \
  ZEL_EXTERN_TEMPLATE(class CZEL_List<T>)

#define ZEL_EXTERN_ORDERED_CONTAINERS(T)           \
  ZEL_EXTERN_TEMPLATE(class CZEL_OrderedVector<T>) \
  ZEL_EXTERN_TEMPLATE(class CZEL_OrderedList<T>)

ZEL_CONTAINER_NUMBERS(ZEL_EXTERN_CONTAINERS)
ZEL_CONTAINER_NUMBERS(ZEL_EXTERN_ORDERED_CONTAINERS)
ZEL_CONTAINER_VALUES(ZEL_EXTERN_CONTAINERS)

#undef ZEL_EXTERN_CONTAINERS
#undef ZEL_EXTERN_ORDERED_CONTAINERS

#endif  // LZEL_CORE_CONTAINERS_ZEL_CONTAINER_EXTERNS_H_
