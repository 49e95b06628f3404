#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

using namespace std::string_literals;

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }
CZEL_String Make(std::string const& text) { return CZEL_String(text.data(), static_cast<ZEL::u32>(text.size())); }

// The string holds `expected`, every byte, in a buffer with a terminator after them.
::testing::AssertionResult Holds(CZEL_String const& s, std::string const& expected) {
  if (s.GetStringC() == nullptr || s.GetStringC()[s.GetLength()] != 0) {
    return ::testing::AssertionFailure() << "no terminated buffer";
  }
  if (Text(s) == expected) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "holds \"" << Text(s) << "\", expected \"" << expected << '"';
}

CZEL_String const kXY("XY");
CZEL_String const kXYZ("XYZ");
CZEL_String const kAbcdef("abcdef");
CZEL_String const kZeros("ab\0c\0", 5);

// `expr` edits the string `s`, made from `start`, and gives back `s` itself.
struct Edit {
  char const* expr;
  std::string start;
  CZEL_String& (*edit)(CZEL_String& s);
  std::string expected;
};

#define EXPR(start, expr, expected) \
  Edit { #expr, start, [](CZEL_String& s) -> CZEL_String& { return expr; }, expected }
#define EDIT(start, call, expected) EXPR(start, s.call, expected)     // in place
#define GET(start, call, expected) EXPR(start, s = s.call, expected)  // a new string

void RunEdits(std::initializer_list<Edit> edits) {
  for (Edit const& e : edits) {
    CZEL_String s = Make(e.start);
    EXPECT_EQ(&e.edit(s), &s) << e.expr;
    EXPECT_TRUE(Holds(s, e.expected)) << e.expr << " on \"" << e.start << '"';
  }
}

TEST(CZEL_StringTest, ConstructionAndConcatenation) {
  CZEL_String const base("ab");
  struct Case { CZEL_String made; std::string expected; } const cases[] = {
      {CZEL_String(), ""},        {CZEL_String('\0'), "\0"s}, {CZEL_String(3u, 'x'), "xxx"},
      {CZEL_String(0u, 'x'), ""}, {kZeros, "ab\0c\0"s},       {base + CZEL_String("c"), "abc"},
      {base + '\0', "ab\0"s},     {base + "cd", "abcd"},      {'x' + base, "xab"},
      {"xy" + base, "xyab"},      {"" + base, "ab"},
  };
  for (Case const& c : cases) EXPECT_TRUE(Holds(c.made, c.expected)) << Text(c.made);
}

// The source may be the string itself.
TEST(CZEL_StringTest, AssignAndAppend) {
  RunEdits({
      EXPR("abc", s = static_cast<CZEL_String const&>(s), "abc"),
      EXPR("", s = static_cast<CZEL_String const&>(s), ""),
      EXPR("xyz", s = s.GetStringC() + 1, "yz"),    EXPR("ab", s = '\0', "\0"s),
      EXPR("ab", s += s, "abab"),                   EXPR("ab", s += "", "ab"),
      EXPR("ab", s += '\0', "ab\0"s),               EXPR("x", s += kZeros, "xab\0c\0"s),
      EDIT("abc", Insert(s, 1, 0, 3), "aabcbc"),   EDIT("abcd", ReplaceString(s, 1, 2, 0, 4), "aabcdd"),
      EDIT("abcd", ReplaceChars(s, 2, 0, 2), "abab"),
  });
}

// Reaches the protected buffer helpers.
class ProbeString : public CZEL_String {
 public:
  using CZEL_String::CZEL_String;
  using CZEL_String::operator=;
  using CZEL_String::ClearBuffer;
  using CZEL_String::DataCopy;
  using CZEL_String::DeleteBuffer;
  using CZEL_String::NewBuffer;
};

TEST(CZEL_StringTest, CharactersAndTheBuffer) {
  ProbeString s("Abc");
  EXPECT_EQ(s.GetChar(2), 'c');
  EXPECT_EQ(s.GetChar(3), 0);
  EXPECT_EQ(s.GetChar(100), 0);
  char out[5] = {'#', '#', '#', '#', '#'};
  s.ToStringC(out);
  EXPECT_EQ(std::string(out, 5), "Abc\0#"s);

  // An equal non-zero length, the in-place character edits and appending
  // nothing keep the buffer.
  char* const buffer = s.GetStringC();
  s = CZEL_String("a\0c", 3);
  s.GetStringC()[0] = 'A';  // the buffer itself, not a copy
  s.SetChar(2, 'x');
  s.SetChar(3, 'y');  // can't grow the string
  s.ReplaceChar('A', 'q');
  s.SetCase(1);
  s += "";
  s += CZEL_String();
  s.NewBuffer(3);
  s.DataCopy(s);
  EXPECT_EQ(s.GetStringC(), buffer);
  EXPECT_TRUE(Holds(s, "Q\0X"s));

  s.NewBuffer(5);
  EXPECT_TRUE(s.GetLength() == 5 && s.GetStringC()[5] == 0);
  s.ClearBuffer();
  char* const empty = s.GetStringC();
  s.ClearBuffer();  // empty already: nothing happens
  EXPECT_EQ(s.GetStringC(), empty);
  s.DataCopy(s);
  EXPECT_TRUE(Holds(s, ""));
  s.DeleteBuffer();
  EXPECT_TRUE(s.GetStringC() == nullptr && s.GetLength() == 0);
  s.DeleteBuffer();
  s.NewBuffer(0);
  EXPECT_TRUE(Holds(s, ""));
}

// Out of range, Left and Right give the whole string, ResizeLeft and
// ResizeRight change nothing, and ResizeMid empties the string.
TEST(CZEL_StringTest, SubstringsDifferAtTheirBounds) {
  RunEdits({
      GET("abc", Left(0), ""),                GET("abc", Left(2), "ab"),           GET("abc", Left(99), "abc"),
      EDIT("abc", ResizeLeft(0), ""),         EDIT("abc", ResizeLeft(1), "a"),     EDIT("abc", ResizeLeft(4), "abc"),
      GET("abc", Right(0), ""),               GET("abc", Right(2), "bc"),          GET("abc", Right(99), "abc"),
      EDIT("abc", ResizeRight(0), ""),        EDIT("abc", ResizeRight(2), "bc"),   EDIT("abc", ResizeRight(4), "abc"),
      GET("abc", Mid(1, 1), "b"),             GET("abc", Mid(2, 99), "c"),         GET("abc", Mid(1, 0xFFFFFFFF), "bc"),
      EDIT("abc", ResizeMid(1, 1), "b"),      EDIT("abc", ResizeMid(1, 99), "bc"), EDIT("abc", ResizeMid(3, 1), ""),
      GET("abc", Mid(1, 0), ""),              GET("abc", Mid(3, 1), ""),           EDIT("abc", ResizeMid(0, 0), ""),
      GET("abc", RightFromPos(2), "c"),       GET("abc", RightFromPos(3), ""),
      EDIT("abc", ResizeRightFromPos(1), "bc"), EDIT("abc", ResizeRightFromPos(3), ""),
  });
}

// Insert of a string inserts nothing once `srcStart` reaches the cut `count`.
TEST(CZEL_StringTest, InsertAndRemove) {
  RunEdits({
      EDIT("abc", Insert('x', 1), "axbc"),           EDIT("abc", Insert('x', 3), "abcx"),
      EDIT("abc", Insert('x', 4), "abc"),            EDIT("", Insert('\0', 0), "\0"s),
      EDIT("ab", Insert(kAbcdef, 1, 2, 2), "ab"),    EDIT("ab", Insert(kAbcdef, 1, 1, 3), "abcdb"),
      EDIT("ab", Insert(kXYZ, 0, 0, 100), "XYZab"),  EDIT("ab", Insert(kXYZ, 2, 1, 100), "abYZ"),
      EDIT("ab", Insert(kXYZ, 3, 0, 3), "ab"),       EDIT("ab", Insert(kXYZ, 1, 2, 0xFFFFFFFF), "aZb"),
      EDIT("abc", RemoveChars(1, 1), "ac"),          EDIT("abc", RemoveChars(1, 99), "a"),
      EDIT("abc", RemoveChars(1, 0), "abc"),         EDIT("abc", RemoveChars(3, 1), "abc"),
      EDIT("abcab", RemoveChar('a'), "bcb"),         EDIT("a\0b\0"s, RemoveChar('\0'), "ab"),
  });
}

// ReplaceChars removes the whole cut `count` even where `src` supplies
// fewer; ReplaceString keeps a tail only while length - pos - oldCount,
// taken in signed 32 bits, is above 0.
TEST(CZEL_StringTest, ReplaceCharsAndReplaceString) {
  RunEdits({
      EDIT("abcd", ReplaceChars(kXY, 1, 0, 2), "aXYd"),         EDIT("abcd", ReplaceChars(kXY, 9, 0, 2), "abcdXY"),
      EDIT("abcd", ReplaceChars(kXY, 1, 5, 2), "ad"),           EDIT("abcd", ReplaceChars(kXY, 1, 1, 2), "aYd"),
      EDIT("abcd", ReplaceChars(kXY, 1, 0, 9), "aXYd"),         EDIT("abcd", ReplaceChars(kXY, 3, 0, 2), "abcXY"),
      EDIT("abcd", ReplaceString(kXYZ, 1, 1, 0, 3), "aXYZcd"),  EDIT("abcd", ReplaceString(kXYZ, 1, 9, 0, 3), "aXYZ"),
      EDIT("abcd", ReplaceString(kXYZ, 1, 0, 1, 1), "aYbcd"),   EDIT("abcd", ReplaceString(kXYZ, 1, 2, 0, 0), "ad"),
      EDIT("abcd", ReplaceString(kXYZ, 9, 2, 0, 3), "abcdXYZ"), EDIT("abcd", ReplaceString(kXYZ, 0, 4, 0, 3), "XYZ"),
      // 4 - 1 - 0xFFFFFFFF wraps to 4: the whole text is kept as the tail.
      EDIT("abcd", ReplaceString(kXYZ, 1, 0xFFFFFFFF, 0, 3), "aXYZabcd"),
  });
}

TEST(CZEL_StringTest, WholeStringEdits) {
  RunEdits({
      EDIT("abc", Build(0, 'z'), ""),           EDIT("abc", Build(2, '\0'), "\0\0"s),
      EDIT("abc", SetLength(2, ' '), "ab"),     EDIT("abc", SetLength(3, '-'), "abc"),
      EDIT("abc", SetLength(5, '-'), "abc--"),  EDIT("abc", SetLength(4, '\0'), "abc\0"s),
      EDIT("AzZ1", SetCase(0), "azz1"),         EDIT("AzZ1", SetCase(1), "AZZ1"),
      EDIT("AzZ1", SetCase(2), "AzZ1"),         EDIT("abca", ReplaceChar('a', 'x'), "xbcx"),
      EDIT("@[`{\xC9", SetCase(0), "@[`{\xC9"), EDIT("@[`{\xE9", SetCase(1), "@[`{\xE9"),
      EDIT("  a  ", Trim(' ', 0), "  a  "),     EDIT("  a  ", Trim(' ', 1), "a  "),
      EDIT("  a  ", Trim(' ', 2), "  a"),       EDIT("  a  ", Trim(' ', 3), "a"),
      EDIT("  a  ", Trim(' ', 4), "  a  "),     EDIT("  a  ", Trim(' ', 7), "a"),
      EDIT("   ", Trim(' ', 2), ""),            EDIT("xxaxx", Trim('x', 3), "a"),
  });
}

#define FIT(start, width, align, expected) \
  EDIT(start, SetFormatted(width, static_cast<CZEL_String::t_Align>(align), '.'), expected)

// Centred text starts at (width - length) / 2, or at 0 when it doesn't fit.
TEST(CZEL_StringTest, SetFormattedFitsTheField) {
  RunEdits({
      FIT("ab", 5, CZEL_String::ALIGN_LEFT, "ab..."),   FIT("ab", 5, CZEL_String::ALIGN_RIGHT, "...ab"),
      FIT("ab", 5, CZEL_String::ALIGN_CENTER, ".ab.."), FIT("ab", 6, CZEL_String::ALIGN_CENTER, "..ab.."),
      FIT("ab", 3, CZEL_String::ALIGN_CENTER, "ab."),   FIT("abcd", 2, CZEL_String::ALIGN_LEFT, "ab"),
      FIT("abcd", 2, CZEL_String::ALIGN_RIGHT, "cd"),   FIT("abcd", 2, CZEL_String::ALIGN_CENTER, "ab"),
      FIT("abcd", 3, 7, "..."),                         FIT("abcd", 0, CZEL_String::ALIGN_RIGHT, ""),
  });
}

// -----------------------------------------------------------------------------
// Numbers
// -----------------------------------------------------------------------------

constexpr ZEL::u64 kMaxU64 = std::numeric_limits<ZEL::u64>::max();

TEST(CZEL_StringNumbersTest, FromNumberInRadixWithGroups) {
  std::string binary(127, '_');  // the longest text: 64 digits and 63 separators
  for (std::size_t i = 0; i < binary.size(); i += 2) binary[i] = '1';
  struct Case { ZEL::u64 value; ZEL::u32 radix, group; char separator; std::string expected; } const cases[] = {
      {0, 10, 1, ',', "0"},  {999, 10, 3, ',', "999"},  {1234567, 10, 3, ',', "1,234,567"},
      {35, 36, 0, ',', "z"}, {36, 37, 0, ',', "{"},  // past 'z' into the next codes
      {kMaxU64, 16, 0, ',', std::string(16, 'f')},  {kMaxU64, 2, 1, '_', binary},
      {kMaxU64, 10, 3, '\0', "18\0" "446\0" "744\0" "073\0" "709\0" "551\0" "615"s},
  };
  for (Case const& c : cases) {
    EXPECT_TRUE(Holds(CZEL_String::FromNumber(c.value, c.radix, c.group, c.separator), c.expected))
        << c.value << " radix " << c.radix << " group " << c.group;
  }
}

TEST(CZEL_StringNumbersTest, FromNumberOfADouble) {
  struct Case { double value; char format; int precision; char const* expected; } const cases[] = {
      {3.14159, 'f', 2, "3.14"},      {3.14159, 'F', 0, "3"},          {0.5, 'e', 3, "5.000e-01"},
      {0.5, 'E', 1, "5.0E-01"},       {1234567.0, 'g', 3, "1.23e+06"}, {1234567.0, 'G', 3, "1.23E+06"},
      {1.0 / 3, 'f', -1, "0.333333"}, {2.5, 'd', 2, ""},               {2.5, '\0', 2, ""},
  };
  for (Case const& c : cases) {
    EXPECT_TRUE(Holds(CZEL_String::FromNumber(c.value, c.format, c.precision), c.expected))
        << c.value << " " << c.format << " " << c.precision;
  }
}

// SetFromNumber becomes FromNumber of the same arguments. Format is sized
// exactly at any length, and a formatter error leaves the text alone.
TEST(CZEL_StringNumbersTest, SetFromNumberAndFormat) {
  RunEdits({
      EDIT("old", SetFromNumber(ZEL::i64{0}), "0"),
      EDIT("old", SetFromNumber(std::numeric_limits<ZEL::i64>::min()), "-9223372036854775808"),
      EDIT("old", SetFromNumber(std::numeric_limits<ZEL::i64>::max()), "9223372036854775807"),
      EDIT("old", SetFromNumber(ZEL::u64{255}, 16, 0, ','), "ff"),
      EDIT("old", SetFromNumber(1.5, 'f', 1), "1.5"), EDIT("old", SetFromNumber(1.5, 'q', 1), ""),
      EDIT("abc", Format("%s", ""), ""),              EDIT("abc", Format("%d-%s-%c", 12, "ab", 'z'), "12-ab-z"),
      EDIT("abc", Format("<%s>", std::string(100000, 'q').c_str()), "<" + std::string(100000, 'q') + ">"),
      EDIT("keep", Format("%ls", L"\u0100"), "keep"),  // the "C" locale can't convert it
  });
}

// Reading stops at the first 0 and at the first character that can't go on.
TEST(CZEL_StringNumbersTest, TextToNumbers) {
  struct { char const* text; ZEL::i64 expected; } const signedCases[] = {
      {"-12x", -12}, {"x", 0}, {" \t+42", 42}, {"0x10", 0},  // radix 10 reads the 0 only
      {"99999999999999999999", std::numeric_limits<ZEL::i64>::max()},
      {"-99999999999999999999", std::numeric_limits<ZEL::i64>::min()},
  };
  for (auto const& c : signedCases) EXPECT_EQ(CZEL_String(c.text).ToSigned(), c.expected) << c.text;
  EXPECT_DOUBLE_EQ(CZEL_String("1.5e3z").ToDouble(), 1500.0);
  EXPECT_DOUBLE_EQ(CZEL_String("abc").ToDouble(), 0.0);
  EXPECT_DOUBLE_EQ(CZEL_String("  -0.25").ToDouble(), -0.25);
  struct Case { std::string text; ZEL::u32 radix; ZEL::u64 expected; } const cases[] = {
      {"FF", 16, 255}, {"0Xff", 16, 255}, {"102", 2, 2},          {"12abc", 10, 12}, {"0x1f", 0, 31},
      {"017", 0, 15},  {"17", 0, 17},     {"-1", 10, kMaxU64},    {"z", 36, 35},     {"12", 37, 0},
      {"12", 1, 0},    {"  7", 8, 7},     {"12\0" "34"s, 10, 12}, {"99999999999999999999999", 10, kMaxU64},
  };
  for (Case const& c : cases) EXPECT_EQ(Make(c.text).ToUnsigned(c.radix), c.expected) << c.text << " " << c.radix;
}

// Mode 1 reads the marker before the number, mode 2 after it.
TEST(CZEL_StringNumbersTest, ToUnsignedAutoRadix) {
  struct Case { ZEL::u32 mode; std::string text; ZEL::u64 expected; } const cases[] = {
      {1, "0x1F", 31}, {1, "0X1f", 31}, {1, "h1f", 31}, {1, "O17", 15}, {1, "123", 123},
      {1, "1F", 1},         // no marker: radix 10
      {1, "B101", 0},       // B is no marker: no text selects radix 2
      {1, "HO17", 15},      // the marker next to the number decides
      {1, "[12", 12},       // any other marker means radix 10
      {1, "XYZ", 0},   {1, "H", 0},     {1, "0x", 0},
      {1, "\xC8" "12", 0},  // bytes from 128 up are no markers
      {1, "H1F  ", 31},     // trailing blanks: the positions still agree
      {1, "  H1F", 0},      // leading blanks leave " H" in the number text
      {1, "  0x1F", 31},    // the prefix is read again by radix 16
      {1, " 0x1F", 0},      // one blank: the cut leaves "x1F"
      {2, "1fh", 31},  {2, "17O", 15},  {2, "123", 123}, {2, "101B", 101},
      {2, "ABCh", 2748},    // A to G end the markers
      {2, "12XH", 12},      // the marker first in the text decides
      {2, "HHH", 0},
      {2, "1F\0H"s, 31},    // a 0 byte ends the markers
      {2, "\t1FH", 31},     // only blanks are trimmed
      {2, "1FH ", 1},  {2, "  1FH", 1},  // blanks at either end: radix 10
      {1, "", 0},      {1, "   ", 0},   {2, "", 0},     {2, "   ", 0},  // empty, all blank or another mode: 0
      {0, "1FH", 0},   {0, "H1F", 0},   {3, "1FH", 0},  {3, "H1F", 0},  {0xFFFFFFFF, "1FH", 0},
  };
  for (Case const& c : cases) {
    EXPECT_EQ(Make(c.text).ToUnsignedAutoRadix(c.mode), c.expected) << "mode " << c.mode << " on " << c.text;
  }
}

// -----------------------------------------------------------------------------
// Comparison, search and extraction
// -----------------------------------------------------------------------------

// Texts up to their first zero, bytes as signed chars. The relational
// operators, in both forms, follow the case-sensitive order.
TEST(CZEL_StringSearchTest, CompareOrdersSignedBytes) {
  struct Case { char const* a; char const* b; signed char matching, blind; } const cases[] = {
      {"a", "a", 0, 0},      {"a", "ab", -1, -1},        {"", "a", -1, -1},
      {"\xE9", "A", -1, -1}, {"abc", "abc\xE9", -1, -1}, {"abc\xE9", "abc", 1, 1},
      {"abc", "ABC", 1, 0},  {"B", "a", -1, 1},          {"_", "z", -1, 1},
      {"a\xE9", "A\xC9", 1, 1}, {"{", "[", 1, 1},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " / " + c.b);
    CZEL_String a(c.a);
    CZEL_String const b(c.b);
    EXPECT_EQ(CZEL_String::CS_Compare(c.a, c.b), c.matching);
    EXPECT_EQ(a.CompareMatchingCase(b), c.matching);
    EXPECT_EQ(CZEL_String::CompareMatchingCase(a, b), c.matching);
    EXPECT_EQ(a.CompareNoMatchingCase(b), c.blind);
    EXPECT_EQ(CZEL_String::CompareNoMatchingCase(a, b), c.blind);
    int const m = c.matching;
    std::vector<int> const order = {m == 0, m != 0, m < 0, m <= 0, m > 0, m >= 0};
    EXPECT_EQ((std::vector<int>{a == b, a != b, a < b, a <= b, a > b, a >= b}), order);
    EXPECT_EQ((std::vector<int>{c.a == b, c.a != b, c.a < b, c.a <= b, c.a > b, c.a >= b}), order);
  }
  EXPECT_EQ(CZEL_String::CS_GetLength("ab\0cd"), 2u);
  char dest[5] = {'#', '#', '#', '#', '#'};
  EXPECT_EQ(CZEL_String::CS_Copy(dest, "abc"), dest);
  EXPECT_EQ(std::string(dest, 5), "abc\0#"s);

  // Strings that agree up to an embedded zero are equal, whatever follows.
  CZEL_String shortText("ab");
  CZEL_String const longText("ab\0zzz", 6);
  EXPECT_EQ(shortText == longText, 1);
  EXPECT_EQ("ab" == longText, 1);
  EXPECT_EQ(CZEL_String::CompareNoMatchingCase(CZEL_String("AB\0q", 4), longText), 0);
}

// FindFromBegin (CB, SB) and FindFromEnd (CE, SE) of a character, the first
// of `pattern`, or of a string. A `found` of kNone: the search gives 0 and
// leaves the position alone.
constexpr ZEL::u32 kNone = 0xFFFFFFFF;
enum Kind { CB, CE, SB, SE };

TEST(CZEL_StringSearchTest, SearchBounds) {
  struct Case { Kind kind; std::string text, pattern; ZEL::u8 matchCase; ZEL::u32 start, found; } const cases[] = {
      {CB, "abcab", "a", 1, 1, 3},       {CB, "abcab", "b", 1, 4, 4},       {CB, "abcab", "a", 1, 5, kNone},
      {CB, "abc", "\0"s, 1, 0, kNone},   {CB, "a\0b"s, "\0"s, 1, 0, 1},     {CB, "", "a", 1, 0, kNone},
      {CE, "abcabc", "a", 1, 6, 3},      {CE, "abcabc", "c", 1, 99, 5},     {CE, "abcabc", "a", 1, 0, 0},
      {CE, "abcabc", "b", 1, 0, kNone},  {CE, "abcabc", "\0"s, 1, 7, kNone}, {CE, "a\0b"s, "\0"s, 1, 99, 1},
      {CE, "", "\0"s, 1, 0, kNone},      {CE, "abcabc", "\0"s, 1, 6, 6},  // from the length: the terminator
      {SB, "abcabc", "bc", 1, 2, 4},     {SB, "abcabc", "bc", 1, 4, 4},     {SB, "abcabc", "bc", 1, 5, kNone},
      {SB, "abcabc", "abcabc", 1, 0, 0}, {SB, "abcabc", "abcabcx", 1, 0, kNone}, {SB, "abcabc", "bc", 1, kNone, kNone},
      {SB, "abcabc", "", 1, 0, kNone},   {SB, "", "a", 1, 0, kNone},        {SB, "xabc", "ABC", 0, 0, 1},
      {SB, "xabc", "ABC", 1, 0, kNone},  {SB, "x{@", "[`", 0, 0, kNone},    {SB, "ab\0cd"s, "b\0c"s, 1, 0, 1},
      {SB, "aab", "ab", 1, 0, 1},        {SE, "abcabc", "bc", 1, 99, 4},    {SE, "abcabc", "bc", 1, 0, kNone},
      {SE, "abcabc", "c", 1, 6, 5},      {SE, "abcabc", "abc", 1, 0, 0},    {SE, "abcabc", "abcabcx", 1, 99, kNone},
      {SE, "abcabc", "", 1, 99, kNone},  {SE, "", "a", 1, 0, kNone},        {SE, "xabcx", "ABC", 0, 99, 1},
      {SE, "xabcx", "ABC", 1, 99, kNone}, {SE, "abcabc", "bc", 1, 1, 1},  // the match reaches past start
  };
  for (Case const& c : cases) {
    CZEL_String const s = Make(c.text), pattern = Make(c.pattern);
    ZEL::u32 pos = 777;
    ZEL::u8 result = 0;
    switch (c.kind) {
      case CB: result = s.FindFromBegin(c.pattern[0], &pos, c.start); break;
      case CE: result = s.FindFromEnd(c.pattern[0], &pos, c.start); break;
      case SB: result = s.FindFromBegin(pattern, &pos, c.matchCase, c.start); break;
      case SE: result = s.FindFromEnd(pattern, &pos, c.matchCase, c.start); break;
    }
    EXPECT_EQ(result, c.found != kNone) << c.kind << " " << c.text << " " << c.pattern << " " << c.start;
    EXPECT_EQ(pos, c.found != kNone ? c.found : 777u) << c.kind << " " << c.text << " " << c.start;
  }
}

// The items of a named string list or vector; indexing a list moves its cursor.
template <typename Container>
std::vector<std::string> Items(Container& items) {
  std::vector<std::string> texts;
  for (ZEL::u32 i = 0; i < items.GetLength(); ++i) texts.push_back(Text(items[i]));
  return texts;
}

TEST(CZEL_StringSearchTest, ExtractTagsKeepsInnerEmptyTagsAndDropsAFinalOne) {
  struct Case { std::string text; char separator; std::vector<std::string> tags; } const cases[] = {
      {"a,b,", ',', {"a", "b"}}, {",a", ',', {"", "a"}}, {"a,,b", ',', {"a", "", "b"}}, {",", ',', {""}},
      {"", ',', {}},             {"abc", ',', {"abc"}},  {"a\0b,c"s, ',', {"a\0b"s, "c"}},
      {"a\0\0b"s, '\0', {"a", "", "b"}},
  };
  for (Case const& c : cases) {
    CZEL_StringList list;
    list += CZEL_String("old");
    CZEL_StringVector vector(2, CZEL_String("old"));
    Make(c.text).ExtractTags(c.separator, list);
    Make(c.text).ExtractTags(c.separator, vector);
    EXPECT_EQ(Items(list), c.tags) << '"' << c.text << '"';
    EXPECT_EQ(Items(vector), c.tags) << '"' << c.text << '"';
  }
}

// On failure `out` keeps its text.
TEST(CZEL_StringSearchTest, ExtractEncapsulatedString) {
  struct Case { char const* text; char left, right; ZEL::u32 code; char const* out; } const cases[] = {
      {"x[abc]y", '[', ']', 0, "abc"},                {"x[]y", '[', ']', 0, ""},
      {"[a[b]c]", '[', ']', 0, "a[b"},                {"]x[y]", '[', ']', 0, "y"},
      {"|a|b|", '|', '|', 0, "a"},                    {"x[abc", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},
      {"abc]", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"}, {"ab[", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},
  };
  for (Case const& c : cases) {
    CZEL_String out("kept");
    EXPECT_EQ(CZEL_String(c.text).ExtractEncapsulatedString(c.left, c.right, out), c.code) << c.text;
    EXPECT_TRUE(Holds(out, c.out)) << c.text;
  }
}

// Items that the two case modes order differently; "A" and "a", equal
// without case, keep their order.
TEST(CZEL_StringSearchTest, NamedContainersSort) {
  struct Case { ZEL::u8 ascending, matchCase; std::vector<std::string> sorted; } const cases[] = {
      {1, 1, {"A", "C", "_", "a", "b"}}, {0, 1, {"b", "a", "_", "C", "A"}}, {1, 0, {"A", "a", "b", "C", "_"}},
      {0, 0, {"_", "C", "b", "A", "a"}}, {2, 9, {"A", "C", "_", "a", "b"}},
  };
  for (Case const& c : cases) {
    CZEL_StringList list;
    for (char const* item : {"b", "A", "a", "C", "_"}) list += CZEL_String(item);
    list.ToPos(3);
    EXPECT_EQ(&list.Sort(c.ascending, c.matchCase), &list);
    EXPECT_EQ(Text(list.CurItem()), "C");  // the cursor follows its node
    EXPECT_EQ(Items(list), c.sorted) << int(c.ascending) << int(c.matchCase);
  }
  // The vector's sort returns only on fewer than two items: once in order it
  // keeps making passes. An empty vector is refused.
  CZEL_StringVector one(1, CZEL_String("x"));
  EXPECT_EQ(&one.Sort(1, 0), &one);
  CZEL_StringVector empty;
  try {
    empty.Sort(1, 1);
    ADD_FAILURE() << "no exception";
  } catch (CZEL_Exception const& e) {
    EXPECT_EQ(e.m_Code, ZEL_ERR_INVALID_ARGUMENT);
    EXPECT_EQ(e.m_Object, static_cast<void const*>(&empty));
  }
}

}  // namespace
