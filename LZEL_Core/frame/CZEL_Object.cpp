// SPDX-License-Identifier: Apache-2.0
#include <LZEL_Core/frame/CZEL_Object.h>

CZEL_Object::~CZEL_Object() = default;
