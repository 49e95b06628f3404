// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary bytes, zeros included, to CZEL_Code. The first byte gives
// the length of the template that follows it; the rest is a coded string.
// Beside memory and undefined-behaviour faults (copies are destroyed and
// formatted again in turn, so a shared node would show up as a double free
// or a use after free), it checks:
//   - the result of Format and the field names against a plain parse of the
//     template rules;
//   - that GetString builds the literals and values in template order;
//   - that a coded string whose values can't contain a literal is taken
//     apart again by Set into the same values;
//   - that copies and Set from another object give the same coded string.

#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/text/CZEL_Code.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

using zel_fuzz::Require;
using zel_fuzz::Text;

CZEL_String Make(std::string const& text) {
  return CZEL_String(text.data(), static_cast<ZEL::u32>(text.size()));
}

// The template as the rules read it: a field name between '<' and '>', text
// elsewhere; no empty or repeated name (names compare up to their first
// zero), no field right after a field; what follows the last field dropped.
struct SParsed {
  ZEL::u32 m_Code = ZEL_ERR_NONE;
  std::vector<std::string> m_Names;
  std::vector<std::string> m_Nodes;  // literal texts, and field names
  std::vector<bool> m_IsField;
};

SParsed Parse(std::string const& format) {
  SParsed parsed;
  SParsed kept;
  bool inTag = false;
  bool afterField = false;
  std::string run;
  for (char c : format) {
    if (inTag && c == '>') {
      bool repeated = false;
      for (std::string const& name : kept.m_Names) {
        repeated = repeated || std::strcmp(name.c_str(), run.c_str()) == 0;
      }
      if (run.empty() || repeated) {
        parsed.m_Code = ZEL_ERR_BAD_FORMAT;
        return parsed;
      }
      kept.m_Names.push_back(run);
      kept.m_Nodes.push_back(run);
      kept.m_IsField.push_back(true);
      run.clear();
      inTag = false;
      afterField = true;
    } else if (!inTag && c == '<') {
      if (afterField) {
        parsed.m_Code = ZEL_ERR_BAD_FORMAT;
        return parsed;
      }
      if (!run.empty()) {
        kept.m_Nodes.push_back(run);
        kept.m_IsField.push_back(false);
      }
      run.clear();
      inTag = true;
    } else {
      run += c;
      if (!inTag) afterField = false;
    }
  }
  return kept.m_Names.empty() ? parsed : kept;
}

// A byte that the template doesn't hold, so that values made of it can't
// contain a literal; 0 with `found` false if the template holds all 256.
char UnusedByte(std::string const& format, bool* found) {
  bool used[256] = {};
  for (char c : format) used[static_cast<unsigned char>(c)] = true;
  for (int b = 0; b < 256; ++b) {
    if (!used[b]) {
      *found = true;
      return static_cast<char>(b);
    }
  }
  *found = false;
  return 0;
}

void CheckRoundTrip(CZEL_Code& code, CZEL_String const& format, SParsed const& parsed) {
  bool found = false;
  char const fill = UnusedByte(Text(format), &found);
  if (!found) return;
  std::vector<std::string> values;
  for (std::size_t i = 0; i < parsed.m_Names.size(); ++i) {
    values.emplace_back(i + 1, fill);
    code.SetField(Make(parsed.m_Names[i]), Make(values[i]));
  }
  std::string expected;
  for (std::size_t n = 0, field = 0; n < parsed.m_Nodes.size(); ++n) {
    expected += parsed.m_IsField[n] ? values[field++] : parsed.m_Nodes[n];
  }
  CZEL_String const coded = code.GetString();
  Require(Text(coded) == expected);

  CZEL_Code fresh(format);
  fresh.Set(coded);
  for (std::size_t i = 0; i < parsed.m_Names.size(); ++i) {
    Require(Text(fresh.GetField(Make(parsed.m_Names[i]))) == values[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size == 0 || size > 1u << 16) return 0;
  std::size_t const formatLength = data[0] < size - 1 ? data[0] : size - 1;
  char const* bytes = reinterpret_cast<char const*>(data) + 1;
  CZEL_String const format(bytes, static_cast<ZEL::u32>(formatLength));
  CZEL_String const coded(bytes + formatLength, static_cast<ZEL::u32>(size - 1 - formatLength));

  SParsed const parsed = Parse(Text(format));
  auto code = std::make_unique<CZEL_Code>();
  code->SetField(CZEL_String("x"), CZEL_String("y"));  // nothing to set yet
  Require(code->Format(format) == parsed.m_Code);
  for (std::string const& name : parsed.m_Names) Require(Text(code->GetField(Make(name))).empty());
  if (parsed.m_Names.empty()) {
    Require(Text(code->GetString()).empty());
    Require(Text(code->GetField(CZEL_String("x"))) == "(*this)");
  } else {
    CheckRoundTrip(*code, format, parsed);
  }

  code->Set(coded);
  std::string const built = Text(code->GetString());

  // Copies keep working whichever object goes first.
  auto copy = std::make_unique<CZEL_Code>(*code);
  CZEL_Code assigned(CZEL_String("<p>-<q>"));
  assigned = *code;
  code->Format(CZEL_String("<gone>"));
  Require(Text(copy->GetString()) == built);
  code.reset();
  Require(Text(assigned.GetString()) == built);
  copy.reset();
  CZEL_Code other(format);
  other.Set(assigned);
  Require(Text(other.GetString()) == built);
  CZEL_Code const& same = assigned;
  assigned = same;
  Require(Text(assigned.GetString()) == built);
  return 0;
}
