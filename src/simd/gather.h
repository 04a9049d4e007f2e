// Gathering bytes by table, and the element-wise pieces of interpolation.
//
// A block of 16 result bytes is picked from 16 source bytes, the window of the block, or from 2 to 4 windows that lie
// one behind the other. The table holds for each block the place of its first window (the base) and for each byte the
// offset behind it (the pick).
#pragma once

#include "simd/pairs.h"
#include "simd/rows.h"
#include "simd/saturate.h"

namespace rnx::simd {
namespace {

inline constexpr int kBlockBytes = 16;
inline constexpr int kBlocksPerVector = kBytes / kBlockBytes;
inline constexpr int kMostWindows = 4;

// Picks are stored so that the byte shuffle, which takes 0 for indices of 128 and more, needs as few corrections as
// possible: as they are for one window; for several so that those behind the first window are 128 or more.
inline constexpr int kPickBias = 0x70;
template <int Windows>
inline constexpr int kStoredBias = Windows == 1 ? 0 : kPickBias;

RNX_INLINE Vec<u8> shuffleInBlocks(Vec<u8> v, Vec<u8> indices) {
  return Vec<u8>::of(RNX_MM(shuffle_epi8)(v.bits(), indices.bits()));
}

RNX_INLINE Vec<u8> loadBlocks(const u8* row, const s64* bases) {
  const auto block = [&](int i) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(row + bases[i])); };
#if RNX_VECTOR_BYTES == 32
  return Vec<u8>::of(_mm256_inserti128_si256(_mm256_castsi128_si256(block(0)), block(1), 1));
#else
  return Vec<u8>::of(block(0));
#endif
}

// One vector of gathered bytes from the table entries of its blocks; with no windows the blocks as they are.
template <int Windows>
RNX_INLINE Vec<u8> gatherBytes(const u8* row, const s64* bases, [[maybe_unused]] const u8* picks) {
  if constexpr (Windows == 0) return loadBlocks(row, bases);
  const Vec<u8> stored = Vec<u8>::load(picks);
  Vec<u8> result = shuffleInBlocks(loadBlocks(row, bases), stored);
  for (int k = 1; k < Windows; ++k) {
    // Offsets before window k wrap to 128 and more by the subtraction, those behind it must be lifted there.
    Vec<u8> indices = stored - Vec<u8>::splat(static_cast<u8>(kPickBias + k * kBlockBytes));
    if (k + 1 < Windows) indices = addSaturated(indices, Vec<u8>::splat(kPickBias));
    result = result | shuffleInBlocks(loadBlocks(row + k * kBlockBytes, bases), indices);
  }
  return result;
}

// Where the table entry of block q stands when two gathered vectors are narrowed into one: the narrowing takes the
// blocks of 16 bytes in the order 0 2 1 3.
RNX_INLINE s64 slotForNarrowing(s64 q) {
#if RNX_VECTOR_BYTES == 32
  return (q & ~s64{3}) | ((q & 1) << 1) | ((q >> 1) & 1);
#else
  return q;
#endif
}

// The four-byte or eight-byte lanes of narrowed pairs in memory order.
RNX_INLINE Int inMemoryOrder(Int v) {
#if RNX_VECTOR_BYTES == 32
  return _mm256_permute4x64_epi64(v, 0xD8);
#else
  return v;
#endif
}

// Elements 0 2 4 ... of the row at p, one vector of them; the last one read is the last one wanted.
// clang-format off
RNX_INLINE Vec<u8> everySecond(const u8* p) {
  const Vec<u16> even = Vec<u8>::load(p).as<u16>() & Vec<u16>::splat(0xFF);
  const Vec<u8> odd = Vec<u8>::load(p + Vec<u8>::kLanes - 1);
  return Vec<u8>::of(inMemoryOrder(RNX_MM(packus_epi16)(even.bits(), RNX_MM(srli_epi16)(odd.bits(), 8))));
}
RNX_INLINE Vec<u16> everySecond(const u16* p) {
  const Vec<u32> even = Vec<u16>::load(p).as<u32>() & Vec<u32>::splat(0xFFFF);
  const Vec<u16> odd = Vec<u16>::load(p + Vec<u16>::kLanes - 1);
  return Vec<u16>::of(inMemoryOrder(RNX_MM(packus_epi32)(even.bits(), RNX_MM(srli_epi32)(odd.bits(), 16))));
}
RNX_INLINE Vec<u32> everySecond(const u32* p) {
  const auto even = Vec<f32>::load(reinterpret_cast<const f32*>(p));
  const auto odd = Vec<f32>::load(reinterpret_cast<const f32*>(p + Vec<u32>::kLanes - 1));
  return Vec<u32>::of(inMemoryOrder(reinterpret_cast<Int>(RNX_MM(shuffle_ps)(even.raw, odd.raw, 0xD8))));
}

// The same from two whole vectors, whose last element is not wanted.
RNX_INLINE Vec<u8> firstOfPairs(const u8* p) {
  const auto even = [&](int k) { return Vec<u8>::load(p + k * kBytes).as<u16>() & Vec<u16>::splat(0xFF); };
  return Vec<u8>::of(inMemoryOrder(RNX_MM(packus_epi16)(even(0).bits(), even(1).bits())));
}
RNX_INLINE Vec<u16> firstOfPairs(const u16* p) {
  const auto even = [&](int k) { return Vec<u16>::load(p + k * Vec<u16>::kLanes).as<u32>() & Vec<u32>::splat(0xFFFF); };
  return Vec<u16>::of(inMemoryOrder(RNX_MM(packus_epi32)(even(0).bits(), even(1).bits())));
}
RNX_INLINE Vec<u32> firstOfPairs(const u32* p) {
  const auto part = [&](int k) { return Vec<f32>::load(reinterpret_cast<const f32*>(p + k * Vec<u32>::kLanes)).raw; };
  return Vec<u32>::of(inMemoryOrder(reinterpret_cast<Int>(RNX_MM(shuffle_ps)(part(0), part(1), 0x88))));
}

// One vector of means of two by two pixels: (a + b + 1) >> 1 of the pairs (0, 1), (2, 3), ... of both rows, then the same
// of the two.
RNX_INLINE Vec<u8> squareMeans(const u8* above, const u8* below) {
  const auto pairs = [](const u8* p) {
    const Int sums = RNX_MM(maddubs_epi16)(Vec<u8>::load(p).bits(), Vec<u8>::splat(1).bits());
    return average(Vec<u16>::of(sums), Vec<u16>::zero());
  };
  const auto squares = [&](int i) { return average(pairs(above + i), pairs(below + i)).bits(); };
  return Vec<u8>::of(inMemoryOrder(RNX_MM(packus_epi16)(squares(0), squares(kBytes))));
}
RNX_INLINE Vec<u16> squareMeans(const u16* above, const u16* below) {
  const auto pairs = [](const u16* p) {  // in the even elements
    const Vec<u16> v = Vec<u16>::load(p);
    return average(v, Vec<u16>::of(RNX_MM(srli_epi32)(v.bits(), 16)));
  };
  const auto squares = [&](int i) {
    return (average(pairs(above + i), pairs(below + i)).as<u32>() & Vec<u32>::splat(0xFFFF)).bits();
  };
  return Vec<u16>::of(inMemoryOrder(RNX_MM(packus_epi32)(squares(0), squares(Vec<u16>::kLanes))));
}

// Elements 0 2 4 ... and 1 3 5 ... of two vectors of 32-bit elements, in the order that inMemoryOrder puts right.
RNX_INLINE Pair<f32> evenAndOdd(const f32* p) {
  const Vec<f32> a = Vec<f32>::load(p), b = Vec<f32>::load(p + Vec<f32>::kLanes);
  return {{RNX_MM(shuffle_ps)(a.raw, b.raw, 0x88)}, {RNX_MM(shuffle_ps)(a.raw, b.raw, 0xDD)}};
}
RNX_INLINE Vec<f32> inMemoryOrder(Vec<f32> v) { return Vec<f32>::of(inMemoryOrder(v.bits())); }
// Squares of pixels of four bytes.
RNX_INLINE Vec<u8> squareMeans4(const u8* above, const u8* below) {
  const auto pairs = [](const u8* p) {
    const Pair<f32> pixels = evenAndOdd(reinterpret_cast<const f32*>(p));
    return average(pixels.lo.as<u8>(), pixels.hi.as<u8>());
  };
  return Vec<u8>::of(inMemoryOrder(average(pairs(above), pairs(below)).bits()));
}

// (a * b + 2^14) >> 15 of signed factors whose product does not overflow it.
RNX_INLINE Vec<s16> multiplyRounded(Vec<s16> a, Vec<s16> b) { return Vec<s16>::of(RNX_MM(mulhrs_epi16)(a.bits(), b.bits())); }

template <int N> RNX_INLINE Vec<s32> shiftRightBy(Vec<s32> v) { return Vec<s32>::of(RNX_MM(srai_epi32)(v.bits(), N)); }

// Elements of a and b in turn: the lower and the upper half of each block.
RNX_INLINE Pair<u8> interleave(Vec<u8> a, Vec<u8> b) {
  return {Vec<u8>::of(RNX_MM(unpacklo_epi8)(a.bits(), b.bits())), Vec<u8>::of(RNX_MM(unpackhi_epi8)(a.bits(), b.bits()))};
}
RNX_INLINE Pair<s16> interleave(Vec<s16> a, Vec<s16> b) {
  return {Vec<s16>::of(RNX_MM(unpacklo_epi16)(a.bits(), b.bits())), Vec<s16>::of(RNX_MM(unpackhi_epi16)(a.bits(), b.bits()))};
}
// clang-format on

// Neighbouring elements (row[x], row[x + 1]) for each x of the index: all first ones, all second ones.
RNX_INLINE Pair<f32> gatherNeighbours(const f32* row, const s32* x) {
  const auto two = [&](int i, int j) {
    const __m128 low = _mm_loadl_pi(_mm_setzero_ps(), reinterpret_cast<const __m64*>(row + x[i]));
    return _mm_loadh_pi(low, reinterpret_cast<const __m64*>(row + x[j]));
  };
#if RNX_VECTOR_BYTES == 32
  const __m256 a = _mm256_set_m128(two(4, 5), two(0, 1)), b = _mm256_set_m128(two(6, 7), two(2, 3));
#else
  const __m128 a = two(0, 1), b = two(2, 3);
#endif
  return {{RNX_MM(shuffle_ps)(a, b, 0x88)}, {RNX_MM(shuffle_ps)(a, b, 0xDD)}};
}

// v0 v0 v1 v1 ...
RNX_INLINE void storeTwice(Vec<u32> v, u32* to) {
  const Int low = RNX_MM(unpacklo_epi32)(v.bits(), v.bits()), high = RNX_MM(unpackhi_epi32)(v.bits(), v.bits());
#if RNX_VECTOR_BYTES == 32
  Vec<u32>::of(_mm256_permute2x128_si256(low, high, 0x20)).store(to);
  Vec<u32>::of(_mm256_permute2x128_si256(low, high, 0x31)).store(to + Vec<u32>::kLanes);
#else
  Vec<u32>::of(low).store(to);
  Vec<u32>::of(high).store(to + Vec<u32>::kLanes);
#endif
}

// (p1 - p0) * fraction + p0 of four elements.
RNX_INLINE void mixFour(const f32* p0, const f32* p1, f32 fraction, f32* to) {
  const __m128 a = _mm_loadu_ps(p0), b = _mm_loadu_ps(p1);
  _mm_storeu_ps(to, _mm_add_ps(_mm_mul_ps(_mm_sub_ps(b, a), _mm_set1_ps(fraction)), a));
}

// n bytes to a place that does not overlap theirs.
RNX_INLINE void copyBytes(u8* to, const u8* from, s64 n) {
  if (n < kBytes) {
    if (n > 0) storePart(to, static_cast<int>(n), loadPart(from, static_cast<int>(n)));
    return;
  }
  for (s64 i = 0; i + kBytes <= n; i += kBytes) Vec<u8>::load(from + i).store(to + i);
  Vec<u8>::load(from + n - kBytes).store(to + n - kBytes);
}

}  // namespace
}  // namespace rnx::simd
