// SPDX-License-Identifier: Apache-2.0
// IP addresses: the separator-counting parser against the printed form (one
// row per rule; the fuzz target checks the rest against a model), the
// digits, and comparisons across kinds. The standard forms: the canonical
// text on the examples of RFC 5952 (the comparison with the C library's
// inet_pton and inet_ntop is among the POSIX platform's tests).

#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <string>

namespace {

CZEL_IpAddress Parse(char const* text) { return CZEL_IpAddress(CZEL_String(text)); }

std::string Text(CZEL_String const& text) {
  return std::string(text.GetStringC(), text.GetLength());
}

std::string Print(CZEL_IpAddress const& address) { return Text(address.ToString()); }

TEST(IpAddressTest, ParsesAndPrints) {
  struct Row {
    char const *text, *printed;  // printed "": invalid
  } const rows[] = {
      {"192.168.0.1", "192.168.0.1"},
      {"256.1.1.1", "0.1.1.1"},  // cut to the low 8 bits
      {"300.1.1.1", "44.1.1.1"},
      {"-1.0.0.0", "255.0.0.0"},
      {"1.2.3", ""},
      {"1.2.3.4.5", ""},
      {"1.2.3.4.", "1.2.3.4"},  // a final empty tag doesn't count
      {"1.2.3.4..", ""},
      {"1..3.4", "1.0.3.4"},
      {"....", "0.0.0.0"},
      {"...", ""},
      {"", ""},
      {" 1.2x.3.4", "1.2.3.4"},
      {"a.b.c.d", "0.0.0.0"},
      {"1.2.3.4:80", ""},  // a ':' selects IPv6
      {"::1", ""},
      {"1:2:3:4:5:6:7", ""},
      {"1:2:3:4:5:6:7:8:9", ""},
      {"1:2:3:4:5:6:7:8:", "0001:0002:0003:0004:0005:0006:0007:0008"},
      {"10:20:30:40:50:60:70:80", "000A:0014:001E:0028:0032:003C:0046:0050"},
      {":2:3:4:5:6:7:ff", "0000:0002:0003:0004:0005:0006:0007:0000"},
      {"70000:0:0:0:0:0:0:65535", "1170:0000:0000:0000:0000:0000:0000:FFFF"},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(Print(Parse(row.text)), row.printed);
    EXPECT_EQ(Parse(row.text) == CZEL_IpAddress(), *row.printed == 0 ? 1 : 0);
  }
  // The printed IPv6 form reads its hexadecimal groups in radix 10.
  EXPECT_EQ(Print(CZEL_IpAddress(Parse("10:20:0:0:0:0:0:9").ToString())),
            "0000:000E:0000:0000:0000:0000:0000:0009");
}

TEST(IpAddressTest, DigitsAndComparisons) {
  CZEL_IpAddress v4 = Parse("192.168.0.1"), v6 = Parse("1000:0:0:0:0:0:0:7"), invalid;
  EXPECT_EQ(v6.GetDigit(0) * 1000 + v6.GetDigit(7) * 10 + v6.GetDigit(8), 232070);
  EXPECT_EQ(v4.GetDigit(0) * 10 + v4.GetDigit(4), 1920);
  v4.SetDigit(4, 1);
  v4.SetDigit(3, 9);
  invalid.SetDigit(0, 1);
  EXPECT_EQ(Print(v4) + Print(invalid), "192.168.0.9");
  EXPECT_EQ(Parse("1.2.3.4") == Parse("1:2:3:4:0:0:0:0"), 0);
  EXPECT_EQ(Parse("0.0.0.0") == CZEL_IpAddress(), 0);
  v4 = CZEL_String("x");  // a failed parse invalidates
  EXPECT_EQ(v4 == invalid, 1);
}

TEST(IpAddressTest, StandardForms) {
  struct Row {
    char const *text, *standard;  // standard "": refused
  } const rows[] = {
      {"2001:0db8::0001", "2001:db8::1"},         // leading zeros dropped
      {"2001:db8:0:0:0:0:2:1", "2001:db8::2:1"},  // "::" as long as it goes
      {"2001:db8::0:1", "2001:db8::1"},
      {"2001:db8::1:1:1:1:1", "2001:db8:0:1:1:1:1:1"},  // a lone zero group stays
      {"2001:0:0:1:0:0:0:1", "2001:0:0:1::1"},          // the longest run, the first of equals
      {"2001:db8:0:0:1:0:0:1", "2001:db8::1:0:0:1"},
      {"2001:DB8:0:0:0:0:0:AAAA", "2001:db8::aaaa"},  // lower case
      {"0:0:0:0:0:0:0:0", "::"},
      {"1::", "1::"},
      {"1:2:3:4:5:6:7::", "1:2:3:4:5:6:7:0"},
      {"::FFFF:192.0.2.1", "::ffff:c000:201"},
      {"0.0.0.0", "0.0.0.0"},
      {"10.0.2.255", "10.0.2.255"},
      {"01.2.3.4", ""},
      {"1.2.3.4.", ""},
      {"256.0.0.0", ""},
      {" 1.2.3.4", ""},
      {"", ""},
      {"fe80::1%eth0", ""},
      {"1::2::3", ""},
      {":1::", ""},
      {"1:2:3:4:5:6:7:8::", ""},
      {"::12345", ""},
      {"[::1]", ""},
      {"1.2.3.4:80", ""},
      {"::1.2.3.04", ""},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.text);
    CZEL_IpAddress address = Parse("9.9.9.9");  // kept on a refusal
    EXPECT_EQ(address.ParseStandard(CZEL_String(row.text)), *row.standard != 0 ? 1 : 0);
    EXPECT_EQ(Text(address.ToStandardString()), *row.standard != 0 ? row.standard : "9.9.9.9");
  }
  CZEL_IpAddress v6, invalid;
  v6.ParseStandard(CZEL_String("2001:db8::10"));  // groups held as values, as ToString reads them
  EXPECT_EQ(Print(v6), "2001:0DB8:0000:0000:0000:0000:0000:0010");
  EXPECT_EQ(Text(invalid.ToStandardString()) + Text(Parse("300.1.1.1").ToStandardString()),
            "44.1.1.1");
  EXPECT_EQ(v6.GetKind() + Parse("1.2.3.4").GetKind() * 10 + invalid.GetKind() * 100, 6553501u);
  EXPECT_EQ(v6.IsValid() + Parse("....").IsValid() * 10 + invalid.IsValid() * 100, 11);
}

}  // namespace
