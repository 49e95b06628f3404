// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Net.h
// -----------------------------------------------------------------------------
//
// IP addresses in one include.

#ifndef LZEL_CORE_NET_ZEL_NET_H_
#define LZEL_CORE_NET_ZEL_NET_H_

#include <LZEL_Core/net/CZEL_IpAddress.h>

#endif  // LZEL_CORE_NET_ZEL_NET_H_
