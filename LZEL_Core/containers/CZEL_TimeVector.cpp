// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_TimeVector.h>

#include <LZEL_Core/containers/CZEL_TimeList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_TimeVector, CZEL_TimeList, CZEL_Time, CZEL_Vector<CZEL_Time>)

CZEL_TimeVector& CZEL_TimeVector::Sort(ZEL::u8 ascending) {
  CZEL_Vector<CZEL_Time>::Sort(&CZEL_Time::SortCompare, ascending);
  return *this;
}
