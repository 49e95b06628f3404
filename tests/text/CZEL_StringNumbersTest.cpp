#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

using namespace std::string_literals;

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

constexpr ZEL::u64 kMaxU64 = std::numeric_limits<ZEL::u64>::max();

TEST(CZEL_StringNumbersTest, FromNumberInRadixWithGroups) {
  struct Case {
    ZEL::u64 value;
    ZEL::u32 radix;
    ZEL::u32 group;
    char separator;
    std::string expected;
  } const cases[] = {
      {0, 10, 0, ',', "0"},         {0, 10, 1, ',', "0"},          {255, 16, 0, ',', "ff"},
      {255, 2, 4, ' ', "1111 1111"}, {1234567, 10, 3, ',', "1,234,567"},
      {999, 10, 3, ',', "999"},     {1000, 10, 3, '.', "1.000"},   {12, 10, 1, '-', "1-2"},
      {35, 36, 0, ',', "z"},
      {36, 37, 0, ',', "{"},        // past 'z' into the next codes
      {299, 300, 0, ',', "\x82"},   // the digit 299 kept as a byte is 43
      {261, 300, 0, ',', "5"},      // and 261 is 5
      {kMaxU64, 16, 0, ',', std::string(16, 'f')},
      {kMaxU64, 2, 0, ',', std::string(64, '1')},
      {kMaxU64, 10, 3, '\0', "18\0" "446\0" "744\0" "073\0" "709\0" "551\0" "615"s},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(Text(CZEL_String::FromNumber(c.value, c.radix, c.group, c.separator)), c.expected)
        << c.value << " radix " << c.radix << " group " << c.group;
  }
  std::string binary = Text(CZEL_String::FromNumber(kMaxU64, 2, 1, '_'));
  EXPECT_EQ(binary.size(), 127u);
  EXPECT_EQ(binary.substr(0, 5), "1_1_1");
  EXPECT_EQ(binary.back(), '1');
}

TEST(CZEL_StringNumbersTest, FromNumberSignedAndDouble) {
  EXPECT_EQ(Text(CZEL_String::FromNumber(ZEL::i64{-5})), "-5");
  EXPECT_EQ(Text(CZEL_String::FromNumber(ZEL::i64{0})), "0");
  EXPECT_EQ(Text(CZEL_String::FromNumber(std::numeric_limits<ZEL::i64>::min())), "-9223372036854775808");
  EXPECT_EQ(Text(CZEL_String::FromNumber(std::numeric_limits<ZEL::i64>::max())), "9223372036854775807");

  struct Case {
    double value;
    char format;
    int precision;
    char const* expected;
  } const cases[] = {
      {3.14159, 'f', 2, "3.14"},      {3.14159, 'F', 0, "3"},         {0.5, 'e', 3, "5.000e-01"},
      {0.5, 'E', 1, "5.0E-01"},       {1234567.0, 'g', 3, "1.23e+06"}, {1234567.0, 'G', 3, "1.23E+06"},
      {0.25, 'g', 6, "0.25"},         {2.5, 'x', 2, ""},              {2.5, 'd', 2, ""},
      {2.5, '\0', 2, ""},             {-1.0, 'f', 1, "-1.0"},         {1.0 / 3, 'f', -1, "0.333333"},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(Text(CZEL_String::FromNumber(c.value, c.format, c.precision)), c.expected)
        << c.value << " " << c.format << " " << c.precision;
  }
}

TEST(CZEL_StringNumbersTest, SetFromNumberReplacesTheText) {
  CZEL_String s("old text");
  EXPECT_EQ(&s.SetFromNumber(ZEL::u64{255}, 16, 0, ','), &s);
  EXPECT_EQ(Text(s), "ff");
  EXPECT_EQ(Text(s.SetFromNumber(ZEL::i64{-42})), "-42");
  EXPECT_EQ(Text(s.SetFromNumber(1.5, 'f', 1)), "1.5");
  EXPECT_EQ(Text(s.SetFromNumber(1.5, 'q', 1)), "");
}

TEST(CZEL_StringNumbersTest, FormatIsSizedExactlyAtAnyLength) {
  CZEL_String s("abc");
  EXPECT_EQ(&s.Format("%s", ""), &s);
  EXPECT_EQ(s.GetLength(), 0u);
  EXPECT_EQ(s.GetStringC()[0], 0);
  EXPECT_EQ(Text(s.Format("%d-%s-%c", 12, "ab", 'z')), "12-ab-z");

  std::string const big(100000, 'q');
  EXPECT_EQ(Text(s.Format("<%s>", big.c_str())), "<" + big + ">");
  s.Format("%10000d", 7);
  EXPECT_EQ(s.GetLength(), 10000u);
  EXPECT_EQ(s.GetStringC()[9999], '7');
  EXPECT_EQ(s.GetStringC()[10000], 0);

  // A wide character that the "C" locale can't convert makes the formatter
  // report an error: the text stays.
  s = "keep";
  EXPECT_EQ(Text(s.Format("%ls", L"\u0100")), "keep");
}

TEST(CZEL_StringNumbersTest, TextToNumbers) {
  constexpr ZEL::i64 kMinI64 = std::numeric_limits<ZEL::i64>::min();
  constexpr ZEL::i64 kMaxI64 = std::numeric_limits<ZEL::i64>::max();
  EXPECT_EQ(CZEL_String("-12x").ToSigned(), -12);
  EXPECT_EQ(CZEL_String("x").ToSigned(), 0);
  EXPECT_EQ(CZEL_String("").ToSigned(), 0);
  EXPECT_EQ(CZEL_String(" \t+42").ToSigned(), 42);
  EXPECT_EQ(CZEL_String("0x10").ToSigned(), 0);  // radix 10 reads the 0 only
  EXPECT_EQ(CZEL_String("99999999999999999999").ToSigned(), kMaxI64);
  EXPECT_EQ(CZEL_String("-99999999999999999999").ToSigned(), kMinI64);
  EXPECT_DOUBLE_EQ(CZEL_String("1.5e3z").ToDouble(), 1500.0);
  EXPECT_DOUBLE_EQ(CZEL_String("abc").ToDouble(), 0.0);
  EXPECT_DOUBLE_EQ(CZEL_String("  -0.25").ToDouble(), -0.25);

  struct Case {
    std::string text;
    ZEL::u32 radix;
    ZEL::u64 expected;
  } const cases[] = {
      {"ff", 16, 255},       {"FF", 16, 255},        {"0xff", 16, 255},     {"0Xff", 16, 255},
      {"102", 2, 2},         {"12abc", 10, 12},      {"0x1f", 0, 31},       {"017", 0, 15},
      {"17", 0, 17},         {"-1", 10, kMaxU64},    {"z", 36, 35},         {"12", 37, 0},
      {"12", 1, 0},          {"12\0" "34"s, 10, 12}, {"", 10, 0},           {"  7", 8, 7},
      {"99999999999999999999999", 10, kMaxU64},
  };
  for (Case const& c : cases) {
    CZEL_String s(c.text.data(), static_cast<ZEL::u32>(c.text.size()));
    EXPECT_EQ(s.ToUnsigned(c.radix), c.expected) << "\"" << c.text << "\" radix " << c.radix;
  }
}

struct AutoRadixCase {
  std::string text;
  ZEL::u64 expected;
};

void ExpectAutoRadix(ZEL::u32 mode, AutoRadixCase const* begin, AutoRadixCase const* end) {
  for (AutoRadixCase const* c = begin; c != end; ++c) {
    CZEL_String s(c->text.data(), static_cast<ZEL::u32>(c->text.size()));
    EXPECT_EQ(s.ToUnsignedAutoRadix(mode), c->expected) << "mode " << mode << " on \"" << c->text << "\"";
    EXPECT_EQ(Text(s), c->text);
  }
}

TEST(CZEL_StringNumbersTest, AutoRadixMarkerAtTheStart) {
  AutoRadixCase const cases[] = {
      {"0x1F", 31},    {"0X1f", 31},  {"H1F", 31},    {"h1f", 31},   {"O17", 15},
      {"123", 123},    {"1F", 1},     // no marker: radix 10
      {"B101", 0},     // B is a stop character, and not a decimal digit
      {"HO17", 15},    // the marker next to the number decides
      {"OH17", 23},    {"Z12", 12},   {"[12", 12},    {"XYZ", 0},    {"H", 0},
      {"0x", 0},       {"\xC8" "12", 0},              // bytes from 128 up stop the scan
      {"H1F  ", 31},   // trailing blanks: the positions still agree
      {"  H1F", 0},    // leading blanks leave " H" in the number text
      {"  0x1F", 31},  // the prefix is read again by radix 16
      {" 0x1F", 0},    // one blank: the cut leaves "x1F"
      {"", 0},         {"   ", 0},
  };
  ExpectAutoRadix(1, std::begin(cases), std::end(cases));
}

TEST(CZEL_StringNumbersTest, AutoRadixMarkerAtTheEnd) {
  AutoRadixCase const cases[] = {
      {"1FH", 31},    {"1fh", 31},   {"17O", 15},     {"123", 123},   {"101B", 101},
      {"ABCh", 2748}, {"12Q", 12},   {"12XH", 12},    // the marker first in the text decides
      {"17HO", 23},   {"HHH", 0},    {"1F\0H"s, 31},  // a 0 byte stops the scan
      {"\t1FH", 31},  // only blanks are trimmed
      {"1FH ", 1},    {"  1FH", 1},  // blanks at either end: radix 10
      {"", 0},        {"   ", 0},
  };
  ExpectAutoRadix(2, std::begin(cases), std::end(cases));
}

TEST(CZEL_StringNumbersTest, AutoRadixUnknownModeIsZero) {
  for (ZEL::u32 mode : {0u, 3u, 0xFFFFFFFFu}) {
    EXPECT_EQ(CZEL_String("1FH").ToUnsignedAutoRadix(mode), 0u);
    EXPECT_EQ(CZEL_String("H1F").ToUnsignedAutoRadix(mode), 0u);
  }
}

}  // namespace
