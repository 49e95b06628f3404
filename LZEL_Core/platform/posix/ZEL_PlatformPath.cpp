// SPDX-License-Identifier: Apache-2.0
// Paths on POSIX: the full path is made lexically, without asking the file
// system, so that the path need not exist: absolute against the current
// directory, `.` and `..` folded, runs of `/` joined. A trailing `/` stays.

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <sys/stat.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace ZEL {
namespace Platform {

char const kPathSeparator = '/';

bool RemoveFile(char const* path) { return unlink(path) == 0; }

bool HasStatus(char const* path) {
  struct stat status {};
  return stat(path, &status) == 0;
}

std::string FullPath(char const* path) {
  std::string text(path);
  if (text.empty()) return text;
  if (text[0] != '/') {
    std::vector<char> cwd(4096);
    if (getcwd(cwd.data(), cwd.size()) == nullptr) return std::string();
    text = std::string(cwd.data()) + '/' + text;
  }
  std::vector<std::string> parts;
  for (std::size_t start = 0; start <= text.size();) {
    std::size_t end = text.find('/', start);
    if (end == std::string::npos) end = text.size();
    std::string part = text.substr(start, end - start);
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
    } else if (!part.empty() && part != ".") {
      parts.push_back(std::move(part));
    }
    start = end + 1;
  }
  std::string full;
  for (auto const& part : parts) full += '/' + part;
  if (full.empty() || text.back() == '/') full += '/';
  return full;
}

}  // namespace Platform
}  // namespace ZEL
