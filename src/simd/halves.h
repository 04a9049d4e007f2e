// Halves and quarters of vectors in memory.
#pragma once

#include "simd/convert.h"

namespace rnx::simd {
namespace {

#if RNX_VECTOR_BYTES == 32
RNX_INLINE __m128i loadHalf(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
RNX_INLINE __m128i loadQuarter(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
RNX_INLINE Vec<f64> loadHalfAsDouble(const f32* p) { return {_mm256_cvtps_pd(_mm_loadu_ps(p))}; }
#else
RNX_INLINE __m128i loadHalf(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
RNX_INLINE __m128i loadQuarter(const void* p) { return _mm_loadu_si32(p); }
RNX_INLINE Vec<f64> loadHalfAsDouble(const f32* p) { return {_mm_cvtps_pd(_mm_castsi128_ps(loadHalf(p)))}; }
#endif

// As many elements as a vector of W has lanes, widened while they are loaded.
// clang-format off
template <class W, class T> Vec<W> loadWide(const T* p) = delete;
template <> RNX_INLINE Vec<s16> loadWide(const u8* p) { return Vec<s16>::of(RNX_MM(cvtepu8_epi16)(loadHalf(p))); }
template <> RNX_INLINE Vec<s16> loadWide(const s8* p) { return Vec<s16>::of(RNX_MM(cvtepi8_epi16)(loadHalf(p))); }
template <> RNX_INLINE Vec<s32> loadWide(const u8* p) { return Vec<s32>::of(RNX_MM(cvtepu8_epi32)(loadQuarter(p))); }
template <> RNX_INLINE Vec<s32> loadWide(const s8* p) { return Vec<s32>::of(RNX_MM(cvtepi8_epi32)(loadQuarter(p))); }
template <> RNX_INLINE Vec<s32> loadWide(const u16* p) { return Vec<s32>::of(RNX_MM(cvtepu16_epi32)(loadHalf(p))); }
template <> RNX_INLINE Vec<s32> loadWide(const s16* p) { return Vec<s32>::of(RNX_MM(cvtepi16_epi32)(loadHalf(p))); }
// clang-format on

// As many elements as a vector of floats has lanes. All of them are exact.
RNX_INLINE Vec<f32> loadAsFloat(const f32* p) { return Vec<f32>::load(p); }
RNX_INLINE Vec<f32> loadAsFloat(const u8* p) { return toFloat(loadWide<s32>(p)); }
RNX_INLINE Vec<f32> loadAsFloat(const u16* p) { return toFloat(loadWide<s32>(p)); }
RNX_INLINE Vec<f32> loadAsFloat(const s16* p) { return toFloat(loadWide<s32>(p)); }

// The lower half of the vector.
template <class T>
RNX_INLINE void storeHalf(T* p, Vec<T> v) {
#if RNX_VECTOR_BYTES == 32
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(v.bits()));
#else
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v.bits());
#endif
}

RNX_INLINE void storeAsSingle(f32* p, Vec<f64> v) {
#if RNX_VECTOR_BYTES == 32
  _mm_storeu_ps(p, _mm256_cvtpd_ps(v.raw));
#else
  _mm_storel_pi(reinterpret_cast<__m64*>(p), _mm_cvtpd_ps(v.raw));
#endif
}

// To single precision and back.
RNX_INLINE Vec<f64> roundToSingle(Vec<f64> v) { return {RNX_MM(cvtps_pd)(RNX_MM(cvtpd_ps)(v.raw))}; }

}  // namespace
}  // namespace rnx::simd
