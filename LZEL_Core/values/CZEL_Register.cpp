// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/values/CZEL_Register.h>

#include <utility>

using ZEL::u64;
using ZEL::u8;

CZEL_Register::CZEL_Register() : CZEL_BitSet(64, 0), m_Mark0(0), m_Mark1(0) { Reset(); }

CZEL_Register::CZEL_Register(CZEL_Register const& other)
    : CZEL_BitSet(other), m_Mutex(other.m_Mutex), m_Mark0(other.m_Mark0), m_Mark1(other.m_Mark1) {}

CZEL_Register& CZEL_Register::operator=(CZEL_Register const& other) {
  CZEL_BitSet::operator=(other);
  m_Mutex = other.m_Mutex;
  m_Mark0 = other.m_Mark0;
  m_Mark1 = other.m_Mark1;
  return *this;
}

// Sharing a lock only counts the share, so the moves cannot fail.
CZEL_Register::CZEL_Register(CZEL_Register&& other) noexcept
    : CZEL_BitSet(std::move(other)),
      m_Mutex(other.m_Mutex),
      m_Mark0(other.m_Mark0),
      m_Mark1(other.m_Mark1) {}

CZEL_Register& CZEL_Register::operator=(CZEL_Register&& other) noexcept {
  m_Mutex = other.m_Mutex;
  m_Mark0 = other.m_Mark0;
  m_Mark1 = other.m_Mark1;
  CZEL_BitSet::operator=(std::move(other));  // last: only the bits move
  return *this;
}

void CZEL_Register::Swap(CZEL_Register& other) noexcept {
  CZEL_BitSet::Swap(other);
  CZEL_Mutex const mine(m_Mutex);
  m_Mutex = other.m_Mutex;
  other.m_Mutex = mine;
  std::swap(m_Mark0, other.m_Mark0);
  std::swap(m_Mark1, other.m_Mark1);
}

CZEL_Register::~CZEL_Register() = default;

void CZEL_Register::Reset() {
  CZEL_BitSet::Reset();
  m_Mark0 = 0;
  m_Mark1 = 0;
}

void CZEL_Register::Lock() { m_Mutex.Lock(); }

void CZEL_Register::Unlock() { m_Mutex.Unlock(); }

u64 CZEL_Register::GetField(u8 start, u8 count) const { return GetFieldUnsigned(start, count); }

void CZEL_Register::SetField(u8 start, u8 count, u64 value) {
  SetFieldUnsigned(start, count, value);
}
