// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_StringList.h>

#include <LZEL_Core/containers/CZEL_StringVector.h>

ZEL_NAMED_LIST_DEFINITIONS(CZEL_StringList, CZEL_StringVector, CZEL_String, CZEL_List<CZEL_String>)

CZEL_StringList& CZEL_StringList::Sort(ZEL::u8 ascending, ZEL::u8 matchCase) {
  signed char (*compare)(CZEL_String const&, CZEL_String const&) =
      &CZEL_String::CompareNoMatchingCase;
  if (matchCase) compare = &CZEL_String::CompareMatchingCase;
  CZEL_List<CZEL_String>::Sort(compare, ascending);
  return *this;
}
