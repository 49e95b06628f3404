#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/io/CZEL_File.h>
#include <LZEL_Core/io/CZEL_FileBuffer.h>

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>
#include <vector>

#include "IoTestSupport.h"

using zel_test::Slurp;
using zel_test::Spit;

namespace {

using F = CZEL_File;
using B = CZEL_Buffer;

// A file buffer that can let go of its block and file, so that a shallow
// copy and its source don't both release the block.
class Sharing : public CZEL_FileBuffer {
 public:
  using CZEL_FileBuffer::CZEL_FileBuffer;
  void Forget() {
    m_Block = nullptr;
    m_File = nullptr;
  }
};

class FileBufferTest : public zel_test::TempDirTest {
 protected:
  void OpenFile(ZEL::u32 flags) { ASSERT_EQ(m_File.Open(Z("f"), flags), 0u); }
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

TEST_F(FileBufferTest, AttachAndStates) {
  CZEL_FileBuffer b(4);
  F closed;
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // detached
  EXPECT_EQ(b.AttachFile(&closed, B::ACCESS_READ_WRITE), ZEL_ERR_INVALID_ARGUMENT);
  EXPECT_EQ(b.AttachFile(&closed, B::ACCESS_READ), ZEL_ERR_FILE_NOT_OPEN);
  Spit(PathOf("f"), "abc");
  OpenFile(F::FILE_OPEN_READ);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), ZEL_ERR_NOT_READY);
  m_File.To(2, F::FILE_FROM_START);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(m_File.GetPos(), 0u);
  EXPECT_EQ(b.GetSize(), 3u);
  EXPECT_EQ(b.AttachFile(&m_File, static_cast<B::t_Access>(9)), ZEL_ERR_NOT_READY);
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_WRITE_DENIED, &b);
  EXPECT_ZEL_THROW(b.ToEnd(), ZEL_ERR_NOT_SUPPORTED, &b);
  EXPECT_ZEL_THROW(b.DeleteAll(), ZEL_ERR_NOT_SUPPORTED, &b);
  b.Close();
  EXPECT_ZEL_THROW(Put(b, "x"), ZEL_ERR_IO, &b);  // no file comes before the access
  m_File.Close();
  OpenFile(F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE);
  EXPECT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), ZEL_ERR_NOT_READY);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  EXPECT_ZEL_THROW(Take(b, 0), ZEL_ERR_READ_DENIED, &b);
  EXPECT_ZEL_THROW(b.ToStart(), ZEL_ERR_NOT_READY, &b);
}

TEST_F(FileBufferTest, WriteBehind) {
  OpenFile(F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE);
  {
    CZEL_FileBuffer b(4);
    ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    Put(b, "abc");
    EXPECT_EQ(OnDisk(), "");
    Put(b, "d");
    EXPECT_EQ(OnDisk(), "abcd");  // a full block leaves at once, flushed
    Put(b, "ef");
    b.Close();
    EXPECT_EQ(OnDisk(), "abcdef");
    EXPECT_EQ(b.GetSize(), 6u);
    EXPECT_EQ(b.GetAbsPosition(), 0u);
    ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);  // the size counts on
    Put(b, "0123456789");
    EXPECT_EQ(b.GetSize(), 16u);
    b.Abort();
    EXPECT_EQ(OnDisk(), "01234567");  // from the file's start; "89" dropped
    ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
    Put(b, "xy");
  }
  EXPECT_EQ(OnDisk(), "xy234567");  // destruction writes what waits
  EXPECT_EQ(m_File.IsOpen(), 1);
}

TEST_F(FileBufferTest, FullDeviceIsNotReported) {
  if (access("/dev/full", W_OK) != 0) GTEST_SKIP() << "no /dev/full";
  ASSERT_EQ(m_File.Open("/dev/full", F::FILE_OPEN_WRITE), 0u);
  CZEL_FileBuffer b(8);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  for (int i = 0; i < 1000; ++i) b << ZEL::u64(i);
  EXPECT_EQ(b.GetSize(), 8000u);
}

TEST_F(FileBufferTest, ReadAhead) {
  Spit(PathOf("f"), "0123456789");
  OpenFile(F::FILE_OPEN_READ);
  CZEL_FileBuffer b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(Take(b, 10), "0123456789");
  EXPECT_EQ(b.GetAbsPosition(), 10u);
  EXPECT_EQ(b.IsEnd(), 1);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
  EXPECT_EQ(b.GetAbsPosition(), 10u);

  // Byte by byte, the file is read at the first, the fourth and the eighth
  // call: each call that reaches the block's end refills at once.
  b.ToStart();
  EXPECT_EQ(b.IsEnd(), 1);  // the end mark waits for the first read
  std::vector<ZEL::u64> filePos;
  std::string got;
  for (int i = 0; i < 10; ++i) {
    got += Take(b, 1);
    filePos.push_back(m_File.GetPos());
  }
  EXPECT_EQ(got, "0123456789");
  EXPECT_EQ(filePos, (std::vector<ZEL::u64>{4, 4, 4, 8, 8, 8, 8, 10, 10, 10}));

  // A rewind sees what another writer appended.
  F writer;
  ASSERT_EQ(writer.Open(Z("f"), F::FILE_OPEN_WRITE), 0u);
  writer.WriteText("ab");
  b.ToStart();
  EXPECT_EQ(b.GetSize(), 12u);
  EXPECT_EQ(Take(b, 12), "0123456789ab");
  b.Close();
  EXPECT_EQ(b.GetSize(), 12u);

  Spit(PathOf("f"), "");
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_READ), 0u);
  EXPECT_EQ(b.GetSize(), 0u);
  EXPECT_ZEL_THROW(Take(b, 1), ZEL_ERR_OUT_OF_RANGE, &b);
}

TEST_F(FileBufferTest, ShallowCopiesShareBlockAndFile) {
  OpenFile(F::FILE_OPEN_WRITE | F::FILE_OPEN_TRUNCATE);
  Sharing b(4);
  ASSERT_EQ(b.AttachFile(&m_File, B::ACCESS_WRITE), 0u);
  Put(b, "ab");
  Sharing copy(b);
  Put(copy, "cd");  // fills the shared block, in which "ab" waits
  EXPECT_EQ(OnDisk(), "abcd");
  EXPECT_EQ(copy.AttachFile(&m_File, B::ACCESS_WRITE), ZEL_ERR_NOT_READY);
  copy.Forget();
}

}  // namespace
