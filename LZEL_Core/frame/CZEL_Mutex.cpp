#include <LZEL_Core/frame/CZEL_Exception.h>
#include <LZEL_Core/frame/CZEL_Mutex.h>
#include <LZEL_Core/frame/ZEL_Errors.h>

#include <pthread.h>

#include <atomic>
#include <cerrno>

using ZEL::u32;

// The platform layer: a POSIX mutex that is recursive (the holder may lock
// again) and robust (an owner that ends while holding it is reported to the
// next locker). `m_Users` counts the objects that share the handle, so that
// the storage lives exactly as long as one of them can reach it; `m_Closed`
// records that the first of them has been destroyed, which is what the
// callers see.
struct CZEL_Mutex::SHandle {
  pthread_mutex_t m_Mutex;
  std::atomic<u32> m_Users{1};
  std::atomic<bool> m_Closed{false};

  // Releases every level of the calling thread's hold, if it holds the lock.
  void ReleaseAllLevels() {
    while (pthread_mutex_unlock(&m_Mutex) == 0) {
    }
  }

  // Closes the lock for every sharer, once. The closing thread lets go of its
  // own hold, so that waiters wake, see the closing and return 1.
  void Close() {
    if (!m_Closed.exchange(true)) ReleaseAllLevels();
  }

  // Drops one object's share. The last share destroys the platform mutex,
  // unless a thread that is still running holds it: that thread's record of
  // its held robust locks still points here, so the storage is kept.
  void DropShare() {
    if (m_Users.fetch_sub(1) != 1) return;
    int const result = pthread_mutex_trylock(&m_Mutex);
    if (result == EOWNERDEAD) pthread_mutex_consistent(&m_Mutex);
    if (result != 0 && result != EOWNERDEAD) return;
    ReleaseAllLevels();
    pthread_mutex_destroy(&m_Mutex);
    delete this;
  }
};

namespace {

// Sets up a recursive, robust mutex; 0 on success, else the platform's error.
int InitRecursiveRobust(pthread_mutex_t& mutex) {
  pthread_mutexattr_t attributes;
  int result = pthread_mutexattr_init(&attributes);
  if (result != 0) return result;
  result = pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_RECURSIVE);
  if (result == 0) result = pthread_mutexattr_setrobust(&attributes, PTHREAD_MUTEX_ROBUST);
  if (result == 0) result = pthread_mutex_init(&mutex, &attributes);
  pthread_mutexattr_destroy(&attributes);
  return result;
}

}  // namespace

CZEL_Mutex::CZEL_Mutex() : m_Handle(new SHandle) {
  if (InitRecursiveRobust(m_Handle->m_Mutex) != 0) {
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

// A lock taken on a lock that was closed meanwhile is given back at once.
u32 CZEL_Mutex::Lock() {
  if (m_Handle->m_Closed) return 1;
  int const result = pthread_mutex_lock(&m_Handle->m_Mutex);
  if (result == EOWNERDEAD) {
    pthread_mutex_consistent(&m_Handle->m_Mutex);
  } else if (result != 0) {
    return 1;
  }
  if (m_Handle->m_Closed) {
    pthread_mutex_unlock(&m_Handle->m_Mutex);
    return 1;
  }
  return result == 0 ? 0 : 1;
}

u32 CZEL_Mutex::Unlock() {
  int const result = pthread_mutex_unlock(&m_Handle->m_Mutex);
  return result != 0 || m_Handle->m_Closed ? 1 : 0;
}
