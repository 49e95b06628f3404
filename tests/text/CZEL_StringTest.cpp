#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

namespace {

// The text with all its bytes, embedded zeros included.
std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

// The string holds `expected` and keeps its invariants: a buffer, and a
// terminator right after the last character.
::testing::AssertionResult Holds(CZEL_String const& s, std::string const& expected) {
  if (s.GetStringC() == nullptr) return ::testing::AssertionFailure() << "null buffer";
  if (s.GetStringC()[s.GetLength()] != 0) return ::testing::AssertionFailure() << "no terminator";
  if (Text(s) != expected) {
    return ::testing::AssertionFailure() << "holds \"" << Text(s) << "\", expected \"" << expected << "\"";
  }
  return ::testing::AssertionSuccess();
}

// Reaches the protected buffer helpers and fields.
class ProbeString : public CZEL_String {
 public:
  using CZEL_String::CZEL_String;
  using CZEL_String::ClearBuffer;
  using CZEL_String::DataCopy;
  using CZEL_String::DeleteBuffer;
  using CZEL_String::NewBuffer;
  char* Buffer() const { return m_Text; }
  ZEL::u32 Length() const { return m_Length; }
};

TEST(CZEL_StringTest, ConstructionAndConcatenation) {
  CZEL_String const zeros("ab\0c\0", 5);
  CZEL_String const base("ab");
  struct Case {
    CZEL_String made;
    std::string expected;
  } const cases[] = {
      {CZEL_String(), ""},         {CZEL_String('x'), "x"},          {CZEL_String('\0'), "\0"s},
      {CZEL_String(3u, 'x'), "xxx"}, {CZEL_String(0u, 'x'), ""},     {CZEL_String(""), ""},
      {zeros, "ab\0c\0"s},          {base + CZEL_String("c"), "abc"}, {base + '\0', "ab\0"s},
      {base + "cd", "abcd"},       {base + "", "ab"},                {'x' + base, "xab"},
      {"xy" + base, "xyab"},       {"" + base, "ab"},                {base, "ab"},
  };
  for (Case const& c : cases) EXPECT_TRUE(Holds(c.made, c.expected)) << Text(c.made);

  CZEL_String s("ab");
  s += s;
  EXPECT_TRUE(Holds(s, "abab"));
  char* before = s.GetStringC();
  EXPECT_EQ(&(s += ""), &s);
  s += CZEL_String();
  EXPECT_EQ(s.GetStringC(), before);  // appending nothing changes nothing
  s += '\0';
  s += zeros;
  EXPECT_TRUE(Holds(s, "abab\0ab\0c\0"s));
}

TEST(CZEL_StringTest, BufferHelpers) {
  ProbeString s("abc");
  char* before = s.Buffer();
  s.NewBuffer(3);  // an equal non-zero size keeps buffer and text
  s.DataCopy(s);
  EXPECT_EQ(s.Buffer(), before);
  EXPECT_TRUE(Holds(s, "abc"));
  s.NewBuffer(5);
  EXPECT_EQ(s.Length(), 5u);
  EXPECT_EQ(s.Buffer()[5], 0);
  s.ClearBuffer();
  EXPECT_TRUE(Holds(s, ""));
  before = s.Buffer();
  s.ClearBuffer();  // empty already: nothing happens
  EXPECT_EQ(s.Buffer(), before);
  s.DataCopy(s);
  EXPECT_TRUE(Holds(s, ""));
  s.DeleteBuffer();
  EXPECT_EQ(s.Buffer(), nullptr);
  EXPECT_EQ(s.Length(), 0u);
  s.DeleteBuffer();
  s.NewBuffer(0);
  EXPECT_TRUE(Holds(s, ""));
}

TEST(CZEL_StringTest, Assignment) {
  CZEL_String s("abc");
  CZEL_String& self = s;
  s = self;
  EXPECT_TRUE(Holds(s, "abc"));
  CZEL_String empty;
  empty = static_cast<CZEL_String const&>(empty);
  EXPECT_TRUE(Holds(empty, ""));

  char* before = s.GetStringC();
  s = CZEL_String("x\0z", 3);
  EXPECT_EQ(s.GetStringC(), before);  // an equal non-zero length keeps the buffer
  EXPECT_TRUE(Holds(s, "x\0z"s));
  s = "xyz";
  s = s.GetStringC() + 1;
  EXPECT_TRUE(Holds(s, "yz"));
  EXPECT_EQ(&(s = '\0'), &s);
  EXPECT_TRUE(Holds(s, "\0"s));
}

TEST(CZEL_StringTest, Reading) {
  CZEL_String s("abc");
  EXPECT_EQ(s.GetChar(2), 'c');
  EXPECT_EQ(s.GetChar(3), 0);
  EXPECT_EQ(s.GetChar(100), 0);
  char out[4] = {'#', '#', '#', '#'};
  s.ToStringC(out);
  EXPECT_STREQ(out, "abc");
  s.GetStringC()[0] = 'X';  // the buffer itself, not a copy
  EXPECT_TRUE(Holds(s, "Xbc"));
}

struct SubstringCase {
  char const* label;
  CZEL_String (*take)(CZEL_String const&);
  char const* expected;
};

#define SUB(call, expected) \
  SubstringCase { #call, [](CZEL_String const& s) { return s.call; }, expected }

TEST(CZEL_StringTest, SubstringsCutQuietly) {
  SubstringCase const cases[] = {
      SUB(Left(0), ""),           SUB(Left(2), "ab"),           SUB(Left(3), "abc"),
      SUB(Left(99), "abc"),       SUB(Right(0), ""),            SUB(Right(2), "bc"),
      SUB(Right(99), "abc"),      SUB(Mid(0, 3), "abc"),        SUB(Mid(1, 1), "b"),
      SUB(Mid(2, 99), "c"),       SUB(Mid(1, 0xFFFFFFFF), "bc"), SUB(Mid(1, 0), ""),
      SUB(Mid(3, 1), ""),         SUB(Mid(99, 1), ""),          SUB(RightFromPos(0), "abc"),
      SUB(RightFromPos(2), "c"),  SUB(RightFromPos(3), ""),     SUB(RightFromPos(99), ""),
  };
  CZEL_String const source("abc");
  for (SubstringCase const& c : cases) {
    EXPECT_TRUE(Holds(c.take(source), c.expected)) << c.label;
  }
  EXPECT_TRUE(Holds(source, "abc"));
}

struct EditCase {
  char const* label;
  std::string start;
  CZEL_String& (*edit)(CZEL_String&);
  std::string expected;
};

#define EDIT(start, call, expected) \
  EditCase { #call, start, [](CZEL_String& s) -> CZEL_String& { return s.call; }, expected }

void RunEdits(EditCase const* begin, EditCase const* end) {
  for (EditCase const* c = begin; c != end; ++c) {
    CZEL_String s(c->start.data(), static_cast<ZEL::u32>(c->start.size()));
    EXPECT_EQ(&c->edit(s), &s) << c->label;
    EXPECT_TRUE(Holds(s, c->expected)) << c->label << " on \"" << c->start << "\"";
  }
}

TEST(CZEL_StringTest, InPlaceSubstringsDifferAtTheirBounds) {
  EditCase const cases[] = {
      EDIT("abc", ResizeLeft(4), "abc"),       EDIT("abc", ResizeLeft(3), "abc"),
      EDIT("abc", ResizeLeft(1), "a"),         EDIT("abc", ResizeLeft(0), ""),
      EDIT("abc", ResizeRight(4), "abc"),      EDIT("abc", ResizeRight(2), "bc"),
      EDIT("abc", ResizeRight(0), ""),         EDIT("abc", ResizeMid(3, 1), ""),
      EDIT("abc", ResizeMid(1, 99), "bc"),     EDIT("abc", ResizeMid(1, 1), "b"),
      EDIT("abc", ResizeMid(0, 0), ""),        EDIT("abc", ResizeRightFromPos(5), ""),
      EDIT("abc", ResizeRightFromPos(3), ""),  EDIT("abc", ResizeRightFromPos(1), "bc"),
  };
  RunEdits(std::begin(cases), std::end(cases));
}

CZEL_String const kXY("XY");
CZEL_String const kXYZ("XYZ");
CZEL_String const kAbcdef("abcdef");

TEST(CZEL_StringTest, InsertAndRemove) {
  EditCase const cases[] = {
      EDIT("abc", Insert('x', 0), "xabc"),           EDIT("abc", Insert('x', 1), "axbc"),
      EDIT("abc", Insert('x', 3), "abcx"),           EDIT("abc", Insert('x', 4), "abc"),
      EDIT("", Insert('\0', 0), "\0"s),              EDIT("ab", Insert(kXYZ, 0, 0, 0), "ab"),
      EDIT("ab", Insert(kAbcdef, 1, 3, 2), "ab"),    EDIT("ab", Insert(kAbcdef, 1, 1, 3), "abcdb"),
      EDIT("ab", Insert(kXYZ, 0, 0, 100), "XYZab"),  EDIT("ab", Insert(kXYZ, 2, 1, 100), "abYZ"),
      EDIT("ab", Insert(kXYZ, 3, 0, 3), "ab"),       EDIT("ab", Insert(kXYZ, 1, 2, 0xFFFFFFFF), "aZb"),
      EDIT("abc", RemoveChars(1, 1), "ac"),          EDIT("abc", RemoveChars(1, 99), "a"),
      EDIT("abc", RemoveChars(0, 3), ""),            EDIT("abc", RemoveChars(1, 0), "abc"),
      EDIT("abc", RemoveChars(3, 1), "abc"),         EDIT("abc", RemoveChars(4, 1), "abc"),
      EDIT("abcab", RemoveChar('a'), "bcb"),         EDIT("aaa", RemoveChar('a'), ""),
      EDIT("a\0b\0"s, RemoveChar('\0'), "ab"),       EDIT("abc", RemoveChar('z'), "abc"),
  };
  RunEdits(std::begin(cases), std::end(cases));
}

TEST(CZEL_StringTest, ReplaceCharsAndReplaceString) {
  EditCase const cases[] = {
      EDIT("abcd", ReplaceChars(kXY, 1, 0, 2), "aXYd"),      EDIT("abcd", ReplaceChars(kXY, 9, 0, 2), "abcdXY"),
      EDIT("abcd", ReplaceChars(kXY, 4, 0, 2), "abcdXY"),    EDIT("abcd", ReplaceChars(kXY, 1, 5, 2), "ad"),
      EDIT("abcd", ReplaceChars(kXY, 1, 1, 2), "aYd"),       EDIT("abcd", ReplaceChars(kXY, 1, 0, 9), "aXYd"),
      EDIT("abcd", ReplaceChars(kXY, 3, 0, 2), "abcXY"),     EDIT("abcd", ReplaceString(kXYZ, 1, 1, 0, 3), "aXYZcd"),
      EDIT("abcd", ReplaceString(kXYZ, 1, 9, 0, 3), "aXYZ"), EDIT("abcd", ReplaceString(kXYZ, 1, 0, 1, 1), "aYbcd"),
      EDIT("abcd", ReplaceString(kXYZ, 1, 2, 0, 0), "ad"),   EDIT("abcd", ReplaceString(kXYZ, 9, 2, 0, 3), "abcdXYZ"),
      EDIT("abcd", ReplaceString(kXYZ, 0, 4, 0, 3), "XYZ"),
      // The tail length wraps in 32 bits: 4 - 1 - 0xFFFFFFFF is 4, all of it.
      EDIT("abcd", ReplaceString(kXYZ, 1, 0xFFFFFFFF, 0, 3), "aXYZabcd"),
  };
  RunEdits(std::begin(cases), std::end(cases));
}

TEST(CZEL_StringTest, WholeStringEdits) {
  EditCase const cases[] = {
      EDIT("abc", Build(3, 'z'), "zzz"),            EDIT("abc", Build(0, 'z'), ""),
      EDIT("abc", Build(2, '\0'), "\0\0"s),          EDIT("abc", SetLength(2, ' '), "ab"),
      EDIT("abc", SetLength(5, '-'), "abc--"),      EDIT("abc", SetLength(0, ' '), ""),
      EDIT("abc", SetLength(3, '-'), "abc"),        EDIT("abc", SetLength(4, '\0'), "abc\0"s),
      EDIT("AbC1", SetCase(0), "abc1"),             EDIT("AbC1", SetCase(1), "ABC1"),
      EDIT("AbC1", SetCase(2), "AbC1"),             EDIT("abca", ReplaceChar('a', 'x'), "xbcx"),
      EDIT("@[`{\xC9", SetCase(0), "@[`{\xC9"),     EDIT("@[`{\xE9", SetCase(1), "@[`{\xE9"),
      EDIT("  a  ", Trim(' ', 1), "a  "),           EDIT("  a  ", Trim(' ', 2), "  a"),
      EDIT("  a  ", Trim(' ', 3), "a"),             EDIT("  a  ", Trim(' ', 0), "  a  "),
      EDIT("  a  ", Trim(' ', 4), "  a  "),         EDIT("  a  ", Trim(' ', 7), "a"),
      EDIT("   ", Trim(' ', 3), ""),                EDIT("   ", Trim(' ', 2), ""),
      EDIT("xxaxx", Trim('x', 3), "a"),             EDIT("", Trim(' ', 3), ""),
  };
  RunEdits(std::begin(cases), std::end(cases));
}

#define FIT(start, width, align, expected) \
  EDIT(start, SetFormatted(width, static_cast<CZEL_String::t_Align>(align), '.'), expected)

TEST(CZEL_StringTest, SetFormattedFitsTheField) {
  EditCase const cases[] = {
      FIT("ab", 5, CZEL_String::ALIGN_LEFT, "ab..."),  FIT("ab", 5, CZEL_String::ALIGN_RIGHT, "...ab"),
      FIT("ab", 5, CZEL_String::ALIGN_CENTER, ".ab.."), FIT("ab", 6, CZEL_String::ALIGN_CENTER, "..ab.."),
      FIT("ab", 3, CZEL_String::ALIGN_CENTER, "ab."),   FIT("abcd", 2, CZEL_String::ALIGN_LEFT, "ab"),
      FIT("abcd", 2, CZEL_String::ALIGN_RIGHT, "cd"),   FIT("abcd", 2, CZEL_String::ALIGN_CENTER, "ab"),
      FIT("abcd", 3, 7, "..."),                        FIT("abcd", 0, CZEL_String::ALIGN_RIGHT, ""),
  };
  RunEdits(std::begin(cases), std::end(cases));
}

TEST(CZEL_StringTest, InPlaceCharacterEditsKeepTheBuffer) {
  CZEL_String s("Abc");
  char* before = s.GetStringC();
  s.SetChar(1, '\0');
  s.SetChar(3, 'x');  // can't grow the string
  s.ReplaceChar('A', 'q');
  s.SetCase(1);
  EXPECT_EQ(s.GetStringC(), before);
  EXPECT_TRUE(Holds(s, "Q\0C"s));
}

TEST(CZEL_StringTest, EditsFromTheStringItself) {
  CZEL_String s("abc");
  s.Insert(s, 1, 0, 3);
  EXPECT_TRUE(Holds(s, "aabcbc"));
  s = "abcd";
  s.ReplaceString(s, 1, 2, 0, 4);
  EXPECT_TRUE(Holds(s, "aabcdd"));
  s = "abcd";
  s.ReplaceChars(s, 2, 0, 2);
  EXPECT_TRUE(Holds(s, "abab"));
}

}  // namespace
