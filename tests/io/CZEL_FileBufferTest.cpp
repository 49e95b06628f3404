#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>
#include <vector>

#include "IoTestSupport.h"

using zel_test::Bytes;
using zel_test::Slurp;
using zel_test::Spit;

namespace {

using F = CZEL_File;
using B = CZEL_Buffer;

// A file buffer whose block a test can take away, so that a shallow copy
// and its source don't both release it.
class Sharing : public CZEL_FileBuffer {
 public:
  explicit Sharing(ZEL::u32 blockSize) : CZEL_FileBuffer(blockSize) {}
  Sharing(Sharing const& src) = default;
  Sharing& operator=(Sharing const& src) = default;
  void DropBlock() {
    delete[] m_Block;
    m_Block = nullptr;
  }
  void Forget() {
    m_Block = nullptr;
    m_File = nullptr;
  }
};

class FileBufferTest : public zel_test::TempDirTest {
 protected:
  // Opens "f" with `flags`.
  void OpenFile(ZEL::u32 flags) { ASSERT_EQ(m_File.Open(Z("f"), flags), 0u); }
  void OpenForWriting() { OpenFile(F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE); }
  std::string OnDisk() { return Slurp(PathOf("f")); }

  F m_File;
};

void Put(CZEL_Buffer& b, std::string const& s) {
  b.AppendData(const_cast<char*>(s.data()), ZEL::u32(s.size()));
}
std::string Take(CZEL_Buffer& b, ZEL::u32 count) {
  std::string out(count, '\0');
  b.RetrieveData(out.data(), count);
  return out;
}

// ---------------------------------------------------------------------------
// Attaching
// ---------------------------------------------------------------------------

TEST_F(FileBufferTest, AttachCodesInOrder) {
  CZEL_FileBuffer b(4);
  F closed;
  auto const bad = static_cast<B::t_Access>(9);
  EXPECT_EQ(b.AttachFile(&closed, B::ACCESS_READ_WRITE), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(b.AttachFile(&closed, bad), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(b.AttachFile(&closed, B::ACCESS_READ), ZEL_ERR_FILE_NOT_OPEN);
  Spit(PathOf("f"), "abc");
  OpenFile(F::FILE_OPEN_READ);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), ZEL_ERR_NOT_READY);
  m_File.To(2, F::FILE_FROM_START);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(m_File.GetPos(), 0u);  // the file went to its start
  EXPECT_EQ(b.GetSize(), 3u);
  EXPECT_EQ(b.AttachFile(&m_File, bad), ZEL_ERR_NOT_READY);  // attached comes first
  EXPECT_EQ(b.AttachFile(&closed, B::ACCESS_READ), ZEL_ERR_NOT_READY);
  EXPECT_EQ(b.GetSize(), 3u);
  b.Close();
  m_File.Close();
  OpenFile(F::FILE_OPEN_WRITE);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), ZEL_ERR_NOT_READY);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
}

TEST_F(FileBufferTest, StatesAndTheirFailures) {
  CZEL_FileBuffer b(4);
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // detached
  EXPECT_ZEL_THROW(b.ToEnd(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.DeleteAll(), ZEL_ERR_NOT_SUPPORTED, &b);

  OpenForWriting();
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  EXPECT_ZEL_THROW(Take(b, 0), ZEL_ERR_READ_DENIED, &b);
  EXPECT_ZEL_THROW(b.ToStart(), ZEL_ERR_NOT_READY, &b);
  EXPECT_ZEL_THROW(b.ToEnd(), ZEL_ERR_NOT_SUPPORTED, &b);
  b.Close();
  m_File.Close();

  Spit(PathOf("f"), "ab");
  OpenFile(F::FILE_OPEN_READ);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_WRITE_DENIED, &b);
  b << static_cast<void*>(nullptr);  // checks nothing
  EXPECT_EQ(Take(b, 2), "ab");
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(b.GetAbsPosition(), 2u);
  b.Close();
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // no file comes before the access
}

// ---------------------------------------------------------------------------
// Writing
// ---------------------------------------------------------------------------

TEST_F(FileBufferTest, WriteBehind) {
  OpenForWriting();
  CZEL_FileBuffer b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  Put(b, "abc");
  EXPECT_EQ(OnDisk(), "");
  Put(b, "d");
  EXPECT_EQ(OnDisk(), "abcd");  // a full block leaves at once, flushed
  Put(b, "ef");
  EXPECT_EQ(b.GetAbsPosition(), 6u);
  b.Close();
  EXPECT_EQ(OnDisk(), "abcdef");
  EXPECT_EQ(b.GetSize(), 6u);
  EXPECT_EQ(b.GetAbsPosition(), 0u);
  EXPECT_EQ(m_File.IsOpen(), 1);

  // A second writing attachment counts the size on.
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  Put(b, "0123456789");  // one call through several blocks
  EXPECT_EQ(b.GetSize(), 16u);
  EXPECT_EQ(OnDisk(), "01234567");  // written over, from the file's start
  b.Close();
  EXPECT_EQ(OnDisk(), "0123456789");
}

TEST_F(FileBufferTest, AbortDropsAndDestructionWrites) {
  OpenForWriting();
  {
    CZEL_FileBuffer b(4);
    ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    Put(b, "abcdef");
    b.Abort();
    EXPECT_EQ(OnDisk(), "abcd");
    ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    Put(b, "xy");
  }
  EXPECT_EQ(OnDisk(), "xycd");
  EXPECT_EQ(m_File.IsOpen(), 1);
}

TEST_F(FileBufferTest, FullDeviceIsNotReported) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  ASSERT_EQ(m_File.Open("/dev/full", F::FILE_OPEN_WRITE), 0u);
  CZEL_FileBuffer b(8);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  for (int i = 0; i < 1000; ++i) b << ZEL::u64(i);
  EXPECT_EQ(b.GetSize(), 8000u);
  b.Close();
}

// ---------------------------------------------------------------------------
// Reading
// ---------------------------------------------------------------------------

TEST_F(FileBufferTest, ReadAhead) {
  Spit(PathOf("f"), "0123456789");
  OpenFile(F::FILE_OPEN_READ);
  CZEL_FileBuffer b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(Take(b, 10), "0123456789");
  EXPECT_EQ(b.GetAbsPosition(), 10u);
  EXPECT_EQ(b.IsEnd(), 1);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);

  // Byte by byte, the file is read at the first, the fourth and the eighth
  // call: each call that reaches the block's end refills at once.
  b.ToStart();
  std::vector<ZEL::u64> filePos;
  std::string got;
  for (int i = 0; i < 10; ++i) {
    got += Take(b, 1);
    filePos.push_back(m_File.GetPos());
    EXPECT_EQ(b.IsEnd(), i == 9 ? 1 : 0);
  }
  EXPECT_EQ(got, "0123456789");
  EXPECT_EQ(filePos, (std::vector<ZEL::u64>{4, 4, 4, 8, 8, 8, 8, 10, 10, 10}));
}

// The end mark does not follow an attachment or a rewind; the size does.
TEST_F(FileBufferTest, RewindSeesGrowthAndKeepsEndMark) {
  Spit(PathOf("f"), "ab");
  OpenFile(F::FILE_OPEN_READ);
  CZEL_FileBuffer b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(b.IsEnd(), 1);  // still the constructor's
  EXPECT_EQ(Take(b, 1), "a");
  EXPECT_EQ(b.IsEnd(), 0);
  F writer;
  ASSERT_EQ(writer.Open(Z("f"), F::FILE_OPEN_WRITE), 0u);
  writer.WriteText("cd");
  b.ToStart();
  EXPECT_EQ(b.IsEnd(), 0);
  EXPECT_EQ(b.GetSize(), 4u);
  EXPECT_EQ(Take(b, 4), "abcd");
  b.Close();
  EXPECT_EQ(b.GetSize(), 4u);
  EXPECT_EQ(b.IsEnd(), 1);

  // An empty file: size 0, and any byte is out of range.
  Spit(PathOf("f"), "");
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
}

// Typed values through files whose lengths are and aren't multiples of the
// block, read back in the order written.
TEST_F(FileBufferTest, TypedRoundTrip) {
  for (ZEL::u32 blockSize : {1u, 3u, 8u, 4096u}) {
    OpenForWriting();
    CZEL_FileBuffer out(blockSize);
    ASSERT_EQ(out.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    for (int i = 0; i < 100; ++i) {
      out << i;
      out << static_cast<double>(i) / 4;
      out << static_cast<short>(-i);
    }
    out.Close();
    m_File.Close();
    EXPECT_EQ(OnDisk().size(), 1400u);
    OpenFile(F::FILE_OPEN_READ);
    CZEL_FileBuffer in(blockSize);
    ASSERT_EQ(in.AttachFile(&m_File, B::ACCESS_READ), 0u);
    for (int i = 0; i < 100; ++i) {
      int n = 0;
      double d = 0;
      short s = 0;
      in >> n;
      in >> d;
      in >> s;
      ASSERT_EQ(n, i) << blockSize;
      ASSERT_EQ(d, static_cast<double>(i) / 4);
      ASSERT_EQ(s, -i);
    }
    EXPECT_EQ(in.IsEnd(), 1);
    in.Close();
    m_File.Close();
  }
}

// ---------------------------------------------------------------------------
// Copies
// ---------------------------------------------------------------------------

TEST_F(FileBufferTest, ShallowCopiesShareBlockAndFile) {
  OpenForWriting();
  Sharing b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  Put(b, "ab");
  {
    Sharing copy(b);
    Put(copy, "cd");  // fills the shared block, in which "ab" waits
    EXPECT_EQ(OnDisk(), "abcd");
    copy.Forget();
  }
  Sharing target(4);
  target.DropBlock();  // assignment does not release the target's own block
  target = b;
  EXPECT_EQ(target.GetSize(), 2u);
  EXPECT_EQ(target.AttachFile(&m_File, B::ACCESS_WRITE), ZEL_ERR_NOT_READY);
  target.Forget();
}

}  // namespace
