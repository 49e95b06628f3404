// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_IpAddressVector.h
// -----------------------------------------------------------------------------
//
// `CZEL_IpAddressVector` is the exact-size array of `CZEL_IpAddress` (IP
// addresses): a `CZEL_Vector<CZEL_IpAddress>` with assignment to and from
// `CZEL_IpAddressList`. New slots hold default values; items are deep copies,
// assigned one by one. The members it adds are those of every named vector
// class, described in <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_IpAddressVector items(2, CZEL_IpAddress(CZEL_String("192.168.0.1")));
//   CZEL_IpAddressList list;
//   list = items;

#ifndef LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_VECTOR_H_

#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/containers/ZEL_ValueContainerExterns.h>
#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_IpAddressList;

class ZEL_API CZEL_IpAddressVector : public CZEL_Vector<CZEL_IpAddress> {
  ZEL_NAMED_VECTOR_MEMBERS(CZEL_IpAddressVector, CZEL_IpAddressList, CZEL_IpAddress)
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_IP_ADDRESS_VECTOR_H_
