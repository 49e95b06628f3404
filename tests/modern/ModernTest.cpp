// SPDX-License-Identifier: Apache-2.0
// The library as a C++17 or C++20 application meets it: const and mixed
// comparisons, standard containers keyed by its values, moves, range-for,
// standard algorithms, std::string_view, hashing and streams, error names.
// Built once per standard with every warning an error: that it compiles is
// half the test.

#include <LZEL_Core/LZEL_Core.h>
#include <LZEL_Core/ZEL_Std.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <sstream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace {

using ZEL::u32;
using ZEL::u8;

// Each relational operator of a const pair, as the standard library calls them.
template <typename T>
void ExpectOrdered(T const& low, T const& high) {
  EXPECT_TRUE(low < high && low <= high && high > low && high >= low);
  EXPECT_TRUE(low != high && !(low == high) && low == low);
  EXPECT_TRUE(std::less<T>()(low, high));
}

TEST(Modern, ConstAndMixedComparisons) {
  CZEL_String const apple("apple"), banana("banana");
  ExpectOrdered(apple, banana);
  EXPECT_TRUE(apple == "apple" && "apple" == apple && apple != "x" && "x" != apple);
  EXPECT_TRUE("b" > apple && apple < "b" && "a" <= apple && apple >= "a");
  CZEL_String const fruits[] = {apple, banana};
  EXPECT_EQ(std::find(std::begin(fruits), std::end(fruits), banana), fruits + 1);

  ExpectOrdered(CZEL_BitSet(8, 0), CZEL_BitSet(8, 1));
  ExpectOrdered(CZEL_DecimalNumber(2, "1.10", CZEL_DecimalNumber::DecimalPoint_Dot),
                CZEL_DecimalNumber(1, "1.2", CZEL_DecimalNumber::DecimalPoint_Dot));
  ExpectOrdered(CZEL_Date(2024, 3, 20), CZEL_Date(2024, 3, 21));
  ExpectOrdered(CZEL_Time(9, 0, 0, 0), CZEL_Time(9, 0, 0, 1));

  CZEL_IpAddress const ip(CZEL_String("10.0.0.1"));
  CZEL_Int32Point const point(1, 2);
  CZEL_DoubleSize const size(1.5, 2.5);
  CZEL_Int32Rect const rect(0, 0, 4, 4);
  EXPECT_TRUE(ip == CZEL_IpAddress(ip) && !(ip != CZEL_IpAddress(ip)));
  EXPECT_TRUE(point == CZEL_Int32Point(1, 2) && point != CZEL_Int32Point(2, 1));
  EXPECT_TRUE(size == CZEL_DoubleSize(1.5, 2.5) && rect != CZEL_Int32Rect(0, 0, 4, 5));
}

TEST(Modern, StandardContainersKeyedByValues) {
  std::map<CZEL_String, int> stock{{CZEL_String("pear"), 3}, {CZEL_String("fig"), 5}};
  EXPECT_EQ(stock.begin()->first, "fig");
  std::unordered_map<CZEL_Date, int> visits;
  visits[CZEL_Date(2024, 3, 20)] += 1;
  visits[CZEL_Date(2024, 3, 20)] += 1;
  EXPECT_EQ(visits.size(), 1u);
  EXPECT_EQ(visits.at(CZEL_Date(2024, 3, 20)), 2);

  // Values equal under the class's own == hash alike.
  CZEL_BitSet narrow(3, 0), wide(300, 0);
  narrow.SetFieldUnsigned(0, 3, 7);
  wide.SetFieldUnsigned(0, 3, 7);
  std::unordered_set<CZEL_BitSet> sets{narrow};
  EXPECT_EQ(sets.count(wide), 1u);
  std::unordered_set<CZEL_DecimalNumber> prices{
      CZEL_DecimalNumber(1, "1.1", CZEL_DecimalNumber::DecimalPoint_Dot)};
  EXPECT_EQ(prices.count(CZEL_DecimalNumber(3, "1.100", CZEL_DecimalNumber::DecimalPoint_Dot)), 1u);
  std::unordered_set<CZEL_String> words{CZEL_String("ab")};
  EXPECT_EQ(words.count(CZEL_String("ab\0cd", 5)), 1u);  // compared up to the 0 byte
  std::unordered_set<CZEL_Time> times{CZEL_Time(1, 2, 3, 4)};
  std::unordered_set<CZEL_IpAddress> hosts{CZEL_IpAddress(CZEL_String("10.0.0.1"))};
  EXPECT_EQ(times.count(CZEL_Time(1, 2, 3, 4)) + hosts.count(CZEL_IpAddress()), 1u);
}

TEST(Modern, MovesLeaveTheSourceEmptyAndSwapExchanges) {
  CZEL_String big(1u << 20, 'x');
  char const* buffer = big.GetStringC();
  CZEL_String moved(std::move(big));
  EXPECT_EQ(moved.GetStringC(), buffer);
  EXPECT_EQ(big.GetLength(), 0u);  // NOLINT(bugprone-use-after-move): the moved-from state
  CZEL_String other("y");
  std::swap(moved, other);
  EXPECT_EQ(other.GetStringC(), buffer);
  EXPECT_EQ(moved, "y");

  CZEL_StringVector names;
  for (char c : std::string("dcba")) names.AppendItem(CZEL_String(c));
  CZEL_StringVector taken = std::move(names);
  EXPECT_EQ(taken.GetLength(), 4u);
  CZEL_Int32List numbers(3, 7);
  CZEL_Int32List list = std::move(numbers);
  EXPECT_EQ(list.GetLength() + numbers.GetLength(), 3u);  // NOLINT(bugprone-use-after-move)
  CZEL_BitSet bits(70, 1), none;
  swap(bits, none);
  EXPECT_EQ(none.GetNumBits(), 70u);
}

TEST(Modern, RangeForAndAlgorithms) {
  CZEL_Int32Vector v(5, 0);
  int next = 5;
  for (int& item : v) item = next--;
  std::sort(v.begin(), v.end());  // terminates, unlike the vector's own Sort
  EXPECT_TRUE(std::is_sorted(v.begin(), v.end()));
  CZEL_String text("hello");
  std::string upper;
  for (char c : text) upper += static_cast<char>(c - 32);
  EXPECT_EQ(upper, "HELLO");

  CZEL_Int32List list;
  list = v;
  list.ToStart();
  list.Next(1);
  CZEL_Int32List const& view = list;
  EXPECT_EQ(std::accumulate(view.begin(), view.end(), 0), 15);
  int seen = 0;
  for (int item : view) seen = seen * 10 + item;
  EXPECT_EQ(seen, 12345);
  EXPECT_EQ(list.CurItem(), 2);  // reading the const list kept the cursor

  CZEL_StringList words;
  words.AppendItem(CZEL_String("b"));
  words.AppendItem(CZEL_String("A"));
  words.AppendItem(CZEL_String("c"));
  words.Sort(0, 0);  // falling, case-blind
  EXPECT_EQ(words.ToStart(), "c");
}

TEST(Modern, StringViewsHashesAndStreams) {
  std::string_view const source("a\0b", 3);
  CZEL_String s(source);
  EXPECT_EQ(s.GetLength(), 3u);
  EXPECT_EQ(s.View(), source);
  std::ostringstream out;
  out << CZEL_String("x") << ' ' << CZEL_Date(2024, 3, 20) << ' ' << CZEL_Time(9, 5, 3, 7) << ' '
      << CZEL_IpAddress(CZEL_String("192.168.0.1")) << ' ' << CZEL_BitSet(4, 1) << ' '
      << CZEL_DecimalNumber(2, "19.9", CZEL_DecimalNumber::DecimalPoint_Dot);
  EXPECT_EQ(out.str(), "x 2024-03-20 09:05:03.007 192.168.0.1 1111 19.90");
}

TEST(Modern, LiteralZerosConstOperandsAndErrorNames) {
  CZEL_DecimalNumber d(2, 0);
  d.Set(5);
  CZEL_DecimalNumber const unit(2, 1);
  EXPECT_EQ(d.ToString('.'), "5.00");
  EXPECT_EQ((3 * unit).ToString('.'), "3.00");

  CZEL_MemoryBuffer buffer;
  buffer << 1LL;
  EXPECT_EQ(buffer.GetSize(), 8u);

  std::string const digits("123456789");
  CZEL_Crc crc(CZEL_Crc::Crc32);
  u32 value = 0;
  crc.Compute(reinterpret_cast<u8 const*>(digits.data()), 9, &value, 0);
  EXPECT_EQ(value, 0xCBF43926u);
  CZEL_Uint8Vector const record(4, 0x12);
  EXPECT_EQ(record.GetUint16(0, ZEL::ZEL_BIG_ENDIAN), 0x1212u);

  try {
    CZEL_Int32Vector const empty;
    empty[0];
    FAIL();
  } catch (CZEL_Exception const& e) {
    EXPECT_STREQ(e.What(), "ZEL_ERR_BAD_POSITION");
  }
  EXPECT_STREQ(ZEL::ErrorName(ZEL_ERR_OPEN_FAILED), "ZEL_ERR_OPEN_FAILED");
}

}  // namespace
