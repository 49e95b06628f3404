// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Dumper.h
// -----------------------------------------------------------------------------
//
// `CZEL_Dumper` writes values to the console: one object is one line of
// output. Values streamed into a dumper go to `std::cout` side by side, with
// no separator and with the stream's current formatting (its base, width and
// precision flags apply as set by the application); the line ends when the
// dumper is destroyed, if anything was written through it. It stands outside
// the class tree and has no base class.
//
//   CZEL_Dumper() << "count: " << 12;        // prints "count: 12" and a newline
//   CZEL_Dumper() << 1 << 2;                 // prints "12" and a newline
//   { CZEL_Dumper quiet; }                   // prints nothing at all
//
// A copy made after the first value carries the "written" mark along, so the
// copy and its source each end a line of their own. The level given to the
// constructor is kept and copied but read by nothing. A dumper takes no lock:
// output from several threads interleaves as the stream allows, and a failed
// stream goes unnoticed.

#ifndef LZEL_CORE_FRAME_CZEL_DUMPER_H_
#define LZEL_CORE_FRAME_CZEL_DUMPER_H_

#include <LZEL_Core/frame/ZEL_Types.h>

class CZEL_String;

class ZEL_API CZEL_Dumper {
 public:
  // Level 2, nothing written yet.
  CZEL_Dumper();

  // `level` if it is below 3, otherwise 2; nothing written yet.
  explicit CZEL_Dumper(ZEL::u32 level);

  // Copies the level and the "written" mark.
  CZEL_Dumper(CZEL_Dumper const& other);

  // Copies the level and the "written" mark; returns this object.
  CZEL_Dumper& operator=(CZEL_Dumper const& other);

  // Ends the line and flushes the stream if anything was written through
  // this object; otherwise writes nothing. Deliberately not virtual.
  ~CZEL_Dumper();

  // Each writes `value` to std::cout as the stream formats it, marks this
  // object as written and returns it. A string goes out as its text up to
  // the first NUL (`GetStringC`). `text` must not be null.
  virtual CZEL_Dumper& operator<<(double value);
  virtual CZEL_Dumper& operator<<(char const* text);
  virtual CZEL_Dumper& operator<<(ZEL::u64 value);
  virtual CZEL_Dumper& operator<<(ZEL::i64 value);
  virtual CZEL_Dumper& operator<<(ZEL::u32 value);
  virtual CZEL_Dumper& operator<<(int value);
  virtual CZEL_Dumper& operator<<(CZEL_String const& text);

 protected:
  // The level given to the constructor: 0, 1 or 2. Stored and copied only.
  ZEL::u32 m_Level;
  // 1 once any value has been written through this object.
  ZEL::u8 m_Written;

 private:
  // Writes one value to std::cout and marks this object as written.
  template <typename T>
  CZEL_Dumper& Write(T const& value);
};

#endif  // LZEL_CORE_FRAME_CZEL_DUMPER_H_
