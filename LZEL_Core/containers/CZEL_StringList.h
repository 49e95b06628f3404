// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_StringList.h
// -----------------------------------------------------------------------------
//
// `CZEL_StringList` is the cursor list of `CZEL_String`: a
// `CZEL_List<CZEL_String>` with assignment to and from `CZEL_StringVector`.
// Its items are deep copies of the strings put in. The members it adds are
// those of every named list class, described in
// <LZEL_Core/containers/ZEL_NamedContainer.h>.
//
//   CZEL_StringList words;
//   words += CZEL_String("alpha");
//   words += CZEL_String("beta");
//   CZEL_StringVector array;
//   array = words;                  // two strings; the list's cursor on "beta"

#ifndef LZEL_CORE_CONTAINERS_CZEL_STRING_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_STRING_LIST_H_

#include <LZEL_Core/containers/ZEL_ContainerExterns.h>
#include <LZEL_Core/containers/ZEL_NamedContainer.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <type_traits>

class CZEL_StringVector;

class ZEL_API CZEL_StringList : public CZEL_List<CZEL_String> {
  ZEL_NAMED_LIST_MEMBERS(CZEL_StringList, CZEL_StringVector, CZEL_String)

 public:
  // The list's `Sort` with `CZEL_String::CompareMatchingCase` if `matchCase`
  // is non-zero, else with `CZEL_String::CompareNoMatchingCase`; a non-zero
  // `ascending` gives rising order. Fewer than two items return at once; the
  // cursor stays on its node.
  CZEL_StringList& Sort(ZEL::u8 ascending, ZEL::u8 matchCase);

  // `Sort(ascending, matchCase)` for flags of other integer types, so that
  // `Sort(0, 0)` means falling order, blind to case, rather than clashing
  // with the comparator form. Each flag is cut to its low byte, as the u8
  // form takes it.
  template <typename A, typename M,
            typename = std::enable_if_t<std::is_integral<A>::value && std::is_integral<M>::value>>
  CZEL_StringList& Sort(A ascending, M matchCase) {
    return Sort(static_cast<ZEL::u8>(ascending), static_cast<ZEL::u8>(matchCase));
  }

  // The base's `Sort` with a comparator of the caller's.
  using CZEL_List<CZEL_String>::Sort;
};

#endif  // LZEL_CORE_CONTAINERS_CZEL_STRING_LIST_H_
