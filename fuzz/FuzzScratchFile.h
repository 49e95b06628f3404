// SPDX-License-Identifier: Apache-2.0
// A scratch file for the fuzz targets that go through the file system: one
// per process, made at the first use and removed at exit.

#ifndef LZEL_CORE_FUZZ_FUZZ_SCRATCH_FILE_H_
#define LZEL_CORE_FUZZ_FUZZ_SCRATCH_FILE_H_

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "FuzzSupport.h"

namespace zel_fuzz {

inline std::string const& ScratchPath() {
  static std::string const path = [] {
    std::string pattern = "/tmp/lzel_fuzz_XXXXXX";
    int const fd = mkstemp(pattern.data());
    Require(fd >= 0);
    close(fd);
    return pattern;
  }();
  // Registered once the path is made, so that it runs before the path goes.
  static int const removal = std::atexit([] { std::remove(ScratchPath().c_str()); });
  (void)removal;
  return path;
}

}  // namespace zel_fuzz

#endif  // LZEL_CORE_FUZZ_FUZZ_SCRATCH_FILE_H_
