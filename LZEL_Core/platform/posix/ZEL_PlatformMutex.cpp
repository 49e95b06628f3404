// SPDX-License-Identifier: Apache-2.0
// The mutex on POSIX: a pthread mutex that is recursive (the holder may lock
// again) and robust (an owner that ends while holding it is reported to the
// next locker, as an abandoned one).

#include <LZEL_Core/platform/ZEL_Platform.h>

#include <pthread.h>

#include <cerrno>

namespace ZEL {
namespace Platform {

struct SMutex {
  pthread_mutex_t m_Mutex;
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

SMutex* MakeMutex() {
  auto* mutex = new SMutex;
  if (InitRecursiveRobust(mutex->m_Mutex) == 0) return mutex;
  delete mutex;
  return nullptr;
}

t_LockResult LockMutex(SMutex* mutex) {
  int const result = pthread_mutex_lock(&mutex->m_Mutex);
  if (result == EOWNERDEAD) {
    pthread_mutex_consistent(&mutex->m_Mutex);
    return LOCK_ABANDONED;
  }
  return result == 0 ? LOCK_HELD : LOCK_FAILED;
}

bool UnlockMutex(SMutex* mutex) { return pthread_mutex_unlock(&mutex->m_Mutex) == 0; }

// A thread that is still running and holds the mutex keeps a record of its
// held robust mutexes that points here: then the storage is kept.
void DestroyMutex(SMutex* mutex) {
  int const result = pthread_mutex_trylock(&mutex->m_Mutex);
  if (result == EOWNERDEAD) pthread_mutex_consistent(&mutex->m_Mutex);
  if (result != 0 && result != EOWNERDEAD) return;
  while (pthread_mutex_unlock(&mutex->m_Mutex) == 0) {
  }
  pthread_mutex_destroy(&mutex->m_Mutex);
  delete mutex;
}

}  // namespace Platform
}  // namespace ZEL
