// A first LZEL_Core program, written the way an application uses the library:
// through the installed include path <LZEL_Core/...> and the shared library.
//
// It edits a string at and beyond its bounds, packs a register with fields in
// two number representations, moves numbers through a byte buffer in both
// byte orders, and catches a failure code.

#include <LZEL_Core/LZEL_Core.h>

#include <iostream>

namespace {

void StringEditing() {
  CZEL_String s("Hello world");
  s.Insert(',', 5);                    // "Hello, world"
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

void FailureCodes() {
  try {
    throw CZEL_Exception(ZEL_ERR_BAD_POSITION, nullptr, 0);
  } catch (CZEL_Exception const& e) {
    std::cout << "caught failure code " << e.m_Code << "\n";
  }
}

}  // namespace

int main() {
  StringEditing();
  RegisterFields();
  ByteOrders();
  FailureCodes();
  return 0;
}
