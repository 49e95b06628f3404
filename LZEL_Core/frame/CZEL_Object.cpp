#include <LZEL_Core/frame/CZEL_Object.h>

CZEL_Object::CZEL_Object() = default;

CZEL_Object::CZEL_Object(CZEL_Object const&) {}

CZEL_Object& CZEL_Object::operator=(CZEL_Object const&) { return *this; }

CZEL_Object::~CZEL_Object() = default;
