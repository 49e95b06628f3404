// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Order.h
// -----------------------------------------------------------------------------
//
// The order of the number elements, shared by `CZEL_OrderedVector<T>` and
// `CZEL_OrderedList<T>`: their `Compare`, and the strict tests by which
// `Min` and `Max` let a later item replace the best so far (so among equal
// extremes the first one wins, and a NaN in first place is never replaced).

#ifndef LZEL_CORE_CONTAINERS_ZEL_ORDER_H_
#define LZEL_CORE_CONTAINERS_ZEL_ORDER_H_

namespace ZEL {

// 1 if a is greater than b, -1 if less, else 0 (so a NaN equals anything).
template <typename T>
signed char OrderCompare(T const& a, T const& b) {
  if (a > b) return 1;
  if (a < b) return -1;
  return 0;
}

// Whether `item` replaces `best` as the smallest (`OrderBeats<true>`) or the
// largest (`OrderBeats<false>`) item so far: only when strictly beyond it.
template <bool kSmallest, typename T>
bool OrderBeats(T const& item, T const& best) {
  return kSmallest ? item < best : item > best;
}

}  // namespace ZEL

#endif  // LZEL_CORE_CONTAINERS_ZEL_ORDER_H_
