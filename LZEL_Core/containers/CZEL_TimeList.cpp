// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_TimeList.h>

#include <LZEL_Core/containers/CZEL_TimeVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_TimeList, CZEL_TimeVector, CZEL_Time, CZEL_List<CZEL_Time>)

CZEL_TimeList& CZEL_TimeList::Sort(ZEL::u8 ascending) {
  CZEL_List<CZEL_Time>::Sort(&CZEL_Time::SortCompare, ascending);
  return *this;
}
