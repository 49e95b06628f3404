// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to CZEL_String::ExtractTags, the
// first byte being the separator and the rest the text. Beside memory and
// undefined-behaviour faults, it checks that the list and the vector form
// give the same tags, that no tag holds the separator, and that the tags
// joined by the separator give back the text, less a final separator.

#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

using zel_fuzz::Require;
using zel_fuzz::Text;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0 || size > 1u << 16) return 0;
  char const separator = static_cast<char>(data[0]);
  std::string const input(reinterpret_cast<char const*>(data) + 1, size - 1);
  CZEL_String const text(input.data(), static_cast<ZEL::u32>(input.size()));

  // Both targets start with something in them, which must go.
  CZEL_StringList list(2, CZEL_String("old"));
  CZEL_StringVector vector(3, CZEL_String("old"));
  text.ExtractTags(separator, list);
  text.ExtractTags(separator, vector);
  Require(list.GetLength() == vector.GetLength());

  std::string joined;
  list.ToStart();
  for (ZEL::u32 i = 0; i < vector.GetLength(); ++i) {
    std::string const tag = Text(list.Next(1));
    Require(tag == Text(vector[i]));
    Require(tag.find(separator) == std::string::npos);
    if (i != 0) joined += separator;
    joined += tag;
  }
  if (!input.empty() && input.back() == separator) joined += separator;
  Require(joined == input);
  Require(Text(text) == input);  // the text is left alone
  return 0;
}
