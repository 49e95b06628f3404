#include <LZEL_Core/calendar/CZEL_Time.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <tuple>

namespace {

using T = CZEL_Time;

// Opens the milliseconds to the tests.
class Probe : public CZEL_Time {
 public:
  explicit Probe(CZEL_Time const& t) : CZEL_Time(t) {}
  int Msecs() const { return m_Msecs; }
};

int MsecsOf(T const& t) { return Probe(t).Msecs(); }

std::tuple<int, int, int, int> Parts(T const& t) {
  return {t.GetHour(), t.GetMinute(), t.GetSecond(), t.GetMillisecond()};
}

std::string Text(CZEL_String const& s) { return std::string(s.GetStringC(), s.GetLength()); }

TEST(TimeTest, SetAndParts) {
  for (auto bad : {T(24, 0, 0, 0), T(0, 60, 0, 0), T(0, 0, 60, 0), T(0, 0, 0, 1000), T(-1, 0, 0, 0),
                   T(0, -1, 0, 0), T(0, 0, -1, 0), T(0, 0, 0, -1)}) {
    EXPECT_TRUE(bad.IsNull());
    EXPECT_EQ(MsecsOf(bad), -1);
    EXPECT_EQ(Parts(bad), std::make_tuple(-1, -1, -1, -1));
  }
  T t(23, 59, 59, 999);
  EXPECT_TRUE(t.IsValid());
  EXPECT_EQ(MsecsOf(t), 86399999);
  EXPECT_EQ(Parts(T(9, 5, 3, 7)), std::make_tuple(9, 5, 3, 7));
  EXPECT_EQ(MsecsOf(T(0, 0, 0, 0)), 0);
  EXPECT_EQ(t.Set(12, 0, 60, 0), 0u);
  EXPECT_TRUE(t.IsNull());
  EXPECT_EQ(t.Set(12, 0, 0, 0), 1u);
  EXPECT_EQ(MsecsOf(t), 43200000);
  EXPECT_EQ(MsecsOf(T()), -1);
  T::t_Date_Struct s{1, 2, 3, 4};
  EXPECT_EQ(t.Set(s), 1u);
  EXPECT_EQ(Parts(t), std::make_tuple(1, 2, 3, 4));
  s.hour = 24;
  EXPECT_EQ(t.Set(s), 0u);
}

TEST(TimeTest, GetTimeStruct) {
  T::t_Date_Struct s{7, 7, 7, 7};
  EXPECT_EQ(T().GetTimeStruct(s), ZEL_ERR_FAILED);
  EXPECT_EQ(std::make_tuple(s.hour, s.minute, s.second, s.millisecond),
            std::make_tuple(7, 7, 7, 7));
  EXPECT_EQ(T(23, 59, 58, 999).GetTimeStruct(s), 0u);
  EXPECT_EQ(std::make_tuple(s.hour, s.minute, s.second, s.millisecond),
            std::make_tuple(23, 59, 58, 999));
}

TEST(TimeTest, AdditionsWrapAtMidnight) {
  struct Row {
    int from;  // milliseconds
    int add;
    bool seconds;
    int to;
  } const rows[] = {
      {86399999, 1, false, 0},
      {0, -1, false, 86399999},
      {5000, 86400000, false, 5000},
      {5000, -86400000, false, 5000},
      {5000, -86400001, false, 4999},
      {5000, -3 * 86400000 - 6000, false, 86399000},
      {0, INT_MAX, false, INT_MAX % 86400000},
      {1000, 86401, true, 2000},
      {0, -1, true, 86399000},
      {0, -86401, true, 86399000},
      {0, INT_MAX, true, INT_MAX % 86400 * 1000},
      {0, INT_MIN, true, 86400000 + INT_MIN % 86400 * 1000},
  };
  for (auto const& r : rows) {
    T const t = T(0, 0, 0, 0).AddMilliseconds(r.from);
    T const moved = r.seconds ? t.AddSeconds(r.add) : t.AddMilliseconds(r.add);
    EXPECT_EQ(MsecsOf(moved), r.to) << r.from << " + " << r.add << (r.seconds ? " s" : " ms");
  }
  EXPECT_TRUE(T().AddSeconds(0).IsNull());
  EXPECT_TRUE(T().AddMilliseconds(5).IsNull());
}

TEST(TimeTest, Differences) {
  EXPECT_EQ(T(1, 0, 0, 0).MillisecondsTo(T(0, 0, 0, 0)), -3600000);
  EXPECT_EQ(T(0, 0, 0, 0).MillisecondsTo(T(23, 59, 59, 999)), 86399999);
  EXPECT_EQ(T(0, 0, 1, 500).SecondsTo(T(0, 0, 0, 0)), -1);
  EXPECT_EQ(T(0, 0, 0, 0).SecondsTo(T(0, 0, 1, 999)), 1);
  EXPECT_EQ(T().MillisecondsTo(T(1, 0, 0, 0)), 0);
  EXPECT_EQ(T(1, 0, 0, 0).SecondsTo(T()), 0);
}

TEST(TimeTest, Comparison) {
  T const null, early(0, 0, 0, 0), late(12, 0, 0, 0);
  EXPECT_TRUE(null == T());
  EXPECT_TRUE(null < early && early < late && late > early && late >= late && early <= early);
  EXPECT_TRUE(early != late && !(late == early));
  EXPECT_EQ(T::SortCompare(late, early), 1);
  EXPECT_EQ(T::SortCompare(null, early), -1);
  EXPECT_EQ(T::SortCompare(late, late), 0);
  T copy(late);
  T const& self = copy;
  copy = self;
  EXPECT_TRUE(copy == late);
  copy = null;
  EXPECT_TRUE(copy.IsNull());
}

TEST(TimeTest, ToString) {
  struct Row {
    char const* format;
    char const* text;
  } const rows[] = {
      {"%H:%T:%S.%X", "09:05:03.007"},
      {"%h:%t:%s.%x", "9:5:3.7"},
      {"%H%q", "0909"},
      {"100%%", "100%"},
      {"%q%h%", "9"},
      {"%%%q", "%"},
  };
  T const t(9, 5, 3, 7);
  for (auto const& r : rows) EXPECT_EQ(Text(t.ToString(r.format)), r.text) << r.format;
  EXPECT_EQ(Text(T(23, 59, 59, 999).ToString("%H%T%S%X")), "235959999");
  EXPECT_EQ(Text(T().ToString("%H:%T:%S.%X")), "00:00:00.000");
}

TEST(TimeTest, CurrentTime) {
  T const now = T::GetCurrentTime();
  T later;
  later.FromCurrentTime();
  ASSERT_TRUE(now.IsValid());
  ASSERT_TRUE(later.IsValid());
}

}  // namespace
