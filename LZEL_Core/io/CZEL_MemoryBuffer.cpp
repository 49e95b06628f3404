// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/io/CZEL_MemoryBuffer.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

#include <utility>

using ZEL::u32;
using ZEL::u64;
using ZEL::u8;

CZEL_MemoryBuffer::CBlockList::CBlockList() = default;
CZEL_MemoryBuffer::CBlockList::CBlockList(CBlockList const& src) : CZEL_List(src) {}
// The moves copy: the chain's items are not handed over.
// NOLINTNEXTLINE(performance-noexcept-move-constructor,performance-move-constructor-init)
CZEL_MemoryBuffer::CBlockList::CBlockList(CBlockList&& src) : CZEL_List(src) {}
CZEL_MemoryBuffer::CBlockList& CZEL_MemoryBuffer::CBlockList::operator=(CBlockList const& src) {
  CZEL_List::operator=(src);
  return *this;
}
// NOLINTNEXTLINE(performance-noexcept-move-constructor)
CZEL_MemoryBuffer::CBlockList& CZEL_MemoryBuffer::CBlockList::operator=(CBlockList&& src) {
  CZEL_List::operator=(src);
  return *this;
}
CZEL_MemoryBuffer::CBlockList::~CBlockList() = default;

void CZEL_MemoryBuffer::CBlockList::SwapChains(CBlockList& other) noexcept {
  std::swap(m_Head, other.m_Head);
  std::swap(m_Tail, other.m_Tail);
  std::swap(m_Cur, other.m_Cur);
  std::swap(m_Length, other.m_Length);
}

CZEL_MemoryBuffer::CZEL_MemoryBuffer(u32 blockSize)
    : CZEL_Buffer(blockSize), m_BlockOffset(0), m_CurBlock(nullptr), m_CurBlockIndex(0) {}

CZEL_MemoryBuffer::CZEL_MemoryBuffer(CZEL_MemoryBuffer const& src)
    : CZEL_Buffer(src),
      m_BlockOffset(src.m_BlockOffset),
      m_CurBlock(src.m_CurBlock),
      m_CurBlockIndex(src.m_CurBlockIndex),
      m_Blocks(src.m_Blocks) {}

CZEL_MemoryBuffer& CZEL_MemoryBuffer::operator=(CZEL_MemoryBuffer const& src) {
  DataCopy(src);
  return *this;
}

// The cursor's block is a node of the chain, so it goes along with it.
CZEL_MemoryBuffer::CZEL_MemoryBuffer(CZEL_MemoryBuffer&& src) noexcept
    : CZEL_Buffer(src),
      m_BlockOffset(src.m_BlockOffset),
      m_CurBlock(src.m_CurBlock),
      m_CurBlockIndex(src.m_CurBlockIndex) {
  m_Blocks.SwapChains(src.m_Blocks);
  src.CZEL_MemoryBuffer::DeleteAll();  // the chain is empty: only the fields
}

CZEL_MemoryBuffer& CZEL_MemoryBuffer::operator=(CZEL_MemoryBuffer&& src) noexcept {
  CZEL_MemoryBuffer taken(std::move(src));
  Swap(taken);
  return *this;
}

void CZEL_MemoryBuffer::Swap(CZEL_MemoryBuffer& other) noexcept {
  std::swap(m_Size, other.m_Size);
  std::swap(m_AtEnd, other.m_AtEnd);
  std::swap(m_BlockSize, other.m_BlockSize);
  std::swap(m_Access, other.m_Access);
  std::swap(m_BlockOffset, other.m_BlockOffset);
  std::swap(m_CurBlock, other.m_CurBlock);
  std::swap(m_CurBlockIndex, other.m_CurBlockIndex);
  m_Blocks.SwapChains(other.m_Blocks);
}

CZEL_MemoryBuffer::~CZEL_MemoryBuffer() { CZEL_MemoryBuffer::DeleteAll(); }

void CZEL_MemoryBuffer::DataCopy(CZEL_MemoryBuffer const& src) {
  CZEL_Buffer::DataCopy(src);
  m_BlockOffset = src.m_BlockOffset;
  m_CurBlock = src.m_CurBlock;
  m_CurBlockIndex = src.m_CurBlockIndex;
  m_Blocks = src.m_Blocks;
}

u64 CZEL_MemoryBuffer::GetAbsPosition() { return Position(); }

void CZEL_MemoryBuffer::DeleteAll() {
  m_Blocks.DeleteAll();
  m_Size = 0;
  m_AtEnd = 1;
  m_BlockOffset = 0;
  m_CurBlock = nullptr;
  m_CurBlockIndex = 0;
}

void CZEL_MemoryBuffer::PlaceCursor(CZEL_Uint8Vector* block, u32 index, u32 offset) {
  m_CurBlock = block;
  m_CurBlockIndex = index;
  m_BlockOffset = offset;
  SetEndMark();
}

void CZEL_MemoryBuffer::SetEndMark() { m_AtEnd = Position() >= m_Size ? 1 : 0; }

void CZEL_MemoryBuffer::ToStart() {
  if (m_Blocks.GetLength() == 0) {
    PlaceCursor(nullptr, 0, 0);
  } else {
    PlaceCursor(&m_Blocks.ToStart(), 0, 0);
  }
}

void CZEL_MemoryBuffer::ToEnd() {
  if (m_Blocks.GetLength() == 0) {
    PlaceCursor(nullptr, 0, 0);
  } else {
    CZEL_Uint8Vector* last = &m_Blocks.ToEnd();
    PlaceCursor(last, m_Blocks.GetLength() - 1, last->GetLength());
  }
}

// The item is in the chain before its storage is made, so that a block size
// of 0 leaves an item without storage behind and no cursor on it.
void CZEL_MemoryBuffer::AppendBlock() {
  CZEL_Uint8Vector* block = m_Blocks.AppendItem();
  block->Create(m_BlockSize);
  m_CurBlock = block;
}

// The walk's turn at a block's end: writing appends a block at the tail,
// reading steps the chain's cursor on; either way the block count goes up.
void CZEL_MemoryBuffer::AppendData(void* data, u32 count) {
  CheckWrite();
  if (m_CurBlock == nullptr) AppendBlock();
  WalkBlocks(
      static_cast<u8*>(data), count, true, m_CurBlock->GetBuf(), m_BlockOffset,
      [this] {
        AppendBlock();
        ++m_CurBlockIndex;
        return m_CurBlock->GetBuf();
      },
      [this](u32 chunk) { m_Size += chunk; });
  m_AtEnd = 1;
}

void CZEL_MemoryBuffer::RetrieveData(void* data, u32 count) {
  // The base's checks, then its range test repeated with another code, which
  // can't fire behind the first.
  CheckRead();
  if (Position() + count > m_Size) Fail(ZEL_ERR_OUT_OF_RANGE);
  if (Position() + count > m_Size) Fail(ZEL_ERR_READ_DENIED);
  if (count == 0) {  // there may be no block to start from
    SetEndMark();
    return;
  }
  WalkBlocks(
      static_cast<u8*>(data), count, false, m_CurBlock->GetBuf(), m_BlockOffset,
      [this] {
        m_Blocks.Next(1);
        m_CurBlock = &m_Blocks.CurItem();
        ++m_CurBlockIndex;
        return m_CurBlock->GetBuf();
      },
      [](u32) {});
  SetEndMark();
}
