// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/CZEL_Mutex.h>
#include <LZEL_Core/frame/ZEL_Errors.h>
#include <LZEL_Core/platform/ZEL_Platform.h>

#include <atomic>

using ZEL::u32;
namespace Platform = ZEL::Platform;

// The platform's recursive mutex, shared by every copy. `m_Users` counts the
// objects that share the handle, so that the storage lives exactly as long as
// one of them can reach it; `m_Closed` records that the first of them has
// been destroyed, which is what the callers see.
struct CZEL_Mutex::SHandle {
  Platform::SMutex* m_Mutex = nullptr;
  std::atomic<u32> m_Users{1};
  std::atomic<bool> m_Closed{false};

  // Releases every level of the calling thread's hold, if it holds the lock.
  void ReleaseAllLevels() {
    while (Platform::UnlockMutex(m_Mutex)) {
    }
  }

  // Closes the lock for every sharer, once. The closing thread lets go of its
  // own hold, so that waiters wake, see the closing and return 1.
  void Close() {
    if (!m_Closed.exchange(true)) ReleaseAllLevels();
  }

  // Drops one object's share; the last share destroys the platform mutex.
  void DropShare() {
    if (m_Users.fetch_sub(1) != 1) return;
    Platform::DestroyMutex(m_Mutex);
    delete this;
  }
};

CZEL_Mutex::CZEL_Mutex() : m_Handle(new SHandle) {
  m_Handle->m_Mutex = Platform::MakeMutex();
  if (m_Handle->m_Mutex == nullptr) {
    delete m_Handle;
    throw CZEL_Exception(ZEL_ERR_FAILED, this, 0);
  }
}

CZEL_Mutex::CZEL_Mutex(CZEL_Mutex const& other) : m_Handle(other.m_Handle) {
  m_Handle->m_Users.fetch_add(1);
}

CZEL_Mutex& CZEL_Mutex::operator=(CZEL_Mutex const& other) {
  if (other.m_Handle != m_Handle) {
    other.m_Handle->m_Users.fetch_add(1);
    m_Handle->DropShare();
    m_Handle = other.m_Handle;
  }
  return *this;
}

CZEL_Mutex::~CZEL_Mutex() {
  m_Handle->Close();
  m_Handle->DropShare();
}

// A lock taken on a lock that was closed meanwhile is given back at once. An
// abandoned lock is held all the same, and reported with 1.
u32 CZEL_Mutex::Lock() {
  if (m_Handle->m_Closed) return 1;
  Platform::t_LockResult const result = Platform::LockMutex(m_Handle->m_Mutex);
  if (result == Platform::LOCK_FAILED) return 1;
  if (m_Handle->m_Closed) {
    Platform::UnlockMutex(m_Handle->m_Mutex);
    return 1;
  }
  return result == Platform::LOCK_HELD ? 0 : 1;
}

u32 CZEL_Mutex::Unlock() {
  bool const released = Platform::UnlockMutex(m_Handle->m_Mutex);
  return !released || m_Handle->m_Closed ? 1 : 0;
}
