// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DecimalNumberVector.h>

#include <LZEL_Core/containers/CZEL_DecimalNumberList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_DecimalNumberVector, CZEL_DecimalNumberList, CZEL_DecimalNumber,
                             CZEL_Vector<CZEL_DecimalNumber>)

CZEL_DecimalNumberVector& CZEL_DecimalNumberVector::Sort(ZEL::u8 ascending) {
  CZEL_Vector<CZEL_DecimalNumber>::Sort(&CZEL_DecimalNumber::Compare, ascending);
  return *this;
}
