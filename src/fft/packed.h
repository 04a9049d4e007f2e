// Real images and their packed spectra. Two real rows a, b = rows 2 p and 2 p + 1 are transformed as one complex row
// z = a + i b and taken apart afterwards; the last row of an odd height is its own partner:
//   2 A_k = Z_k + conj Z_(n-k),   2 i B_k = Z_k - conj Z_(n-k)
// The spectrum of a real row is known from its columns 0 ... width / 2. Column 0 and, for even widths, column width / 2
// are transforms of real columns; they share the complex column 0 of the grid in the same way.
// Included by row kernels only.
#pragma once

#include "fft/grid.h"

namespace rnx::fft {
namespace {

template <class V>
class PackedGrid : public Grid<V> {
  using Base = Grid<V>;
  using Base::call, Base::tile, Base::rows, Base::columns, Base::height;
  using Base::L, Base::G;

public:
  explicit PackedGrid(const TransformCall& c) : Base(c), imageWidth(c.spec->width) {}

  // The rows of L pairs, by lane: of their first or second rows.
  struct PairedRows {
    s64 first, last;  // even; the second row of the last pair

    RNX_INLINE s64 operator()(int r, s64 part) const {
      return part == 0 ? first + 2 * r : (r == L - 1 ? last : first + 2 * r + 1);
    }
  };
  // Calls f for all pairs, L at a time; the last of these groups may overlap the one before.
  template <class F>
  RNX_INLINE void forEachPairs(F f) const {
    const s64 pairs = (height + 1) / 2;
    for (s64 pair = 0; pair < pairs; pair += L) {
      const s64 first = 2 * std::min(pair, pairs - L);
      f(PairedRows{first, std::min(first + 2 * L - 1, height - 1)});
    }
  }

  // ---- Forward ----

  void forwardRows(f32 scale) const {
    const Outputs<V> outputs = rows.outputs(tile);
    forEachPairs([&](PairedRows pairs) RNX_LAMBDA {
      loadRealRows(pairs, 0);
      loadRealRows(pairs, 1);
      rows.run(tile, tile);
      this->forEachGroup([&](s64 strip, s64 start, auto group) RNX_LAMBDA {
        V re[G], im[G], reB[G], imB[G];
        unroll<0, G>([&](auto index) RNX_LAMBDA {
          constexpr int i = decltype(index)::value;
          const s64 k = start + simd::pairedElement(group.value * G + i);
          const Complex<V> z = outputs[k];
          if (k == 0) {
            const V factor = V::splat(scale);
            const Complex<V> last = middleColumn();
            re[i] = z.re * factor, im[i] = last.re * factor;
            reB[i] = z.im * factor, imB[i] = last.im * factor;
          } else {
            const V half = V::splat(0.5f * scale);
            const Complex<V> y = outputs[imageWidth - k];
            re[i] = (z.re + y.re) * half, im[i] = (z.im - y.im) * half;
            reB[i] = (z.im + y.im) * half, imB[i] = (y.re - z.re) * half;
          }
        });
        this->storeGroup(
            strip, group.value, 0, [&](int r) RNX_LAMBDA { return pairs(r, 0); }, re, im);
        this->storeGroup(
            strip, group.value, 0, [&](int r) RNX_LAMBDA { return pairs(r, 1); }, reB, imB);
      });
    });
  }

  void forwardColumns(f32 scale) const {
    const V factor = V::splat(scale);
    const Outputs<V> outputs = columns.outputs(tile);
    for (s64 strip = 0; strip < this->stripCount(); ++strip) {
      columns.run(this->stripRow(strip, 0), tile);
      const s64 start = this->stripStart(strip);
      for (s64 k = 0; k < height; ++k) storePacked(k, start, outputs[k] * factor);
      if (start == 0) storeOuterColumns(scale);
    }
  }

  // ---- Inverse ----

  // Neighbouring strips share lines of the cache, which a tall image would evict from one strip to the next: a few are
  // loaded together.
  void inverseColumns(f32 scale) const {
    constexpr s64 kTogether = 4;
    const V factor = V::splat(scale);
    const Outputs<V> outputs = this->outputsOf(columns);
    for (s64 first = 0; first < this->stripCount(); first += kTogether) {
      const s64 end = std::min(first + kTogether, this->stripCount());
      for (s64 l = 0; l < height; ++l) {
        for (s64 strip = first; strip < end; ++strip) {
          storeElement(this->stripRow(strip, l), loadPacked(l, this->stripStart(strip)));
        }
      }
      if (first == 0) loadOuterColumns();
      for (s64 strip = first; strip < end; ++strip) {
        columns.run(this->stripRow(strip, 0), tile);
        for (s64 k = 0; k < height; ++k) storeElement(this->stripRow(strip, k), outputs[k] * factor);
      }
    }
  }

  void inverseRows(f32 scale) const {
    forEachPairs([&](PairedRows pairs) RNX_LAMBDA {
      this->forEachGroup([&](s64 strip, s64 start, auto group) RNX_LAMBDA {
        V re[G], im[G], reB[G], imB[G];
        loadGroup(strip, group.value, pairs, 0, re, im);
        loadGroup(strip, group.value, pairs, 1, reB, imB);
        unroll<0, G>([&](auto index) RNX_LAMBDA {
          constexpr int i = decltype(index)::value;
          const s64 k = start + simd::pairedElement(group.value * G + i);
          if (k == 0) {
            this->storeInput(0, Complex<V>{re[i], reB[i]});
            if (imageWidth % 2 == 0) this->storeInput(imageWidth / 2, Complex<V>{im[i], imB[i]});
          } else {
            this->storeInput(k, Complex<V>{re[i] - imB[i], im[i] + reB[i]});
            this->storeInput(imageWidth - k, Complex<V>{re[i] + imB[i], reB[i] - im[i]});
          }
        });
      });
      rows.run(tile, tile);
      storeRealRows(pairs, 0, scale);
      storeRealRows(pairs, 1, scale);
    });
  }

private:
  // ---- Real rows: the first (second) rows of the pairs are the real (imaginary) parts of the tile's elements ----

  void loadRealRows(PairedRows pairs, s64 part) const {
    const auto rowOf = [=](int r) RNX_LAMBDA { return pairs(r, part); };
    f32* const to = tile + part * L;
    if (call.channels == 1) {
      this->loadRows(call.src, call.srcStep, imageWidth, rowOf,
                     [=](s64 x, V v) RNX_LAMBDA { v.store(to + x * kElement<V>); });
      return;
    }
    for (s64 x = 0; x < imageWidth; ++x) {
      for (int r = 0; r < L; ++r) {
        to[x * kElement<V> + r] = simd::loadOne(core::at(call.src, rowOf(r) * call.srcStep, x * call.channels));
      }
    }
  }

  void storeRealRows(PairedRows pairs, s64 part, f32 scale) const {
    const V factor = V::splat(scale);
    const Outputs<V> outputs = this->outputsOf(rows);
    const auto rowAt = [&](int r, s64 x) RNX_LAMBDA { return core::at(call.dst, pairs(r, part) * call.dstStep, x); };
    for (s64 x = 0; x < imageWidth; x += G) {
      const s64 at = std::min(x, imageWidth - G);
      V column[G];
      unroll<0, G>([&](auto i) RNX_LAMBDA { column[i.value] = V::load(outputs.at(at + i.value) + part * L) * factor; });
      if (call.channels == 1) {
        storeColumns([&](int r) RNX_LAMBDA { return rowAt(r, at); }, column);
        continue;
      }
      for (int i = 0; i < G; ++i) {
        f32 lanes[L];
        column[i].store(lanes);
        for (int r = 0; r < L; ++r) write(rowAt(r, (at + i) * call.channels), lanes[r]);
      }
    }
  }

  // ---- Strips ----

  RNX_INLINE Complex<V> middleColumn() const {
    if (imageWidth % 2 != 0) return {V::splat(0.0f), V::splat(0.0f)};
    return rows.outputs(tile)[imageWidth / 2];
  }

  RNX_INLINE void loadGroup(s64 strip, int group, PairedRows pairs, s64 part, V (&re)[G], V (&im)[G]) const {
    const f32* base = this->stripRow(strip, 0) + group * G;
    loadColumns([&](int r) RNX_LAMBDA { return base + pairs(r, part) * kElement<V>; }, re);
    loadColumns([&](int r) RNX_LAMBDA { return base + L + pairs(r, part) * kElement<V>; }, im);
  }

  // ---- Rows of the packed spectrum: number k of a row, k at least 1, stands in columns 2 k - 1 and 2 k ----

  RNX_INLINE void storePacked(s64 row, s64 start, Complex<V> x) const {
    f32* to = core::at(call.dst, row * call.dstStep);
    if (call.channels == 1 && start > 0) return storePairs(to + 2 * start - 1, x);
    if (call.channels == 1) {
      V first, second;
      simd::interleave(x.re, x.im, first, second);
      storeBehindPair(to - 1, first);
      second.store(to - 1 + L);
      return;
    }
    f32 buffer[2 * L];
    storePairs(buffer, x);
    for (s64 i = start == 0 ? 2 : 0; i < 2 * L; ++i) {
      write(core::at(to, 0, (2 * start - 1 + i) * call.channels), buffer[i]);
    }
  }

  RNX_INLINE Complex<V> loadPacked(s64 row, s64 start) const {
    const f32* from = core::at(call.src, row * call.srcStep);
    if (call.channels == 1 && start > 0) return loadPairs<V>(from + 2 * start - 1);
    f32 buffer[2 * L];
    if (call.channels == 1) {
      simd::loadBehindPair(from - 1).store(buffer);
      V::load(from - 1 + L).store(buffer + L);
      return loadPairs<V>(buffer);
    }
    buffer[0] = buffer[1] = 0;
    for (s64 i = start == 0 ? 2 : 0; i < 2 * L; ++i) {
      buffer[i] = simd::loadOne(core::at(from, 0, (2 * start - 1 + i) * call.channels));
    }
    return loadPairs<V>(buffer);
  }

  // ---- The outer columns, which share lane 0 of strip 0. P is column 0, Q column width - 1. ----

  f32* outer(f32* image, s64 step, s64 row, bool right) const {
    return core::at(image, row * step, right ? (imageWidth - 1) * call.channels : 0);
  }

  void storeOuterColumns(f32 scale) const {
    const bool hasRight = imageWidth % 2 == 0;
    const f32 half = 0.5f * scale;
    const auto put = [&](s64 row, f32 left, f32 right) RNX_LAMBDA {
      write(outer(call.dst, call.dstStep, row, false), left);
      if (hasRight) write(outer(call.dst, call.dstStep, row, true), right);
    };
    const Outputs<V> outputs = columns.outputs(tile);
    const auto z = [&](s64 l) RNX_LAMBDA { return fc32{outputs.at(l)[0], outputs.at(l)[L]}; };
    put(0, z(0).re * scale, z(0).im * scale);
    for (s64 l = 1; 2 * l < height; ++l) {
      const fc32 a = z(l), b = z(height - l);
      put(2 * l - 1, (a.re + b.re) * half, (a.im + b.im) * half);
      put(2 * l, (a.im - b.im) * half, (b.re - a.re) * half);
    }
    if (height % 2 == 0) put(height - 1, z(height / 2).re * scale, z(height / 2).im * scale);
  }

  void loadOuterColumns() const {
    const bool hasRight = imageWidth % 2 == 0;
    f32* src = const_cast<f32*>(call.src);
    const auto left = [&](s64 row) RNX_LAMBDA { return simd::loadOne(outer(src, call.srcStep, row, false)); };
    const auto right = [&](s64 row)
                           RNX_LAMBDA { return hasRight ? simd::loadOne(outer(src, call.srcStep, row, true)) : 0.0f; };
    const auto put = [&](s64 l, f32 re, f32 im) RNX_LAMBDA {
      f32* to = this->stripRow(0, l);
      to[0] = re;
      to[L] = im;
    };
    put(0, left(0), right(0));
    for (s64 l = 1; 2 * l < height; ++l) {
      const fc32 p = {left(2 * l - 1), left(2 * l)}, q = {right(2 * l - 1), right(2 * l)};
      put(l, p.re - q.im, p.im + q.re);
      put(height - l, p.re + q.im, q.re - p.im);
    }
    if (height % 2 == 0) put(height / 2, left(height - 1), right(height - 1));
  }

  const s64 imageWidth;
};

}  // namespace
}  // namespace rnx::fft
