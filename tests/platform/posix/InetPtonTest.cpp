// SPDX-License-Identifier: Apache-2.0
// The standard address forms against the C library's inet_pton and
// inet_ntop, where the C library is the POSIX one whose forms they follow.

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
