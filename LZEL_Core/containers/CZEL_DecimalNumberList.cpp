// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DecimalNumberList.h>

#include <LZEL_Core/containers/CZEL_DecimalNumberVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_DecimalNumberList, CZEL_DecimalNumberVector, CZEL_DecimalNumber,
                           CZEL_List<CZEL_DecimalNumber>)

CZEL_DecimalNumberList& CZEL_DecimalNumberList::Sort(ZEL::u8 ascending) {
  CZEL_List<CZEL_DecimalNumber>::Sort(&CZEL_DecimalNumber::Compare, ascending);
  return *this;
}
