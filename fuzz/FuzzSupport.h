// SPDX-License-Identifier: Apache-2.0
// Checks shared by the fuzz targets: a property that fails aborts, which
// libFuzzer reports as a crash with the input that caused it.

#ifndef LZEL_CORE_FUZZ_FUZZ_SUPPORT_H_
#define LZEL_CORE_FUZZ_FUZZ_SUPPORT_H_

#include <LZEL_Core/text/CZEL_String.h>

#include <cstdlib>
#include <string>

namespace zel_fuzz {

// Aborts unless `holds`.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

// All `GetLength()` bytes of `s`, zeros included.
inline std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

}  // namespace zel_fuzz

#endif  // LZEL_CORE_FUZZ_FUZZ_SUPPORT_H_
