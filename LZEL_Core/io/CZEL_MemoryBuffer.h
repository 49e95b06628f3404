// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_MemoryBuffer.h
// -----------------------------------------------------------------------------
//
// `CZEL_MemoryBuffer` is the stream of <LZEL_Core/io/CZEL_Buffer.h> in memory:
// its bytes live in a chain of blocks of the block size given at
// construction, so that growing never moves data already stored. It is used
// in two phases: write from construction or `DeleteAll`, then `ToStart` and
// read the values back in the order they were written.
//
//   CZEL_MemoryBuffer buffer(4096);
//   buffer << ZEL::u16(2);
//   buffer << CZEL_String("AB");    // <LZEL_Core/io/ZEL_StreamForms.h>
//   buffer.ToStart();
//   ZEL::u16 tag;
//   CZEL_String name;
//   buffer >> tag;
//   buffer >> name;                  // tag 2, name "AB"
//   buffer.IsEnd();                  // 1
//
// One cursor. Reading and writing share one position. Reading straight after
// writing fails with ZEL_ERR_OUT_OF_RANGE for any non-zero count, since the
// cursor stands at the end; `ToStart` first. Writing always happens at the
// cursor: after `ToStart` a write overwrites from the start and the size
// still grows by the count, and a write that crosses a block's end goes on in
// a new block at the tail of the chain. `ToEnd` is an end mark, not a place
// to go on writing (see below).
//
// Blocks. A block that a write fills exactly is followed at once by a new
// empty one, so a buffer of 8 bytes in blocks of 4 has 3 blocks. A block
// size of 0 is accepted and makes the first write throw ZEL_ERR_EMPTY_INPUT.
//
// Copies copy the blocks, and also the cursor as it stands, which still
// refers to a block of the source: call `ToStart` (or `ToEnd`, `DeleteAll`)
// on a copy before using it. Assigning a buffer that has no blocks keeps the
// target's blocks behind an empty cursor and a size of 0; `DeleteAll` is the
// way to empty a buffer.

#ifndef LZEL_CORE_IO_CZEL_MEMORY_BUFFER_H_
#define LZEL_CORE_IO_CZEL_MEMORY_BUFFER_H_

#include <LZEL_Core/containers/CZEL_List.h>
#include <LZEL_Core/containers/CZEL_Uint8Vector.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/io/CZEL_Buffer.h>

class ZEL_API CZEL_MemoryBuffer : public CZEL_Buffer {
 public:
  // The chain of blocks, which owns them: a `CZEL_List<CZEL_Uint8Vector>`
  // under its own name. Moving copies, as copying does.
  class ZEL_API CBlockList : public CZEL_List<CZEL_Uint8Vector> {
   public:
    // An empty chain; a copy of `src`'s blocks.
    CBlockList();
    CBlockList(CBlockList const& src);
    // Moving copies the blocks, which allocates, so it can throw.
    CBlockList(CBlockList&& src);  // NOLINT(performance-noexcept-move-constructor)
    CBlockList& operator=(CBlockList const& src);
    CBlockList& operator=(CBlockList&& src);  // NOLINT(performance-noexcept-move-constructor)
    ~CBlockList() override;

   private:
    friend class CZEL_MemoryBuffer;
    // Exchanges the nodes of two chains, cursors included. Only for chains
    // that have never taken `InsertItems` or `InsertList`, as a buffer's
    // own chain never does.
    void SwapChains(CBlockList& other) noexcept;
  };

  // An empty buffer with no block yet.
  explicit CZEL_MemoryBuffer(ZEL::u32 blockSize = 1024);

  // Copy the blocks and the cursor as it stands: see the file comment.
  CZEL_MemoryBuffer(CZEL_MemoryBuffer const& src);
  CZEL_MemoryBuffer& operator=(CZEL_MemoryBuffer const& src);

  // Takes over `src`'s blocks, cursor and fields without copying a byte;
  // `src` is left empty, as after `DeleteAll`, with its block size and
  // access.
  CZEL_MemoryBuffer(CZEL_MemoryBuffer&& src) noexcept;

  // Takes over `src`'s blocks as the move constructor does; this buffer's
  // own blocks are released and `src` is left empty.
  CZEL_MemoryBuffer& operator=(CZEL_MemoryBuffer&& src) noexcept;

  // Exchanges the whole contents of two buffers (blocks, cursors, size, end
  // mark, block size and access) without copying a byte.
  void Swap(CZEL_MemoryBuffer& other) noexcept;
  friend void swap(CZEL_MemoryBuffer& a, CZEL_MemoryBuffer& b) noexcept { a.Swap(b); }

  // `DeleteAll`.
  ~CZEL_MemoryBuffer() override;

  // The cursor's block number times the block size, plus its place in the
  // block.
  ZEL::u64 GetAbsPosition() override;

  // Releases every block: size 0, at the end, no block. The block size and
  // the access stay; nothing is checked.
  void DeleteAll() override;

  // The cursor to the first byte; `IsEnd` tells whether there is data.
  void ToStart() override;

  // The cursor behind the last block, whole: `GetAbsPosition` is then the
  // number of blocks times the block size, in general past the size, and
  // `IsEnd` is 1. A write from there leaves the rest of the last block as a
  // gap of unset bytes and starts a new block; the size grows only by the
  // bytes written.
  void ToEnd() override;

  // Writes `count` bytes at the cursor, block by block, and sets the end
  // mark, also for a `count` of 0. The first write makes the first block,
  // even with a `count` of 0.
  void AppendData(void* data, ZEL::u32 count) override;

  // Reads `count` bytes from the cursor, across blocks; the end mark then
  // tells whether the position has reached the size. Throws
  // ZEL_ERR_OUT_OF_RANGE, nothing moved, for a read past the size. Reading
  // consumes nothing: `ToStart` reads the same bytes again.
  void RetrieveData(void* data, ZEL::u32 count) override;

 protected:
  // Takes over `src`'s fields, cursor and blocks.
  void DataCopy(CZEL_MemoryBuffer const& src);

  // The cursor's place inside its block.
  ZEL::u32 m_BlockOffset;
  // The cursor's block, an item of `m_Blocks`; null while there is none.
  CZEL_Uint8Vector* m_CurBlock;
  // The cursor's block number, from 0.
  ZEL::u32 m_CurBlockIndex;
  // The chain of blocks.
  CBlockList m_Blocks;

 private:
  // Appends a block of the block size at the tail and makes it the cursor's.
  void AppendBlock();

  // Puts the cursor on `block` at `index` and `offset`, and sets the end mark
  // by the position.
  void PlaceCursor(CZEL_Uint8Vector* block, ZEL::u32 index, ZEL::u32 offset);

  // The end mark by the position: 1 once it has reached the size.
  void SetEndMark();

  // The cursor's position, as `GetAbsPosition` gives it.
  ZEL::u64 Position() const { return m_BlockOffset + ZEL::u64{m_CurBlockIndex} * m_BlockSize; }
};

#endif  // LZEL_CORE_IO_CZEL_MEMORY_BUFFER_H_
