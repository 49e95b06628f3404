// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to the CZEL_IpAddress parser.
// Beside memory and undefined-behaviour faults, it checks:
//   - the printed address against a plain reading of the rules: the tags of
//     ExtractTags, each read by ToUnsigned(10) and cut to 8 or 16 bits, and
//     printed with "%d" or "%04X";
//   - that printing then parsing a valid address gives it back for IPv4,
//     and for IPv6 the address that the same rules read from the printed
//     hexadecimal groups;
//   - that copies and assignments compare equal to their source.

#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace {

using zel_fuzz::Require;
using zel_fuzz::Text;

// The printed form of the address that `text` should parse to, or "" if
// the tags don't come out at 4 or 8.
std::string Expected(CZEL_String const& text) {
  bool const v6 = Text(text).find(':') != std::string::npos;
  CZEL_StringVector tags;
  text.ExtractTags(v6 ? ':' : '.', tags);
  if (tags.GetLength() != (v6 ? 8u : 4u)) return "";
  std::string printed;
  for (ZEL::u32 i = 0; i < tags.GetLength(); ++i) {
    ZEL::u64 const number = tags[i].ToUnsigned(10);
    char digit[16];
    if (v6) {
      std::snprintf(digit, sizeof digit, "%s%04X", i != 0 ? ":" : "",
                    static_cast<unsigned>(number & 0xFFFF));
    } else {
      std::snprintf(digit, sizeof digit, "%s%d", i != 0 ? "." : "",
                    static_cast<int>(number & 0xFF));
    }
    printed += digit;
  }
  return printed;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size > 1u << 16) return 0;
  CZEL_String const text(reinterpret_cast<char const*>(data), static_cast<ZEL::u32>(size));
  CZEL_IpAddress address(text);
  CZEL_String const printed = address.ToString();
  Require(Text(printed) == Expected(text));
  Require((address == CZEL_IpAddress()) == (printed.GetLength() == 0));

  if (printed.GetLength() != 0) {
    CZEL_IpAddress const again(printed);
    Require(Text(again.ToString()) == Expected(printed));
    if (Text(printed).find(':') == std::string::npos) Require(again == address);
  }

  CZEL_IpAddress const copy(address);
  Require(copy == address);
  CZEL_IpAddress assigned(CZEL_String("1.2.3.4"));
  assigned = address;
  Require(assigned == address);
  CZEL_IpAddress const& same = address;
  address = same;
  Require(address == copy);
  return 0;
}
