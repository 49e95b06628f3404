// Helpers shared by the input and output tests: a private temporary
// directory per test, and whole-file reads and writes through plain stdio so
// that what a class left on disk is checked byte by byte.

#ifndef LZEL_TESTS_IO_IO_TEST_SUPPORT_H_
#define LZEL_TESTS_IO_IO_TEST_SUPPORT_H_

#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "../containers/ContainerTestSupport.h"

namespace zel_test {

using Bytes = std::vector<unsigned char>;

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

// The whole content of the file at `path`; empty if it can't be read.
inline std::string Slurp(std::string const& path) {
  std::string content;
  if (std::FILE* f = std::fopen(path.c_str(), "rb")) {
    char buf[4096];
    for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, f)) > 0;) content.append(buf, n);
    std::fclose(f);
  }
  return content;
}

inline Bytes SlurpBytes(std::string const& path) {
  std::string const s = Slurp(path);
  return Bytes(s.begin(), s.end());
}

// Creates or replaces the file at `path` with `content`.
inline void Spit(std::string const& path, std::string const& content) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  ASSERT_NE(f, nullptr) << path;
  std::fwrite(content.data(), 1, content.size(), f);
  std::fclose(f);
}

// A fixture with its own directory, made fresh and removed with what it holds.
class TempDirTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp");
    pattern += "/lzel_io_XXXXXX";
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    m_Dir = pattern;
  }
  void TearDown() override {
    std::string const command = "rm -rf '" + m_Dir + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
  }
  // The path of `name` inside the directory.
  std::string PathOf(std::string const& name) const { return m_Dir + "/" + name; }
  CZEL_String Z(std::string const& name) const { return CZEL_String(PathOf(name).c_str()); }

  std::string m_Dir;
};

}  // namespace zel_test

#endif  // LZEL_TESTS_IO_IO_TEST_SUPPORT_H_
