// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DateList.h>

#include <LZEL_Core/containers/CZEL_DateVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_DateList, CZEL_DateVector, CZEL_Date, CZEL_List<CZEL_Date>)

CZEL_DateList& CZEL_DateList::Sort(ZEL::u8 ascending) {
  CZEL_List<CZEL_Date>::Sort(&CZEL_Date::SortCompare, ascending);
  return *this;
}
