// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_FileBuffer.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

#include <algorithm>

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

CZEL_FileBuffer::CZEL_FileBuffer(u32 blockSize)
    : CZEL_Buffer(blockSize),
      m_BlockOffset(0),
      m_Position(0),
      m_Block(new u8[blockSize]),
      m_File(nullptr),
      m_LastReadResult(0) {}

CZEL_FileBuffer::CZEL_FileBuffer(CZEL_FileBuffer const& src)
    : CZEL_Buffer(src),
      m_BlockOffset(0),
      m_Position(0),
      m_Block(nullptr),
      m_File(nullptr),
      m_LastReadResult(0) {
  DataCopy(src);
}

CZEL_FileBuffer& CZEL_FileBuffer::operator=(CZEL_FileBuffer const& src) {
  DataCopy(src);
  return *this;
}

CZEL_FileBuffer::~CZEL_FileBuffer() {
  CZEL_FileBuffer::Close();
  delete[] m_Block;
}

void CZEL_FileBuffer::DataCopy(CZEL_FileBuffer const& src) {
  CZEL_Buffer::DataCopy(src);
  m_BlockOffset = src.m_BlockOffset;
  m_Position = src.m_Position;
  m_Block = src.m_Block;
  m_File = src.m_File;
  m_LastReadResult = src.m_LastReadResult;
}

u32 CZEL_FileBuffer::AttachFile(CZEL_File* file, CZEL_Buffer::t_Access access) {
  if (m_File != nullptr) return ZEL_ERR_NOT_READY;
  if (access != ACCESS_WRITE && access != ACCESS_READ) return ZEL_ERR_INVALID_ARGUMENT;
  if (file == nullptr || file->IsOpen() == 0) return ZEL_ERR_FILE_NOT_OPEN;
  u32 const needed =
      access == ACCESS_WRITE ? CZEL_File::FILE_OPEN_WRITE : CZEL_File::FILE_OPEN_READ;
  if ((file->GetOpenFlags() & needed) == 0) return ZEL_ERR_NOT_READY;
  file->ToStart();
  if (access == ACCESS_READ) {
    m_BlockOffset = m_BlockSize;
    m_Size = file->GetLength();
  }
  m_Position = 0;
  m_Access = access;
  m_File = file;
  return ZEL_ERR_NONE;
}

void CZEL_FileBuffer::Close() {
  if (m_Access == ACCESS_WRITE && m_BlockOffset > 0 && m_File != nullptr) {
    m_File->Write(m_Block, m_BlockOffset, 1);
  }
  Abort();
}

void CZEL_FileBuffer::Abort() {
  m_BlockOffset = 0;
  m_Position = 0;
  m_File = nullptr;
}

u64 CZEL_FileBuffer::GetAbsPosition() { return m_Position; }

void CZEL_FileBuffer::ToStart() {
  if (m_Access == ACCESS_WRITE) Fail(ZEL_ERR_NOT_READY);
  m_BlockOffset = m_BlockSize;
  m_Position = 0;
  if (m_File == nullptr) return;
  m_File->ToStart();
  m_Size = m_File->GetLength();
}

void CZEL_FileBuffer::ToEnd() { Fail(ZEL_ERR_NOT_SUPPORTED); }

// A full block leaves at once; the file's answer is not looked at, so a full
// disk does not stop the stream. A transfer that stays inside the block, as
// every typed value but the one that fills it does, takes the short way.
void CZEL_FileBuffer::AppendData(void* data, u32 count) {
  if (m_File == nullptr) Fail(ZEL_ERR_IO);
  CheckWrite();
  if (m_BlockOffset + count < m_BlockSize) {
    CopyBytes(m_Block + m_BlockOffset, data, count);
    m_BlockOffset += count;
    m_Size += count;
    m_Position += count;
  } else {
    AppendAcross(static_cast<u8*>(data), count);
  }
  m_AtEnd = 1;
}

void CZEL_FileBuffer::AppendAcross(u8* data, u32 count) {
  WalkBlocks(
      data, count, true, m_Block, m_BlockOffset,
      [this] {
        m_File->Write(m_Block, m_BlockSize, 1);
        return m_Block;
      },
      [this](u32 chunk) {
        m_Size += chunk;
        m_Position += chunk;
      });
}

// The refill always asks for a whole block. At the last, shorter block the
// file reports a short read, which is expected: the bytes that were there are
// in the block, and the size keeps the reader from going further. A file that
// delivers fewer bytes than its length promised (one cut short under the
// buffer) ends the stream where its bytes end: the size shrinks to them, so
// that no byte of the block that the file did not fill is ever handed out.
// `boundary` is the stream position of the block's first byte.
void CZEL_FileBuffer::Refill(u64 boundary) {
  if (m_File == nullptr) return;
  m_LastReadResult = m_File->Read(m_Block, m_BlockSize);
  if (m_LastReadResult == ZEL_ERR_NONE) return;
  u64 const end = std::clamp(m_File->GetPos(), boundary, boundary + m_BlockSize);
  if (end < m_Size) m_Size = end;
}

void CZEL_FileBuffer::RetrieveData(void* data, u32 count) {
  // The base's checks, then its range test repeated with another code, which
  // can't fire behind the first.
  CheckRead();
  u64 const end = m_Position + count;
  if (end > m_Size) Fail(ZEL_ERR_OUT_OF_RANGE);
  if (end > m_Size) Fail(ZEL_ERR_READ_DENIED);
  if (m_BlockOffset + count < m_BlockSize) {
    CopyBytes(data, m_Block + m_BlockOffset, count);
    m_BlockOffset += count;
    m_Position = end;
  } else {
    RetrieveAcross(static_cast<u8*>(data), count);
  }
  m_AtEnd = m_Position >= m_Size ? 1 : 0;
}

void CZEL_FileBuffer::RetrieveAcross(u8* data, u32 count) {
  u64 const end = m_Position + count;
  WalkBlocks(
      data, count, false, m_Block, m_BlockOffset, [this, end] { return Turn(end); },
      [this](u32 chunk) { m_Position += chunk; });
}

// The walk's turn at the block's end while reading: a refill. When the file
// came up short of the bytes this transfer needs, the stream stands at the
// new block's start, the bytes before it delivered, and the read fails as
// one past the size.
u8* CZEL_FileBuffer::Turn(u64 end) {
  u64 const boundary = m_Position + (m_BlockSize - m_BlockOffset);
  Refill(boundary);
  if (end > m_Size) {
    m_Position = boundary;
    m_BlockOffset = 0;
    m_AtEnd = m_Position >= m_Size ? 1 : 0;
    Fail(ZEL_ERR_OUT_OF_RANGE);
  }
  return m_Block;
}
