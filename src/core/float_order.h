// Order of floating-point values without floating-point arithmetic: checks run before a call sets the control state
// that its arithmetic needs, and leave the caller's state alone.
#pragma once

#include <bit>

#include "core/types.h"

namespace rnx::core {

// a < b, false where one of them is not a number; zeros of either sign are equal.
inline bool below(f32 a, f32 b) {
  constexpr u32 kInfinity = 0x7f800000, kMagnitude = 0x7fffffff;
  const auto bits = [](f32 v) { return std::bit_cast<u32>(v); };
  const auto isNumber = [&](f32 v) { return (bits(v) & kMagnitude) <= kInfinity; };
  const auto rank = [&](f32 v) {
    const auto magnitude = static_cast<s32>(bits(v) & kMagnitude);
    return bits(v) > kMagnitude ? -magnitude : magnitude;
  };
  return isNumber(a) && isNumber(b) && rank(a) < rank(b);
}

template <class T>
bool below(T a, T b) {
  return a < b;
}

}  // namespace rnx::core
