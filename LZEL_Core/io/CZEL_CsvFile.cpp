#include <LZEL_Core/io/CZEL_CsvFile.h>

#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

using ZEL::u32;
using ZEL::u64;

namespace {

// The largest run handed to one `CZEL_File::Read`. The buffer grows run by
// run, so that a length that the stream reports but can't deliver (that of a
// directory, say) costs no more than one run.
constexpr u64 kReadRun = u64{1} << 24;

// The file's bytes from its start: all `length` of them, or fewer if a read
// came up short.
std::vector<char> ReadBytes(CZEL_File& file, u64 length) {
  std::vector<char> bytes;
  for (u64 done = 0; done < length;) {
    u64 const count = std::min(kReadRun, length - done);
    bytes.resize(done + count);
    if (file.Read(bytes.data() + done, count) != ZEL_ERR_NONE) {
      bytes.resize(std::clamp(file.GetPos(), done, done + count));
      break;
    }
    done += count;
  }
  return bytes;
}

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

// Hands out the lines of a file's bytes as `CZEL_File::ReadTextLine` reads
// them one call after the other: a line ends at a line feed or at the end of
// the file, and bytes 13 and 0 are dropped. The bytes are all in memory, so
// that the file is read in large runs instead of byte by byte; the results
// are the same.
class CLineSplitter {
 public:
  enum t_Step : u32 { LINE, END, FAILED };

  // `available` of the file's `length` bytes could be read.
  CLineSplitter(char const* bytes, u64 available, u64 length)
      : m_Bytes(bytes), m_Available(available), m_Length(length), m_Pos(0) {}

  // The next line's text into `line`, and LINE. END once the whole file has
  // been read. FAILED, as for a failing `ReadTextLine`, when the bytes end
  // before the file does, or when the file ends after a line feed with
  // nothing but dropped bytes.
  t_Step Next(std::string& line) {
    if (m_Pos >= m_Length) return END;
    char const* const begin = m_Bytes + m_Pos;
    u64 const left = m_Available - m_Pos;
    auto const* feed =
        left == 0 ? nullptr : static_cast<char const*>(std::memchr(begin, '\n', left));
    if (feed == nullptr && m_Available < m_Length) return FAILED;
    u64 const count = feed != nullptr ? static_cast<u64>(feed - begin) : left;
    Keep(begin, count, line);
    if (feed == nullptr && line.empty()) return FAILED;
    m_Pos += count + (feed != nullptr ? 1 : 0);
    return LINE;
  }

 private:
  // The `count` bytes at `text` less every byte 13 and 0.
  static void Keep(char const* text, u64 count, std::string& line) {
    line.clear();
    for (char const* end = text + count; text != end; ++text) {
      if (*text != '\0' && *text != '\r') line += *text;
    }
  }

  char const* m_Bytes;
  u64 m_Available;
  u64 m_Length;
  u64 m_Pos;
};

// Calls `emit(text, length)` for each field of `line` split at `separator`,
// by the rule of `CZEL_String::ExtractTags`: empty fields at the start and
// between separators count, an empty one after a final separator does not.
template <typename Emit>
void ScanFields(std::string const& line, char separator, Emit&& emit) {
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
void FillRecord(std::string const& line, char separator, u32 count, CZEL_StringVector& record) {
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

// A first pass finds the lines, so that the array is made once with its
// exact length. The second counts each line's fields, as `ExtractTags` would
// split it, and only a line of the right count is split into its record;
// the records before a bad line are counted and then dropped.
CZEL_StringVector* CZEL_CsvFile::ReadFile(CZEL_String const& path, u32& recordCount) {
  if (Open(path, FILE_OPEN_READ) != ZEL_ERR_NONE) return nullptr;
  CZEL_File& file = *this;
  CCloseGuard const closing(file);
  ToStart();
  recordCount = 0;

  u64 const length = GetLength();
  std::vector<char> const bytes = ReadBytes(file, length);

  std::string sLine;
  u32 lines = 0;
  CLineSplitter counter(bytes.data(), bytes.size(), length);
  CLineSplitter::t_Step step = CLineSplitter::LINE;
  while ((step = counter.Next(sLine)) == CLineSplitter::LINE) ++lines;

  std::unique_ptr<CZEL_StringVector[]> records(new CZEL_StringVector[lines]);
  CLineSplitter splitter(bytes.data(), bytes.size(), length);
  for (u32 i = 0; i < lines; ++i) {
    splitter.Next(sLine);
    u32 fields = 0;
    ScanFields(sLine, m_Separator, [&fields](char const*, u32) { ++fields; });
    ++recordCount;
    if (fields != m_FieldCount) return nullptr;
    FillRecord(sLine, m_Separator, fields, records[i]);
  }
  return step == CLineSplitter::END ? records.release() : nullptr;
}
