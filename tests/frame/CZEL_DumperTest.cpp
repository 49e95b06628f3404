#include <LZEL_Core/frame/CZEL_Dumper.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>

namespace {

// Captures what is written to std::cout while it lives, with the stream's
// formatting left as the test sets it.
class CaptureOut {
 public:
  CaptureOut() : m_Saved(std::cout.rdbuf(m_Text.rdbuf())) {}
  ~CaptureOut() {
    std::cout.rdbuf(m_Saved);
    std::cout.flags(std::ios::fmtflags(std::ios::dec | std::ios::skipws));
  }
  std::string Text() const { return m_Text.str(); }

 private:
  std::ostringstream m_Text;
  std::streambuf* m_Saved;
};

struct LevelProbe : CZEL_Dumper {
  explicit LevelProbe(ZEL::u32 level) : CZEL_Dumper(level) {}
  ZEL::u32 Level() const { return m_Level; }
};

TEST(CZEL_DumperLevel, KeepsLevelsBelowThreeAndTakesTwoOtherwise) {
  EXPECT_EQ(LevelProbe(0).Level(), 0u);
  EXPECT_EQ(LevelProbe(1).Level(), 1u);
  EXPECT_EQ(LevelProbe(3).Level(), 2u);
  EXPECT_EQ(LevelProbe(100).Level(), 2u);
}

TEST(CZEL_DumperOutput, OneLinePerWrittenObjectWithTheStreamsFormatting) {
  CaptureOut out;
  { CZEL_Dumper silent; }
  CZEL_Dumper() << 1 << 2;
  CZEL_Dumper() << "x=" << 2.5 << ZEL::u64{7} << ZEL::i64{-7} << ZEL::u32{9}
                << CZEL_String("s\0t", 3);
  std::cout << std::hex;
  CZEL_Dumper() << 255;
  {
    CZEL_Dumper source;
    source << "a";
    CZEL_Dumper copy(source);
    CZEL_Dumper assigned;
    assigned = source;
  }
  EXPECT_EQ(out.Text(), "12\nx=2.57-79s\nff\na\n\n\n");
}

}  // namespace
