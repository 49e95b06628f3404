// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_IpAddressList.h>

#include <LZEL_Core/containers/CZEL_IpAddressVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_IpAddressList, CZEL_IpAddressVector, CZEL_IpAddress,
                           CZEL_List<CZEL_IpAddress>)
