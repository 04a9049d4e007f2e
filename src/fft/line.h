// Sequences in images, at any step. Included by row kernels only.
#pragma once

#include "core/image.h"
#include "fft/lanes.h"

namespace rnx::fft {
namespace {

// Complex numbers: number j has its real part at j * step, its imaginary part imStep behind it.
struct Line {
  f32* first;
  s64 step, imStep;  // bytes

  bool isContiguous() const { return step == sizeof(fc32) && imStep == sizeof(f32); }
  RNX_INLINE f32* re(s64 j) const { return core::at(first, j * step); }
  RNX_INLINE f32* im(s64 j) const { return core::at(first, j * step + imStep); }
  RNX_INLINE Complex<Single> get(s64 j) const { return {Single::load(re(j)), Single::load(im(j))}; }
  RNX_INLINE void put(s64 j, Complex<Single> x) const {
    x.re.store(re(j));
    x.im.store(im(j));
  }
};

// Elements of a real line, or its packed spectrum X_0, (X_1), (X_2), ...
struct RealLine {
  f32* first;
  s64 step;  // bytes

  bool isContiguous() const { return step == sizeof(f32); }
  RNX_INLINE f32* at(s64 j) const { return core::at(first, j * step); }
  RNX_INLINE f32 get(s64 j) const { return simd::loadOne(at(j)); }
  RNX_INLINE void put(s64 j, f32 v) const { write(at(j), v); }
  RNX_INLINE fc32 number(s64 k) const { return {get(2 * k - 1), get(2 * k)}; }
  RNX_INLINE void putNumber(s64 k, f32 re, f32 im) const {
    put(2 * k - 1, re);
    put(2 * k, im);
  }
  // Two elements each.
  Line pairs() const { return {first, 2 * step, step}; }
};

}  // namespace
}  // namespace rnx::fft
