// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DateVector.h>

#include <LZEL_Core/containers/CZEL_DateList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_DateVector, CZEL_DateList, CZEL_Date, CZEL_Vector<CZEL_Date>)

CZEL_DateVector& CZEL_DateVector::Sort(ZEL::u8 ascending) {
  CZEL_Vector<CZEL_Date>::Sort(&CZEL_Date::SortCompare, ascending);
  return *this;
}
