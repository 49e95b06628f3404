// SPDX-License-Identifier: Apache-2.0
// The mutex on Windows: an anonymous mutex object, which is recursive by
// nature and reports an owner that ended while holding it as abandoned.

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <windows.h>

namespace ZEL {
namespace Platform {

struct SMutex {
  HANDLE m_Handle;
};

SMutex* MakeMutex() {
  HANDLE const handle = CreateMutexA(nullptr, FALSE, nullptr);
  return handle != nullptr ? new SMutex{handle} : nullptr;
}

t_LockResult LockMutex(SMutex* mutex) {
  switch (WaitForSingleObject(mutex->m_Handle, INFINITE)) {
    case WAIT_OBJECT_0:
      return LOCK_HELD;
    case WAIT_ABANDONED:
      return LOCK_ABANDONED;
    default:
      return LOCK_FAILED;
  }
}

bool UnlockMutex(SMutex* mutex) { return ReleaseMutex(mutex->m_Handle) != 0; }

// The mutex object lives on in the system for as long as a thread holds it;
// the handle and its record go now.
void DestroyMutex(SMutex* mutex) {
  while (ReleaseMutex(mutex->m_Handle) != 0) {
  }
  CloseHandle(mutex->m_Handle);
  delete mutex;
}

}  // namespace Platform
}  // namespace ZEL
