// Whole pixels of several channels, and folding a comparison of their channels to one byte per pixel.
#pragma once

#include "simd/cast.h"
#include "simd/rows.h"
#include "simd/shuffle.h"

namespace rnx::simd {
namespace {

// As many pixels of C channels as a vector has bytes.
template <class T, int C>
using PixelBlock = Block<T, C * kBytes>;

// The rows of an image, read by whole pixels: indices count pixels.
template <class T, int C>
struct PixelSource {
  const T* row;
  s64 step;

  template <int K>
  RNX_INLINE PixelBlock<T, C> body(s64 i) const {
    return at(i);
  }
  RNX_INLINE PixelBlock<T, C> at(s64 i) const { return PixelBlock<T, C>::load(row + i * C); }
  // Two halves, as storePart() expects them. Pixels are not powers of two in size, hence the buffer.
  RNX_INLINE PixelBlock<T, C> part(s64 i, int n) const {
    T buffer[kBytes * C] = {};
    const int half = halfOf(n);
    __builtin_memcpy(buffer, row + i * C, sizeof(T) * C * static_cast<size_t>(half));
    __builtin_memcpy(buffer + half * C, row + (i + n - half) * C, sizeof(T) * C * static_cast<size_t>(half));
    return PixelBlock<T, C>::load(buffer);
  }
  RNX_INLINE void beginBody(s64) {}
  RNX_INLINE void nextRow() { row = core::at(row, step); }
};

// ---- Masks: one byte per channel, all ones or zeros. All ones where all C bytes of a pixel are. ----

template <int N>
RNX_INLINE Vec<u8> foldFours(const Block<u8, N>& bytes) {
  Block<s32, N / 4> pixels;
  RNX_UNROLL
  for (int j = 0; j < bytes.kVectors; ++j) pixels.v[j] = equal(bytes.v[j].template as<u32>(), ~Vec<u32>::zero());
  return narrowTo<s8>(pixels).v[0].template as<u8>();
}

// Each 16-byte lane works on 16 pixels that lie together, its bytes 16 j ... 16 j + 15 in vector j. Every byte and the
// two behind it, of which those at the starts of pixels are gathered.
RNX_INLINE Vec<u8> foldThrees(const Block<u8, 3 * kBytes>& bytes) {
  Int b0 = bytes.v[0].bits(), b1 = bytes.v[1].bits(), b2 = bytes.v[2].bits();
#if RNX_VECTOR_BYTES == 32
  const Int middle = _mm256_permute2x128_si256(b0, b2, 0x21);
  b0 = _mm256_blend_epi32(b0, b1, 0xf0);
  b2 = _mm256_blend_epi32(b1, b2, 0xf0);
  b1 = middle;
#endif
  const auto all = [](Int a, Int b, Int c)
                       RNX_INLINE_LAMBDA { return Vec<u8>::of(a) & Vec<u8>::of(b) & Vec<u8>::of(c); };
  const Vec<u8> t0 = all(b0, RNX_MM(alignr_epi8)(b1, b0, 1), RNX_MM(alignr_epi8)(b1, b0, 2));
  const Vec<u8> t1 = all(b1, RNX_MM(alignr_epi8)(b2, b1, 1), RNX_MM(alignr_epi8)(b2, b1, 2));
  const Vec<u8> t2 = all(b2, RNX_MM(alignr_epi8)(b2, b2, 1), RNX_MM(alignr_epi8)(b2, b2, 2));
  const auto gather = [](Vec<u8> t, __m128i from) RNX_INLINE_LAMBDA { return shuffle(t, everyGroup(from)); };
  return gather(t0, _mm_setr_epi8(0, 3, 6, 9, 12, 15, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1)) |
         gather(t1, _mm_setr_epi8(-1, -1, -1, -1, -1, -1, 2, 5, 8, 11, 14, -1, -1, -1, -1, -1)) |
         gather(t2, _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 4, 7, 10, 13));
}

}  // namespace
}  // namespace rnx::simd
