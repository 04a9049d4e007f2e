// Floating point to integers in memory order: saturation and rounding together. The call has set the rounding
// direction: nearest for ToZero and ToNearestEven, toward zero for HalfAway.
#pragma once

#include "simd/cast.h"
#include "simd/convert.h"

namespace rnx::simd {
namespace {

// A value that is not a number passes the cap of the first two and converts to INT_MIN.
struct ToZero {
  template <class V>
  static RNX_INLINE V capped(V v, V high) {
    return min(high, v);
  }
  template <class V>
  static RNX_INLINE V rounded(V v) {
    return roundTo<_MM_FROUND_TO_ZERO>(v);
  }
  template <class D, class T, int N>
  static RNX_INLINE Block<s32, N> toInt(const Block<T, N>& block) {
    return truncated(block);
  }

  template <int N>
  static RNX_INLINE Block<s32, N> truncated(const Block<f32, N>& block) {
    return toInts(block, [](Vec<f32> v) RNX_INLINE_LAMBDA { return truncateToInt(v); });
  }
  template <int N>
  static RNX_INLINE Block<s32, N> truncated(const Block<f64, N>& block) {
    return toInts(block, [](Vec<f64> a, Vec<f64> b) RNX_INLINE_LAMBDA { return truncateToInt(Pair<f64>{a, b}); });
  }
};

struct ToNearestEven {
  template <class V>
  static RNX_INLINE V capped(V v, V high) {
    return min(high, v);
  }
  template <class V>
  static RNX_INLINE V rounded(V v) {
    return roundTo<_MM_FROUND_TO_NEAREST_INT>(v);
  }
  template <class D, int N>
  static RNX_INLINE Block<s32, N> toInt(const Block<f32, N>& block) {
    return toInts(block, [](Vec<f32> v) RNX_INLINE_LAMBDA { return nearestInt(v); });
  }
  template <class D, int N>
  static RNX_INLINE Block<s32, N> toInt(const Block<f64, N>& block) {
    return toInts(block, [](Vec<f64> a, Vec<f64> b) RNX_INLINE_LAMBDA { return nearestInt(Pair<f64>{a, b}); });
  }
};

// Half is added to the magnitude. The addition truncates, so the largest value below a half stays below 1. The cap
// comes first and turns what is not a number into the largest value.
struct HalfAway {
  template <class V>
  static RNX_INLINE V capped(V v, V high) {
    return min(v, high);
  }
  template <class T>
  static RNX_INLINE Vec<T> rounded(Vec<T> v) {
    return RoundHalfAway::round(v);
  }
  // Where D has no sign, negative values need not be told apart: with a half they are below 1 and become 0.
  template <class D, class T, int N>
  static RNX_INLINE Block<s32, N> toInt(const Block<T, N>& block) {
    return ToZero::truncated(map(block, [](Vec<T> v) RNX_INLINE_LAMBDA {
      return std::is_unsigned_v<D> ? v + Vec<T>::splat(T(0.5)) : RoundHalfAway::withHalf(v);
    }));
  }
};

template <class D>
constexpr D kSmallest = std::is_unsigned_v<D> ? D(0) : D(D(1) << (8 * sizeof(D) - 1));
template <class D>
constexpr D kLargest = static_cast<D>(~kSmallest<D>);

// Values in the int range to 8 or 16 bits; one that is too small for an int becomes INT_MIN, and narrowing saturates
// it.
template <class D, class Rounding, class T, int N>
RNX_INLINE Block<D, N> roundIntsTo(const Block<T, N>& block) {
  return narrowTo<D>(Rounding::template toInt<D>(block));
}

template <class D, class Rounding, class T, int N>
RNX_INLINE Block<D, N> roundTo(const Block<T, N>& block) {
  if constexpr (sizeof(D) < 4) {
    return roundIntsTo<D, Rounding>(
        map(block, [](Vec<T> v) RNX_INLINE_LAMBDA { return Rounding::capped(v, Vec<T>::splat(T(kLargest<D>))); }));
  } else if constexpr (std::is_same_v<T, f64>) {
    static_assert(std::is_same_v<D, s32>, "limits of 32 bits are exact in double precision");
    const auto capped =
        map(block, [](Vec<f64> v) RNX_INLINE_LAMBDA { return Rounding::capped(v, Vec<f64>::splat(2147483647.0)); });
    return Rounding::template toInt<D>(capped);  // what is too small becomes INT_MIN, which is right
  } else if constexpr (std::is_signed_v<D>) {
    return map(block, [](Vec<f32> v) RNX_INLINE_LAMBDA {
      constexpr f32 kBeyond = 2147483648.0f;  // the largest value is not a float: 2^31 converts to INT_MIN, inverted
      const Vec<f32> r = Rounding::rounded(Rounding::capped(v, Vec<f32>::splat(kBeyond)));
      return truncateToInt(r) ^ (~greater(Vec<f32>::splat(kBeyond), r) & equal(r, r));
    });
  } else {
    return map(block, [](Vec<f32> v) RNX_INLINE_LAMBDA {
      // The upper half of the range is converted 2^31 lower. 2^32 and above become all ones.
      const Vec<f32> half = Vec<f32>::splat(2147483648.0f), beyond = Vec<f32>::splat(4294967296.0f);
      const Vec<f32> r = Rounding::rounded(max(Rounding::capped(v, beyond), Vec<f32>::zero()));
      const Mask<f32> lower = greater(half, r), inRange = greater(beyond, r);
      const Vec<f32> shift = select(lower, Vec<f32>::zero(), half);
      const Vec<s32> top = ~lower & Vec<s32>::splat(INT32_MIN);
      return ((truncateToInt(r - shift) ^ top) | ~inRange).template as<u32>();
    });
  }
}

}  // namespace
}  // namespace rnx::simd
