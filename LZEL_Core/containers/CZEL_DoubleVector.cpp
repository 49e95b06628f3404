// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/containers/CZEL_DoubleVector.h>

#include <LZEL_Core/containers/CZEL_DoubleList.h>

#include <cmath>

ZEL_NAMED_VECTOR_DEFINITIONS(CZEL_DoubleVector, CZEL_DoubleList, double, CZEL_OrderedVector<double>)

double CZEL_DoubleVector::GetRMS() const {
  double sum = 0;
  for (ZEL::u32 i = 0; i < m_Length; ++i) sum += m_Buf[i] * m_Buf[i];
  return std::sqrt(sum / static_cast<double>(m_Length));
}
