// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/values/CZEL_Crc.h>

#include <gtest/gtest.h>

#include <algorithm>
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
using zel_crc_reference::Params;
using zel_crc_reference::Reference;

// clang-format off
Params ParamsOf(C const& crc) {
  return {crc.GetSize(), crc.GetPolynomial(), crc.GetSeed(), crc.IsInputReflected() != 0,
          crc.IsOuputReflected() != 0, crc.GetFinalXor()};
}
// clang-format on

// Calls `f` with a 0 of the unsigned type of `width` bits.
template <typename F>
u64 AtWidth(u32 width, F f) {
  return width == 8 ? f(u8{}) : width == 16 ? f(u16{}) : width == 32 ? f(u32{}) : f(u64{});
}

// `Compute` on raw bytes into a result of `width` bits, starting from `crc`.
u64 Raw(C const& engine, u32 width, u8* data, u64 size, u64 crc, u8 continued) {
  return AtWidth(width, [&](auto zero) {
    auto value = static_cast<decltype(zero)>(crc);
    return engine.Compute(data, size, &value, continued), u64{value};
  });
}

u64 Check(C const& engine, u32 width) {
  return AtWidth(width, [&](auto value) { return engine.ComputeCheckValue(&value), u64{value}; });
}

// The check value of each member of the catalogue, in the order of
// `t_StdCrc` from the first member of each width; 0 stands for
// `Crc16_MilStd1760`, which has none. Members of one parameter set share it.
struct Family {
  C::t_StdCrc first;
  std::vector<u64> checks;
};

// clang-format off
Family const kCatalogue[] = {
    // Crc8, Aes, Autosar, Bluetooth, Cdma2000, Darc, DowCrc, DvbS2, Ebu, GsmA, GsmB, ICode, Itu,
    // Lte, Maxim, OpenSafety, Rohc, SaeJ1850, Wcdma
    {C::Crc8, {0xF4, 0x97, 0xDF, 0x26, 0xDA, 0x15, 0xA1, 0xBC, 0x97, 0x37, 0x94, 0x7E, 0xA1, 0xEA,
        0xA1, 0x3E, 0xD0, 0x4B, 0x25}},
    // Crc16, A, Acorn, Arc, AugCcitt, Buypass, Ccitt, CcittTrue, CcittFalse, CcittReflected,
    // Cdma2000, Cms, B, Darc, Dds110, DectR, DectX, Dnp, En13757, Epc, Genibus, Gsm, Ibm, IbmSdlc,
    // ICode, Iec611582, IsoHdlc, Iso14443A, Kermit, Lha, Lj1200, Lte, Maxim, Mcrf4xx, Modbus,
    // OpenSafetyA, OpenSafetyB, Profibus, R, Riello, SpiFujitsu, T10Dif, Teledisk, Tms37157, Umts,
    // Usb, Verifone, X, X25, Xmodem, Zmodem, MilStd1760, Ibm3740
    {C::Crc16, {0xBB3D, 0xBF05, 0x31C3, 0xBB3D, 0xE5CC, 0xFEE8, 0x2189, 0x2189, 0x29B1, 0x2189,
        0x4C06, 0xAEE7, 0x906E, 0xD64E, 0x9ECF, 0x007E, 0x007F, 0xEA82, 0xC2B7, 0xD64E, 0xD64E,
        0xCE3C, 0xBB3D, 0x906E, 0xD64E, 0xA819, 0x906E, 0xBF05, 0x2189, 0xBB3D, 0xBDF4, 0x31C3,
        0x44C2, 0x6F91, 0x4B37, 0x5D38, 0x20FE, 0xA819, 0x007E, 0x63D0, 0xE5CC, 0xD0DB, 0x0FB3,
        0x26B1, 0xFEE8, 0xB4C8, 0xFEE8, 0x007F, 0x906E, 0x31C3, 0x31C3, 0, 0x29B1}},
    // Crc32, IsoHdlc, Pkzip, Autosar, Aal5, B, Bzip2, DectB, C, Castagnoli, Interlaken, Iscsi, D,
    // Mpeg2, Posix, Cksum, Q, Jamcrc, Xfer, Posix2
    {C::Crc32, {0xCBF43926, 0xCBF43926, 0xCBF43926, 0x1697D06A, 0xFC891918, 0xFC891918, 0xFC891918,
        0xFC891918, 0xE3069283, 0xE3069283, 0xE3069283, 0xE3069283, 0x87315576, 0x0376E6E7,
        0x765E7680, 0x765E7680, 0x3010BF7F, 0x340BC6D9, 0xBD0BE338, 0x765E7680}},
    // Crc64, GoIso, We, Xz, GoEcma
    {C::Crc64, {0x6C40DF5F0B497347, 0xB90956C775A41001, 0x62EC59E3F1A4F00A, 0x995DC9BBDF1939FA,
        0x995DC9BBDF1939FA}},
};
// clang-format on

// Each member gives its check value (through the vector form), and its
// getters describe that CRC. An empty block gives the reflected seed XOR the
// final value.
TEST(CrcCatalogue, EveryMemberGivesItsCheckValue) {
  u8 digits[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
  size_t members = 0;
  for (Family const& family : kCatalogue) {
    for (u32 i = 0; i < family.checks.size(); ++i) {
      auto const type = static_cast<C::t_StdCrc>(family.first + i);
      if (type == C::Crc16_MilStd1760) continue;
      SCOPED_TRACE(type);
      C const crc(type);
      Params const p = ParamsOf(crc);
      EXPECT_EQ(Check(crc, p.width), family.checks[i]);
      EXPECT_EQ(Reference(p, p.seed, digits, 9), family.checks[i]);
      EXPECT_EQ(Raw(crc, p.width, digits, 0, 0, 0), Reference(p, p.seed, digits, 0));
      ++members;
    }
  }
  EXPECT_EQ(members, 96u);
}

// Random parameters, lengths, alignments and split points against the
// bit-by-bit reference: short blocks before and after an object has derived
// its long-block tables, the eight-byte path and the folding path (where the
// processor has it) all give the byte-table result.
TEST(CrcPaths, RandomBlocksMatchTheBitByBitDefinition) {
  std::mt19937_64 random(20240607);
  std::vector<u8> buffer(70000 + 16);
  for (u8& b : buffer) b = u8(random());
  C reused;
  for (int round = 0; round < 1500; ++round) {
    SCOPED_TRACE(round);
    // Braces: the arguments are drawn in order.
    // clang-format off
    C const fresh{zel_crc_reference::TypeOf(8u << (random() % 4)), random(), random(),
                  random() % 2 == 0, random() % 2 == 0, random()};
    // clang-format on
    Params const p = ParamsOf(fresh);
    for (u32 i = 0; i < 1016; ++i) buffer[i] = u8(random());
    // Now and then a long block, for many rounds of the wide loops.
    u64 const size = random() % (round % 100 == 0 ? 70001 : 1001);
    u8* const data = buffer.data() + random() % 16;
    u64 const split = size == 0 ? 0 : random() % (size + 1);
    // An object with a table of any width, then assigned the one under test.
    reused.CreatePolynomial(static_cast<C::t_CrcType>(1 + random() % 4), random(), 0, 1, 0, 0);
    reused = fresh;
    if (round % 2 != 0) Raw(reused, p.width, buffer.data(), 5000, 0, 0);  // long-block tables
    ASSERT_EQ(Raw(fresh, p.width, data, size, 0, 0), Reference(p, p.seed, data, size));
    u64 const first = Raw(reused, p.width, data, split, 0, 0);
    ASSERT_EQ(first, Reference(p, p.seed, data, split));
    ASSERT_EQ(Raw(reused, p.width, data + split, size - split, first, 1),
              Reference(p, first, data + split, size - split));
  }
}

// Begin, Update over random pieces and Finish give one Compute over the
// whole, for every member (the check word too), in short and long pieces.
TEST(CrcPieces, AnySplitGivesOneComputeOverTheWhole) {
  std::mt19937_64 random(7);
  std::vector<u8> data(20000);
  for (u8& b : data) b = u8(random());
  u8 const* const bytes = data.data();
  for (Family const& family : kCatalogue) {
    for (u32 i = 0; i < family.checks.size(); ++i) {
      auto const type = static_cast<C::t_StdCrc>(family.first + i);
      SCOPED_TRACE(type);
      C crc(type);
      u64 const size = random() % data.size();
      u64 const whole = AtWidth(type == C::Crc16_MilStd1760 ? 16 : crc.GetSize(), [&](auto value) {
        return crc.Compute(bytes, size, &value, 0), u64{value};
      });
      crc.Update(bytes, 5).Begin();
      for (u64 at = 0, piece = 0; at < size; at += piece) {
        piece = std::min<u64>(size - at, random() % (random() % 2 != 0 ? 9 : 5000));
        crc.Update(bytes + at, piece);
      }
      EXPECT_EQ(C(std::move(crc)).Finish(), whole);
    }
  }
  u32 r = 0;
  C const crc32(C::Crc32);
  crc32.Compute("123456789", 9, &r, 0);
  EXPECT_EQ(r, 0xCBF43926u);
}

// Word i from the end, rotated left by i + 1, XORed in; an odd last byte is
// ignored; blocks chain where the later one is a multiple of 16 words long.
TEST(CrcMilStd1760, RotatesFromTheLastWord) {
  C crc;
  crc.Create(C::Crc16_MilStd1760);
  EXPECT_EQ(crc.GetSize(), 0u);
  u16 words[] = {0x1234, 0x5678, 0x9ABC};
  u16 check = 0xAAAA;
  crc.Compute(words, 3, &check, 0);
  EXPECT_EQ(check, 0xFD38);
  u8 bytes[] = {0x34, 0x12, 0x78};
  crc.Compute(bytes, 3, &check, 0);
  crc.Compute(bytes, 0, &check, 1);
  EXPECT_EQ(check, 0x2468);
  std::vector<u16> block(48);
  for (size_t i = 0; i < block.size(); ++i) block[i] = u16(i * 0x1111 + 5);
  u16 whole = 0;
  u16 split = 0;
  crc.Compute(block.data(), 48, &whole, 0);
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
  C none;
  C const modbus(C::Crc16_Modbus);
  C const badType(static_cast<C::t_CrcType>(5), 0x07, 0, 0, 0, 0);
  C const mil(C::Crc16_MilStd1760);
  for (C const* c : {static_cast<C const*>(&none), &badType}) {
    for (u32 width : {8, 16, 32, 64})
      EXPECT_ZEL_THROW(Raw(*c, width, data, 4, 0, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Compute(vector, &r16, 0), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->ComputeCheckValue(&r32), ZEL_ERR_FAILED, c);
    EXPECT_ZEL_THROW(c->Finish(), ZEL_ERR_FAILED, c);
  }
  EXPECT_ZEL_THROW(none.Begin(), ZEL_ERR_FAILED, &none);
  EXPECT_ZEL_THROW(none.Update(data, 4), ZEL_ERR_FAILED, &none);
  EXPECT_ZEL_THROW(modbus.Compute(data, 4, &r32, 0), ZEL_ERR_FAILED, &modbus);
  EXPECT_ZEL_THROW(modbus.Compute(vector, &r8, 0), ZEL_ERR_FAILED, &modbus);
  EXPECT_ZEL_THROW(mil.Compute(vector, &r16, 0), ZEL_ERR_FAILED, &mil);
  EXPECT_ZEL_THROW(mil.ComputeCheckValue(&r16), ZEL_ERR_FAILED, &mil);
  EXPECT_ZEL_THROW(mil.Compute(data, 4, &r32, 0), ZEL_ERR_FAILED, &mil);
  EXPECT_TRUE(r8 == 0x11 && r16 == 0x2222 && r32 == 0x33333333);
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
  C& alias = assigned;  // through a reference, as self-assignment happens in practice
  assigned = alias;
  EXPECT_EQ(Check(copy, 32) + Check(assigned, 32), 2 * u64{0xE3069283u});
  // The check word on an object with a polynomial keeps the polynomial.
  assigned.Create(C::Crc16_MilStd1760);
  EXPECT_EQ(Check(assigned, 32), 0xE3069283u);
  assigned.CreatePolynomial(C::CrcType_8, 0x107, 0, 0, 0, 0);
  EXPECT_EQ(assigned.GetPolynomial() + Check(assigned, 8), 0x107u + 0xF4);
  C moved(std::move(copy));
  swap(moved, assigned);
  EXPECT_EQ(Check(assigned, 32) + Check(moved, 8), 0xE3069283u + 0xF4);
  u32 r = 7;
  EXPECT_ZEL_THROW(copy.Compute(nullptr, 0, &r, 0), ZEL_ERR_FAILED, &copy);
}

}  // namespace
