// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Vector.h
// -----------------------------------------------------------------------------
//
// `CZEL_Vector<T>` is LZEL_Core's array: one contiguous block of exactly as
// many items as its length says. There is no spare capacity: the length is
// the only size, so every growth and every shrink reallocates.
// Most edits take a flag (`extend`, `shrink`) that says whether the length may
// change, a fixed-length shift that drops items off the end is an operation
// of its own, positions and counts are `ZEL::u32`, and misuse throws a
// `CZEL_Exception` at the few places listed below, while many operations stop
// quietly at the end of the data.
//
// Filling item by item (`AppendItem`) reallocates each time. The fast way is
// to create the vector once and write through `operator[]` or `GetBuf()`:
//
//   CZEL_Vector<int> v(3);          // three items, not initialised
//   int* p = v.GetBuf();
//   for (ZEL::u32 i = 0; i < v.GetLength(); ++i) p[i] = int(i) * 10;
//   v.InsertItems(1, 5, 2, 1);      // 0, 5, 5, 10, 20
//   v.DeleteItems(0, 1, 1);         // 5, 5, 10, 20
//
// New storage holds exactly the length's items. Class items are allocated
// with the language's array allocation and so default-constructed; items that
// are trivially copyable and trivially default-constructible (the numbers)
// come from `std::malloc`, and a growth or shrink that keeps the items in
// place goes through `std::realloc`, which can often extend the block where it
// lies. Number items hold no defined value until written (nothing zero-fills
// them), and reading such a slot is the caller's mistake. Items go one by one
// through the element's assignment; when a reallocation carries them to new
// storage, class items whose move assignment cannot throw are moved there
// rather than copied.
//
// The move constructor, `Swap` and `swap` hand the array over in constant
// time; a move assignment does so too, except between equal lengths, where
// it moves the items over and keeps this array, as the copy does. A moved-from
// vector is empty. `begin()` and `end()` make a vector a range of raw
// pointers for range-for and the standard algorithms:
//
//   CZEL_Vector<int> v = Build();   // moved, not copied
//   std::sort(v.begin(), v.end());  // `Sort` itself never returns on 2+ items
//
// The pointer of `GetBuf()` and the references of `operator[]` stay valid
// until the next operation that reallocates: `Create`, `Recreate`,
// `DeleteAll`, assignment from a source of another length, `Swap` and a move
// (after which they belong to the other vector), `AppendItem`,
// `operator+=`, `AppendVector`, `AppendList`, `operator&=`, and any operation
// called with its extend or shrink flag set.
//
// The operations that take a `CZEL_List<T>` as their source are declared here
// and defined in <LZEL_Core/containers/CZEL_VectorListOps.h>, so that this
// header needs nothing but the library frame. `T` must offer a default
// constructor, a copy constructor, assignment, `operator==` and `operator!=`.
//
// A vector has no lock: one thread at a time may use it.

#ifndef LZEL_CORE_CONTAINERS_CZEL_VECTOR_H_
#define LZEL_CORE_CONTAINERS_CZEL_VECTOR_H_

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

// The export mark must be on the first declaration, for every compiler.
template <typename T>
class ZEL_TEMPLATE_API CZEL_List;

template <typename T>
class ZEL_TEMPLATE_API CZEL_Vector : public CZEL_Object {
 public:
  // Construction ---------------------------------------------------------------

  // An empty vector: `GetBuf()` is null, the length 0.
  CZEL_Vector();

  // `Create(count)`. Throws ZEL_ERR_EMPTY_INPUT if count is 0.
  explicit CZEL_Vector(ZEL::u32 count);

  // `Create(count, value)`. Throws ZEL_ERR_EMPTY_INPUT if count is 0.
  CZEL_Vector(ZEL::u32 count, T const& value);

  // `Create(src, count)`. Throws ZEL_ERR_EMPTY_INPUT if count is 0.
  CZEL_Vector(T* src, ZEL::u32 count);

  // `Create(count, value)` for a count of another integer type, so that
  // `CZEL_Vector<double>(0, 0)` means a count and a value and not a null
  // source. Number items only; the count is cut to 32 bits as the u32 form
  // takes it. Throws ZEL_ERR_EMPTY_INPUT if that count is 0.
  template <typename N, typename U = T,
            typename = std::enable_if_t<std::is_integral<N>::value && std::is_arithmetic<U>::value>>
  CZEL_Vector(N count, T const& value) : CZEL_Vector(static_cast<ZEL::u32>(count), value) {}

  // A deep copy; an empty source gives an empty vector.
  CZEL_Vector(CZEL_Vector<T> const& src);

  // Takes src's array in constant time; src is left empty (null `GetBuf()`,
  // length 0). Never throws.
  CZEL_Vector(CZEL_Vector<T>&& src) noexcept;

  // Releases the array.
  ~CZEL_Vector() override;

  // Sizing ---------------------------------------------------------------------

  // Replaces the contents by `count` new items (class items default-built,
  // number items unset). Throws ZEL_ERR_EMPTY_INPUT if count is 0, leaving the
  // vector as it was. The old array is released first, so neither `value` nor
  // `src` of the other forms may lie inside it.
  void Create(ZEL::u32 count);

  // `Create(count)`, then every item = value.
  void Create(ZEL::u32 count, T const& value);

  // `Create(count)`, then item i = src[i].
  void Create(T* src, ZEL::u32 count);

  // `Create(count, value)` for a count of another integer type: number items
  // only, as the constructor of that form.
  template <typename N, typename U = T,
            typename = std::enable_if_t<std::is_integral<N>::value && std::is_arithmetic<U>::value>>
  void Create(N count, T const& value) {
    Create(static_cast<ZEL::u32>(count), value);
  }

  // Reallocates to `newLength` items, keeping the old items from position
  // `start` on at the front (with start 0 they keep their positions); the
  // slots left over are unset. On an empty vector this is `Create(newLength)`
  // (start ignored), so newLength 0 there throws ZEL_ERR_EMPTY_INPUT; on a
  // created vector newLength 0 empties it without error. Throws
  // ZEL_ERR_INVALID_ARGUMENT if a length is set but no storage exists (after
  // a failed allocation in `Create`).
  void Recreate(ZEL::u32 newLength, ZEL::u32 start);

  // As above, and the slots not filled from the old items get `value`, which
  // may be one of this vector's own items.
  void Recreate(ZEL::u32 newLength, ZEL::u32 start, T const& value);

  // Releases the array; the vector is empty afterwards.
  CZEL_Vector<T>& DeleteAll();

  // Access ---------------------------------------------------------------------

  // The item array itself, null if nothing was ever created. No check.
  T* GetBuf() const;

  // The number of items.
  ZEL::u32 GetLength() const;

  // The length, not an emptiness flag: `!v` is non-zero for a non-empty `v`.
  ZEL::u32 operator!() const;

  // The first item and one past the last, as raw pointers, for range-for and
  // the standard algorithms; both null on a vector that holds no array.
  // Valid until the next reallocation, as `GetBuf()`.
  T* begin();
  T* end();
  T const* begin() const;
  T const* end() const;

  // The item at `index`, writable even through a const vector. Throws
  // ZEL_ERR_BAD_POSITION if index is not below the length.
  T& operator[](ZEL::u32 index) const;

  // 1 if both vectors have the same length and no pair of items differs by the
  // element's `operator!=`; two empty vectors are equal.
  ZEL::u8 operator==(CZEL_Vector<T> const& other) const;

  // The negation of `operator==`.
  ZEL::u8 operator!=(CZEL_Vector<T> const& other) const;

  // Scans upward from `start` with the element's `operator==`. On the first
  // match stores its position in `*pos` and returns 1; else returns 0 and
  // leaves `*pos` alone. A start at or past the end returns 0.
  ZEL::u8 FindToEnd(T const& item, ZEL::u32* pos, ZEL::u32 start) const;

  // Scans downward from `start` to 0, with the results of `FindToEnd`. The
  // start is not checked against the length: it must be a valid position.
  ZEL::u8 FindToStart(T const& item, ZEL::u32* pos, ZEL::u32 start) const;

  // Assignment and appending -------------------------------------------------

  // A deep copy of `src`; an equal length reuses this array, so class items
  // are assigned over. An empty source empties this vector.
  CZEL_Vector<T>& operator=(CZEL_Vector<T> const& src);

  // Takes the list's items in order, moving the list's cursor to its tail.
  // An empty list empties this vector.
  CZEL_Vector<T>& operator=(CZEL_List<T>& src);

  // Takes src's items and leaves src empty. An equal length keeps this array,
  // as the copy does, and moves the items over where the element's move
  // assignment cannot throw; otherwise this vector takes src's array and
  // releases its own. Assigning a vector to itself changes nothing. Never
  // throws.
  CZEL_Vector<T>& operator=(CZEL_Vector<T>&& src) noexcept;

  // Exchanges the arrays and lengths of the two vectors in constant time.
  // Never throws; `GetBuf()` pointers follow their items.
  CZEL_Vector<T>& Swap(CZEL_Vector<T>& other) noexcept;

  // `a.Swap(b)`, found by argument-dependent lookup, so that `using std::swap;
  // swap(a, b)` and the standard algorithms exchange vectors in constant time.
  friend void swap(CZEL_Vector<T>& a, CZEL_Vector<T>& b) noexcept { a.Swap(b); }

  // Adds one item at the end: one full reallocation per call. `item` may be
  // one of this vector's own items.
  void AppendItem(T const& item);

  // The same as `AppendItem`.
  void operator+=(T const& item);

  // Adds src's items at the end. Throws ZEL_ERR_EMPTY_INPUT if both vectors
  // are empty. `src` must not be this vector.
  CZEL_Vector<T>& AppendVector(CZEL_Vector<T>& src);

  // The same as `AppendVector`.
  CZEL_Vector<T>& operator&=(CZEL_Vector<T>& src);

  // Adds all of the list's items at the end, read from its head; the list's
  // cursor ends on its tail. Throws ZEL_ERR_EMPTY_INPUT if both are empty.
  CZEL_Vector<T>& AppendList(CZEL_List<T>& src);

  // The same as `AppendList`.
  CZEL_Vector<T>& operator&=(CZEL_List<T>& src);

  // Bulk copies ----------------------------------------------------------------
  //
  // Mind the order of arguments: `CopyItemsFrom` takes the source start before
  // the count, `InsertItems` the count before the source start.

  // Writes item[pos + i] = src[srcStart + i] for i below count, in rising
  // order and with no guard for overlap. count 0 does nothing, whatever the
  // other arguments. With `extend` set the vector first grows to pos + count
  // if that is longer (slots between the old end and pos stay unset). Throws
  // ZEL_ERR_INVALID_ARGUMENT, writing nothing, if pos + count (32-bit,
  // wrapping) still exceeds the length. A source too short throws
  // ZEL_ERR_BAD_POSITION from its `operator[]`, the items before it written.
  CZEL_Vector<T>& CopyItemsFrom(ZEL::u32 pos, CZEL_Vector<T>& src, ZEL::u32 srcStart,
                                ZEL::u32 count, ZEL::u8 extend);

  // The same from a raw array that the caller vouches for; no source check.
  CZEL_Vector<T>& CopyItemsFrom(ZEL::u32 pos, T* src, ZEL::u32 srcStart, ZEL::u32 count,
                                ZEL::u8 extend);

  // The same from a list, read from its cursor on (there is no source start).
  // Stops quietly when the list reaches its tail, leaving the remaining slots
  // as they were; the list's cursor ends after the last item copied, or on
  // its tail. An empty list throws ZEL_ERR_BAD_POSITION from its `CurItem`.
  CZEL_Vector<T>& CopyItemsFrom(ZEL::u32 pos, CZEL_List<T>& src, ZEL::u32 count, ZEL::u8 extend);

  // Writes dest[destStart + i] = item[srcStart + i] while i is below count and
  // srcStart + i is below the length. Running out of items is no error.
  void CopyItemsTo(ZEL::u32 destStart, T* dest, ZEL::u32 srcStart, ZEL::u32 count) const;

  // Inserts `count` items of src from `srcStart` on, the first landing at pos.
  // With `extend` set the vector grows by count (always, so on an empty vector
  // count 0 throws ZEL_ERR_EMPTY_INPUT); without it the length stays and the
  // last count items fall off. Throws ZEL_ERR_INVALID_ARGUMENT if pos is above
  // length - 1 (unsigned, so an empty vector passes). A run that reaches past
  // the end grows the vector even without `extend`.
  CZEL_Vector<T>& InsertItems(ZEL::u32 pos, CZEL_Vector<T>& src, ZEL::u32 count, ZEL::u32 srcStart,
                              ZEL::u8 extend);

  // The same from a raw array.
  CZEL_Vector<T>& InsertItems(ZEL::u32 pos, T* src, ZEL::u32 count, ZEL::u32 srcStart,
                              ZEL::u8 extend);

  // The same with `count` copies of `value`. Without `extend`, pos + count
  // must not exceed the length: there is no range check, and the writes stop
  // at the end of the array.
  CZEL_Vector<T>& InsertItems(ZEL::u32 pos, T const& value, ZEL::u32 count, ZEL::u8 extend);

  // The same from a list, read from its cursor on as by the list form of
  // `CopyItemsFrom`. Returns a copy of this vector after the insertion.
  CZEL_Vector<T> InsertItems(ZEL::u32 pos, CZEL_List<T>& src, ZEL::u32 count, ZEL::u8 extend);

  // Removes `count` items at pos by `UpShift`. Without `shrink` the length
  // stays and the last slots keep stale copies; with it the vector shrinks
  // (a count past the end leaves exactly pos items, possibly none). Throws
  // ZEL_ERR_INVALID_ARGUMENT if pos is not below the length.
  CZEL_Vector<T>& DeleteItems(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 shrink);

  // Every item = value; an empty vector is left alone.
  CZEL_Vector<T>& Fill(T const& value);

  // Items start .. start + count - 1 = value, with the range rules (count 0,
  // `extend`, ZEL_ERR_INVALID_ARGUMENT) of `CopyItemsFrom`.
  CZEL_Vector<T>& Fill(T const& value, ZEL::u32 start, ZEL::u32 count, ZEL::u8 extend);

  // Shifts, order and parts ----------------------------------------------------

  // Moves the items from pos + count on towards position 0 by count,
  // overwriting pos .. pos + count - 1. The length stays; the last count slots
  // keep what they held. Throws ZEL_ERR_INVALID_ARGUMENT if pos is not below
  // the length.
  void UpShift(ZEL::u32 pos, ZEL::u32 count);

  // Moves the items from pos on towards the end by count, opening a gap of
  // count slots at pos that keeps the old values; the last count items fall
  // off. A count of the length or more moves nothing. Throws
  // ZEL_ERR_INVALID_ARGUMENT if pos is above length - 1 taken unsigned, so an
  // empty vector passes.
  void DownShift(ZEL::u32 pos, ZEL::u32 count);

  // Exchanges two items through a temporary copy of item a. Throws
  // ZEL_ERR_INVALID_ARGUMENT if a, then b, is above the length. A position
  // equal to the length passes this test; it holds no item, and the call then
  // exchanges nothing.
  void SwapItems(ZEL::u32 a, ZEL::u32 b);

  // `InvertItemsOrder(0, length)`.
  CZEL_Vector<T>& InvertItemsOrder();

  // Reverses the run start .. start + count - 1 in place; count 0 does
  // nothing. A run reaching past the end throws ZEL_ERR_INVALID_ARGUMENT from
  // `SwapItems` once its upper position is above the length.
  CZEL_Vector<T>& InvertItemsOrder(ZEL::u32 start, ZEL::u32 count);

  // Empties `out`, creates it with `count` items and copies item[start + i]
  // into out[i] while start + i is below the length; out's further slots are
  // unset. count 0 throws ZEL_ERR_EMPTY_INPUT from out's `Create`, after out
  // was emptied. `out` must not be this vector.
  void Extract(CZEL_Vector<T>& out, ZEL::u32 start, ZEL::u32 count) const;

  // A new vector of `count` items holding the run from start in reverse:
  // result[count - 1 - i] = item[start + i]. If the run is cut short by the
  // end of this vector, the low positions of the result stay unset. count 0
  // gives an empty vector.
  CZEL_Vector<T> ExtractInvertVector(ZEL::u32 start, ZEL::u32 count) const;

  // A repeated adjacent exchange in place, calling `cmp(later, earlier)`:
  // positive means the first argument orders after the second. A non-zero
  // `ascending` gives rising order, 0 falling order; equal items keep their
  // order. Throws ZEL_ERR_INVALID_ARGUMENT on an empty vector and returns at
  // once on one item. On two or more items it never returns: once the items
  // are in order it keeps making passes, and only an exception thrown by the
  // comparator ends the call.
  void Sort(signed char (*cmp)(T const&, T const&), ZEL::u8 ascending);

 protected:
  // Makes this vector a copy of src; nothing happens if src is this vector.
  void DataCopy(CZEL_Vector<T> const& src);

  // Takes the list's items from its head, moving its cursor to its tail.
  void DataCopy(CZEL_List<T>& src);

  // Releases the array and sets the length to 0; does nothing at all if
  // there is no array.
  void DeleteBuffer();

  // The first steps of every `InsertItems`: the growth asked for, then the
  // gap at pos.
  void OpenGap(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 extend);

  // The range test of `CopyItemsFrom` and `Fill`: grows to pos + count if
  // allowed and needed, then throws ZEL_ERR_INVALID_ARGUMENT if it still
  // exceeds the length.
  void FitRange(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 extend);

  // 1 if pos + offset, without wrapping, is a position of this array.
  bool InArray(ZEL::u32 pos, ZEL::u32 offset) const;

  // Throws `CZEL_Exception(code, this, 0)`.
  [[noreturn]] void Fail(ZEL::u32 code) const;

  T* m_Buf;
  ZEL::u32 m_Length;

 private:
  // Items that need no construction and copy as bytes: their storage comes
  // from malloc and realloc instead of the array allocation.
  static constexpr bool kRawItems =
      std::is_trivially_copyable<T>::value && std::is_trivially_default_constructible<T>::value;

  // The storage helpers: exactly `count` items (a zero-item array for 0),
  // their release, and a resize in place of raw items. A failed allocation
  // throws the standard allocation exception.
  static T* NewItems(ZEL::u32 count);
  static void FreeItems(T* items) noexcept;
  static T* ResizeItems(T* items, ZEL::u32 count);

  // An item as the source of a reallocation's assignment: moved where the
  // element's move assignment cannot throw, else copied.
  using MoveSource = std::conditional_t<std::is_nothrow_move_assignable<T>::value, T&&, T const&>;
  static MoveSource MoveItem(T& item) noexcept;

  void Reallocate(ZEL::u32 newLength, ZEL::u32 start, T const* value);
  void WriteRun(ZEL::u32 pos, T const& value, ZEL::u32 count);
  template <typename Source>
  void WriteFrom(ZEL::u32 pos, Source const& read, ZEL::u32 count);
};

// Implementation ---------------------------------------------------------------
//
// The small accessors are inline, so that callers can inline them although
// the rest of the code comes from the library's instantiations.

template <typename T>
CZEL_Vector<T>::CZEL_Vector() : m_Buf(nullptr), m_Length(0) {}

template <typename T>
CZEL_Vector<T>::CZEL_Vector(ZEL::u32 count) : CZEL_Vector() {
  Create(count);
}

template <typename T>
CZEL_Vector<T>::CZEL_Vector(ZEL::u32 count, T const& value) : CZEL_Vector() {
  Create(count, value);
}

template <typename T>
CZEL_Vector<T>::CZEL_Vector(T* src, ZEL::u32 count) : CZEL_Vector() {
  Create(src, count);
}

template <typename T>
CZEL_Vector<T>::CZEL_Vector(CZEL_Vector<T> const& src) : CZEL_Vector() {
  DataCopy(src);
}

template <typename T>
CZEL_Vector<T>::CZEL_Vector(CZEL_Vector<T>&& src) noexcept
    : m_Buf(src.m_Buf), m_Length(src.m_Length) {
  src.m_Buf = nullptr;
  src.m_Length = 0;
}

template <typename T>
CZEL_Vector<T>::~CZEL_Vector() {
  DeleteBuffer();
}

template <typename T>
void CZEL_Vector<T>::Create(ZEL::u32 count) {
  if (count == 0) Fail(ZEL_ERR_EMPTY_INPUT);
  DeleteBuffer();
  // The length is stored before the allocation: should it fail, `Recreate`
  // recognises the state of a length without storage.
  m_Length = count;
  m_Buf = NewItems(count);
}

template <typename T>
void CZEL_Vector<T>::Create(ZEL::u32 count, T const& value) {
  Create(count);
  WriteRun(0, value, count);
}

template <typename T>
void CZEL_Vector<T>::Create(T* src, ZEL::u32 count) {
  Create(count);
  WriteFrom(
      0, [src](ZEL::u32 i) -> T const& { return src[i]; }, count);
}

template <typename T>
void CZEL_Vector<T>::Recreate(ZEL::u32 newLength, ZEL::u32 start) {
  Reallocate(newLength, start, nullptr);
}

template <typename T>
void CZEL_Vector<T>::Recreate(ZEL::u32 newLength, ZEL::u32 start, T const& value) {
  Reallocate(newLength, start, &value);
}

template <typename T>
void CZEL_Vector<T>::Reallocate(ZEL::u32 newLength, ZEL::u32 start, T const* value) {
  if (m_Length == 0) {
    if (value != nullptr) {
      Create(newLength, *value);
    } else {
      Create(newLength);
    }
    return;
  }
  if (m_Buf == nullptr) Fail(ZEL_ERR_INVALID_ARGUMENT);
  // The items kept: those from start on, as many as fit.
  ZEL::u32 const kept = start >= m_Length ? 0 : std::min(newLength, m_Length - start);
  if constexpr (kRawItems) {
    if (start == 0 && newLength != 0) {
      // The value is read before the block moves: it may be one of its items.
      T const fill = value != nullptr ? *value : T();
      m_Buf = ResizeItems(m_Buf, newLength);
      m_Length = newLength;
      if (value != nullptr) WriteRun(kept, fill, newLength - kept);
      return;
    }
  }
  std::unique_ptr<T[], void (*)(T*)> fresh(NewItems(newLength), &FreeItems);
  // The value first, while the old items are all in place (it may be one of
  // them) and a throwing copy still leaves this vector as it was; the moves
  // of the kept items that follow cannot throw.
  if (value != nullptr) {
    for (ZEL::u32 i = kept; i < newLength; ++i) fresh[i] = *value;
  }
  for (ZEL::u32 i = 0; i < kept; ++i) fresh[i] = MoveItem(m_Buf[start + i]);
  DeleteBuffer();
  m_Buf = fresh.release();
  m_Length = newLength;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::DeleteAll() {
  DeleteBuffer();
  return *this;
}

template <typename T>
void CZEL_Vector<T>::DeleteBuffer() {
  if (m_Buf == nullptr) return;
  FreeItems(m_Buf);
  m_Buf = nullptr;
  m_Length = 0;
}

template <typename T>
T* CZEL_Vector<T>::NewItems(ZEL::u32 count) {
  if constexpr (kRawItems) {
    if constexpr (sizeof(std::size_t) <= sizeof(ZEL::u32)) {
      if (count > SIZE_MAX / sizeof(T)) throw std::bad_array_new_length();
    }
    // malloc(0) may give null: an empty block needs no storage.
    void* items = std::malloc(std::size_t(count) * sizeof(T));
    if (items == nullptr && count != 0) throw std::bad_alloc();
    return static_cast<T*>(items);
  } else {
    return new T[count];
  }
}

template <typename T>
void CZEL_Vector<T>::FreeItems(T* items) noexcept {
  if constexpr (kRawItems) {
    std::free(items);
  } else {
    delete[] items;
  }
}

// Raw items only, and a count above 0. On failure the block is left as it was.
template <typename T>
T* CZEL_Vector<T>::ResizeItems(T* items, ZEL::u32 count) {
  if constexpr (sizeof(std::size_t) <= sizeof(ZEL::u32)) {
    if (count > SIZE_MAX / sizeof(T)) throw std::bad_array_new_length();
  }
  void* resized = std::realloc(static_cast<void*>(items), std::size_t(count) * sizeof(T));
  if (resized == nullptr) throw std::bad_alloc();
  return static_cast<T*>(resized);
}

template <typename T>
inline typename CZEL_Vector<T>::MoveSource CZEL_Vector<T>::MoveItem(T& item) noexcept {
  return std::move(item);
}

template <typename T>
inline T* CZEL_Vector<T>::GetBuf() const {
  return m_Buf;
}

template <typename T>
inline ZEL::u32 CZEL_Vector<T>::GetLength() const {
  return m_Length;
}

template <typename T>
inline ZEL::u32 CZEL_Vector<T>::operator!() const {
  return m_Length;
}

template <typename T>
inline T* CZEL_Vector<T>::begin() {
  return m_Buf;
}

template <typename T>
inline T* CZEL_Vector<T>::end() {
  return m_Buf + m_Length;
}

template <typename T>
inline T const* CZEL_Vector<T>::begin() const {
  return m_Buf;
}

template <typename T>
inline T const* CZEL_Vector<T>::end() const {
  return m_Buf + m_Length;
}

template <typename T>
inline T& CZEL_Vector<T>::operator[](ZEL::u32 index) const {
  if (index >= m_Length) Fail(ZEL_ERR_BAD_POSITION);
  return m_Buf[index];
}

template <typename T>
ZEL::u8 CZEL_Vector<T>::operator==(CZEL_Vector<T> const& other) const {
  if (m_Length != other.m_Length) return 0;
  for (ZEL::u32 i = 0; i < m_Length; ++i) {
    if (m_Buf[i] != other.m_Buf[i]) return 0;
  }
  return 1;
}

template <typename T>
ZEL::u8 CZEL_Vector<T>::operator!=(CZEL_Vector<T> const& other) const {
  return *this == other ? 0 : 1;
}

template <typename T>
ZEL::u8 CZEL_Vector<T>::FindToEnd(T const& item, ZEL::u32* pos, ZEL::u32 start) const {
  for (ZEL::u32 i = start; i < m_Length; ++i) {
    if (m_Buf[i] == item) {
      *pos = i;
      return 1;
    }
  }
  return 0;
}

template <typename T>
ZEL::u8 CZEL_Vector<T>::FindToStart(T const& item, ZEL::u32* pos, ZEL::u32 start) const {
  // A signed index, so that the scan ends below 0.
  for (std::int32_t i = static_cast<std::int32_t>(start); i >= 0; --i) {
    if (m_Buf[i] == item) {
      *pos = static_cast<ZEL::u32>(i);
      return 1;
    }
  }
  return 0;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::operator=(CZEL_Vector<T> const& src) {
  DataCopy(src);
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::operator=(CZEL_Vector<T>&& src) noexcept {
  if (&src == this) return *this;
  bool keepArray = false;
  if constexpr (std::is_nothrow_move_assignable<T>::value) {
    keepArray = m_Length == src.m_Length && m_Buf != nullptr;
    for (ZEL::u32 i = 0; keepArray && i < m_Length; ++i) m_Buf[i] = std::move(src.m_Buf[i]);
  }
  if (!keepArray) Swap(src);
  src.DeleteBuffer();
  src.m_Length = 0;  // also after a failed allocation left a length without storage
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::Swap(CZEL_Vector<T>& other) noexcept {
  std::swap(m_Buf, other.m_Buf);
  std::swap(m_Length, other.m_Length);
  return *this;
}

template <typename T>
void CZEL_Vector<T>::DataCopy(CZEL_Vector<T> const& src) {
  if (&src == this) return;
  if (m_Length != src.m_Length) {
    DeleteBuffer();
    m_Buf = NewItems(src.m_Length);  // a zero-item array for an empty source
  }
  for (ZEL::u32 i = 0; i < src.m_Length; ++i) m_Buf[i] = src.m_Buf[i];
  m_Length = src.m_Length;
}

template <typename T>
void CZEL_Vector<T>::AppendItem(T const& item) {
  Recreate(m_Length + 1, 0, item);
}

template <typename T>
void CZEL_Vector<T>::operator+=(T const& item) {
  AppendItem(item);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::AppendVector(CZEL_Vector<T>& src) {
  ZEL::u32 const old = m_Length;
  Recreate(src.m_Length + m_Length, 0);
  // Both lengths are read through the checked operators: appending a vector to
  // itself ends in ZEL_ERR_BAD_POSITION once the doubled length runs out.
  for (ZEL::u32 i = 0; i < src.GetLength(); ++i) (*this)[old + i] = src[i];
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::operator&=(CZEL_Vector<T>& src) {
  return AppendVector(src);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::CopyItemsFrom(ZEL::u32 pos, CZEL_Vector<T>& src, ZEL::u32 srcStart,
                                              ZEL::u32 count, ZEL::u8 extend) {
  if (count == 0) return *this;
  FitRange(pos, count, extend);
  WriteFrom(
      pos, [&src, srcStart](ZEL::u32 i) -> T const& { return src[srcStart + i]; }, count);
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::CopyItemsFrom(ZEL::u32 pos, T* src, ZEL::u32 srcStart,
                                              ZEL::u32 count, ZEL::u8 extend) {
  if (count == 0) return *this;
  FitRange(pos, count, extend);
  WriteFrom(
      pos, [src, srcStart](ZEL::u32 i) -> T const& { return src[srcStart + i]; }, count);
  return *this;
}

template <typename T>
void CZEL_Vector<T>::CopyItemsTo(ZEL::u32 destStart, T* dest, ZEL::u32 srcStart,
                                 ZEL::u32 count) const {
  for (ZEL::u32 i = 0; i < count && InArray(srcStart, i); ++i) {
    dest[destStart + i] = m_Buf[srcStart + i];
  }
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::InsertItems(ZEL::u32 pos, CZEL_Vector<T>& src, ZEL::u32 count,
                                            ZEL::u32 srcStart, ZEL::u8 extend) {
  OpenGap(pos, count, extend);
  return CopyItemsFrom(pos, src, srcStart, count, 1);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::InsertItems(ZEL::u32 pos, T* src, ZEL::u32 count, ZEL::u32 srcStart,
                                            ZEL::u8 extend) {
  OpenGap(pos, count, extend);
  return CopyItemsFrom(pos, src, srcStart, count, 1);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::InsertItems(ZEL::u32 pos, T const& value, ZEL::u32 count,
                                            ZEL::u8 extend) {
  if (extend) {
    // The growth releases the array that `value` may lie in: keep a copy.
    T const kept(value);  // NOLINT(performance-unnecessary-copy-initialization)
    OpenGap(pos, count, extend);
    WriteRun(pos, kept, count);
  } else {
    OpenGap(pos, count, extend);
    WriteRun(pos, value, count);
  }
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::DeleteItems(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 shrink) {
  UpShift(pos, count);
  if (!shrink) return *this;
  ZEL::i64 tail = static_cast<ZEL::i64>(m_Length) - pos - count;
  if (tail < 0) tail = 0;
  Recreate(pos + static_cast<ZEL::u32>(tail), 0);
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::Fill(T const& value) {
  WriteRun(0, value, m_Length);
  return *this;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::Fill(T const& value, ZEL::u32 start, ZEL::u32 count,
                                     ZEL::u8 extend) {
  if (count == 0) return *this;
  // An extension may release the array that value lies in: keep a copy.
  T const kept(value);  // NOLINT(performance-unnecessary-copy-initialization)
  FitRange(start, count, extend);
  WriteRun(start, kept, count);
  return *this;
}

template <typename T>
void CZEL_Vector<T>::UpShift(ZEL::u32 pos, ZEL::u32 count) {
  if (pos >= m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
  // 64-bit source positions: a count past the end moves nothing.
  for (ZEL::u64 d = pos, s = ZEL::u64(pos) + count; s < m_Length; ++d, ++s) m_Buf[d] = m_Buf[s];
}

template <typename T>
void CZEL_Vector<T>::DownShift(ZEL::u32 pos, ZEL::u32 count) {
  if (pos > m_Length - 1) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (count >= m_Length) return;
  for (ZEL::i64 s = ZEL::i64(m_Length) - count - 1; s >= ZEL::i64(pos); --s) {
    m_Buf[s + count] = m_Buf[s];
  }
}

template <typename T>
void CZEL_Vector<T>::SwapItems(ZEL::u32 a, ZEL::u32 b) {
  if (a > m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (b > m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (a == m_Length || b == m_Length) return;
  T kept(m_Buf[a]);
  m_Buf[a] = m_Buf[b];
  m_Buf[b] = kept;
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::InvertItemsOrder() {
  return InvertItemsOrder(0, m_Length);
}

template <typename T>
CZEL_Vector<T>& CZEL_Vector<T>::InvertItemsOrder(ZEL::u32 start, ZEL::u32 count) {
  for (ZEL::u32 i = 0; i < count / 2 && InArray(start, i); ++i) {
    SwapItems(start + count - 1 - i, start + i);
  }
  return *this;
}

template <typename T>
void CZEL_Vector<T>::Extract(CZEL_Vector<T>& out, ZEL::u32 start, ZEL::u32 count) const {
  out.DeleteAll();
  out.Create(count);
  for (ZEL::u32 i = 0; i < count && InArray(start, i); ++i) out.m_Buf[i] = m_Buf[start + i];
}

template <typename T>
CZEL_Vector<T> CZEL_Vector<T>::ExtractInvertVector(ZEL::u32 start, ZEL::u32 count) const {
  CZEL_Vector<T> result;
  if (count == 0) return result;
  result.Create(count);
  for (ZEL::u32 i = 0; i < count && InArray(start, i); ++i) {
    result.m_Buf[count - 1 - i] = m_Buf[start + i];
  }
  return result;
}

template <typename T>
void CZEL_Vector<T>::Sort(signed char (*cmp)(T const&, T const&), ZEL::u8 ascending) {
  if (m_Length == 0) Fail(ZEL_ERR_INVALID_ARGUMENT);
  if (m_Length == 1) return;
  // The flag is only ever cleared: once in order, the passes go on until the
  // comparator throws. The volatile pass count keeps this loop an operation
  // with effects, which the compiler may not assume to end.
  volatile ZEL::u32 passes = 0;
  bool sorted = false;
  while (!sorted) {
    passes = passes + 1;
    for (ZEL::u32 i = 1; i < m_Length; ++i) {
      bool exchange = cmp(m_Buf[i], m_Buf[i - 1]) > 0 && !ascending;
      if (!exchange) exchange = cmp(m_Buf[i], m_Buf[i - 1]) < 0 && ascending;
      if (exchange) {
        SwapItems(i, i - 1);
        sorted = false;
      }
    }
  }
}

template <typename T>
void CZEL_Vector<T>::OpenGap(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 extend) {
  if (extend) Recreate(m_Length + count, 0);
  DownShift(pos, count);
}

template <typename T>
void CZEL_Vector<T>::FitRange(ZEL::u32 pos, ZEL::u32 count, ZEL::u8 extend) {
  ZEL::u32 const end = pos + count;  // 32-bit and wrapping, as the test demands
  if (extend && end > m_Length) Recreate(end, 0);
  if (end > m_Length) Fail(ZEL_ERR_INVALID_ARGUMENT);
}

template <typename T>
inline bool CZEL_Vector<T>::InArray(ZEL::u32 pos, ZEL::u32 offset) const {
  return ZEL::u64(pos) + offset < m_Length;
}

template <typename T>
void CZEL_Vector<T>::Fail(ZEL::u32 code) const {
  throw CZEL_Exception(code, this, 0);
}

template <typename T>
void CZEL_Vector<T>::WriteRun(ZEL::u32 pos, T const& value, ZEL::u32 count) {
  WriteFrom(
      pos, [&value](ZEL::u32) -> T const& { return value; }, count);
}

// Writes item[pos + i] = read(i) for i below count, in rising order. A range
// whose 32-bit end wrapped has passed the range test; its writes stop where
// the array ends.
template <typename T>
template <typename Source>
void CZEL_Vector<T>::WriteFrom(ZEL::u32 pos, Source const& read, ZEL::u32 count) {
  for (ZEL::u32 i = 0; i < count && InArray(pos, i); ++i) m_Buf[pos + i] = read(i);
}

#endif  // LZEL_CORE_CONTAINERS_CZEL_VECTOR_H_
