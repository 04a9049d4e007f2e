// The sums of products of the linear filter: two result rows from a window of rows.
//
// A block is four vectors of each of the two rows. Its eight sums are independent chains of additions, which hides
// their latency, and a vector of pixels that is loaded once serves both rows; loads, most of them unaligned, would
// otherwise be what limits the loop. Within a sum of floats the products are added in the order of the kernel.
#pragma once

#include <cstring>

#include "filter/filter_spec.h"
#include "simd/halves.h"
#include "simd/pairs.h"

namespace rnx::filter {
namespace {

using namespace simd;

// Units in the precision of the sums.
template <class V>
RNX_INLINE Vec<V> loadUnits(const V* p) {
  return Vec<V>::load(p);
}
template <class V>
requires std::is_same_v<V, f64> RNX_INLINE Vec<V> loadUnits(const f32* p) { return loadHalfAsDouble(p); }

// The next column of the kernel lies `pixel` elements further in a row. Result elements [begin, end) are made; the
// kernel's first column meets the element `shift` elements further in a row of the window.
struct SumShape {
  s64 kernelWidth, kernelHeight;
  s64 pixel;
  s64 begin, end, shift;
};

template <class V>
struct SumBlock {
  static constexpr int kElements = 4 * Vec<V>::kLanes;

  Vec<V> a = Vec<V>::zero(), b = Vec<V>::zero(), c = Vec<V>::zero(), d = Vec<V>::zero();
};

// Two result rows from the rows of a window. Results are written by Finish, which is made from the spec: store(out,
// block) turns the sums of a block into elements.
template <class Unit, class T>
using SumTwoRows = void (*)(const Unit* const* rows, const FilterSpec& spec, const SumShape& shape, T* out0, T* out1);

// Calls block(x) for blocks that cover [begin, end): the last one ends at `end`, and a range shorter than a block is
// one whole block.
template <int Elements, class F>
RNX_INLINE void forEachBlock(s64 begin, s64 end, F block) {
  for (s64 x = begin;; x += Elements) {
    if (x + Elements > end && end - begin >= Elements) x = end - Elements;
    block(x);
    if (x + Elements >= end) return;
  }
}

// Calls loop(width) with the width of the kernel: as a constant where it is a common one, so that short loops over the
// columns unroll.
template <class F>
RNX_INLINE void withWidth(s64 kernelWidth, F loop) {
  if (kernelWidth == 3) {
    loop(std::integral_constant<int, 3>{});
  } else {
    loop(kernelWidth);
  }
}

template <class Width, class F>
RNX_INLINE void forEachColumn(Width width, F column) {
  if constexpr (std::is_same_v<Width, s64>) {
    for (s64 i = 0; i < width; ++i) column(i);
  } else {
    RNX_UNROLL
    for (int i = 0; i < Width::value; ++i) column(i);
  }
}

// ---- Floating point ----

// One row of the kernel, for the first and the second result row: they meet an image row with different kernel rows.
template <bool First, bool Second, class V, class Unit, class Width>
RNX_INLINE void addRow(SumBlock<V>& first, SumBlock<V>& second, const Unit* p, const V* kFirst, const V* kSecond,
                       Width width, s64 pixel) {
  constexpr int L = Vec<V>::kLanes;
  forEachColumn(
      width, [&](s64 i) __attribute__((always_inline)) {
        const Vec<V> k0 = Vec<V>::splat(First ? kFirst[i] : V(0)), k1 = Vec<V>::splat(Second ? kSecond[i] : V(0));
        const auto add = [&](Vec<V> & sum0, Vec<V> & sum1, const Unit* at) __attribute__((always_inline)) {
          const Vec<V> pixels = inRegister(loadUnits<V>(at));
          if constexpr (First) sum0 = sum0 + pixels * k0;
          if constexpr (Second) sum1 = sum1 + pixels * k1;
        };
        add(first.a, second.a, p);
        add(first.b, second.b, p + L);
        add(first.c, second.c, p + 2 * L);
        add(first.d, second.d, p + 3 * L);
        p += pixel;
      });
}

// rows: kernelHeight + 1 rows. The first sum takes the kernel's rows from rows[0] on, the second from rows[1] on.
template <class V, class Unit, class T, class Finish>
void sumRows(const Unit* const* rows, const FilterSpec& spec, const SumShape& shape, T* out0, T* out1) {
  const Finish finish(spec);
  const V* kernel = kernelOf<V>(&spec);
  const s64 height = shape.kernelHeight, pixel = shape.pixel, shift = shape.shift;
  withWidth(
      shape.kernelWidth, [&](auto width) __attribute__((always_inline)) {
        forEachBlock<SumBlock<V>::kElements>(
            shape.begin, shape.end, [&](s64 x) __attribute__((always_inline)) {
              const s64 at = x + shift;
              SumBlock<V> first, second;
              addRow<true, false>(first, second, rows[0] + at, kernel, kernel, width, pixel);
              for (s64 j = 1; j < height; ++j) {
                const V* k = kernel + j * width;
                addRow<true, true>(first, second, rows[j] + at, k, k - width, width, pixel);
              }
              addRow<false, true>(first, second, rows[height] + at, kernel, kernel + (height - 1) * width, width,
                                  pixel);
              finish.store(out0 + x, first);
              finish.store(out1 + x, second);
            });
      });
}

// ---- Integers in pairs of rows ----

// A lane holds a pair of pixels, or of coefficients, and takes the sum of their products: 16 bits in lanes of 32, or
// bytes in lanes of 16.
template <class Lane>
using CoefficientOf = std::conditional_t<sizeof(Lane) == 4, s16, s8>;

template <class Lane>
RNX_INLINE Vec<Lane> splatPair(const CoefficientOf<Lane> (&pair)[2]) {
  Lane both;
  std::memcpy(&both, pair, sizeof both);
  return Vec<Lane>::splat(both);
}

// One row of pairs, for both result rows.
template <class Lane, class Width>
RNX_INLINE void addPairs(SumBlock<Lane>& first, SumBlock<Lane>& second, const Lane* p,
                         const PairTaps<CoefficientOf<Lane>>* tap, Width width, s64 pixel) {
  constexpr int L = Vec<Lane>::kLanes;
  forEachColumn(
      width, [&](s64 i) __attribute__((always_inline)) {
        const Vec<Lane> k0 = splatPair<Lane>(tap[i].first), k1 = splatPair<Lane>(tap[i].second);
        const auto add = [&](Vec<Lane> & sum0, Vec<Lane> & sum1, const Lane* at) __attribute__((always_inline)) {
          const Vec<Lane> pixels = inRegister(Vec<Lane>::load(at));
          sum0 = sum0 + multiplyLanes(pixels, k0);
          sum1 = sum1 + multiplyLanes(pixels, k1);
        };
        add(first.a, second.a, p);
        add(first.b, second.b, p + L);
        add(first.c, second.c, p + 2 * L);
        add(first.d, second.d, p + 3 * L);
        p += pixel;
      });
}

// pairs: rowPairs(kernelHeight) rows of interleaved pixels of two image rows.
template <class Lane, class T, class Finish>
void sumPairs(const Lane* const* pairs, const FilterSpec& spec, const SumShape& shape, T* out0, T* out1) {
  const Finish finish(spec);
  const auto* taps = pairsOf<CoefficientOf<Lane>>(&spec);
  const s64 count = rowPairs(shape.kernelHeight), pixel = shape.pixel;
  withWidth(
      shape.kernelWidth, [&](auto width) __attribute__((always_inline)) {
        forEachBlock<SumBlock<Lane>::kElements>(
            shape.begin, shape.end, [&](s64 x) __attribute__((always_inline)) {
              SumBlock<Lane> first, second;
              for (s64 j = 0; j < count; ++j) addPairs(first, second, pairs[j] + x, taps + j * width, width, pixel);
              finish.store(out0 + x, first);
              finish.store(out1 + x, second);
            });
      });
}

}  // namespace
}  // namespace rnx::filter
