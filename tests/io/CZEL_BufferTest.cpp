#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
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

void Put(CZEL_Buffer& b, Bytes bytes) { b.AppendData(bytes.data(), ZEL::u32(bytes.size())); }
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

TEST(BufferTest, BaseIsTheChecksAlone) {
  CZEL_Buffer b(16);
  EXPECT_ZEL_THROW(b.GetAbsPosition(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.DeleteAll(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.ToStart(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.ToEnd(), ZEL_ERR_NOT_SUPPORTED, &b);
  b << 7;  // the check passes and nothing is kept
  EXPECT_EQ(b.GetSize(), 0u);
  int i = 5;
  EXPECT_ZEL_THROW(b >> i, ZEL_ERR_NOT_SUPPORTED, &b);  // from the position
  EXPECT_EQ(i, 5);
  b >> static_cast<void*>(&i);
}

// Each typed operator's bytes behind one byte, across blocks of 3, and the
// value read back.
template <typename V>
void ExpectLayout(V value, Bytes bytes) {
  CZEL_MemoryBuffer b(3);
  b << ZEL::u8(0xEE);
  b << value;
  bytes.insert(bytes.begin(), 0xEE);
  EXPECT_EQ(Content(b), bytes);
  b.ToStart();
  Take(b, 1);
  V back{};
  b >> back;
  EXPECT_EQ(std::memcmp(&back, &value, sizeof(V)), 0);
  EXPECT_EQ(b.IsEnd(), 1);
}

TEST(BufferTest, TypedLayouts) {
  ExpectLayout('A', {0x41});
  ExpectLayout(static_cast<signed char>(-1), {0xFF});
  ExpectLayout(short(-2), {0xFE, 0xFF});
  ExpectLayout(ZEL::u16(0x1234), {0x34, 0x12});
  ExpectLayout(std::numeric_limits<int>::min(), {0, 0, 0, 0x80});
  ExpectLayout(ZEL::u32(0xA1B2C3D4), {0xD4, 0xC3, 0xB2, 0xA1});
  ExpectLayout(ZEL::i64(-2), {0xFE, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
  ExpectLayout(1.0f, {0, 0, 0x80, 0x3F});
  ExpectLayout(-0.5, {0, 0, 0, 0, 0, 0, 0xE0, 0xBF});
}

TEST(MemoryBufferTest, BlocksCursorAndEnds) {
  Probe b(4);
  b.RetrieveData(nullptr, 0);  // nothing there, nothing read
  EXPECT_EQ(b.IsEnd(), 1);
  b.AppendData(nullptr, 0);  // makes the first block all the same
  EXPECT_EQ(b.Blocks(), 1u);
  Put(b, Count(8));
  EXPECT_EQ(b.Blocks(), 3u);  // a full block is followed by an empty one
  EXPECT_EQ(b.GetAbsPosition(), 8u);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);  // the cursor is at the end
  b.ToStart();
  for (ZEL::u32 i = 0; i < 8; ++i) {
    EXPECT_EQ(b.IsEnd(), 0);
    EXPECT_EQ(Take(b, 1), Bytes{static_cast<unsigned char>(i + 1)});
  }
  EXPECT_EQ(b.IsEnd(), 1);
  ZEL::u16 wide = 7;
  EXPECT_ZEL_THROW(b >> wide, ZEL_ERR_OUT_OF_RANGE, &b);  // nothing moved
  EXPECT_EQ(wide, 7);
  EXPECT_EQ(b.GetAbsPosition(), 8u);

  b.DeleteAll();
  Put(b, Count(5));
  b.ToEnd();  // behind the whole last block
  EXPECT_EQ(b.GetAbsPosition(), 8u);
  EXPECT_EQ(b.IsEnd(), 1);
  Put(b, {0xAA});  // leaves a gap of 3 unset bytes
  EXPECT_EQ(b.GetSize(), 6u);
  EXPECT_EQ(b.GetAbsPosition(), 9u);
  b.ToStart();
  Put(b, {7, 8});  // overwrites at the cursor, and the size still grows
  EXPECT_EQ(b.GetSize(), 8u);
  b.ToStart();
  EXPECT_EQ(Take(b, 5), (Bytes{7, 8, 3, 4, 5}));

  Probe ones(1);
  Put(ones, Count(3));
  EXPECT_EQ(ones.Blocks(), 4u);
  Probe none(0);
  EXPECT_EQ(zel_test::CodeOf([&] { Put(none, {1}); }), ZEL_ERR_EMPTY_INPUT);
  EXPECT_EQ(none.Blocks(), 1u);  // an item without storage stays behind
}

// Copies take the blocks, and the cursor as it stands; ToStart puts a copy
// right. Assigning a buffer without blocks keeps the target's chain.
TEST(MemoryBufferTest, CopiesAndAccess) {
  Probe source(4);
  Put(source, Count(10));
  CZEL_MemoryBuffer copy(source);
  EXPECT_EQ(copy.GetAbsPosition(), 10u);
  EXPECT_EQ(Content(copy), Count(10));
  Probe target(4);
  target = source;
  target = Probe(4);
  EXPECT_EQ(target.GetSize(), 0u);
  EXPECT_EQ(target.Blocks(), 3u);

  source.SetAccess(CZEL_Buffer::ACCESS_READ);
  EXPECT_ZEL_THROW(source << 1.0, ZEL_ERR_WRITE_DENIED, &source);
  source << static_cast<void*>(nullptr);  // checks nothing
  source.SetAccess(static_cast<CZEL_Buffer::t_Access>(7));
  EXPECT_ZEL_THROW(Take(source, 1), ZEL_ERR_READ_DENIED, &source);
  EXPECT_EQ(source.GetAbsPosition(), 10u);
}

}  // namespace
