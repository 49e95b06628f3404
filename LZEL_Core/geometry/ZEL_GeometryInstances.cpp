// SPDX-License-Identifier: Apache-2.0
// The explicit instantiations of the geometry templates, one set per
// coordinate type of ZEL_GeometryExterns.h. They carry the templates' export
// mark, so that they form part of the library's surface.

#include <LZEL_Core/geometry/ZEL_GeometryExterns.h>

#define ZEL_INSTANTIATE_GEOMETRY(T) \
  template class CZEL_Point<T>;     \
  template class CZEL_Size<T>;      \
  template class CZEL_Rect<T>;

ZEL_GEOMETRY_COORDINATES(ZEL_INSTANTIATE_GEOMETRY)
