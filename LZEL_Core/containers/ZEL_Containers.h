// -----------------------------------------------------------------------------
// File: ZEL_Containers.h
// -----------------------------------------------------------------------------
//
// The container subsystem in one include.

#ifndef LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_
#define LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_

#endif  // LZEL_CORE_CONTAINERS_ZEL_CONTAINERS_H_
