// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Containers.h
// -----------------------------------------------------------------------------
//
// The container subsystem in one include: the vector and list templates with
// their ordered forms and the instantiations of the library, and the named
// container classes of the numbers and strings, among them the byte vector,
// and those of the value classes: bit sets, decimals, dates, times, IP
// addresses, points, sizes and rectangles.
//
//   #include <LZEL_Core/containers/ZEL_Containers.h>
//
//   CZEL_Int32List list(3, 0);
//   CZEL_Int32Vector vector;
//   vector = list;

#ifndef LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_
#define LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_

#include <LZEL_Core/containers/ZEL_NoItem.h>
#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_VectorListOps.h>
#include <LZEL_Core/containers/CZEL_OrderedVector.h>
#include <LZEL_Core/containers/CZEL_OrderedList.h>
#include <LZEL_Core/containers/ZEL_ContainerElements.h>
#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/CZEL_DoubleList.h>
#include <LZEL_Core/containers/CZEL_DoubleVector.h>
#include <LZEL_Core/containers/CZEL_FloatList.h>
#include <LZEL_Core/containers/CZEL_FloatVector.h>
#include <LZEL_Core/containers/CZEL_Int16List.h>
#include <LZEL_Core/containers/CZEL_Int16Vector.h>
#include <LZEL_Core/containers/CZEL_Int32List.h>
#include <LZEL_Core/containers/CZEL_Int32Vector.h>
#include <LZEL_Core/containers/CZEL_Int64List.h>
#include <LZEL_Core/containers/CZEL_Int64Vector.h>
#include <LZEL_Core/containers/CZEL_Int8List.h>
#include <LZEL_Core/containers/CZEL_Int8Vector.h>
#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/containers/CZEL_Uint16List.h>
#include <LZEL_Core/containers/CZEL_Uint16Vector.h>
#include <LZEL_Core/containers/CZEL_Uint32List.h>
#include <LZEL_Core/containers/CZEL_Uint32Vector.h>
#include <LZEL_Core/containers/CZEL_Uint64List.h>
#include <LZEL_Core/containers/CZEL_Uint64Vector.h>
#include <LZEL_Core/containers/CZEL_Uint8List.h>
#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/containers/CZEL_BitSetList.h>
#include <LZEL_Core/containers/CZEL_BitSetVector.h>
#include <LZEL_Core/containers/CZEL_DecimalNumberList.h>
#include <LZEL_Core/containers/CZEL_DecimalNumberVector.h>
#include <LZEL_Core/containers/CZEL_DateList.h>
#include <LZEL_Core/containers/CZEL_DateVector.h>
#include <LZEL_Core/containers/CZEL_TimeList.h>
#include <LZEL_Core/containers/CZEL_TimeVector.h>
#include <LZEL_Core/containers/CZEL_IpAddressList.h>
#include <LZEL_Core/containers/CZEL_IpAddressVector.h>
#include <LZEL_Core/containers/CZEL_Int32PointList.h>
#include <LZEL_Core/containers/CZEL_Int32PointVector.h>
#include <LZEL_Core/containers/CZEL_DoublePointList.h>
#include <LZEL_Core/containers/CZEL_DoublePointVector.h>
#include <LZEL_Core/containers/CZEL_Int32SizeList.h>
#include <LZEL_Core/containers/CZEL_Int32SizeVector.h>
#include <LZEL_Core/containers/CZEL_Int32RectList.h>
#include <LZEL_Core/containers/CZEL_Int32RectVector.h>
#include <LZEL_Core/containers/CZEL_DoubleRectList.h>
#include <LZEL_Core/containers/CZEL_DoubleRectVector.h>

#endif  // LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_
