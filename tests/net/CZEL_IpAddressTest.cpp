// IP addresses: the separator-counting parser against the printed form, the
// digits, comparisons and copies.

#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

CZEL_IpAddress Parse(std::string const& text) {
  return CZEL_IpAddress(CZEL_String(text.data(), static_cast<ZEL::u32>(text.size())));
}

std::string Print(CZEL_IpAddress const& address) {
  CZEL_String const text = address.ToString();
  return std::string(text.GetStringC(), text.GetLength());
}

TEST(IpAddressTest, ParsesAndPrints) {
  struct Row {
    std::string text;
    std::string printed;  // empty: invalid
  };
  std::vector<Row> const rows = {
      {"192.168.0.1", "192.168.0.1"},
      {"0.0.0.0", "0.0.0.0"},
      {"255.255.255.255", "255.255.255.255"},
      // Numbers are cut to their low 8 bits; a minus wraps first.
      {"256.1.1.1", "0.1.1.1"},
      {"300.1.1.1", "44.1.1.1"},
      {"-1.0.0.0", "255.0.0.0"},
      {"99999999999999999999.0.0.0", "255.0.0.0"},  // read as the largest u64
      // Only the count of tags decides.
      {"1.2.3", ""},
      {"1.2.3.4.5", ""},
      {"1.2.3.4.", "1.2.3.4"},
      {"1.2.3.4..", ""},
      {"1..3.4", "1.0.3.4"},
      {"....", "0.0.0.0"},
      {"...", ""},
      {".1.2.3", "0.1.2.3"},
      {"", ""},
      {"x", ""},
      // Tags are read as ToUnsigned reads them.
      {" 1.2x.3.4", "1.2.3.4"},
      {"a.b.c.d", "0.0.0.0"},
      {"+7.\t8.0x9.010", "7.8.0.10"},
      {std::string("1.2\0009.3.4", 9), "1.2.3.4"},  // a 0 byte ends the number
      // IPv6: groups in radix 10, printed in radix 16.
      {"1:2:3:4:5:6:7:8", "0001:0002:0003:0004:0005:0006:0007:0008"},
      {"10:20:30:40:50:60:70:80", "000A:0014:001E:0028:0032:003C:0046:0050"},
      {"ff:0:0:0:0:0:0:1", "0000:0000:0000:0000:0000:0000:0000:0001"},
      {"70000:0:0:0:0:0:0:65535", "1170:0000:0000:0000:0000:0000:0000:FFFF"},
      {"1:2:3:4:5:6:7:8:", "0001:0002:0003:0004:0005:0006:0007:0008"},
      {":2:3:4:5:6:7:8", "0000:0002:0003:0004:0005:0006:0007:0008"},
      {"1.5:2:3:4:5:6:7:8", "0001:0002:0003:0004:0005:0006:0007:0008"},
      {std::string("1.2.3\000:.4", 9), ""},  // a ':' anywhere selects IPv6
      {"::1", ""},
      {"1:2:3:4:5:6:7", ""},
      {"1:2:3:4:5:6:7:8:9", ""},
      {"1.2.3.4:80", ""},
  };
  for (Row const& row : rows) {
    SCOPED_TRACE(row.text);
    CZEL_IpAddress const address = Parse(row.text);
    EXPECT_EQ(Print(address), row.printed);
    EXPECT_EQ(address == CZEL_IpAddress(), row.printed.empty() ? 1 : 0);
  }
}

TEST(IpAddressTest, PrintedIpv6DoesNotParseBack) {
  CZEL_IpAddress const address = Parse("10:20:30:40:50:60:70:9");
  CZEL_IpAddress const again(address.ToString());
  EXPECT_EQ(again != address, 1);
  // "000A" reads 0, "0014" reads 14, "001E" reads 1, and so on.
  EXPECT_EQ(Print(again), "0000:000E:0001:001C:0020:0003:002E:0009");
  CZEL_IpAddress const v4 = Parse("10.20.30.40");
  EXPECT_EQ(CZEL_IpAddress(v4.ToString()) == v4, 1);
}

TEST(IpAddressTest, DigitsReadAndWriteTheLowByte) {
  CZEL_IpAddress v6 = Parse("1000:0:0:0:0:0:0:7");
  EXPECT_EQ(v6.GetDigit(0), 232);
  EXPECT_EQ(v6.GetDigit(7), 7);
  EXPECT_EQ(v6.GetDigit(8), 0);
  v6.SetDigit(0, 255);
  EXPECT_EQ(Print(v6), "00FF:0000:0000:0000:0000:0000:0000:0007");
  CZEL_IpAddress v4 = Parse("192.168.0.1");
  std::vector<int> digits;
  for (ZEL::u32 i = 0; i < 5; ++i) digits.push_back(v4.GetDigit(i));
  EXPECT_EQ(digits, (std::vector<int>{192, 168, 0, 1, 0}));
  v4.SetDigit(4, 1);
  v4.SetDigit(3, 9);
  EXPECT_EQ(Print(v4), "192.168.0.9");
  CZEL_IpAddress invalid;
  invalid.SetDigit(0, 1);
  EXPECT_EQ(invalid.GetDigit(0), 0);
  EXPECT_EQ(Print(invalid), "");
}

TEST(IpAddressTest, ComparesKindsAndDigits) {
  EXPECT_EQ(CZEL_IpAddress() == CZEL_IpAddress(), 1);
  EXPECT_EQ(Parse("1.2.3.4") == Parse(" 1.2.3.4x"), 1);
  EXPECT_EQ(Parse("1.2.3.4") != Parse("1.2.3.5"), 1);
  EXPECT_EQ(Parse("1.2.3.4") == Parse("1:2:3:4:0:0:0:0"), 0);
  EXPECT_EQ(Parse("0.0.0.0") == Parse("0:0:0:0:0:0:0:0"), 0);
  EXPECT_EQ(Parse("0.0.0.0") == CZEL_IpAddress(), 0);
}

TEST(IpAddressTest, CopiesAndAssignments) {
  CZEL_IpAddress address = Parse("1.2.3.4");
  CZEL_IpAddress const copy(address);
  EXPECT_EQ(&(address = CZEL_String("x")), &address);  // a failed parse invalidates
  EXPECT_EQ(address == CZEL_IpAddress(), 1);
  EXPECT_EQ(Print(copy), "1.2.3.4");
  EXPECT_EQ(&(address = copy), &address);
  EXPECT_EQ(address == copy, 1);
  CZEL_IpAddress const& same = address;
  address = same;
  EXPECT_EQ(Print(address), "1.2.3.4");
  address = CZEL_String("1:2:3:4:5:6:7:8");
  EXPECT_EQ(address.GetDigit(7), 8);
  address = CZEL_IpAddress();
  EXPECT_EQ(Print(address), "");
}

}  // namespace
