// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Int32SizeList.h
// -----------------------------------------------------------------------------
//
// `CZEL_Int32SizeList` is the cursor list of `CZEL_Int32Size` (integer sizes):
// a `CZEL_List<CZEL_Int32Size>` with assignment to and from
// `CZEL_Int32SizeVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_Int32SizeList items;
//   items += CZEL_Int32Size(640, 480);
//   CZEL_Int32SizeVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_Int32SizeVector;

class ZEL_API CZEL_Int32SizeList : public CZEL_List<CZEL_Int32Size> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_Int32SizeList, CZEL_Int32SizeVector, CZEL_Int32Size)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_INT32_SIZE_LIST_H_
