// Between integers and floating point, and rounding.
#pragma once

#include "simd/saturate.h"

namespace rnx::simd {
namespace {

// clang-format off
RNX_INLINE Vec<f32> toFloat(Vec<s32> v) { return {RNX_MM(cvtepi32_ps)(v.bits())}; }
// Truncates; a value outside the int range gives INT_MIN.
RNX_INLINE Vec<s32> truncateToInt(Vec<f32> v) { return Vec<s32>::of(RNX_MM(cvttps_epi32)(v.raw)); }
// The same by the rounding direction of the processor, which the call has set to nearest even.
RNX_INLINE Vec<s32> nearestInt(Vec<f32> v) { return Vec<s32>::of(RNX_MM(cvtps_epi32)(v.raw)); }

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Pair<f64> toDouble(Vec<s32> v) {
  return {{_mm256_cvtepi32_pd(_mm256_castsi256_si128(v.bits()))}, {_mm256_cvtepi32_pd(_mm256_extracti128_si256(v.bits(), 1))}};
}
RNX_INLINE Vec<s32> truncateToInt(Pair<f64> v) {
  return Vec<s32>::of(_mm256_set_m128i(_mm256_cvttpd_epi32(v.hi.raw), _mm256_cvttpd_epi32(v.lo.raw)));
}
RNX_INLINE Vec<s32> nearestInt(Pair<f64> v) {
  return Vec<s32>::of(_mm256_set_m128i(_mm256_cvtpd_epi32(v.hi.raw), _mm256_cvtpd_epi32(v.lo.raw)));
}
#else
RNX_INLINE Pair<f64> toDouble(Vec<s32> v) {
  return {{_mm_cvtepi32_pd(v.bits())}, {_mm_cvtepi32_pd(_mm_unpackhi_epi64(v.bits(), v.bits()))}};
}
RNX_INLINE Vec<s32> truncateToInt(Pair<f64> v) {
  return Vec<s32>::of(_mm_unpacklo_epi64(_mm_cvttpd_epi32(v.lo.raw), _mm_cvttpd_epi32(v.hi.raw)));
}
RNX_INLINE Vec<s32> nearestInt(Pair<f64> v) {
  return Vec<s32>::of(_mm_unpacklo_epi64(_mm_cvtpd_epi32(v.lo.raw), _mm_cvtpd_epi32(v.hi.raw)));
}
#endif

// _MM_FROUND_NO_EXC with a direction: the rounding mode of the processor plays no part.
template <int Direction> RNX_INLINE Vec<f32> roundTo(Vec<f32> v) { return {RNX_MM(round_ps)(v.raw, Direction | _MM_FROUND_NO_EXC)}; }
template <int Direction> RNX_INLINE Vec<f64> roundTo(Vec<f64> v) { return {RNX_MM(round_pd)(v.raw, Direction | _MM_FROUND_NO_EXC)}; }

// A value that is not a number gives the bound.
RNX_INLINE Vec<f32> min(Vec<f32> v, Vec<f32> bound) { return {RNX_MM(min_ps)(v.raw, bound.raw)}; }
RNX_INLINE Vec<f32> max(Vec<f32> v, Vec<f32> bound) { return {RNX_MM(max_ps)(v.raw, bound.raw)}; }
RNX_INLINE Vec<f64> min(Vec<f64> v, Vec<f64> bound) { return {RNX_MM(min_pd)(v.raw, bound.raw)}; }
RNX_INLINE Vec<f64> max(Vec<f64> v, Vec<f64> bound) { return {RNX_MM(max_pd)(v.raw, bound.raw)}; }
// clang-format on

// ---- The rounding modes. round() stays in floating point; toInt() is of values in the int range, where nearest even
// is the processor's own direction. ----

struct RoundZero {
  template <class V>
  static RNX_INLINE V round(V v) {
    return roundTo<_MM_FROUND_TO_ZERO>(v);
  }
  template <class V>
  static RNX_INLINE Vec<s32> toInt(V v) {
    return truncateToInt(v);
  }
};

struct RoundNearestEven {
  template <class V>
  static RNX_INLINE V round(V v) {
    return roundTo<_MM_FROUND_TO_NEAREST_INT>(v);
  }
  template <class V>
  static RNX_INLINE Vec<s32> toInt(V v) {
    return nearestInt(v);
  }
};

// The half is added to the magnitude. Right where v + 0.5 is exact near the ties, which the user must know.
struct RoundHalfAway {
  template <class T>
  static RNX_INLINE Vec<T> withHalf(Vec<T> v) {
    const Vec<T> signBit = Vec<T>::splat(T(-0.0));
    const auto sign = v.template as<u8>() & signBit.template as<u8>();
    return v + (Vec<T>::splat(T(0.5)).template as<u8>() | sign).template as<T>();
  }
  template <class T>
  static RNX_INLINE Vec<T> round(Vec<T> v) {
    return roundTo<_MM_FROUND_TO_ZERO>(withHalf(v));
  }
  static RNX_INLINE Vec<s32> toInt(Vec<f32> v) { return truncateToInt(withHalf(v)); }
  static RNX_INLINE Vec<s32> toInt(Pair<f64> v) { return truncateToInt(Pair<f64>{withHalf(v.lo), withHalf(v.hi)}); }
};

}  // namespace
}  // namespace rnx::simd
