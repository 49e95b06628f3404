// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_File.h
// -----------------------------------------------------------------------------
//
// `CZEL_File` is LZEL_Core's door to the file system: a thin object around one
// buffered stream of the C runtime, always in binary mode, with 64-bit
// positions, two text-line readers, text writers with a chosen line end, and
// static helpers to copy, delete, test for and take apart paths.
//
//   CZEL_File f;
//   if (f.Open("log.txt", CZEL_File::FILE_OPEN_WRITE | CZEL_File::FILE_OPEN_TRUNCATE) == 0) {
//     f.WriteTextLine("first", CZEL_File::LINE_END_CR | CZEL_File::LINE_END_LF);
//     f.Close();
//   }
//   f.Open("log.txt", CZEL_File::FILE_OPEN_READ);
//   CZEL_String line;
//   while (f.ReadTextLine(line) == 0) use(line);   // "first"
//
// Results. Every failure is returned as a u32 code of ZEL_Errors.h, 0 being
// success; nothing here throws, except the byte vector inside `CopyFile`
// (ZEL_ERR_EMPTY_INPUT for a block size of 0).
//
// Transfers. `Read` and `Write` hand the low 32 bits of their 64-bit count to
// the stream and compare what moved with the whole count: a count of 2^32 or
// more always fails, and a short read at the end of the file returns
// ZEL_ERR_IO although the bytes that were there have been delivered.
//
// Copies are shallow. A copy takes over the stream pointer, the flags and the
// path as they stand and opens nothing; both objects then close the same
// stream. Copy only a closed file, or see to it that exactly one of the
// copies ever reaches `Close` or its destructor with the stream set.
//
// Paths are split on the platform's separator: '/' on POSIX, where the full
// path is made absolute against the current directory with "." and ".."
// folded as text; '\' on Windows, where the system's lookup makes it (it
// turns '/' into '\' and puts a drive in front). The path need not exist.

#ifndef LZEL_CORE_IO_CZEL_FILE_H_
#define LZEL_CORE_IO_CZEL_FILE_H_

#include <LZEL_Core/frame/CZEL_Object.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/text/CZEL_String.h>

#include <cstdio>

class ZEL_API CZEL_File : public CZEL_Object {
 public:
  // Open flags, the u32 argument of `Open`; other bits are ignored and kept.
  enum : ZEL::u32 {
    FILE_OPEN_WRITE = 1,     // The file will be written.
    FILE_OPEN_READ = 2,      // The file will be read.
    FILE_OPEN_TRUNCATE = 4,  // Start empty, creating the file; needs WRITE.
  };

  // Origins of `To`. The numbering is the library's own.
  enum : ZEL::u32 {
    FILE_FROM_CURRENT = 0,  // From the present position.
    FILE_FROM_START = 1,    // From the start of the file.
    FILE_FROM_END = 2,      // From the end of the file.
  };

  // Line-end bits of `WriteTextLine`. The bytes always follow the text in the
  // order NUL, CR, LF, whatever the order of the bits: 6 gives CR LF.
  enum : ZEL::u32 {
    LINE_END_NUL = 1,  // A byte 0.
    LINE_END_LF = 2,   // A byte 10.
    LINE_END_CR = 4,   // A byte 13.
  };

  // ---------------------------------------------------------------------------
  // Construction
  // ---------------------------------------------------------------------------

  // Closed, flags 0, empty path.
  CZEL_File();

  // Shallow: shares `src`'s stream (see the file comment).
  CZEL_File(CZEL_File const& src);

  // Shallow, and does not close the stream this object held.
  CZEL_File& operator=(CZEL_File const& src);

  // `Close`.
  ~CZEL_File() override;

  // ---------------------------------------------------------------------------
  // Opening and closing
  // ---------------------------------------------------------------------------

  // Opens `path` in the mode its flags select, tested in this order:
  // write+read+truncate "w+b" (created or emptied), write+read "r+b" (must
  // exist), write+truncate "wb", write alone "ab" (created if missing, every
  // write lands at the end), read "rb" (must exist). Goes to the start of the
  // file and stores `flags` and `path`. Returns ZEL_ERR_OPEN_FAILED if the
  // stream can't be opened or the flags have neither WRITE nor READ; the
  // object is then unchanged. A stream held already is not closed, and is
  // lost: close before opening again. A directory is no file: opening one
  // fails as a missing file does, on every platform.
  ZEL::u32 Open(CZEL_String const& path, ZEL::u32 flags);

  // Flushes and closes the stream, if open, without looking at the results.
  // The flags become 0 in any case; the path stays.
  void Close();

  // 1 when a stream is open, else 0.
  ZEL::u8 IsOpen() const;

  // The flags of the last successful `Open`, unknown bits included; 0 after
  // `Close`.
  ZEL::u32 GetOpenFlags() const;

  // ---------------------------------------------------------------------------
  // Transfers
  // ---------------------------------------------------------------------------

  // Reads `count` bytes into `data`. ZEL_ERR_FILE_NOT_OPEN on a closed file;
  // ZEL_ERR_IO when fewer than `count` came, the ones that came delivered.
  ZEL::u32 Read(void* data, ZEL::u64 count);

  // Writes `count` bytes from `data`, then flushes if `flush` is non-zero,
  // the flush's result dropped. ZEL_ERR_FILE_NOT_OPEN on a closed file;
  // ZEL_ERR_IO when not all were written, and then no flush is made.
  ZEL::u32 Write(void* data, ZEL::u64 count, ZEL::u8 flush);

  // Flushes the stream. ZEL_ERR_FILE_NOT_OPEN on a closed file, and also
  // when the flush fails (a full disk, say).
  ZEL::u32 Flush();

  // ---------------------------------------------------------------------------
  // Position
  // ---------------------------------------------------------------------------

  // Moves by `offset`, taken as a signed 64-bit number, from `origin`.
  // ZEL_ERR_FILE_NOT_OPEN on a closed file (tested first), and
  // ZEL_ERR_INVALID_ARGUMENT for an origin other than 0, 1, 2. A seek that
  // the stream refuses is not reported: the result is then 0 as well, so `To`
  // is no check of a position.
  ZEL::u32 To(ZEL::u64 offset, ZEL::u32 origin);

  // `To(0, FILE_FROM_START)`.
  ZEL::u32 ToStart();

  // `To(0, FILE_FROM_END)`.
  ZEL::u32 ToEnd();

  // The stream's position; 0 on a closed file.
  ZEL::u64 GetPos() const;

  // The file's length, found at the end of the stream (pending writes
  // included); the position stays. 0 on a closed file.
  ZEL::u64 GetLength() const;

  // 1 when `GetPos() >= GetLength()`, so also 1 on a closed file.
  ZEL::u8 IsEOF() const;

  // ---------------------------------------------------------------------------
  // Text lines
  // ---------------------------------------------------------------------------
  //
  // Both readers take the bytes up to the next line feed (10), which is
  // consumed and not stored, or up to the end of the file. Bytes 0 and 13
  // are dropped wherever they stand. Reading at the end of the file, or in
  // an empty or closed file, fails; an empty line before a line feed is a
  // success with an empty text.

  // Reads at most `maxChars` characters into `text`, which must hold
  // `maxChars` + 1 bytes, and terminates them. A longer line comes in
  // pieces; a line of exactly `maxChars` characters leaves its line feed,
  // so that the next call gives an empty text. Every failure, `maxChars` 0
  // included, is ZEL_ERR_IO.
  ZEL::u32 ReadTextLine(char* text, ZEL::u32 maxChars);

  // Reads the whole line into `text`. Every failure is ZEL_ERR_READ_DENIED.
  // A failure with nothing read leaves `text` as it was; a stream read that
  // fails within a line leaves the characters read so far, padded with
  // blanks up to a multiple of 100.
  ZEL::u32 ReadTextLine(CZEL_String& text);

  // Writes the NUL-terminated `text` with flush. An empty text returns 0 at
  // once, even on a closed file; otherwise the result of `Write`.
  ZEL::u32 WriteText(char const* text);

  // The string's text up to its first 0 byte, as above.
  ZEL::u32 WriteText(CZEL_String const& text);

  // `WriteText(text)`, then one flushed byte for each bit of `lineEnd` in
  // the order NUL, CR, LF. Returns the first non-zero result, the rest
  // unwritten; an empty text on a closed file with a line end gives
  // ZEL_ERR_FILE_NOT_OPEN from the first line-end byte.
  ZEL::u32 WriteTextLine(char const* text, ZEL::u32 lineEnd);

  // The same on the string's text up to its first 0 byte.
  ZEL::u32 WriteTextLine(CZEL_String const& text, ZEL::u32 lineEnd);

  // ---------------------------------------------------------------------------
  // Files by name
  // ---------------------------------------------------------------------------

  // Copies `source` to `destination` (destination first) in blocks of
  // `blockSize` bytes, each written with flush. A `source` that can't be
  // opened gives ZEL_ERR_OPEN_FAILED before the destination is touched; a
  // `destination` that can't be opened, ZEL_ERR_OPEN_FAILED. A failed read
  // or write gives ZEL_ERR_IO and leaves the partial destination. A
  // `blockSize` of 0 throws ZEL_ERR_EMPTY_INPUT from the block vector, after
  // the destination has been emptied.
  static ZEL::u32 CopyFile(CZEL_String const& destination, CZEL_String const& source,
                           ZEL::u32 blockSize);

  // Removes the file. ZEL_ERR_IO if it can't be removed; a directory is not
  // a file and is never removed.
  static ZEL::u32 DeleteFile(CZEL_String const& path);

  // 1 when the path exists (a directory counts), else 0.
  static ZEL::u8 IsPresent(CZEL_String const& path);

  // `path` made absolute against the current directory, "." and ".." folded
  // and repeated separators merged, a final separator kept. The path need
  // not exist. On POSIX an empty path, or a current directory that can't be
  // found, gives an empty text; on Windows the system's lookup decides.
  static CZEL_String GetFullPathFromPath(CZEL_String const& path);

  // The part of the full path behind its last separator; empty when the full
  // path ends in one.
  static CZEL_String GetNameFromPath(CZEL_String const& path);

  // The part of the full path up to and including its last separator. With
  // `GetNameFromPath` it gives the full path again.
  static CZEL_String GetPathFromPath(CZEL_String const& path);

  // The same three for the path of the last successful `Open`; they still
  // answer after `Close`.
  CZEL_String GetFullPath() const;
  CZEL_String GetName() const;
  CZEL_String GetPath() const;

 protected:
  // Takes over `src`'s stream, flags and path as they stand.
  void DataCopy(CZEL_File const& src);

  // The stream; null when closed. Owned: released by `Close`.
  std::FILE* m_Stream;
  // The flags of the last successful `Open`; 0 when closed.
  ZEL::u32 m_OpenFlags;
  // The path as given to the last successful `Open`.
  CZEL_String m_Path;

 private:
  // A read-only stream whose file's size the system can tell without moving
  // the stream.
  bool HasStableSize() const;
};

#endif  // LZEL_CORE_IO_CZEL_FILE_H_
