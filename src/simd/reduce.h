// The loop of reductions: rows in rounds of 96 bytes, which are whole pixels of one, three and four channels and the
// same at every vector width, so that floats are summed in the same lanes everywhere.
//
//   row:  |-----|-----|-----|---    whole rounds
//                        |xx|---|   the round that ends at the last element, what was counted before masked out
//   rows of less than a round are copied to the end of one
//
// A masked or padded element contributes a term of all zero bits, which is the neutral one of sums and of maxima of
// magnitudes.
#pragma once

#include <algorithm>
#include <utility>

#include "core/image.h"
#include "simd/vec.h"

namespace rnx::simd {
namespace {

inline constexpr int kRoundBytes = 96;
inline constexpr int kRoundVectors = kRoundBytes / kBytes;

// Zeros for the first bytes of a round, ones behind: read at an offset.
struct RoundMask {
  alignas(32) u8 bytes[2 * kRoundBytes];
  constexpr RoundMask() : bytes() {
    for (int i = kRoundBytes; i < 2 * kRoundBytes; ++i) bytes[i] = 0xff;
  }
  // Vector k of the mask that drops the first `dropped` bytes.
  RNX_INLINE Vec<u8> vector(int k, s64 dropped) const {
    return Vec<u8>::load(bytes + kRoundBytes - dropped + k * kBytes);
  }
};
constexpr RoundMask kRoundMask;

template <class T>
struct ReduceSource {
  const T* row;
  s64 step;
};

// A takes vectors: a.template add<k>(mask, vectors...) for vector k of a round, and a.flush(rounds) after at most
// A::kRounds rounds. `mask` is to be applied to the term.
struct Whole {
  template <class V>
  RNX_INLINE V operator()(V term) const {
    return term;
  }
};
struct Masked {
  Vec<u8> mask;
  template <class T>
  RNX_INLINE Vec<T> operator()(Vec<T> term) const {
    return (term.template as<u8>() & mask).template as<T>();
  }
};

template <int K, class A, class M, class... T>
RNX_INLINE void addVector(A& a, M mask, const T*... p) {
  a.template add<K>(mask, Vec<T>::load(p + K * Vec<T>::kLanes)...);
}

template <class A, class... T, int... K>
RNX_INLINE void addRound(A& a, std::integer_sequence<int, K...>, const T*... p) {
  (addVector<K>(a, Whole{}, p...), ...);
}

template <class A, class... T, int... K>
RNX_INLINE void addMasked(A& a, s64 droppedBytes, std::integer_sequence<int, K...>, const T*... p) {
  (addVector<K>(a, Masked{kRoundMask.vector(K, droppedBytes)}, p...), ...);
}

// A row of n elements at the end of a round.
template <class T>
struct PaddedRound {
  static constexpr s64 kElements = kRoundBytes / static_cast<s64>(sizeof(T));
  T elements[kElements];
  PaddedRound(const T* p, s64 n) : elements() {
    __builtin_memcpy(elements + kElements - n, p, static_cast<size_t>(n) * sizeof(T));
  }
};

// All rows of one source, or of two side by side.
template <class A, class T, class... Sources>
RNX_INLINE void reduceRows(s64 width, s64 height, A& a, ReduceSource<T> first, Sources... others) {
  constexpr s64 kRound = kRoundBytes / static_cast<s64>(sizeof(T));
  constexpr std::make_integer_sequence<int, kRoundVectors> kVectors;
  for (s64 y = 0; y < height; ++y) {
    if (width < kRound) {
      const auto add = [&](const PaddedRound<T>& one, const auto&... more) RNX_INLINE_LAMBDA {
        addMasked(a, (kRound - width) * static_cast<s64>(sizeof(T)), kVectors, one.elements, more.elements...);
      };
      add(PaddedRound<T>(first.row, width), PaddedRound<T>(others.row, width)...);
      a.flush(1);
    } else {
      s64 i = 0;
      while (i + kRound <= width) {
        const s64 rounds = std::min<s64>((width - i) / kRound, A::kRounds), end = i + rounds * kRound;
        for (; i < end; i += kRound) addRound(a, kVectors, first.row + i, others.row + i...);
        a.flush(static_cast<int>(rounds));
      }
      if (i < width) {
        const s64 last = width - kRound;
        addMasked(a, (i - last) * static_cast<s64>(sizeof(T)), kVectors, first.row + last, others.row + last...);
        a.flush(1);
      }
    }
    first.row = core::at(first.row, first.step);
    ((others.row = core::at(others.row, others.step)), ...);
  }
}

// ---- Exact sums of unsigned terms ----

// Lanes of 16 (32) bits hold two terms of 8 (16). `whole` sums the lanes and `high` their upper terms, both modulo the
// lane; the lower terms are what remains: whole - (high << bits). Right as long as neither sum of terms leaves the
// lane: for 257 terms of 8 bits, 65537 of 16.
template <class T>
struct PairSum {
  using Lane = std::conditional_t<sizeof(T) == 1, u16, u32>;
  static constexpr int kBits = 8 * static_cast<int>(sizeof(T));
  static constexpr int kMostTerms = sizeof(T) == 1 ? 256 : 65536;

  RNX_INLINE void add(Vec<T> terms) {
    const Vec<Lane> lanes = terms.template as<Lane>();
    whole = whole + lanes;
    upper = upper + Vec<Lane>{lanes.raw >> kBits};
  }
  RNX_INLINE Vec<Lane> low() const { return whole - Vec<Lane>{upper.raw << kBits}; }
  RNX_INLINE Vec<Lane> high() const { return upper; }

  Vec<Lane> whole = Vec<Lane>::zero(), upper = Vec<Lane>::zero();
};

RNX_INLINE Vec<u64> sumOfBytes(Vec<u8> v) { return Vec<u64>::of(RNX_MM(sad_epu8)(v.bits(), Vec<u8>::zero().bits())); }
// Of pairs of lanes below 2^15.
RNX_INLINE Vec<u32> sumOfSquares(Vec<u16> v) { return Vec<u32>::of(RNX_MM(madd_epi16)(v.bits(), v.bits())); }
RNX_INLINE Vec<u32> sumOfSquares(Vec<s16> v) { return Vec<u32>::of(RNX_MM(madd_epi16)(v.bits(), v.bits())); }

// Two floats of each of as many rows as a vector holds pairs of doubles, or four in two vectors: for sums whose order
// is promised.
inline constexpr int kRowsOfPairs = kBytes / 16;

RNX_INLINE Vec<f64> pairsAsDouble(const f32* p, [[maybe_unused]] s64 step) {
  const auto pair = [](const f32* a) RNX_INLINE_LAMBDA { return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(a)); };
#if RNX_VECTOR_BYTES == 32
  return {_mm256_cvtps_pd(_mm_castsi128_ps(_mm_unpacklo_epi64(pair(p), pair(core::at(p, step)))))};
#else
  return {_mm_cvtps_pd(_mm_castsi128_ps(pair(p)))};
#endif
}

struct TwoPairs {
  Vec<f64> first, second;
};
RNX_INLINE TwoPairs fourAsDouble(const f32* p, [[maybe_unused]] s64 step) {
#if RNX_VECTOR_BYTES == 32
  const __m256d a = _mm256_cvtps_pd(_mm_loadu_ps(p)), b = _mm256_cvtps_pd(_mm_loadu_ps(core::at(p, step)));
  return {{_mm256_insertf128_pd(a, _mm256_castpd256_pd128(b), 1)}, {_mm256_permute2f128_pd(a, b, 0x31)}};
#else
  return {pairsAsDouble(p, step), pairsAsDouble(core::at(p, 0, 2), step)};
#endif
}

}  // namespace
}  // namespace rnx::simd
