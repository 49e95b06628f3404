// SPDX-License-Identifier: Apache-2.0
// Reads arbitrary bytes as a stream of mixed values, through a memory buffer
// and through a file with the file buffer side by side. A small model of the
// stream format says for each value what must come out: the value, or the
// failure's code, and in either case the position afterwards. Every value
// read is written again to a third stream, whose bytes must be the ones
// consumed.
//
// Input: byte 0 picks the memory buffer's block size, byte 1 the file
// buffer's, byte 2 the number of operation bytes that follow; the rest is the
// stream.

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/geometry/CZEL_Color.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>
#include <LZEL_Core/io/ZEL_StreamForms.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "FuzzScratchFile.h"
#include "FuzzSupport.h"

using zel_fuzz::Require;
using zel_fuzz::ScratchPath;
using Bytes = std::vector<std::uint8_t>;

namespace {

// Lengths and digit counts above this that the stream can't satisfy are not
// asked for: the reader takes the length before the range check, as it must,
// and makes a target of that length. Kept small, so that the target runs
// under libFuzzer's memory limits and what they catch is the library's own.
constexpr std::uint32_t kLargestHopeless = 1u << 12;

// What the format says about the stream: where the reader stands, and how
// many bytes are left.
struct Model {
  Bytes const& stream;
  std::uint64_t pos = 0;

  std::uint64_t Left() const { return stream.size() - pos; }
  std::uint32_t U32At(std::uint64_t at) const {
    std::uint32_t v = 0;
    std::memcpy(&v, stream.data() + at, 4);
    return v;
  }
};

// The end of one read: its code (0 for success) and the position behind it.
struct Outcome {
  std::uint32_t code;
  std::uint64_t pos;
};

class Harness {
 public:
  Harness(Bytes const& stream, CZEL_Buffer& memory, CZEL_Buffer& file)
      : m_Model{stream}, m_Buffers{&memory, &file} {}

  // A number of `width` bytes: the same bits from both buffers as the model
  // reads, or nothing moved at all.
  template <typename V>
  void Number() {
    std::uint64_t const start = m_Model.pos;
    bool const fits = m_Model.Left() >= sizeof(V);
    V got[2] = {};
    Run([&](CZEL_Buffer& b, int i) { b >> got[i]; },
        fits ? Outcome{0, start + sizeof(V)} : Outcome{ZEL_ERR_OUT_OF_RANGE, start});
    if (!fits) return;
    Require(std::memcmp(&got[0], m_Model.stream.data() + start, sizeof(V)) == 0);
    Require(std::memcmp(&got[1], &got[0], sizeof(V)) == 0);
    m_Echo << got[0];
    Consumed(start);
  }

  // A value class of a fixed size, read whole or not at all.
  template <typename V>
  void Fixed(std::uint64_t size) {
    std::uint64_t const start = m_Model.pos;
    bool const fits = m_Model.Left() >= size;
    V got[2];
    Run([&](CZEL_Buffer& b, int i) { b >> got[i]; },
        fits ? Outcome{0, start + size} : Outcome{ZEL_ERR_OUT_OF_RANGE, start});
    if (!fits) return;
    Require(got[0] == got[1]);
    m_Echo << got[0];
    Consumed(start);
  }

  void Pointer() {
    Run([](CZEL_Buffer& b, int) { b >> static_cast<void*>(nullptr); }, {0, m_Model.pos});
  }

  // The length, then the characters; a failure of the characters leaves the
  // reader behind the length.
  void String() {
    std::uint64_t const start = m_Model.pos;
    Outcome expected{ZEL_ERR_OUT_OF_RANGE, start};
    if (m_Model.Left() >= 4) {
      std::uint32_t const n = m_Model.U32At(start);
      bool const fits = m_Model.Left() - 4 >= n;
      if (!fits && n > kLargestHopeless) return;
      expected = fits ? Outcome{0, start + 4 + n} : Outcome{ZEL_ERR_OUT_OF_RANGE, start + 4};
    }
    CZEL_String got[2];
    Run([&](CZEL_Buffer& b, int i) { b >> got[i]; }, expected);
    if (expected.code != 0) return;
    Require(zel_fuzz::Text(got[0]) == zel_fuzz::Text(got[1]));
    Require(got[0].GetLength() == expected.pos - start - 4);
    m_Echo << got[0];
    Consumed(start);
  }

  // The kind; for IPv4 and IPv6 the count and the digits. An invalid
  // address takes its kind alone, and writes the count of 0 as well.
  void Address() {
    std::uint64_t const start = m_Model.pos;
    Outcome expected = AddressOutcome(start);
    if (expected.code == kSkip) return;
    CZEL_IpAddress got[2];
    Run([&](CZEL_Buffer& b, int i) { b >> got[i]; }, expected);
    // After a failure in the digits the rest are 0, the same from both.
    if (expected.code == ZEL_ERR_FAILED) Require(got[0] == CZEL_IpAddress());
    if (expected.code == ZEL_ERR_OUT_OF_RANGE) Require(got[0] == got[1]);
    if (expected.code != 0) return;
    Require(got[0] == got[1]);
    m_Echo << got[0];
    Consumed(start);
    if (expected.pos - start == 2) m_Expected.insert(m_Expected.end(), 4, 0);
  }

  // The bytes written again must be the bytes consumed.
  void CheckEcho() {
    Require(m_Echo.GetSize() == m_Expected.size());
    Bytes echoed(m_Expected.size());
    m_Echo.ToStart();
    m_Echo.RetrieveData(echoed.data(), static_cast<std::uint32_t>(echoed.size()));
    Require(echoed == m_Expected);
  }

 private:
  static constexpr std::uint32_t kSkip = ~0u;

  Outcome AddressOutcome(std::uint64_t start) const {
    if (m_Model.Left() < 2) return {ZEL_ERR_OUT_OF_RANGE, start};
    std::uint16_t kind = 0;
    std::memcpy(&kind, m_Model.stream.data() + start, 2);
    if (kind == CZEL_IpAddress::IP_INVALID) return {0, start + 2};
    if (kind > CZEL_IpAddress::IP_V6) return {ZEL_ERR_FAILED, start + 2};
    if (m_Model.Left() < 6) return {ZEL_ERR_OUT_OF_RANGE, start + 2};
    std::uint64_t const d = m_Model.U32At(start + 2);
    std::uint64_t const room = (m_Model.Left() - 6) / 4;
    if (d <= room) return {0, start + 6 + 4 * d};
    if (d > kLargestHopeless) return {kSkip, start};
    return {ZEL_ERR_OUT_OF_RANGE, start + 6 + 4 * room};
  }

  // Runs `read` on both buffers; each must end as `expected` says, any
  // exception carrying its buffer.
  template <typename Read>
  void Run(Read read, Outcome expected) {
    for (int i = 0; i < 2; ++i) {
      CZEL_Buffer& b = *m_Buffers[i];
      std::uint32_t code = 0;
      try {
        read(b, i);
      } catch (CZEL_Exception const& e) {
        Require(e.m_Object == &b);
        code = e.m_Code;
      }
      Require(code == expected.code);
      Require(b.GetAbsPosition() == expected.pos);
      Require(b.IsEnd() == (expected.pos >= m_Model.stream.size() ? 1 : 0) || i == 1);
    }
    m_Model.pos = expected.pos;
  }

  void Consumed(std::uint64_t start) {
    m_Expected.insert(m_Expected.end(), m_Model.stream.begin() + start,
                      m_Model.stream.begin() + m_Model.pos);
  }

  Model m_Model;
  CZEL_Buffer* m_Buffers[2];
  CZEL_MemoryBuffer m_Echo{7};
  Bytes m_Expected;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  if (size < 3) return 0;
  std::uint32_t const memoryBlock = data[0] % 16 + 1;
  std::uint32_t const fileBlock = data[1] % 16 + 1;
  std::size_t const opCount = std::min<std::size_t>(data[2] % 32, size - 3);
  Bytes const ops(data + 3, data + 3 + opCount);
  Bytes const stream(data + 3 + opCount, data + size);
  auto const streamSize = static_cast<std::uint32_t>(stream.size());

  CZEL_MemoryBuffer memory(memoryBlock);
  memory.AppendData(const_cast<std::uint8_t*>(stream.data()), streamSize);
  memory.ToStart();

  // The stream goes to the file through a file buffer as well, in pieces.
  CZEL_File file;
  Require(file.Open(ScratchPath().c_str(), CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_READ |
                                               CZEL_File::FILE_OPEN_TRUNCATE) == 0);
  CZEL_FileBuffer fileBuffer(fileBlock);
  Require(fileBuffer.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE) == 0);
  for (std::uint32_t at = 0; at < streamSize; at += 5) {
    fileBuffer.AppendData(const_cast<std::uint8_t*>(stream.data()) + at,
                          std::min(5u, streamSize - at));
  }
  fileBuffer.Close();
  Require(fileBuffer.AttachFile(&file, CZEL_Buffer::ACCESS_READ) == 0);
  Require(fileBuffer.GetSize() == streamSize);

  Harness h(stream, memory, fileBuffer);
  for (std::size_t step = 0; step < 64 && !ops.empty(); ++step) {
    switch (ops[step % ops.size()] % 17) {
      case 0:
        h.Number<char>();
        break;
      case 1:
        h.Number<signed char>();
        break;
      case 2:
        h.Number<ZEL::u8>();
        break;
      case 3:
        h.Number<short>();
        break;
      case 4:
        h.Number<ZEL::u16>();
        break;
      case 5:
        h.Number<int>();
        break;
      case 6:
        h.Number<ZEL::u32>();
        break;
      case 7:
        h.Number<ZEL::i64>();
        break;
      case 8:
        h.Number<ZEL::u64>();
        break;
      case 9:
        h.Number<float>();
        break;
      case 10:
        h.Number<double>();
        break;
      case 11:
        h.Pointer();
        break;
      case 12:
        h.String();
        break;
      case 13:
        h.Fixed<CZEL_Color>(4);
        break;
      case 14:
        h.Fixed<CZEL_Date>(8);
        break;
      case 15:
        h.Fixed<CZEL_Time>(4);
        break;
      default:
        h.Address();
        break;
    }
  }
  h.CheckEcho();
  fileBuffer.Close();
  file.Close();
  return 0;
}
