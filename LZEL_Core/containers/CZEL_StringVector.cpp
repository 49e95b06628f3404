// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_StringVector.h>

#include <LZEL_Core/containers/CZEL_StringList.h>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_StringVector, CZEL_StringList, CZEL_String,
                             CZEL_Vector<CZEL_String>)

CZEL_StringVector& CZEL_StringVector::Sort(ZEL::u8 ascending, ZEL::u8 matchCase) {
  signed char (*compare)(CZEL_String const&, CZEL_String const&) =
      &CZEL_String::CompareNoMatchingCase;
  if (matchCase) compare = &CZEL_String::CompareMatchingCase;
  CZEL_Vector<CZEL_String>::Sort(compare, ascending);
  return *this;
}
