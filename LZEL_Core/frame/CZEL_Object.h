// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Object.h
// -----------------------------------------------------------------------------
//
// `CZEL_Object` is the root of LZEL_Core's class tree. It has no fields and no
// behaviour: it gives every class of the library a virtual destructor and a
// common type identity, and nothing else. Derived classes do not rely on its
// copy operations; each class with state copies itself through its own
// protected `DataCopy`.
//
// `CZEL_Exception`, `CZEL_Dumper` and `CZEL_Mutex` stand outside this tree.

#ifndef LZEL_CORE_FRAME_CZEL_OBJECT_H_
#define LZEL_CORE_FRAME_CZEL_OBJECT_H_

#include <LZEL_Core/frame/ZEL_Types.h>

class ZEL_API CZEL_Object {
 public:
  // Does nothing; defined here, so that building any object of the library
  // costs no call for its root.
  CZEL_Object() = default;

  // Does nothing with its argument.
  CZEL_Object(CZEL_Object const& src) = default;

  // Copies nothing and returns this object.
  CZEL_Object& operator=(CZEL_Object const& src) = default;

  // The root's only virtual operation. Does nothing.
  virtual ~CZEL_Object();
};

#endif  // LZEL_CORE_FRAME_CZEL_OBJECT_H_
