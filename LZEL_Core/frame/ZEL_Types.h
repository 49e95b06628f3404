// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: ZEL_Types.h
// -----------------------------------------------------------------------------
//
// The plain integer widths used throughout LZEL_Core, and the export macro
// that puts a class or function on the shared library's surface.
//
// The widths live in namespace `ZEL`, never at global scope, so that an
// application's own `u32` does not clash with the library's:
//
//   ZEL::u32 length = s.GetLength();
//
// Positions and counts in memory are `u32`; positions and sizes of files and
// buffers are `u64`; yes-or-no values are `u8` (1 or 0 going out, any
// non-zero value meaning yes coming in).

#ifndef LZEL_CORE_FRAME_ZEL_TYPES_H_
#define LZEL_CORE_FRAME_ZEL_TYPES_H_

#include <cstdint>

// ZEL_API
//
// Marks a class, a class template or a free function as part of the library's
// exported surface. Everything else in the shared library is hidden. On
// Windows the DLL exports the surface (LZEL_Core_EXPORTS is defined while it
// is built) and its users import it; with the static library (ZEL_STATIC,
// which the CMake target passes on to its users) nothing is marked.
#if defined(_WIN32) && defined(ZEL_STATIC)
#define ZEL_API
#elif defined(_WIN32) && defined(LZEL_Core_EXPORTS)
#define ZEL_API __declspec(dllexport)
#elif defined(_WIN32)
#define ZEL_API __declspec(dllimport)
#elif defined(__GNUC__) || defined(__clang__)
#define ZEL_API __attribute__((visibility("default")))
#else
#define ZEL_API
#endif

// ZEL_TEMPLATE_API
//
// Marks a class template. Elsewhere than Windows the template itself is
// exported, so that every instantiation, the library's and the application's,
// is visible. On Windows the template is not marked: a program compiles the
// instantiations it uses, for the library's element types and its own, from
// the headers into its own module, and links the DLL for everything else.
#if defined(_WIN32)
#define ZEL_TEMPLATE_API
#else
#define ZEL_TEMPLATE_API ZEL_API
#endif

// ZEL_EXTERN_TEMPLATE(class CZEL_Vector<int>)
//
// Declares that the library holds the explicit instantiation, so that a
// program links against it instead of compiling its own. A program that
// imports the Windows DLL instantiates the templates itself instead: the DLL
// doesn't export the templates' inline members, which the declaration would
// leave to it.
#if defined(_WIN32) && !defined(ZEL_STATIC) && !defined(LZEL_Core_EXPORTS)
#define ZEL_EXTERN_TEMPLATE(...)
#else
#define ZEL_EXTERN_TEMPLATE(...) extern template __VA_ARGS__;
#endif

namespace ZEL {

// The unsigned integers of 8, 16, 32 and 64 bits, and the signed one of 64.
using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;
using i64 = std::int64_t;

}  // namespace ZEL

#endif  // LZEL_CORE_FRAME_ZEL_TYPES_H_
