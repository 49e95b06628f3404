// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to CZEL_IpAddress::ParseStandard.
// Beside memory and undefined-behaviour faults, it checks:
//   - acceptance against the C library's inet_pton of both families: text
//     with a 0 byte is refused, other text is accepted exactly when one
//     family accepts it, and then with the same value;
//   - that a refusal leaves the address as it was;
//   - the model of the canonical form: what parses prints with
//     ToStandardString, and that text parses to the same address and
//     prints again unchanged.

#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <arpa/inet.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {

using zel_fuzz::Require;
using zel_fuzz::Text;

// The address that inet_pton reads from `text`, made through the old
// parser, which reads groups in decimal; an invalid one if neither family
// reads it.
CZEL_IpAddress ByInetPton(std::string const& text) {
  unsigned char bytes[16];
  bool const v4 = inet_pton(AF_INET, text.c_str(), bytes) == 1;
  if (!v4 && inet_pton(AF_INET6, text.c_str(), bytes) != 1) return CZEL_IpAddress();
  std::string decimal;
  for (int i = 0; i < (v4 ? 4 : 8); ++i) {
    unsigned const number = v4 ? bytes[i] : bytes[2 * i] << 8 | bytes[2 * i + 1];
    decimal += (i == 0 ? "" : v4 ? "." : ":") + std::to_string(number);
  }
  return CZEL_IpAddress(CZEL_String(decimal.c_str()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size > 1u << 12) return 0;
  std::string const bytes(reinterpret_cast<char const*>(data), size);
  CZEL_String const text(bytes.data(), static_cast<ZEL::u32>(size));
  CZEL_IpAddress const before(CZEL_String("9.8.7.6"));
  CZEL_IpAddress address(before);
  ZEL::u8 const parsed = address.ParseStandard(text);

  CZEL_IpAddress const expected =
      bytes.find('\0') == std::string::npos ? ByInetPton(bytes) : CZEL_IpAddress();
  Require(parsed == expected.IsValid());
  Require(address == (parsed != 0 ? expected : before));
  if (parsed == 0) return 0;

  CZEL_String const standard = address.ToStandardString();
  CZEL_IpAddress again;
  Require(again.ParseStandard(standard) == 1 && again == address);
  Require(Text(again.ToStandardString()) == Text(standard));
  Require(address.GetKind() == (Text(standard).find(':') != std::string::npos ? 1u : 0u));
  return 0;
}
