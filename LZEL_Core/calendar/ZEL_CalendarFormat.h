// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_CalendarFormat.h
// -----------------------------------------------------------------------------
//
// The number fields of the date and time format strings, inside the library:
// one table per class says what each field character shows and how it is
// written, and both `ToString` (through `ExpandFormatFields`) and `Parse`
// (through `ReadFormatFields`) work from it. Applications use the classes'
// own members instead.

#ifndef LZEL_CORE_CALENDAR_ZEL_CALENDAR_FORMAT_H_
#define LZEL_CORE_CALENDAR_ZEL_CALENDAR_FORMAT_H_

#include <LZEL_Core/calendar/ZEL_CalendarSupport.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

namespace ZEL {

// One number field: the character after `%`, the part of the value it shows
// (an index the class chooses), the digits it pads to with zeros (0: none,
// and then it is written as short as it goes), the most digits it writes for
// a valid value, and whether a `-` may stand in front.
struct t_FormatField {
  char code;
  u8 part;
  u8 width;
  u8 maxDigits;
  u8 isSigned;
};

// A table of fields.
struct t_FormatFields {
  t_FormatField const* fields;
  u32 count;

  // The field of the character `code`, or nullptr if it names none.
  t_FormatField const* Find(char code) const;
};

// Walks `format` as `ExpandFormatFields` does: `literal(c)` for each
// character that stands as it is (the `%` of `%%` included), `field(code,
// next)` for any other character after `%`, `next` being the position after
// it. Stops with false as soon as either returns false; else true.
template <typename Literal, typename Field>
bool WalkFormat(CZEL_String const& format, Literal&& literal, Field&& field) {
  char const* const text = format.GetStringC();
  u32 const length = format.GetLength();
  for (u32 pos = 0; pos < length; ++pos) {
    if (text[pos] != '%') {
      if (!literal(text[pos])) return false;
    } else if (++pos == length) {
      break;
    } else if (text[pos] == '%') {
      if (!literal('%')) return false;
    } else if (!field(text[pos], pos + 1)) {
      return false;
    }
  }
  return true;
}

// Whether the `count` bytes of `part` stand in `text` (`length` bytes) at
// `pos`; if so, `pos` moves past them. A loop rather than memcmp: the parts
// are a few bytes long.
inline bool SameBytesAt(char const* text, u32 length, u32& pos, char const* part, u32 count) {
  if (length - pos < count) return false;
  for (u32 i = 0; i < count; ++i) {
    if (text[pos + i] != part[i]) return false;
  }
  pos += count;
  return true;
}

// 1 if `ExpandFormatFields(format, expand)` gives `text` exactly, else 0;
// the same walk, compared as it goes instead of written.
template <typename Expand>
u8 FormatWrites(CZEL_String const& format, Expand&& expand, CZEL_String const& text) {
  char const* const bytes = text.GetStringC();
  u32 const length = text.GetLength();
  u32 pos = 0;
  char last[kFieldTextSize];
  u32 lastLength = 0;
  bool const same = WalkFormat(
      format,
      [&](char c) {
        if (pos == length || bytes[pos] != c) return false;
        ++pos;
        return true;
      },
      [&](char code, u32 /*next*/) {
        int const fieldLength = expand(code, last);
        if (fieldLength >= 0) lastLength = static_cast<u32>(fieldLength);
        return SameBytesAt(bytes, length, pos, last, lastLength);
      });
  return same && pos == length ? 1 : 0;
}

// The parts read by `ReadFormatFields`: at most eight, indexed by `part`.
constexpr u32 kMaxFormatParts = 8;

struct t_FormatValues {
  i64 values[kMaxFormatParts];  // The last number read for each part.
  u32 named;                    // Bit `part` set for each part read.
};

// Reads `text` by `format` as `ToString` writes it: a character of the format
// other than `%` (and the `%` of `%%`) must stand as it is in the text; a
// number field reads an optional `-` where the field is signed, then digits:
// exactly `width` of them for a padded field, else as many as follow, at
// most `maxDigits`, leaving to the padded fields that follow it directly in
// the format the digits they need; any other character after `%` reads the
// text of the last number field once more (nothing before the first); a `%`
// at the end reads nothing. Fills `read` for each field of `fields` and
// returns 1 if the whole text is read so, else 0. The numbers are not
// checked: the caller makes the value and checks with `FormatWrites` that
// it writes the text, which also checks the signs, zeros and repeated
// fields.
u8 ReadFormatFields(CZEL_String const& text, CZEL_String const& format, t_FormatFields fields,
                    t_FormatValues& read);

// Bit `part` set for each part of `fields` that `format` names.
u32 NamedFormatParts(CZEL_String const& format, t_FormatFields fields);

}  // namespace ZEL

#endif  // LZEL_CORE_CALENDAR_ZEL_CALENDAR_FORMAT_H_
