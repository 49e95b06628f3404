#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <gtest/gtest.h>

namespace {

TEST(CZEL_ExceptionTest, DefaultIsAllZeroAndCopyKeepsAllFields) {
  CZEL_Exception e;
  EXPECT_EQ(e.m_Code, 0u);
  EXPECT_EQ(e.m_Object, nullptr);
  EXPECT_EQ(e.m_Extra, 0u);
  int anchor = 0;
  CZEL_Exception const thrown(ZEL_ERR_INVALID_ARGUMENT, &anchor, 7);
  CZEL_Exception const copy(thrown);
  EXPECT_EQ(copy.m_Code, ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(copy.m_Object, &anchor);
  EXPECT_EQ(copy.m_Extra, 7u);
}

}  // namespace
