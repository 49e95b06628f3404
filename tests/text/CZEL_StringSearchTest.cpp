#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace std::string_literals;

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

CZEL_String Make(std::string const& text) {
  return CZEL_String(text.data(), static_cast<ZEL::u32>(text.size()));
}

std::vector<std::string> Items(CZEL_StringList& list) {
  std::vector<std::string> items;
  list.ToStart();
  for (ZEL::u32 i = 0; i < list.GetLength(); ++i) items.push_back(Text(list.Next(1)));
  return items;
}

std::vector<std::string> Items(CZEL_StringVector const& vector) {
  std::vector<std::string> items;
  for (ZEL::u32 i = 0; i < vector.GetLength(); ++i) items.push_back(Text(vector[i]));
  return items;
}

// Orders of NUL-terminated texts: signed bytes, up to the first zero.
TEST(CZEL_StringSearchTest, CompareOrdersSignedBytes) {
  struct Case {
    char const* a;
    char const* b;
    signed char matching;
    signed char blind;
  } const cases[] = {
      {"a", "a", 0, 0},           {"a", "ab", -1, -1},      {"ab", "a", 1, 1},
      {"", "", 0, 0},             {"", "a", -1, -1},        {"\xE9", "A", -1, -1},
      {"abc", "abc\xE9", -1, -1}, {"abc\xE9", "abc", 1, 1}, {"\x7F", "\x80", 1, 1},
      {"abc", "ABC", 1, 0},       {"B", "a", -1, 1},        {"[", "z", -1, 1},
      {"_", "z", -1, 1},          {"a\xE9", "A\xC9", 1, 1},
  };
  for (Case const& c : cases) {
    CZEL_String const a(c.a);
    CZEL_String const b(c.b);
    EXPECT_EQ(CZEL_String::CS_Compare(c.a, c.b), c.matching) << c.a << " / " << c.b;
    EXPECT_EQ(a.CompareMatchingCase(b), c.matching) << c.a << " / " << c.b;
    EXPECT_EQ(CZEL_String::CompareMatchingCase(a, b), c.matching) << c.a << " / " << c.b;
    EXPECT_EQ(a.CompareNoMatchingCase(b), c.blind) << c.a << " / " << c.b;
    EXPECT_EQ(CZEL_String::CompareNoMatchingCase(a, b), c.blind) << c.a << " / " << c.b;
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

// Both forms of ==, !=, <, <=, >, >=, case-sensitive.
TEST(CZEL_StringSearchTest, RelationalOperators) {
  struct Case {
    char const* a;
    char const* b;
    std::vector<int> results;
  } const cases[] = {
      {"abc", "abc", {1, 0, 0, 1, 0, 1}}, {"\xE9", "A", {0, 1, 1, 1, 0, 0}},
      {"abc", "ABC", {0, 1, 0, 0, 1, 1}},
  };
  for (Case const& c : cases) {
    CZEL_String a(c.a);
    CZEL_String const b(c.b);
    std::vector<int> const member = {a == b, a != b, a < b, a <= b, a > b, a >= b};
    std::vector<int> const text = {c.a == b, c.a != b, c.a < b, c.a <= b, c.a > b, c.a >= b};
    EXPECT_EQ(member, c.results) << c.a << " / " << c.b;
    EXPECT_EQ(text, c.results) << c.a << " / " << c.b;
  }
}

// One table for the four searches. `found` kNone: the search gives 0 and
// leaves the position alone.
constexpr ZEL::u32 kNone = 0xFFFFFFFF;
enum Kind { kCharBegin, kCharEnd, kTextBegin, kTextEnd };

struct Search {
  Kind kind;
  std::string text;
  std::string pattern;  // one character for the character searches
  ZEL::u8 matchCase;
  ZEL::u32 start;
  ZEL::u32 found;
};

TEST(CZEL_StringSearchTest, SearchBounds) {
  Search const cases[] = {
      {kCharBegin, "abcab", "a", 1, 1, 3},        {kCharBegin, "abcab", "b", 1, 4, 4},
      {kCharBegin, "abcab", "a", 1, 4, kNone},    {kCharBegin, "abcab", "a", 1, 5, kNone},
      {kCharBegin, "abcab", "a", 1, 6, kNone},    {kCharBegin, "abc", "\0"s, 1, 0, kNone},
      {kCharBegin, "a\0b"s, "\0"s, 1, 0, 1},      {kCharBegin, "", "a", 1, 0, kNone},
      {kCharEnd, "abcabc", "a", 1, 6, 3},         {kCharEnd, "abcabc", "c", 1, 2, 2},
      {kCharEnd, "abcabc", "c", 1, 99, 5},        {kCharEnd, "abcabc", "a", 1, 0, 0},
      {kCharEnd, "abcabc", "b", 1, 0, kNone},     {kCharEnd, "abcabc", "\0"s, 1, 6, 6},  // the terminator
      {kCharEnd, "abcabc", "\0"s, 1, 7, kNone},   {kCharEnd, "a\0b"s, "\0"s, 1, 99, 1},
      {kCharEnd, "", "\0"s, 1, 0, kNone},
      {kTextBegin, "abcabc", "bc", 1, 0, 1},      {kTextBegin, "abcabc", "bc", 1, 2, 4},
      {kTextBegin, "abcabc", "bc", 1, 4, 4},      {kTextBegin, "abcabc", "bc", 1, 5, kNone},
      {kTextBegin, "abcabc", "abcabc", 1, 0, 0},  {kTextBegin, "abcabc", "abcabcx", 1, 0, kNone},
      {kTextBegin, "abcabc", "bc", 1, kNone, kNone}, {kTextBegin, "abcabc", "", 1, 0, kNone},
      {kTextBegin, "", "a", 1, 0, kNone},         {kTextBegin, "xabc", "ABC", 0, 0, 1},
      {kTextBegin, "xabc", "ABC", 1, 0, kNone},   {kTextBegin, "x{@", "[`", 0, 0, kNone},
      {kTextBegin, "ab\0cd"s, "b\0c"s, 1, 0, 1},  {kTextBegin, "aab", "ab", 1, 0, 1},
      {kTextEnd, "abcabc", "bc", 1, 99, 4},       {kTextEnd, "abcabc", "bc", 1, 6, 4},
      {kTextEnd, "abcabc", "bc", 1, 3, 1},        {kTextEnd, "abcabc", "bc", 1, 1, 1},  // reaches past start
      {kTextEnd, "abcabc", "bc", 1, 0, kNone},    {kTextEnd, "abcabc", "c", 1, 6, 5},
      {kTextEnd, "abcabc", "abc", 1, 0, 0},       {kTextEnd, "abcabc", "abcabcx", 1, 99, kNone},
      {kTextEnd, "abcabc", "", 1, 99, kNone},     {kTextEnd, "", "a", 1, 0, kNone},
      {kTextEnd, "xabcx", "ABC", 0, 99, 1},       {kTextEnd, "xabcx", "ABC", 1, 99, kNone},
  };
  for (Search const& c : cases) {
    CZEL_String const s = Make(c.text);
    CZEL_String const pattern = Make(c.pattern);
    ZEL::u32 pos = 777;
    ZEL::u8 result = 0;
    switch (c.kind) {
      case kCharBegin: result = s.FindFromBegin(c.pattern[0], &pos, c.start); break;
      case kCharEnd: result = s.FindFromEnd(c.pattern[0], &pos, c.start); break;
      case kTextBegin: result = s.FindFromBegin(pattern, &pos, c.matchCase, c.start); break;
      case kTextEnd: result = s.FindFromEnd(pattern, &pos, c.matchCase, c.start); break;
    }
    EXPECT_EQ(result, c.found != kNone ? 1 : 0) << c.kind << " " << c.text << " " << c.pattern << " " << c.start;
    EXPECT_EQ(pos, c.found != kNone ? c.found : 777u) << c.kind << " " << c.text << " " << c.start;
  }
}

TEST(CZEL_StringSearchTest, ExtractTagsKeepsInnerEmptyTagsAndDropsAFinalOne) {
  struct Case {
    std::string text;
    char separator;
    std::vector<std::string> tags;
  } const cases[] = {
      {"a,b", ',', {"a", "b"}},          {"a,b,", ',', {"a", "b"}},
      {",a", ',', {"", "a"}},            {"a,,b", ',', {"a", "", "b"}},
      {",", ',', {""}},                  {",,", ',', {"", ""}},
      {"", ',', {}},                     {"abc", ',', {"abc"}},
      {"a\0b,c"s, ',', {"a\0b"s, "c"}},  {"a\0\0b"s, '\0', {"a", "", "b"}},
      {"ab;cd", ';', {"ab", "cd"}},
  };
  for (Case const& c : cases) {
    CZEL_String const s = Make(c.text);
    CZEL_StringList list;
    list += CZEL_String("old");
    CZEL_StringVector vector(2, CZEL_String("old"));
    s.ExtractTags(c.separator, list);
    s.ExtractTags(c.separator, vector);
    EXPECT_EQ(Items(list), c.tags) << '"' << c.text << '"';
    EXPECT_EQ(Items(vector), c.tags) << '"' << c.text << '"';
  }
}

TEST(CZEL_StringSearchTest, ExtractEncapsulatedString) {
  struct Case {
    char const* text;
    char left;
    char right;
    ZEL::u32 code;
    char const* out;  // what `out` holds afterwards
  } const cases[] = {
      {"x[abc]y", '[', ']', 0, "abc"},   {"x[]y", '[', ']', 0, ""},
      {"[a[b]c]", '[', ']', 0, "a[b"},   {"]x[y]", '[', ']', 0, "y"},
      {"|a|b|", '|', '|', 0, "a"},       {"x[abc", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},
      {"abc]", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},
      {"ab[", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},  // left in the last place
      {"a|", '|', '|', ZEL_ERR_BAD_FORMAT, "kept"},   {"", '[', ']', ZEL_ERR_BAD_FORMAT, "kept"},
  };
  for (Case const& c : cases) {
    CZEL_String out("kept");
    EXPECT_EQ(CZEL_String(c.text).ExtractEncapsulatedString(c.left, c.right, out), c.code) << c.text;
    EXPECT_EQ(Text(out), c.out) << c.text;
  }
}

// Items chosen so that the two case modes order them differently; "A" and
// "a", equal without case, keep their order.
TEST(CZEL_StringSearchTest, NamedContainersSort) {
  struct Case {
    ZEL::u8 ascending;
    ZEL::u8 matchCase;
    std::vector<std::string> sorted;
  } const cases[] = {
      {1, 1, {"A", "C", "_", "a", "b"}}, {0, 1, {"b", "a", "_", "C", "A"}},
      {1, 0, {"A", "a", "b", "C", "_"}}, {0, 0, {"_", "C", "b", "A", "a"}},
      {2, 9, {"A", "C", "_", "a", "b"}},
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
