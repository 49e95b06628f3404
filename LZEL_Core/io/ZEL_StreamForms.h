// -----------------------------------------------------------------------------
// File: ZEL_StreamForms.h
// -----------------------------------------------------------------------------
//
// The stream forms of the value classes: the free `operator<<` and
// `operator>>` that write a value to a `CZEL_Buffer` and read it back. Each
// returns the buffer, so they chain:
//
//   CZEL_MemoryBuffer buffer;
//   buffer << CZEL_String("AB") << CZEL_String("");   // 02 00 00 00 41 42 00 00 00 00
//   buffer.ToStart();
//   CZEL_String a, b;
//   buffer >> a >> b;
//
// The bytes of each form, numbers least significant byte first:
//
//   CZEL_String   4 + n   u32 n, then the n characters as raw bytes, no
//                         terminator. Embedded 0 bytes travel too.
//
// Only a reader that knows the sequence of values can read a stream: there
// are no tags. No other class has a stream form; a caller streams other
// values member by member.
//
// Failures come from the buffer: ZEL_ERR_WRITE_DENIED, ZEL_ERR_READ_DENIED and
// ZEL_ERR_OUT_OF_RANGE (see <LZEL_Core/io/CZEL_Buffer.h>). There is no
// rollback: the stream stays where the last step that worked left it. A
// string whose length could be read and whose characters could not has
// already taken that length, its old characters kept and blanks added.

#ifndef LZEL_CORE_IO_ZEL_STREAM_FORMS_H_
#define LZEL_CORE_IO_ZEL_STREAM_FORMS_H_

#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/text/CZEL_String.h>

// u32 length, then the characters through one `AppendData`.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_String const& text);

// u32 length n; `text` takes the length n at once (`SetLength` with blanks),
// then the n characters come through one `RetrieveData`.
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_String& text);

#endif  // LZEL_CORE_IO_ZEL_STREAM_FORMS_H_
