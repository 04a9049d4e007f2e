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

// The next column of the kernel lies `pixel` elements further in a row.
struct SumShape {
  s64 kernelWidth, kernelHeight;
  s64 pixel;
  s64 elements;  // of a result row
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

// Calls block(x) for blocks that cover [0, n): the last one ends at n, and a row shorter than a block is one whole
// block.
template <int Elements, class F>
RNX_INLINE void forEachBlock(s64 n, F block) {
  for (s64 x = 0;; x += Elements) {
    if (x + Elements > n && n >= Elements) x = n - Elements;
    block(x);
    if (x + Elements >= n) return;
  }
}

// ---- Floating point ----

// One row of the kernel, for the first and the second result row: they meet an image row with different kernel rows.
template <bool First, bool Second, class V, class Unit>
RNX_INLINE void addRow(SumBlock<V>& first, SumBlock<V>& second, const Unit* p, const V* kFirst, const V* kSecond,
                       const SumShape& shape) {
  constexpr int L = Vec<V>::kLanes;
  for (s64 i = 0; i < shape.kernelWidth; ++i, p += shape.pixel) {
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
  }
}

// rows: kernelHeight + 1 rows. The first sum takes the kernel's rows from rows[0] on, the second from rows[1] on.
template <class V, class Unit, class T, class Finish>
void sumRows(const Unit* const* rows, const FilterSpec& spec, const SumShape& shape, T* out0, T* out1) {
  const Finish finish(spec);
  const V* kernel = kernelOf<V>(&spec);
  const s64 width = shape.kernelWidth, height = shape.kernelHeight;
  forEachBlock<SumBlock<V>::kElements>(
      shape.elements, [&](s64 x) __attribute__((always_inline)) {
        SumBlock<V> first, second;
        addRow<true, false>(first, second, rows[0] + x, kernel, kernel, shape);
        for (s64 j = 1; j < height; ++j) {
          const V* k = kernel + j * width;
          addRow<true, true>(first, second, rows[j] + x, k, k - width, shape);
        }
        addRow<false, true>(first, second, rows[height] + x, kernel, kernel + (height - 1) * width, shape);
        finish.store(out0 + x, first);
        finish.store(out1 + x, second);
      });
}

// ---- Integers in pairs of rows ----

RNX_INLINE Vec<s32> splatPair(const s16 (&pair)[2]) {
  s32 both;
  std::memcpy(&both, pair, sizeof both);
  return Vec<s32>::splat(both);
}

// pairs: rowPairs(kernelHeight) rows of interleaved pixels of two image rows.
template <class T, class Finish>
void sumPairs(const s32* const* pairs, const FilterSpec& spec, const SumShape& shape, T* out0, T* out1) {
  constexpr int L = Vec<s32>::kLanes;
  const Finish finish(spec);
  const PairTaps* taps = pairsOf(&spec);
  const s64 count = rowPairs(shape.kernelHeight);
  forEachBlock<SumBlock<s32>::kElements>(
      shape.elements, [&](s64 x) __attribute__((always_inline)) {
        SumBlock<s32> first, second;
        const PairTaps* tap = taps;
        for (s64 j = 0; j < count; ++j) {
          const s32* p = pairs[j] + x;
          for (s64 i = 0; i < shape.kernelWidth; ++i, ++tap, p += shape.pixel) {
            const Vec<s32> k0 = splatPair(tap->first), k1 = splatPair(tap->second);
            const auto add = [&](Vec<s32> & sum0, Vec<s32> & sum1, const s32* at) __attribute__((always_inline)) {
              const Vec<s32> pixels = inRegister(Vec<s32>::load(at));
              sum0 = sum0 + multiplyPairs(pixels, k0);
              sum1 = sum1 + multiplyPairs(pixels, k1);
            };
            add(first.a, second.a, p);
            add(first.b, second.b, p + L);
            add(first.c, second.c, p + 2 * L);
            add(first.d, second.d, p + 3 * L);
          }
        }
        finish.store(out0 + x, first);
        finish.store(out1 + x, second);
      });
}

}  // namespace
}  // namespace rnx::filter
