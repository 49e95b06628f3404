// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_IpAddressList.h
// -----------------------------------------------------------------------------
//
// `CZEL_IpAddressList` is the cursor list of `CZEL_IpAddress` (IP addresses): a
// `CZEL_List<CZEL_IpAddress>` with assignment to and from
// `CZEL_IpAddressVector`. Its items are deep copies of the values put in. The
// members it adds are those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_IpAddressList items;
//   items += CZEL_IpAddress(CZEL_String("192.168.0.1"));
//   CZEL_IpAddressVector array;
//   array = items;   // the list's items; its cursor ends on the tail

#ifndef LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_LIST_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_IpAddressVector;

class ZEL_API CZEL_IpAddressList : public CZEL_List<CZEL_IpAddress> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_IpAddressList, CZEL_IpAddressVector, CZEL_IpAddress)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_LIST_H_
