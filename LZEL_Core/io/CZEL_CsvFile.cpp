// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_CsvFile.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

using ZEL::u32;
using ZEL::u64;

namespace {

// Closes a file on every way out of a scope.
class CCloseGuard {
 public:
  explicit CCloseGuard(CZEL_File& file) : m_File(file) {}
  CCloseGuard(CCloseGuard const&) = delete;
  CCloseGuard& operator=(CCloseGuard const&) = delete;
  ~CCloseGuard() { m_File.Close(); }

 private:
  CZEL_File& m_File;
};

// The largest run handed to one `CZEL_File::Read`: the reader holds one run
// of the file at a time, whatever the file's length.
constexpr u64 kReadRun = u64{1} << 16;

// Hands out the lines of a file as `CZEL_File::ReadTextLine` reads them one
// call after the other: a line ends at a line feed or at the end of the file,
// and bytes 13 and 0 are dropped. The file is read run by run instead of
// byte by byte; the results are the same.
class CLineReader {
 public:
  enum t_Step : u32 { LINE, END, FAILED };

  // Reads `file`, at its start, of `length` bytes.
  CLineReader(CZEL_File& file, u64 length)
      : m_File(file), m_Length(length), m_Run(std::min(kReadRun, length)) {}

  // The next line's text into `line`, and LINE. END once the whole file has
  // been read. FAILED, as for a failing `ReadTextLine`, when the file's bytes
  // can't be read up to its length before the line ends, or when the file
  // ends after a line feed with nothing but dropped bytes.
  t_Step Next(std::string& line) {
    if (m_Pos >= m_Length) return END;
    line.clear();
    while (m_At != m_End || Fill()) {
      char const* const begin = m_Run.data() + m_At;
      u64 const left = m_End - m_At;
      auto const* feed = static_cast<char const*>(std::memchr(begin, '\n', left));
      u64 const count = feed != nullptr ? static_cast<u64>(feed - begin) : left;
      Keep(begin, count, line);
      u64 const used = count + (feed != nullptr ? 1 : 0);
      m_At += used;
      m_Pos += used;
      if (feed != nullptr) return LINE;
    }
    return m_Short || line.empty() ? FAILED : LINE;
  }

 private:
  // The next run of the file into `m_Run`; false if no byte came. A read that
  // comes up short keeps the bytes that it delivered, and is the last.
  bool Fill() {
    if (m_Short || m_Read >= m_Length) return false;
    u64 const count = std::min(kReadRun, m_Length - m_Read);
    u64 got = count;
    if (m_File.Read(m_Run.data(), count) != ZEL_ERR_NONE) {
      m_Short = true;
      got = std::clamp(m_File.GetPos(), m_Read, m_Read + count) - m_Read;
    }
    m_Read += got;
    m_At = 0;
    m_End = got;
    return got != 0;
  }

  // Adds the `count` bytes at `text` to `line`, less every byte 13 and 0.
  static void Keep(char const* text, u64 count, std::string& line) {
    for (char const* end = text + count; text != end; ++text) {
      if (*text != '\0' && *text != '\r') line += *text;
    }
  }

  CZEL_File& m_File;
  u64 m_Length;
  std::vector<char> m_Run;
  // The bytes of `m_Run` used up and delivered.
  u64 m_At = 0;
  u64 m_End = 0;
  // The bytes read from the file, and those handed out in lines.
  u64 m_Read = 0;
  u64 m_Pos = 0;
  // A read came up short: the file holds no more bytes than those read.
  bool m_Short = false;
};

// Calls `emit(text, length)` for each field of `line` split at `separator`,
// by the rule of `CZEL_String::ExtractTags`: empty fields at the start and
// between separators count, an empty one after a final separator does not.
template <typename Emit>
void ScanFields(std::string_view line, char separator, Emit&& emit) {
  u32 const length = static_cast<u32>(line.size());
  u32 start = 0;
  for (u32 pos = 0; pos < length; ++pos) {
    if (line[pos] != separator) continue;
    emit(line.data() + start, pos - start);
    start = pos + 1;
  }
  if (start < length) emit(line.data() + start, length - start);
}

// Fills the `count` fields of `record`, created here, from `line`. Each field
// string gets its exact buffer once and the text is copied into it, so that
// a field costs one allocation beside the vector's own.
void FillRecord(std::string_view line, char separator, u32 count, CZEL_StringVector& record) {
  record.Create(count);
  CZEL_String* field = record.GetBuf();
  ScanFields(line, separator, [&field](char const* text, u32 length) {
    field->SetLength(length, ' ');
    if (length != 0) std::memcpy(field->GetStringC(), text, length);
    ++field;
  });
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction
// -----------------------------------------------------------------------------

CZEL_CsvFile::CZEL_CsvFile(u32 fieldCount, char separator, u32 lineEnd)
    : m_FieldCount(fieldCount), m_Separator(separator), m_LineEnd(lineEnd) {
  if (fieldCount == 0) throw CZEL_Exception(ZEL_ERR_INVALID_ARGUMENT, nullptr, 0);
}

// The base's copy constructor shares the stream; the settings follow it.
CZEL_CsvFile::CZEL_CsvFile(CZEL_CsvFile const& src)
    : CZEL_File(src),
      m_FieldCount(src.m_FieldCount),
      m_Separator(src.m_Separator),
      m_LineEnd(src.m_LineEnd) {}

CZEL_CsvFile& CZEL_CsvFile::operator=(CZEL_CsvFile const& src) {
  DataCopy(src);
  return *this;
}

CZEL_CsvFile::~CZEL_CsvFile() { Close(); }

void CZEL_CsvFile::DataCopy(CZEL_CsvFile const& src) {
  CZEL_File::DataCopy(src);
  m_FieldCount = src.m_FieldCount;
  m_Separator = src.m_Separator;
  m_LineEnd = src.m_LineEnd;
}

u32 CZEL_CsvFile::Open(CZEL_String const& path, u32 flags) { return CZEL_File::Open(path, flags); }

void CZEL_CsvFile::Close() { CZEL_File::Close(); }

// -----------------------------------------------------------------------------
// Writing
// -----------------------------------------------------------------------------

CZEL_String CZEL_CsvFile::FormatField(CZEL_String const& field) {
  u32 at = 0;
  if (!field.FindFromBegin(m_Separator, &at, 0)) return field;
  return CZEL_String('"') + field + '"';
}

void CZEL_CsvFile::AppendField(CZEL_String& line, CZEL_String const& field, u32 i) {
  line += FormatField(field);
  if (i < m_FieldCount - 1) line += m_Separator;
}

u32 CZEL_CsvFile::WriteRecord(CZEL_StringVector& fields) {
  if (fields.GetLength() != m_FieldCount) return ZEL_ERR_INVALID_ARGUMENT;
  CZEL_String sLine;
  for (u32 i = 0; i < m_FieldCount; ++i) AppendField(sLine, fields[i], i);
  return WriteTextLine(sLine, m_LineEnd);
}

u32 CZEL_CsvFile::WriteRecord(CZEL_StringList& fields) {
  if (fields.GetLength() != m_FieldCount) return ZEL_ERR_INVALID_ARGUMENT;
  CZEL_String sLine;
  fields.ToStart();
  for (u32 i = 0; i < m_FieldCount; ++i) AppendField(sLine, fields >> 1, i);
  return WriteTextLine(sLine, m_LineEnd);
}

// -----------------------------------------------------------------------------
// Reading
// -----------------------------------------------------------------------------

// Line by line, each line's fields are counted as `ExtractTags` would split
// it, and a line of another count stops the reading at once. The lines of
// good records wait back to back in one string, so that the array is made
// once with its exact length and each record's fields with theirs.
CZEL_StringVector* CZEL_CsvFile::ReadFile(CZEL_String const& path, u32& recordCount) {
  if (Open(path, FILE_OPEN_READ) != ZEL_ERR_NONE) return nullptr;
  CZEL_File& file = *this;
  CCloseGuard const closing(file);
  ToStart();
  recordCount = 0;

  CLineReader reader(file, GetLength());
  std::string sLine;
  std::string kept;
  std::vector<std::size_t> ends;
  CLineReader::t_Step step = CLineReader::LINE;
  while ((step = reader.Next(sLine)) == CLineReader::LINE) {
    u32 fields = 0;
    ScanFields(sLine, m_Separator, [&fields](char const*, u32) { ++fields; });
    ++recordCount;
    if (fields != m_FieldCount) return nullptr;
    kept += sLine;
    ends.push_back(kept.size());
  }
  if (step == CLineReader::FAILED) return nullptr;

  std::unique_ptr<CZEL_StringVector[]> records(new CZEL_StringVector[ends.size()]);
  std::string_view const all(kept);
  for (std::size_t i = 0, start = 0; i < ends.size(); start = ends[i++]) {
    FillRecord(all.substr(start, ends[i] - start), m_Separator, m_FieldCount, records[i]);
  }
  return records.release();
}
