// A first LZEL_Core program, written the way an application uses the library:
// through the installed include path <LZEL_Core/...> and the shared library.
//
// It edits a string at and beyond its bounds, packs a register with fields in
// two number representations, moves numbers through a byte buffer in both
// byte orders, fills a vector and walks a list, and catches a failure code.

#include <LZEL_Core/LZEL_Core.h>

#include <iostream>

namespace {

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

void RegisterFields() {
  ZEL::u64 reg = 0;
  ZEL::SetSignedField(reg, 0, 8, -5, ZEL::ZEL_REPR_TWOS_COMPLEMENT);
  ZEL::SetSignedField(reg, 8, 8, -5, ZEL::ZEL_REPR_SIGN_MAGNITUDE);
  ZEL::SetBcdField(reg, 16, 4, 1234);
  std::cout << std::hex << "register 0x" << reg << std::dec << ": "
            << ZEL::GetSignedField(reg, 0, 8, ZEL::ZEL_REPR_TWOS_COMPLEMENT) << ", "
            << ZEL::GetSignedField(reg, 8, 8, ZEL::ZEL_REPR_SIGN_MAGNITUDE) << ", "
            << ZEL::GetBcdField(reg, 16, 4) << "\n";
}

void ByteOrders() {
  ZEL::u8 buffer[4];
  ZEL::u32 const value = 0x01020304;
  ZEL::Uint32ToBuf(value, buffer, ZEL::ZEL_BIG_ENDIAN);
  std::cout << "big-endian bytes read little-endian: 0x" << std::hex
            << ZEL::Uint32FromBuf(buffer, ZEL::ZEL_LITTLE_ENDIAN) << std::dec << "\n";
}

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

  // Typed fields at any byte offset of a byte vector, in either byte order.
  CZEL_Uint8Vector record(6, 0);
  record.SetUint16(0x1234, 0, ZEL::ZEL_BIG_ENDIAN);
  record.SetUint32(0xCAFEF00D, 2, ZEL::ZEL_LITTLE_ENDIAN);
  std::cout << "record tag 0x" << std::hex << record.GetUint16(0, ZEL::ZEL_BIG_ENDIAN) << std::dec
            << "\n";
}

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

}  // namespace

int main() {
  StringEditing();
  RegisterFields();
  ByteOrders();
  Containers();
  FailureCodes();
  return 0;
}
