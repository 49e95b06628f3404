// SPDX-License-Identifier: Apache-2.0
// A file of the fuzz input's bytes, for the targets whose readers take a path:
// made under a name of its own (so that parallel fuzzing processes don't
// share it) and removed when the object goes.

#ifndef LZEL_CORE_FUZZ_FUZZ_TEMP_FILE_H_
#define LZEL_CORE_FUZZ_FUZZ_TEMP_FILE_H_

#include <LZEL_Core/text/CZEL_String.h>

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "FuzzSupport.h"

namespace zel_fuzz {

class TempFile {
 public:
  TempFile(std::uint8_t const* data, std::size_t size) {
    char const* dir = std::getenv("TMPDIR");
    m_Path = std::string(dir != nullptr ? dir : "/tmp") + "/zel_fuzz_XXXXXX";
    int const fd = mkstemp(m_Path.data());
    Require(fd >= 0);
    Require(size == 0 || write(fd, data, size) == static_cast<ssize_t>(size));
    close(fd);
  }
  TempFile(TempFile const&) = delete;
  TempFile& operator=(TempFile const&) = delete;
  ~TempFile() { unlink(m_Path.c_str()); }

  CZEL_String Path() const { return CZEL_String(m_Path.c_str()); }

 private:
  std::string m_Path;
};

}  // namespace zel_fuzz

#endif  // LZEL_CORE_FUZZ_FUZZ_TEMP_FILE_H_
