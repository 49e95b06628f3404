// IP addresses: the separator-counting parser against the printed form (one
// row per rule; the fuzz target checks the rest against a model), the
// digits, and comparisons across kinds. The standard forms: the canonical
// text on the examples of RFC 5952, and the reading against the C library's
// inet_pton and inet_ntop on random texts near the standard forms.

#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <random>
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

// Random texts of groups, parts, separators and a stray byte: ParseStandard
// accepts what one inet_pton family accepts, with the same value, and prints
// as inet_ntop does unless inet_ntop writes a dotted tail (groups 0-4 zero).
TEST(IpAddressTest, StandardFormsAgreeWithInetPton) {
  char const* const groups[] = {"0", "1", "0000", "db8", "FfFf", "12345", "g", ""};
  char const* const parts[] = {"0", "7", "19", "192", "255", "01", "256", ""};
  std::mt19937 random(5952);
  int accepted[2] = {0, 0};
  for (int n = 0; n < 200000; ++n) {
    std::string text;
    for (int i = 0, count = random() % 3 ? random() % 10 : 0; i < count; ++i)
      text += std::string(i != 0 ? ":" : "") + groups[random() % 8] + (random() % 6 ? "" : ":");
    for (int i = 0, count = random() % 3 ? 0 : random() % 2 ? 4 : random() % 6; i < count; ++i)
      text += std::string(i != 0 ? "." : text.empty() ? "" : ":") + parts[random() % 8];
    if (!text.empty() && random() % 4 == 0) text[random() % text.size()] = ":.%0aG "[random() % 7];
    unsigned char bytes[16];
    int const v4 = inet_pton(AF_INET, text.c_str(), bytes),
              v6 = inet_pton(AF_INET6, text.c_str(), bytes);
    CZEL_IpAddress address;
    ASSERT_EQ(address.ParseStandard(CZEL_String(text.c_str())), v4 | v6) << text;
    if ((v4 | v6) == 0) continue;
    ++accepted[v6];
    std::string decimal;  // the old parser reads groups in decimal
    for (int i = 0; i < (v6 ? 8 : 4); ++i)
      decimal += (i != 0 ? v6 ? ":" : "." : "") +
                 std::to_string(v6 ? bytes[2 * i] << 8 | bytes[2 * i + 1] : bytes[i]);
    ASSERT_TRUE(address == Parse(decimal.c_str())) << text;
    char printed[INET6_ADDRSTRLEN];
    inet_ntop(v6 ? AF_INET6 : AF_INET, bytes, printed, sizeof printed);
    if (v4 || std::string(10, '\0') != std::string(bytes, bytes + 10)) {
      ASSERT_EQ(Text(address.ToStandardString()), printed) << text;
    }
    CZEL_IpAddress again;
    ASSERT_TRUE(again.ParseStandard(address.ToStandardString()) && again == address) << text;
  }
  EXPECT_GT(accepted[0], 1000);
  EXPECT_GT(accepted[1], 3000);
}

}  // namespace
