// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Errors.h
// -----------------------------------------------------------------------------
//
// The error codes of LZEL_Core. A failure is a number: thrown as the
// `m_Code` of a `CZEL_Exception`, or returned as a `ZEL::u32` status where 0
// means success. The same numbers serve both channels; each operation says in
// its header which channel it uses for which failure.
//
// The numbers between those listed here are not assigned: no operation
// produces them.
//
//   try {
//     ZEL::u32 v = vector[10];
//   } catch (CZEL_Exception const& e) {
//     if (e.m_Code == ZEL_ERR_BAD_POSITION) { ... }
//     std::fprintf(stderr, "%s\n", e.What());   // "ZEL_ERR_BAD_POSITION"
//   }

#ifndef LZEL_CORE_FRAME_ZEL_ERRORS_H_
#define LZEL_CORE_FRAME_ZEL_ERRORS_H_

#include <LZEL_Core/frame/ZEL_Types.h>

// Success. Never thrown; every u32 status result returns it on success.
constexpr ZEL::u32 ZEL_ERR_NONE = 0;
// A file could not be opened.
constexpr ZEL::u32 ZEL_ERR_OPEN_FAILED = 1;
// An argument outside what the operation accepts.
constexpr ZEL::u32 ZEL_ERR_INVALID_ARGUMENT = 2;
// A read past the data held.
constexpr ZEL::u32 ZEL_ERR_OUT_OF_RANGE = 3;
// A position or cursor that designates no item.
constexpr ZEL::u32 ZEL_ERR_BAD_POSITION = 5;
// The class doesn't provide the operation or the variant.
constexpr ZEL::u32 ZEL_ERR_NOT_SUPPORTED = 8;
// Something of zero size was requested where one item at least is required.
constexpr ZEL::u32 ZEL_ERR_EMPTY_INPUT = 9;
// The object isn't in the state that the operation needs.
constexpr ZEL::u32 ZEL_ERR_NOT_READY = 10;
// Malformed text or data.
constexpr ZEL::u32 ZEL_ERR_BAD_FORMAT = 11;
// The file is closed.
constexpr ZEL::u32 ZEL_ERR_FILE_NOT_OPEN = 19;
// The buffer's access forbids writing.
constexpr ZEL::u32 ZEL_ERR_WRITE_DENIED = 23;
// The buffer's access forbids reading, or nothing can be read.
constexpr ZEL::u32 ZEL_ERR_READ_DENIED = 24;
// A file operation failed.
constexpr ZEL::u32 ZEL_ERR_IO = 30;
// The operation can't work on this object as it stands.
constexpr ZEL::u32 ZEL_ERR_FAILED = 32;

namespace ZEL {

// The name of the error code `code` as it is spelled above, such as
// "ZEL_ERR_BAD_POSITION" for 5, or "unknown" for a number that names no code.
// The text is static: it is never released and never changes.
ZEL_API char const* ErrorName(u32 code);

}  // namespace ZEL

#endif  // LZEL_CORE_FRAME_ZEL_ERRORS_H_
