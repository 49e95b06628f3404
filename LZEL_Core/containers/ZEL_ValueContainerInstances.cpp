// SPDX-License-Identifier: Apache-2.0
// The explicit instantiations of the container templates over the value
// classes of ZEL_ValueContainerExterns.h, exported with the library.

#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>

#define ZEL_INSTANTIATE_VALUE_CONTAINERS(T) \
  template class CZEL_Vector<T>;            \
  template class CZEL_List<T>;

ZEL_CONTAINER_VALUE_CLASSES(ZEL_INSTANTIATE_VALUE_CONTAINERS)
