#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/values/CZEL_Crc.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <random>
#include <vector>

#include "../containers/ContainerTestSupport.h"
#include "CrcReference.h"

namespace {

using ZEL::u16;
using ZEL::u32;
using ZEL::u64;
using ZEL::u8;
using C = CZEL_Crc;
using Bytes = std::vector<u8>;
using zel_crc_reference::Mask;
using zel_crc_reference::Params;
using zel_crc_reference::Reference;
using zel_crc_reference::TypeOf;

Params ParamsOf(C const& crc) {
  return {crc.GetSize(),
          crc.GetPolynomial(),
          crc.GetSeed(),
          crc.IsInputReflected() != 0,
          crc.IsOuputReflected() != 0,
          crc.GetFinalXor()};
}

// Calls `f` with a 0 of the unsigned type of `width` bits.
template <typename F>
u64 AtWidth(u32 width, F f) {
  if (width == 8) return f(u8{});
  if (width == 16) return f(u16{});
  if (width == 32) return f(u32{});
  return f(u64{});
}

// `Compute` on raw bytes into a result of `width` bits, starting from `crc`.
u64 Raw(C const& engine, u32 width, u8* data, u64 size, u64 crc, u8 continued) {
  return AtWidth(width, [&](auto zero) {
    auto value = static_cast<decltype(zero)>(crc);
    engine.Compute(data, size, &value, continued);
    return u64{value};
  });
}

u64 Check(C const& engine, u32 width) {
  return AtWidth(width, [&](auto value) {
    engine.ComputeCheckValue(&value);
    return u64{value};
  });
}

Bytes Text(char const* text) { return Bytes(text, text + std::strlen(text)); }

u8 const kDigits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};

// The catalogue's parameter sets: width, check value and the members.
struct Set {
  u32 width;
  u64 check;
  std::vector<C::t_StdCrc> members;
};

Set const kSets[] = {
    {8, 0xF4, {C::Crc8}},
    {8, 0x97, {C::Crc8_Aes, C::Crc8_Ebu}},
    {8, 0xDF, {C::Crc8_Autosar}},
    {8, 0x26, {C::Crc8_Bluetooth}},
    {8, 0xDA, {C::Crc8_Cdma2000}},
    {8, 0x15, {C::Crc8_Darc}},
    {8, 0xA1, {C::Crc8_DowCrc, C::Crc8_Maxim}},
    {8, 0xBC, {C::Crc8_DvbS2}},
    {8, 0x37, {C::Crc8_GsmA}},
    {8, 0x94, {C::Crc8_GsmB}},
    {8, 0x7E, {C::Crc8_ICode}},
    {8, 0xA1, {C::Crc8_Itu}},
    {8, 0xEA, {C::Crc8_Lte}},
    {8, 0x3E, {C::Crc8_OpenSafety}},
    {8, 0xD0, {C::Crc8_Rohc}},
    {8, 0x4B, {C::Crc8_SaeJ1850}},
    {8, 0x25, {C::Crc8_Wcdma}},
    {16, 0xBB3D, {C::Crc16, C::Crc16_Arc, C::Crc16_Ibm, C::Crc16_Lha}},
    {16, 0xBF05, {C::Crc16_A, C::Crc16_Iso14443A}},
    {16, 0x31C3, {C::Crc16_Acorn, C::Crc16_Lte, C::Crc16_Xmodem, C::Crc16_Zmodem}},
    {16, 0xE5CC, {C::Crc16_AugCcitt, C::Crc16_SpiFujitsu}},
    {16, 0xFEE8, {C::Crc16_Buypass, C::Crc16_Umts, C::Crc16_Verifone}},
    {16, 0x2189, {C::Crc16_Ccitt, C::Crc16_CcittTrue, C::Crc16_CcittReflected, C::Crc16_Kermit}},
    {16, 0x29B1, {C::Crc16_CcittFalse, C::Crc16_Ibm3740}},
    {16, 0x4C06, {C::Crc16_Cdma2000}},
    {16, 0xAEE7, {C::Crc16_Cms}},
    {16, 0x906E, {C::Crc16_B, C::Crc16_IbmSdlc, C::Crc16_IsoHdlc, C::Crc16_X25}},
    {16, 0xD64E, {C::Crc16_Darc, C::Crc16_Epc, C::Crc16_Genibus, C::Crc16_ICode}},
    {16, 0x9ECF, {C::Crc16_Dds110}},
    {16, 0x007E, {C::Crc16_DectR, C::Crc16_R}},
    {16, 0x007F, {C::Crc16_DectX, C::Crc16_X}},
    {16, 0xEA82, {C::Crc16_Dnp}},
    {16, 0xC2B7, {C::Crc16_En13757}},
    {16, 0xCE3C, {C::Crc16_Gsm}},
    {16, 0xA819, {C::Crc16_Iec611582, C::Crc16_Profibus}},
    {16, 0xBDF4, {C::Crc16_Lj1200}},
    {16, 0x44C2, {C::Crc16_Maxim}},
    {16, 0x6F91, {C::Crc16_Mcrf4xx}},
    {16, 0x4B37, {C::Crc16_Modbus}},
    {16, 0x5D38, {C::Crc16_OpenSafetyA}},
    {16, 0x20FE, {C::Crc16_OpenSafetyB}},
    {16, 0x63D0, {C::Crc16_Riello}},
    {16, 0xD0DB, {C::Crc16_T10Dif}},
    {16, 0x0FB3, {C::Crc16_Teledisk}},
    {16, 0x26B1, {C::Crc16_Tms37157}},
    {16, 0xB4C8, {C::Crc16_Usb}},
    {32, 0xCBF43926, {C::Crc32, C::Crc32_IsoHdlc, C::Crc32_Pkzip}},
    {32, 0x1697D06A, {C::Crc32_Autosar}},
    {32, 0xFC891918, {C::Crc32_Aal5, C::Crc32_B, C::Crc32_Bzip2, C::Crc32_DectB}},
    {32, 0xE3069283, {C::Crc32_C, C::Crc32_Castagnoli, C::Crc32_Interlaken, C::Crc32_Iscsi}},
    {32, 0x87315576, {C::Crc32_D}},
    {32, 0x0376E6E7, {C::Crc32_Mpeg2}},
    {32, 0x765E7680, {C::Crc32_Posix, C::Crc32_Cksum, C::Crc32_Posix2}},
    {32, 0x3010BF7F, {C::Crc32_Q}},
    {32, 0x340BC6D9, {C::Crc32_Jamcrc}},
    {32, 0xBD0BE338, {C::Crc32_Xfer}},
    {64, 0x6C40DF5F0B497347, {C::Crc64}},
    {64, 0xB90956C775A41001, {C::Crc64_GoIso}},
    {64, 0x62EC59E3F1A4F00A, {C::Crc64_We}},
    {64, 0x995DC9BBDF1939FA, {C::Crc64_Xz, C::Crc64_GoEcma}},
};

TEST(CrcCatalogue, EveryMemberGivesItsCheckValue) {
  size_t members = 0;
  for (Set const& set : kSets) {
    for (C::t_StdCrc type : set.members) {
      C const crc(type);
      EXPECT_EQ(crc.GetSize(), set.width) << type;
      EXPECT_EQ(Check(crc, set.width), set.check) << type;
      // The getters describe the CRC that gives the check value.
      EXPECT_EQ(Reference(ParamsOf(crc), crc.GetSeed(), kDigits, 9), set.check) << type;
      ++members;
    }
  }
  EXPECT_EQ(members, 96u);
}

TEST(CrcCatalogue, EmptyBlockGivesReflectedSeedXorFinal) {
  struct Row {
    C::t_StdCrc type;
    u32 width;
    u64 expected;
  } const rows[] = {{C::Crc32, 32, 0},
                    {C::Crc16_Usb, 16, 0},
                    {C::Crc8_Autosar, 8, 0},
                    {C::Crc32_Mpeg2, 32, 0xFFFFFFFF},
                    {C::Crc16_Riello, 16, 0x554D}};
  u8 byte = 0;
  for (Row const& r : rows) EXPECT_EQ(Raw(C(r.type), r.width, &byte, 0, 0, 0), r.expected);
}

// Random parameters, lengths, alignments and split points against the
// bit-by-bit reference: short blocks, the eight-byte path and the folding
// path (where the processor has it) all give the byte-table result.
TEST(CrcPaths, RandomBlocksMatchTheBitByBitDefinition) {
  std::mt19937_64 random(20240607);
  Bytes buffer(70000 + 16);
  for (u8& b : buffer) b = u8(random());
  C reused;
  for (int round = 0; round < 1500; ++round) {
    u32 const width = 8u << (random() % 4);
    u64 const mask = Mask(width);
    Params const p{width,   random() & mask, random(), random() % 2 == 0, random() % 2 == 0,
                   random()};
    for (u32 i = 0; i < 1016; ++i) buffer[i] = u8(random());
    // Now and then a long block, for many rounds of the wide loops.
    u64 const size = random() % (round % 100 == 0 ? 70001 : 1001);
    u8* const data = buffer.data() + random() % 16;
    u64 const split = size == 0 ? 0 : random() % (size + 1);

    // An object with a table of any width, then assigned the one under test.
    reused.CreatePolynomial(static_cast<C::t_CrcType>(1 + random() % 4), random(), 0, 1, 0, 0);
    C const fresh(TypeOf(width), p.poly, p.seed, p.reflectIn, p.reflectOut, p.finalXor);
    reused = fresh;

    u64 const whole = Reference(p, p.seed, data, size);
    ASSERT_EQ(Raw(fresh, width, data, size, 0, 0), whole) << round;
    u64 const first = Raw(reused, width, data, split, 0, 0);
    u64 const second = Raw(reused, width, data + split, size - split, first, 1);
    ASSERT_EQ(first, Reference(p, p.seed, data, split)) << round;
    ASSERT_EQ(second, Reference(p, first, data + split, size - split)) << round;
    if (!p.reflectOut && (p.finalXor & mask) == 0) {
      ASSERT_EQ(second, whole) << round;
    }
  }
}

TEST(CrcPaths, VectorAndWordFormsSeeTheSameBytes) {
  C const crc(C::Crc16_Modbus);
  Bytes bytes(300);
  for (size_t i = 0; i < bytes.size(); ++i) bytes[i] = u8(i * 7 + 3);
  CZEL_Uint8Vector vector(bytes.data(), u32(bytes.size()));
  std::vector<u16> words(bytes.size() / 2);
  std::memcpy(words.data(), bytes.data(), bytes.size());

  u16 fromBytes = 0;
  u16 fromVector = 0;
  u16 fromWords = 0;
  crc.Compute(bytes.data(), bytes.size(), &fromBytes, 0);
  crc.Compute(vector, &fromVector, 0);
  crc.Compute(words.data(), words.size(), &fromWords, 0);
  EXPECT_EQ(fromBytes, Reference(ParamsOf(crc), crc.GetSeed(), bytes.data(), bytes.size()));
  EXPECT_EQ(fromVector, fromBytes);
  EXPECT_EQ(fromWords, fromBytes);
}

TEST(CrcContinuation, NothingIsUndoneBetweenBlocks) {
  Bytes head = Text("1234");
  Bytes tail = Text("56789");
  struct Row {
    C::t_StdCrc type;
    u32 width;
    u64 expected;
  } const rows[] = {{C::Crc16_Xmodem, 16, 0x31C3}, {C::Crc32, 32, 0xF67D568B}};
  for (Row const& r : rows) {
    C const crc(r.type);
    u64 const first = Raw(crc, r.width, head.data(), head.size(), 0, 0);
    EXPECT_EQ(Raw(crc, r.width, tail.data(), tail.size(), first, 1), r.expected) << r.type;
  }
}

TEST(CrcMilStd1760, RotatesFromTheLastWord) {
  C crc;
  crc.Create(C::Crc16_MilStd1760);
  EXPECT_EQ(crc.GetSize(), 0u);
  u16 words[] = {0x1234, 0x5678, 0x9ABC};
  u16 check = 0xAAAA;
  crc.Compute(words, 3, &check, 0);
  EXPECT_EQ(check, 0xFD38);

  u8 bytes[] = {0x34, 0x12, 0x78};  // an odd last byte is ignored
  crc.Compute(bytes, 3, &check, 0);
  EXPECT_EQ(check, 0x2468);
  crc.Compute(bytes, 0, &check, 1);
  EXPECT_EQ(check, 0x2468);

  // Blocks chain where the later one is a multiple of 16 words long.
  std::vector<u16> block(48);
  for (size_t i = 0; i < block.size(); ++i) block[i] = u16(i * 0x1111 + 5);
  u16 whole = 0;
  crc.Compute(block.data(), 48, &whole, 0);
  u16 split = 0;
  crc.Compute(block.data(), 16, &split, 0);
  crc.Compute(block.data() + 16, 32, &split, 1);
  EXPECT_EQ(split, whole);
}

TEST(CrcFailures, EachThrowCarriesItsCodeAndLeavesTheResult) {
  u8 data[4] = {1, 2, 3, 4};
  CZEL_Uint8Vector vector(data, 4);
  u8 r8 = 0x11;
  u16 r16 = 0x2222;
  u32 r32 = 0x33333333;
  u64 r64 = 0x4444;
  auto untouched = [&] {
    return r8 == 0x11 && r16 == 0x2222 && r32 == 0x33333333 && r64 == 0x4444;
  };

  C none;
  C const modbus(C::Crc16_Modbus);
  C const badType(static_cast<C::t_CrcType>(5), 0x07, 0, 0, 0, 0);
  C mil;
  mil.Create(C::Crc16_MilStd1760);
  for (C const* c : {static_cast<C const*>(&none), &badType}) {
    EXPECT_ZEL_THROW(c->Compute(data, 4, &r8, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Compute(data, 4, &r16, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Compute(data, 4, &r32, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Compute(data, 4, &r64, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Compute(vector, &r16, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->ComputeCheckValue(&r32), ZEL_ERR_FAILED, c);
  }
  EXPECT_ZEL_THROW(modbus.Compute(data, 4, &r32, 0), ZEL_ERR_FAILED, &modbus);
  EXPECT_ZEL_THROW(modbus.Compute(vector, &r8, 0), ZEL_ERR_FAILED, &modbus);
  EXPECT_ZEL_THROW(mil.Compute(vector, &r16, 0), ZEL_ERR_FAILED, &mil);
  EXPECT_ZEL_THROW(mil.ComputeCheckValue(&r16), ZEL_ERR_FAILED, &mil);
  EXPECT_ZEL_THROW(mil.Compute(data, 4, &r32, 0), ZEL_ERR_FAILED, &mil);
  EXPECT_TRUE(untouched());

  // An unknown member is refused, but remembered: the check word is gone.
  for (u32 unknown : {19u, 4149u, 12308u, 20485u, 0xFFFFFFFFu}) {
    C crc;
    crc.Create(C::Crc16_MilStd1760);
    EXPECT_ZEL_THROW(crc.Create(static_cast<C::t_StdCrc>(unknown)), ZEL_ERR_INVALID_ARGUMENT, &crc);
    EXPECT_ZEL_THROW(crc.Compute(data, 4, &r16, 0), ZEL_ERR_FAILED, &crc);
    EXPECT_THROW(C{static_cast<C::t_StdCrc>(unknown)}, CZEL_Exception);
  }
}

TEST(CrcCopies, CopiesAreIndependentAndReconfigurable) {
  auto source = std::make_unique<C>(C::Crc32_C);
  C copy(*source);
  C assigned;
  assigned = *source;
  source->Create(C::Crc64_Xz);  // a second configuration of the source
  EXPECT_EQ(Check(*source, 64), 0x995DC9BBDF1939FAu);
  source.reset();
  EXPECT_EQ(Check(copy, 32), 0xE3069283u);
  EXPECT_EQ(Check(assigned, 32), 0xE3069283u);

  C& alias = assigned;  // through a reference, as self-assignment happens in practice
  assigned = alias;
  EXPECT_EQ(Check(assigned, 32), 0xE3069283u);

  // The check word on an object with a polynomial keeps the polynomial.
  assigned.Create(C::Crc16_MilStd1760);
  EXPECT_EQ(Check(assigned, 32), 0xE3069283u);
  assigned.CreatePolynomial(C::CrcType_8, 0x107, 0, 0, 0, 0);
  EXPECT_EQ(assigned.GetPolynomial(), 0x107u);
  EXPECT_EQ(Check(assigned, 8), 0xF4u);

  C const unconfigured;
  copy = unconfigured;
  u32 r = 7;
  EXPECT_ZEL_THROW(copy.Compute(nullptr, 0, &r, 0), ZEL_ERR_FAILED, &copy);
}

}  // namespace
