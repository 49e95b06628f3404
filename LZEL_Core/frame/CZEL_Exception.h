// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Exception.h
// -----------------------------------------------------------------------------
//
// `CZEL_Exception` is the only type that LZEL_Core throws. It is a plain
// record with public fields and no accessors, unrelated to `std::exception`.
// The library throws it by value, built from an error code of ZEL_Errors.h,
// the object whose operation failed, and 0:
//
//   try {
//     vector[vector.GetLength()];
//   } catch (CZEL_Exception const& e) {
//     // e.m_Code == ZEL_ERR_BAD_POSITION, e.m_Object == &vector, e.m_Extra == 0
//   }
//
// `m_Object` is only a record of which object failed; it stays valid only as
// long as that object lives, and the library never looks at it. `m_Extra` is
// 0 at every throw of the library and is kept for the application's own use.
// `What()` names the code for a log line. The class stays outside the
// `std::exception` tree, so an existing `catch (std::exception const&)` never
// takes it.

#ifndef LZEL_CORE_FRAME_CZEL_EXCEPTION_H_
#define LZEL_CORE_FRAME_CZEL_EXCEPTION_H_

#include <LZEL_Core/frame/ZEL_Types.h>

class ZEL_API CZEL_Exception {
 public:
  // All three fields 0.
  CZEL_Exception();

  // Stores the code, the failing object and the detail value as given.
  CZEL_Exception(ZEL::u32 code, void const* object, ZEL::u64 extra);

  // Copies all three fields.
  CZEL_Exception(CZEL_Exception const& src);

  // Copies all three fields.
  CZEL_Exception& operator=(CZEL_Exception const& src) = default;

  // Does nothing; the class's only virtual operation.
  virtual ~CZEL_Exception();

  // The name of `m_Code`, as `ZEL::ErrorName` gives it: "ZEL_ERR_BAD_POSITION",
  // or "unknown" for a number that names no code. A static text, never null.
  char const* What() const;

  // One of the error codes of ZEL_Errors.h.
  ZEL::u32 m_Code;
  // The object on which the failing operation ran, or null where there is none.
  void const* m_Object;
  // A detail value, carried and never interpreted by the library.
  ZEL::u64 m_Extra;
};

#endif  // LZEL_CORE_FRAME_CZEL_EXCEPTION_H_
