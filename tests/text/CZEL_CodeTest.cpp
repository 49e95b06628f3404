#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_Code.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

std::string Field(CZEL_Code const& code, char const* name) { return Text(code.GetField(CZEL_String(name))); }

// Templates that fail, and templates without a complete field: both leave an
// object with no fields.
TEST(CZEL_CodeTest, TemplatesThatLeaveTheObjectEmpty) {
  struct Case { char const* format; ZEL::u32 code; } const cases[] = {
      {"<a><b>", ZEL_ERR_BAD_FORMAT},     {"<>", ZEL_ERR_BAD_FORMAT}, {"<a>x<a>", ZEL_ERR_BAD_FORMAT},
      {"<a>x<b><c>", ZEL_ERR_BAD_FORMAT}, {"", 0},                    {"abc<def", 0},                   {"a>b", 0},
  };
  for (Case const& c : cases) {
    CZEL_Code code(CZEL_String("<old>="));
    code.SetField("old", "1");
    EXPECT_EQ(code.Format(CZEL_String(c.format)), c.code) << c.format;
    EXPECT_EQ(Text(code.GetString()), "") << c.format;
    EXPECT_EQ(Field(code, "old"), "(*this)") << c.format;
    EXPECT_EQ(Field(code, "a"), "(*this)") << c.format;
  }
  EXPECT_EQ(Text(CZEL_Code(CZEL_String("<a><b>")).GetString()), "");
}

// Each field gets "v" followed by its name, then the coded string is built.
TEST(CZEL_CodeTest, TemplateShapesBuildTheirCodedString) {
  struct Case { char const* format; std::vector<char const*> fields; char const* coded; } const cases[] = {
      {"id=<id>;name=<name>;", {"id", "name"}, "id=vid;name=vname"},  // last literal dropped
      {"<a>-<b>", {"a", "b"}, "va-vb"},
      {"<a>tail", {"a"}, "va"},
      {"<a>b<c", {"a"}, "vab"},          // unterminated field dropped, literal kept
      {"a>b<c>", {"c"}, "a>bvc"},        // '>' outside a field is text
      {"x<a<b>", {"a<b"}, "xva<b"},      // '<' inside a field is part of its name
      {"<A>:<a>", {"A", "a"}, "vA:va"},  // names are case-sensitive
  };
  for (Case const& c : cases) {
    CZEL_Code code;
    EXPECT_EQ(code.Format(CZEL_String(c.format)), 0u) << c.format;
    for (char const* name : c.fields) {
      EXPECT_EQ(Field(code, name), "") << c.format << " " << name;
      code.SetField(CZEL_String(name), CZEL_String("v") + name);
    }
    EXPECT_EQ(Text(code.GetString()), c.coded) << c.format;
  }
}

// Fields a and b hold "old" before; "(*this)": the template has no such field.
TEST(CZEL_CodeTest, SetTakesACodedStringApart) {
  struct Case { char const* format; char const* coded; char const* a; char const* b; } const cases[] = {
      {"a=<a>;b=<b>;", "junk a=7;b=x", "7", "x"},   // text before the first literal skipped
      {"a=<a>;b=<b>;", "a=7;b=x;", "7", "x;"},      // the last field takes the rest
      {"a=<a>;b=<b>;", "a=7,b=x", "old", "old"},    // ";b=" missing: nothing changes
      {"a=<a>;b=<b>;", "A=7;b=x", "old", "old"},    // literals match with exact case
      {"<a>-<b>", "1-2-3", "1", "2-3"},             {"<a>-<b>", "-2", "", "2"},
      {"<a>-<b>", "1-", "1", "old"},                // the last field keeps its value
      {"<a>b<c", "1b2", "1", "(*this)"},            {"<a>tail", "xyz", "xyz", "(*this)"},
      {"[<a>]<b>", "x[1]2", "1", "2"},
  };
  for (Case const& c : cases) {
    CZEL_Code code(CZEL_String(c.format));
    code.SetField("a", "old").SetField("b", "old");
    EXPECT_EQ(&code.Set(CZEL_String(c.coded)), &code);
    EXPECT_EQ(Field(code, "a"), c.a) << c.format << " on " << c.coded;
    EXPECT_EQ(Field(code, "b"), c.b) << c.format << " on " << c.coded;
  }
  CZEL_Code code(CZEL_String("<a>"));
  EXPECT_EQ(&code.SetField("a", "7"), &code);
  code.SetField("nosuch", "v").SetField("A", "8");
  EXPECT_EQ(Text(code.GetString()), "7");
  EXPECT_EQ(Field(code, "A"), "(*this)");
}

// Templates and coded strings are read with all their bytes; names compare
// as strings do, up to their first zero.
TEST(CZEL_CodeTest, ZeroBytesAreOrdinaryCharacters) {
  CZEL_Code code(CZEL_String("<a>\0<b>", 7));
  code.Set(CZEL_String("x\0y\0z", 5));
  EXPECT_EQ(Field(code, "a"), "x");
  EXPECT_EQ(Field(code, "b"), std::string("y\0z", 3));
  EXPECT_EQ(Text(code.GetString()), std::string("x\0y\0z", 5));
  EXPECT_EQ(code.Format(CZEL_String("<a\0x>-<a\0y>", 11)), ZEL_ERR_BAD_FORMAT);
}

TEST(CZEL_CodeTest, SetFromAnotherCodeCopiesSharedNamesOnly) {
  CZEL_Code mine(CZEL_String("<a>/<b>"));
  mine.SetField("a", "A0").SetField("b", "B0");
  CZEL_Code other(CZEL_String("<b>:<c>"));
  other.SetField("b", "B1").SetField("c", "C1");
  EXPECT_EQ(&mine.Set(other), &mine);
  EXPECT_EQ(Text(mine.GetString()), "A0/B1");
  EXPECT_EQ(Field(mine, "c"), "(*this)");
  EXPECT_EQ(mine.Format(CZEL_String("<b>+<a>")), 0u);  // a new template drops the values
  EXPECT_EQ(Text(mine.GetString()), "+");
}

// Copies own their nodes: either one may be destroyed or formatted again
// first, and the other goes on working. The sanitizers see any double free.
TEST(CZEL_CodeTest, CopiesAreIndependentInEitherOrder) {
  for (bool sourceFirst : {true, false}) {
    auto source = std::make_unique<CZEL_Code>(CZEL_String("k=<k>;v=<v>;"));
    source->SetField("k", "1").SetField("v", "2");
    auto copy = std::make_unique<CZEL_Code>(*source);
    CZEL_Code assigned(CZEL_String("<old>x<older>"));
    assigned = *source;  // its earlier template is released
    copy->SetField("k", "9");
    EXPECT_EQ(Text(source->GetString()), "k=1;v=2");
    (sourceFirst ? source : copy).reset();
    CZEL_Code& survivor = sourceFirst ? *copy : *source;
    EXPECT_EQ(Text(survivor.GetString()), sourceFirst ? "k=9;v=2" : "k=1;v=2");
    survivor.Set(CZEL_String("k=3;v=4"));
    EXPECT_EQ(Text(survivor.GetString()), "k=3;v=4");
    survivor.Format(CZEL_String("<z>"));
    EXPECT_EQ(Text(assigned.GetString()), "k=1;v=2");
  }
  CZEL_Code code(CZEL_String("<a>=<b>"));
  code.SetField("a", "x");
  code = static_cast<CZEL_Code const&>(code);
  EXPECT_EQ(Text(code.GetString()), "x=");
  code = CZEL_Code();
  EXPECT_EQ(Field(code, "a"), "(*this)");
}

TEST(CZEL_CodeTest, NodesArePlainRecords) {
  EXPECT_EQ(CZEL_Code::NODE_FIELD, 0u);
  EXPECT_EQ(CZEL_Code::NODE_LITERAL, 1u);
  int cell = 0;
  CZEL_Code::CFormatNode a;
  a.m_Type = CZEL_Code::NODE_LITERAL;
  a.m_Data = &cell;
  CZEL_Code::CFormatList list;
  list += a;
  CZEL_Code::CFormatVector vector;
  vector = list;  // assignment copies the two words
  ASSERT_EQ(vector.GetLength(), 1u);
  EXPECT_EQ(vector[0].m_Type, CZEL_Code::NODE_LITERAL);
  EXPECT_EQ(vector[0].m_Data, &cell);
  EXPECT_EQ(a == vector[0], 0);  // both operators always 0
  EXPECT_EQ(a != vector[0], 0);
}

}  // namespace
