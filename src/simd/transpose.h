// Moving floats between rows of memory and lanes: square transposes by fours, and re/im pairs apart and together.
#pragma once

#include "simd/vec.h"

namespace rnx::simd {
namespace {

// ---- Four columns of as many rows as a vector has lanes ----

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<f32> loadFours(const f32* row0, const f32* row4) {
  return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(row0)), _mm_loadu_ps(row4), 1)};
}
RNX_INLINE void storeFours(f32* row0, f32* row4, Vec<f32> v) {
  _mm_storeu_ps(row0, _mm256_castps256_ps128(v.raw));
  _mm_storeu_ps(row4, _mm256_extractf128_ps(v.raw, 1));
}
#else
RNX_INLINE Vec<f32> loadFours(const f32* row0, const f32*) { return Vec<f32>::load(row0); }
RNX_INLINE void storeFours(f32* row0, f32*, Vec<f32> v) { v.store(row0); }
#endif

RNX_INLINE void transposeFours(Vec<f32> (&v)[4]) {
  const auto lo01 = RNX_MM(unpacklo_ps)(v[0].raw, v[1].raw), hi01 = RNX_MM(unpackhi_ps)(v[0].raw, v[1].raw);
  const auto lo23 = RNX_MM(unpacklo_ps)(v[2].raw, v[3].raw), hi23 = RNX_MM(unpackhi_ps)(v[2].raw, v[3].raw);
  v[0].raw = RNX_MM(shuffle_ps)(lo01, lo23, 0x44);
  v[1].raw = RNX_MM(shuffle_ps)(lo01, lo23, 0xee);
  v[2].raw = RNX_MM(shuffle_ps)(hi01, hi23, 0x44);
  v[3].raw = RNX_MM(shuffle_ps)(hi01, hi23, 0xee);
}

// column[i] holds element i of every row: lane r that of row(r), a pointer.
template <class Row>
RNX_INLINE void loadColumns(const Row& row, Vec<f32> (&column)[4]) {
  column[0] = loadFours(row(0), row(4 % Vec<f32>::kLanes));
  column[1] = loadFours(row(1), row(5 % Vec<f32>::kLanes));
  column[2] = loadFours(row(2), row(6 % Vec<f32>::kLanes));
  column[3] = loadFours(row(3), row(7 % Vec<f32>::kLanes));
  transposeFours(column);
}

template <class Row>
RNX_INLINE void storeColumns(const Row& row, Vec<f32> (&column)[4]) {
  transposeFours(column);
  storeFours(row(0), row(4 % Vec<f32>::kLanes), column[0]);
  storeFours(row(1), row(5 % Vec<f32>::kLanes), column[1]);
  storeFours(row(2), row(6 % Vec<f32>::kLanes), column[2]);
  storeFours(row(3), row(7 % Vec<f32>::kLanes), column[3]);
}

// ---- Complex numbers: a vector of real and one of imaginary parts. Lane i belongs to element pairedElement(i) of the
// interleaved sequence in memory: the order that needs no shuffle across the register. ----

constexpr int pairedElement(int lane) {
  constexpr int kWide[8] = {0, 1, 4, 5, 2, 3, 6, 7};
  return Vec<f32>::kLanes == 8 ? kWide[lane] : lane;
}

RNX_INLINE void loadPairs(const f32* p, Vec<f32>& re, Vec<f32>& im) {
  const auto a = Vec<f32>::load(p).raw, b = Vec<f32>::load(p + Vec<f32>::kLanes).raw;
  re.raw = RNX_MM(shuffle_ps)(a, b, 0x88);
  im.raw = RNX_MM(shuffle_ps)(a, b, 0xdd);
}

RNX_INLINE void interleave(Vec<f32> re, Vec<f32> im, Vec<f32>& first, Vec<f32>& second) {
  first.raw = RNX_MM(unpacklo_ps)(re.raw, im.raw);
  second.raw = RNX_MM(unpackhi_ps)(re.raw, im.raw);
}

// The elements in opposite order.
RNX_INLINE Vec<f32> reversed(Vec<f32> v) {
#if RNX_VECTOR_BYTES == 32
  v.raw = _mm256_permute2f128_ps(v.raw, v.raw, 1);
#endif
  return {RNX_MM(shuffle_ps)(v.raw, v.raw, 0x1b)};
}

// All elements but the first two; those read as 0, and p points at the first of them all the same.
RNX_INLINE Vec<f32> loadBehindPair(const f32* p) {
  const __m128 low = _mm_loadh_pi(_mm_setzero_ps(), reinterpret_cast<const __m64*>(p + 2));
#if RNX_VECTOR_BYTES == 32
  return {_mm256_insertf128_ps(_mm256_castps128_ps256(low), _mm_loadu_ps(p + 4), 1)};
#else
  return {low};
#endif
}
RNX_INLINE void storeBehindPair(f32* p, Vec<f32> v) {
#if RNX_VECTOR_BYTES == 32
  _mm_storeh_pi(reinterpret_cast<__m64*>(p + 2), _mm256_castps256_ps128(v.raw));
  _mm_storeu_ps(p + 4, _mm256_extractf128_ps(v.raw, 1));
#else
  _mm_storeh_pi(reinterpret_cast<__m64*>(p + 2), v.raw);
#endif
}

}  // namespace
}  // namespace rnx::simd
