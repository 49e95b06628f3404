// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_ContainerElements.h
// -----------------------------------------------------------------------------
//
// The one list of element types for which the library instantiates its
// container templates. Each list is an X-macro: `ZEL_CONTAINER_NUMBERS(X)`
// expands to X(type) once per number type, and so on. The lists are used
// twice, by <LZEL_Core/containers/ZEL_ContainerExterns.h> for the `extern
// template` declarations that applications see, and by
// ZEL_ContainerInstances.cpp for the explicit instantiations in the library.
//
// - `ZEL_CONTAINER_NUMBERS`: the ten number types; each gets `CZEL_Vector`,
//   `CZEL_List`, `CZEL_OrderedVector` and `CZEL_OrderedList`.
// - `ZEL_CONTAINER_VALUES`: the value classes; each gets `CZEL_Vector` and
//   `CZEL_List`. A value class joins by one line here (with the include of
//   its header above the list).
//
// `CZEL_List<CZEL_Uint8Vector>`, the one instantiation on a container, is
// declared at the end of <LZEL_Core/containers/CZEL_Uint8Vector.h>. Likewise
// `CZEL_Vector` and `CZEL_List` of the template node `CZEL_Code::CFormatNode`
// are declared at the end of <LZEL_Core/text/CZEL_Code.h>: that header holds
// named string containers, which include this list, so it can't stand above
// the list, and a nested class can't be declared ahead of its class.

#ifndef LZEL_CORE_CONTAINERS_ZEL_CONTAINER_ELEMENTS_H_
#define LZEL_CORE_CONTAINERS_ZEL_CONTAINER_ELEMENTS_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

#define ZEL_CONTAINER_NUMBERS(X) \
  X(signed char)                 \
  X(ZEL::u8)                     \
  X(short)                       \
  X(ZEL::u16)                    \
  X(int)                         \
  X(ZEL::u32)                    \
  X(ZEL::i64)                    \
  X(ZEL::u64)                    \
  X(float)                       \
  X(double)

#define ZEL_CONTAINER_VALUES(X) X(CZEL_String)

#endif  // LZEL_CORE_CONTAINERS_ZEL_CONTAINER_ELEMENTS_H_
