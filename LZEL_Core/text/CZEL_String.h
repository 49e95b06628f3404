// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_String.h
// -----------------------------------------------------------------------------
//
// `CZEL_String` is LZEL_Core's text class: a mutable run of bytes with a
// length and a terminator. A character is one `char`; there is no encoding,
// and only the ASCII letters A to Z and a to z have case.
//
//   CZEL_String name("world");
//   CZEL_String line = "hello, " + name;   // "hello, world"
//   line.Insert('!', line.GetLength());     // "hello, world!"
//   line.ResizeLeft(5);                     // "hello"
//   line.SetFormatted(8, CZEL_String::ALIGN_RIGHT, '.');  // "...hello"
//   ZEL::u64 n = CZEL_String("1FH").ToUnsignedAutoRadix(2);  // 31
//
//   ZEL::u32 at = 0;
//   CZEL_String("hello").FindFromBegin(CZEL_String("ll"), &at, 1, 0);  // 1, at is 2
//   CZEL_StringList parts;   // <LZEL_Core/containers/CZEL_StringList.h>
//   CZEL_String("a,,b").ExtractTags(',', parts);   // "a", "", "b"
//
// Storage
//
// A string owns one buffer of exactly `GetLength()` + 1 bytes, the last of
// them a terminator. There is no spare capacity and no sharing, and copies
// are deep. The buffer comes from the C allocator: an edit that keeps the
// head of the text and grows it (`+=`, `Insert` at the end, `SetLength`)
// resizes the buffer with `realloc`, which grows it in place or remaps it
// where it can, so that appending one character at a time costs time in
// proportion to the final length in practice; other edits build a new
// exact buffer. A move takes the buffer over and leaves the source empty.
// The length is what counts, so a string may hold bytes of 0 in the middle
// (the constructor from a pointer and a count, `Build`, `SetChar`,
// `SetLength` and `operator+=(char)` can put them there). Operations that
// read the text as NUL-terminated text, such as the number conversions,
// stop at the first 0.
//
// The pointer from `GetStringC()` is the buffer itself. It stays valid only
// until the next change of the string: `SetChar`, `ReplaceChar` and `SetCase`
// alone keep the buffer, and so does copying in a string of equal non-zero
// length; a moved-in string brings its own buffer. `begin()` and `end()` span the same bytes, so
// range-for and the standard algorithms work on the text, and `View()` gives
// it as a `std::string_view`.
//
// Comparison and search
//
// Comparisons read a string as NUL-terminated text, up to its first 0 byte,
// and order bytes as signed chars, so bytes from 128 up sort before all of
// ASCII. Searches read all `GetLength()` characters, zeros included. The
// relational operators are case-sensitive, take a `char const*` on either
// side and compile as C++17 and C++20 alike; the static comparators `CompareMatchingCase` and `CompareNoMatchingCase` have
// the form that the containers' `Sort` takes.
//
// Quiet bounds
//
// No member throws a `CZEL_Exception`, and only `ExtractEncapsulatedString`
// returns an error code. A position or count out of range has a defined
// quiet result, and that result differs from operation to operation:
// `Left(99)` on "abc" gives "abc", while `ResizeMid(3, 1)` on "abc" empties
// the string and `ResizeLeft(4)` leaves it alone. Each member below states
// its own rule. A null `char const*` is never
// checked for: the caller must not pass one. A failed allocation passes
// through as `std::bad_alloc`, and the string keeps its old text.

#ifndef LZEL_CORE_TEXT_CZEL_STRING_H_
#define LZEL_CORE_TEXT_CZEL_STRING_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <string_view>

// The containers that `ExtractTags` fills; their headers include this one.
class CZEL_StringList;
class CZEL_StringVector;

// ZEL_PRINTF_FORMAT
//
// Lets the compiler check the arguments of a printf-like member against its
// format, as it does for printf itself.
#ifndef ZEL_PRINTF_FORMAT
#if defined(__MINGW32__)  // mingw-w64's C++ runtime formats as GNU printf does
#define ZEL_PRINTF_FORMAT(format_index, first_arg) \
  __attribute__((format(gnu_printf, format_index, first_arg)))
#elif defined(__GNUC__) || defined(__clang__)
#define ZEL_PRINTF_FORMAT(format_index, first_arg) \
  __attribute__((format(printf, format_index, first_arg)))
#else
#define ZEL_PRINTF_FORMAT(format_index, first_arg)
#endif
#endif

class ZEL_API CZEL_String : public CZEL_Object {
 public:
  // Where `SetFormatted` puts the text in its field.
  enum t_Align : ZEL::u32 {
    ALIGN_LEFT = 0,    // At the start of the field.
    ALIGN_RIGHT = 1,   // At the end of the field.
    ALIGN_CENTER = 2,  // In the middle; an odd remainder puts the extra fill
                       // on the right.
  };

  // ---------------------------------------------------------------------------
  // Construction
  // ---------------------------------------------------------------------------

  // An empty string. It allocates nothing: its text is one shared, read-only
  // terminator, as a moved-from string's is, until the first edit that
  // lengthens it.
  CZEL_String();

  // A deep copy of `src`.
  CZEL_String(CZEL_String const& src);

  // Takes over the buffer of `src` in constant time, without allocating;
  // `src` is left empty and usable.
  CZEL_String(CZEL_String&& src) noexcept;

  // The one character `c`; length 1 also for a `c` of 0.
  CZEL_String(char c);

  // `count` copies of `c`; empty for a `count` of 0.
  CZEL_String(ZEL::u32 count, char c);

  // A copy of the NUL-terminated `text`.
  CZEL_String(char const* text);

  // Exactly `count` bytes from `text`, zeros included.
  CZEL_String(char const* text, ZEL::u32 count);

  // Every byte of `text`, zeros included; a view of 4 GiB or more is cut to
  // its first 2^32 - 1 bytes.
  explicit CZEL_String(std::string_view text);

  // Releases the buffer.
  ~CZEL_String() override;

  // ---------------------------------------------------------------------------
  // Assignment
  // ---------------------------------------------------------------------------

  // A copy of `src`. Assigning a string to itself changes nothing.
  CZEL_String& operator=(CZEL_String const& src);

  // Takes over the text of `src`, buffer and all, in constant time; `src` is
  // left empty and this string's old buffer is released. Moving a string
  // onto itself changes nothing.
  CZEL_String& operator=(CZEL_String&& src) noexcept;

  // Exchanges the texts of the two strings, buffers and all, in constant
  // time.
  void Swap(CZEL_String& other) noexcept;

  // The one character `c`; length 1 also for a `c` of 0.
  CZEL_String& operator=(char c);

  // A copy of the NUL-terminated `text`, which may point into this string's
  // own text: `s = s.GetStringC() + 1` drops the first character.
  CZEL_String& operator=(char const* text);

  // ---------------------------------------------------------------------------
  // Concatenation
  // ---------------------------------------------------------------------------

  // Appends `s`, which may be this string itself (`s += s` doubles it). An
  // empty `s` changes nothing.
  CZEL_String& operator+=(CZEL_String const& s);

  // Appends the NUL-terminated `text`. An empty text changes nothing.
  CZEL_String& operator+=(char const* text);

  // Appends `c`, also a `c` of 0.
  CZEL_String& operator+=(char c);

  // This string followed by `s`, `c` or `text`; this string stays as it is.
  CZEL_String operator+(CZEL_String const& s) const;
  CZEL_String operator+(char c) const;
  CZEL_String operator+(char const* text) const;

  // ---------------------------------------------------------------------------
  // Reading
  // ---------------------------------------------------------------------------

  // The number of characters, without the terminator.
  ZEL::u32 GetLength() const;

  // The buffer itself, terminated, not a copy. The caller may write through
  // it; it is valid until the next change of the string.
  char* GetStringC() const;

  // The character at `pos`, or 0 if `pos` is not below the length.
  char GetChar(ZEL::u32 pos) const;

  // Copies the text and a terminator into `dest`, which must hold
  // `GetLength()` + 1 bytes.
  void ToStringC(char* dest) const;

  // The first byte and the place after the last one, of all `GetLength()`
  // bytes; equal for an empty string. Like `GetStringC()`, valid until the
  // next change of the string.
  char* begin();
  char* end();
  char const* begin() const;
  char const* end() const;

  // All `GetLength()` bytes, zeros included, without the terminator; valid
  // until the next change of the string.
  std::string_view View() const;

  // ---------------------------------------------------------------------------
  // Substrings: a new string, this one left alone
  // ---------------------------------------------------------------------------

  // The first `count` characters, or the whole string if `count` exceeds the
  // length. `Left(0)` is empty.
  CZEL_String Left(ZEL::u32 count) const;

  // The last `count` characters, or the whole string if `count` exceeds the
  // length. `Right(0)` is empty.
  CZEL_String Right(ZEL::u32 count) const;

  // `count` characters from `pos`, cut at the end of the string. Empty if
  // `pos` is not below the length or `count` is 0.
  CZEL_String Mid(ZEL::u32 pos, ZEL::u32 count) const;

  // Everything from `pos` on. Empty if `pos` is not below the length.
  CZEL_String RightFromPos(ZEL::u32 pos) const;

  // ---------------------------------------------------------------------------
  // In-place substrings: keep a part of this string and return it
  // ---------------------------------------------------------------------------

  // Keeps the first `count` characters. A `count` above the length changes
  // nothing; a `count` of 0 empties the string.
  CZEL_String& ResizeLeft(ZEL::u32 count);

  // Keeps the last `count` characters. A `count` above the length changes
  // nothing; a `count` of 0 empties the string.
  CZEL_String& ResizeRight(ZEL::u32 count);

  // Keeps `count` characters from `pos`, cut at the end of the string. Unlike
  // `ResizeLeft` and `ResizeRight`, a `pos` not below the length or a `count`
  // of 0 empties the string.
  CZEL_String& ResizeMid(ZEL::u32 pos, ZEL::u32 count);

  // Keeps everything from `pos` on. A `pos` not below the length empties the
  // string.
  CZEL_String& ResizeRightFromPos(ZEL::u32 pos);

  // ---------------------------------------------------------------------------
  // Editing
  // ---------------------------------------------------------------------------

  // Inserts `c` before the character at `pos`; a `pos` equal to the length
  // appends. A `pos` above the length changes nothing.
  CZEL_String& Insert(char c, ZEL::u32 pos);

  // Inserts at `pos` the characters of `src` from `srcStart` on, at most
  // `count` of them. `count` is first cut to the length of `src`; then, if
  // `srcStart` is not below that `count`, nothing is inserted (so
  // `Insert("abcdef", 0, 3, 2)` inserts nothing, `Insert("abcdef", 0, 1, 3)`
  // inserts "bcd"); a run past the end of `src` is cut. A `pos` above the
  // length changes nothing. `src` may be this string.
  CZEL_String& Insert(CZEL_String const& src, ZEL::u32 pos, ZEL::u32 srcStart, ZEL::u32 count);

  // Removes every occurrence of `c`.
  CZEL_String& RemoveChar(char c);

  // Removes `count` characters at `pos`, cut at the end of the string. A
  // `count` of 0 or a `pos` at or above the length changes nothing.
  CZEL_String& RemoveChars(ZEL::u32 pos, ZEL::u32 count);

  // Replaces every `from` by `to`, in place.
  CZEL_String& ReplaceChar(char from, char to);

  // Overwrites `count` characters at `pos` with `src.Mid(srcStart, count)`,
  // `count` being first cut to the whole length of `src`. Characters at and
  // after `pos` that fall inside the overwritten run are removed even where
  // `src` supplies fewer (a `srcStart` past the end of `src` supplies none):
  // "abcd".ReplaceChars("XY", 1, 5, 2) gives "ad". A `pos` at or past the end
  // appends: "abcd".ReplaceChars("XY", 9, 0, 2) gives "abcdXY".
  CZEL_String& ReplaceChars(CZEL_String const& src, ZEL::u32 pos, ZEL::u32 srcStart,
                            ZEL::u32 count);

  // Replaces `oldCount` characters at `pos` with `src.Mid(srcStart, count)`,
  // `count` being first cut to the length of `src`. The kept tail is the last
  // (length - `pos` - `oldCount`) characters, that difference taken in signed
  // 32 bits: when it isn't above 0 there is no tail, so an `oldCount` past
  // the end removes the rest ("abcd".ReplaceString("XYZ", 1, 9, 0, 3) gives
  // "aXYZ"). A `pos` at or past the end appends. `src` may be this string.
  CZEL_String& ReplaceString(CZEL_String const& src, ZEL::u32 pos, ZEL::u32 oldCount,
                             ZEL::u32 srcStart, ZEL::u32 count);

  // Becomes `count` copies of `c`; empty for a `count` of 0.
  CZEL_String& Build(ZEL::u32 count, char c);

  // Stores `c` at `pos` if `pos` is below the length; otherwise does nothing.
  // The string can't grow this way.
  void SetChar(ZEL::u32 pos, char c);

  // Cuts the text to `count` characters, or pads it with `fill` up to
  // `count`. A `count` equal to the length changes nothing.
  CZEL_String& SetLength(ZEL::u32 count, char fill);

  // Mode 0 turns A to Z into lower case, mode 1 turns a to z into upper case,
  // any other mode does nothing. Other bytes stay. Keeps the buffer.
  CZEL_String& SetCase(ZEL::u32 mode);

  // Removes the runs of `c` at the ends named by `sides`: bit 0 the leading
  // run, bit 1 the trailing run, so 3 trims both and 0 nothing; other bits
  // are ignored. A string of nothing but `c` becomes empty.
  CZEL_String& Trim(char c, ZEL::u32 sides);

  // Fits the text into exactly `width` characters of `fill`, per `align`:
  // left keeps the head of a text that is too long, right keeps its tail,
  // center starts the text at (width - length) / 2 (0 when the text doesn't
  // fit) and keeps its head. Any other `align` gives `width` fill characters.
  CZEL_String& SetFormatted(ZEL::u32 width, t_Align align, char fill);

  // ---------------------------------------------------------------------------
  // NUL-terminated text
  // ---------------------------------------------------------------------------
  //
  // Helpers for plain `char` arrays. Null pointers are not checked for.

  // The number of bytes before the first 0.
  static ZEL::u32 CS_GetLength(char const* text);

  // Copies `src` with its terminator into `dest`, which must have room, and
  // returns `dest`.
  static char* CS_Copy(char* dest, char const* src);

  // The order of two NUL-terminated texts: -1, 0 or 1. Bytes compare as
  // signed chars, so 0xE9 sorts before 'A'; a text that ends sorts before
  // one that goes on, whatever its next byte ("abc" before "abc\xE9").
  static signed char CS_Compare(char const* a, char const* b);

  // ---------------------------------------------------------------------------
  // Comparison
  // ---------------------------------------------------------------------------
  //
  // All comparisons read the texts up to their first 0 byte: two strings that
  // agree up to an embedded 0 are equal, whatever their lengths. Results are
  // -1, 0 or 1.

  // `CS_Compare` of the two texts.
  signed char CompareMatchingCase(CZEL_String const& other) const;
  static signed char CompareMatchingCase(CZEL_String const& a, CZEL_String const& b);

  // The order of the two texts with a to z taken as A to Z: "abc" and "ABC"
  // are equal, and '[' and '_' sort after every letter.
  signed char CompareNoMatchingCase(CZEL_String const& other) const;
  static signed char CompareNoMatchingCase(CZEL_String const& a, CZEL_String const& b);

  // 1 or 0 by `CompareMatchingCase(other)`: equal, unequal, below, at most,
  // above, at least. Case-sensitive.
  ZEL::u8 operator==(CZEL_String const& other) const;
  ZEL::u8 operator!=(CZEL_String const& other) const;
  ZEL::u8 operator<(CZEL_String const& other) const;
  ZEL::u8 operator<=(CZEL_String const& other) const;
  ZEL::u8 operator>(CZEL_String const& other) const;
  ZEL::u8 operator>=(CZEL_String const& other) const;

  // The same against the NUL-terminated `text`, by `CS_Compare(GetStringC(),
  // text)`: the result a string made from `text` would give. These exact
  // forms keep C++20 from trying the reversed ones.
  ZEL::u8 operator==(char const* text) const;
  ZEL::u8 operator!=(char const* text) const;
  ZEL::u8 operator<(char const* text) const;
  ZEL::u8 operator<=(char const* text) const;
  ZEL::u8 operator>(char const* text) const;
  ZEL::u8 operator>=(char const* text) const;

  // ---------------------------------------------------------------------------
  // Search
  // ---------------------------------------------------------------------------
  //
  // Each search returns 1 and stores the position in `*pos` when it finds a
  // match; otherwise it returns 0 and leaves `*pos` alone. With `matchCase`
  // 0, A to Z match a to z.

  // The first `c` at or after `start`. The terminator is never found; an
  // empty string or a `start` at or past the length gives 0.
  ZEL::u8 FindFromBegin(char c, ZEL::u32* pos, ZEL::u32 start) const;

  // The first occurrence of `s` that begins at or after `start` and lies
  // wholly within the string. An empty `s` or an empty string gives 0. On
  // "abcabc", "bc" from 2 is found at 4, from 5 not at all.
  ZEL::u8 FindFromBegin(CZEL_String const& s, ZEL::u32* pos, ZEL::u8 matchCase,
                        ZEL::u32 start) const;

  // The last `c` at or before `start`; a `start` above the length means the
  // last character. A `start` equal to the length begins on the terminator,
  // so a `c` of 0 is found there, at the position of the length. An empty
  // string gives 0.
  ZEL::u8 FindFromEnd(char c, ZEL::u32* pos, ZEL::u32 start) const;

  // The last occurrence of `s` that begins at or before `start`; the match
  // itself may reach past `start` ("bc" on "abcabc" from 1 is found at 1).
  // A `start` above the length means the last character, so any larger
  // value searches the whole string. An empty `s` or an empty string gives 0.
  ZEL::u8 FindFromEnd(CZEL_String const& s, ZEL::u32* pos, ZEL::u8 matchCase, ZEL::u32 start) const;

  // ---------------------------------------------------------------------------
  // Extraction
  // ---------------------------------------------------------------------------

  // Replaces the items of `out` by the tags between the `separator`s, in
  // order. Empty tags at the start and between separators are kept, an empty
  // one after a final separator is not: "a,,b" gives "a", "", "b"; "," gives
  // one empty tag; "a,b," gives "a", "b"; an empty string gives none. A tag
  // may hold anything but the separator, zeros included.
  void ExtractTags(char separator, CZEL_StringList& out) const;

  // The same into a vector, created with exactly the number of tags, or
  // emptied if there is none.
  void ExtractTags(char separator, CZEL_StringVector& out) const;

  // Puts into `out` the text between the first `left` and the first `right`
  // after it, and returns 0: "[a[b]c]" gives "a[b", "x[]y" an empty text.
  // `left` and `right` may be the same character. Returns ZEL_ERR_BAD_FORMAT,
  // `out` left alone, if either is missing.
  ZEL::u32 ExtractEncapsulatedString(char left, char right, CZEL_String& out) const;

  // ---------------------------------------------------------------------------
  // Numbers as text
  // ---------------------------------------------------------------------------

  // `value` through the runtime formatter's conversion `format` (one of f, F,
  // g, G, e, E) with `precision` digits: FromNumber(3.14159, 'f', 2) is
  // "3.14", FromNumber(0.5, 'e', 3) is "5.000e-01". Any other letter gives an
  // empty string; a negative `precision` acts as if none were given.
  static CZEL_String FromNumber(double value, char format, int precision);

  // `value` in decimal, with a leading minus when negative.
  static CZEL_String FromNumber(ZEL::i64 value);

  // `value` in `radix`, digits above 9 as lower-case letters (radixes above
  // 36 go on past 'z' into the following character codes). With a non-zero
  // `group`, `separator` goes between every `group` digits counted from the
  // right, never in front: FromNumber(1234567, 10, 3, ',') is "1,234,567".
  // 0 gives "0". `radix` must be at least 2.
  static CZEL_String FromNumber(ZEL::u64 value, ZEL::u32 radix, ZEL::u32 group, char separator);

  // Becomes `FromNumber` of the same arguments.
  CZEL_String& SetFromNumber(double value, char format, int precision);
  CZEL_String& SetFromNumber(ZEL::i64 value);
  CZEL_String& SetFromNumber(ZEL::u64 value, ZEL::u32 radix, ZEL::u32 group, char separator);

  // Replaces the text by the printf-style output of `format` and its
  // arguments, sized exactly, of any length. If the formatter reports an
  // error the string is left unchanged. No argument may point into this
  // string's own text.
  CZEL_String& Format(char const* format, ...) ZEL_PRINTF_FORMAT(2, 3);

  // ---------------------------------------------------------------------------
  // Text as numbers
  // ---------------------------------------------------------------------------
  //
  // These read the text up to its first 0 and leave the string alone.
  // Leading white space is skipped and a sign is accepted (a minus wraps in
  // the unsigned forms); reading stops at the first character that can't
  // continue the number, so "12abc" reads 12. Text with no number reads 0,
  // and a number too large for the type reads as its largest value (for a
  // negative `ToSigned`, the smallest). Nothing is reported.

  // The text as a floating-point number: "1.5e3z" reads 1500.
  double ToDouble() const;

  // The text as a decimal signed number: "-12x" reads -12.
  ZEL::i64 ToSigned() const;

  // The text as an unsigned number in `radix` (2 to 36). Radix 16 accepts a
  // 0x or 0X prefix, and radix 0 takes the radix from the prefix (0x: 16,
  // 0: 8, else 10). Any other radix reads 0.
  ZEL::u64 ToUnsigned(ZEL::u32 radix) const;

  // The text as an unsigned number whose radix is named by a marker letter:
  // mode 1 takes it from the start ("H1F", "O17", or the prefix "0x"), mode 2
  // from the end ("1FH", "17O"). Any other mode, and an empty or all-blank
  // text, gives 0. Markers are the characters above 'G' (case-blind, bytes
  // from 128 up excluded); H means 16, O means 8, any other marker or none
  // means 10. Consequences that callers rely on:
  //   - In a run of markers the last one read decides: in mode 1 the one
  //     next to the number ("HO17" is 15), in mode 2 the first in the text
  //     ("12XH" is 12).
  //   - B is not a marker, so no text selects radix 2: "101B" in mode 2
  //     reads 101, "B101" in mode 1 reads 0.
  //   - A text of nothing but markers reads 0 ("XYZ", "H", "HHH").
  //   - Positions are found on a blank-trimmed copy but the number is cut
  //     from the text as it stands, so outer blanks put the two out of step:
  //     in mode 1 "  H1F" reads 0 while "  0x1F" reads 31; in mode 2 "1FH "
  //     reads 1, in radix 10.
  ZEL::u64 ToUnsignedAutoRadix(ZEL::u32 mode) const;

 protected:
  // Gives this string a buffer of `size` + 1 bytes with a terminator at
  // `size`, and sets the length to `size`; the other bytes are left for the
  // caller to fill. If `size` equals the length and isn't 0, does nothing at
  // all: the buffer and its text stay.
  void NewBuffer(ZEL::u32 size);

  // Makes the string empty with a fresh one-byte buffer, unless it is empty
  // already.
  void ClearBuffer();

  // Frees the buffer (the shared empty text of a moved-from string is never
  // freed) and leaves a null buffer of length 0, the one state in
  // which the buffer is null; the caller must give the string a buffer again
  // (or be destroying it).
  void DeleteBuffer();

  // Makes this string a copy of `src`; `src` may be this string.
  void DataCopy(CZEL_String const& src);

  // 1 if the bytes are equal; with `matchCase` 0, A to Z are first taken as
  // a to z on either side.
  ZEL::u8 IsCharsEqual(char const& a, char const& b, ZEL::u8 matchCase) const;

  // The buffer, `m_Length` + 1 bytes with a terminator at `m_Length`.
  char* m_Text;
  // The number of characters, without the terminator.
  ZEL::u32 m_Length;

 private:
  // A run of bytes that an edit takes into the new text.
  struct SPiece {
    char const* m_Text;
    ZEL::u32 m_Length;
  };

  // The parts of this text that the substring rules select, as pieces of the
  // buffer; the in-place and the copying forms share them.
  SPiece LeftPart(ZEL::u32 count) const;
  SPiece RightPart(ZEL::u32 count) const;
  SPiece MidPart(ZEL::u32 pos, ZEL::u32 count) const;

  // Replaces the text by the pieces `a`, `b`, `c` in a new exact buffer. The
  // pieces may point into the old text, which is freed only afterwards. A
  // piece with a null text reserves its room, left for the caller to fill.
  // When `a` is the head of the text, `c` is empty and the text doesn't
  // shrink, the buffer is resized instead and `b` copied behind the head.
  void Compose(SPiece a, SPiece b = SPiece{nullptr, 0}, SPiece c = SPiece{nullptr, 0});

  // Replaces `removed` characters at `pos` by `insert`; both must lie within
  // the text. Removing and inserting nothing keeps the buffer.
  void Splice(ZEL::u32 pos, ZEL::u32 removed, SPiece insert);

  // A new buffer of `length` + 1 bytes with a terminator at `length`.
  // Throws std::bad_alloc if there is no memory.
  static char* Allocate(ZEL::u32 length);

  // Takes over `buffer` of `length` + 1 bytes and frees the old one.
  void Adopt(char* buffer, ZEL::u32 length);

  // Resizes the buffer to `length` + 1 bytes, keeping the bytes both sizes
  // share, and terminates it. Throws std::bad_alloc, the text untouched, if
  // there is no memory.
  void Resize(ZEL::u32 length);

  // 1 if `text` points into this string's buffer, terminator included.
  bool IsOwnText(char const* text) const;

  // 1 if `s` occurs at `pos` under `matchCase`; a character of `s` that
  // would lie at or past the end of this text is a mismatch. The matcher of
  // both string searches.
  ZEL::u8 MatchesAt(CZEL_String const& s, ZEL::u32 pos, ZEL::u8 matchCase) const;

  // The common form of `ReplaceChars` (`removed` equal to the cut `count`)
  // and `ReplaceString`.
  CZEL_String& Replace(CZEL_String const& src, ZEL::u32 pos, ZEL::u32 removed, ZEL::u32 srcStart,
                       ZEL::u32 count);
};

// `c` followed by `s`.
ZEL_API CZEL_String operator+(char c, CZEL_String const& s);

// `text` followed by `s`; an empty `text` gives a copy of `s`.
ZEL_API CZEL_String operator+(char const* text, CZEL_String const& s);

// 1 or 0 by `CS_Compare(text, s.GetStringC())`, case-sensitive, as the
// members with the string on the left.
ZEL_API ZEL::u8 operator==(char const* text, CZEL_String const& s);
ZEL_API ZEL::u8 operator!=(char const* text, CZEL_String const& s);
ZEL_API ZEL::u8 operator<(char const* text, CZEL_String const& s);
ZEL_API ZEL::u8 operator<=(char const* text, CZEL_String const& s);
ZEL_API ZEL::u8 operator>(char const* text, CZEL_String const& s);
ZEL_API ZEL::u8 operator>=(char const* text, CZEL_String const& s);

// `a.Swap(b)`, found by argument-dependent lookup, so that `std::sort` and
// `using std::swap; swap(a, b)` exchange buffers instead of copying texts.
inline void swap(CZEL_String& a, CZEL_String& b) noexcept { a.Swap(b); }

#endif  // LZEL_CORE_TEXT_CZEL_STRING_H_
