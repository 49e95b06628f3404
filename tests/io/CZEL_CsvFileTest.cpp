#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_CsvFile.h>
#include <LZEL_Core/io/CZEL_File.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "IoTestSupport.h"

namespace {

using zel_test::Slurp;
using zel_test::Spit;
using zel_test::Text;
using Fields = std::vector<std::string>;

constexpr ZEL::u32 kCrLf = CZEL_File::LINE_END_CR | CZEL_File::LINE_END_LF;
constexpr ZEL::u32 kNewFile = CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE;

CZEL_StringVector MakeRecord(Fields const& fields) {
  CZEL_StringVector record;
  for (std::string const& f : fields) {
    record.AppendItem(CZEL_String(f.data(), static_cast<ZEL::u32>(f.size())));
  }
  return record;
}

Fields Items(CZEL_StringVector const& record) {
  Fields out;
  for (ZEL::u32 i = 0; i < record.GetLength(); ++i) out.push_back(Text(record[i]));
  return out;
}

class CsvFileTest : public zel_test::TempDirTest {
 protected:
  // Writes `records` with a new CZEL_CsvFile of the given settings and returns
  // the file's bytes.
  std::string Written(std::vector<Fields> const& records, ZEL::u32 fieldCount = 3,
                      char separator = ';', ZEL::u32 lineEnd = kCrLf) {
    CZEL_CsvFile csv(fieldCount, separator, lineEnd);
    EXPECT_EQ(csv.Open(Z("out.csv"), kNewFile), 0u);
    for (Fields const& fields : records) {
      CZEL_StringVector record = MakeRecord(fields);
      EXPECT_EQ(csv.WriteRecord(record), 0u);
    }
    csv.Close();
    return Slurp(PathOf("out.csv"));
  }

  // Reads a file of `bytes` with 3 fields and ';': the records, or nothing,
  // with the record count in `count`.
  std::vector<Fields> ReadBack(std::string const& bytes, ZEL::u32& count, bool& failed) {
    Spit(PathOf("in.csv"), bytes);
    CZEL_CsvFile csv(3, ';', kCrLf);
    CZEL_StringVector* records = csv.ReadFile(Z("in.csv"), count);
    failed = records == nullptr;
    std::vector<Fields> out;
    if (failed) return out;
    for (ZEL::u32 i = 0; i < count; ++i) out.push_back(Items(records[i]));
    delete[] records;
    return out;
  }
};

TEST(CZEL_CsvFileConstruction, ZeroFieldsThrowWithoutObject) {
  EXPECT_ZEL_THROW(CZEL_CsvFile(0, ';', kCrLf), ZEL_ERR_INVALID_ARGUMENT, nullptr);
}

// The writer quotes a field that holds the separator and nothing else.
TEST_F(CsvFileTest, WriterQuotesOnlyFieldsWithTheSeparator) {
  struct Case {
    Fields fields;
    std::string bytes;
  } const cases[] = {
      {{"a", "b", "c"}, "a;b;c\r\n"},
      {{"a", "b;c", "d"}, "a;\"b;c\";d\r\n"},
      {{"a", "b", ""}, "a;b;\r\n"},
      {{"", "", ""}, ";;\r\n"},
      {{"\"q\"", "x,y", "l\nf"}, "\"q\";x,y;l\nf\r\n"},  // quotes kept, line break raw
      {{"a", std::string("b\0c", 3), "d"}, "a;b\r\n"},   // a NUL ends the whole text
  };
  for (Case const& c : cases) EXPECT_EQ(Written({c.fields}), c.bytes) << c.bytes;
}

TEST_F(CsvFileTest, LineEndsAndSingleFieldRecords) {
  EXPECT_EQ(Written({{"a", "b", "c"}}, 3, ',', CZEL_File::LINE_END_LF), "a,b,c\n");
  EXPECT_EQ(Written({{"a", "b", "c"}}, 3, ',', 0), "a,b,c");
  EXPECT_EQ(Written({{"a", "b", "c"}}, 3, ',', 7), std::string("a,b,c\0\r\n", 8));
  EXPECT_EQ(Written({{"x"}, {"a;b"}}, 1), "x\r\n\"a;b\"\r\n");
}

TEST_F(CsvFileTest, ListRecordsWriteLikeVectorsAndLeaveTheCursorOnTheLast) {
  CZEL_CsvFile csv(3, ';', kCrLf);
  ASSERT_EQ(csv.Open(Z("list.csv"), kNewFile), 0u);
  CZEL_StringList list;
  for (char const* field : {"a", "b;c", "d"}) list += CZEL_String(field);
  list.ToStart();
  EXPECT_EQ(csv.WriteRecord(list), 0u);
  EXPECT_EQ(Text(list.CurItem()), "d");
  csv.Close();
  EXPECT_EQ(Slurp(PathOf("list.csv")), "a;\"b;c\";d\r\n");
}

TEST_F(CsvFileTest, WrongFieldCountAndClosedFile) {
  CZEL_CsvFile csv(3, ';', kCrLf);
  CZEL_StringVector two = MakeRecord({"a", "b"});
  CZEL_StringVector three = MakeRecord({"a", "b", "c"});
  CZEL_StringList twoList;
  twoList = two;
  EXPECT_EQ(csv.WriteRecord(three), ZEL_ERR_FILE_NOT_OPEN);

  ASSERT_EQ(csv.Open(Z("w.csv"), kNewFile), 0u);
  EXPECT_EQ(csv.WriteRecord(three), 0u);
  EXPECT_EQ(csv.WriteRecord(two), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(csv.WriteRecord(twoList), ZEL_ERR_INVALID_ARGUMENT);
  csv.Close();
  EXPECT_EQ(Slurp(PathOf("w.csv")), "a;b;c\r\n");

  // An empty line with no line end writes nothing, so even a closed file takes it.
  CZEL_CsvFile bare(1, ';', 0);
  CZEL_StringVector empty = MakeRecord({""});
  EXPECT_EQ(bare.WriteRecord(empty), 0u);
}

TEST_F(CsvFileTest, AppendingAddsRecordsBehindTheOldOnes) {
  Spit(PathOf("log.csv"), "a;b;c\r\n");
  CZEL_CsvFile csv(3, ';', kCrLf);
  ASSERT_EQ(csv.Open(Z("log.csv"), CZEL_File::FILE_OPEN_WRITE), 0u);
  CZEL_StringVector record = MakeRecord({"d", "e", "f"});
  EXPECT_EQ(csv.WriteRecord(record), 0u);
  csv.Close();
  EXPECT_EQ(Slurp(PathOf("log.csv")), "a;b;c\r\nd;e;f\r\n");
}

// The reader splits at every separator, knows no quotes, drops CR and NUL,
// and fails the whole file on one line of another field count.
TEST_F(CsvFileTest, ReaderLinesAndFieldCounts) {
  struct Case {
    std::string bytes;
    bool failed;
    ZEL::u32 count;
    std::vector<Fields> records;
  } const cases[] = {
      {"", false, 0, {}},
      {"a;b;c\r\nd;e;f\r\n", false, 2, {{"a", "b", "c"}, {"d", "e", "f"}}},
      {"a;b;c\nd;e;f", false, 2, {{"a", "b", "c"}, {"d", "e", "f"}}},
      {";b;c\na;;c\n", false, 2, {{"", "b", "c"}, {"a", "", "c"}}},
      {"\"a;b\";c\n", false, 1, {{"\"a", "b\"", "c"}}},
      {std::string("a\r;b\0x;c\rd\n", 11), false, 1, {{"a", "bx", "cd"}}},
      {"a;b;c\na;\"b;c\";d\n", true, 2, {}},  // four fields on the page
      {"a;b;\n", true, 1, {}},                // an empty tail is no field
      {"a;b;c\n\nd;e;f\n", true, 2, {}},      // an empty line has no field
      {"a;b;c\n\n", true, 2, {}},             // nor has a second final line feed
      {"a;b;c\r\n\r", true, 1, {}},           // a last line of dropped bytes fails unread
  };
  for (Case const& c : cases) {
    ZEL::u32 count = 99;
    bool failed = false;
    std::vector<Fields> const records = ReadBack(c.bytes, count, failed);
    EXPECT_EQ(failed, c.failed) << c.bytes;
    EXPECT_EQ(count, c.count) << c.bytes;
    EXPECT_EQ(records, c.records) << c.bytes;
  }
}

TEST_F(CsvFileTest, WrittenRecordsReadBack) {
  std::vector<Fields> const records = {{"1", "", "three"}, {"", "x y", "z"}, {"a", "b", "c"}};
  std::string const bytes = Written(records);
  ZEL::u32 count = 0;
  bool failed = true;
  EXPECT_EQ(ReadBack(bytes, count, failed), records);
  EXPECT_FALSE(failed);
}

TEST_F(CsvFileTest, MissingFileLeavesTheCountAndReadingClosesTheFile) {
  CZEL_CsvFile csv(3, ';', kCrLf);
  ZEL::u32 count = 7;
  EXPECT_EQ(csv.ReadFile(Z("missing.csv"), count), nullptr);
  EXPECT_EQ(count, 7u);

  // A reading replaces the stream that was open for writing and closes it.
  Spit(PathOf("in.csv"), "a;b;c\n");
  ASSERT_EQ(csv.Open(Z("out.csv"), kNewFile), 0u);
  CZEL_StringVector* records = csv.ReadFile(Z("in.csv"), count);
  ASSERT_NE(records, nullptr);
  delete[] records;
  CZEL_StringVector record = MakeRecord({"a", "b", "c"});
  EXPECT_EQ(csv.WriteRecord(record), ZEL_ERR_FILE_NOT_OPEN);
}

TEST_F(CsvFileTest, CopiesTakeTheSettings) {
  CZEL_CsvFile source(2, ',', CZEL_File::LINE_END_LF);
  CZEL_CsvFile copy(source);
  CZEL_CsvFile assigned(3, ';', kCrLf);
  assigned = source;
  for (CZEL_CsvFile* csv : {&copy, &assigned}) {
    ASSERT_EQ(csv->Open(Z("copy.csv"), kNewFile), 0u);
    CZEL_StringVector record = MakeRecord({"a", "b,c"});
    EXPECT_EQ(csv->WriteRecord(record), 0u);
    csv->Close();
    EXPECT_EQ(Slurp(PathOf("copy.csv")), "a,\"b,c\"\n");
  }
}

}  // namespace
