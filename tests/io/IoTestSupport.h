// SPDX-License-Identifier: Apache-2.0
// Helpers shared by the input and output tests: a private temporary
// directory per test, and whole-file reads and writes through plain streams
// so that what a class left on disk is checked byte by byte.

#ifndef LZEL_TESTS_IO_IO_TEST_SUPPORT_H_
#define LZEL_TESTS_IO_IO_TEST_SUPPORT_H_

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/ZEL_Io.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "../containers/ContainerTestSupport.h"

namespace zel_test {

using F = CZEL_File;
using B = CZEL_Buffer;
using Lines = std::vector<std::string>;
using Codes = std::vector<ZEL::u32>;

// The code of the CZEL_Exception that `run` throws, or 0: for the failures of
// an object inside the one under test, whose address a test can't know.
template <typename Run>
ZEL::u32 CodeOf(Run run) {
  try {
    run();
  } catch (CZEL_Exception const& e) {
    return e.m_Code;
  }
  return 0;
}

inline std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }
inline CZEL_String Make(std::string const& s) { return CZEL_String(s.data(), ZEL::u32(s.size())); }

// A fixture with its own directory, made fresh and removed with what it holds.
class TempDirTest : public ::testing::Test {
 protected:
  void SetUp() override {
    namespace fs = std::filesystem;
    for (unsigned tries = 0; m_Dir.empty() && tries < 100; ++tries) {
      fs::path const dir = fs::temp_directory_path() / ("lzel_io_" + std::to_string(std::rand()));
      if (fs::create_directory(dir)) m_Dir = dir.string();
    }
    ASSERT_FALSE(m_Dir.empty());
  }
  // Windows keeps a file whose stream a test lost on purpose (an open over an
  // open one), and its directory with it.
  void TearDown() override {
    std::error_code kept;
    std::filesystem::remove_all(m_Dir, kept);
  }
  std::string PathOf(std::string const& name) const { return m_Dir + "/" + name; }
  CZEL_String Z(std::string const& name) const { return CZEL_String(PathOf(name).c_str()); }
  // The whole content of the file `name`; empty if it can't be read.
  std::string OnDisk(std::string const& name) const {
    std::ifstream in(PathOf(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  // Creates or replaces the file `name` with `content`.
  void Spit(std::string const& name, std::string const& content) const {
    std::ofstream(PathOf(name), std::ios::binary) << content;
  }

  std::string m_Dir;
};

}  // namespace zel_test

#endif  // LZEL_TESTS_IO_IO_TEST_SUPPORT_H_
