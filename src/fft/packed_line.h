// Real lines. A line of even length n is one of n / 2 complex numbers z_j = x_(2j) + i x_(2j+1); with h = n / 2,
//   E_k = (Z_k + conj Z_(h-k)) / 2,   O_k = (Z_k - conj Z_(h-k)) / 2i,   X_k = E_k + exp(-2 pi i k / n) O_k
// Included by row kernels only.
#pragma once

#include "fft/grid.h"

namespace rnx::fft {
namespace {

// Elements of a real line, and the packed spectrum X_0, (X_1), (X_2), ...
struct RealLine {
  f32* first;
  s64 step;  // bytes
  s64 length;

  f32* at(s64 j) const { return core::at(first, j * step); }
  f32 get(s64 j) const { return simd::loadOne(at(j)); }
  void put(s64 j, f32 v) const { write(at(j), v); }
  fc32 number(s64 k) const { return {get(2 * k - 1), get(2 * k)}; }
  void putNumber(s64 k, f32 re, f32 im) const {
    put(2 * k - 1, re);
    put(2 * k, im);
  }
  Line pairs() const { return {first, 2 * step, step}; }
};

// Z to the packed spectrum.
inline void unpackHalves(const TransformCall& call, const f32* z, const RealLine& dst, f32 scale) {
  const s64 h = dst.length / 2;
  const f32 half = 0.5f * scale;
  dst.put(0, (z[0] + z[1]) * scale);
  dst.put(2 * h - 1, (z[0] - z[1]) * scale);
  for (s64 k = 1; 2 * k <= h; ++k) {
    const f32 *a = z + 2 * k, *b = z + 2 * (h - k);
    const Complex<Single> w = splatFactor<Single>(call.spec->table<fc32>(call.spec->halfTwiddles) + k);
    const Complex<Single> even = {{a[0] + b[0]}, {a[1] - b[1]}}, odd = {{a[1] + b[1]}, {b[0] - a[0]}};
    const Complex<Single> turned = odd * w;
    const Complex<Single> x = even + turned, y = even - turned;
    dst.putNumber(k, x.re.raw * half, x.im.raw * half);
    if (k < h - k) dst.putNumber(h - k, y.re.raw * half, -y.im.raw * half);
  }
}

// The packed spectrum to 2 Z.
inline void packHalves(const TransformCall& call, const RealLine& src, f32* z) {
  const s64 h = src.length / 2;
  const f32 first = src.get(0), last = src.get(2 * h - 1);
  z[0] = first + last;
  z[1] = first - last;
  for (s64 k = 1; 2 * k <= h; ++k) {
    const fc32 a = src.number(k), b = src.number(h - k);
    const Complex<Single> w = splatFactor<Single>(call.spec->table<fc32>(call.spec->halfTwiddles) + k);
    const Complex<Single> sum = {{a.re + b.re}, {a.im - b.im}};
    const Complex<Single> difference = {{a.re - b.re}, {a.im + b.im}};
    // i * conj w * difference
    const Complex<Single> turned = difference * Complex<Single>{w.im, w.re};
    const Complex<Single> x = sum + turned, y = sum - turned;
    z[2 * k] = x.re.raw;
    z[2 * k + 1] = x.im.raw;
    z[2 * (h - k)] = y.re.raw;
    z[2 * (h - k) + 1] = -y.im.raw;
  }
}

// Lines of odd length, as complex ones.
inline void oddForward(const Grid<Single>& grid, const RealLine& src, const RealLine& dst, f32 scale) {
  for (s64 j = 0; j < src.length; ++j) grid.storeInput(j, Complex<Single>{{src.get(j)}, {0.0f}});
  grid.rows.run(grid.tile, grid.tile);
  const Outputs<Single> outputs = grid.outputsOf(grid.rows);
  dst.put(0, outputs[0].re.raw * scale);
  for (s64 k = 1; 2 * k < src.length; ++k) {
    const Complex<Single> x = outputs[k];
    dst.putNumber(k, x.re.raw * scale, x.im.raw * scale);
  }
}

inline void oddInverse(const Grid<Single>& grid, const RealLine& src, const RealLine& dst, f32 scale) {
  grid.storeInput(0, Complex<Single>{{src.get(0)}, {0.0f}});
  for (s64 k = 1; 2 * k < src.length; ++k) {
    const fc32 x = src.number(k);
    grid.storeInput(k, Complex<Single>{{x.re}, {x.im}});
    grid.storeInput(src.length - k, Complex<Single>{{x.re}, {-x.im}});
  }
  grid.rows.run(grid.tile, grid.tile);
  const Outputs<Single> outputs = grid.outputsOf(grid.rows);
  for (s64 j = 0; j < src.length; ++j) dst.put(j, outputs[j].re.raw * scale);
}

}  // namespace
}  // namespace rnx::fft
