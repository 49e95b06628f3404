// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/text/CZEL_String.h>

#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <new>
#include <utility>

using ZEL::i64;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

// The quiet clamp behind every "cut at the end" rule: `count`, but no more
// than `limit`.
u32 Cut(u32 count, u32 limit) { return std::min(count, limit); }

u32 TextLength(char const* text) { return static_cast<u32>(std::strlen(text)); }

// The text of every moved-from string: one terminator, shared, never written
// and never freed. A move leaves it behind so that it needs no allocation.
char const kEmptyText[1] = {0};

char* EmptyText() { return const_cast<char*>(kEmptyText); }

// Frees a buffer of the C allocator; the shared empty text stays.
void FreeText(char* text) {
  if (text != kEmptyText) std::free(text);
}

// One pass of the runtime formatter, guarded: the length of the output, or
// -1 if the formatter reported an error or anything escaped from it.
ZEL_PRINTF_FORMAT(3, 0)
int GuardedFormat(char* target, std::size_t size, char const* format, va_list args) {
  try {
    return std::vsnprintf(target, size, format, args);
  } catch (...) {
    return -1;
  }
}

// In a radix marker scan, every character up to 'G' as a signed char ends
// the run of markers: the digits, A to G, the blank and the control
// characters, the punctuation below 'H', and every byte from 128 up.
bool IsStopChar(char c) { return static_cast<signed char>(c) <= 'G'; }

// The radix that a marker names. The scan reads upper-cased text and B is a
// stop character, so only H and O ever select a radix other than 10 there.
u32 RadixOfMarker(char marker) {
  switch (marker) {
    case 'h':
    case 'H':
      return 16;
    case 'o':
    case 'O':
      return 8;
    case 'b':
    case 'B':
      return 2;
    default:
      return 10;
  }
}

// The byte as it takes part in an order: a signed char, and with `upper` set
// a to z taken as A to Z. Neither turns a byte into 0 or 0 into another byte,
// so the end of the text is the same before and after.
signed char OrderByte(char c, bool upper) {
  if (upper && c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  return static_cast<signed char>(c);
}

// The order of two NUL-terminated texts, byte by byte: the one that ends
// first sorts first, otherwise the first differing byte decides.
signed char OrderOfTexts(char const* a, char const* b, bool upper) {
  for (;; ++a, ++b) {
    signed char const x = OrderByte(*a, upper);
    signed char const y = OrderByte(*b, upper);
    if (x == 0 && y == 0) return 0;
    if (x == 0) return -1;
    if (y == 0) return 1;
    if (x != y) return x > y ? 1 : -1;
  }
}

// The one tag scanner behind both forms of `ExtractTags`: calls
// `emit(start, length)` for each tag of `text`, also for an empty tag that a
// separator ends, but not for an empty last tag.
template <typename Emit>
void ScanTags(char const* text, u32 length, char separator, Emit&& emit) {
  u32 start = 0;
  for (u32 pos = 0; pos < length; ++pos) {
    if (text[pos] != separator) continue;
    emit(text + start, pos - start);
    start = pos + 1;
  }
  if (start < length) emit(text + start, length - start);
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction
// -----------------------------------------------------------------------------

CZEL_String::CZEL_String() : m_Text(EmptyText()), m_Length(0) {}

CZEL_String::CZEL_String(CZEL_String const& src) : CZEL_Object(src), m_Text(nullptr), m_Length(0) {
  DataCopy(src);
}

// The terminator after `c` is written too, by `NewBuffer`, so that this string
// reads like every other one as NUL-terminated text.
CZEL_String::CZEL_String(char c) : m_Text(nullptr), m_Length(0) {
  NewBuffer(1);
  m_Text[0] = c;
}

CZEL_String::CZEL_String(CZEL_String&& src) noexcept : m_Text(src.m_Text), m_Length(src.m_Length) {
  src.m_Text = EmptyText();
  src.m_Length = 0;
}

CZEL_String::CZEL_String(u32 count, char c) : m_Text(nullptr), m_Length(0) { Build(count, c); }

CZEL_String::CZEL_String(char const* text) : CZEL_String(text, TextLength(text)) {}

CZEL_String::CZEL_String(char const* text, u32 count) : m_Text(nullptr), m_Length(0) {
  NewBuffer(count);
  if (count != 0) std::memcpy(m_Text, text, count);
}

CZEL_String::CZEL_String(std::string_view text)
    : CZEL_String(text.data(), static_cast<u32>(std::min<std::size_t>(
                                   text.size(), std::numeric_limits<u32>::max()))) {}

CZEL_String::~CZEL_String() { DeleteBuffer(); }

// -----------------------------------------------------------------------------
// Assignment
// -----------------------------------------------------------------------------

CZEL_String& CZEL_String::operator=(CZEL_String const& src) {
  DataCopy(src);
  return *this;
}

// An equal non-zero length takes the bytes into the kept buffer, as the copy
// does; this covers a move onto itself too. Otherwise the source's buffer is
// taken over, and with it the old one goes, through a local that frees it.
CZEL_String& CZEL_String::operator=(CZEL_String&& src) noexcept {
  if (&src == this) return *this;
  FreeText(m_Text);
  m_Text = src.m_Text;
  m_Length = src.m_Length;
  src.m_Text = EmptyText();
  src.m_Length = 0;
  return *this;
}

void CZEL_String::Swap(CZEL_String& other) noexcept {
  std::swap(m_Text, other.m_Text);
  std::swap(m_Length, other.m_Length);
}

CZEL_String& CZEL_String::operator=(char c) {
  NewBuffer(1);
  m_Text[0] = c;
  return *this;
}

// The text is copied into a string of its own before this buffer is touched,
// so it may point into this string.
CZEL_String& CZEL_String::operator=(char const* text) { return *this = CZEL_String(text); }

// -----------------------------------------------------------------------------
// Concatenation
// -----------------------------------------------------------------------------

CZEL_String& CZEL_String::operator+=(CZEL_String const& s) {
  Splice(m_Length, 0, SPiece{s.m_Text, s.m_Length});
  return *this;
}

CZEL_String& CZEL_String::operator+=(char const* text) {
  Splice(m_Length, 0, SPiece{text, TextLength(text)});
  return *this;
}

// The commonest growth of all goes straight to the resize.
CZEL_String& CZEL_String::operator+=(char c) {
  Resize(m_Length + 1);
  m_Text[m_Length - 1] = c;
  return *this;
}

CZEL_String CZEL_String::operator+(CZEL_String const& s) const {
  CZEL_String result(*this);
  result += s;
  return result;
}

CZEL_String CZEL_String::operator+(char c) const {
  CZEL_String result(*this);
  result += c;
  return result;
}

CZEL_String CZEL_String::operator+(char const* text) const {
  CZEL_String result(*this);
  result += text;
  return result;
}

CZEL_String operator+(char c, CZEL_String const& s) {
  CZEL_String result(c);
  result += s;
  return result;
}

CZEL_String operator+(char const* text, CZEL_String const& s) {
  CZEL_String result(text);
  result += s;
  return result;
}

// -----------------------------------------------------------------------------
// Reading
// -----------------------------------------------------------------------------

u32 CZEL_String::GetLength() const { return m_Length; }

char* CZEL_String::GetStringC() const { return m_Text; }

char CZEL_String::GetChar(u32 pos) const { return pos < m_Length ? m_Text[pos] : 0; }

void CZEL_String::ToStringC(char* dest) const {
  std::memcpy(dest, m_Text, m_Length);
  dest[m_Length] = 0;
}

char* CZEL_String::begin() { return m_Text; }
char* CZEL_String::end() { return m_Text + m_Length; }
char const* CZEL_String::begin() const { return m_Text; }
char const* CZEL_String::end() const { return m_Text + m_Length; }

std::string_view CZEL_String::View() const { return std::string_view(m_Text, m_Length); }

// -----------------------------------------------------------------------------
// Substrings
// -----------------------------------------------------------------------------

CZEL_String CZEL_String::Left(u32 count) const {
  SPiece part = LeftPart(count);
  return CZEL_String(part.m_Text, part.m_Length);
}

CZEL_String CZEL_String::Right(u32 count) const {
  SPiece part = RightPart(count);
  return CZEL_String(part.m_Text, part.m_Length);
}

CZEL_String CZEL_String::Mid(u32 pos, u32 count) const {
  SPiece part = MidPart(pos, count);
  return CZEL_String(part.m_Text, part.m_Length);
}

// Everything from `pos` on is `Mid` with a count that can't fall short.
CZEL_String CZEL_String::RightFromPos(u32 pos) const { return Mid(pos, m_Length); }

// -----------------------------------------------------------------------------
// In-place substrings
// -----------------------------------------------------------------------------

CZEL_String& CZEL_String::ResizeLeft(u32 count) {
  if (count <= m_Length) Compose(LeftPart(count));
  return *this;
}

CZEL_String& CZEL_String::ResizeRight(u32 count) {
  if (count <= m_Length) Compose(RightPart(count));
  return *this;
}

CZEL_String& CZEL_String::ResizeMid(u32 pos, u32 count) {
  Compose(MidPart(pos, count));
  return *this;
}

CZEL_String& CZEL_String::ResizeRightFromPos(u32 pos) { return ResizeMid(pos, m_Length); }

// -----------------------------------------------------------------------------
// Editing
// -----------------------------------------------------------------------------

CZEL_String& CZEL_String::Insert(char c, u32 pos) {
  if (pos == m_Length) return *this += c;
  if (pos < m_Length) Splice(pos, 0, SPiece{&c, 1});
  return *this;
}

// The run is checked against `count` once that is cut to the length of
// `src`, not against the length itself: a `srcStart` at or past the cut
// count inserts nothing even where `src` has characters there.
CZEL_String& CZEL_String::Insert(CZEL_String const& src, u32 pos, u32 srcStart, u32 count) {
  count = Cut(count, src.m_Length);
  if (srcStart >= count || pos > m_Length) return *this;
  Splice(pos, 0, src.MidPart(srcStart, count));
  return *this;
}

// The survivors are counted first, so that they go straight into a buffer of
// their exact size.
CZEL_String& CZEL_String::RemoveChar(char c) {
  u32 kept = static_cast<u32>(m_Length - std::count(m_Text, m_Text + m_Length, c));
  char* buffer = Allocate(kept);
  std::remove_copy(m_Text, m_Text + m_Length, buffer, c);
  Adopt(buffer, kept);
  return *this;
}

CZEL_String& CZEL_String::RemoveChars(u32 pos, u32 count) {
  if (pos < m_Length) Splice(pos, MidPart(pos, count).m_Length, SPiece{nullptr, 0});
  return *this;
}

CZEL_String& CZEL_String::ReplaceChar(char from, char to) {
  std::replace(m_Text, m_Text + m_Length, from, to);
  return *this;
}

// The run taken out is as long as the one put in would be if `src` had all
// of it: `count` cut to the whole length of `src`.
CZEL_String& CZEL_String::ReplaceChars(CZEL_String const& src, u32 pos, u32 srcStart, u32 count) {
  u32 removed = Cut(count, src.m_Length);
  return Replace(src, pos, removed, srcStart, removed);
}

CZEL_String& CZEL_String::ReplaceString(CZEL_String const& src, u32 pos, u32 oldCount, u32 srcStart,
                                        u32 count) {
  return Replace(src, pos, oldCount, srcStart, count);
}

// The kept tail is the last (length - pos - removed) characters, that
// difference wrapping in 32 bits and read as signed: a removal that runs
// past the end leaves no tail, and a `pos` past the end keeps the whole text
// as the head, so the new run is appended.
CZEL_String& CZEL_String::Replace(CZEL_String const& src, u32 pos, u32 removed, u32 srcStart,
                                  u32 count) {
  count = Cut(count, src.m_Length);
  auto rest = static_cast<std::int32_t>(m_Length - pos - removed);
  SPiece tail = rest > 0 ? RightPart(static_cast<u32>(rest)) : SPiece{nullptr, 0};
  Compose(LeftPart(pos), src.MidPart(srcStart, count), tail);
  return *this;
}

CZEL_String& CZEL_String::Build(u32 count, char c) {
  NewBuffer(count);
  std::memset(m_Text, c, count);
  return *this;
}

void CZEL_String::SetChar(u32 pos, char c) {
  if (pos < m_Length) m_Text[pos] = c;
}

CZEL_String& CZEL_String::SetLength(u32 count, char fill) {
  u32 old = m_Length;
  if (count < old) {
    Compose(LeftPart(count));
  } else if (count > old) {
    Compose(SPiece{m_Text, old}, SPiece{nullptr, count - old});
    std::memset(m_Text + old, fill, count - old);
  }
  return *this;
}

// Upper and lower case ASCII letters differ in bit 5 alone.
CZEL_String& CZEL_String::SetCase(u32 mode) {
  if (mode > 1) return *this;
  char const from = mode == 0 ? 'A' : 'a';
  for (char* c = m_Text; c != m_Text + m_Length; ++c) {
    if (*c >= from && *c <= from + ('Z' - 'A')) *c = static_cast<char>(*c ^ 0x20);
  }
  return *this;
}

// The leading run is measured first, then the trailing run of what is left,
// so a string of nothing but `c` is all leading run and ends up empty.
CZEL_String& CZEL_String::Trim(char c, u32 sides) {
  u32 first = 0;
  u32 end = m_Length;
  if (sides & 1) {
    while (first < end && m_Text[first] == c) ++first;
  }
  if (sides & 2) {
    while (end > first && m_Text[end - 1] == c) --end;
  }
  if (first != 0 || end != m_Length) Compose(SPiece{m_Text + first, end - first});
  return *this;
}

// The centred start is (width - length) / 2 in signed 32 bits, so a text
// longer than the field starts at 0 and loses its tail.
CZEL_String& CZEL_String::SetFormatted(u32 width, t_Align align, char fill) {
  CZEL_String field(width, fill);
  u32 shown = Cut(width, m_Length);
  std::int32_t centre = static_cast<std::int32_t>(width - m_Length) / 2;
  switch (align) {
    case ALIGN_LEFT:
      std::memcpy(field.m_Text, m_Text, shown);
      break;
    case ALIGN_RIGHT:
      std::memcpy(field.m_Text + width - shown, RightPart(shown).m_Text, shown);
      break;
    case ALIGN_CENTER:
      std::memcpy(field.m_Text + (centre >= 1 ? centre : 0), m_Text, shown);
      break;
    default:
      break;
  }
  // The field is exact already: take its buffer and let it free ours.
  Swap(field);
  return *this;
}

// -----------------------------------------------------------------------------
// NUL-terminated text
// -----------------------------------------------------------------------------

u32 CZEL_String::CS_GetLength(char const* text) { return TextLength(text); }

char* CZEL_String::CS_Copy(char* dest, char const* src) { return std::strcpy(dest, src); }

// `OrderOfTexts` without case folding, with the common run skipped first:
// sorting calls this more than anything else.
signed char CZEL_String::CS_Compare(char const* a, char const* b) {
  while (*a == *b && *a != 0) ++a, ++b;
  return OrderOfTexts(a, b, false);
}

// -----------------------------------------------------------------------------
// Comparison
// -----------------------------------------------------------------------------

signed char CZEL_String::CompareMatchingCase(CZEL_String const& other) const {
  return CS_Compare(m_Text, other.m_Text);
}

signed char CZEL_String::CompareMatchingCase(CZEL_String const& a, CZEL_String const& b) {
  return a.CompareMatchingCase(b);
}

// The order of upper-cased copies of both texts, taken without making the
// copies: each byte is upper-cased as it is compared.
signed char CZEL_String::CompareNoMatchingCase(CZEL_String const& other) const {
  return OrderOfTexts(m_Text, other.m_Text, true);
}

signed char CZEL_String::CompareNoMatchingCase(CZEL_String const& a, CZEL_String const& b) {
  return a.CompareNoMatchingCase(b);
}

u8 CZEL_String::operator==(CZEL_String const& other) const { return *this == other.m_Text; }
u8 CZEL_String::operator!=(CZEL_String const& other) const { return *this != other.m_Text; }
u8 CZEL_String::operator<(CZEL_String const& other) const { return *this < other.m_Text; }
u8 CZEL_String::operator<=(CZEL_String const& other) const { return *this <= other.m_Text; }
u8 CZEL_String::operator>(CZEL_String const& other) const { return *this > other.m_Text; }
u8 CZEL_String::operator>=(CZEL_String const& other) const { return *this >= other.m_Text; }

u8 CZEL_String::operator==(char const* text) const { return CS_Compare(m_Text, text) == 0; }
u8 CZEL_String::operator!=(char const* text) const { return CS_Compare(m_Text, text) != 0; }
u8 CZEL_String::operator<(char const* text) const { return CS_Compare(m_Text, text) < 0; }
u8 CZEL_String::operator<=(char const* text) const { return CS_Compare(m_Text, text) < 1; }
u8 CZEL_String::operator>(char const* text) const { return CS_Compare(m_Text, text) > 0; }
u8 CZEL_String::operator>=(char const* text) const { return CS_Compare(m_Text, text) >= 0; }

u8 operator==(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) == 0;
}

u8 operator!=(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) != 0;
}

u8 operator<(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) < 0;
}

u8 operator<=(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) < 1;
}

u8 operator>(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) > 0;
}

u8 operator>=(char const* text, CZEL_String const& s) {
  return CZEL_String::CS_Compare(text, s.GetStringC()) >= 0;
}

// Case-blind, A to Z on either side become a to z (32 added); every other
// byte stays as it is.
u8 CZEL_String::IsCharsEqual(char const& a, char const& b, u8 matchCase) const {
  if (matchCase) return a == b;
  auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return lower(a) == lower(b);
}

// -----------------------------------------------------------------------------
// Search
// -----------------------------------------------------------------------------

u8 CZEL_String::FindFromBegin(char c, u32* pos, u32 start) const {
  for (u32 i = start; i < m_Length; ++i) {
    if (m_Text[i] == c) {
      *pos = i;
      return 1;
    }
  }
  return 0;
}

// A match must lie wholly within the text, so the scan ends at the last
// position where `s` still fits.
u8 CZEL_String::FindFromBegin(CZEL_String const& s, u32* pos, u8 matchCase, u32 start) const {
  if (s.m_Length == 0 || s.m_Length > m_Length) return 0;
  u32 const last = m_Length - s.m_Length;
  for (u32 i = start; i <= last; ++i) {
    if (MatchesAt(s, i, matchCase)) {
      *pos = i;
      return 1;
    }
  }
  return 0;
}

// The scan may begin on the terminator, at the position of the length, and
// so finds a `c` of 0 there.
u8 CZEL_String::FindFromEnd(char c, u32* pos, u32 start) const {
  if (m_Length == 0) return 0;
  i64 const first = start > m_Length ? m_Length - 1 : start;
  for (i64 i = first; i >= 0; --i) {
    if (m_Text[i] == c) {
      *pos = static_cast<u32>(i);
      return 1;
    }
  }
  return 0;
}

// Positions where `s` would run past the end can't match, so the scan starts
// no later than the last position where it fits.
u8 CZEL_String::FindFromEnd(CZEL_String const& s, u32* pos, u8 matchCase, u32 start) const {
  if (s.m_Length == 0 || m_Length == 0) return 0;
  i64 first = start > m_Length ? m_Length - 1 : start;
  first = std::min<i64>(first, static_cast<i64>(m_Length) - s.m_Length);
  for (i64 i = first; i >= 0; --i) {
    if (MatchesAt(s, static_cast<u32>(i), matchCase)) {
      *pos = static_cast<u32>(i);
      return 1;
    }
  }
  return 0;
}

u8 CZEL_String::MatchesAt(CZEL_String const& s, u32 pos, u8 matchCase) const {
  if (static_cast<u64>(pos) + s.m_Length > m_Length) return 0;
  for (u32 j = 0; j < s.m_Length; ++j) {
    if (!IsCharsEqual(m_Text[pos + j], s.m_Text[j], matchCase)) return 0;
  }
  return 1;
}

// -----------------------------------------------------------------------------
// Extraction
// -----------------------------------------------------------------------------

void CZEL_String::ExtractTags(char separator, CZEL_StringList& out) const {
  out.DeleteAll();
  ScanTags(m_Text, m_Length, separator,
           [&out](char const* tag, u32 length) { out += CZEL_String(tag, length); });
}

// A first pass counts the tags, so that the vector is created once with its
// exact length; the second assigns each tag to its place.
void CZEL_String::ExtractTags(char separator, CZEL_StringVector& out) const {
  u32 count = 0;
  ScanTags(m_Text, m_Length, separator, [&count](char const*, u32) { ++count; });
  if (count == 0) {
    out.DeleteAll();
    return;
  }
  out.Create(count);
  CZEL_String* item = out.GetBuf();
  ScanTags(m_Text, m_Length, separator,
           [&item](char const* tag, u32 length) { *item++ = CZEL_String(tag, length); });
}

// `right` is looked for from the place after `left`; a `left` in the last
// place leaves nothing to search, which counts as a missing `right`.
u32 CZEL_String::ExtractEncapsulatedString(char left, char right, CZEL_String& out) const {
  u32 uiLeft = 0;
  u32 uiRight = 0;
  if (!FindFromBegin(left, &uiLeft, 0)) return ZEL_ERR_BAD_FORMAT;
  if (!FindFromBegin(CZEL_String(right), &uiRight, 1, uiLeft + 1)) return ZEL_ERR_BAD_FORMAT;
  out = Mid(uiLeft + 1, uiRight - uiLeft - 1);
  return ZEL_ERR_NONE;
}

// -----------------------------------------------------------------------------
// Numbers as text
// -----------------------------------------------------------------------------

// The precision goes in through '*', so that every format stays a literal
// the compiler can check; the formatter reads "%.*f" with 3 as "%.3f".
CZEL_String CZEL_String::FromNumber(double value, char format, int precision) {
  CZEL_String text;
  switch (format) {
    case 'f':
      return text.Format("%.*f", precision, value);
    case 'F':
      return text.Format("%.*F", precision, value);
    case 'g':
      return text.Format("%.*g", precision, value);
    case 'G':
      return text.Format("%.*G", precision, value);
    case 'e':
      return text.Format("%.*e", precision, value);
    case 'E':
      return text.Format("%.*E", precision, value);
    default:
      return text;
  }
}

CZEL_String CZEL_String::FromNumber(i64 value) {
  CZEL_String text;
  return text.Format("%lld", static_cast<long long>(value));
}

// The digits come out backwards, least significant first, with a separator
// after every `group` of them unless the number is complete; the result is
// that run reversed. The loop always makes one digit, so 0 gives "0".
CZEL_String CZEL_String::FromNumber(u64 value, u32 radix, u32 group, char separator) {
  char digits[128];  // 64 binary digits and 63 separators at the most
  u32 count = 0;
  u32 inGroup = 0;
  for (;;) {
    auto digit = static_cast<u8>(value % radix);
    digits[count++] = static_cast<char>(digit <= 9 ? '0' + digit : 'a' + digit - 10);
    value /= radix;
    ++inGroup;
    if (value == 0) break;
    if (inGroup == group) {
      inGroup = 0;
      digits[count++] = separator;
    }
  }
  std::reverse(digits, digits + count);
  return CZEL_String(digits, count);
}

CZEL_String& CZEL_String::SetFromNumber(double value, char format, int precision) {
  return *this = FromNumber(value, format, precision);
}

CZEL_String& CZEL_String::SetFromNumber(i64 value) { return *this = FromNumber(value); }

CZEL_String& CZEL_String::SetFromNumber(u64 value, u32 radix, u32 group, char separator) {
  return *this = FromNumber(value, radix, group, separator);
}

// Two passes over the same arguments: the first measures the output, the
// second writes it into a buffer of exactly that size. A failed measure
// leaves the string as it was.
CZEL_String& CZEL_String::Format(char const* format, ...) {
  va_list args;
  va_start(args, format);
  va_list measure;
  va_copy(measure, args);
  int length = GuardedFormat(nullptr, 0, format, measure);
  va_end(measure);
  if (length >= 0) {
    NewBuffer(static_cast<u32>(length));
    if (length > 0) GuardedFormat(m_Text, static_cast<std::size_t>(length) + 1, format, args);
  }
  va_end(args);
  return *this;
}

// -----------------------------------------------------------------------------
// Text as numbers
// -----------------------------------------------------------------------------

double CZEL_String::ToDouble() const { return std::strtod(m_Text, nullptr); }

i64 CZEL_String::ToSigned() const { return std::strtoll(m_Text, nullptr, 10); }

u64 CZEL_String::ToUnsigned(u32 radix) const {
  return std::strtoull(m_Text, nullptr, static_cast<int>(radix));
}

// The marker is looked for in a trimmed, upper-cased copy, but the number is
// cut from this text as it stands, at the copy's positions.
u64 CZEL_String::ToUnsignedAutoRadix(u32 mode) const {
  if (mode != 1 && mode != 2) return 0;
  CZEL_String s(*this);
  s.Trim(' ', 3).SetCase(1);
  if (s.m_Length == 0) return 0;
  char marker = '?';
  if (mode == 1) {
    if (s.m_Length >= 2 && s.m_Text[0] == '0' && s.m_Text[1] == 'X')
      return Right(m_Length - 2).ToUnsigned(16);
    u32 index = 0;
    while (index < s.m_Length && !IsStopChar(s.m_Text[index])) marker = s.m_Text[index++];
    if (index == s.m_Length) return 0;
    return Right(m_Length - index).ToUnsigned(RadixOfMarker(marker));
  }
  // Mode 2 starts from this string's own last position; on the shorter
  // trimmed copy `GetChar` reads 0 there, a stop character.
  i64 index = static_cast<i64>(m_Length) - 1;
  while (index >= 0 && !IsStopChar(s.GetChar(static_cast<u32>(index)))) marker = s.m_Text[index--];
  if (index < 0) return 0;
  return Left(static_cast<u32>(index + 1)).ToUnsigned(RadixOfMarker(marker));
}

// -----------------------------------------------------------------------------
// Buffer helpers
// -----------------------------------------------------------------------------

// The new buffer is allocated before the old one is freed, so a failed
// allocation leaves the string as it was.
void CZEL_String::NewBuffer(u32 size) {
  if (size == m_Length && size != 0) return;
  Adopt(Allocate(size), size);
}

void CZEL_String::ClearBuffer() {
  if (m_Length != 0) Adopt(Allocate(0), 0);
}

void CZEL_String::DeleteBuffer() {
  if (m_Text == nullptr) return;
  FreeText(m_Text);
  m_Text = nullptr;
  m_Length = 0;
}

// With `src` this string, `NewBuffer` keeps the buffer and the copy moves
// the text onto itself.
void CZEL_String::DataCopy(CZEL_String const& src) {
  NewBuffer(src.m_Length);
  if (m_Length != 0) std::memmove(m_Text, src.m_Text, m_Length + 1);
}

char* CZEL_String::Allocate(u32 length) {
  auto* buffer = static_cast<char*>(std::malloc(static_cast<std::size_t>(length) + 1));
  if (buffer == nullptr) throw std::bad_alloc();
  buffer[length] = 0;
  return buffer;
}

void CZEL_String::Adopt(char* buffer, u32 length) {
  FreeText(m_Text);
  m_Text = buffer;
  m_Length = length;
}

// `realloc` keeps the old buffer when it fails. The shared empty text isn't
// the allocator's, so it is replaced, not resized.
void CZEL_String::Resize(u32 length) {
  std::size_t const size = static_cast<std::size_t>(length) + 1;
  void* buffer = m_Text == kEmptyText ? std::malloc(size) : std::realloc(m_Text, size);
  if (buffer == nullptr) throw std::bad_alloc();
  m_Text = static_cast<char*>(buffer);
  m_Length = length;
  m_Text[length] = 0;
}

bool CZEL_String::IsOwnText(char const* text) const {
  return std::less_equal<char const*>()(m_Text, text) &&
         std::less_equal<char const*>()(text, m_Text + m_Length);
}

CZEL_String::SPiece CZEL_String::LeftPart(u32 count) const {
  return SPiece{m_Text, Cut(count, m_Length)};
}

CZEL_String::SPiece CZEL_String::RightPart(u32 count) const {
  u32 length = Cut(count, m_Length);
  return SPiece{m_Text + m_Length - length, length};
}

CZEL_String::SPiece CZEL_String::MidPart(u32 pos, u32 count) const {
  if (pos >= m_Length) return SPiece{m_Text, 0};
  return SPiece{m_Text + pos, Cut(count, m_Length - pos)};
}

// A growing text that keeps its head grows its buffer in place where the
// allocator can; a `b` from this text is found again at its offset, since
// growing keeps every old byte.
//
// g++ 12 at -O3 follows an empty string's shared one-byte text, or a wrapped
// sum of piece lengths, into the copies below and warns of a copy past its
// end, which the pieces, parts of strings that exist, rule out.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Warray-bounds"
#pragma GCC diagnostic ignored "-Wstringop-overflow"
#endif
void CZEL_String::Compose(SPiece a, SPiece b, SPiece c) {
  u32 length = a.m_Length + b.m_Length + c.m_Length;
  if (a.m_Text == m_Text && c.m_Length == 0 && length >= m_Length) {
    bool const own = b.m_Text != nullptr && IsOwnText(b.m_Text);
    std::size_t const offset = own ? static_cast<std::size_t>(b.m_Text - m_Text) : 0;
    Resize(length);
    char const* from = own ? m_Text + offset : b.m_Text;
    if (from != nullptr && b.m_Length != 0) std::memmove(m_Text + a.m_Length, from, b.m_Length);
    return;
  }
  char* buffer = Allocate(length);
  char* at = buffer;
  for (SPiece const& piece : {a, b, c}) {
    if (piece.m_Text != nullptr && piece.m_Length != 0)
      std::memcpy(at, piece.m_Text, piece.m_Length);
    at += piece.m_Length;
  }
  Adopt(buffer, length);
}
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

void CZEL_String::Splice(u32 pos, u32 removed, SPiece insert) {
  if (removed == 0 && insert.m_Length == 0) return;
  Compose(SPiece{m_Text, pos}, insert, SPiece{m_Text + pos + removed, m_Length - pos - removed});
}
