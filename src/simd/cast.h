// Element types into one another, in memory order: load-and-widen on one side, saturate-and-narrow on the other. Every
// conversion is composed from the two.
#pragma once

#include "simd/block.h"
#include "simd/halves.h"

namespace rnx::simd {
namespace {

// ---- One vector becomes two or four ----

// clang-format off
#if RNX_VECTOR_BYTES == 32
// Packs work on each half of a register; afterwards the quarters (of two packs, the eighths) stand in this order.
RNX_INLINE Int inOrder2(Int v) { return _mm256_permute4x64_epi64(v, 0xd8); }
RNX_INLINE Int inOrder4(Int v) { return _mm256_permutevar8x32_epi32(v, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)); }
#else
RNX_INLINE Int inOrder2(Int v) { return v; }
RNX_INLINE Int inOrder4(Int v) { return v; }
#endif

#if RNX_VECTOR_BYTES == 32
RNX_INLINE __m128i lowHalf(Int v) { return _mm256_castsi256_si128(v); }
RNX_INLINE __m128i highHalf(Int v) { return _mm256_extracti128_si256(v, 1); }

template <class T> RNX_INLINE Block<s16, Vec<T>::kLanes> spread16(Vec<T> v) {
  if constexpr (std::is_signed_v<T>) {
    return {{Vec<s16>::of(_mm256_cvtepi8_epi16(lowHalf(v.bits()))), Vec<s16>::of(_mm256_cvtepi8_epi16(highHalf(v.bits())))}};
  } else {
    return {{Vec<s16>::of(_mm256_cvtepu8_epi16(lowHalf(v.bits()))), Vec<s16>::of(_mm256_cvtepu8_epi16(highHalf(v.bits())))}};
  }
}
RNX_INLINE Vec<s32> firstFour(u8, __m128i v) { return Vec<s32>::of(_mm256_cvtepu8_epi32(v)); }
RNX_INLINE Vec<s32> firstFour(s8, __m128i v) { return Vec<s32>::of(_mm256_cvtepi8_epi32(v)); }
RNX_INLINE Vec<s32> firstHalf(u16, __m128i v) { return Vec<s32>::of(_mm256_cvtepu16_epi32(v)); }
RNX_INLINE Vec<s32> firstHalf(s16, __m128i v) { return Vec<s32>::of(_mm256_cvtepi16_epi32(v)); }
template <class T> RNX_INLINE Block<s32, Vec<T>::kLanes> spread32(Vec<T> v) {
  const __m128i low = lowHalf(v.bits()), high = highHalf(v.bits());
  if constexpr (sizeof(T) == 1) {
    return {{firstFour(T{}, low), firstFour(T{}, _mm_unpackhi_epi64(low, low)),
             firstFour(T{}, high), firstFour(T{}, _mm_unpackhi_epi64(high, high))}};
  } else {
    return {{firstHalf(T{}, low), firstHalf(T{}, high)}};
  }
}
RNX_INLINE Block<f64, Vec<f32>::kLanes> spreadDouble(Vec<f32> v) {
  return {{{_mm256_cvtps_pd(_mm256_castps256_ps128(v.raw))}, {_mm256_cvtps_pd(_mm256_extractf128_ps(v.raw, 1))}}};
}
#else
template <class T> RNX_INLINE Block<s16, Vec<T>::kLanes> spread16(Vec<T> v) {
  const Int high = _mm_unpackhi_epi64(v.bits(), v.bits());
  if constexpr (std::is_signed_v<T>) {
    return {{Vec<s16>::of(_mm_cvtepi8_epi16(v.bits())), Vec<s16>::of(_mm_cvtepi8_epi16(high))}};
  } else {
    return {{Vec<s16>::of(_mm_cvtepu8_epi16(v.bits())), Vec<s16>::of(_mm_cvtepu8_epi16(high))}};
  }
}
RNX_INLINE Vec<s32> firstFour(u8, Int v) { return Vec<s32>::of(_mm_cvtepu8_epi32(v)); }
RNX_INLINE Vec<s32> firstFour(s8, Int v) { return Vec<s32>::of(_mm_cvtepi8_epi32(v)); }
RNX_INLINE Vec<s32> firstHalf(u16, Int v) { return Vec<s32>::of(_mm_cvtepu16_epi32(v)); }
RNX_INLINE Vec<s32> firstHalf(s16, Int v) { return Vec<s32>::of(_mm_cvtepi16_epi32(v)); }
template <class T> RNX_INLINE Block<s32, Vec<T>::kLanes> spread32(Vec<T> v) {
  const Int low = v.bits(), high = _mm_unpackhi_epi64(low, low);
  if constexpr (sizeof(T) == 1) {
    return {{firstFour(T{}, low), firstFour(T{}, _mm_srli_si128(low, 4)),
             firstFour(T{}, high), firstFour(T{}, _mm_srli_si128(low, 12))}};
  } else {
    return {{firstHalf(T{}, low), firstHalf(T{}, high)}};
  }
}
RNX_INLINE Block<f64, Vec<f32>::kLanes> spreadDouble(Vec<f32> v) {
  return {{{_mm_cvtps_pd(v.raw)}, {_mm_cvtps_pd(_mm_movehl_ps(v.raw, v.raw))}}};
}
#endif
RNX_INLINE Block<f64, Vec<s32>::kLanes> spreadDouble(Vec<s32> v) {
  const Pair<f64> p = toDouble(v);
  return {{p.lo, p.hi}};
}
// clang-format on

// The blocks that `spread` makes of each vector, one behind the other.
template <class W, class T, int N, class F>
RNX_INLINE Block<W, N> spreadAll(const Block<T, N>& block, F spread) {
  Block<W, N> result;
  RNX_UNROLL
  for (int k = 0; k < block.kVectors; ++k) {
    const auto wide = spread(block.v[k]);
    RNX_UNROLL
    for (int j = 0; j < wide.kVectors; ++j) result.v[k * wide.kVectors + j] = wide.v[j];
  }
  return result;
}

// Every value of T in lanes of W, exactly except that 32-bit integers round to f32. Nearest even wherever it rounds.
template <class W, class T, int N>
RNX_INLINE Block<W, N> widenTo(const Block<T, N>& block) {
  if constexpr (std::is_same_v<W, T>) {
    return block;
  } else if constexpr (std::is_same_v<W, s16>) {
    return spreadAll<W>(block, [](Vec<T> v) { return spread16(v); });
  } else if constexpr (std::is_same_v<W, s32>) {
    return spreadAll<W>(block, [](Vec<T> v) { return spread32(v); });
  } else if constexpr (std::is_same_v<W, f32> && std::is_same_v<T, u32>) {
    // Both halves and the product are exact; the sum rounds once.
    return map(block, [](Vec<u32> v) {
      const Vec<f32> high = toFloat(shiftRight(v, shiftCount(16)).as<s32>());
      return high * Vec<f32>::splat(65536.0f) + toFloat((v & Vec<u32>::splat(0xffff)).as<s32>());
    });
  } else if constexpr (std::is_same_v<W, f32>) {
    return map(widenTo<s32>(block), [](Vec<s32> v) { return toFloat(v); });
  } else if constexpr (std::is_same_v<T, f32>) {
    return spreadAll<W>(block, [](Vec<f32> v) { return spreadDouble(v); });
  } else {
    return spreadAll<W>(widenTo<s32>(block), [](Vec<s32> v) { return spreadDouble(v); });
  }
}

// v * 257: every byte twice.
template <int N>
RNX_INLINE Block<u16, N> repeatBytes(const Block<u8, N>& block) {
  return spreadAll<u16>(block, [](Vec<u8> v) RNX_INLINE_LAMBDA {
    const Int halves = inOrder2(v.bits());
    return Block<u16, Vec<u8>::kLanes>{
        {Vec<u16>::of(RNX_MM(unpacklo_epi8)(halves, halves)), Vec<u16>::of(RNX_MM(unpackhi_epi8)(halves, halves))}};
  });
}

// N elements of S in lanes of W, two or four times as large: widened while they are loaded, which saves taking vectors
// apart.
template <class W, class S, int N>
struct WidenedBlock : Block<W, N> {
  using Narrow = Block<S, N>;

  static RNX_INLINE WidenedBlock of(const Narrow& block) { return {widenTo<W>(block)}; }
  static RNX_INLINE WidenedBlock load(const S* p) {
    WidenedBlock block;
    RNX_UNROLL
    for (int k = 0; k < block.kVectors; ++k) block.v[k] = loadWide<W>(p + k * Vec<W>::kLanes);
    return block;
  }
};

// What a kernel reads of S that works in lanes of W: integers in lanes of 16 or 32 bits where W is larger.
template <class S, class W, int N>
struct SourceBlockOf {
  using Lane = std::conditional_t<sizeof(W) <= 2, s16, s32>;
  static constexpr bool kWidens = std::is_integral_v<S> && sizeof(S) < sizeof(W) && sizeof(S) < sizeof(Lane);
  using Type = typename std::conditional_t<kWidens, std::type_identity<WidenedBlock<Lane, S, N>>,
                                           std::type_identity<Block<S, N>>>::type;
};
template <class S, class W, int N>
using SourceBlock = typename SourceBlockOf<S, W, N>::Type;

// ---- Two or four vectors become one, saturated ----

// clang-format off
template <class D> RNX_INLINE Int pack16(Vec<s16> a, Vec<s16> b) {
  return std::is_signed_v<D> ? RNX_MM(packs_epi16)(a.bits(), b.bits()) : RNX_MM(packus_epi16)(a.bits(), b.bits());
}
template <class D> RNX_INLINE Int pack32(Vec<s32> a, Vec<s32> b) {
  return std::is_signed_v<D> ? RNX_MM(packs_epi32)(a.bits(), b.bits()) : RNX_MM(packus_epi32)(a.bits(), b.bits());
}
// clang-format on

template <class D, class T, int N>
RNX_INLINE Block<D, N> narrowTo(const Block<T, N>& block) {
  constexpr int kRatio = sizeof(T) / sizeof(D);
  if constexpr (kRatio == 1) {
    return map(block, [](Vec<T> v) { return v.template as<D>(); });
  } else {
    Block<D, N> result;
    RNX_UNROLL
    for (int k = 0; k < result.kVectors; ++k) {
      const Vec<T>* v = block.v + k * kRatio;
      if constexpr (std::is_same_v<T, s16>) {
        result.v[k] = Vec<D>::of(inOrder2(pack16<D>(v[0], v[1])));
      } else if constexpr (kRatio == 2) {
        result.v[k] = Vec<D>::of(inOrder2(pack32<D>(v[0], v[1])));
      } else {
        const auto low = Vec<s16>::of(pack32<s16>(v[0], v[1])), high = Vec<s16>::of(pack32<s16>(v[2], v[3]));
        result.v[k] = Vec<D>::of(inOrder4(pack16<D>(low, high)));
      }
    }
    return result;
  }
}

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<f32> narrowToSingle(Vec<f64> a, Vec<f64> b) {
  return {_mm256_set_m128(_mm256_cvtpd_ps(b.raw), _mm256_cvtpd_ps(a.raw))};
}
#else
RNX_INLINE Vec<f32> narrowToSingle(Vec<f64> a, Vec<f64> b) {
  return {_mm_movelh_ps(_mm_cvtpd_ps(a.raw), _mm_cvtpd_ps(b.raw))};
}
#endif

template <int N>
RNX_INLINE Block<f32, N> narrowToSingle(const Block<f64, N>& block) {
  Block<f32, N> result;
  RNX_UNROLL
  for (int k = 0; k < result.kVectors; ++k) result.v[k] = narrowToSingle(block.v[2 * k], block.v[2 * k + 1]);
  return result;
}

// Pairs of vectors of doubles, or single vectors of floats, as ints.
template <int N, class F>
RNX_INLINE Block<s32, N> toInts(const Block<f32, N>& block, F convert) {
  return map(block, convert);
}
template <int N, class F>
RNX_INLINE Block<s32, N> toInts(const Block<f64, N>& block, F convert) {
  Block<s32, N> result;
  RNX_UNROLL
  for (int k = 0; k < result.kVectors; ++k) result.v[k] = convert(block.v[2 * k], block.v[2 * k + 1]);
  return result;
}

}  // namespace
}  // namespace rnx::simd
