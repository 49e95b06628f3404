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

// The parts read by `ReadFormatFields`: at most eight, indexed by `part`.
constexpr u32 kMaxFormatParts = 8;

struct t_FormatValues {
  i64 values[kMaxFormatParts];  // The last number read for each part.
  u32 named;                    // Bit `part` set for each part the format names.
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
// checked: the caller makes the value and compares its `ToString` with the
// text, which also checks the signs, zeros and repeated fields.
u8 ReadFormatFields(CZEL_String const& text, CZEL_String const& format, t_FormatFields fields,
                    t_FormatValues& read);

// Bit `part` set for each part of `fields` that `format` names.
u32 NamedFormatParts(CZEL_String const& format, t_FormatFields fields);

// 1 if `a` and `b` hold the same bytes, zeros included.
u8 SameText(CZEL_String const& a, CZEL_String const& b);

}  // namespace ZEL

#endif  // LZEL_CORE_CALENDAR_ZEL_CALENDAR_FORMAT_H_
