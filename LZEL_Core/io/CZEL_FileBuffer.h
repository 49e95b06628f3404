// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_FileBuffer.h
// -----------------------------------------------------------------------------
//
// `CZEL_FileBuffer` is the stream of <LZEL_Core/io/CZEL_Buffer.h> over a file:
// the caller attaches an open `CZEL_File` in one direction, and every value
// then passes through one block of the block size, so that the file sees
// whole blocks and not one call per value. Writing is write-behind: a block
// goes to the file (with flush) the moment it is full, the rest at `Close`.
// Reading is read-ahead: the block is refilled when the cursor reaches its
// end. The buffer never owns the file; opening and closing it stay with the
// caller, and the file must outlive the attachment.
//
//   CZEL_File file;
//   file.Open("values.bin", CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE);
//   CZEL_FileBuffer out(65536);
//   out.AttachFile(&file, CZEL_Buffer::ACCESS_WRITE);
//   out << ZEL::u32(7);
//   out << 2.5;
//   out.Close();      // writes the last part; the file stays open
//   file.Close();
//
//   file.Open("values.bin", CZEL_File::FILE_OPEN_READ);
//   CZEL_FileBuffer in(65536);
//   in.AttachFile(&file, CZEL_Buffer::ACCESS_READ);
//   ZEL::u32 n;
//   double d;
//   in >> n;
//   in >> d;          // a read past the file's length throws ZEL_ERR_OUT_OF_RANGE
//
// States. Detached after construction, `Close` and `Abort`: only `AttachFile`
// works, and `AppendData` throws ZEL_ERR_IO. Writing, after `AttachFile` with
// `ACCESS_WRITE`: reads throw ZEL_ERR_READ_DENIED, `ToStart`
// ZEL_ERR_NOT_READY. Reading, after `AttachFile` with `ACCESS_READ`: writes
// throw ZEL_ERR_WRITE_DENIED. `ToEnd` and `DeleteAll` always throw
// ZEL_ERR_NOT_SUPPORTED.
//
// The end mark does not follow an attachment: after `AttachFile` or `ToStart`
// for reading, `IsEnd` shows its old value until the first read, so a loop
// over a file reads before it asks. The size counts on across attachments for
// writing: a second writing attachment goes on from the first one's total.
//
// A file that refuses a write or a read is not reported: the stream goes on.
// A file that holds fewer bytes than its length promised when it was
// attached (cut short meanwhile, say) ends the stream where its bytes end:
// the size shrinks to them, and a read that reaches beyond throws
// ZEL_ERR_OUT_OF_RANGE, the bytes before that point delivered. No byte that
// the file did not deliver is ever handed out.
// Bytes waiting in the block reach the file at `Close` or at destruction;
// `Abort` drops them.
//
// Copies are shallow: a copy shares the block and the file, and each
// object's destructor releases the block, so a file buffer is not to be
// copied while both objects live on. Assignment does not release the
// target's own block.

#ifndef LZEL_CORE_IO_CZEL_FILE_BUFFER_H_
#define LZEL_CORE_IO_CZEL_FILE_BUFFER_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/io/CZEL_File.h>

class ZEL_API CZEL_FileBuffer : public CZEL_Buffer {
 public:
  // Detached, with a block of `blockSize` bytes. The block size must not be
  // 0: it is not refused, but then a transfer of any non-zero count does
  // not end.
  explicit CZEL_FileBuffer(ZEL::u32 blockSize = 1024);

  // Shallow: see the file comment.
  CZEL_FileBuffer(CZEL_FileBuffer const& src);
  CZEL_FileBuffer& operator=(CZEL_FileBuffer const& src);

  // `Close`, then the block is released.
  ~CZEL_FileBuffer() override;

  // Attaches `file` for `access` and moves it to its start; for reading, the
  // size becomes the file's length. Returns, testing in this order:
  // ZEL_ERR_NOT_READY if a file is attached already; ZEL_ERR_INVALID_ARGUMENT
  // for an access other than `ACCESS_WRITE` or `ACCESS_READ`;
  // ZEL_ERR_FILE_NOT_OPEN if `file` is closed; ZEL_ERR_NOT_READY if its open
  // flags lack the direction. On failure the buffer is unchanged.
  virtual ZEL::u32 AttachFile(CZEL_File* file, CZEL_Buffer::t_Access access);

  // Writing: sends the bytes waiting in the block to the file, with flush.
  // Then detaches: position 0, no file. The access, the size and the end
  // mark stay; the file stays open where it is.
  virtual void Close();

  // Detaches without writing: the bytes waiting in the block are dropped.
  virtual void Abort();

  // The bytes passed through since the file was attached or rewound.
  ZEL::u64 GetAbsPosition() override;

  // Reading: back to the start of the file, the size read again from the
  // file, which may have grown. Throws ZEL_ERR_NOT_READY when writing.
  void ToStart() override;

  // Throws ZEL_ERR_NOT_SUPPORTED.
  void ToEnd() override;

  // Copies `count` bytes into the block, sending each full block to the
  // file. Throws ZEL_ERR_IO with no file attached (tested first), then
  // ZEL_ERR_WRITE_DENIED when reading.
  void AppendData(void* data, ZEL::u32 count) override;

  // Copies `count` bytes out of the block, refilling it from the file each
  // time it is used up. Throws ZEL_ERR_READ_DENIED when writing and
  // ZEL_ERR_OUT_OF_RANGE, nothing moved, for a read past the size.
  void RetrieveData(void* data, ZEL::u32 count) override;

 protected:
  // Takes over `src`'s fields, block and file as they stand.
  void DataCopy(CZEL_FileBuffer const& src);

  // Writing: bytes waiting in the block. Reading: bytes of the block used
  // up, the block size when it must be refilled first.
  ZEL::u64 m_BlockOffset;
  // Bytes passed through since the attachment or the last `ToStart`.
  ZEL::u64 m_Position;
  // The one transfer block of the block size.
  ZEL::u8* m_Block;
  // The attached file, not owned; null when detached.
  CZEL_File* m_File;
  // The result of the last refill from the file; kept, and not looked at.
  ZEL::u64 m_LastReadResult;

 private:
  // The transfers that reach the block's end, walked block by block; kept
  // out of `AppendData` and `RetrieveData`, whose usual case is a few bytes
  // inside the block.
  void AppendAcross(ZEL::u8* data, ZEL::u32 count);
  void RetrieveAcross(ZEL::u8* data, ZEL::u32 count);

  // Fills the block from the file, whose bytes from `boundary` on it holds;
  // a file that delivers fewer than the size counts on cuts the size to
  // them. A missing file leaves the block as it is.
  void Refill(ZEL::u64 boundary);

  // Refills the block at its end during a read that ends at `end`; throws
  // ZEL_ERR_OUT_OF_RANGE when the file can't deliver that far.
  ZEL::u8* Turn(ZEL::u64 end);
};

#endif  // LZEL_CORE_IO_CZEL_FILE_BUFFER_H_
