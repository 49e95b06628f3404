// SPDX-License-Identifier: Apache-2.0
// -----------------------------------------------------------------------------
// File: CZEL_Mutex.h
// -----------------------------------------------------------------------------
//
// `CZEL_Mutex` is a thin lock over the platform's mutex, offered to
// applications; the library itself never locks anything of its own accord.
// It stands outside the class tree and has no base class.
//
// The mutex is recursive: the thread that holds it may lock it again without
// blocking, and must unlock it as many times. It is robust: when a thread ends
// while holding it, the next `Lock` reports the abandonment with a result of 1
// and nevertheless holds the lock, which is consistent again from then on.
//
//   CZEL_Mutex lock;
//   if (lock.Lock() == 0) {
//     // ... work on the shared data ...
//     lock.Unlock();
//   }
//
// Copies share one lock
//
// Copying a mutex gives a second object on the same lock: a lock through one
// excludes a lock through the other. The lock is not reference-counted as far
// as the caller can see: the first of the sharing objects to be destroyed
// closes it for all of them, and from then on every `Lock` and `Unlock`
// through the others returns 1 without waiting. A thread that held the lock
// through the object being destroyed is released by the close, so no other
// thread stays blocked on a closed lock. Assignment drops the lock held before
// without closing it, so the other objects sharing that one keep working.
//
// Destroying the last object of a lock while another, still running thread
// holds that lock is the caller's fault: the lock's storage is then kept, not
// released, since that thread still refers to it.

#ifndef LZEL_CORE_FRAME_CZEL_MUTEX_H_
#define LZEL_CORE_FRAME_CZEL_MUTEX_H_

#include <LZEL_Core/frame/ZEL_Types.h>

class ZEL_API CZEL_Mutex {
 public:
  // An unnamed lock that no thread holds. Throws ZEL_ERR_FAILED if the
  // platform refuses to create it.
  CZEL_Mutex();

  // A second object on the lock of `other`; no new lock is made.
  CZEL_Mutex(CZEL_Mutex const& other);

  // Shares the lock of `other` and returns this object. The lock held before
  // is dropped without being closed.
  CZEL_Mutex& operator=(CZEL_Mutex const& other);

  // Closes the lock for every object that shares it, unless another one has
  // closed it already; then releases this object's share.
  virtual ~CZEL_Mutex();

  // Waits with no time limit until the calling thread holds the lock. 0 on
  // success; 1 for any other outcome: the lock is closed, or its last holder
  // ended without unlocking it (the lock is then held all the same).
  ZEL::u32 Lock();

  // Releases one level of the calling thread's hold. 0 on success; 1 if the
  // calling thread doesn't hold the lock or the lock is closed.
  ZEL::u32 Unlock();

 protected:
  // The platform's lock, shared by every copy, with the record of its
  // closing.
  struct SHandle;

  // The handle of the lock; never null.
  SHandle* m_Handle;
};

#endif  // LZEL_CORE_FRAME_CZEL_MUTEX_H_
