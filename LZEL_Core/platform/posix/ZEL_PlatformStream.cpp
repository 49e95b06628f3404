// SPDX-License-Identifier: Apache-2.0
// The runtime library's streams on POSIX: 64-bit seek and tell through
// fseeko and ftello, the stream lock of flockfile, and glibc's read buffer
// shown to the line reader.

// 64-bit offsets in the stream calls also where `long` is 32 bits.
#ifndef _FILE_OFFSET_BITS
#define _FILE_OFFSET_BITS 64
#endif

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <sys/stat.h>

#include <cstdio>

namespace ZEL {
namespace Platform {

// fopen gives a read stream on a directory, which no read can use: it is
// refused as a path that can't be opened.
std::FILE* OpenStream(char const* path, char const* mode) {
  std::FILE* stream = std::fopen(path, mode);
  if (stream == nullptr) return nullptr;
  struct stat status {};
  if (fstat(fileno(stream), &status) == 0 && S_ISDIR(status.st_mode)) {
    std::fclose(stream);
    return nullptr;
  }
  return stream;
}

int SeekStream(std::FILE* stream, i64 offset, int whence) {
  return fseeko(stream, static_cast<off_t>(offset), whence);
}

u64 TellStream(std::FILE* stream) { return static_cast<u64>(ftello(stream)); }

bool RecordedSize(std::FILE* stream, u64& size) {
  struct stat status {};
  if (fstat(fileno(stream), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  size = static_cast<u64>(status.st_size);
  return true;
}

void LockStream(std::FILE* stream) { flockfile(stream); }

void UnlockStream(std::FILE* stream) { funlockfile(stream); }

int GetByteLocked(std::FILE* stream) { return getc_unlocked(stream); }

#if defined(__GLIBC__)
std::size_t ReadAheadCount(std::FILE* stream) {
  return static_cast<std::size_t>(stream->_IO_read_end - stream->_IO_read_ptr);
}
char const* ReadAheadBytes(std::FILE* stream) { return stream->_IO_read_ptr; }
void TakeReadAhead(std::FILE* stream, std::size_t count) { stream->_IO_read_ptr += count; }
#else
std::size_t ReadAheadCount(std::FILE* /*stream*/) { return 0; }
char const* ReadAheadBytes(std::FILE* /*stream*/) { return nullptr; }
void TakeReadAhead(std::FILE* /*stream*/, std::size_t /*count*/) {}
#endif

}  // namespace Platform
}  // namespace ZEL
