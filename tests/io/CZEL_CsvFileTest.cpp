#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_CsvFile.h>
#include <LZEL_Core/io/CZEL_File.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "IoTestSupport.h"

namespace {

using Fields = std::vector<std::string>;
constexpr ZEL::u32 kCrLf = CZEL_File::LINE_END_CR | CZEL_File::LINE_END_LF;
constexpr ZEL::u32 kNewFile = CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE;

CZEL_StringVector Record(Fields const& fields) {
  CZEL_StringVector record;
  for (std::string const& f : fields) record += CZEL_String(f.data(), ZEL::u32(f.size()));
  return record;
}

class CsvFileTest : public zel_test::TempDirTest {
 protected:
  // The bytes that one record makes, written through the vector and the list
  // form alike (the list's cursor then on its last item).
  std::string Written(Fields const& fields, ZEL::u32 fieldCount = 3, ZEL::u32 lineEnd = kCrLf) {
    CZEL_CsvFile csv(fieldCount, ';', lineEnd);
    CZEL_StringVector record = Record(fields);
    CZEL_StringList list;
    list = record;
    EXPECT_EQ(csv.Open(Z("v"), kNewFile), 0u);
    EXPECT_EQ(csv.WriteRecord(record), 0u);
    csv.Close();
    EXPECT_EQ(csv.Open(Z("l"), kNewFile), 0u);
    EXPECT_EQ(csv.WriteRecord(list), 0u);
    csv.Close();
    EXPECT_EQ(list.ItemsToEnd(), 0u);
    EXPECT_EQ(zel_test::Slurp(PathOf("l")), zel_test::Slurp(PathOf("v")));
    return zel_test::Slurp(PathOf("v"));
  }
};

TEST_F(CsvFileTest, WriterQuotesFieldsWithTheSeparatorAndNothingElse) {
  EXPECT_EQ(Written({"a", "b", "c"}), "a;b;c\r\n");
  EXPECT_EQ(Written({"a", "b;c", "d"}), "a;\"b;c\";d\r\n");
  EXPECT_EQ(Written({"a", "b", ""}), "a;b;\r\n");
  EXPECT_EQ(Written({"\"q\"", "x,y", "l\nf"}), "\"q\";x,y;l\nf\r\n");
  EXPECT_EQ(Written({"a", std::string("b\0c", 3), "d"}), "a;b\r\n");  // a NUL ends the text
  EXPECT_EQ(Written({"a;b"}, 1, CZEL_File::LINE_END_LF), "\"a;b\"\n");
  EXPECT_EQ(Written({"a", "b", "c"}, 3, 7), std::string("a;b;c\0\r\n", 8));
  EXPECT_EQ(Written({"a", "b", "c"}, 3, 0), "a;b;c");
}

TEST_F(CsvFileTest, WriterRefusals) {
  EXPECT_ZEL_THROW(CZEL_CsvFile(0, ';', kCrLf), ZEL_ERR_INVALID_ARGUMENT, nullptr);
  CZEL_CsvFile csv(3, ';', kCrLf);
  CZEL_StringVector two = Record({"a", "b"});
  CZEL_StringVector three = Record({"a", "b", "c"});
  EXPECT_EQ(csv.WriteRecord(three), ZEL_ERR_FILE_NOT_OPEN);
  ASSERT_EQ(csv.Open(Z("w"), kNewFile), 0u);
  EXPECT_EQ(csv.WriteRecord(two), ZEL_ERR_INVALID_ARGUMENT);
  csv.Close();
  EXPECT_EQ(zel_test::Slurp(PathOf("w")), "");
  CZEL_CsvFile bare(1, ';', 0);  // an empty line without line end writes nothing
  CZEL_StringVector empty = Record({""});
  EXPECT_EQ(bare.WriteRecord(empty), 0u);
}

// The reader splits at every separator, knows no quotes, drops CR and NUL,
// and fails the whole file on one line of another field count.
TEST_F(CsvFileTest, ReaderLinesAndFieldCounts) {
  struct Case {
    std::string bytes;
    ZEL::u32 count;  // the record count, also after a failure
    std::vector<Fields> records;
    bool failed;
  } const cases[] = {
      {"", 0, {}, false},
      {"a;b;c\r\nd;e;f\r\n", 2, {{"a", "b", "c"}, {"d", "e", "f"}}, false},
      {";b;c\na;;c", 2, {{"", "b", "c"}, {"a", "", "c"}}, false},
      {"\"a;b\";c\n", 1, {{"\"a", "b\"", "c"}}, false},
      {std::string("a\r;b\0x;c\rd\n", 11), 1, {{"a", "bx", "cd"}}, false},
      {"a;b;c\na;\"b;c\";d\n", 2, {}, true},  // four fields on the page
      {"a;b;\n", 1, {}, true},                // an empty tail is no field
      {"a;b;c\n\nd;e;f\n", 2, {}, true},      // an empty line has no field
      {"a;b;c\n\n", 2, {}, true},             // nor has a second final line feed
      {"a;b;c\r\n\r", 1, {}, true},           // a last line of dropped bytes fails unread
  };
  CZEL_CsvFile csv(3, ';', kCrLf);
  for (Case const& c : cases) {
    zel_test::Spit(PathOf("in"), c.bytes);
    ZEL::u32 count = 99;
    CZEL_StringVector* records = csv.ReadFile(Z("in"), count);
    EXPECT_EQ(records == nullptr, c.failed) << c.bytes;
    EXPECT_EQ(count, c.count) << c.bytes;
    std::vector<Fields> got;
    for (ZEL::u32 i = 0; records != nullptr && i < count; ++i) {
      got.emplace_back();
      for (ZEL::u32 j = 0; j < records[i].GetLength(); ++j) {
        got.back().push_back(zel_test::Text(records[i][j]));
      }
    }
    EXPECT_EQ(got, c.records) << c.bytes;
    delete[] records;
  }
}

TEST_F(CsvFileTest, ReadingKeepsTheCountOfAMissingFileAndClosesTheObject) {
  CZEL_CsvFile csv(3, ';', kCrLf);
  ZEL::u32 count = 7;
  EXPECT_EQ(csv.ReadFile(Z("missing"), count), nullptr);
  EXPECT_EQ(count, 7u);
  zel_test::Spit(PathOf("in"), "a;b;c\n");
  ASSERT_EQ(csv.Open(Z("out"), kNewFile), 0u);
  delete[] csv.ReadFile(Z("in"), count);
  CZEL_StringVector record = Record({"a", "b", "c"});
  EXPECT_EQ(csv.WriteRecord(record), ZEL_ERR_FILE_NOT_OPEN);
}

}  // namespace
