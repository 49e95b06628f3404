// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_BitSetVector.h>

#include <LZEL_Core/containers/CZEL_BitSetList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_BitSetVector, CZEL_BitSetList, CZEL_BitSet,
                             CZEL_Vector<CZEL_BitSet>)

CZEL_BitSetVector& CZEL_BitSetVector::Sort(ZEL::u8 ascending) {
  CZEL_Vector<CZEL_BitSet>::Sort(&CZEL_BitSet::Compare, ascending);
  return *this;
}
