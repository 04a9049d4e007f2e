// Byte shuffles over groups of pixels.
//
// A chunk is 16 bytes; a group is one, three or four chunks that hold whole pixels. A shuffle moves bytes inside a
// chunk. The 32-byte build works on two groups at once: a register holds the same chunk of both, wherever they lie, and
// both are shuffled by the same table. So no kernel has to know how the register is divided.
#pragma once

#include <algorithm>

#include "simd/vec.h"

namespace rnx::simd {
namespace {

inline constexpr int kChunk = 16;
inline constexpr int kGroups = kBytes / kChunk;  // groups in flight

RNX_INLINE __m128i loadChunk(const u8* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
RNX_INLINE void storeChunk(u8* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<u8> bothGroups(__m128i first, __m128i second) { return Vec<u8>::of(_mm256_set_m128i(second, first)); }
RNX_INLINE Vec<u8> everyGroup(__m128i chunk) { return Vec<u8>::of(_mm256_broadcastsi128_si256(chunk)); }
RNX_INLINE __m128i firstGroup(Vec<u8> v) { return _mm256_castsi256_si128(v.bits()); }
#else
RNX_INLINE Vec<u8> everyGroup(__m128i chunk) { return Vec<u8>::of(chunk); }
RNX_INLINE __m128i firstGroup(Vec<u8> v) { return v.bits(); }
#endif

// A chunk of the first group at p, that of the second one `apart` bytes from it.
RNX_INLINE Vec<u8> loadChunks(const u8* p, [[maybe_unused]] s64 apart) {
#if RNX_VECTOR_BYTES == 32
  return bothGroups(loadChunk(p), loadChunk(p + apart));
#else
  return everyGroup(loadChunk(p));
#endif
}
RNX_INLINE void storeChunks(u8* p, [[maybe_unused]] s64 apart, Vec<u8> v) {
  storeChunk(p, firstGroup(v));
#if RNX_VECTOR_BYTES == 32
  storeChunk(p + apart, _mm256_extracti128_si256(v.bits(), 1));
#endif
}

// The same with Adjacent: the second chunk follows the first.
template <bool Adjacent>
RNX_INLINE Vec<u8> loadChunks(const u8* p, s64 apart) {
  return Adjacent ? Vec<u8>::load(p) : loadChunks(p, apart);
}
template <bool Adjacent>
RNX_INLINE void storeChunks(u8* p, s64 apart, Vec<u8> v) {
  if constexpr (Adjacent) {
    v.store(p);
  } else {
    storeChunks(p, apart, v);
  }
}

// 4, 8 or 16 bytes at the start of the chunks.
template <int Bytes>
RNX_INLINE __m128i loadStart(const u8* p) {
  if constexpr (Bytes == 4) return _mm_loadu_si32(p);
  if constexpr (Bytes == 8) return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
  return loadChunk(p);
}
template <int Bytes>
RNX_INLINE Vec<u8> loadStarts(const u8* p, [[maybe_unused]] s64 apart) {
#if RNX_VECTOR_BYTES == 32
  return bothGroups(loadStart<Bytes>(p), loadStart<Bytes>(p + apart));
#else
  return everyGroup(loadStart<Bytes>(p));
#endif
}

// Byte b of a chunk becomes byte index[b] of it, or 0 where the index has its top bit set.
RNX_INLINE Vec<u8> shuffle(Vec<u8> v, Vec<u8> index) {
  return Vec<u8>::of(RNX_MM(shuffle_epi8)(v.bits(), index.bits()));
}

// The fourth element of each pixel, of bytes or words, in all words of the pixel.
RNX_INLINE Vec<u16> fourthAsWords(Vec<u32> pixels) {
  const auto index = everyGroup(_mm_setr_epi8(3, -1, 3, -1, 7, -1, 7, -1, 11, -1, 11, -1, 15, -1, 15, -1));
  return shuffle(pixels.as<u8>(), index).as<u16>();
}
RNX_INLINE Vec<u16> fourthAsWords(Vec<u64> pixels) {
  const auto index = everyGroup(_mm_setr_epi8(6, 7, 6, 7, 6, 7, 6, 7, 14, 15, 14, 15, 14, 15, 14, 15));
  return shuffle(pixels.as<u8>(), index).as<u16>();
}

// Positions in a group, counted from its first chunk, as a shuffle index into chunk number `chunk`: those that lie
// elsewhere, negative ones included, give 0. Positions are at most 63.
RNX_INLINE Vec<u8> indexInto(int chunk, Vec<u8> positions) {
  const auto start = RNX_MM(set1_epi8)(static_cast<char>(chunk * kChunk));
  const auto inside = RNX_MM(subs_epi8)(positions.bits(), start);          // 0 to 15 where it lies in the chunk
  return Vec<u8>::of(RNX_MM(adds_epu8)(inside, RNX_MM(set1_epi8)(0x70)));  // above 15, or negative: top bit set
}

// Elements of Bytes bytes from the lower, or the upper, halves of the chunks, in turns.
template <int Bytes>
RNX_INLINE Vec<u8> interleaveLow(Vec<u8> a, Vec<u8> b) {
  if constexpr (Bytes == 1) return Vec<u8>::of(RNX_MM(unpacklo_epi8)(a.bits(), b.bits()));
  if constexpr (Bytes == 2) return Vec<u8>::of(RNX_MM(unpacklo_epi16)(a.bits(), b.bits()));
  if constexpr (Bytes == 4) return Vec<u8>::of(RNX_MM(unpacklo_epi32)(a.bits(), b.bits()));
  return Vec<u8>::of(RNX_MM(unpacklo_epi64)(a.bits(), b.bits()));
}
template <int Bytes>
RNX_INLINE Vec<u8> interleaveHigh(Vec<u8> a, Vec<u8> b) {
  if constexpr (Bytes == 1) return Vec<u8>::of(RNX_MM(unpackhi_epi8)(a.bits(), b.bits()));
  if constexpr (Bytes == 2) return Vec<u8>::of(RNX_MM(unpackhi_epi16)(a.bits(), b.bits()));
  if constexpr (Bytes == 4) return Vec<u8>::of(RNX_MM(unpackhi_epi32)(a.bits(), b.bits()));
  return Vec<u8>::of(RNX_MM(unpackhi_epi64)(a.bits(), b.bits()));
}

// Transposes the square of 16 / Bytes elements in as many chunks: every round doubles the runs of neighbours.
template <int Bytes>
RNX_INLINE void transposeChunks(Vec<u8>* rows) {
  constexpr int kRows = kChunk / Bytes;
  RNX_UNROLL
  for (int run = 1; run < kRows; run *= 2) {
    Vec<u8> next[kRows];
    RNX_UNROLL
    for (int i = 0; i < kRows / 2; ++i) {
      next[2 * i] = interleaveLow<Bytes>(rows[i], rows[i + kRows / 2]);
      next[2 * i + 1] = interleaveHigh<Bytes>(rows[i], rows[i + kRows / 2]);
    }
    RNX_UNROLL
    for (int i = 0; i < kRows; ++i) rows[i] = next[i];
  }
}

// The first Count bytes of the chunks of a, the rest of b. Count is even.
template <int Count>
RNX_INLINE Vec<u8> firstBytes(Vec<u8> a, Vec<u8> b) {
  return Vec<u8>::of(RNX_MM(blend_epi16)(a.bits(), b.bits(), 0xff & (0xff << (Count / 2))));
}

// Walks the groups of a row of n >= group pixels. `f.compute<adjacent>(x, apart)` reads and computes the group at pixel
// x and the one `apart` pixels further, `f.store<adjacent>(x, apart, result)` writes them; adjacent: the second group
// follows the first. The groups at the end overlap ones that are written anyway; they are computed before anything is
// written, which makes that right in place too.
template <class F>
RNX_INLINE void forEachGroup(s64 n, int group, const F& f) {
  const s64 span = s64{group} * kGroups;
  const auto body = [&]() __attribute__((always_inline)) {
    for (s64 x = 0; x + span <= n; x += span) f.template store<true>(x, group, f.template compute<true>(x, group));
  };
  if (n % span == 0) return body();
  const s64 last = std::max<s64>(n - span, 0), apart = n - group - last;
  const auto tail = f.template compute<false>(last, apart);
  body();
  f.template store<false>(last, apart, tail);
}

}  // namespace
}  // namespace rnx::simd
