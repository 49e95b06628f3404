// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Crc.h
// -----------------------------------------------------------------------------
//
// `CZEL_Crc` computes cyclic redundancy checks of 8, 16, 32 or 64 bits for
// any polynomial, seed, reflection and final XOR, and for a catalogue of 97
// named members (`t_StdCrc`). One member, `Crc16_MilStd1760`, is no
// polynomial CRC: it is the rotate-and-XOR check word of MIL-STD-1760.
//
//   CZEL_Crc crc(CZEL_Crc::Crc32);
//   ZEL::u8 text[] = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
//   ZEL::u32 value = 0;
//   crc.Compute(text, sizeof text, &value, 0);        // 0xCBF43926
//
//   CZEL_Crc own(CZEL_Crc::CrcType_16, 0x1021, 0xFFFF, 0, 0, 0);
//   ZEL::u16 check = 0;
//   own.ComputeCheckValue(&check);                    // 0x29B1, "123456789"
//
// The computation
//
// The register starts from the seed (its low `GetSize()` bits, used as they
// stand and never reflected) and takes the bytes most-significant-bit first,
// through a table of the polynomial in its normal form. With input
// reflection each byte is bit-reversed before use. After the last byte the
// register is bit-reversed over its width if output reflection is set, and
// the final XOR is applied after that reflection. Both reflections are
// independent flags.
//
// Continuation
//
// `continued` non-zero starts from the value now in `*crc` instead of the
// seed, taken as it stands: neither the final XOR nor the output reflection
// of the earlier call is undone. A computation in blocks therefore equals one
// call only where output reflection is off and the final XOR is 0
// (`Crc16_Xmodem`: "1234" then "56789" gives 0x31C3, as one call does). For
// other CRCs the caller undoes the XOR and the reflection before passing the
// value back (`Crc32` without that care: 0xF67D568B, not 0xCBF43926).
//
// Widths
//
// Each object computes at the one width it was configured for; a result
// pointer of another width throws ZEL_ERR_FAILED and leaves `*crc` as it
// was. So does every `Compute` on an object that isn't configured.
//
// MIL-STD-1760
//
// Configure it with `CZEL_Crc(Crc16_MilStd1760)`, or with
// `Create(Crc16_MilStd1760)` on an object that has no polynomial yet. Only
// the two 16-bit overloads on raw data know this check; the vector overloads
// and `ComputeCheckValue` throw ZEL_ERR_FAILED for it. The block is read as
// 16-bit words, low byte first; an odd last byte is ignored. The last word
// is rotated left by one place, the word before it by two, and so on
// (counts modulo 16), and all are XORed together; `continued` non-zero XORs
// onto the value in `*crc` instead of 0. The words 0x1234, 0x5678, 0x9ABC
// give 0xFD38. `Create(Crc16_MilStd1760)` on an object that already has a
// polynomial keeps computing with that polynomial.
//
// Speed
//
// The results are those of the byte-at-a-time table, for every parameter
// set. Configuring builds that one table, so that setting up an object for a
// short block costs little. Once an object has computed a few KiB, or one
// long block, it derives the tables of the long-block paths, once: eight
// bytes at a time, and on x86-64 processors with carry-less multiplication
// folding 128 bytes at a time (256 where the processor has it on 512-bit
// registers). The path never changes a result. A configured object owns
// about 4 KiB of tables, and 20 KiB once it has derived the others.
//
// Copies are deep, and an object may be configured again at any time.
// `Compute` changes nothing that a caller can see (deriving the long-block
// tables is safe across threads), so one configured object may serve several
// threads at once; configuring, assigning and `Begin`, `Update` need the
// caller's lock.
// A null data pointer with a non-zero size is the caller's mistake.

#ifndef LZEL_CORE_VALUES_CZEL_CRC_H_
#define LZEL_CORE_VALUES_CZEL_CRC_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>

#include <type_traits>

class CZEL_Uint8Vector;
namespace ZEL {
namespace crc_engine {
struct SCrcEngine;
}  // namespace crc_engine
}  // namespace ZEL

class ZEL_API CZEL_Crc : public CZEL_Object {
 public:
  // The width class of a configuration.
  enum t_CrcType : ZEL::u32 {
    CrcType_None = 0,  // Not configured.
    CrcType_8 = 1,
    CrcType_16 = 2,
    CrcType_32 = 3,
    CrcType_64 = 4,
  };

  // The catalogue. 8-bit members from 0, 16-bit members from 0x1000, 32-bit
  // members from 0x3000, 64-bit members from 0x5000. Members that name the
  // same CRC keep their own values. The check value (of "123456789") is
  // given for each.
  enum t_StdCrc : ZEL::u32 {
    // Poly 0x07, seed 0x00, not reflected, xor 0x00: check 0xF4.
    Crc8 = 0,
    // Poly 0x1D, seed 0xFF, reflected, xor 0x00: check 0x97.
    Crc8_Aes = 1,
    // Poly 0x2F, seed 0xFF, not reflected, xor 0xFF: check 0xDF.
    Crc8_Autosar = 2,
    // Poly 0xA7, seed 0x00, reflected, xor 0x00: check 0x26.
    Crc8_Bluetooth = 3,
    // Poly 0x9B, seed 0xFF, not reflected, xor 0x00: check 0xDA.
    Crc8_Cdma2000 = 4,
    // Poly 0x39, seed 0x00, reflected, xor 0x00: check 0x15.
    Crc8_Darc = 5,
    // Poly 0x31, seed 0x00, reflected, xor 0x00: check 0xA1.
    Crc8_DowCrc = 6,
    // Poly 0xD5, seed 0x00, not reflected, xor 0x00: check 0xBC.
    Crc8_DvbS2 = 7,
    // Poly 0x1D, seed 0xFF, reflected, xor 0x00: check 0x97.
    Crc8_Ebu = 8,
    // Poly 0x1D, seed 0x00, not reflected, xor 0x00: check 0x37.
    Crc8_GsmA = 9,
    // Poly 0x49, seed 0x00, not reflected, xor 0xFF: check 0x94.
    Crc8_GsmB = 10,
    // Poly 0x1D, seed 0xFD, not reflected, xor 0x00: check 0x7E.
    Crc8_ICode = 11,
    // Poly 0x07, seed 0x00, not reflected, xor 0x55: check 0xA1.
    Crc8_Itu = 12,
    // Poly 0x9B, seed 0x00, not reflected, xor 0x00: check 0xEA.
    Crc8_Lte = 13,
    // Poly 0x31, seed 0x00, reflected, xor 0x00: check 0xA1.
    Crc8_Maxim = 14,
    // Poly 0x2F, seed 0x00, not reflected, xor 0x00: check 0x3E.
    Crc8_OpenSafety = 15,
    // Poly 0x07, seed 0xFF, reflected, xor 0x00: check 0xD0.
    Crc8_Rohc = 16,
    // Poly 0x1D, seed 0xFF, not reflected, xor 0xFF: check 0x4B.
    Crc8_SaeJ1850 = 17,
    // Poly 0x9B, seed 0x00, reflected, xor 0x00: check 0x25.
    Crc8_Wcdma = 18,
    // Poly 0x8005, seed 0x0000, reflected, xor 0x0000: check 0xBB3D.
    Crc16 = 4096,
    // Poly 0x1021, seed 0xC6C6, reflected, xor 0x0000: check 0xBF05.
    Crc16_A = 4097,
    // Poly 0x1021, seed 0x0000, not reflected, xor 0x0000: check 0x31C3.
    Crc16_Acorn = 4098,
    // Poly 0x8005, seed 0x0000, reflected, xor 0x0000: check 0xBB3D.
    Crc16_Arc = 4099,
    // Poly 0x1021, seed 0x1D0F, not reflected, xor 0x0000: check 0xE5CC.
    Crc16_AugCcitt = 4100,
    // Poly 0x8005, seed 0x0000, not reflected, xor 0x0000: check 0xFEE8.
    Crc16_Buypass = 4101,
    // Poly 0x1021, seed 0x0000, reflected, xor 0x0000: check 0x2189.
    Crc16_Ccitt = 4102,
    // Poly 0x1021, seed 0x0000, reflected, xor 0x0000: check 0x2189.
    Crc16_CcittTrue = 4103,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0x0000: check 0x29B1.
    Crc16_CcittFalse = 4104,
    // Poly 0x1021, seed 0x0000, reflected, xor 0x0000: check 0x2189.
    Crc16_CcittReflected = 4105,
    // Poly 0xC867, seed 0xFFFF, not reflected, xor 0x0000: check 0x4C06.
    Crc16_Cdma2000 = 4106,
    // Poly 0x8005, seed 0xFFFF, not reflected, xor 0x0000: check 0xAEE7.
    Crc16_Cms = 4107,
    // Poly 0x1021, seed 0xFFFF, reflected, xor 0xFFFF: check 0x906E.
    Crc16_B = 4108,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xD64E.
    Crc16_Darc = 4109,
    // Poly 0x8005, seed 0x800D, not reflected, xor 0x0000: check 0x9ECF.
    Crc16_Dds110 = 4110,
    // Poly 0x0589, seed 0x0000, not reflected, xor 0x0001: check 0x007E.
    Crc16_DectR = 4111,
    // Poly 0x0589, seed 0x0000, not reflected, xor 0x0000: check 0x007F.
    Crc16_DectX = 4112,
    // Poly 0x3D65, seed 0x0000, reflected, xor 0xFFFF: check 0xEA82.
    Crc16_Dnp = 4113,
    // Poly 0x3D65, seed 0x0000, not reflected, xor 0xFFFF: check 0xC2B7.
    Crc16_En13757 = 4114,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xD64E.
    Crc16_Epc = 4115,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xD64E.
    Crc16_Genibus = 4116,
    // Poly 0x1021, seed 0x0000, not reflected, xor 0xFFFF: check 0xCE3C.
    Crc16_Gsm = 4117,
    // Poly 0x8005, seed 0x0000, reflected, xor 0x0000: check 0xBB3D.
    Crc16_Ibm = 4118,
    // Poly 0x1021, seed 0xFFFF, reflected, xor 0xFFFF: check 0x906E.
    Crc16_IbmSdlc = 4119,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xD64E.
    Crc16_ICode = 4120,
    // Poly 0x1DCF, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xA819.
    Crc16_Iec611582 = 4121,
    // Poly 0x1021, seed 0xFFFF, reflected, xor 0xFFFF: check 0x906E.
    Crc16_IsoHdlc = 4122,
    // Poly 0x1021, seed 0xC6C6, reflected, xor 0x0000: check 0xBF05.
    Crc16_Iso14443A = 4123,
    // Poly 0x1021, seed 0x0000, reflected, xor 0x0000: check 0x2189.
    Crc16_Kermit = 4124,
    // Poly 0x8005, seed 0x0000, reflected, xor 0x0000: check 0xBB3D.
    Crc16_Lha = 4125,
    // Poly 0x6F63, seed 0x0000, not reflected, xor 0x0000: check 0xBDF4.
    Crc16_Lj1200 = 4126,
    // Poly 0x1021, seed 0x0000, not reflected, xor 0x0000: check 0x31C3.
    Crc16_Lte = 4127,
    // Poly 0x8005, seed 0x0000, reflected, xor 0xFFFF: check 0x44C2.
    Crc16_Maxim = 4128,
    // Poly 0x1021, seed 0xFFFF, reflected, xor 0x0000: check 0x6F91.
    Crc16_Mcrf4xx = 4129,
    // Poly 0x8005, seed 0xFFFF, reflected, xor 0x0000: check 0x4B37.
    Crc16_Modbus = 4130,
    // Poly 0x5935, seed 0x0000, not reflected, xor 0x0000: check 0x5D38.
    Crc16_OpenSafetyA = 4131,
    // Poly 0x755B, seed 0x0000, not reflected, xor 0x0000: check 0x20FE.
    Crc16_OpenSafetyB = 4132,
    // Poly 0x1DCF, seed 0xFFFF, not reflected, xor 0xFFFF: check 0xA819.
    Crc16_Profibus = 4133,
    // Poly 0x0589, seed 0x0000, not reflected, xor 0x0001: check 0x007E.
    Crc16_R = 4134,
    // Poly 0x1021, seed 0xB2AA, reflected, xor 0x0000: check 0x63D0.
    Crc16_Riello = 4135,
    // Poly 0x1021, seed 0x1D0F, not reflected, xor 0x0000: check 0xE5CC.
    Crc16_SpiFujitsu = 4136,
    // Poly 0x8BB7, seed 0x0000, not reflected, xor 0x0000: check 0xD0DB.
    Crc16_T10Dif = 4137,
    // Poly 0xA097, seed 0x0000, not reflected, xor 0x0000: check 0x0FB3.
    Crc16_Teledisk = 4138,
    // Poly 0x1021, seed 0x89EC, reflected, xor 0x0000: check 0x26B1.
    Crc16_Tms37157 = 4139,
    // Poly 0x8005, seed 0x0000, not reflected, xor 0x0000: check 0xFEE8.
    Crc16_Umts = 4140,
    // Poly 0x8005, seed 0xFFFF, reflected, xor 0xFFFF: check 0xB4C8.
    Crc16_Usb = 4141,
    // Poly 0x8005, seed 0x0000, not reflected, xor 0x0000: check 0xFEE8.
    Crc16_Verifone = 4142,
    // Poly 0x0589, seed 0x0000, not reflected, xor 0x0000: check 0x007F.
    Crc16_X = 4143,
    // Poly 0x1021, seed 0xFFFF, reflected, xor 0xFFFF: check 0x906E.
    Crc16_X25 = 4144,
    // Poly 0x1021, seed 0x0000, not reflected, xor 0x0000: check 0x31C3.
    Crc16_Xmodem = 4145,
    // Poly 0x1021, seed 0x0000, not reflected, xor 0x0000: check 0x31C3.
    Crc16_Zmodem = 4146,
    // The MIL-STD-1760 check word: no polynomial, see above.
    Crc16_MilStd1760 = 4147,
    // Poly 0x1021, seed 0xFFFF, not reflected, xor 0x0000: check 0x29B1.
    Crc16_Ibm3740 = 4148,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xCBF43926.
    Crc32 = 12288,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xCBF43926.
    Crc32_IsoHdlc = 12289,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xCBF43926.
    Crc32_Pkzip = 12290,
    // Poly 0xF4ACFB13, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0x1697D06A.
    Crc32_Autosar = 12291,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, not reflected, xor 0xFFFFFFFF: check 0xFC891918.
    Crc32_Aal5 = 12292,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, not reflected, xor 0xFFFFFFFF: check 0xFC891918.
    Crc32_B = 12293,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, not reflected, xor 0xFFFFFFFF: check 0xFC891918.
    Crc32_Bzip2 = 12294,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, not reflected, xor 0xFFFFFFFF: check 0xFC891918.
    Crc32_DectB = 12295,
    // Poly 0x1EDC6F41, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xE3069283.
    Crc32_C = 12296,
    // Poly 0x1EDC6F41, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xE3069283.
    Crc32_Castagnoli = 12297,
    // Poly 0x1EDC6F41, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xE3069283.
    Crc32_Interlaken = 12298,
    // Poly 0x1EDC6F41, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0xE3069283.
    Crc32_Iscsi = 12299,
    // Poly 0xA833982B, seed 0xFFFFFFFF, reflected, xor 0xFFFFFFFF: check 0x87315576.
    Crc32_D = 12300,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, not reflected, xor 0x00000000: check 0x0376E6E7.
    Crc32_Mpeg2 = 12301,
    // Poly 0x04C11DB7, seed 0x00000000, not reflected, xor 0xFFFFFFFF: check 0x765E7680.
    Crc32_Posix = 12302,
    // Poly 0x04C11DB7, seed 0x00000000, not reflected, xor 0xFFFFFFFF: check 0x765E7680.
    Crc32_Cksum = 12303,
    // Poly 0x814141AB, seed 0x00000000, not reflected, xor 0x00000000: check 0x3010BF7F.
    Crc32_Q = 12304,
    // Poly 0x04C11DB7, seed 0xFFFFFFFF, reflected, xor 0x00000000: check 0x340BC6D9.
    Crc32_Jamcrc = 12305,
    // Poly 0x000000AF, seed 0x00000000, not reflected, xor 0x00000000: check 0xBD0BE338.
    Crc32_Xfer = 12306,
    // Poly 0x04C11DB7, seed 0x00000000, not reflected, xor 0xFFFFFFFF: check 0x765E7680.
    Crc32_Posix2 = 12307,
    // Poly 0x42F0E1EBA9EA3693, seed 0x0000000000000000, not reflected, xor 0x0000000000000000: check 0x6C40DF5F0B497347.
    Crc64 = 20480,
    // Poly 0x000000000000001B, seed 0xFFFFFFFFFFFFFFFF, reflected, xor 0xFFFFFFFFFFFFFFFF: check 0xB90956C775A41001.
    Crc64_GoIso = 20481,
    // Poly 0x42F0E1EBA9EA3693, seed 0xFFFFFFFFFFFFFFFF, not reflected, xor 0xFFFFFFFFFFFFFFFF: check 0x62EC59E3F1A4F00A.
    Crc64_We = 20482,
    // Poly 0x42F0E1EBA9EA3693, seed 0xFFFFFFFFFFFFFFFF, reflected, xor 0xFFFFFFFFFFFFFFFF: check 0x995DC9BBDF1939FA.
    Crc64_Xz = 20483,
    // Poly 0x42F0E1EBA9EA3693, seed 0xFFFFFFFFFFFFFFFF, reflected, xor 0xFFFFFFFFFFFFFFFF: check 0x995DC9BBDF1939FA.
    Crc64_GoEcma = 20484,
  };

  // ---------------------------------------------------------------------------
  // Construction and configuration
  // ---------------------------------------------------------------------------

  // An unconfigured object: every field 0, no table. Every `Compute` throws
  // ZEL_ERR_FAILED until `Create` or `CreatePolynomial` has run.
  CZEL_Crc();

  // An object configured as the catalogue member `type`, as by `Create`.
  // Throws ZEL_ERR_INVALID_ARGUMENT for a value that is no member.
  CZEL_Crc(t_StdCrc type);

  // An object configured with the given parameters, as by
  // `CreatePolynomial`. A `type` outside `CrcType_8` to `CrcType_64` builds
  // no table, and every `Compute` then throws ZEL_ERR_FAILED.
  CZEL_Crc(t_CrcType type, ZEL::u64 polynomial, ZEL::u64 seed, ZEL::u8 reflectInput,
           ZEL::u8 reflectOutput, ZEL::u64 finalXor);

  // A deep copy of `src`, with tables of its own.
  CZEL_Crc(CZEL_Crc const& src);

  // Becomes a deep copy of `src`. Assigning an object to itself changes
  // nothing.
  CZEL_Crc& operator=(CZEL_Crc const& src);

  // Takes the configuration, tables and running computation of `src`
  // without copying them; `src` is left unconfigured, as default-constructed.
  // Never throws.
  CZEL_Crc(CZEL_Crc&& src) noexcept;

  // Takes over `src` as the move constructor does and releases this
  // object's own tables. Moving an object onto itself keeps it. Returns this
  // object.
  CZEL_Crc& operator=(CZEL_Crc&& src) noexcept;

  // Exchanges the configurations, tables and running computations of the two
  // objects. Never throws.
  void Swap(CZEL_Crc& other) noexcept;

  // Releases the tables.
  ~CZEL_Crc() override;

  // Configures the object as the catalogue member `type` and remembers
  // `type`. `Crc16_MilStd1760` only sets the width class to `CrcType_16`;
  // every other member configures its polynomial as `CreatePolynomial` does.
  // A value that is no member throws ZEL_ERR_INVALID_ARGUMENT, after `type`
  // has been remembered and with the configuration as it was.
  void Create(t_StdCrc type);

  // Configures the object for the width `type`, the `polynomial` in normal
  // form without its top bit, the `seed`, the two reflection flags (any
  // non-zero value means yes) and the `finalXor`. Bits above the width are
  // ignored in the polynomial, the seed and the final XOR; the getters
  // return the values as given. The remembered catalogue member stays.
  void CreatePolynomial(t_CrcType type, ZEL::u64 polynomial, ZEL::u64 seed, ZEL::u8 reflectInput,
                        ZEL::u8 reflectOutput, ZEL::u64 finalXor);

  // ---------------------------------------------------------------------------
  // Computing
  // ---------------------------------------------------------------------------

  // The CRC of the `size` bytes at `data`, into `*crc`; `continued` non-zero
  // starts from the value in `*crc` instead of the seed. Each throws
  // ZEL_ERR_FAILED, leaving `*crc` as it was, if the object isn't configured
  // for a polynomial of the width of `*crc`. The 16-bit form alone also
  // computes the MIL-STD-1760 check, over `size` / 2 words.
  void Compute(ZEL::u8* data, ZEL::u64 size, ZEL::u8* crc, ZEL::u8 continued) const;
  void Compute(ZEL::u8* data, ZEL::u64 size, ZEL::u16* crc, ZEL::u8 continued) const;
  void Compute(ZEL::u8* data, ZEL::u64 size, ZEL::u32* crc, ZEL::u8 continued) const;
  void Compute(ZEL::u8* data, ZEL::u64 size, ZEL::u64* crc, ZEL::u8 continued) const;

  // The 16-bit form over `size` 16-bit words: the bytes of each word are
  // taken in memory order, so on this platform low byte first. Also
  // computes the MIL-STD-1760 check, over `size` words.
  void Compute(ZEL::u16* data, ZEL::u64 size, ZEL::u16* crc, ZEL::u8 continued) const;

  // The same on constant data, as `u8 const*` or `char const*` (a string's
  // `data()`, a literal): `Compute("123456789", 9, &crc, 0)`. Throws as the
  // forms above; the 16-bit result also computes the MIL-STD-1760 check.
  template <typename Byte, typename Crc,
            typename = std::enable_if_t<std::is_same<Byte, ZEL::u8>::value ||
                                        std::is_same<Byte, char>::value>>
  void Compute(Byte const* data, ZEL::u64 size, Crc* crc, ZEL::u8 continued) const {
    ComputeBytes(reinterpret_cast<ZEL::u8 const*>(data), size, crc, continued);
  }

  // The 16-bit word form on constant data.
  void Compute(ZEL::u16 const* data, ZEL::u64 size, ZEL::u16* crc, ZEL::u8 continued) const;

  // The same over all bytes of `data`. These know no MIL-STD-1760 check: for
  // it they throw ZEL_ERR_FAILED.
  void Compute(CZEL_Uint8Vector& data, ZEL::u8* crc, ZEL::u8 continued) const;
  void Compute(CZEL_Uint8Vector& data, ZEL::u16* crc, ZEL::u8 continued) const;
  void Compute(CZEL_Uint8Vector& data, ZEL::u32* crc, ZEL::u8 continued) const;
  void Compute(CZEL_Uint8Vector& data, ZEL::u64* crc, ZEL::u8 continued) const;

  // The CRC of the nine bytes "123456789" from the seed, into `*crc`: the
  // catalogue's check value. Throws as the vector form of `Compute`, so also
  // for MIL-STD-1760.
  void ComputeCheckValue(ZEL::u8* crc) const;
  void ComputeCheckValue(ZEL::u16* crc) const;
  void ComputeCheckValue(ZEL::u32* crc) const;
  void ComputeCheckValue(ZEL::u64* crc) const;

  // ---------------------------------------------------------------------------
  // Computing in pieces
  // ---------------------------------------------------------------------------
  //
  //   crc.Begin();
  //   crc.Update(header, 12).Update(body, bodySize);
  //   ZEL::u64 value = crc.Finish();  // as one Compute over header and body
  //
  // The running register is kept in the object, before the output reflection
  // and the final XOR, so any split of the data gives the result of one
  // `Compute` over all of it from the seed, at every width, and for the
  // MIL-STD-1760 check too (an odd byte waits for the next piece). The
  // pieces run through the same paths as `Compute`. Configuring an object
  // starts a new computation, as `Begin` does; copies take the running
  // computation along.

  // Starts a computation from the seed (from 0 for MIL-STD-1760). Throws
  // ZEL_ERR_FAILED, changing nothing, where `Compute` at the configured width
  // would. Returns this object.
  CZEL_Crc& Begin();

  // Runs the `size` bytes at `data` through the computation. Throws as
  // `Begin`. Returns this object.
  CZEL_Crc& Update(ZEL::u8 const* data, ZEL::u64 size);

  // The CRC of all bytes given since `Begin`, in the low `GetSize()` bits
  // (16 for MIL-STD-1760, which ignores a last odd byte). The computation
  // goes on: more `Update`s extend it. Throws as `Begin`.
  ZEL::u64 Finish() const;

  // ---------------------------------------------------------------------------
  // Parameters, as given to the last configuration
  // ---------------------------------------------------------------------------

  // The width in bits: 8, 16, 32 or 64, and 0 before any polynomial (also
  // for MIL-STD-1760 set up on a default-constructed object).
  ZEL::u32 GetSize() const;
  // The polynomial in normal form, top bit implied.
  ZEL::u64 GetPolynomial() const;
  // The initial register value.
  ZEL::u64 GetSeed() const;
  // The value XORed onto the result after the output reflection.
  ZEL::u64 GetFinalXor() const;
  // 1 if each data byte is bit-reversed before use, else 0.
  ZEL::u8 IsInputReflected() const;
  // 1 if the register is bit-reversed over its width at the end, else 0.
  ZEL::u8 IsOuputReflected() const;

 protected:
  // Builds the table of the configured width; another width builds nothing.
  void BuildCrcTable();
  // Each releases the tables and builds the one of its width.
  void BuildCrc8Table();
  void BuildCrc16Table();
  void BuildCrc32Table();
  void BuildCrc64Table();
  // Fills `m_ByteInversion`: entry i is i with its eight bits reversed.
  void BuildByteInversionTable();
  // Releases every table and clears its pointer.
  void DestroyCrcTables();
  // Copies the configuration of `src` and gives this object tables of its own.
  void DataCopy(CZEL_Crc const& src);

  // The polynomial computation of `Compute`, without the configuration check.
  // Each throws ZEL_ERR_FAILED if there is no table of the width of `*crc`.
  void ComputePolynomial(ZEL::u8* data, ZEL::u64 size, ZEL::u8* crc, ZEL::u8 continued) const;
  void ComputePolynomial(ZEL::u8* data, ZEL::u64 size, ZEL::u16* crc, ZEL::u8 continued) const;
  void ComputePolynomial(ZEL::u8* data, ZEL::u64 size, ZEL::u32* crc, ZEL::u8 continued) const;
  void ComputePolynomial(ZEL::u8* data, ZEL::u64 size, ZEL::u64* crc, ZEL::u8 continued) const;
  void ComputePolynomial(CZEL_Uint8Vector& data, ZEL::u8* crc, ZEL::u8 continued) const;
  void ComputePolynomial(CZEL_Uint8Vector& data, ZEL::u16* crc, ZEL::u8 continued) const;
  void ComputePolynomial(CZEL_Uint8Vector& data, ZEL::u32* crc, ZEL::u8 continued) const;
  void ComputePolynomial(CZEL_Uint8Vector& data, ZEL::u64* crc, ZEL::u8 continued) const;

  // The MIL-STD-1760 check word over `words` 16-bit words at `data`.
  void Compute_MilStd1760(ZEL::u8* data, ZEL::u64 words, ZEL::u16* crc, ZEL::u8 continued) const;

  // The width class.
  t_CrcType m_CrcType;
  // The last value given to `Create`.
  t_StdCrc m_StdCrc;
  // 1 once a polynomial is configured.
  ZEL::u8 m_IsPolynomial;
  // The width in bits.
  ZEL::u32 m_Size;
  // Normal form, top bit implied.
  ZEL::u64 m_Polynomial;
  ZEL::u8 m_ReflectInput;
  ZEL::u8 m_ReflectOutput;
  // Only the low `m_Size` bits take effect.
  ZEL::u64 m_Seed;
  ZEL::u64 m_FinalXor;
  // Entry i is i with its eight bits in reverse order.
  ZEL::u8 m_ByteInversion[256];
  // The byte table of the configured width, 256 entries in normal form;
  // only one of them is set. Each is the head of an owned block that also
  // holds the engine of the faster paths.
  ZEL::u8* m_Table8;
  ZEL::u16* m_Table16;
  ZEL::u32* m_Table32;
  ZEL::u64* m_Table64;

 private:
  // The checks and computation of the raw-data forms of `Compute`.
  void ComputeBytes(ZEL::u8 const* data, ZEL::u64 size, ZEL::u8* crc, ZEL::u8 continued) const;
  void ComputeBytes(ZEL::u8 const* data, ZEL::u64 size, ZEL::u16* crc, ZEL::u8 continued) const;
  void ComputeBytes(ZEL::u8 const* data, ZEL::u64 size, ZEL::u32* crc, ZEL::u8 continued) const;
  void ComputeBytes(ZEL::u8 const* data, ZEL::u64 size, ZEL::u64* crc, ZEL::u8 continued) const;
  // 1 if this object computes the MIL-STD-1760 check rather than a polynomial.
  bool IsMilStd1760() const;
  // The engine of the configured polynomial; throws ZEL_ERR_FAILED if there
  // is none. Not for a MIL-STD-1760 check.
  ZEL::crc_engine::SCrcEngine const& RunningEngine() const;
  template <typename T>
  void BuildTable(T*& table);
  template <typename T>
  void RunPolynomial(T const* table, ZEL::u8 const* data, ZEL::u64 size, T* crc,
                     ZEL::u8 continued) const;
  // Throws ZEL_ERR_FAILED if no polynomial is configured.
  void RequirePolynomial() const;
  template <typename T>
  void RunCheckValue(T* crc) const;
  // The state of a default-constructed object, no table owned.
  void ClearConfiguration();

  // The running computation: the register before the output reflection and
  // final XOR (the check word for MIL-STD-1760), and a byte of the check
  // word waiting for its partner.
  ZEL::u64 m_Running;
  ZEL::u8 m_Pending;
  ZEL::u8 m_HasPending;
};

// `CZEL_Crc::Swap`, found by argument-dependent lookup.
inline void swap(CZEL_Crc& a, CZEL_Crc& b) noexcept { a.Swap(b); }

#endif  // LZEL_CORE_VALUES_CZEL_CRC_H_
