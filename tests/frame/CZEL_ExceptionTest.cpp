#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

TEST(CZEL_ExceptionTest, DefaultIsAllZero) {
  CZEL_Exception e;
  EXPECT_EQ(e.m_Code, 0u);
  EXPECT_EQ(e.m_Object, nullptr);
  EXPECT_EQ(e.m_Extra, 0u);
}

TEST(CZEL_ExceptionTest, CopyByValueKeepsAllFields) {
  int anchor = 0;
  CZEL_Exception thrown(ZEL_ERR_INVALID_ARGUMENT, &anchor, 7);
  try {
    throw thrown;
  } catch (CZEL_Exception const& handled) {
    CZEL_Exception caught(handled);
    EXPECT_EQ(caught.m_Code, 2u);
    EXPECT_EQ(caught.m_Object, &anchor);
    EXPECT_EQ(caught.m_Extra, 7u);
  }
}

TEST(CZEL_ExceptionTest, StandsOutsideTheStandardHierarchyAndTheTree) {
  EXPECT_FALSE((std::is_base_of<std::exception, CZEL_Exception>::value));
  EXPECT_FALSE((std::is_base_of<CZEL_Object, CZEL_Exception>::value));
  EXPECT_TRUE(std::has_virtual_destructor<CZEL_Exception>::value);
  EXPECT_TRUE(std::has_virtual_destructor<CZEL_Object>::value);
}

TEST(ZEL_ErrorsTest, NumbersAreFixed) {
  struct Row {
    ZEL::u32 code;
    ZEL::u32 number;
  };
  const Row rows[] = {
      {ZEL_ERR_NONE, 0},          {ZEL_ERR_OPEN_FAILED, 1},    {ZEL_ERR_INVALID_ARGUMENT, 2},
      {ZEL_ERR_OUT_OF_RANGE, 3},  {ZEL_ERR_BAD_POSITION, 5},   {ZEL_ERR_NOT_SUPPORTED, 8},
      {ZEL_ERR_EMPTY_INPUT, 9},   {ZEL_ERR_NOT_READY, 10},     {ZEL_ERR_BAD_FORMAT, 11},
      {ZEL_ERR_FILE_NOT_OPEN, 19}, {ZEL_ERR_WRITE_DENIED, 23}, {ZEL_ERR_READ_DENIED, 24},
      {ZEL_ERR_IO, 30},           {ZEL_ERR_FAILED, 32},
  };
  for (Row const& r : rows) EXPECT_EQ(r.code, r.number);
}

}  // namespace
