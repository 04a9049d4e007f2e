// Whole pixels of several channels, and folding a comparison of their channels to one byte per pixel.
//
// A block is as many pixels as a vector has bytes. Each 16-byte lane of the vectors works on 16 pixels that lie
// together: vector j holds bytes 16 j ... 16 j + 15 of its own 16 pixels, so that packs, shifts and shuffles that stay
// in a lane bring the pixels out in order.
#pragma once

#include "simd/rows.h"

namespace rnx::simd {
namespace {

template <class T, int C>
struct PixelBlock {
  static constexpr int kVectors = C * static_cast<int>(sizeof(T));  // 16 pixels of C channels in each lane
  Vec<T> v[kVectors];

  static RNX_INLINE PixelBlock load(const void* pixels) {
    PixelBlock block;
    const auto at = [&](int vector) RNX_INLINE_LAMBDA {
      return reinterpret_cast<const __m128i*>(static_cast<const char*>(pixels)) + vector;
    };
    RNX_UNROLL
    for (int j = 0; j < kVectors; ++j) {
#if RNX_VECTOR_BYTES == 32
      block.v[j] = Vec<T>::of(_mm256_loadu2_m128i(at(kVectors + j), at(j)));
#else
      block.v[j] = Vec<T>::of(_mm_loadu_si128(at(j)));
#endif
    }
    return block;
  }
};

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

// ---- Masks: lanes of all ones or zeros ----

// One byte per element.
// clang-format off
RNX_INLINE Vec<u8> maskBytes(const Mask<u8>* m) { return m[0].as<u8>(); }
RNX_INLINE Vec<u8> maskBytes(const Mask<u16>* m) { return Vec<u8>::of(RNX_MM(packs_epi16)(m[0].bits(), m[1].bits())); }
RNX_INLINE Vec<u8> maskBytes(const Mask<u32>* m) {
  return Vec<u8>::of(RNX_MM(packs_epi16)(RNX_MM(packs_epi32)(m[0].bits(), m[1].bits()),
                                         RNX_MM(packs_epi32)(m[2].bits(), m[3].bits())));
}

// The same bytes in both lanes.
RNX_INLINE Int inEachLane(__m128i v) {
#if RNX_VECTOR_BYTES == 32
  return _mm256_broadcastsi128_si256(v);
#else
  return v;
#endif
}
// clang-format on

// All ones where all C bytes of a pixel are.
template <int C>
Vec<u8> foldPixels(const Vec<u8>* bytes) = delete;

template <>
RNX_INLINE Vec<u8> foldPixels<4>(const Vec<u8>* bytes) {
  Mask<u32> m[4];
  RNX_UNROLL
  for (int j = 0; j < 4; ++j) m[j] = equal(bytes[j].as<u32>(), ~Vec<u32>::zero());
  return maskBytes(m);
}

// Every byte and the two behind it, of which those at the starts of pixels are gathered.
template <>
RNX_INLINE Vec<u8> foldPixels<3>(const Vec<u8>* bytes) {
  const Int b0 = bytes[0].bits(), b1 = bytes[1].bits(), b2 = bytes[2].bits();
  const auto all = [](Int a, Int b, Int c)
                       RNX_INLINE_LAMBDA { return Vec<u8>::of(a) & Vec<u8>::of(b) & Vec<u8>::of(c); };
  const Vec<u8> t0 = all(b0, RNX_MM(alignr_epi8)(b1, b0, 1), RNX_MM(alignr_epi8)(b1, b0, 2));
  const Vec<u8> t1 = all(b1, RNX_MM(alignr_epi8)(b2, b1, 1), RNX_MM(alignr_epi8)(b2, b1, 2));
  const Vec<u8> t2 = all(b2, RNX_MM(alignr_epi8)(b2, b2, 1), RNX_MM(alignr_epi8)(b2, b2, 2));
  const auto gather = [](Vec<u8> t, __m128i from)
                          RNX_INLINE_LAMBDA { return Vec<u8>::of(RNX_MM(shuffle_epi8)(t.bits(), inEachLane(from))); };
  return gather(t0, _mm_setr_epi8(0, 3, 6, 9, 12, 15, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1)) |
         gather(t1, _mm_setr_epi8(-1, -1, -1, -1, -1, -1, 2, 5, 8, 11, 14, -1, -1, -1, -1, -1)) |
         gather(t2, _mm_setr_epi8(-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 1, 4, 7, 10, 13));
}

}  // namespace
}  // namespace rnx::simd
