#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "IoTestSupport.h"

using zel_test::Bytes;

namespace {

// A memory buffer that shows its chain and lets a test set the access, which
// the class itself never changes.
class Probe : public CZEL_MemoryBuffer {
 public:
  explicit Probe(ZEL::u32 blockSize) : CZEL_MemoryBuffer(blockSize) {}
  ZEL::u32 Blocks() const { return m_Blocks.GetLength(); }
  void SetAccess(t_Access access) { m_Access = access; }
};

// Appends `bytes` in one call.
void Put(CZEL_Buffer& b, Bytes bytes) { b.AppendData(bytes.data(), ZEL::u32(bytes.size())); }

// Reads `count` bytes in one call.
Bytes Take(CZEL_Buffer& b, ZEL::u32 count) {
  Bytes out(count);
  b.RetrieveData(out.data(), count);
  return out;
}

// Every byte of a memory buffer, read from the start.
Bytes Content(CZEL_MemoryBuffer& b) {
  b.ToStart();
  return Take(b, ZEL::u32(b.GetSize()));
}

Bytes Count(ZEL::u32 n) {
  Bytes out(n);
  for (ZEL::u32 i = 0; i < n; ++i) out[i] = static_cast<unsigned char>(i + 1);
  return out;
}

// ---------------------------------------------------------------------------
// The base class
// ---------------------------------------------------------------------------

TEST(BufferTest, BaseIsTheChecksAlone) {
  CZEL_Buffer b(16);
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_EQ(b.IsEnd(), 1);
  EXPECT_ZEL_THROW(b.GetAbsPosition(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.DeleteAll(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.ToStart(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.ToEnd(), ZEL_ERR_NOT_SUPPORTED, &b);
  b << 7;  // the check passes and nothing is kept
  EXPECT_EQ(b.GetSize(), 0u);
  int i = 5;
  EXPECT_ZEL_THROW(b >> i, ZEL_ERR_NOT_SUPPORTED, &b);  // from the position
  EXPECT_EQ(i, 5);
  b << static_cast<void*>(&i);
  b >> static_cast<void*>(&i);
  CZEL_Buffer copy(b);
  EXPECT_EQ(copy.GetSize(), 0u);
  EXPECT_EQ(copy.IsEnd(), 1);
}

// Each typed operator's bytes, and the value read back.
TEST(BufferTest, TypedLayouts) {
  struct Row {
    char const* what;
    std::function<void(CZEL_Buffer&)> write;
    Bytes bytes;
    std::function<bool(CZEL_Buffer&)> readsBack;
  };
  auto row = [](char const* what, auto value, Bytes bytes) {
    using V = decltype(value);
    return Row{what, [value](CZEL_Buffer& b) { b << value; }, bytes,
               [value](CZEL_Buffer& b) {
                 V got{};
                 b >> got;
                 return std::memcmp(&got, &value, sizeof(V)) == 0;
               }};
  };
  Row const rows[] = {
      row("char", 'A', {0x41}),
      row("signed char", static_cast<signed char>(-1), {0xFF}),
      row("u8", ZEL::u8(0x80), {0x80}),
      row("short", short(-2), {0xFE, 0xFF}),
      row("u16", ZEL::u16(0x1234), {0x34, 0x12}),
      row("int", 1, {0x01, 0, 0, 0}),
      row("int min", std::numeric_limits<int>::min(), {0, 0, 0, 0x80}),
      row("u32", ZEL::u32(0xA1B2C3D4), {0xD4, 0xC3, 0xB2, 0xA1}),
      row("i64", ZEL::i64(-2), {0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}),
      row("u64", ZEL::u64(0x0102030405060708), {8, 7, 6, 5, 4, 3, 2, 1}),
      row("float", 1.0f, {0, 0, 0x80, 0x3F}),
      row("double", 1.0, {0, 0, 0, 0, 0, 0, 0xF0, 0x3F}),
      row("double -0.5", -0.5, {0, 0, 0, 0, 0, 0, 0xE0, 0xBF}),
  };
  for (auto const& r : rows) {
    CZEL_MemoryBuffer b(3);  // values cross block ends
    b << ZEL::u8(0xEE);
    r.write(b);
    EXPECT_EQ(b.GetSize(), 1 + r.bytes.size()) << r.what;
    Bytes expected{0xEE};
    expected.insert(expected.end(), r.bytes.begin(), r.bytes.end());
    EXPECT_EQ(Content(b), expected) << r.what;
    b.ToStart();
    b.RetrieveData(expected.data(), 1);
    EXPECT_TRUE(r.readsBack(b)) << r.what;
    EXPECT_EQ(b.IsEnd(), 1) << r.what;
  }
}

// ---------------------------------------------------------------------------
// The memory buffer
// ---------------------------------------------------------------------------

TEST(MemoryBufferTest, BlocksAndCursor) {
  Probe b(4);
  Put(b, Count(8));
  EXPECT_EQ(b.Blocks(), 3u);  // the full second block is followed by an empty one
  EXPECT_EQ(b.GetAbsPosition(), 8u);
  EXPECT_EQ(b.GetSize(), 8u);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);  // the cursor is at the end
  b.ToStart();
  EXPECT_EQ(b.IsEnd(), 0);
  for (ZEL::u32 i = 0; i < 8; ++i) {
    EXPECT_EQ(Take(b, 1), Bytes{static_cast<unsigned char>(i + 1)});
    EXPECT_EQ(b.IsEnd(), i == 7 ? 1 : 0);
  }
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(b.GetAbsPosition(), 8u);

  Probe ones(1);
  Put(ones, Count(3));
  EXPECT_EQ(ones.Blocks(), 4u);
  EXPECT_EQ(Content(ones), Count(3));
}

// One call crossing several block ends from any offset gives the same bytes
// as one call per byte.
TEST(MemoryBufferTest, TransfersCrossBlocks) {
  for (ZEL::u32 lead = 0; lead < 5; ++lead) {
    for (ZEL::u32 count : {1u, 4u, 10u, 17u}) {
      CZEL_MemoryBuffer whole(4);
      CZEL_MemoryBuffer bytewise(4);
      Bytes const data = Count(lead + count);
      Put(whole, Bytes(data.begin(), data.begin() + lead));
      Put(whole, Bytes(data.begin() + lead, data.end()));
      for (unsigned char c : data) bytewise << c;
      EXPECT_EQ(Content(whole), data);
      EXPECT_EQ(Content(bytewise), data);
      // Reading in uneven pieces gives them back as well.
      whole.ToStart();
      Bytes head = Take(whole, lead);
      Bytes tail = Take(whole, count);
      head.insert(head.end(), tail.begin(), tail.end());
      EXPECT_EQ(head, data) << lead << " " << count;
    }
  }
}

TEST(MemoryBufferTest, EmptyTransfersAndEnds) {
  Probe b(4);
  b.RetrieveData(nullptr, 0);  // nothing there, nothing read
  EXPECT_EQ(b.IsEnd(), 1);
  EXPECT_EQ(b.Blocks(), 0u);
  b.ToStart();
  EXPECT_EQ(b.IsEnd(), 1);
  b.AppendData(nullptr, 0);  // makes the first block all the same
  EXPECT_EQ(b.Blocks(), 1u);
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_EQ(b.IsEnd(), 1);

  Put(b, Count(5));
  b.ToEnd();  // behind the whole last block
  EXPECT_EQ(b.GetAbsPosition(), 8u);
  EXPECT_EQ(b.GetSize(), 5u);
  EXPECT_EQ(b.IsEnd(), 1);
  Put(b, {0xAA});  // leaves a gap of 3 unset bytes
  EXPECT_EQ(b.GetSize(), 6u);
  EXPECT_EQ(b.GetAbsPosition(), 9u);
  EXPECT_EQ(b.Blocks(), 3u);

  b.DeleteAll();
  EXPECT_EQ(b.Blocks(), 0u);
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_EQ(b.GetAbsPosition(), 0u);
  Put(b, {9, 8});
  EXPECT_EQ(b.GetAbsPosition(), 2u);
  EXPECT_EQ(Content(b), (Bytes{9, 8}));
}

// A write after ToStart overwrites at the cursor and still grows the size.
TEST(MemoryBufferTest, WriteAfterRewindOverwrites) {
  CZEL_MemoryBuffer b(4);
  Put(b, {1, 2, 3, 4, 5, 6});
  b.ToStart();
  Put(b, {7, 8});
  EXPECT_EQ(b.GetSize(), 8u);
  EXPECT_EQ(b.GetAbsPosition(), 2u);
  b.ToStart();
  EXPECT_EQ(Take(b, 6), (Bytes{7, 8, 3, 4, 5, 6}));
}

TEST(MemoryBufferTest, AccessChecks) {
  Probe b(4);
  Put(b, {1, 2});
  b.SetAccess(CZEL_Buffer::ACCESS_READ);
  EXPECT_ZEL_THROW(Put(b, {3}), ZEL_ERR_WRITE_DENIED, &b);
  EXPECT_ZEL_THROW(b << 1.0, ZEL_ERR_WRITE_DENIED, &b);
  b << static_cast<void*>(nullptr);  // checks nothing
  EXPECT_EQ(b.GetSize(), 2u);
  b.SetAccess(CZEL_Buffer::ACCESS_WRITE);
  b.ToStart();
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_READ_DENIED, &b);
  EXPECT_EQ(b.GetAbsPosition(), 0u);
  b.SetAccess(static_cast<CZEL_Buffer::t_Access>(7));
  EXPECT_ZEL_THROW(Put(b, {3}), ZEL_ERR_WRITE_DENIED, &b);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_READ_DENIED, &b);
  b.DeleteAll();  // no check
  EXPECT_EQ(b.GetSize(), 0u);
}

// A typed read past the end throws before any byte moves.
TEST(MemoryBufferTest, FailedReadMovesNothing) {
  CZEL_MemoryBuffer b(4);
  b << ZEL::u16(0x0102);
  b << ZEL::u8(3);
  b.ToStart();
  ZEL::u8 first = 0;
  b >> first;
  ZEL::u32 wide = 77;
  EXPECT_ZEL_THROW(b >> wide, ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(wide, 77u);
  EXPECT_EQ(b.GetAbsPosition(), 1u);
  ZEL::u16 rest = 0;
  b >> rest;
  EXPECT_EQ(rest, 0x0301);
}

TEST(MemoryBufferTest, ZeroBlockSize) {
  Probe b(0);
  EXPECT_ZEL_CODE(Put(b, {1}), ZEL_ERR_EMPTY_INPUT);
  EXPECT_EQ(b.Blocks(), 1u);  // an item without storage stays behind
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
}

// Copies take the blocks, and the cursor as it stands; ToStart puts a copy
// right. Assigning a buffer without blocks keeps the target's chain.
TEST(MemoryBufferTest, Copies) {
  Probe source(4);
  Put(source, Count(10));
  CZEL_MemoryBuffer copy(source);
  EXPECT_EQ(copy.GetSize(), 10u);
  EXPECT_EQ(copy.GetAbsPosition(), 10u);
  EXPECT_EQ(Content(copy), Count(10));
  Put(copy, {0xFF});
  EXPECT_EQ(source.GetSize(), 10u);
  EXPECT_EQ(Content(source), Count(10));

  Probe target(4);
  Put(target, Count(3));
  target = source;
  EXPECT_EQ(Content(target), Count(10));
  Probe const& same = target;
  target = same;  // self-assignment keeps everything
  EXPECT_EQ(Content(target), Count(10));

  Probe empty(4);
  target = empty;
  EXPECT_EQ(target.GetSize(), 0u);
  EXPECT_EQ(target.GetAbsPosition(), 0u);
  EXPECT_EQ(target.Blocks(), 3u);
  target.DeleteAll();
  EXPECT_EQ(target.Blocks(), 0u);
}

}  // namespace
