// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary text to CZEL_DecimalNumber's text setter with each decimal
// point type, at a number of places taken from the input. Beside memory and
// undefined-behaviour faults, it checks the results that hold for every
// input:
//   - up to 4 places, where every fraction fits its 16 bits, both text forms
//     read back to the same value: the simple form while the integer part
//     fits its signed 32-bit print, the grouped form always once its
//     separators are removed;
//   - a comparison of two numbers at different places gives opposite
//     answers in the two orders, and returns;
//   - converting to more places and back, up to 4, keeps the value while
//     the integer part fits the larger scale.

#include <LZEL_Core/values/CZEL_DecimalNumber.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <string>

using zel_fuzz::Require;
using D = CZEL_DecimalNumber;

namespace {

// The point character that `type` reads.
char PointOf(D::t_DecimalPointType type) { return type == D::DecimalPoint_Comma ? ',' : '.'; }

void CheckRoundTrips(D const& number, ZEL::u16 places, D::t_DecimalPointType type) {
  char const point = PointOf(type);
  if (number.GetIntegral() <= 0x7FFFFFFF) {
    Require(D(places, number.ToString(point).GetStringC(), type) == number);
  }
  CZEL_String grouped = number.ToString(point, '_');
  grouped.RemoveChar('_');
  D const back(places, grouped.GetStringC(), type);
  Require(back.Compare(number) == 0 && back.GetSign() == number.GetSign());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < 1) return 0;
  // Places below 64, where 10 to the places is not 0; mostly the usual few.
  auto const places = static_cast<ZEL::u16>(data[0] & 0x80 ? data[0] % 64 : data[0] % 5);
  std::string const text(reinterpret_cast<char const*>(data + 1), size - 1);

  for (ZEL::u32 t = 0; t <= 3; ++t) {
    auto const type = static_cast<D::t_DecimalPointType>(t);
    D const number(places, text.c_str(), type);
    (void)number.ToDouble();
    if (places <= 4 && t <= 2) CheckRoundTrips(number, places, type);

    auto const other = static_cast<ZEL::u16>(places == 0 ? 3 : places - 1);
    D const coarse(other, text.c_str(), type);
    Require(number.Compare(coarse) == -coarse.Compare(number));
    Require(D::Compare(number, number) == 0);

    if (places < 4 && number.GetIntegral() < 100000000000000u) {
      D moved(number);
      moved.ChangeNumDigits(4).ChangeNumDigits(places);
      Require(moved == number);
    }
    (void)(number + coarse - coarse * 7).ToString(',', ' ');
  }
  return 0;
}
