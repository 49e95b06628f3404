// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_List.h
// -----------------------------------------------------------------------------
//
// `CZEL_List<T>` is LZEL_Core's doubly linked list. It has no iterators:
// every list carries one cursor of its own, and reading, inserting, deleting,
// truncating and searching all start at that cursor. Each operation states
// where the cursor ends, and those rules are the heart of the class.
//
// The fast way through a list is the cursor: `ToStart`, then `operator>>`
// with 1 once per item. Each call hands out the item the cursor stood on and
// steps on; at the tail the cursor stays.
//
//   CZEL_List<int> list;
//   list += 1; list += 2; list += 3;          // cursor on the tail
//   list.ToStart();
//   for (ZEL::u32 i = 0; i < list.GetLength(); ++i) use(list >> 1);
//   list.ToPos(1);                            // cursor on 2
//   list.InsertItem(9);                       // 1, 9, 2, 3, cursor on 9
//
// Indexed access (`operator[]`, `ToPos`) walks from the head on every call,
// and moves the cursor: reading a list is a use that changes it, so two
// threads may not read one list at once. `GetLength` is constant.
//
// The one read that leaves the cursor alone is the const walk of `begin()`
// and `end()`, from the head along the forward links, for range-for and the
// standard algorithms:
//
//   CZEL_List<int> const& view = list;
//   int sum = std::accumulate(view.begin(), view.end(), 0);  // cursor stays
//
// A list moves in constant time (`std::move`, `Swap`, `swap`); the source is
// left empty.
//
// Links and the tail. `Next`, `Prev` and the walks that copy or count follow
// the node links and stop where a link ends; `IsEnd`, `ToEnd`, `AppendItem`,
// `Pop` and `DeleteItems` go by the recorded tail. The two coincide except
// after the two operations that leave the links out of step on purpose:
// `InsertItems` does not update the cursor's back-link, so walking backwards
// from the cursor passes over the inserted items; `InsertList` records its
// last inserted node as the tail although the old cursor node and those after
// it still follow. Later edits work on the links as they stand, so that nodes
// may drop out of the forward chain while still being counted. Nodes that a
// list can no longer reach are still owned by it: once one of those two
// operations has run, a list keeps every node it releases until `DeleteAll`
// (or its destruction), so that no link ever refers to freed memory.
//
// `T` must offer a default constructor, assignment, `operator==` and
// `operator!=`. New nodes hold a default-constructed item, which for a number
// element has no defined value until written.

#ifndef LZEL_CORE_CONTAINERS_CZEL_LIST_H_
#define LZEL_CORE_CONTAINERS_CZEL_LIST_H_

#include <LZEL_Core/containers/CZEL_Vector.h>
#include <LZEL_Core/containers/ZEL_NoItem.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

template <typename T>
class ZEL_TEMPLATE_API CZEL_List : public CZEL_Object {
 public:
  // Construction and assignment ------------------------------------------------

  // An empty list; the cursor is null.
  CZEL_List();

  // `count` nodes of `value`, cursor on the head. count 0 gives an empty list.
  CZEL_List(ZEL::u32 count, T const& value);

  // `count` nodes from src[0] on, cursor on the head. Throws
  // ZEL_ERR_EMPTY_INPUT if count is 0.
  CZEL_List(T* src, ZEL::u32 count);

  // `count` nodes of `value` for a count of another integer type, so that
  // `CZEL_List<double>(0, 0)` is an empty list and not a null source. Number
  // items only; the count is cut to 32 bits as the u32 form takes it.
  template <typename N, typename U = T,
            typename = std::enable_if_t<std::is_integral<N>::value && std::is_arithmetic<U>::value>>
  CZEL_List(N count, T const& value) : CZEL_List(static_cast<ZEL::u32>(count), value) {}

  // A deep copy, cursor on the head.
  CZEL_List(CZEL_List<T> const& src);

  // Takes src's nodes in constant time, the cursor on the head as for a copy;
  // src is left empty, its cursor null. Never throws.
  CZEL_List(CZEL_List<T>&& src) noexcept;

  // Releases all nodes.
  ~CZEL_List() override;

  // Copies src's items into this list, keeping the existing nodes and
  // allocating only for a surplus; the cursor goes to the head. Assigning an
  // empty list changes nothing at all: the items and the cursor stay.
  CZEL_List<T>& operator=(CZEL_List<T> const& src);

  // `DataCopy(src)`: the vector's items; an empty vector empties the list.
  CZEL_List<T>& operator=(CZEL_Vector<T>& src);

  // Takes src's nodes and releases this list's own; the cursor goes to the
  // head, as for a copy, and src is left empty. As for the copy, an empty src
  // (or this list itself) changes nothing at all. Never throws.
  CZEL_List<T>& operator=(CZEL_List<T>&& src) noexcept;

  // Exchanges the nodes of the two lists in constant time; each cursor stays
  // on its node and so goes with it. Never throws.
  CZEL_List<T>& Swap(CZEL_List<T>& other) noexcept;

  // `a.Swap(b)`, found by argument-dependent lookup.
  friend void swap(CZEL_List<T>& a, CZEL_List<T>& b) noexcept { a.Swap(b); }

  // Empties the list, then appends each of the vector's items. The cursor ends
  // on the tail, or null for an empty vector.
  void DataCopy(CZEL_Vector<T>& src);

  // Cursor and reading ---------------------------------------------------------

  // The number of nodes.
  ZEL::u32 GetLength() const;

  // The length, not an emptiness flag.
  ZEL::u32 operator!() const;

  // A forward walk over the items that leaves the cursor alone.
  class CConstIterator;

  // The head's item, walking along the forward links to `end()`, as
  // `operator==` does. The cursor does not move; an empty list gives
  // `end()`. Valid while the nodes walked over stay in the list.
  CConstIterator begin() const;

  // One past the last node the forward links reach.
  CConstIterator end() const;

  // The cursor's item; the cursor stays. Throws ZEL_ERR_BAD_POSITION if the
  // list is empty.
  T& CurItem();

  // The cursor's node as an opaque handle for `SwapItems`; null if empty.
  void* CurItemRef() const;

  // The item the cursor stands on now; then the cursor moves up to n nodes
  // towards the tail, stopping there without error. Next(0) is `CurItem`.
  // Throws ZEL_ERR_BAD_POSITION if the list is empty.
  T& Next(ZEL::u32 n);

  // The same as `Next`.
  T& operator>>(ZEL::u32 n);

  // The item the cursor stands on now; then the cursor moves up to n nodes
  // towards the head. Throws ZEL_ERR_BAD_POSITION if the list is empty.
  T& Prev(ZEL::u32 n);

  // The same as `Prev`.
  T& operator<<(ZEL::u32 n);

  // Moves the cursor to position n, walking from the head, and returns the
  // item there (the item after the move). Throws ZEL_ERR_BAD_POSITION, the
  // cursor unmoved, if n is not below the length.
  T& ToPos(ZEL::u32 n);

  // The same as `ToPos`: indexing moves the cursor.
  T& operator[](ZEL::u32 n);

  // Moves the cursor to the head and returns its item. Never throws: on an
  // empty list the reference is invalid and must not be used.
  T& ToStart();

  // Moves the cursor to the tail and returns its item; as `ToStart` when empty.
  T& ToEnd();

  // 1 if the cursor is the head; 1 on an empty list.
  ZEL::u8 IsStart() const;

  // 1 if the cursor is the tail; 1 on an empty list.
  ZEL::u8 IsEnd() const;

  // The number of nodes before the cursor, following the back-links: the
  // cursor's index in a list whose links are in step. 0 if empty.
  ZEL::u32 ItemsFromStart() const;

  // The number of nodes after the cursor, following the forward links. 0 if
  // empty.
  ZEL::u32 ItemsToEnd() const;

  // Searches from the cursor (included) towards the tail with the element's
  // `operator==`. On a match the cursor moves there and the result is 1;
  // otherwise the cursor stays and the result is 0.
  ZEL::u8 FindToEnd(T const& item);

  // The same towards the head.
  ZEL::u8 FindToStart(T const& item);

  // 1 if both lists have the same length and no pair of items, from both
  // heads, differs by the element's `operator!=`. Cursors are ignored.
  ZEL::u8 operator==(CZEL_List<T> const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_List<T> const& other) const;

  // Adding ---------------------------------------------------------------------
  //
  // Mind the order of arguments: `CopyItemsFrom` takes the source start before
  // the count, `AppendItems` and `InsertItems` the count before the source
  // start.

  // A new node at the tail, cursor on it; returns its item for the caller to
  // fill.
  T* AppendItem();

  // A new node at the tail holding `item`, cursor on it.
  void AppendItem(T const& item);

  // The same as `AppendItem(item)`.
  void operator+=(T const& item);

  // The same as `AppendItem(item)`: with `Pop`, a stack at the tail end.
  void Push(T const& item);

  // Returns 0 on an empty list, changing nothing. Else moves the cursor to the
  // tail, copies its item to `*out`, removes it (`DeleteItem`) and returns 1;
  // the cursor ends on the new tail, or null.
  ZEL::u8 Pop(T* out);

  // A new node directly before the cursor (or the only node of an empty
  // list), cursor on it; returns its item for the caller to fill. Repeated
  // calls build a run in reverse order.
  T* InsertItem();

  // A new node before the cursor holding `item`, cursor on it.
  void InsertItem(T const& item);

  // Appends src[srcStart] .. src[srcStart + count - 1]; cursor on the tail.
  CZEL_List<T>& AppendItems(T* src, ZEL::u32 count, ZEL::u32 srcStart);

  // Appends at most `count` items of src from its cursor towards its tail,
  // stopping quietly at its end; src's cursor stays, this cursor ends on the
  // tail. Returns a copy of this list after the append.
  CZEL_List<T> AppendItems(CZEL_List<T>& src, ZEL::u32 count);

  // Appends all of src from its head, whatever its cursor; cursor on the tail.
  // `src` must not be this list.
  CZEL_List<T>& AppendList(CZEL_List<T>& src);

  // The same as `AppendList`.
  CZEL_List<T>& operator&=(CZEL_List<T>& src);

  // Appends each of the vector's items; the cursor goes to the tail even if
  // the vector is empty.
  CZEL_List<T>& AppendVector(CZEL_Vector<T>& src);

  // The same as `AppendVector`.
  CZEL_List<T>& operator&=(CZEL_Vector<T>& src);

  // Inserts src[srcStart] .. src[srcStart + count - 1] before the cursor; the
  // cursor stays on its node. The forward links run through the new items,
  // but the cursor's back-link is left as it was: walking backwards from the
  // cursor (`Prev`, `ItemsFromStart`, `FindToStart`) passes over them.
  // Throws ZEL_ERR_BAD_POSITION if the list is empty.
  CZEL_List<T>& InsertItems(T* src, ZEL::u32 count, ZEL::u32 srcStart);

  // The same from a vector, stopping quietly at the vector's end.
  CZEL_List<T>& InsertItems(CZEL_Vector<T>& src, ZEL::u32 count, ZEL::u32 srcStart);

  // The same from src's cursor on (src's cursor stays). Throws
  // ZEL_ERR_BAD_POSITION when src runs out before `count` items; the nodes
  // made so far stay counted, but the last of them does not lead on to the
  // cursor. Returns a copy of this list after the insertion.
  CZEL_List<T> InsertItems(CZEL_List<T>& src, ZEL::u32 count);

  // Inserts all of src, from its head, before the cursor, and moves the
  // cursor to the last inserted node. On a non-empty list that node is also
  // recorded as the tail, although the old cursor node and its followers
  // still come after it; `ToEnd`, `IsEnd`, `AppendItem`, `Pop` and
  // `DeleteItems` then work from it. On an empty list the items are appended.
  // An empty src on a non-empty list must not be given; it changes nothing.
  CZEL_List<T>& InsertList(CZEL_List<T>& src);

  // Overwriting and copying out (no cursor of either list moves) ---------------

  // Overwrites the items from the cursor on with src[srcStart + i], at most
  // count, stopping quietly at the tail. Throws ZEL_ERR_BAD_POSITION if the
  // list is empty.
  CZEL_List<T>& CopyItemsFrom(T* src, ZEL::u32 srcStart, ZEL::u32 count);

  // The same from a vector, stopping quietly at its end too.
  CZEL_List<T>& CopyItemsFrom(CZEL_Vector<T>& src, ZEL::u32 srcStart, ZEL::u32 count);

  // Overwrites `count` items from this cursor on with items from src's cursor
  // on. Throws ZEL_ERR_BAD_POSITION if either list runs out first, keeping the
  // items already written. count 0 does nothing, even on empty lists.
  CZEL_List<T>& CopyItemsFrom(CZEL_List<T>& src, ZEL::u32 count);

  // dest[destStart + i] = the items from the cursor on, at most count,
  // stopping quietly at the tail. Throws ZEL_ERR_BAD_POSITION if the list is
  // empty (also for count 0).
  void CopyItemsTo(T* dest, ZEL::u32 destStart, ZEL::u32 count) const;

  // Empties `out` and appends to it at most `count` items from this cursor
  // on; out's cursor ends on its tail, this one stays. Throws
  // ZEL_ERR_BAD_POSITION, before touching out, if this list is empty. `out`
  // must not be this list.
  void Extract(CZEL_List<T>& out, ZEL::u32 count) const;

  // Removing -------------------------------------------------------------------

  // Removes the cursor's node; the cursor goes to the next node, or to the
  // new tail if the tail went, or null. An empty list is left alone.
  CZEL_List<T>& DeleteItem();

  // Removes up to `count` nodes from the cursor (included) towards the tail,
  // ending once the tail has gone. The cursor goes to the node after the
  // removed run; if the tail went, to the node before the run; or null. An
  // empty list or count 0 is left alone.
  CZEL_List<T>& DeleteItems(ZEL::u32 count);

  // Removes all nodes; the cursor is null.
  CZEL_List<T>& DeleteAll();

  // With `fromStart` set, removes the cursor's node and everything before it;
  // else the cursor's node and everything after it. The cursor ends on the
  // tail, null if nothing is left. An empty list is left alone.
  CZEL_List<T>& Truncate(ZEL::u8 fromStart);

  // Order ----------------------------------------------------------------------

  // Exchanges the node of `node` (a handle from `CurItemRef`) with the node
  // after it by relinking: items keep their addresses and the cursor stays on
  // its node. The node must belong to this list; a node without a successor
  // changes nothing.
  void SwapItems(void* node);

  // A bubble sort that relinks nodes, calling `cmp(later, earlier)`: positive
  // means the first argument orders after the second. A non-zero `ascending`
  // gives rising order, 0 falling order; equal items keep their order. Fewer
  // than two items return at once. The cursor stays on its node.
  void Sort(signed char (*cmp)(T const&, T const&), ZEL::u8 ascending);

 protected:
  // One node per item.
  struct SNode {
    SNode* m_pPrev = nullptr;
    SNode* m_pNext = nullptr;
    T m_Item;
  };

  // Makes this list a copy of src, keeping the existing nodes; nothing at all
  // happens if src is this list or empty. The cursor goes to the head.
  void DataCopy(CZEL_List<T> const& src);

  // The implementations of `Next`, `Prev` and `ToPos`.
  T& NextFunction(ZEL::u32 n);
  T& PreviousFunction(ZEL::u32 n);
  T& PosFunction(ZEL::u32 n);

  // Throws `CZEL_Exception(code, this, 0)`.
  [[noreturn]] void Fail(ZEL::u32 code) const;

  SNode* m_Head;
  SNode* m_Tail;
  SNode* m_Cur;
  ZEL::u32 m_Length;

 private:
  SNode* NewNode();
  void ReleaseNode(SNode* node);
  void KeepNodes();
  T& ItemAt(SNode* node);
  void AppendRun(SNode const* from, ZEL::u32 count);
  template <typename Source>
  void InsertRun(ZEL::u32 count, Source read, bool strict);
  // The sources of InsertRun and Overwrite: each gives the address of the
  // i-th item to take, or null where the source has run out.
  static auto ArrayItems(T* src, ZEL::u32 srcStart);
  static auto VectorItems(CZEL_Vector<T>& src, ZEL::u32 srcStart);
  static auto ListItems(CZEL_List<T> const& src);
  template <typename Source>
  void Overwrite(ZEL::u32 count, Source read, bool strict);

  // Every node the list owns, once `InsertItems` or `InsertList` has left
  // links out of step; null before. While it exists, released nodes are kept
  // here and freed by `DeleteAll`.
  std::vector<SNode*>* m_pKept;
};

// A forward iterator over the items of a const list, from the head along the
// forward links; it never touches the list's cursor.
template <typename T>
class CZEL_List<T>::CConstIterator {
 public:
  // The traits of a forward iterator over const items, for the standard
  // algorithms.
  using iterator_category = std::forward_iterator_tag;
  using value_type = T;
  using difference_type = std::ptrdiff_t;
  using pointer = T const*;
  using reference = T const&;

  // The end of every list.
  CConstIterator() : m_pNode(nullptr) {}

  // The item of the node it stands on; `end()` must not be read.
  T const& operator*() const { return m_pNode->m_Item; }
  T const* operator->() const { return &m_pNode->m_Item; }

  // Steps to the next node along the forward link; past the last, to `end()`.
  CConstIterator& operator++() {
    m_pNode = m_pNode->m_pNext;
    return *this;
  }
  CConstIterator operator++(int) {
    CConstIterator before = *this;
    ++*this;
    return before;
  }

  // Whether both stand on the same node (both at `end()` included).
  bool operator==(CConstIterator const& other) const { return m_pNode == other.m_pNode; }
  bool operator!=(CConstIterator const& other) const { return m_pNode != other.m_pNode; }

 private:
  friend class CZEL_List<T>;
  explicit CConstIterator(SNode const* node) : m_pNode(node) {}

  SNode const* m_pNode;
};

// Implementation ---------------------------------------------------------------
//
// The small accessors are inline, so that callers can inline them although
// the rest of the code comes from the library's instantiations.

template <typename T>
CZEL_List<T>::CZEL_List()
    : m_Head(nullptr), m_Tail(nullptr), m_Cur(nullptr), m_Length(0), m_pKept(nullptr) {}

template <typename T>
CZEL_List<T>::CZEL_List(ZEL::u32 count, T const& value) : CZEL_List() {
  for (ZEL::u32 i = 0; i < count; ++i) AppendItem(value);
  m_Cur = m_Head;
}

template <typename T>
CZEL_List<T>::CZEL_List(T* src, ZEL::u32 count) : CZEL_List() {
  if (count == 0) Fail(ZEL_ERR_EMPTY_INPUT);
  AppendItems(src, count, 0);
  m_Cur = m_Head;
}

template <typename T>
CZEL_List<T>::CZEL_List(CZEL_List<T> const& src) : CZEL_List() {
  DataCopy(src);
}

template <typename T>
CZEL_List<T>::CZEL_List(CZEL_List<T>&& src) noexcept : CZEL_List() {
  Swap(src);
  m_Cur = m_Head;
}

template <typename T>
CZEL_List<T>::~CZEL_List() {
  DeleteAll();
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::operator=(CZEL_List<T>&& src) noexcept {
  if (&src == this || src.m_Length == 0) return *this;
  Swap(src);
  src.DeleteAll();
  m_Cur = m_Head;
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::Swap(CZEL_List<T>& other) noexcept {
  std::swap(m_Head, other.m_Head);
  std::swap(m_Tail, other.m_Tail);
  std::swap(m_Cur, other.m_Cur);
  std::swap(m_Length, other.m_Length);
  std::swap(m_pKept, other.m_pKept);
  return *this;
}

template <typename T>
inline typename CZEL_List<T>::CConstIterator CZEL_List<T>::begin() const {
  return CConstIterator(m_Head);
}

template <typename T>
inline typename CZEL_List<T>::CConstIterator CZEL_List<T>::end() const {
  return CConstIterator();
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::operator=(CZEL_List<T> const& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::operator=(CZEL_Vector<T>& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
void CZEL_List<T>::DataCopy(CZEL_List<T> const& src) {
  if (&src == this || src.m_Length == 0) return;
  ZEL::u32 const common = m_Length < src.m_Length ? m_Length : src.m_Length;
  SNode* to = m_Head;
  SNode* lastKept = nullptr;
  SNode const* from = src.m_Head;
  for (ZEL::u32 i = 0; i < common && to != nullptr && from != nullptr; ++i) {
    to->m_Item = from->m_Item;
    lastKept = to;
    to = to->m_pNext;
    from = from->m_pNext;
  }
  if (src.m_Length > m_Length) {
    AppendRun(from, src.m_Length - m_Length);
  } else if (src.m_Length < m_Length && lastKept != nullptr) {
    // `to` is the first surplus node: cut the chain before it.
    ZEL::u32 surplus = m_Length - src.m_Length;
    m_Tail = lastKept;
    lastKept->m_pNext = nullptr;
    for (; surplus > 0 && to != nullptr; --surplus) {
      SNode* next = to->m_pNext;
      ReleaseNode(to);
      to = next;
    }
    m_Length = src.m_Length;
  }
  m_Cur = m_Head;
}

template <typename T>
void CZEL_List<T>::DataCopy(CZEL_Vector<T>& src) {
  DeleteAll();
  for (ZEL::u32 i = 0; i < src.GetLength(); ++i) AppendItem(src.GetBuf()[i]);
}

template <typename T>
inline ZEL::u32 CZEL_List<T>::GetLength() const {
  return m_Length;
}

template <typename T>
inline ZEL::u32 CZEL_List<T>::operator!() const {
  return m_Length;
}

template <typename T>
inline T& CZEL_List<T>::CurItem() {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  return m_Cur->m_Item;
}

template <typename T>
inline void* CZEL_List<T>::CurItemRef() const {
  return m_Cur;
}

template <typename T>
inline T& CZEL_List<T>::NextFunction(ZEL::u32 n) {
  T& item = CurItem();
  for (ZEL::u32 i = 0; i < n && m_Cur->m_pNext != nullptr; ++i) m_Cur = m_Cur->m_pNext;
  return item;
}

template <typename T>
inline T& CZEL_List<T>::PreviousFunction(ZEL::u32 n) {
  T& item = CurItem();
  for (ZEL::u32 i = 0; i < n && m_Cur->m_pPrev != nullptr; ++i) m_Cur = m_Cur->m_pPrev;
  return item;
}

template <typename T>
T& CZEL_List<T>::PosFunction(ZEL::u32 n) {
  if (n >= m_Length || m_Head == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  m_Cur = m_Head;
  for (ZEL::u32 i = 0; i < n && m_Cur->m_pNext != nullptr; ++i) m_Cur = m_Cur->m_pNext;
  return m_Cur->m_Item;
}

template <typename T>
inline T& CZEL_List<T>::Next(ZEL::u32 n) {
  return NextFunction(n);
}

template <typename T>
inline T& CZEL_List<T>::operator>>(ZEL::u32 n) {
  return NextFunction(n);
}

template <typename T>
inline T& CZEL_List<T>::Prev(ZEL::u32 n) {
  return PreviousFunction(n);
}

template <typename T>
inline T& CZEL_List<T>::operator<<(ZEL::u32 n) {
  return PreviousFunction(n);
}

template <typename T>
T& CZEL_List<T>::ToPos(ZEL::u32 n) {
  return PosFunction(n);
}

template <typename T>
T& CZEL_List<T>::operator[](ZEL::u32 n) {
  return PosFunction(n);
}

template <typename T>
inline T& CZEL_List<T>::ToStart() {
  m_Cur = m_Head;
  return ItemAt(m_Cur);
}

template <typename T>
inline T& CZEL_List<T>::ToEnd() {
  m_Cur = m_Tail;
  return ItemAt(m_Cur);
}

template <typename T>
inline ZEL::u8 CZEL_List<T>::IsStart() const {
  return m_Cur == m_Head ? 1 : 0;
}

template <typename T>
inline ZEL::u8 CZEL_List<T>::IsEnd() const {
  return m_Cur == m_Tail ? 1 : 0;
}

template <typename T>
ZEL::u32 CZEL_List<T>::ItemsFromStart() const {
  ZEL::u32 count = 0;
  for (SNode const* n = m_Cur; n != nullptr && n->m_pPrev != nullptr; n = n->m_pPrev) ++count;
  return count;
}

template <typename T>
ZEL::u32 CZEL_List<T>::ItemsToEnd() const {
  ZEL::u32 count = 0;
  for (SNode const* n = m_Cur; n != nullptr && n->m_pNext != nullptr; n = n->m_pNext) ++count;
  return count;
}

template <typename T>
ZEL::u8 CZEL_List<T>::FindToEnd(T const& item) {
  for (SNode* n = m_Cur; n != nullptr; n = n->m_pNext) {
    if (n->m_Item == item) {
      m_Cur = n;
      return 1;
    }
  }
  return 0;
}

template <typename T>
ZEL::u8 CZEL_List<T>::FindToStart(T const& item) {
  for (SNode* n = m_Cur; n != nullptr; n = n->m_pPrev) {
    if (n->m_Item == item) {
      m_Cur = n;
      return 1;
    }
  }
  return 0;
}

template <typename T>
ZEL::u8 CZEL_List<T>::operator==(CZEL_List<T> const& other) const {
  if (m_Length != other.m_Length) return 0;
  // Non-const nodes: an element's comparison operators need not be const.
  SNode* b = other.m_Head;
  for (SNode* a = m_Head; a != nullptr && b != nullptr; a = a->m_pNext, b = b->m_pNext) {
    if (a->m_Item != b->m_Item) return 0;
  }
  return 1;
}

template <typename T>
ZEL::u8 CZEL_List<T>::operator!=(CZEL_List<T> const& other) const {
  return *this == other ? 0 : 1;
}

template <typename T>
T* CZEL_List<T>::AppendItem() {
  SNode* node = NewNode();
  if (m_Tail == nullptr) {
    m_Head = node;
  } else {
    node->m_pPrev = m_Tail;
    m_Tail->m_pNext = node;
  }
  m_Tail = node;
  m_Cur = node;
  ++m_Length;
  return &node->m_Item;
}

template <typename T>
void CZEL_List<T>::AppendItem(T const& item) {
  *AppendItem() = item;
}

template <typename T>
void CZEL_List<T>::operator+=(T const& item) {
  AppendItem(item);
}

template <typename T>
void CZEL_List<T>::Push(T const& item) {
  AppendItem(item);
}

template <typename T>
ZEL::u8 CZEL_List<T>::Pop(T* out) {
  if (m_Tail == nullptr) return 0;
  m_Cur = m_Tail;
  *out = m_Cur->m_Item;
  DeleteItem();
  return 1;
}

template <typename T>
T* CZEL_List<T>::InsertItem() {
  if (m_Cur == nullptr) return AppendItem();
  SNode* node = NewNode();
  node->m_pPrev = m_Cur->m_pPrev;
  node->m_pNext = m_Cur;
  if (m_Cur == m_Head) {
    m_Head = node;
  } else if (node->m_pPrev != nullptr) {
    node->m_pPrev->m_pNext = node;
  }
  m_Cur->m_pPrev = node;
  ++m_Length;
  m_Cur = node;
  return &node->m_Item;
}

template <typename T>
void CZEL_List<T>::InsertItem(T const& item) {
  *InsertItem() = item;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::AppendItems(T* src, ZEL::u32 count, ZEL::u32 srcStart) {
  for (ZEL::u32 i = 0; i < count; ++i) AppendItem(src[srcStart + i]);
  m_Cur = m_Tail;
  return *this;
}

template <typename T>
CZEL_List<T> CZEL_List<T>::AppendItems(CZEL_List<T>& src, ZEL::u32 count) {
  AppendRun(src.m_Cur, count);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::AppendList(CZEL_List<T>& src) {
  AppendRun(src.m_Head, src.m_Length);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::operator&=(CZEL_List<T>& src) {
  return AppendList(src);
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::AppendVector(CZEL_Vector<T>& src) {
  for (ZEL::u32 i = 0; i < src.GetLength(); ++i) AppendItem(src.GetBuf()[i]);
  m_Cur = m_Tail;
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::operator&=(CZEL_Vector<T>& src) {
  return AppendVector(src);
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::InsertItems(T* src, ZEL::u32 count, ZEL::u32 srcStart) {
  InsertRun(count, ArrayItems(src, srcStart), false);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::InsertItems(CZEL_Vector<T>& src, ZEL::u32 count, ZEL::u32 srcStart) {
  InsertRun(count, VectorItems(src, srcStart), false);
  return *this;
}

template <typename T>
CZEL_List<T> CZEL_List<T>::InsertItems(CZEL_List<T>& src, ZEL::u32 count) {
  InsertRun(count, ListItems(src), true);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::InsertList(CZEL_List<T>& src) {
  if (src.m_Head == nullptr || src.m_Length == 0) return *this;
  if (m_Cur == nullptr) {
    AppendRun(src.m_Head, src.m_Length);
    return *this;
  }
  KeepNodes();  // the recorded tail is about to part from the links
  ZEL::u32 const count = src.m_Length;
  SNode const* from = src.m_Head;
  SNode* last = m_Cur->m_pPrev;
  for (ZEL::u32 i = 0; i < count && from != nullptr; ++i, from = from->m_pNext) {
    SNode* node = NewNode();
    node->m_Item = from->m_Item;
    node->m_pPrev = last;
    if (last == nullptr) {
      m_Head = node;
    } else {
      last->m_pNext = node;
    }
    last = node;
    m_Tail = node;
    ++m_Length;
  }
  m_Cur->m_pPrev = last;
  last->m_pNext = m_Cur;
  m_Cur = last;
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::CopyItemsFrom(T* src, ZEL::u32 srcStart, ZEL::u32 count) {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  Overwrite(count, ArrayItems(src, srcStart), false);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::CopyItemsFrom(CZEL_Vector<T>& src, ZEL::u32 srcStart, ZEL::u32 count) {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  Overwrite(count, VectorItems(src, srcStart), false);
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::CopyItemsFrom(CZEL_List<T>& src, ZEL::u32 count) {
  Overwrite(count, ListItems(src), true);
  return *this;
}

template <typename T>
void CZEL_List<T>::CopyItemsTo(T* dest, ZEL::u32 destStart, ZEL::u32 count) const {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  SNode const* n = m_Cur;
  for (ZEL::u32 i = 0; i < count && n != nullptr; ++i, n = n->m_pNext) {
    dest[destStart + i] = n->m_Item;
  }
}

template <typename T>
void CZEL_List<T>::Extract(CZEL_List<T>& out, ZEL::u32 count) const {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  out.DeleteAll();
  SNode const* n = m_Cur;  // null here if out is this list: nothing is copied
  for (ZEL::u32 i = 0; i < count && n != nullptr; ++i, n = n->m_pNext) out.AppendItem(n->m_Item);
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::DeleteItem() {
  if (m_Cur == nullptr) return *this;
  if (m_Length == 1) return DeleteAll();
  SNode* gone = m_Cur;
  if (gone == m_Head) {
    m_Head = gone->m_pNext;
    if (m_Head != nullptr) m_Head->m_pPrev = nullptr;
    m_Cur = m_Head;
  } else {
    SNode* prev = gone->m_pPrev;
    if (prev != nullptr) prev->m_pNext = gone->m_pNext;
    if (gone == m_Tail) {
      m_Tail = prev;
      m_Cur = prev;
    } else {
      if (gone->m_pNext != nullptr) gone->m_pNext->m_pPrev = prev;
      m_Cur = gone->m_pNext;
    }
  }
  ReleaseNode(gone);
  --m_Length;
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::DeleteItems(ZEL::u32 count) {
  if (m_Cur == nullptr) return *this;
  SNode* const prev = m_Cur->m_pPrev;
  SNode*& linkToRun = prev != nullptr ? prev->m_pNext : m_Head;
  for (ZEL::u32 i = 0; i < count; ++i) {
    SNode* gone = m_Cur;
    if (gone == m_Tail || gone->m_pNext == nullptr) {
      linkToRun = nullptr;
      ReleaseNode(gone);
      m_Tail = prev;
      --m_Length;
      m_Cur = prev;
      // Nodes that the links no longer reach stay counted; once the count
      // is 0 too, the nodes kept after links went out of step are freed.
      if (m_Head == nullptr && m_Length == 0) DeleteAll();
      break;
    }
    m_Cur = gone->m_pNext;
    m_Cur->m_pPrev = prev;
    linkToRun = m_Cur;
    ReleaseNode(gone);
    --m_Length;
  }
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::DeleteAll() {
  if (m_pKept != nullptr) {
    for (SNode* node : *m_pKept) delete node;
    delete m_pKept;
    m_pKept = nullptr;
  } else {
    for (SNode* node = m_Head; node != nullptr;) {
      SNode* next = node->m_pNext;
      delete node;
      node = next;
    }
  }
  m_Head = m_Tail = m_Cur = nullptr;
  m_Length = 0;
  return *this;
}

template <typename T>
CZEL_List<T>& CZEL_List<T>::Truncate(ZEL::u8 fromStart) {
  if (m_Cur == nullptr) return *this;
  SNode* const cut = m_Cur;
  SNode* const keep = fromStart ? cut->m_pNext : cut->m_pPrev;
  bool const nothingLeft = keep == nullptr || cut == (fromStart ? m_Tail : m_Head);
  for (SNode* n = cut; n != nullptr;) {
    SNode* following = fromStart ? n->m_pPrev : n->m_pNext;
    ReleaseNode(n);
    --m_Length;
    n = following;
  }
  if (nothingLeft) {
    // Nodes that the walk could not reach stay counted; once the count is 0
    // too, the nodes kept after links went out of step are freed.
    m_Head = m_Tail = m_Cur = nullptr;
    if (m_Length == 0) DeleteAll();
  } else if (fromStart) {
    m_Head = keep;
    keep->m_pPrev = nullptr;
  } else {
    m_Tail = keep;
    keep->m_pNext = nullptr;
  }
  m_Cur = m_Tail;
  return *this;
}

template <typename T>
void CZEL_List<T>::SwapItems(void* node) {
  SNode* a = static_cast<SNode*>(node);
  if (a == nullptr || a->m_pNext == nullptr) return;
  SNode* b = a->m_pNext;
  SNode* p = a->m_pPrev;
  if (a == m_Head) m_Head = b;
  if (b == m_Tail) m_Tail = a;
  if (p != nullptr) p->m_pNext = b;
  a->m_pPrev = b;
  a->m_pNext = b->m_pNext;
  b->m_pPrev = p;
  b->m_pNext = a;
  if (a->m_pNext != nullptr) a->m_pNext->m_pPrev = a;
}

template <typename T>
void CZEL_List<T>::Sort(signed char (*cmp)(T const&, T const&), ZEL::u8 ascending) {
  if (m_Length < 2) return;
  bool sorted = false;
  while (!sorted) {
    sorted = true;
    SNode* node = m_Head;
    while (node != nullptr && node->m_pNext != nullptr) {
      SNode* next = node->m_pNext;
      bool exchange = cmp(next->m_Item, node->m_Item) > 0 && !ascending;
      if (!exchange) exchange = cmp(next->m_Item, node->m_Item) < 0 && ascending;
      if (exchange) {
        SwapItems(node);  // carries node one place on: compare it again there
        sorted = false;
      } else {
        node = next;
      }
    }
  }
}

template <typename T>
void CZEL_List<T>::Fail(ZEL::u32 code) const {
  throw CZEL_Exception(code, this, 0);
}

template <typename T>
typename CZEL_List<T>::SNode* CZEL_List<T>::NewNode() {
  std::unique_ptr<SNode> node(new SNode);
  if (m_pKept != nullptr) m_pKept->push_back(node.get());
  return node.release();
}

template <typename T>
void CZEL_List<T>::ReleaseNode(SNode* node) {
  if (m_pKept == nullptr) delete node;
}

// Called before an edit that leaves links out of step: from then on the list
// records every node it owns, since links may still lead to released nodes
// and counted nodes may drop out of the chain.
template <typename T>
void CZEL_List<T>::KeepNodes() {
  if (m_pKept != nullptr) return;
  std::unique_ptr<std::vector<SNode*>> kept(new std::vector<SNode*>);
  kept->reserve(m_Length + 1);
  for (SNode* n = m_Head; n != nullptr; n = n->m_pNext) kept->push_back(n);
  m_pKept = kept.release();
}

template <typename T>
inline T& CZEL_List<T>::ItemAt(SNode* node) {
  return node != nullptr ? node->m_Item : ZEL::NoItem<T>();
}

// Appends at most `count` items read along the forward links from `from`; the
// cursor ends on the tail.
template <typename T>
void CZEL_List<T>::AppendRun(SNode const* from, ZEL::u32 count) {
  for (ZEL::u32 i = 0; i < count && from != nullptr; ++i, from = from->m_pNext) {
    AppendItem(from->m_Item);
  }
  m_Cur = m_Tail;
}

// The shared steps of `InsertItems`: nodes for read(0), read(1) ... go before
// the cursor, linked forward to it at the end, while the cursor's back-link
// stays. `read` gives null when its source has run out, which ends the run
// quietly, or with ZEL_ERR_BAD_POSITION if `strict`.
template <typename T>
auto CZEL_List<T>::ArrayItems(T* src, ZEL::u32 srcStart) {
  // The caller vouches for the array: no end is known.
  return [src, srcStart](ZEL::u32 i) -> T const* { return &src[srcStart + i]; };
}

template <typename T>
auto CZEL_List<T>::VectorItems(CZEL_Vector<T>& src, ZEL::u32 srcStart) {
  return [&src, srcStart](ZEL::u32 i) -> T const* {
    ZEL::u64 const index = ZEL::u64(srcStart) + i;
    return index < src.GetLength() ? &src.GetBuf()[index] : nullptr;
  };
}

template <typename T>
auto CZEL_List<T>::ListItems(CZEL_List<T> const& src) {
  // From src's cursor along the links; src's cursor itself stays.
  return [node = static_cast<SNode const*>(src.m_Cur)](ZEL::u32) mutable -> T const* {
    if (node == nullptr) return nullptr;
    T const* item = &node->m_Item;
    node = node->m_pNext;
    return item;
  };
}

template <typename T>
template <typename Source>
void CZEL_List<T>::InsertRun(ZEL::u32 count, Source read, bool strict) {
  if (m_Cur == nullptr) Fail(ZEL_ERR_BAD_POSITION);
  SNode* last = m_Cur->m_pPrev;
  bool made = false;
  for (ZEL::u32 i = 0; i < count; ++i) {
    T const* item = read(i);
    if (item == nullptr) {
      if (strict) Fail(ZEL_ERR_BAD_POSITION);
      break;
    }
    KeepNodes();
    SNode* node = NewNode();
    node->m_pPrev = last;
    if (m_Cur == m_Head) m_Head = node;
    node->m_Item = *item;
    if (last != nullptr) last->m_pNext = node;
    last = node;
    ++m_Length;
    made = true;
  }
  if (made) last->m_pNext = m_Cur;
}

// The shared steps of `CopyItemsFrom`: overwrites items from the cursor on
// with read(0), read(1) ... for at most `count` items. Running out of items
// here or in the source ends quietly, or with ZEL_ERR_BAD_POSITION if `strict`.
template <typename T>
template <typename Source>
void CZEL_List<T>::Overwrite(ZEL::u32 count, Source read, bool strict) {
  SNode* n = m_Cur;
  for (ZEL::u32 i = 0; i < count; ++i) {
    T const* item = n != nullptr ? read(i) : nullptr;
    if (item == nullptr) {
      if (strict) Fail(ZEL_ERR_BAD_POSITION);
      return;
    }
    n->m_Item = *item;
    n = n->m_pNext;
  }
}

#endif  // LZEL_CORE_CONTAINERS_CZEL_LIST_H_
