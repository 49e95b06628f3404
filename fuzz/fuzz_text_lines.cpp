// SPDX-License-Identifier: Apache-2.0
// Reads arbitrary bytes as a text file, line by line, with both
// CZEL_File::ReadTextLine forms, and checks every line and result against a
// byte-at-a-time model of the reader: bytes 0 and 13 dropped, a line feed
// ending the line, the limit of the array form leaving the rest for the next
// call, and a failure at the end of the file.
//
// Input: byte 0 picks the array form's limit (0 to 63); the rest is the file.

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "FuzzScratchFile.h"
#include "FuzzSupport.h"

using zel_fuzz::Require;
using zel_fuzz::ScratchPath;

namespace {

// The model's next line from `pos`: the text, or false at a failure.
bool ModelLine(std::string const& file, std::size_t& pos, std::uint64_t limit, std::string& line) {
  line.clear();
  for (;;) {
    if (pos >= file.size() || line.size() >= limit) return !line.empty();
    char const ch = file[pos++];
    if (ch == 10) return true;
    if (ch != 0 && ch != 13) line += ch;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < 1) return 0;
  ZEL::u32 const limit = data[0] % 64;
  std::string const content(reinterpret_cast<char const*>(data) + 1, size - 1);
  std::FILE* out = std::fopen(ScratchPath().c_str(), "wb");
  Require(out != nullptr);
  std::fwrite(content.data(), 1, content.size(), out);
  std::fclose(out);

  CZEL_File file;
  Require(file.Open(ScratchPath().c_str(), CZEL_File::FILE_OPEN_READ) == 0);
  std::vector<char> buf(limit + 1);
  std::size_t pos = 0;
  std::string expected;
  for (;;) {
    bool const ok = ModelLine(content, pos, limit, expected);
    ZEL::u32 const result = file.ReadTextLine(buf.data(), limit);
    Require(result == (ok ? ZEL_ERR_NONE : ZEL_ERR_IO));
    if (!ok) break;
    Require(std::string(buf.data()) == expected);
    Require(file.GetPos() == pos);
  }
  Require(file.ToStart() == 0);
  pos = 0;
  CZEL_String line("old");
  std::string last = "old";
  for (;;) {
    bool const ok = ModelLine(content, pos, UINT64_MAX, expected);
    ZEL::u32 const result = file.ReadTextLine(line);
    Require(result == (ok ? ZEL_ERR_NONE : ZEL_ERR_READ_DENIED));
    if (!ok) break;
    Require(zel_fuzz::Text(line) == expected);
    last = expected;
  }
  Require(zel_fuzz::Text(line) == last);
  return 0;
}
