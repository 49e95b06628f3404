// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_NoItem.h
// -----------------------------------------------------------------------------
//
// `ZEL::NoItem<T>()` is the reference that the containers hand out where a
// read that never throws finds no item: `ToStart` and `ToEnd` of an empty
// list, `Min` and `Max` of an empty ordered container. Such a reference is
// invalid in the library's terms and callers must not use it; it refers to
// storage that holds no `T`, so that handing it out is harmless as long as it
// is not read or written.
//
//   CZEL_List<int> list;
//   list.ToStart();                 // allowed, the result must not be used
//   if (list.GetLength() != 0) { int first = list.ToStart(); }

#ifndef LZEL_CORE_CONTAINERS_ZEL_NO_ITEM_H_
#define LZEL_CORE_CONTAINERS_ZEL_NO_ITEM_H_

namespace ZEL {

// The reference of a read that found no item; see above. Never read it.
template <typename T>
T& NoItem() {
  // Zero-initialised storage: no object is built, so there is nothing to
  // initialise at load time and nothing to destroy at unload.
  alignas(T) static unsigned char storage[sizeof(T)];
  return *reinterpret_cast<T*>(storage);
}

}  // namespace ZEL

#endif  // LZEL_CORE_CONTAINERS_ZEL_NO_ITEM_H_
