// Helpers shared by the file format tests: a private temporary directory whose
// files the tests write byte by byte, and little-endian byte builders.

#ifndef LZEL_TESTS_IO_FORMAT_TEST_SUPPORT_H_
#define LZEL_TESTS_IO_FORMAT_TEST_SUPPORT_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "../containers/ContainerTestSupport.h"

namespace zel_test {

// A directory of its own under the system's temporary directory, removed with
// everything in it when the object goes.
class TempDir {
 public:
  TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zel_formats_XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "no temporary directory";
    m_Dir = pattern;
  }
  TempDir(TempDir const&) = delete;
  TempDir& operator=(TempDir const&) = delete;
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(m_Dir, ignored);
  }

  // The path of `name` in the directory, as the library takes it.
  CZEL_String Path(std::string const& name) const { return CZEL_String((m_Dir / name).c_str()); }

  // Writes exactly `bytes` to the file `name`.
  void Write(std::string const& name, std::string const& bytes) const {
    std::ofstream out(m_Dir / name, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }

  // All the bytes of the file `name`.
  std::string Read(std::string const& name) const {
    std::ifstream in(m_Dir / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }

 private:
  std::filesystem::path m_Dir;
};

// Appends `value` to `bytes`, least significant byte first.
inline void PutLittle(std::string& bytes, ZEL::u32 value, int width) {
  for (int i = 0; i < width; ++i) bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// All `GetLength()` bytes of `s`.
inline std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

}  // namespace zel_test

#endif  // LZEL_TESTS_IO_FORMAT_TEST_SUPPORT_H_
