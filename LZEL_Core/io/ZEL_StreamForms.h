// SPDX-License-Identifier: Apache-2.0
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
//   CZEL_String     4 + n    u32 n, then the n characters as raw bytes, no
//                            terminator. Embedded 0 bytes travel too.
//   CZEL_Color      4        u32 colour value: red, green, blue, top byte.
//   CZEL_Date       8        i64 Julian day; the null date is
//                            00 00 00 00 00 00 00 80. No calendar travels.
//   CZEL_Time       4        int milliseconds of the day; the null time is
//                            FF FF FF FF.
//   CZEL_IpAddress  6 + 4d   u16 kind (0 IPv4, 1 IPv6, 65535 invalid), u32 d
//                            the number of digits, then the d digits as u32
//                            in index order. 192.168.0.1 is 00 00,
//                            04 00 00 00, C0 00 00 00, A8 00 00 00,
//                            00 00 00 00, 01 00 00 00.
//
// What a writer wrote, its reader restores, with one exception that is part
// of the format: an invalid address is written as six bytes (kind FF FF and a
// digit count of 0) and read as two, the kind alone. The four bytes of the
// count stay in the stream, and a reader that goes on must take a u32 0 off
// by itself:
//
//   buffer >> address;             // invalid
//   ZEL::u32 zero;
//   buffer >> zero;                // the writer's digit count
//
// Values read are not validated: a time of 90,000,000 milliseconds or any
// Julian day comes in as it stands and shows up later through the class's
// own validity test. An address's digit count is not compared with its kind.
//
// Only a reader that knows the sequence of values can read a stream: there
// are no tags. No other class has a stream form; a caller streams other
// values member by member.
//
// Failures come from the buffer: ZEL_ERR_WRITE_DENIED, ZEL_ERR_READ_DENIED and
// ZEL_ERR_OUT_OF_RANGE (see <LZEL_Core/io/CZEL_Buffer.h>). There is no
// rollback: the stream stays where the last step that worked left it. A
// string whose length could be read and whose characters could not has
// already taken that length, its old characters kept and blanks added. An
// address is made invalid before anything is read; one whose kind could be
// read keeps it, with the digits read so far, the others 0. A colour,
// date or time whose one read fails is not touched. An address of an
// unknown kind throws ZEL_ERR_FAILED with the buffer as the object, and stays
// invalid.

#ifndef LZEL_CORE_IO_ZEL_STREAM_FORMS_H_
#define LZEL_CORE_IO_ZEL_STREAM_FORMS_H_

#include <LZEL_Core/calendar/CZEL_Date.h>
#include <LZEL_Core/calendar/CZEL_Time.h>
#include <LZEL_Core/frame/ZEL_Types.h>
#include <LZEL_Core/geometry/CZEL_Color.h>
#include <LZEL_Core/io/CZEL_Buffer.h>
#include <LZEL_Core/net/CZEL_IpAddress.h>
#include <LZEL_Core/text/CZEL_String.h>

// u32 length, then the characters through one `AppendData`.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_String const& text);

// u32 length n; `text` takes the length n at once (`SetLength` with blanks),
// then the n characters come through one `RetrieveData`.
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_String& text);

// The colour value as a u32, and back.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Color const& color);
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Color& color);

// The Julian day as an i64, and back.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Date const& date);
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Date& date);

// The milliseconds as an int, and back.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_Time const& time);
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_Time& time);

// The kind's low 16 bits, the digit count and the digits, whatever the kind:
// an invalid address writes a count of 0 too.
ZEL_API CZEL_Buffer& operator<<(CZEL_Buffer& buffer, CZEL_IpAddress const& address);

// Makes `address` invalid, then reads the kind. IPv4 or IPv6: the count d
// and d digits follow, d not compared with the kind. Invalid: nothing more
// is read, so the writer's count of 0 stays in the stream. Any other kind
// throws ZEL_ERR_FAILED.
ZEL_API CZEL_Buffer& operator>>(CZEL_Buffer& buffer, CZEL_IpAddress& address);

#endif  // LZEL_CORE_IO_ZEL_STREAM_FORMS_H_
