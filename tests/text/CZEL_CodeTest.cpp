// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_Code.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

std::string Field(CZEL_Code const& code, char const* name) {
  return Text(code.GetField(CZEL_String(name)));
}

// Each field gets "v" followed by its name, then the coded string is built.
// A failing template, or one without a complete field, leaves no fields: the
// earlier field "old" is gone either way.
TEST(CZEL_CodeTest, FormatBuildsTheCodedStringOrLeavesTheObjectEmpty) {
  struct Case {
    char const* format;
    ZEL::u32 code;
    std::vector<char const*> fields;
    char const* coded;
  } const cases[] = {
      {"<a><b>", ZEL_ERR_BAD_FORMAT, {}, ""},
      {"<>", ZEL_ERR_BAD_FORMAT, {}, ""},
      {"<a>x<a>", ZEL_ERR_BAD_FORMAT, {}, ""},
      {"", 0, {}, ""},
      {"abc<def", 0, {}, ""},
      {"id=<id>;name=<name>;", 0, {"id", "name"}, "id=vid;name=vname"},  // last literal dropped
      {"<a>b<c", 0, {"a"}, "vab"},          // unterminated field dropped, literal kept
      {"a>b<c>", 0, {"c"}, "a>bvc"},        // '>' outside a field is text
      {"x<a<b>", 0, {"a<b"}, "xva<b"},      // '<' inside a field is part of its name
      {"<A>:<a>", 0, {"A", "a"}, "vA:va"},  // names are case-sensitive
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.format);
    CZEL_Code code(CZEL_String("<old>="));
    code.SetField("old", "1");
    EXPECT_EQ(code.Format(CZEL_String(c.format)), c.code);
    for (char const* name : c.fields) code.SetField(CZEL_String(name), CZEL_String("v") + name);
    EXPECT_EQ(Text(code.GetString()), c.coded);
    EXPECT_EQ(Field(code, "old"), "(*this)");
  }
  EXPECT_EQ(ZEL_ERR_BAD_FORMAT, 11u);
}

// Fields a and b hold "old" before; "(*this)": the template has no such field.
TEST(CZEL_CodeTest, SetTakesACodedStringApart) {
  struct Case {
    char const* format;
    char const* coded;
    char const* a;
    char const* b;
  } const cases[] = {
      {"a=<a>;b=<b>;", "junk a=7;b=x", "7", "x"},  // text before the first literal skipped
      {"a=<a>;b=<b>;", "a=7;b=x;", "7", "x;"},     // the last field takes the rest
      {"a=<a>;b=<b>;", "a=7,b=x", "old", "old"},   // ";b=" missing: nothing changes
      {"a=<a>;b=<b>;", "A=7;b=x", "old", "old"},   // literals match with exact case
      {"<a>-<b>", "1-2-3", "1", "2-3"},
      {"<a>-<b>", "1-", "1", "old"},  // the last field keeps its value
      {"<a>b<c", "1b2", "1", "(*this)"},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.format << " on " << c.coded);
    CZEL_Code code(CZEL_String(c.format));
    code.SetField("a", "old").SetField("b", "old");
    EXPECT_EQ(&code.Set(CZEL_String(c.coded)), &code);
    EXPECT_EQ(Field(code, "a"), c.a);
    EXPECT_EQ(Field(code, "b"), c.b);
  }
  CZEL_Code mine(CZEL_String("<a>/<b>"));
  mine.SetField("a", "A0").SetField("b", "B0");
  CZEL_Code other(CZEL_String("<b>:<c>"));
  other.SetField("b", "B1").SetField("c", "C1");
  EXPECT_EQ(&mine.Set(other), &mine);  // shared names only
  EXPECT_EQ(Text(mine.GetString()), "A0/B1");
  EXPECT_EQ(Field(mine, "c"), "(*this)");
}

// Copies own their nodes: either one may be destroyed first, and the other
// goes on working. The sanitizers see any double free.
TEST(CZEL_CodeTest, CopiesAreIndependentInEitherOrder) {
  for (bool sourceFirst : {true, false}) {
    auto source = std::make_unique<CZEL_Code>(CZEL_String("k=<k>;v=<v>;"));
    source->SetField("k", "1").SetField("v", "2");
    auto copy = std::make_unique<CZEL_Code>(*source);
    CZEL_Code assigned(CZEL_String("<old>x<older>"));
    assigned = *source;
    copy->SetField("k", "9");
    (sourceFirst ? source : copy).reset();
    CZEL_Code& survivor = sourceFirst ? *copy : *source;
    EXPECT_EQ(Text(survivor.GetString()), sourceFirst ? "k=9;v=2" : "k=1;v=2");
    EXPECT_EQ(Text(survivor.Set(CZEL_String("k=3;v=4")).GetString()), "k=3;v=4");
    EXPECT_EQ(Text(assigned.GetString()), "k=1;v=2");
  }
  CZEL_Code code(CZEL_String("<a>=<b>"));
  code.SetField("a", "x");
  code = static_cast<CZEL_Code const&>(code);
  EXPECT_EQ(Text(code.GetString()), "x=");
  CZEL_Code moved(std::move(code)), other;  // moves and swaps hand the nodes over
  other = std::move(moved);
  swap(code, other);
  EXPECT_EQ(Text(code.GetString()) + Text(other.GetString()) + Text(moved.GetString()), "x=");
}

}  // namespace
