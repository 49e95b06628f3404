// SPDX-License-Identifier: Apache-2.0
// The explicit instantiations of the container templates, one set per element
// type of ZEL_ContainerElements.h. They carry the templates' export mark, so
// that they form part of the library's surface.

#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/text/CZEL_Code.h>

#define ZEL_INSTANTIATE_CONTAINERS(T) \
  template class CZEL_Vector<T>;      \
  template class CZEL_List<T>;

#define ZEL_INSTANTIATE_ORDERED_CONTAINERS(T) \
  template class CZEL_OrderedVector<T>;       \
  template class CZEL_OrderedList<T>;

ZEL_CONTAINER_NUMBERS(ZEL_INSTANTIATE_CONTAINERS)
ZEL_CONTAINER_NUMBERS(ZEL_INSTANTIATE_ORDERED_CONTAINERS)
ZEL_CONTAINER_VALUES(ZEL_INSTANTIATE_CONTAINERS)

template class CZEL_List<CZEL_Uint8Vector>;
template class CZEL_Vector<CZEL_Code::CFormatNode>;
template class CZEL_List<CZEL_Code::CFormatNode>;
