// Pairs of 16-bit elements in lanes of 32 bits, and the sums of their products.
#pragma once

#include "simd/halves.h"

namespace rnx::simd {
namespace {

// Sums of the products of neighbouring elements. Of words they wrap only where all four are -32768; of bytes they
// saturate.
RNX_INLINE Vec<s32> multiplyPairs(Vec<s16> a, Vec<s16> b) {
  return Vec<s32>::of(RNX_MM(madd_epi16)(a.bits(), b.bits()));
}
RNX_INLINE Vec<s16> multiplyPairs(Vec<u8> a, Vec<s8> b) {
  return Vec<s16>::of(RNX_MM(maddubs_epi16)(a.bits(), b.bits()));
}

// The same of pairs that a lane holds: words in lanes of 32 bits; bytes, unsigned times signed, in lanes of 16.
RNX_INLINE Vec<s32> multiplyLanes(Vec<s32> a, Vec<s32> b) { return multiplyPairs(a.as<s16>(), b.as<s16>()); }
RNX_INLINE Vec<s16> multiplyLanes(Vec<s16> a, Vec<s16> b) { return multiplyPairs(a.as<u8>(), b.as<s8>()); }

// Stores the pairs (a[i], b[i]) of as many elements as kPairsAtATime says, a pair in a Lane.
template <class Lane, class T>
inline constexpr int kPairsAtATime = kBytes / (sizeof(Lane) == 2 ? 1 : 2 * static_cast<int>(sizeof(T)));

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
RNX_INLINE void storePairs(s16* out, const u8* a, const u8* b) {
  const Int x = Vec<u8>::load(a).bits(), y = Vec<u8>::load(b).bits();
  const Int low = _mm256_unpacklo_epi8(x, y), high = _mm256_unpackhi_epi8(x, y);
  Vec<s16>::of(_mm256_permute2x128_si256(low, high, 0x20)).store(out);
  Vec<s16>::of(_mm256_permute2x128_si256(low, high, 0x31)).store(out + 16);
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
RNX_INLINE void storePairs(s16* out, const u8* a, const u8* b) {
  const Int x = Vec<u8>::load(a).bits(), y = Vec<u8>::load(b).bits();
  Vec<s16>::of(_mm_unpacklo_epi8(x, y)).store(out);
  Vec<s16>::of(_mm_unpackhi_epi8(x, y)).store(out + 8);
}
#endif

}  // namespace
}  // namespace rnx::simd
