// Pairs of 16-bit elements in lanes of 32 bits, and the sums of their products.
#pragma once

#include "simd/halves.h"

namespace rnx::simd {
namespace {

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
