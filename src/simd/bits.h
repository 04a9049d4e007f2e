// Between lanes and bits: bit i stands for lane i.
#pragma once

#include "simd/rows.h"

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

// All ones in the lanes whose bits are 1.
template <class T>
RNX_INLINE Mask<T> spreadBits(u32 bits) {
  using M = typename MaskOf<sizeof(T)>::Type;
  Vec<M> own;  // the bit of each lane
  for (int i = 0; i < Vec<M>::kLanes; ++i) own.raw[i] = static_cast<M>(1u << (i % (8 * static_cast<int>(sizeof(M)))));
  Vec<M> all = Vec<s32>::splat(static_cast<s32>(bits)).template as<M>();
  if constexpr (sizeof(M) == 2) all = Vec<M>::splat(static_cast<s16>(bits));
  if constexpr (sizeof(M) == 1) {  // byte i / 8 of the bits into lane i
    Vec<u8> index;
    for (int i = 0; i < kBytes; ++i) index.raw[i] = static_cast<u8>(i / 8);
    all = Vec<M>::of(RNX_MM(shuffle_epi8)(all.bits(), index.bits()));
  }
  return equal(all & own, own);
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
