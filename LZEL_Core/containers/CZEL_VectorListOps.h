// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_VectorListOps.h
// -----------------------------------------------------------------------------
//
// The members of `CZEL_Vector<T>` that take a `CZEL_List<T>` as their source:
// assignment from a list, `AppendList` (`operator&=`), and the list forms of
// `CopyItemsFrom` and `InsertItems`. They are declared and documented in
// <LZEL_Core/containers/CZEL_Vector.h> and defined here, so that the vector
// itself needs nothing but the library frame. Include this header (or
// <LZEL_Core/containers/ZEL_Containers.h>) to use them.
//
// All of them move the source list's cursor, which is why the list is taken
// by non-const reference even for a read:
//
//   CZEL_List<int> list(3, 7);
//   CZEL_Vector<int> v;
//   v = list;                   // 7, 7, 7; the list's cursor is on its tail
//   list.ToStart();
//   v.CopyItemsFrom(1, list, 5, 0);  // copies 2 items from the cursor on

#ifndef LZEL_CORE_CONTAINERS_CZEL_VECTOR_LIST_OPS_H_
#define LZEL_CORE_CONTAINERS_CZEL_VECTOR_LIST_OPS_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/frame/ZEL_Types.h>

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::operator=(CZEL_List<T>& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
void CZEL_Vector<T>::DataCopy(CZEL_List<T>& src) {
  if (m_Length != src.GetLength()) {
    DeleteBuffer();
    m_Length = src.GetLength();
    if (m_Length == 0) return;
    m_Buf = NewItems(m_Length);
  }
  src.ToStart();
  for (ZEL::u32 i = 0; i < m_Length; ++i) m_Buf[i] = src >> 1;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::AppendList(CZEL_List<T>& src) {
  ZEL::u32 const old = m_Length;
  Recreate(src.GetLength() + m_Length, 0);
  src.ToStart();
  for (ZEL::u32 i = 0; i < src.GetLength(); ++i) m_Buf[old + i] = src >> 1;
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::operator&=(CZEL_List<T>& src) {
  return AppendList(src);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::CopyItemsFrom(ZEL::u32 pos, CZEL_List<T>& src, ZEL::u32 count,
                                              ZEL::u8 extend) {
  if (count == 0) return *this;
  FitRange(pos, count, extend);
  ZEL::u32 const end = pos + count;
  for (ZEL::u32 i = pos; i < end; ++i) {
    m_Buf[i] = src.CurItem();
    if (src.IsEnd()) break;
    src.Next(1);
  }
  return *this;
}

template <typename T>
CZEL_Vector<T> CZEL_Vector<T>::InsertItems(ZEL::u32 pos, CZEL_List<T>& src, ZEL::u32 count,
                                           ZEL::u8 extend) {
  OpenGap(pos, count, extend);
  CopyItemsFrom(pos, src, count, 1);
  return *this;
}

#endif  // LZEL_CORE_CONTAINERS_CZEL_VECTOR_LIST_OPS_H_
