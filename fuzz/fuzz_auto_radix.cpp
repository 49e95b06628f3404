// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to the text-to-number conversions of
// CZEL_String: ToUnsignedAutoRadix in both marker modes and an unknown one,
// ToUnsigned in a radix taken from the input, ToSigned and ToDouble. Beside
// memory and undefined-behaviour faults, it checks the results that hold for
// every input.

#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using zel_fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size > 1u << 16) return 0;
  CZEL_String const text(reinterpret_cast<char const*>(data), static_cast<ZEL::u32>(size));

  ZEL::u64 const start = text.ToUnsignedAutoRadix(1);
  ZEL::u64 const end = text.ToUnsignedAutoRadix(2);
  Require(text.ToUnsignedAutoRadix(0) == 0);
  Require(text.ToUnsignedAutoRadix(3) == 0);

  // A digit at the marker's end of the text means no marker: radix 10 on the
  // whole text.
  ZEL::u64 const decimal = text.ToUnsigned(10);
  if (size > 0 && data[0] >= '1' && data[0] <= '9') Require(start == decimal);
  if (size > 0 && data[size - 1] >= '0' && data[size - 1] <= '9') Require(end == decimal);

  // Trimming blanks never turns text into no text: an all-blank input reads 0.
  CZEL_String trimmed(text);
  trimmed.Trim(' ', 3);
  if (trimmed.GetLength() == 0) Require(start == 0 && end == 0);

  ZEL::u32 const radix = size > 0 ? data[0] % 40 : 10;
  (void)text.ToUnsigned(radix);
  (void)text.ToSigned();
  (void)text.ToDouble();

  // The conversions read the text and leave it alone.
  Require(text.GetLength() == size);
  return 0;
}
