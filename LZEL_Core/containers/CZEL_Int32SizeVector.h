// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32SizeVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32SizeVector` is the exact-size array of `CZEL_Int32Size` (integer
// sizes): a `CZEL_Vector<CZEL_Int32Size>` with assignment to and from
// `CZEL_Int32SizeList`. New slots hold default values; items are deep copies,
// assigned one by one. The members it adds are those of every named vector
// class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32SizeVector items(2, CZEL_Int32Size(640, 480));
//   CZEL_Int32SizeList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32SizeList;

class ZEL_API CZEL_Int32SizeVector : public CZEL_Vector<CZEL_Int32Size> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_Int32SizeVector, CZEL_Int32SizeList, CZEL_Int32Size)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_VECTOR_H_
