// Loads that widen and stores that narrow in memory order, and the sums of products of 16-bit pairs.
#pragma once

#include <cstring>

#include "simd/convert.h"

namespace rnx::simd {
namespace {

// ---- As many elements as a vector of W has lanes, converted to W. All of them are exact. ----

#if RNX_VECTOR_BYTES == 32
RNX_INLINE __m128i loadHalf(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
RNX_INLINE __m128i loadQuarter(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
RNX_INLINE Vec<f64> asDouble(__m128 v) { return {_mm256_cvtps_pd(v)}; }
RNX_INLINE __m128 halfOfFloats(const f32* p) { return _mm_loadu_ps(p); }
#else
RNX_INLINE __m128i loadHalf(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
RNX_INLINE __m128i loadQuarter(const void* p) { return _mm_loadu_si32(p); }
RNX_INLINE Vec<f64> asDouble(__m128 v) { return {_mm_cvtps_pd(v)}; }
RNX_INLINE __m128 halfOfFloats(const f32* p) {
  return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}
#endif

template <class W, class T>
struct WideningLoad;
template <class T>
struct WideningLoad<T, T> {
  static RNX_INLINE Vec<T> load(const T* p) { return Vec<T>::load(p); }
};
template <>
struct WideningLoad<s32, u8> {
  static RNX_INLINE Vec<s32> load(const u8* p) { return Vec<s32>::of(RNX_MM(cvtepu8_epi32)(loadQuarter(p))); }
};
template <>
struct WideningLoad<s32, u16> {
  static RNX_INLINE Vec<s32> load(const u16* p) { return Vec<s32>::of(RNX_MM(cvtepu16_epi32)(loadHalf(p))); }
};
template <>
struct WideningLoad<s32, s16> {
  static RNX_INLINE Vec<s32> load(const s16* p) { return Vec<s32>::of(RNX_MM(cvtepi16_epi32)(loadHalf(p))); }
};
template <class T>
requires std::is_integral_v<T>
struct WideningLoad<f32, T> {
  static RNX_INLINE Vec<f32> load(const T* p) { return toFloat(WideningLoad<s32, T>::load(p)); }
};
template <>
struct WideningLoad<f64, f32> {
  static RNX_INLINE Vec<f64> load(const f32* p) { return asDouble(halfOfFloats(p)); }
};

template <class W, class T>
RNX_INLINE Vec<W> loadAs(const T* p) {
  return WideningLoad<W, T>::load(p);
}

// To single precision and back.
#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<f64> roundToSingle(Vec<f64> v) { return asDouble(_mm256_cvtpd_ps(v.raw)); }
#else
RNX_INLINE Vec<f64> roundToSingle(Vec<f64> v) { return asDouble(_mm_cvtpd_ps(v.raw)); }
#endif

// ---- Narrowing with saturation: vectors of 32 bits to one vector of T, in order. ----

template <class T>
inline constexpr int kWideVectors = 4 / static_cast<int>(sizeof(T));  // how many

// Packs work within 128 bits: puts their quarters in order again.
#if RNX_VECTOR_BYTES == 32
RNX_INLINE Int orderHalves(Int v) { return _mm256_permute4x64_epi64(v, 0xd8); }
RNX_INLINE Int orderQuarters(Int v) {
  return _mm256_permutevar8x32_epi32(v, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
}
#else
RNX_INLINE Int orderHalves(Int v) { return v; }
RNX_INLINE Int orderQuarters(Int v) { return v; }
#endif

template <class T>
Vec<T> narrowInOrder(const Vec<s32> (&v)[kWideVectors<T>]) = delete;
template <>
RNX_INLINE Vec<s16> narrowInOrder(const Vec<s32> (&v)[2]) {
  return Vec<s16>::of(orderHalves(RNX_MM(packs_epi32)(v[0].bits(), v[1].bits())));
}
template <>
RNX_INLINE Vec<u16> narrowInOrder(const Vec<s32> (&v)[2]) {
  return Vec<u16>::of(orderHalves(RNX_MM(packus_epi32)(v[0].bits(), v[1].bits())));
}
template <>
RNX_INLINE Vec<u8> narrowInOrder(const Vec<s32> (&v)[4]) {
  const Int low = RNX_MM(packs_epi32)(v[0].bits(), v[1].bits()), high = RNX_MM(packs_epi32)(v[2].bits(), v[3].bits());
  return Vec<u8>::of(orderQuarters(RNX_MM(packus_epi16)(low, high)));
}

// The lower half of the vector.
template <class T>
RNX_INLINE void storeHalf(T* p, Vec<T> v) {
#if RNX_VECTOR_BYTES == 32
  _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(v.bits()));
#else
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v.bits());
#endif
}

// ---- Pairs of 16-bit elements in lanes of 32 bits ----

// a0*b0 + a1*b1 of each pair; wraps only where all four are -32768.
RNX_INLINE Vec<s32> multiplyPairs(Vec<s32> a, Vec<s32> b) {
  return Vec<s32>::of(RNX_MM(madd_epi16)(a.bits(), b.bits()));
}

// Stores the pairs (a[i], b[i]) of as many elements as kPairsAtATime says.
template <class T>
inline constexpr int kPairsAtATime = kBytes / 2 / static_cast<int>(sizeof(T));

#if RNX_VECTOR_BYTES == 32
RNX_INLINE void storePairs(s32* out, const u8* a, const u8* b) {
  const __m128i x = loadHalf(a), y = loadHalf(b);
  Vec<s32>::of(_mm256_cvtepu8_epi16(_mm_unpacklo_epi8(x, y))).store(out);
  Vec<s32>::of(_mm256_cvtepu8_epi16(_mm_unpackhi_epi8(x, y))).store(out + 8);
}
RNX_INLINE void storePairs(s32* out, const s16* a, const s16* b) {
  const __m128i x = loadHalf(a), y = loadHalf(b);
  Vec<s32>::of(_mm256_set_m128i(_mm_unpackhi_epi16(x, y), _mm_unpacklo_epi16(x, y))).store(out);
}
#else
RNX_INLINE void storePairs(s32* out, const u8* a, const u8* b) {
  const __m128i pairs = _mm_unpacklo_epi8(loadHalf(a), loadHalf(b)), zero = _mm_setzero_si128();
  Vec<s32>::of(_mm_unpacklo_epi8(pairs, zero)).store(out);
  Vec<s32>::of(_mm_unpackhi_epi8(pairs, zero)).store(out + 4);
}
RNX_INLINE void storePairs(s32* out, const s16* a, const s16* b) {
  Vec<s32>::of(_mm_unpacklo_epi16(loadHalf(a), loadHalf(b))).store(out);
}
#endif

}  // namespace
}  // namespace rnx::simd
