// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/calendar/ZEL_CalendarFormat.h>

#include <algorithm>

namespace ZEL {

namespace {

// The padded digits that a variable field leaves to the fields after it are
// counted up to this many; no sensible format comes near it, and the bound
// keeps each field's look-ahead short.
constexpr u32 kMaxReserved = 64;

// The digits of the padded fields that follow at `next` in `format` with
// nothing between them, at most about kMaxReserved.
u32 ReservedDigits(CZEL_String const& format, u32 next, t_FormatFields fields) {
  char const* const text = format.GetStringC();
  u32 const length = format.GetLength();
  u32 reserved = 0;
  for (; next + 1 < length && text[next] == '%' && reserved < kMaxReserved; next += 2) {
    t_FormatField const* const field = fields.Find(text[next + 1]);
    if (field == nullptr || field->width == 0) break;
    reserved += field->width;
  }
  return reserved;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The reading of one text by one format.
class CFieldReader {
 public:
  CFieldReader(CZEL_String const& text, CZEL_String const& format, t_FormatFields fields,
               t_FormatValues& read)
      : m_Text(text.GetStringC()),
        m_Length(text.GetLength()),
        m_Format(format),
        m_Fields(fields),
        m_Read(read) {}

  bool Literal(char c) {
    if (m_Pos == m_Length || m_Text[m_Pos] != c) return false;
    ++m_Pos;
    return true;
  }

  bool Field(char code, u32 next) {
    t_FormatField const* const field = m_Fields.Find(code);
    if (field == nullptr) return Repeat();
    u32 const begin = m_Pos;
    bool const negative = field->isSigned != 0 && m_Pos < m_Length && m_Text[m_Pos] == '-';
    if (negative) ++m_Pos;
    u32 const reserved = field->width != 0 ? 0 : ReservedDigits(m_Format, next, m_Fields);
    u32 const limit = field->width != 0 ? field->width : field->maxDigits + reserved;
    u32 run = 0;
    while (run < limit && m_Pos + run < m_Length && IsDigit(m_Text[m_Pos + run])) ++run;
    u32 const take = field->width != 0
                         ? field->width
                         : std::min<u32>(run > reserved ? run - reserved : run, field->maxDigits);
    if (take == 0 || take > run) return false;
    i64 value = 0;
    for (u32 i = 0; i < take; ++i) value = value * 10 + (m_Text[m_Pos + i] - '0');
    m_Pos += take;
    m_Read.values[field->part] = negative ? -value : value;
    m_Read.named |= 1u << field->part;
    m_LastBegin = begin;
    m_LastLength = m_Pos - begin;
    return true;
  }

  bool AtEnd() const { return m_Pos == m_Length; }

 private:
  // The text of the last number field once more.
  bool Repeat() { return SameBytesAt(m_Text, m_Length, m_Pos, m_Text + m_LastBegin, m_LastLength); }

  char const* m_Text;
  u32 m_Length;
  CZEL_String const& m_Format;
  t_FormatFields m_Fields;
  t_FormatValues& m_Read;
  u32 m_Pos = 0;
  u32 m_LastBegin = 0;
  u32 m_LastLength = 0;
};

}  // namespace

t_FormatField const* t_FormatFields::Find(char code) const {
  for (u32 i = 0; i < count; ++i) {
    if (fields[i].code == code) return &fields[i];
  }
  return nullptr;
}

u8 ReadFormatFields(CZEL_String const& text, CZEL_String const& format, t_FormatFields fields,
                    t_FormatValues& read) {
  CFieldReader reader(text, format, fields, read);
  bool const matched = WalkFormat(
      format, [&reader](char c) { return reader.Literal(c); },
      [&reader](char code, u32 next) { return reader.Field(code, next); });
  return matched && reader.AtEnd() ? 1 : 0;
}

u32 NamedFormatParts(CZEL_String const& format, t_FormatFields fields) {
  u32 named = 0;
  WalkFormat(
      format, [](char) { return true; },
      [&named, fields](char code, u32) {
        t_FormatField const* const field = fields.Find(code);
        if (field != nullptr) named |= 1u << field->part;
        return true;
      });
  return named;
}

}  // namespace ZEL
