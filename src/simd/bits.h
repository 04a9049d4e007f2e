// Between lanes and bits: bit i stands for lane i.
#pragma once

#include "simd/pixels.h"
#include "simd/shuffle.h"

namespace rnx::simd {
namespace {

// The sign bits of the lanes.
template <class M>
RNX_INLINE u32 signBits(Vec<M> mask) {
  if constexpr (sizeof(M) == 1) {
    return static_cast<u32>(RNX_MM(movemask_epi8)(mask.bits()));
  } else if constexpr (sizeof(M) == 4) {
    return static_cast<u32>(RNX_MM(movemask_ps)(reinterpret_cast<Float>(mask.raw)));
  } else {
#if RNX_VECTOR_BYTES == 32
    const __m128i low = _mm256_castsi256_si128(mask.bits()), high = _mm256_extracti128_si256(mask.bits(), 1);
    return static_cast<u32>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
#else
    return static_cast<u32>(_mm_movemask_epi8(_mm_packs_epi16(mask.bits(), _mm_setzero_si128())));
#endif
  }
}

// One byte per element, in the order of packs.
// clang-format off
RNX_INLINE Vec<u8> maskBytes(const Mask<u16>* m) { return Vec<u8>::of(RNX_MM(packs_epi16)(m[0].bits(), m[1].bits())); }
RNX_INLINE Vec<u8> maskBytes(const Mask<u32>* m) {
  return Vec<u8>::of(RNX_MM(packs_epi16)(RNX_MM(packs_epi32)(m[0].bits(), m[1].bits()),
                                         RNX_MM(packs_epi32)(m[2].bits(), m[3].bits())));
}
// clang-format on

// One bit for each lane of as many vectors as an element has bytes.
template <class T>
RNX_INLINE u32 bitsOfMasks(const Mask<T>* masks) {
  if constexpr (sizeof(T) == 1) {
    return signBits(masks[0]);
  } else if constexpr (sizeof(T) == 4) {
    return signBits(wordsToMemory(maskBytes(masks)));
  } else {
    const Vec<u8> bytes = maskBytes(masks);
#if RNX_VECTOR_BYTES == 32
    return signBits(Vec<u8>::of(_mm256_permute4x64_epi64(bytes.bits(), 0xD8)));
#else
    return signBits(bytes);
#endif
  }
}

// For each byte of the lanes: the byte of the bits and the bit of that byte.
template <class T>
struct BitPlaces {
  alignas(kBytes) u8 byte[kBytes], bit[kBytes];
  constexpr BitPlaces() : byte(), bit() {
    for (int b = 0; b < kBytes; ++b) {
      const int lane = b / static_cast<int>(sizeof(T));
      byte[b] = static_cast<u8>(lane / 8);
      bit[b] = static_cast<u8>(1 << lane % 8);
    }
  }
};
template <class T>
constexpr BitPlaces<T> kBitPlaces;

// All ones in the lanes whose bits are 1.
template <class T>
class BitSpreader {
public:
  BitSpreader() : index_(Vec<u8>::load(kBitPlaces<T>.byte)), own_(Vec<u8>::load(kBitPlaces<T>.bit)) {}

  // Of bits in every 8 bytes.
  RNX_INLINE Mask<T> operator()(Vec<u64> bits) const {
    return equal(shuffle(bits.as<u8>(), index_) & own_, own_).template as<typename MaskOf<sizeof(T)>::Type>();
  }

private:
  Vec<u8> index_, own_;
};

template <int N>
RNX_INLINE Vec<u64> shiftBitsRight(Vec<u64> v) {
  return Vec<u64>::of(RNX_MM(srli_epi64)(v.bits(), N));
}

// Parts of vectors are two overlapping halves (see rows.h): their bits, put in the order of n elements, and back.
RNX_INLINE u32 joinHalves(u32 bits, int n) {
  const int half = halfOf(n);
  const u32 ones = (1u << half) - 1;
  return (bits & ones) | (bits >> half & ones) << (n - half);
}
RNX_INLINE u32 makeHalves(u32 bits, int n) {
  const int half = halfOf(n);
  const u32 ones = (1u << half) - 1;
  return (bits & ones) | (bits >> (n - half) & ones) << half;
}

}  // namespace
}  // namespace rnx::simd
