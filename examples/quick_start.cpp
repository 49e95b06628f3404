// SPDX-License-Identifier: Apache-2.0
// A tour of LZEL_Core, written the way an application uses the library:
// through the installed include path <LZEL_Core/...> and the shared library.
// Read it top to bottom; each section is one subsystem, and main() at the end
// runs them in order.
//
//   1. Strings: edits at and beyond their bounds.
//   2. Bits and bytes: fields in two number representations, byte orders.
//   3. Containers: a vector, a list walked by its cursor, a byte record.
//   4. Failures: a misused container throws its code.
//   5. A bit set and its text forms.
//   6. A field-coded string, built and taken apart.
//   7. A date in five calendars, and a time of day.
//   8. The CRC of a file.
//   9. Values through a file stream and back.
//  10. A CSV file written and read back.
//  11. One pixel of a bitmap.
//
// The files of sections 8 to 11 go into a fresh directory under the system's
// temporary directory, which the program removes again.

#include <LZEL_Core/LZEL_Core.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

namespace {

// The directory that the file sections write into, and a path inside it.
std::string g_dir;
CZEL_String PathOf(char const* name) { return CZEL_String((g_dir + "/" + name).c_str()); }

// --- 1. Strings --------------------------------------------------------------

void StringEditing() {
  CZEL_String s("Hello world");
  s.Insert(',', 5);                     // "Hello, world"
  s.ReplaceString("LZEL", 7, 5, 0, 4);  // "Hello, LZEL"
  s += '!';
  std::cout << s.GetStringC() << " (" << s.GetLength() << " characters)\n";

  // Positions out of range have quiet, defined results.
  std::cout << "Mid(99, 1) is empty: " << (s.Mid(99, 1).GetLength() == 0) << "\n";
  std::cout << "Left(99) is the whole text: " << s.Left(99).GetStringC() << "\n";

  CZEL_String field("42");
  field.SetFormatted(6, CZEL_String::ALIGN_RIGHT, '0');
  std::cout << "Right-aligned in 6 places: " << field.GetStringC() << "\n";
}

// --- 2. Bits and bytes -------------------------------------------------------

void RegisterFields() {
  ZEL::u64 reg = 0;
  ZEL::SetSignedField(reg, 0, 8, -5, ZEL::ZEL_REPR_TWOS_COMPLEMENT);
  ZEL::SetSignedField(reg, 8, 8, -5, ZEL::ZEL_REPR_SIGN_MAGNITUDE);
  ZEL::SetBcdField(reg, 16, 4, 1234);
  std::cout << std::hex << "register 0x" << reg << std::dec << ": "
            << ZEL::GetSignedField(reg, 0, 8, ZEL::ZEL_REPR_TWOS_COMPLEMENT) << ", "
            << ZEL::GetSignedField(reg, 8, 8, ZEL::ZEL_REPR_SIGN_MAGNITUDE) << ", "
            << ZEL::GetBcdField(reg, 16, 4) << "\n";

  ZEL::u8 buffer[4];
  ZEL::Uint32ToBuf(0x01020304, buffer, ZEL::ZEL_BIG_ENDIAN);
  std::cout << "big-endian bytes read little-endian: 0x" << std::hex
            << ZEL::Uint32FromBuf(buffer, ZEL::ZEL_LITTLE_ENDIAN) << std::dec << "\n";
}

// --- 3. Containers -----------------------------------------------------------

void Containers() {
  // A vector's length is its only size; writing through operator[] after one
  // Create is the fast path.
  CZEL_Int32Vector numbers(4, 0);
  for (ZEL::u32 i = 0; i < numbers.GetLength(); ++i) numbers[i] = static_cast<int>(10 - 3 * i);
  std::cout << "min " << numbers.Min() << ", max " << numbers.Max() << "\n";

  // A list is walked with its own cursor: each >> 1 hands out the item the
  // cursor stood on and steps on.
  CZEL_StringList words;
  words += CZEL_String("alpha");
  words += CZEL_String("beta");
  words += CZEL_String("gamma");
  words.ToStart();
  std::cout << "words:";
  for (ZEL::u32 i = 0; i < words.GetLength(); ++i) std::cout << ' ' << (words >> 1).GetStringC();
  std::cout << "\n";

  // Lists of the value classes sort with the value's own order.
  CZEL_DateList dates;
  dates += CZEL_Date(2024, 2, 29);
  dates += CZEL_Date(1999, 12, 31);
  dates.Sort(1);
  std::cout << "earliest date: " << dates[0].ToString("%Y-%M-%D").GetStringC() << "\n";

  // Typed fields at any byte offset of a byte vector, in either byte order.
  CZEL_Uint8Vector record(6, 0);
  record.SetUint16(0x1234, 0, ZEL::ZEL_BIG_ENDIAN);
  record.SetUint32(0xCAFEF00D, 2, ZEL::ZEL_LITTLE_ENDIAN);
  std::cout << "record tag 0x" << std::hex << record.GetUint16(0, ZEL::ZEL_BIG_ENDIAN) << std::dec
            << "\n";
}

// --- 4. Failures -------------------------------------------------------------

void FailureCodes() {
  // Misusing a container throws its code, with the container as the object.
  CZEL_Int32Vector numbers(3, 7);
  try {
    numbers[3] = 1;
  } catch (CZEL_Exception const& e) {
    std::cout << "index 3 of 3 items: failure code " << e.m_Code
              << (e.m_Object == &numbers ? " from the vector" : "") << "\n";
  }
}

// --- 5. Bit sets -------------------------------------------------------------

void BitSets() {
  CZEL_BitSet flags(10, 0);
  flags.SetBit(1, 1);
  flags[3] = 1;
  flags.SetFieldUnsigned(6, 4, 0xA);
  std::cout << "bit set: binary " << flags.ToString(2, 4, ' ').GetStringC() << ", hex "
            << flags.ToString(16, 0, ' ').GetStringC() << ", decimal "
            << flags.ToString(10, 3, ',').GetStringC() << "\n";
}

// --- 6. Field-coded strings --------------------------------------------------

void FieldCodedString() {
  CZEL_Code code;
  code.Format("id=<id>;name=<name>;");
  code.SetField("id", "7").SetField("name", "widget");
  std::cout << "coded: " << code.GetString().GetStringC();
  code.Set("id=12;name=bolt");
  std::cout << "; taken apart: id " << code.GetField("id").GetStringC() << ", name "
            << code.GetField("name").GetStringC() << "\n";
}

// --- 7. Dates and times ------------------------------------------------------

void DatesAndTimes() {
  CZEL_Date const day(2024, 3, 20);  // Gregorian
  struct {
    CZEL_Date::t_Calendar calendar;
    char const* name;
  } const calendars[] = {{CZEL_Date::Calendar_Gregorian, "Gregorian"},
                         {CZEL_Date::Calendar_Julian, "Julian"},
                         {CZEL_Date::Calendar_RevisedJulian, "Revised Julian"},
                         {CZEL_Date::Calendar_Persian, "Persian"},
                         {CZEL_Date::Calendar_Islamic, "Islamic"}};
  for (auto const& c : calendars) {
    std::cout << "  " << c.name << ": " << day.ToString("%Y-%M-%D", c.calendar).GetStringC()
              << "\n";
  }
  CZEL_Time const noon(12, 0, 0, 0);
  CZEL_Time const later = noon.AddMilliseconds(13 * 3600 * 1000);  // wraps past midnight
  std::cout << "  12:00 plus 13 hours: " << later.ToString("%H:%T:%S.%X").GetStringC() << "\n";
}

// --- 8. The CRC of a file ----------------------------------------------------

void CrcOfAFile() {
  CZEL_String const path = PathOf("check.txt");
  CZEL_File file;
  file.Open(path, CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
  file.WriteText("123456789");
  file.Close();

  file.Open(path, CZEL_File::FILE_OPEN_READ);
  CZEL_Uint8Vector bytes(static_cast<ZEL::u32>(file.GetLength()), 0);
  file.Read(&bytes[0], bytes.GetLength());
  file.Close();

  CZEL_Crc const crc(CZEL_Crc::Crc32);
  ZEL::u32 value = 0;
  crc.Compute(bytes, &value, 0);
  std::cout << "CRC-32 of \"123456789\" read from a file: 0x" << std::hex << value << std::dec
            << "\n";
}

// --- 9. Values through a file stream -----------------------------------------

void StreamRoundTrip() {
  CZEL_String const path = PathOf("values.bin");
  CZEL_File file;
  file.Open(path, CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
  CZEL_FileBuffer out;
  out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
  out << CZEL_Date(2000, 1, 1) << CZEL_Time(8, 30, 0, 250) << CZEL_String("label")
      << CZEL_IpAddress(CZEL_String("192.168.1.20")) << CZEL_Color(10, 20, 30);
  out.Close();
  file.Close();

  file.Open(path, CZEL_File::FILE_OPEN_READ);
  CZEL_FileBuffer in;
  in.AttachFile(&file, CZEL_Buffer::ACCESS_READ);
  CZEL_Date date;
  CZEL_Time time;
  CZEL_String label;
  CZEL_IpAddress address;
  CZEL_Color color;
  in >> date >> time >> label >> address >> color;
  in.Close();
  std::cout << "read back from " << file.GetLength()
            << " bytes: " << date.ToString("%D.%M.%Y").GetStringC() << ", "
            << time.ToString("%H:%T:%S.%X").GetStringC() << ", " << label.GetStringC() << ", "
            << address.ToString().GetStringC() << ", colour 0x" << std::hex
            << color.GetUnsignedColor() << std::dec << "\n";
  file.Close();
}

// --- 10. CSV files -----------------------------------------------------------

void CsvFile() {
  CZEL_String const path = PathOf("parts.csv");
  CZEL_CsvFile csv(3, ';', CZEL_File::LINE_END_LF);
  csv.Open(path, CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
  CZEL_StringVector record(3);
  char const* const rows[][3] = {{"id", "name", "count"}, {"1", "bolt", "40"}, {"2", "nut", "95"}};
  for (auto const& row : rows) {
    for (ZEL::u32 i = 0; i < 3; ++i) record[i] = row[i];
    csv.WriteRecord(record);
  }
  csv.Close();

  ZEL::u32 count = 0;
  CZEL_StringVector* records = csv.ReadFile(path, count);
  if (records == nullptr) return;
  std::cout << count << " records; the last: " << records[count - 1][1].GetStringC() << " x "
            << records[count - 1][2].GetStringC() << "\n";
  delete[] records;  // ReadFile hands the array to the caller
}

// --- 11. A bitmap's pixel ----------------------------------------------------

// Writes a 2 x 2 bitmap of 24 bits per pixel: rows bottom-up, each padded to
// 4 bytes, pixels stored blue, green, red.
void WriteTinyBitmap(CZEL_String const& path) {
  ZEL::u8 bmp[54 + 16] = {'B', 'M'};
  ZEL::Uint32ToBuf(sizeof bmp, bmp + 2, ZEL::ZEL_LITTLE_ENDIAN);  // file size
  ZEL::Uint32ToBuf(54, bmp + 10, ZEL::ZEL_LITTLE_ENDIAN);         // pixel offset
  ZEL::Uint32ToBuf(40, bmp + 14, ZEL::ZEL_LITTLE_ENDIAN);         // info header size
  ZEL::Int32ToBuf(2, bmp + 18, ZEL::ZEL_LITTLE_ENDIAN);           // width
  ZEL::Int32ToBuf(2, bmp + 22, ZEL::ZEL_LITTLE_ENDIAN);           // height, bottom-up
  ZEL::Uint16ToBuf(1, bmp + 26, ZEL::ZEL_LITTLE_ENDIAN);          // planes
  ZEL::Uint16ToBuf(24, bmp + 28, ZEL::ZEL_LITTLE_ENDIAN);         // bits per pixel
  ZEL::Uint32ToBuf(16, bmp + 34, ZEL::ZEL_LITTLE_ENDIAN);         // pixel bytes
  ZEL::u8 const pixels[16] = {255, 0, 0,   0,   255, 0,   0, 0,   // bottom row: blue, green
                              0,   0, 255, 255, 255, 255, 0, 0};  // top row: red, white
  for (int i = 0; i < 16; ++i) bmp[54 + i] = pixels[i];
  CZEL_File file;
  file.Open(path, CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
  file.Write(bmp, sizeof bmp, 1);
  file.Close();
}

void BitmapPixel() {
  CZEL_String const path = PathOf("tiny.bmp");
  WriteTinyBitmap(path);
  CZEL_WinBitmapData bitmap;
  if (bitmap.LoadFromFile(path) != ZEL_ERR_NONE) return;
  ZEL::t_WinRgbQuad color{};
  bitmap.GetPixelColor(0, 0, color);  // row 0 is the top row
  std::cout << "top left pixel: red " << color.red << ", green " << color.green << ", blue "
            << color.blue << "\n";
}

}  // namespace

int main() {
  namespace fs = std::filesystem;
  for (unsigned tries = 0; g_dir.empty() && tries < 100; ++tries) {
    fs::path const dir = fs::temp_directory_path() / ("lzel_tour_" + std::to_string(std::rand()));
    if (fs::create_directory(dir)) g_dir = dir.string();
  }
  if (g_dir.empty()) return 1;

  StringEditing();
  RegisterFields();
  Containers();
  FailureCodes();
  BitSets();
  FieldCodedString();
  DatesAndTimes();
  CrcOfAFile();
  StreamRoundTrip();
  CsvFile();
  BitmapPixel();

  fs::remove_all(g_dir);
  return 0;
}
