// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to
// CZEL_String::ExtractEncapsulatedString: the first two bytes are the left
// and the right delimiter, the rest is the text. Beside memory and
// undefined-behaviour faults, it checks the result against a plain search:
// the text between the first left delimiter and the first right one after
// it, or ZEL_ERR_BAD_FORMAT with the output left alone.

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using zel_fuzz::Require;
using zel_fuzz::Text;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < 2 || size > 1u << 16) return 0;
  char const left = static_cast<char>(data[0]);
  char const right = static_cast<char>(data[1]);
  std::string const input(reinterpret_cast<char const*>(data) + 2, size - 2);
  CZEL_String const text(input.data(), static_cast<ZEL::u32>(input.size()));

  CZEL_String out("untouched");
  ZEL::u32 const code = text.ExtractEncapsulatedString(left, right, out);

  std::size_t const open = input.find(left);
  std::size_t const close = open == std::string::npos ? open : input.find(right, open + 1);
  if (close == std::string::npos) {
    Require(code == ZEL_ERR_BAD_FORMAT);
    Require(Text(out) == "untouched");
  } else {
    Require(code == ZEL_ERR_NONE);
    Require(Text(out) == input.substr(open + 1, close - open - 1));
  }

  // The same out of the string's own delimiters, each search on its own.
  ZEL::u32 pos = 0;
  Require(text.FindFromBegin(left, &pos, 0) == (open != std::string::npos ? 1 : 0));
  if (open != std::string::npos) Require(pos == open);
  Require(Text(text) == input);
  return 0;
}
