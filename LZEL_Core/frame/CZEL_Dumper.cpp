// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Dumper.h>

#include <LZEL_Core/text/CZEL_String.h>

#include <iostream>

using ZEL::i64;
using ZEL::u32;
using ZEL::u64;

CZEL_Dumper::CZEL_Dumper() : m_Level(2), m_Written(0) {}

CZEL_Dumper::CZEL_Dumper(u32 level) : m_Level(level < 3 ? level : 2), m_Written(0) {}

CZEL_Dumper::CZEL_Dumper(CZEL_Dumper const& other)
    : m_Level(other.m_Level), m_Written(other.m_Written) {}

CZEL_Dumper& CZEL_Dumper::operator=(CZEL_Dumper const& other) {
  m_Level = other.m_Level;
  m_Written = other.m_Written;
  return *this;
}

CZEL_Dumper::~CZEL_Dumper() {
  if (m_Written != 0) std::cout << std::endl;
}

template <typename T>
CZEL_Dumper& CZEL_Dumper::Write(T const& value) {
  std::cout << value;
  m_Written = 1;
  return *this;
}

CZEL_Dumper& CZEL_Dumper::operator<<(double value) { return Write(value); }
CZEL_Dumper& CZEL_Dumper::operator<<(char const* text) { return Write(text); }
CZEL_Dumper& CZEL_Dumper::operator<<(u64 value) { return Write(value); }
CZEL_Dumper& CZEL_Dumper::operator<<(i64 value) { return Write(value); }
CZEL_Dumper& CZEL_Dumper::operator<<(u32 value) { return Write(value); }
CZEL_Dumper& CZEL_Dumper::operator<<(int value) { return Write(value); }
CZEL_Dumper& CZEL_Dumper::operator<<(CZEL_String const& text) { return Write(text.GetStringC()); }
