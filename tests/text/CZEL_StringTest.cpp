// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace std::string_literals;

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }
CZEL_String Make(std::string const& text) { return CZEL_String(std::string_view(text)); }

// The string holds `expected`, every byte, in a buffer with a terminator after them.
::testing::AssertionResult Holds(CZEL_String const& s, std::string const& expected) {
  if (*s.end() == 0 && s.View() == expected) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "holds \"" << Text(s) << "\" (terminated: " << !*s.end()
                                       << "), expected \"" << expected << '"';
}

CZEL_String const kXY("XY");
CZEL_String const kXYZ("XYZ");
CZEL_String const kAbcdef("abcdef");

// `expr` edits the string `s`, made from `start`, and gives back `s` itself.
struct Edit {
  char const* expr;
  std::string start;
  CZEL_String& (*edit)(CZEL_String& s);
  std::string expected;
};

#define EXPR(start, expr, expected)                                              \
  Edit {                                                                         \
#expr, start, [](CZEL_String & s) -> CZEL_String& { return expr; }, expected \
  }
#define EDIT(start, call, expected) EXPR(start, s.call, expected)     // in place
#define GET(start, call, expected) EXPR(start, s = s.call, expected)  // a new string
#define FIT(start, width, align, expected) \
  EDIT(start, SetFormatted(width, static_cast<CZEL_String::t_Align>(align), '.'), expected)

// The source may be the string itself. Out of range, Left gives the whole
// string, ResizeLeft changes nothing and ResizeMid empties the string. Insert
// inserts nothing once `srcStart` reaches the cut `count`. ReplaceChars
// removes the whole `count`; ReplaceString keeps a tail only while
// length - pos - oldCount, signed, is above 0. Centred text starts at
// (width - length) / 2, or at 0 when it doesn't fit.
TEST(CZEL_StringTest, EditsAtTheirBounds) {
  std::string const longText(100000, 'q');
  for (Edit const& e :
       {EXPR("abc", s = static_cast<CZEL_String const&>(s), "abc"),
        EXPR("xyz", s = s.GetStringC() + 1, "yz"),
        EXPR("ab", s += s, "abab"),
        EXPR("x", s += CZEL_String("ab\0c", 4), "xab\0c"s),
        EDIT("abc", Insert(s, 1, 0, 3), "aabcbc"),
        EDIT("abcd", ReplaceChars(s, 2, 0, 2), "abab"),
        GET("abc", Left(99), "abc"),
        GET("abc", Right(99), "abc"),
        EDIT("abc", ResizeLeft(4), "abc"),
        EDIT("abc", ResizeRight(4), "abc"),
        GET("abc", Mid(1, 0xFFFFFFFF), "bc"),
        EDIT("abc", ResizeMid(3, 1), ""),
        GET("abc", Mid(3, 1), ""),
        EDIT("ab", Insert(kAbcdef, 1, 2, 2), "ab"),
        EDIT("ab", Insert(kAbcdef, 1, 1, 3), "abcdb"),
        EDIT("ab", Insert(kXYZ, 2, 1, 100), "abYZ"),
        EDIT("ab", Insert(kXYZ, 3, 0, 3), "ab"),
        EDIT("abc", Insert('x', 4), "abc"),
        EDIT("abc", RemoveChars(1, 99), "a"),
        EDIT("abcd", ReplaceChars(kXY, 1, 5, 2), "ad"),
        EDIT("abcd", ReplaceChars(kXY, 1, 1, 2), "aYd"),
        EDIT("abcd", ReplaceChars(kXY, 9, 0, 2), "abcdXY"),
        EDIT("abcd", ReplaceString(kXYZ, 1, 9, 0, 3), "aXYZ"),
        EDIT("abcd", ReplaceString(kXYZ, 1, 1, 0, 3), "aXYZcd"),
        EDIT("abcd", ReplaceString(kXYZ, 1, 0xFFFFFFFF, 0, 3), "aXYZabcd"),  // 4 - 1 - ~0: 4
        EDIT("  a  ", Trim(' ', 1), "a  "),
        EDIT("  a  ", Trim(' ', 2), "  a"),
        EDIT("  a  ", Trim(' ', 3), "a"),
        EDIT("  a  ", Trim(' ', 4), "  a  "),
        EDIT("   ", Trim(' ', 3), ""),
        FIT("ab", 5, CZEL_String::ALIGN_CENTER, ".ab.."),
        FIT("ab", 3, CZEL_String::ALIGN_CENTER, "ab."),
        FIT("abcd", 2, CZEL_String::ALIGN_RIGHT, "cd"),
        FIT("abcd", 2, CZEL_String::ALIGN_CENTER, "ab"),
        FIT("abcd", 3, 7, "..."),
        EDIT("abc", Format("<%s>", std::string(100000, 'q').c_str()), "<" + longText + ">"),
        EXPR("abc", s = '\0', "\0"s),
        EXPR("abc", s = std::move(static_cast<CZEL_String&>(s)), "abc"),
        EXPR("ab\0c"s, s = CZEL_String(s.View()), "ab\0c"s),
        EXPR("abc", (std::reverse(s.begin(), s.end()), s), "cba"),
        EXPR("abc", (CZEL_String(std::move(s)), s += 'q'), "q")}) {
    SCOPED_TRACE(::testing::Message() << e.expr << " on \"" << e.start << '"');
    CZEL_String s = Make(e.start);
    EXPECT_EQ(&e.edit(s), &s);
    EXPECT_TRUE(Holds(s, e.expected));
  }
}

TEST(CZEL_StringTest, NumbersToAndFromText) {
  struct Group {
    ZEL::u64 value;
    ZEL::u32 radix, group;
    char separator;
    std::string expected;
  } const groups[] = {{999, 10, 3, ',', "999"},
                      {1234567, 10, 3, ',', "1,234,567"},
                      {36, 37, 0, ',', "{"},
                      {std::numeric_limits<ZEL::u64>::max(), 10, 3, '\0',
                       "18\000446\000744\000073\000709\000551\000615"s}};
  for (Group const& g : groups) {
    EXPECT_TRUE(Holds(CZEL_String::FromNumber(g.value, g.radix, g.group, g.separator), g.expected))
        << g.value;
  }
  // Mode 1 reads the marker before the number, mode 2 after it.
  struct Auto {
    ZEL::u32 mode;
    std::string text;
    ZEL::u64 expected;
  } const autos[] = {
      {1, "0x1F", 31}, {1, "O17", 15},    {1, "1F", 1},     {1, "B101", 0},   {1, "HO17", 15},
      {1, "[12", 12},  {1, "H", 0},       {1, "H1F  ", 31}, {1, "  H1F", 0},  {1, "  0x1F", 31},
      {1, " 0x1F", 0}, {2, "1fh", 31},    {2, "17O", 15},   {2, "101B", 101}, {2, "ABCh", 2748},
      {2, "12XH", 12}, {2, "1F\0H"s, 31}, {2, "\t1FH", 31}, {2, "1FH ", 1},   {2, "   ", 0},
      {0, "1FH", 0},   {3, "H1F", 0},
  };
  for (Auto const& a : autos) {
    EXPECT_EQ(Make(a.text).ToUnsignedAutoRadix(a.mode), a.expected)
        << "mode " << a.mode << " on " << a.text;
  }
}

// Bytes compare as signed chars; "blind" ignores case. Each relational
// operator gives the same with a `char const*` on either side.
TEST(CZEL_StringTest, CompareOrdersSignedBytes) {
  auto flags = [](auto const& l, auto const& r) {
    return (l == r) | (l != r) << 1 | (l < r) << 2 | (l <= r) << 3 | (l > r) << 4 | (l >= r) << 5;
  };
  struct Case {
    char const* a;
    char const* b;
    signed char matching, blind;
  } const cases[] = {
      {"a", "ab", -1, -1},  {"\xE9", "A", -1, -1}, {"abc\xE9", "abc", 1, 1},
      {"abc", "ABC", 1, 0}, {"_", "z", -1, 1},     {"a", "a", 0, 0},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.a << " / " << c.b);
    CZEL_String a(c.a);
    CZEL_String const b(c.b);
    EXPECT_EQ(CZEL_String::CS_Compare(c.a, c.b), c.matching);
    EXPECT_EQ(a.CompareNoMatchingCase(b), c.blind);
    int const expected = c.matching == 0 ? 1 | 8 | 32 : c.matching < 0 ? 2 | 4 | 8 : 2 | 16 | 32;
    EXPECT_TRUE(flags(a, b) == expected && flags(a, c.b) == expected && flags(c.a, b) == expected);
  }
  std::map<CZEL_String, int> const sorted{{CZEL_String("b"), 2}, {CZEL_String("a"), 1}};
  EXPECT_EQ(sorted.begin()->second, 1);
}

// FindFromEnd of a character from the length finds the terminator; FindFromBegin doesn't.
// A pattern found from the end may reach past `start`.
TEST(CZEL_StringTest, SearchBounds) {
  CZEL_String const s("abcabc");
  CZEL_String const bc("bc");
  ZEL::u32 pos = 777;
  EXPECT_EQ(s.FindFromBegin('\0', &pos, 0) + s.FindFromBegin('a', &pos, 6), 0);
  EXPECT_EQ(s.FindFromEnd('\0', &pos, 7) + s.FindFromEnd(bc, &pos, 1, 0), 0);
  EXPECT_EQ(s.FindFromBegin(bc, &pos, 1, 5) + s.FindFromBegin(CZEL_String(""), &pos, 1, 0), 0);
  EXPECT_EQ(pos, 777u);
  EXPECT_TRUE(s.FindFromEnd('\0', &pos, 6) && pos == 6);
  EXPECT_TRUE(s.FindFromEnd('c', &pos, 99) && pos == 5);
  EXPECT_TRUE(s.FindFromBegin(bc, &pos, 1, 4) && pos == 4);
  EXPECT_TRUE(s.FindFromEnd(bc, &pos, 1, 1) && pos == 1);
}

// Inner empty tags are kept, a final one dropped; the old items go. On
// failure `ExtractEncapsulatedString` leaves `out` as it was.
TEST(CZEL_StringTest, ExtractTagsAndEncapsulatedStrings) {
  struct Tags {
    std::string text;
    std::vector<std::string> tags;
  } const tags[] = {{"a,b,", {"a", "b"}}, {",a", {"", "a"}}, {"a,,b", {"a", "", "b"}}, {"", {}}};
  for (Tags const& t : tags) {
    CZEL_StringList list(2, CZEL_String("old"));
    Make(t.text).ExtractTags(',', list);
    std::vector<std::string> texts;
    for (ZEL::u32 i = 0; i < list.GetLength(); ++i) texts.push_back(Text(list[i]));
    EXPECT_EQ(texts, t.tags) << '"' << t.text << '"';
  }
  struct Encapsulated {
    char const* text;
    ZEL::u32 code;
    char const* out;
  } const encapsulated[] = {{"x[]y", 0, ""},
                            {"[a[b]c]", 0, "a[b"},
                            {"]x[y]", 0, "y"},
                            {"x[abc", ZEL_ERR_BAD_FORMAT, "kept"},
                            {"abc]", ZEL_ERR_BAD_FORMAT, "kept"}};
  for (Encapsulated const& e : encapsulated) {
    CZEL_String out("kept");
    EXPECT_EQ(CZEL_String(e.text).ExtractEncapsulatedString('[', ']', out), e.code) << e.text;
    EXPECT_TRUE(Holds(out, e.out)) << e.text;
  }
}

// A move hands the buffer over, also between equal lengths, and leaves the
// source empty.
TEST(CZEL_StringTest, MovesHandTheBufferOver) {
  CZEL_String a("abc"), b, c("xyz");
  swap(a, b);
  char const* moved = b.GetStringC();
  c = std::move(b);
  CZEL_String d(std::move(c));
  EXPECT_TRUE(Holds(a, "") && Holds(b, "") && Holds(c, "") && Holds(d, "abc") &&
              d.GetStringC() == moved);
}

// The buffer stays exactly length + 1 bytes as it grows in place: one byte
// further is outside the allocation.
#if defined(__SANITIZE_ADDRESS__)
#define ZEL_TEST_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZEL_TEST_ASAN 1
#endif
#endif
#ifdef ZEL_TEST_ASAN
TEST(CZEL_StringDeathTest, GrownBufferEndsAtItsTerminator) {
  CZEL_String s("ab");
  for (int i = 0; i < 300; ++i) s.Insert('x', s.GetLength()) += s.Left(i % 3);
  char const volatile* text = s.SetLength(s.GetLength() + 1, 'y').GetStringC();
  EXPECT_DEATH(static_cast<void>(text[s.GetLength() + 1]), "heap-buffer-overflow");
}
#endif

}  // namespace

TEST(CZEL_StringTest, SmallEditsAndNumberForms) {
  CZEL_String s("banana");
  s.RemoveChar('n').ReplaceChar('a', 'o');  // "booo"
  s.SetChar(1, 'e');
  s.SetChar(9, 'x');  // past the end: nothing
  char c_text[8];
  s.ToStringC(c_text);
  EXPECT_STREQ(c_text, "beoo");
  EXPECT_STREQ(CZEL_String("abcdef").ResizeRightFromPos(4).GetStringC(), "ef");
  EXPECT_STREQ(CZEL_String("toolong").SetFormatted(4, CZEL_String::ALIGN_LEFT, '.').GetStringC(),
               "tool");
  std::pair<char, char const*> const forms[] = {{'f', "0.5"}, {'F', "0.5"},     {'g', "0.5"},
                                                {'G', "0.5"}, {'e', "5.0e-01"}, {'E', "5.0E-01"},
                                                {'x', ""}};
  for (auto const& form : forms) {
    EXPECT_STREQ(s.SetFromNumber(0.5, form.first, 1).GetStringC(), form.second) << form.first;
  }
  EXPECT_STREQ(s.SetFromNumber(ZEL::i64(-42)).GetStringC(), "-42");
  EXPECT_STREQ(s.SetFromNumber(ZEL::u64(255), 16, 0, ' ').GetStringC(), "ff");
  EXPECT_DOUBLE_EQ(CZEL_String("2.5e1x").ToDouble(), 25.0);
  CZEL_StringVector tags;
  CZEL_String("a,,b").ExtractTags(',', tags);
  EXPECT_EQ(tags.GetLength(), 3u);
  CZEL_String("").ExtractTags(',', tags);
  EXPECT_EQ(tags.GetLength(), 0u);
}
