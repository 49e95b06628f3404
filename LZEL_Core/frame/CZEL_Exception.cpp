// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Exception.h>

#include <LZEL_Core/frame/ZEL_Errors.h>

CZEL_Exception::CZEL_Exception() : m_Code(0), m_Object(nullptr), m_Extra(0) {}

CZEL_Exception::CZEL_Exception(ZEL::u32 code, void const* object, ZEL::u64 extra)
    : m_Code(code), m_Object(object), m_Extra(extra) {}

CZEL_Exception::CZEL_Exception(CZEL_Exception const& src)
    : m_Code(src.m_Code), m_Object(src.m_Object), m_Extra(src.m_Extra) {}

CZEL_Exception::~CZEL_Exception() = default;

char const* CZEL_Exception::What() const { return ZEL::ErrorName(m_Code); }
