// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_File.h>

#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/platform/ZEL_Platform.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;
namespace Platform = ZEL::Platform;

namespace {

// The stream mode that the open flags select, or null for none.
char const* ModeOf(u32 flags) {
  bool const write = (flags & CZEL_File::FILE_OPEN_WRITE) != 0;
  bool const read = (flags & CZEL_File::FILE_OPEN_READ) != 0;
  bool const truncate = (flags & CZEL_File::FILE_OPEN_TRUNCATE) != 0;
  if (write && read) return truncate ? "w+b" : "r+b";
  if (write) return truncate ? "wb" : "ab";
  return read ? "rb" : nullptr;
}

u64 Tell(std::FILE* stream) { return Platform::TellStream(stream); }

int Seek(std::FILE* stream, u64 offset, int whence) {
  return Platform::SeekStream(stream, static_cast<ZEL::i64>(offset), whence);
}

bool IsDropped(int ch) { return ch == 0 || ch == 13; }

// The bytes of one text line of the open `file`: up to a line feed
// (consumed, not kept), up to the file's length, or up to `limit` kept
// characters, bytes 0 and 13 dropped. Runs of kept bytes go to
// `keep(bytes, n, count)`. Returns the number kept, or -1 when the line
// fails: at the length or the limit with nothing kept, or on a read that
// delivers nothing.
//
// A stream open for writing is asked for its length once and for its
// position before every byte. A stream read alone (`counted`) has the bytes
// it holds read ahead scanned as runs without asking for the length or the
// position: they lie before the end of a file that only grows. Both are
// asked for once the read-ahead is used up, the length once per line.
template <typename Keep>
std::int64_t ScanLine(CZEL_File const& file, std::FILE* stream, bool counted, u64 limit,
                      Keep keep) {
  u64 length = counted ? 0 : file.GetLength();
  bool lengthKnown = !counted;
  auto atEnd = [&] {
    if (!lengthKnown) length = file.GetLength();
    lengthKnown = true;
    return file.GetPos() >= length;
  };
  u64 count = 0;
  std::int64_t result = -1;
  Platform::LockStream(stream);
  for (;;) {
    std::size_t const ahead = counted ? Platform::ReadAheadCount(stream) : 0;
    if (count >= limit || (ahead == 0 && atEnd())) {
      if (count != 0) result = static_cast<std::int64_t>(count);
      break;
    }
    if (ahead > 0) {
      char const* bytes = Platform::ReadAheadBytes(stream);
      auto const* lf = static_cast<char const*>(std::memchr(bytes, 10, ahead));
      std::size_t const span = lf != nullptr ? static_cast<std::size_t>(lf - bytes) : ahead;
      std::size_t used = 0;
      while (used < span && count < limit) {
        // The run up to the next dropped byte, the limit or the line feed.
        char const* from = bytes + used;
        std::size_t run = static_cast<std::size_t>(std::min<u64>(span - used, limit - count));
        if (auto const* nul = static_cast<char const*>(std::memchr(from, 0, run))) {
          run = static_cast<std::size_t>(nul - from);
        }
        if (auto const* cr = static_cast<char const*>(std::memchr(from, 13, run))) {
          run = static_cast<std::size_t>(cr - from);
        }
        keep(from, run, count);
        count += run;
        used += run;
        if (used < span && count < limit) ++used;  // the dropped byte
      }
      bool const ended = lf != nullptr && used == span && count < limit;
      Platform::TakeReadAhead(stream, used + (ended ? 1 : 0));
      if (ended) {
        result = static_cast<std::int64_t>(count);
        break;
      }
      continue;
    }
    int const ch = Platform::GetByteLocked(stream);
    if (ch == EOF) break;
    if (ch == 10) {
      result = static_cast<std::int64_t>(count);
      break;
    }
    if (IsDropped(ch)) continue;
    char const kept = static_cast<char>(ch);
    keep(&kept, 1, count);
    ++count;
  }
  Platform::UnlockStream(stream);
  return result;
}

// The characters of a line being read: most lines fit the inline array, a
// longer one moves to the heap.
class LineText {
 public:
  void Append(char const* bytes, std::size_t n) {
    if (m_Long.empty() && m_Size + n <= sizeof m_Short) {
      std::memcpy(m_Short + m_Size, bytes, n);
    } else {
      if (m_Long.empty()) m_Long.assign(m_Short, m_Size);
      m_Long.append(bytes, n);
    }
    m_Size += n;
  }
  char const* Data() const { return m_Long.empty() ? m_Short : m_Long.data(); }
  std::size_t Size() const { return m_Size; }

 private:
  char m_Short[256];
  std::size_t m_Size = 0;
  std::string m_Long;
};

// The index behind the last separator of `path`, 0 if it has none.
u32 CutBehindLastSeparator(CZEL_String const& path) {
  char const* text = path.GetStringC();
  char const* last = std::strrchr(text, Platform::kPathSeparator);
  return last == nullptr ? 0 : static_cast<u32>(last - text) + 1;
}

}  // namespace

CZEL_File::CZEL_File() : m_Stream(nullptr), m_OpenFlags(0) {}

CZEL_File::CZEL_File(CZEL_File const& src) : CZEL_Object(), m_Stream(nullptr), m_OpenFlags(0) {
  DataCopy(src);
}

CZEL_File& CZEL_File::operator=(CZEL_File const& src) {
  DataCopy(src);
  return *this;
}

CZEL_File::~CZEL_File() { Close(); }

void CZEL_File::DataCopy(CZEL_File const& src) {
  m_Stream = src.m_Stream;
  m_OpenFlags = src.m_OpenFlags;
  m_Path = src.m_Path;
}

u32 CZEL_File::Open(CZEL_String const& path, u32 flags) {
  char const* mode = ModeOf(flags);
  if (mode == nullptr) return ZEL_ERR_OPEN_FAILED;
  std::FILE* stream = Platform::OpenStream(path.GetStringC(), mode);
  if (stream == nullptr) return ZEL_ERR_OPEN_FAILED;
  m_OpenFlags = flags;
  m_Stream = stream;
  ToStart();
  m_Path = path;
  return ZEL_ERR_NONE;
}

void CZEL_File::Close() {
  if (m_Stream != nullptr) {
    std::fflush(m_Stream);
    std::fclose(m_Stream);
    m_Stream = nullptr;
  }
  m_OpenFlags = 0;
}

u8 CZEL_File::IsOpen() const { return m_Stream != nullptr ? 1 : 0; }

u32 CZEL_File::GetOpenFlags() const { return m_OpenFlags; }

u32 CZEL_File::Read(void* data, u64 count) {
  if (m_Stream == nullptr) return ZEL_ERR_FILE_NOT_OPEN;
  u64 const got = std::fread(data, 1, static_cast<u32>(count), m_Stream);
  return got < count ? ZEL_ERR_IO : ZEL_ERR_NONE;
}

u32 CZEL_File::Write(void* data, u64 count, u8 flush) {
  if (m_Stream == nullptr) return ZEL_ERR_FILE_NOT_OPEN;
  u64 const put = std::fwrite(data, 1, static_cast<u32>(count), m_Stream);
  if (put != count) return ZEL_ERR_IO;
  if (flush != 0) Flush();
  return ZEL_ERR_NONE;
}

u32 CZEL_File::Flush() {
  if (m_Stream == nullptr) return ZEL_ERR_FILE_NOT_OPEN;
  return std::fflush(m_Stream) == EOF ? ZEL_ERR_FILE_NOT_OPEN : ZEL_ERR_NONE;
}

// The seek reports failure as -1, which is not above 0: a refused seek is a
// success here, as it always has been for callers of `To`.
u32 CZEL_File::To(u64 offset, u32 origin) {
  if (m_Stream == nullptr) return ZEL_ERR_FILE_NOT_OPEN;
  static int const kWhence[] = {SEEK_CUR, SEEK_SET, SEEK_END};
  if (origin > FILE_FROM_END) return ZEL_ERR_INVALID_ARGUMENT;
  return Seek(m_Stream, offset, kWhence[origin]) > 0 ? ZEL_ERR_IO : ZEL_ERR_NONE;
}

u32 CZEL_File::ToStart() { return To(0, FILE_FROM_START); }

u32 CZEL_File::ToEnd() { return To(0, FILE_FROM_END); }

u64 CZEL_File::GetPos() const { return m_Stream != nullptr ? Tell(m_Stream) : 0; }

// A stream opened for reading alone holds no pending bytes, so the size that
// the system records is where the end lies. A stream at its end-of-file mark
// is still moved, since the seek is what clears that mark for the next read.
bool CZEL_File::HasStableSize() const {
  return (m_OpenFlags & FILE_OPEN_WRITE) == 0 && std::feof(m_Stream) == 0;
}

u64 CZEL_File::GetLength() const {
  if (m_Stream == nullptr) return 0;
  u64 recorded = 0;
  if (HasStableSize() && Platform::RecordedSize(m_Stream, recorded)) return recorded;
  u64 const here = Tell(m_Stream);
  Seek(m_Stream, 0, SEEK_END);
  u64 const end = Tell(m_Stream);
  Seek(m_Stream, here, SEEK_SET);
  return end;
}

u8 CZEL_File::IsEOF() const { return GetPos() >= GetLength() ? 1 : 0; }

u32 CZEL_File::ReadTextLine(char* text, u32 maxChars) {
  if (m_Stream == nullptr) return ZEL_ERR_IO;
  std::int64_t const count = ScanLine(
      *this, m_Stream, HasStableSize(), maxChars,
      [text](char const* bytes, std::size_t n, u64 at) { std::memcpy(text + at, bytes, n); });
  if (count < 0) return ZEL_ERR_IO;
  text[count] = 0;
  return ZEL_ERR_NONE;
}

u32 CZEL_File::ReadTextLine(CZEL_String& text) {
  if (m_Stream == nullptr) return ZEL_ERR_READ_DENIED;
  LineText line;
  std::int64_t const count =
      ScanLine(*this, m_Stream, HasStableSize(), UINT64_MAX,
               [&line](char const* bytes, std::size_t n, u64) { line.Append(bytes, n); });
  auto const kept = static_cast<u32>(line.Size());
  if (count >= 0) {
    text.SetLength(kept, ' ');
  } else if (kept != 0) {
    // The line grows in steps of 100 characters, the first step taken on the
    // old text; what the failed read left is that text with the line on top.
    text.SetLength(100, ' ');
    text.SetLength((kept + 99) / 100 * 100, ' ');
  }
  if (kept != 0) std::memcpy(text.GetStringC(), line.Data(), kept);
  return count >= 0 ? ZEL_ERR_NONE : ZEL_ERR_READ_DENIED;
}

u32 CZEL_File::WriteText(char const* text) {
  u64 const length = std::strlen(text);
  if (length == 0) return ZEL_ERR_NONE;
  return Write(const_cast<char*>(text), length, 1);
}

u32 CZEL_File::WriteText(CZEL_String const& text) { return WriteText(text.GetStringC()); }

u32 CZEL_File::WriteTextLine(char const* text, u32 lineEnd) {
  u32 result = WriteText(text);
  if (result != ZEL_ERR_NONE) return result;
  static struct {
    u32 bit;
    char byte;
  } const kEnds[] = {{LINE_END_NUL, 0}, {LINE_END_CR, 13}, {LINE_END_LF, 10}};
  for (auto const& end : kEnds) {
    if ((lineEnd & end.bit) == 0) continue;
    char byte = end.byte;
    result = Write(&byte, 1, 1);
    if (result != ZEL_ERR_NONE) return result;
  }
  return ZEL_ERR_NONE;
}

u32 CZEL_File::WriteTextLine(CZEL_String const& text, u32 lineEnd) {
  return WriteTextLine(text.GetStringC(), lineEnd);
}

u32 CZEL_File::CopyFile(CZEL_String const& destination, CZEL_String const& source, u32 blockSize) {
  CZEL_File fsrc;
  u32 result = fsrc.Open(source, FILE_OPEN_READ);
  if (result != ZEL_ERR_NONE) return result;
  CZEL_File fdst;
  result = fdst.Open(destination, FILE_OPEN_WRITE | FILE_OPEN_TRUNCATE);
  if (result != ZEL_ERR_NONE) return result;
  CZEL_Uint8Vector ucvBuf(blockSize);
  for (u64 remaining = fsrc.GetLength(); remaining > 0;) {
    u64 const n = std::min<u64>(remaining, blockSize);
    if (fsrc.Read(ucvBuf.GetBuf(), n) != ZEL_ERR_NONE) return ZEL_ERR_IO;
    if (fdst.Write(ucvBuf.GetBuf(), n, 1) != ZEL_ERR_NONE) return ZEL_ERR_IO;
    remaining -= n;
  }
  return ZEL_ERR_NONE;
}

u32 CZEL_File::DeleteFile(CZEL_String const& path) {
  return Platform::RemoveFile(path.GetStringC()) ? ZEL_ERR_NONE : ZEL_ERR_IO;
}

u8 CZEL_File::IsPresent(CZEL_String const& path) {
  return Platform::HasStatus(path.GetStringC()) ? 1 : 0;
}

CZEL_String CZEL_File::GetFullPathFromPath(CZEL_String const& path) {
  std::string const full = Platform::FullPath(path.GetStringC());
  if (full.empty()) return CZEL_String();
  return CZEL_String(full.data(), static_cast<u32>(full.size()));
}

CZEL_String CZEL_File::GetNameFromPath(CZEL_String const& path) {
  CZEL_String const sFullPath = GetFullPathFromPath(path);
  return sFullPath.RightFromPos(CutBehindLastSeparator(sFullPath));
}

CZEL_String CZEL_File::GetPathFromPath(CZEL_String const& path) {
  CZEL_String const sFullPath = GetFullPathFromPath(path);
  return sFullPath.Left(CutBehindLastSeparator(sFullPath));
}

CZEL_String CZEL_File::GetFullPath() const { return GetFullPathFromPath(m_Path); }

CZEL_String CZEL_File::GetName() const { return GetNameFromPath(m_Path); }

CZEL_String CZEL_File::GetPath() const { return GetPathFromPath(m_Path); }
