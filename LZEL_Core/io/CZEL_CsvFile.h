// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_CsvFile.h
// -----------------------------------------------------------------------------
//
// `CZEL_CsvFile` writes and reads text files of records that all have the same
// number of fields, split by one separator character. The field count, the
// separator and the line end are fixed when the object is made. Writing goes
// record by record into a file that the caller opens and closes; reading takes
// a whole file in one call and hands back all its records.
//
//   CZEL_CsvFile csv(3, ';', CZEL_File::LINE_END_CR | CZEL_File::LINE_END_LF);
//   csv.Open(CZEL_String("out.csv"), CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
//   CZEL_StringVector record(3);
//   record[0] = "a";
//   record[1] = "b;c";   // written as "b;c" with the quotes
//   record[2] = "d";
//   csv.WriteRecord(record);
//   csv.Close();
//
//   ZEL::u32 count = 0;
//   CZEL_StringVector* records = csv.ReadFile(CZEL_String("in.csv"), count);
//   if (records != nullptr) {
//     // records[0] ... records[count - 1], each of 3 strings
//     delete[] records;
//   }
//
// The writer and the reader are not symmetric
//
// The writer puts a field that holds the separator between two double quotes
// and writes everything else as it is: quotes inside a field are not doubled,
// and a line break inside a field ends the line on the page. The reader knows
// no quotes at all: it splits each line at every separator, so a quoted field
// with a separator in it comes back as two fields, and the record then fails
// the field count. An empty last field is written as nothing after the last
// separator, and the reader counts no field there.
//
// Reading
//
// A line ends at a line feed or at the end of the file; bytes 13 and 0 are
// dropped wherever they stand, so CR LF and LF files read alike. A final line
// feed gives no extra record, but an empty line anywhere else has no fields
// and fails the file. There is no partial result: one bad line loses the whole
// file, and the record count tells which line it was.
//
// Like `CZEL_File`, a copy shares the open stream: copy only a closed object.

#ifndef LZEL_CORE_IO_CZEL_CSV_FILE_H_
#define LZEL_CORE_IO_CZEL_CSV_FILE_H_

#include <LZEL_Core/containers/CZEL_StringList.h>
#include <LZEL_Core/containers/CZEL_StringVector.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/text/CZEL_String.h>

// The file operations are the base's; callers see only the record operations.
class ZEL_API CZEL_CsvFile : protected CZEL_File {
 public:
  // A closed file of records with `fieldCount` fields split by `separator`,
  // each record written with the line end `lineEnd`, any of
  // `CZEL_File::LINE_END_NUL`, `LINE_END_CR` and `LINE_END_LF`. Throws
  // ZEL_ERR_INVALID_ARGUMENT, with a null object, for a `fieldCount` of 0.
  CZEL_CsvFile(ZEL::u32 fieldCount, char separator, ZEL::u32 lineEnd);

  // `CZEL_File`'s shallow copy, which shares the stream, and the three
  // settings.
  CZEL_CsvFile(CZEL_CsvFile const& src);
  CZEL_CsvFile& operator=(CZEL_CsvFile const& src);

  // Closes the file.
  ~CZEL_CsvFile() override;

  // Opens `path` with the caller's `CZEL_File` flags: `FILE_OPEN_WRITE |
  // FILE_OPEN_TRUNCATE` for a new file, `FILE_OPEN_WRITE` to add to one.
  // Returns 0 or ZEL_ERR_OPEN_FAILED; see `CZEL_File::Open`.
  ZEL::u32 Open(CZEL_String const& path, ZEL::u32 flags);

  // Closes the file; on a closed file does nothing.
  void Close();

  // Writes one record, the fields in order, and flushes the file. Returns 0;
  // ZEL_ERR_INVALID_ARGUMENT, nothing written, if the number of fields
  // differs from the file's; otherwise the result of
  // `CZEL_File::WriteTextLine`, so ZEL_ERR_FILE_NOT_OPEN on a closed file
  // (unless the line and the line end are both empty, when nothing happens
  // and the result is 0). A field stops at a NUL inside it.
  ZEL::u32 WriteRecord(CZEL_StringVector& fields);

  // The same from a list, walked from its head; the list's cursor ends on its
  // last item.
  ZEL::u32 WriteRecord(CZEL_StringList& fields);

  // Reads the whole file at `path`, opening and closing it, and returns an
  // array of `recordCount` records, each a vector of the file's field count.
  // The caller owns the array and releases it with `delete[]`. An empty file
  // gives a valid array of 0 records.
  //
  // Returns null on failure. If the file can't be opened, `recordCount` is
  // left alone. If a line has another number of fields, `recordCount` is that
  // line's number, counted from 1. If the file ends within a line that has
  // nothing but bytes 13 and 0 after the last line feed, or the reading
  // fails, `recordCount` is the number of lines read before. The object is
  // closed afterwards, whatever it held before.
  //
  // The file is read line by line, and a line of another field count stops
  // the reading at once: what the reading holds is the records that it
  // returns and one line, whatever the file's length.
  CZEL_StringVector* ReadFile(CZEL_String const& path, ZEL::u32& recordCount);

 protected:
  // `field` between two double quotes if it holds the separator, else a copy
  // of it.
  CZEL_String FormatField(CZEL_String const& field);

  // Makes this object a copy of `src`, the stream shared.
  void DataCopy(CZEL_CsvFile const& src);

  // The fields of every record; never 0.
  ZEL::u32 m_FieldCount;
  // The character between fields.
  char m_Separator;
  // The `CZEL_File` line-end flags behind every written record.
  ZEL::u32 m_LineEnd;

 private:
  // Adds field `i` of a record to `line`, formatted, with the separator
  // behind all but the last field.
  void AppendField(CZEL_String& line, CZEL_String const& field, ZEL::u32 i);
};

#endif  // LZEL_CORE_IO_CZEL_CSV_FILE_H_
