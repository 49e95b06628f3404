// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Platform.h
// -----------------------------------------------------------------------------
//
// The library's one door to the operating system, inside the library: the
// mutex, the local clock, the runtime library's streams, a path's status,
// removal and the full-path lookup. Each service has one small source per
// platform, in `posix/` and `windows/`; the build takes one folder, so the
// classes above stay free of platform branches. Not installed.

#ifndef LZEL_CORE_PLATFORM_ZEL_PLATFORM_H_
#define LZEL_CORE_PLATFORM_ZEL_PLATFORM_H_

#include <LZEL_Core/frame/ZEL_Types.h>

#include <cstddef>
#include <cstdio>
#include <string>

namespace ZEL {
namespace Platform {

// Mutex ----------------------------------------------------------------------

// The platform's recursive mutex, anonymous, between the threads of one
// process.
struct SMutex;

// What a wait for the mutex ended with.
enum t_LockResult : u32 {
  LOCK_HELD = 0,       // The calling thread holds the mutex.
  LOCK_ABANDONED = 1,  // Held, but its last holder ended without releasing it.
  LOCK_FAILED = 2      // Not held.
};

// A new mutex that no thread holds; null if the platform refuses.
SMutex* MakeMutex();

// Waits without limit until the calling thread holds `mutex`.
t_LockResult LockMutex(SMutex* mutex);

// Releases one level of the calling thread's hold; false if it holds none.
bool UnlockMutex(SMutex* mutex);

// Destroys `mutex`, which no object reaches any more. Where the platform
// needs the storage while another thread holds the mutex, it is kept.
void DestroyMutex(SMutex* mutex);

// Local clock ----------------------------------------------------------------

// The local wall-clock time, Gregorian, to the millisecond.
struct SClockReading {
  int year;
  int month;   // 1 to 12
  int day;     // 1 to 31
  int hour;    // 0 to 23
  int minute;  // 0 to 59
  int second;  // 0 to 60
  int millisecond;
};

// Reads the local clock into `now`; false if it can't be read.
bool ReadLocalClock(SClockReading& now);

// Streams --------------------------------------------------------------------

// Opens the runtime library's stream on `path` in binary `mode` ("w+b",
// "r+b", "wb", "ab", "rb"); null if it can't be opened or `path` names a
// directory.
std::FILE* OpenStream(char const* path, char const* mode);

// Moves `stream` by the signed 64-bit `offset` from SEEK_CUR, SEEK_SET or
// SEEK_END; the runtime's result, 0 on success.
int SeekStream(std::FILE* stream, i64 offset, int whence);

// The 64-bit position of `stream`.
u64 TellStream(std::FILE* stream);

// The size that the system records for the regular file under `stream`, in
// `size`; false for anything else.
bool RecordedSize(std::FILE* stream, u64& size);

// Takes the stream's lock for a run of the unlocked calls below.
void LockStream(std::FILE* stream);
void UnlockStream(std::FILE* stream);

// One byte of a locked stream, or EOF.
int GetByteLocked(std::FILE* stream);

// The bytes that a locked read stream holds read ahead, which a caller may
// scan and take as `GetByteLocked` would; none where the runtime doesn't
// show its buffer.
std::size_t ReadAheadCount(std::FILE* stream);
char const* ReadAheadBytes(std::FILE* stream);
void TakeReadAhead(std::FILE* stream, std::size_t count);

// Paths ----------------------------------------------------------------------

// Removes the file `path`; false if it can't (a directory is no file).
bool RemoveFile(char const* path);

// True when the system gives the status of `path`, a directory included.
bool HasStatus(char const* path);

// `path` made absolute against the current directory, in the platform's
// own rules; it need not exist.
std::string FullPath(char const* path);

// The separator behind which a full path's name begins.
extern char const kPathSeparator;

}  // namespace Platform
}  // namespace ZEL

#endif  // LZEL_CORE_PLATFORM_ZEL_PLATFORM_H_
