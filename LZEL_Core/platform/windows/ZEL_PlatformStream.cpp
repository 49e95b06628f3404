// SPDX-License-Identifier: Apache-2.0
// The runtime library's streams on Windows: 64-bit seek and tell through
// _fseeki64 and _ftelli64, and the stream lock of _lock_file. The runtime
// doesn't show its read buffer, so the line reader takes byte by byte.

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <sys/stat.h>
#include <sys/types.h>

#include <cstdio>

namespace ZEL {
namespace Platform {

namespace {

// The status of the file under `stream`, or false.
bool StatusOf(std::FILE* stream, struct _stat64& status) {
  return _fstat64(_fileno(stream), &status) == 0;
}

}  // namespace

// A directory can't be a stream: it is refused as a path that can't be
// opened, whatever the runtime would make of it.
std::FILE* OpenStream(char const* path, char const* mode) {
  std::FILE* stream = std::fopen(path, mode);
  if (stream == nullptr) return nullptr;
  struct _stat64 status {};
  if (StatusOf(stream, status) && (status.st_mode & _S_IFMT) == _S_IFDIR) {
    std::fclose(stream);
    return nullptr;
  }
  return stream;
}

int SeekStream(std::FILE* stream, i64 offset, int whence) {
  return _fseeki64(stream, offset, whence);
}

u64 TellStream(std::FILE* stream) { return static_cast<u64>(_ftelli64(stream)); }

bool RecordedSize(std::FILE* stream, u64& size) {
  struct _stat64 status {};
  if (!StatusOf(stream, status) || (status.st_mode & _S_IFMT) != _S_IFREG) return false;
  size = static_cast<u64>(status.st_size);
  return true;
}

void LockStream(std::FILE* stream) { _lock_file(stream); }

void UnlockStream(std::FILE* stream) { _unlock_file(stream); }

int GetByteLocked(std::FILE* stream) { return _getc_nolock(stream); }

std::size_t ReadAheadCount(std::FILE* /*stream*/) { return 0; }

char const* ReadAheadBytes(std::FILE* /*stream*/) { return nullptr; }

void TakeReadAhead(std::FILE* /*stream*/, std::size_t /*count*/) {}

}  // namespace Platform
}  // namespace ZEL
