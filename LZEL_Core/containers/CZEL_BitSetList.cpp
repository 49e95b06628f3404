// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_BitSetList.h>

#include <LZEL_Core/containers/CZEL_BitSetVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_BitSetList, CZEL_BitSetVector, CZEL_BitSet, CZEL_List<CZEL_BitSet>)

CZEL_BitSetList& CZEL_BitSetList::Sort(ZEL::u8 ascending) {
  CZEL_List<CZEL_BitSet>::Sort(&CZEL_BitSet::Compare, ascending);
  return *this;
}
