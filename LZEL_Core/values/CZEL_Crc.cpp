// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/CZEL_Crc.h>

#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/frame/ZEL_Primitives.h>
#include <LZEL_Core/values/ZEL_CrcEngine.h>

#include <cstring>
#include <utility>

using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

namespace {

using C = CZEL_Crc;

// Ends a member list of the catalogue that is shorter than four.
constexpr C::t_StdCrc kNone = static_cast<C::t_StdCrc>(0xFFFFFFFFu);

// One parameter set of the catalogue and the members that name it. Input
// and output reflection are equal in every set.
struct SStdCrcSet {
  C::t_CrcType type;
  u64 polynomial;
  u64 seed;
  u8 reflect;
  u64 finalXor;
  C::t_StdCrc members[4];
};

// The catalogue: 96 members in 60 parameter sets. `Crc16_MilStd1760` has no
// parameters and no row.
// clang-format off
constexpr SStdCrcSet kCatalogue[] = {
    {C::CrcType_8, 0x07, 0x00, 0, 0x00, {C::Crc8, kNone, kNone, kNone}},
    {C::CrcType_8, 0x1D, 0xFF, 1, 0x00, {C::Crc8_Aes, C::Crc8_Ebu, kNone, kNone}},
    {C::CrcType_8, 0x2F, 0xFF, 0, 0xFF, {C::Crc8_Autosar, kNone, kNone, kNone}},
    {C::CrcType_8, 0xA7, 0x00, 1, 0x00, {C::Crc8_Bluetooth, kNone, kNone, kNone}},
    {C::CrcType_8, 0x9B, 0xFF, 0, 0x00, {C::Crc8_Cdma2000, kNone, kNone, kNone}},
    {C::CrcType_8, 0x39, 0x00, 1, 0x00, {C::Crc8_Darc, kNone, kNone, kNone}},
    {C::CrcType_8, 0x31, 0x00, 1, 0x00, {C::Crc8_DowCrc, C::Crc8_Maxim, kNone, kNone}},
    {C::CrcType_8, 0xD5, 0x00, 0, 0x00, {C::Crc8_DvbS2, kNone, kNone, kNone}},
    {C::CrcType_8, 0x1D, 0x00, 0, 0x00, {C::Crc8_GsmA, kNone, kNone, kNone}},
    {C::CrcType_8, 0x49, 0x00, 0, 0xFF, {C::Crc8_GsmB, kNone, kNone, kNone}},
    {C::CrcType_8, 0x1D, 0xFD, 0, 0x00, {C::Crc8_ICode, kNone, kNone, kNone}},
    {C::CrcType_8, 0x07, 0x00, 0, 0x55, {C::Crc8_Itu, kNone, kNone, kNone}},
    {C::CrcType_8, 0x9B, 0x00, 0, 0x00, {C::Crc8_Lte, kNone, kNone, kNone}},
    {C::CrcType_8, 0x2F, 0x00, 0, 0x00, {C::Crc8_OpenSafety, kNone, kNone, kNone}},
    {C::CrcType_8, 0x07, 0xFF, 1, 0x00, {C::Crc8_Rohc, kNone, kNone, kNone}},
    {C::CrcType_8, 0x1D, 0xFF, 0, 0xFF, {C::Crc8_SaeJ1850, kNone, kNone, kNone}},
    {C::CrcType_8, 0x9B, 0x00, 1, 0x00, {C::Crc8_Wcdma, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0x0000, 1, 0x0000,
     {C::Crc16, C::Crc16_Arc, C::Crc16_Ibm, C::Crc16_Lha}},
    {C::CrcType_16, 0x1021, 0xC6C6, 1, 0x0000, {C::Crc16_A, C::Crc16_Iso14443A, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0x0000, 0, 0x0000,
     {C::Crc16_Acorn, C::Crc16_Lte, C::Crc16_Xmodem, C::Crc16_Zmodem}},
    {C::CrcType_16, 0x1021, 0x1D0F, 0, 0x0000,
     {C::Crc16_AugCcitt, C::Crc16_SpiFujitsu, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0x0000, 0, 0x0000,
     {C::Crc16_Buypass, C::Crc16_Umts, C::Crc16_Verifone, kNone}},
    {C::CrcType_16, 0x1021, 0x0000, 1, 0x0000,
     {C::Crc16_Ccitt, C::Crc16_CcittTrue, C::Crc16_CcittReflected, C::Crc16_Kermit}},
    {C::CrcType_16, 0x1021, 0xFFFF, 0, 0x0000,
     {C::Crc16_CcittFalse, C::Crc16_Ibm3740, kNone, kNone}},
    {C::CrcType_16, 0xC867, 0xFFFF, 0, 0x0000, {C::Crc16_Cdma2000, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0xFFFF, 0, 0x0000, {C::Crc16_Cms, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0xFFFF, 1, 0xFFFF,
     {C::Crc16_B, C::Crc16_IbmSdlc, C::Crc16_IsoHdlc, C::Crc16_X25}},
    {C::CrcType_16, 0x1021, 0xFFFF, 0, 0xFFFF,
     {C::Crc16_Darc, C::Crc16_Epc, C::Crc16_Genibus, C::Crc16_ICode}},
    {C::CrcType_16, 0x8005, 0x800D, 0, 0x0000, {C::Crc16_Dds110, kNone, kNone, kNone}},
    {C::CrcType_16, 0x0589, 0x0000, 0, 0x0001, {C::Crc16_DectR, C::Crc16_R, kNone, kNone}},
    {C::CrcType_16, 0x0589, 0x0000, 0, 0x0000, {C::Crc16_DectX, C::Crc16_X, kNone, kNone}},
    {C::CrcType_16, 0x3D65, 0x0000, 1, 0xFFFF, {C::Crc16_Dnp, kNone, kNone, kNone}},
    {C::CrcType_16, 0x3D65, 0x0000, 0, 0xFFFF, {C::Crc16_En13757, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0x0000, 0, 0xFFFF, {C::Crc16_Gsm, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1DCF, 0xFFFF, 0, 0xFFFF,
     {C::Crc16_Iec611582, C::Crc16_Profibus, kNone, kNone}},
    {C::CrcType_16, 0x6F63, 0x0000, 0, 0x0000, {C::Crc16_Lj1200, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0x0000, 1, 0xFFFF, {C::Crc16_Maxim, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0xFFFF, 1, 0x0000, {C::Crc16_Mcrf4xx, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0xFFFF, 1, 0x0000, {C::Crc16_Modbus, kNone, kNone, kNone}},
    {C::CrcType_16, 0x5935, 0x0000, 0, 0x0000, {C::Crc16_OpenSafetyA, kNone, kNone, kNone}},
    {C::CrcType_16, 0x755B, 0x0000, 0, 0x0000, {C::Crc16_OpenSafetyB, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0xB2AA, 1, 0x0000, {C::Crc16_Riello, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8BB7, 0x0000, 0, 0x0000, {C::Crc16_T10Dif, kNone, kNone, kNone}},
    {C::CrcType_16, 0xA097, 0x0000, 0, 0x0000, {C::Crc16_Teledisk, kNone, kNone, kNone}},
    {C::CrcType_16, 0x1021, 0x89EC, 1, 0x0000, {C::Crc16_Tms37157, kNone, kNone, kNone}},
    {C::CrcType_16, 0x8005, 0xFFFF, 1, 0xFFFF, {C::Crc16_Usb, kNone, kNone, kNone}},
    {C::CrcType_32, 0x04C11DB7, 0xFFFFFFFF, 1, 0xFFFFFFFF,
     {C::Crc32, C::Crc32_IsoHdlc, C::Crc32_Pkzip, kNone}},
    {C::CrcType_32, 0xF4ACFB13, 0xFFFFFFFF, 1, 0xFFFFFFFF, {C::Crc32_Autosar, kNone, kNone, kNone}},
    {C::CrcType_32, 0x04C11DB7, 0xFFFFFFFF, 0, 0xFFFFFFFF,
     {C::Crc32_Aal5, C::Crc32_B, C::Crc32_Bzip2, C::Crc32_DectB}},
    {C::CrcType_32, 0x1EDC6F41, 0xFFFFFFFF, 1, 0xFFFFFFFF,
     {C::Crc32_C, C::Crc32_Castagnoli, C::Crc32_Interlaken, C::Crc32_Iscsi}},
    {C::CrcType_32, 0xA833982B, 0xFFFFFFFF, 1, 0xFFFFFFFF, {C::Crc32_D, kNone, kNone, kNone}},
    {C::CrcType_32, 0x04C11DB7, 0xFFFFFFFF, 0, 0x00000000, {C::Crc32_Mpeg2, kNone, kNone, kNone}},
    {C::CrcType_32, 0x04C11DB7, 0x00000000, 0, 0xFFFFFFFF,
     {C::Crc32_Posix, C::Crc32_Cksum, C::Crc32_Posix2, kNone}},
    {C::CrcType_32, 0x814141AB, 0x00000000, 0, 0x00000000, {C::Crc32_Q, kNone, kNone, kNone}},
    {C::CrcType_32, 0x04C11DB7, 0xFFFFFFFF, 1, 0x00000000, {C::Crc32_Jamcrc, kNone, kNone, kNone}},
    {C::CrcType_32, 0x000000AF, 0x00000000, 0, 0x00000000, {C::Crc32_Xfer, kNone, kNone, kNone}},
    {C::CrcType_64, 0x42F0E1EBA9EA3693, 0x0000000000000000, 0, 0x0000000000000000,
     {C::Crc64, kNone, kNone, kNone}},
    {C::CrcType_64, 0x000000000000001B, 0xFFFFFFFFFFFFFFFF, 1, 0xFFFFFFFFFFFFFFFF,
     {C::Crc64_GoIso, kNone, kNone, kNone}},
    {C::CrcType_64, 0x42F0E1EBA9EA3693, 0xFFFFFFFFFFFFFFFF, 0, 0xFFFFFFFFFFFFFFFF,
     {C::Crc64_We, kNone, kNone, kNone}},
    {C::CrcType_64, 0x42F0E1EBA9EA3693, 0xFFFFFFFFFFFFFFFF, 1, 0xFFFFFFFFFFFFFFFF,
     {C::Crc64_Xz, C::Crc64_GoEcma, kNone, kNone}},
};
// clang-format on

SStdCrcSet const* FindStdCrc(C::t_StdCrc type) {
  for (SStdCrcSet const& set : kCatalogue) {
    for (C::t_StdCrc member : set.members) {
      if (member == kNone) break;
      if (member == type) return &set;
    }
  }
  return nullptr;
}

u32 WidthOf(C::t_CrcType type) {
  switch (type) {
    case C::CrcType_8:
      return 8;
    case C::CrcType_16:
      return 16;
    case C::CrcType_32:
      return 32;
    case C::CrcType_64:
      return 64;
    default:
      return 0;
  }
}

// Entry i is i with its eight bits in reverse order.
struct SByteInversion {
  u8 bytes[256];
};

constexpr SByteInversion MakeByteInversion() {
  SByteInversion table{};
  for (u32 i = 0; i < 256; ++i) {
    u32 reversed = 0;
    for (u32 j = 0; j < 8; ++j) reversed |= ((i >> j) & 1u) << (7 - j);
    table.bytes[i] = u8(reversed);
  }
  return table;
}

constexpr SByteInversion kByteInversion = MakeByteInversion();

// The low `width` bits of `value`.
u64 LowBits(u64 value, u32 width) { return width >= 64 ? value : value & ((u64{1} << width) - 1); }

// The MIL-STD-1760 words at `data` folded onto `check`: each step rotates the
// check word by one place and XORs in the next word, so that the last word
// ends up rotated by one place, the word before it by two, and so on.
u16 FoldMilStdWords(u16 check, u8 const* data, u64 words) {
  for (u64 i = 0; i < words; ++i) {
    u16 const word = u16(data[2 * i] | data[2 * i + 1] << 8);  // low byte first
    check = ZEL::ShiftRotatedLeft16(u16(check ^ word), 1);
  }
  return check;
}

// The owned block behind a table pointer: the byte table of the width, then
// the fast paths' tables. The pointer is the address of the first member.
template <typename T>
struct STableBlock {
  T table[256];
  ZEL::crc_engine::SCrcEngine engine;
};

template <typename T>
STableBlock<T>* BlockOf(T const* table) {
  // The table is the first member of a standard-layout block.
  return reinterpret_cast<STableBlock<T>*>(const_cast<T*>(table));
}

template <typename T>
void ReleaseTable(T*& table) {
  delete BlockOf(table);
  table = nullptr;
}

template <typename T>
T* CloneTable(T const* table) {
  if (table == nullptr) return nullptr;
  return (new STableBlock<T>(*BlockOf(table)))->table;
}

// The low `width` bits of `value` in reverse order.
template <typename T>
T ReflectWidth(T value) {
  return T(ZEL::crc_engine::Reflect64(value) >> (64 - 8 * sizeof(T)));
}

}  // namespace

// -----------------------------------------------------------------------------
// Construction and configuration
// -----------------------------------------------------------------------------

CZEL_Crc::CZEL_Crc() { ClearConfiguration(); }

CZEL_Crc::CZEL_Crc(t_StdCrc type) {
  ClearConfiguration();
  Create(type);
}

CZEL_Crc::CZEL_Crc(t_CrcType type, u64 polynomial, u64 seed, u8 reflectInput, u8 reflectOutput,
                   u64 finalXor) {
  ClearConfiguration();
  CreatePolynomial(type, polynomial, seed, reflectInput, reflectOutput, finalXor);
}

CZEL_Crc::CZEL_Crc(CZEL_Crc const& src) : CZEL_Object() {
  ClearConfiguration();
  DataCopy(src);
}

CZEL_Crc& CZEL_Crc::operator=(CZEL_Crc const& src) {
  DataCopy(src);
  return *this;
}

CZEL_Crc::CZEL_Crc(CZEL_Crc&& src) noexcept : CZEL_Object() {
  ClearConfiguration();
  Swap(src);
}

CZEL_Crc& CZEL_Crc::operator=(CZEL_Crc&& src) noexcept {
  CZEL_Crc taken(std::move(src));
  Swap(taken);
  return *this;
}

void CZEL_Crc::Swap(CZEL_Crc& other) noexcept {
  std::swap(m_CrcType, other.m_CrcType);
  std::swap(m_StdCrc, other.m_StdCrc);
  std::swap(m_IsPolynomial, other.m_IsPolynomial);
  std::swap(m_Size, other.m_Size);
  std::swap(m_Polynomial, other.m_Polynomial);
  std::swap(m_ReflectInput, other.m_ReflectInput);
  std::swap(m_ReflectOutput, other.m_ReflectOutput);
  std::swap(m_Seed, other.m_Seed);
  std::swap(m_FinalXor, other.m_FinalXor);
  std::swap(m_ByteInversion, other.m_ByteInversion);
  std::swap(m_Table8, other.m_Table8);
  std::swap(m_Table16, other.m_Table16);
  std::swap(m_Table32, other.m_Table32);
  std::swap(m_Table64, other.m_Table64);
  std::swap(m_Running, other.m_Running);
  std::swap(m_Pending, other.m_Pending);
  std::swap(m_HasPending, other.m_HasPending);
}

CZEL_Crc::~CZEL_Crc() { DestroyCrcTables(); }

void CZEL_Crc::ClearConfiguration() {
  m_CrcType = CrcType_None;
  m_StdCrc = static_cast<t_StdCrc>(0);
  m_IsPolynomial = 0;
  m_Size = 0;
  m_Polynomial = 0;
  m_ReflectInput = 0;
  m_ReflectOutput = 0;
  m_Seed = 0;
  m_FinalXor = 0;
  m_Table8 = nullptr;
  m_Table16 = nullptr;
  m_Table32 = nullptr;
  m_Table64 = nullptr;
  m_Running = 0;
  m_Pending = 0;
  m_HasPending = 0;
  BuildByteInversionTable();
}

void CZEL_Crc::Create(t_StdCrc type) {
  m_StdCrc = type;
  if (type == Crc16_MilStd1760) {
    m_CrcType = CrcType_16;
    return;
  }
  SStdCrcSet const* set = FindStdCrc(type);
  if (set == nullptr) throw CZEL_Exception(ZEL_ERR_INVALID_ARGUMENT, this, 0);
  CreatePolynomial(set->type, set->polynomial, set->seed, set->reflect, set->reflect,
                   set->finalXor);
}

void CZEL_Crc::CreatePolynomial(t_CrcType type, u64 polynomial, u64 seed, u8 reflectInput,
                                u8 reflectOutput, u64 finalXor) {
  DestroyCrcTables();
  m_CrcType = type;
  m_Polynomial = polynomial;
  m_Seed = seed;
  m_ReflectInput = reflectInput != 0 ? 1 : 0;
  m_ReflectOutput = reflectOutput != 0 ? 1 : 0;
  m_FinalXor = finalXor;
  m_IsPolynomial = 1;
  m_Size = WidthOf(type);
  BuildCrcTable();
  BuildByteInversionTable();
  m_Running = LowBits(m_Seed, m_Size);
  m_HasPending = 0;
}

// -----------------------------------------------------------------------------
// Tables and copies
// -----------------------------------------------------------------------------

void CZEL_Crc::BuildCrcTable() {
  switch (m_CrcType) {
    case CrcType_8:
      BuildCrc8Table();
      break;
    case CrcType_16:
      BuildCrc16Table();
      break;
    case CrcType_32:
      BuildCrc32Table();
      break;
    case CrcType_64:
      BuildCrc64Table();
      break;
    default:
      break;
  }
}

void CZEL_Crc::BuildCrc8Table() { BuildTable(m_Table8); }
void CZEL_Crc::BuildCrc16Table() { BuildTable(m_Table16); }
void CZEL_Crc::BuildCrc32Table() { BuildTable(m_Table32); }
void CZEL_Crc::BuildCrc64Table() { BuildTable(m_Table64); }

template <typename T>
void CZEL_Crc::BuildTable(T*& table) {
  DestroyCrcTables();
  auto* block = new STableBlock<T>;
  ZEL::crc_engine::FillByteTable<T>(block->table, T(m_Polynomial));
  ZEL::crc_engine::BuildCrcEngine(block->engine, 8 * sizeof(T), m_Polynomial, m_ReflectInput != 0);
  table = block->table;
}

void CZEL_Crc::BuildByteInversionTable() {
  std::memcpy(m_ByteInversion, kByteInversion.bytes, sizeof m_ByteInversion);
}

void CZEL_Crc::DestroyCrcTables() {
  ReleaseTable(m_Table8);
  ReleaseTable(m_Table16);
  ReleaseTable(m_Table32);
  ReleaseTable(m_Table64);
}

void CZEL_Crc::DataCopy(CZEL_Crc const& src) {
  // The copies are made before this object's tables go, so that assigning
  // an object to itself keeps its tables.
  u8* table8 = CloneTable(src.m_Table8);
  u16* table16 = CloneTable(src.m_Table16);
  u32* table32 = CloneTable(src.m_Table32);
  u64* table64 = CloneTable(src.m_Table64);
  DestroyCrcTables();
  m_Table8 = table8;
  m_Table16 = table16;
  m_Table32 = table32;
  m_Table64 = table64;
  m_CrcType = src.m_CrcType;
  m_StdCrc = src.m_StdCrc;
  m_IsPolynomial = src.m_IsPolynomial;
  m_Size = src.m_Size;
  m_Polynomial = src.m_Polynomial;
  m_ReflectInput = src.m_ReflectInput;
  m_ReflectOutput = src.m_ReflectOutput;
  m_Seed = src.m_Seed;
  m_FinalXor = src.m_FinalXor;
  std::memmove(m_ByteInversion, src.m_ByteInversion, sizeof m_ByteInversion);
  m_Running = src.m_Running;
  m_Pending = src.m_Pending;
  m_HasPending = src.m_HasPending;
}

// -----------------------------------------------------------------------------
// Computing
// -----------------------------------------------------------------------------

void CZEL_Crc::RequirePolynomial() const {
  if (m_IsPolynomial == 0) throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
}

void CZEL_Crc::Compute(u8* data, u64 size, u8* crc, u8 continued) const {
  ComputeBytes(data, size, crc, continued);
}

void CZEL_Crc::Compute(u8* data, u64 size, u16* crc, u8 continued) const {
  ComputeBytes(data, size, crc, continued);
}

void CZEL_Crc::Compute(u8* data, u64 size, u32* crc, u8 continued) const {
  ComputeBytes(data, size, crc, continued);
}

void CZEL_Crc::Compute(u8* data, u64 size, u64* crc, u8 continued) const {
  ComputeBytes(data, size, crc, continued);
}

void CZEL_Crc::Compute(u16* data, u64 size, u16* crc, u8 continued) const {
  ComputeBytes(reinterpret_cast<u8 const*>(data), size * 2, crc, continued);
}

void CZEL_Crc::Compute(u16 const* data, u64 size, u16* crc, u8 continued) const {
  ComputeBytes(reinterpret_cast<u8 const*>(data), size * 2, crc, continued);
}

void CZEL_Crc::ComputeBytes(u8 const* data, u64 size, u8* crc, u8 continued) const {
  RequirePolynomial();
  RunPolynomial(m_Table8, data, size, crc, continued);
}

void CZEL_Crc::ComputeBytes(u8 const* data, u64 size, u16* crc, u8 continued) const {
  if (IsMilStd1760()) {
    *crc = u16((continued != 0 ? *crc : 0) ^ FoldMilStdWords(0, data, size / 2));
    return;
  }
  RequirePolynomial();
  RunPolynomial(m_Table16, data, size, crc, continued);
}

void CZEL_Crc::ComputeBytes(u8 const* data, u64 size, u32* crc, u8 continued) const {
  RequirePolynomial();
  RunPolynomial(m_Table32, data, size, crc, continued);
}

void CZEL_Crc::ComputeBytes(u8 const* data, u64 size, u64* crc, u8 continued) const {
  RequirePolynomial();
  RunPolynomial(m_Table64, data, size, crc, continued);
}

bool CZEL_Crc::IsMilStd1760() const { return m_IsPolynomial == 0 && m_StdCrc == Crc16_MilStd1760; }

void CZEL_Crc::Compute(CZEL_Uint8Vector& data, u8* crc, u8 continued) const {
  RequirePolynomial();
  ComputePolynomial(data, crc, continued);
}

void CZEL_Crc::Compute(CZEL_Uint8Vector& data, u16* crc, u8 continued) const {
  RequirePolynomial();
  ComputePolynomial(data, crc, continued);
}

void CZEL_Crc::Compute(CZEL_Uint8Vector& data, u32* crc, u8 continued) const {
  RequirePolynomial();
  ComputePolynomial(data, crc, continued);
}

void CZEL_Crc::Compute(CZEL_Uint8Vector& data, u64* crc, u8 continued) const {
  RequirePolynomial();
  ComputePolynomial(data, crc, continued);
}

template <typename T>
void CZEL_Crc::RunCheckValue(T* crc) const {
  u8 digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
  CZEL_Uint8Vector data(digits, sizeof digits);
  Compute(data, crc, 0);
}

void CZEL_Crc::ComputeCheckValue(u8* crc) const { RunCheckValue(crc); }
void CZEL_Crc::ComputeCheckValue(u16* crc) const { RunCheckValue(crc); }
void CZEL_Crc::ComputeCheckValue(u32* crc) const { RunCheckValue(crc); }
void CZEL_Crc::ComputeCheckValue(u64* crc) const { RunCheckValue(crc); }

template <typename T>
void CZEL_Crc::RunPolynomial(T const* table, u8 const* data, u64 size, T* crc, u8 continued) const {
  if (table == nullptr) throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
  T reg = continued != 0 ? *crc : T(m_Seed);
  reg = T(ZEL::crc_engine::RunCrcEngine(BlockOf(table)->engine, reg, data, size));
  if (m_ReflectOutput != 0) reg = ReflectWidth(reg);
  *crc = T(reg ^ T(m_FinalXor));
}

void CZEL_Crc::ComputePolynomial(u8* data, u64 size, u8* crc, u8 continued) const {
  RunPolynomial(m_Table8, data, size, crc, continued);
}

void CZEL_Crc::ComputePolynomial(u8* data, u64 size, u16* crc, u8 continued) const {
  RunPolynomial(m_Table16, data, size, crc, continued);
}

void CZEL_Crc::ComputePolynomial(u8* data, u64 size, u32* crc, u8 continued) const {
  RunPolynomial(m_Table32, data, size, crc, continued);
}

void CZEL_Crc::ComputePolynomial(u8* data, u64 size, u64* crc, u8 continued) const {
  RunPolynomial(m_Table64, data, size, crc, continued);
}

void CZEL_Crc::ComputePolynomial(CZEL_Uint8Vector& data, u8* crc, u8 continued) const {
  ComputePolynomial(data.GetBuf(), data.GetLength(), crc, continued);
}

void CZEL_Crc::ComputePolynomial(CZEL_Uint8Vector& data, u16* crc, u8 continued) const {
  ComputePolynomial(data.GetBuf(), data.GetLength(), crc, continued);
}

void CZEL_Crc::ComputePolynomial(CZEL_Uint8Vector& data, u32* crc, u8 continued) const {
  ComputePolynomial(data.GetBuf(), data.GetLength(), crc, continued);
}

void CZEL_Crc::ComputePolynomial(CZEL_Uint8Vector& data, u64* crc, u8 continued) const {
  ComputePolynomial(data.GetBuf(), data.GetLength(), crc, continued);
}

void CZEL_Crc::Compute_MilStd1760(u8* data, u64 words, u16* crc, u8 continued) const {
  *crc = u16((continued != 0 ? *crc : 0) ^ FoldMilStdWords(0, data, words));
}

// -----------------------------------------------------------------------------
// Computing in pieces
// -----------------------------------------------------------------------------

ZEL::crc_engine::SCrcEngine const& CZEL_Crc::RunningEngine() const {
  RequirePolynomial();
  if (m_Table8 != nullptr) return BlockOf(m_Table8)->engine;
  if (m_Table16 != nullptr) return BlockOf(m_Table16)->engine;
  if (m_Table32 != nullptr) return BlockOf(m_Table32)->engine;
  if (m_Table64 != nullptr) return BlockOf(m_Table64)->engine;
  throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
}

CZEL_Crc& CZEL_Crc::Begin() {
  if (!IsMilStd1760()) RunningEngine();
  m_Running = IsMilStd1760() ? 0 : LowBits(m_Seed, m_Size);
  m_HasPending = 0;
  return *this;
}

CZEL_Crc& CZEL_Crc::Update(u8 const* data, u64 size) {
  if (!IsMilStd1760()) {
    m_Running = ZEL::crc_engine::RunCrcEngine(RunningEngine(), m_Running, data, size);
    return *this;
  }
  u16 check = u16(m_Running);
  if (m_HasPending != 0 && size != 0) {
    u8 const word[2] = {m_Pending, *data};
    check = FoldMilStdWords(check, word, 1);
    m_HasPending = 0;
    ++data;
    --size;
  }
  m_Running = FoldMilStdWords(check, data, size / 2);
  if (size % 2 != 0) {
    m_Pending = data[size - 1];
    m_HasPending = 1;
  }
  return *this;
}

u64 CZEL_Crc::Finish() const {
  if (IsMilStd1760()) return m_Running;
  RunningEngine();
  u64 reg = m_Running;
  if (m_ReflectOutput != 0) reg = ZEL::crc_engine::Reflect64(reg) >> (64 - m_Size);
  return LowBits(reg ^ m_FinalXor, m_Size);
}

// -----------------------------------------------------------------------------
// Parameters
// -----------------------------------------------------------------------------

u32 CZEL_Crc::GetSize() const { return m_Size; }
u64 CZEL_Crc::GetPolynomial() const { return m_Polynomial; }
u64 CZEL_Crc::GetSeed() const { return m_Seed; }
u64 CZEL_Crc::GetFinalXor() const { return m_FinalXor; }
u8 CZEL_Crc::IsInputReflected() const { return m_ReflectInput; }
u8 CZEL_Crc::IsOuputReflected() const { return m_ReflectOutput; }
