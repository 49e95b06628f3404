// SPDX-License-Identifier: Apache-2.0
// Feeds arbitrary file bytes to CZEL_CsvFile::ReadFile, the first byte giving
// the separator and the second the field count (1 to 4). Beside memory and
// undefined-behaviour faults, it checks the reading against the plain way of
// reading the same file: CZEL_File::ReadTextLine line by line until the end,
// each line split with ExtractTags. Both must agree on success, on the record
// count (also after a failure) and on every field.

#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/io/CZEL_CsvFile.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/text/CZEL_String.h>

#include "FuzzSupport.h"
#include "FuzzTempFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using zel_fuzz::Require;
using zel_fuzz::Text;

namespace {

struct Reading {
  bool failed = false;
  ZEL::u32 count = 0;
  std::vector<std::vector<std::string>> records;
};

// The file read line by line through CZEL_File.
Reading ReadPlainly(CZEL_String const& path, char separator, ZEL::u32 fieldCount) {
  Reading out;
  CZEL_File file;
  Require(file.Open(path, CZEL_File::FILE_OPEN_READ) == 0);
  CZEL_String line;
  while (!file.IsEOF()) {
    if (file.ReadTextLine(line) != 0) {
      out.failed = true;
      break;
    }
    CZEL_StringVector fields;
    line.ExtractTags(separator, fields);
    ++out.count;
    if (fields.GetLength() != fieldCount) {
      out.failed = true;
      break;
    }
    std::vector<std::string> record;
    for (ZEL::u32 i = 0; i < fields.GetLength(); ++i) record.push_back(Text(fields[i]));
    out.records.push_back(record);
  }
  file.Close();
  if (out.failed) out.records.clear();
  return out;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < 2) return 0;
  char const separator = static_cast<char>(data[0]);
  ZEL::u32 const fieldCount = data[1] % 4u + 1;
  zel_fuzz::TempFile const file(data + 2, size - 2);

  CZEL_CsvFile csv(fieldCount, separator, CZEL_File::LINE_END_LF);
  Reading got;
  got.count = 12345;
  CZEL_StringVector* records = csv.ReadFile(file.Path(), got.count);
  got.failed = records == nullptr;
  for (ZEL::u32 i = 0; records != nullptr && i < got.count; ++i) {
    std::vector<std::string> record;
    for (ZEL::u32 j = 0; j < records[i].GetLength(); ++j) record.push_back(Text(records[i][j]));
    got.records.push_back(record);
  }
  delete[] records;

  Reading const expected = ReadPlainly(file.Path(), separator, fieldCount);
  Require(got.failed == expected.failed);
  Require(got.count == expected.count);
  Require(got.records == expected.records);
  return 0;
}
