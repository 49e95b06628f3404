// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_IpAddressVector.h>

#include <LZEL_Core/containers/CZEL_IpAddressList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_IpAddressVector, CZEL_IpAddressList, CZEL_IpAddress,
                             CZEL_Vector<CZEL_IpAddress>)
