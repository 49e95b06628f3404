// SPDX-License-Identifier: Apache-2.0
// Paths on Windows: the system's full-path lookup, with its own rules (`/`
// becomes `\`, a drive letter or the current drive in front, `.` and `..`
// folded); the path need not exist. Status and removal through the C
// runtime.

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <sys/stat.h>
#include <sys/types.h>
#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace ZEL {
namespace Platform {

char const kPathSeparator = '\\';

bool RemoveFile(char const* path) { return std::remove(path) == 0; }

bool HasStatus(char const* path) {
  struct _stat64 status {};
  return _stat64(path, &status) == 0;
}

// A work buffer of 4096 characters; the lookup's result is not tested, so a
// failed lookup or a longer path leaves the buffer's text as it is.
std::string FullPath(char const* path) {
  std::vector<char> buffer(4096, 0);
  GetFullPathNameA(path, static_cast<DWORD>(buffer.size()), buffer.data(), nullptr);
  buffer.back() = 0;
  return std::string(buffer.data());
}

}  // namespace Platform
}  // namespace ZEL
