// Between images and tiles: rows of an image become lanes of a tile, transformed rows go to strips, strips are
// transformed down the columns.
//
//   work memory: strip 0 | strip 1 | ...      a strip: as many columns as V has lanes, one element per row
//
// The last strip and the last group of rows may overlap the one before; what they share is then computed twice, with
// the same result. Included by row kernels only.
#pragma once

#include <algorithm>

#include "fft/line.h"
#include "fft/passes.h"
#include "fft/transform_kernels.h"

namespace rnx::fft {
namespace {

template <class V>
class Grid {
public:
  static constexpr s64 L = V::kLanes;
  static constexpr int G = 4;  // columns that are transposed at a time

  explicit Grid(const TransformCall& c)
      : call(c),
        width(c.spec->gridWidth),
        height(c.spec->gridHeight),
        rows(*c.spec, c.spec->plans[0]),
        columns(*c.spec, c.spec->plans[c.spec->columnPlan]),
        strips(c.work),
        tile(core::at(c.work, c.spec->stripBytes)) {}

  RNX_INLINE void storeInput(s64 j, Complex<V> x) const { storeElement(tile + j * kElement<V>, x); }
  RNX_INLINE Outputs<V> outputsOf(const Transform<V>& transform) const {
    return transform.outputs(tile, call.inverse ? Direction::kInverse : Direction::kForward);
  }

  // ---- Strips ----

  s64 stripCount() const { return (width + L - 1) / L; }
  RNX_INLINE s64 stripStart(s64 strip) const { return std::min(strip * L, width - L); }
  RNX_INLINE f32* stripRow(s64 strip, s64 row) const { return strips + (strip * height + row) * kElement<V>; }

  // Columns [4 group, 4 group + 4) of a strip in the order of its lanes, from vectors whose lanes are the rows from
  // `first`, in the order rowOf.
  template <class RowOf>
  RNX_INLINE void storeGroup(s64 strip, int group, s64 first, RowOf rowOf, V (&re)[G], V (&im)[G]) const {
    f32* base = stripRow(strip, first) + group * G;
    storeColumns([&](int r) RNX_LAMBDA { return base + rowOf(r) * kElement<V>; }, re);
    storeColumns([&](int r) RNX_LAMBDA { return base + L + rowOf(r) * kElement<V>; }, im);
  }
  static RNX_INLINE s64 inOrder(int r) { return r; }
  static RNX_INLINE s64 inPairs(int r) { return simd::pairedElement(r); }

  // ---- Rows of complex images ----

  // Floats of the rows rowOf(0) ... from `first`, in fours; a row that is no multiple of four ends with four that
  // overlap.
  template <class RowOf, class Store>
  RNX_INLINE void loadRows(const f32* first, s64 step, s64 floats, RowOf rowOf, Store store) const {
    for (s64 f = 0; f < floats; f += G) {
      const s64 at = std::min(f, floats - G);
      V column[G];
      loadColumns([&](int r) RNX_LAMBDA { return core::at(first, rowOf(r) * step, at); }, column);
      unroll<0, G>([&](auto i) RNX_LAMBDA { store(at + i.value, column[i.value]); });
    }
  }

  void complexRows(f32 scale) const {
    f32* const to = tile;
    const V factor = V::splat(scale);
    const Outputs<V> outputs = outputsOf(rows);
    for (s64 row = 0; row < height; row += L) {
      const s64 first = std::min(row, height - L);
      loadRows(core::at(call.src, first * call.srcStep), call.srcStep, 2 * width, inOrder,
               [&](s64 f, V v) RNX_LAMBDA { v.store(to + f * L); });
      rows.run(tile, tile);
      forEachGroup([&](s64 strip, s64 start, auto group) RNX_LAMBDA {
        V re[G], im[G];
        unroll<0, G>([&](auto index) RNX_LAMBDA {
          constexpr int i = decltype(index)::value;
          const Complex<V> x = outputs[start + simd::pairedElement(group.value * G + i)] * factor;
          re[i] = x.re;
          im[i] = x.im;
        });
        storeGroup(strip, group.value, first, inOrder, re, im);
      });
    }
  }

  // f(strip, first column, group) for all groups of all strips.
  template <class F>
  RNX_INLINE void forEachGroup(F f) const {
    for (s64 strip = 0; strip < stripCount(); ++strip) {
      const s64 start = stripStart(strip);
      unroll<0, L / G>([&](auto group) RNX_LAMBDA { f(strip, start, group); });
    }
  }

  // The columns of all strips; store(k, first column, numbers) takes row k of the result.
  template <class Store>
  RNX_INLINE void storeColumnsOf(f32 scale, Store store) const {
    const V factor = V::splat(scale);
    const Outputs<V> outputs = outputsOf(columns);
    const s64 count = height;
    for (s64 strip = 0; strip < stripCount(); ++strip) {
      columns.run(stripRow(strip, 0), tile);
      const s64 start = stripStart(strip);
      for (s64 k = 0; k < count; ++k) store(k, start, outputs[k] * factor);
    }
  }

  // ---- Lines ----

  RNX_INLINE Complex<V> loadLine(const Line& from, s64 j) const {
    if (from.isContiguous()) return loadPairs<V>(from.re(j));
    f32 buffer[2 * L];
    for (s64 i = 0; i < L; ++i) {
      buffer[2 * i] = simd::loadOne(from.re(j + i));
      buffer[2 * i + 1] = simd::loadOne(from.im(j + i));
    }
    return loadPairs<V>(buffer);
  }
  RNX_INLINE void storeLine(const Line& to, s64 j, Complex<V> x) const {
    if (to.isContiguous()) return storePairs(to.re(j), x);
    f32 buffer[2 * L];
    storePairs(buffer, x);
    for (s64 i = 0; i < L; ++i) {
      write(to.re(j + i), buffer[2 * i]);
      write(to.im(j + i), buffer[2 * i + 1]);
    }
  }

  // A line of width * height numbers, by its factors: with j = height j1 + j2 and k = width k2 + k1,
  //   X_k = sum over j2 of w_height^(j2 k2) w^(j2 k1) * sum over j1 of w_width^(j1 k1) x_j,   w_n = exp(-+2 pi i / n)
  // The lanes of the inner sum are neighbours j2, those of the outer one neighbours k1.
  void splitLine(const Line& from, const Line& to, f32 scale) const {
    const Outputs<V> outputs = outputsOf(rows);
    const V sign = V::splat(call.inverse ? -1.0f : 1.0f);
    for (s64 j2 = 0; j2 < height; j2 += L) {
      const s64 first = std::min(j2, height - L);
      for (s64 j1 = 0; j1 < width; ++j1) storeInput(j1, loadLine(from, j1 * height + first));
      rows.run(tile, tile);
      const f32* twiddles = call.spec->table<f32>(call.spec->lineTwiddles) + 2 * first;
      forEachGroup([&](s64 strip, s64 start, auto group) RNX_LAMBDA {
        V re[G], im[G];
        unroll<0, G>([&](auto index) RNX_LAMBDA {
          constexpr int i = decltype(index)::value;
          const s64 k1 = start + simd::pairedElement(group.value * G + i);
          const Complex<V> w = loadPairs<V>(twiddles + 2 * k1 * height);
          const Complex<V> x = outputs[k1] * Complex<V>{w.re, w.im * sign};
          re[i] = x.re;
          im[i] = x.im;
        });
        storeGroup(strip, group.value, first, inPairs, re, im);
      });
    }
    storeColumnsOf(scale, [&](s64 k2, s64 k1, Complex<V> x) RNX_LAMBDA { storeLine(to, k2 * width + k1, x); });
  }

  const TransformCall& call;
  const s64 width, height;
  const Transform<V> rows, columns;
  f32* const strips;
  f32* const tile;
};

}  // namespace
}  // namespace rnx::fft
