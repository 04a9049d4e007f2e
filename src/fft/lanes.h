// The lane types of the transforms: a vector transforms as many sequences side by side as it has lanes, Single one.
// A sequence sees the same operations in the same order in each of them. Included by row kernels only.
#pragma once

#include <cstring>

#include "simd/transpose.h"

// Lambdas of the inner loops: their captures must stay in registers.
#define RNX_LAMBDA __attribute__((always_inline))

namespace rnx::fft {
namespace {

using simd::Vec;

template <class T>
RNX_INLINE void write(void* p, T value) {  // images may start at any address
  std::memcpy(p, &value, sizeof(T));
}

struct Single {
  static constexpr int kLanes = 1;
  f32 raw;

  static RNX_INLINE Single splat(f32 v) { return {v}; }
  static RNX_INLINE Single load(const f32* p) { return {simd::loadOne(p)}; }
  RNX_INLINE void store(f32* p) const { write(p, raw); }
};

RNX_INLINE Single operator+(Single a, Single b) { return {a.raw + b.raw}; }
RNX_INLINE Single operator-(Single a, Single b) { return {a.raw - b.raw}; }
RNX_INLINE Single operator*(Single a, Single b) { return {a.raw * b.raw}; }

template <class V>
RNX_INLINE V negate(V v) {
  return {-v.raw};
}

template <class V>
struct Complex {
  V re, im;
};

template <class V>
RNX_INLINE Complex<V> operator+(Complex<V> a, Complex<V> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class V>
RNX_INLINE Complex<V> operator-(Complex<V> a, Complex<V> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class V>
RNX_INLINE Complex<V> operator*(Complex<V> a, Complex<V> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
template <class V>
RNX_INLINE Complex<V> operator*(Complex<V> a, V b) {
  return {a.re * b, a.im * b};
}

// An element of a tile: the real parts of all lanes, then the imaginary parts.
template <class V>
inline constexpr s64 kElement = 2 * V::kLanes;

template <class V>
RNX_INLINE Complex<V> loadElement(const f32* p) {
  return {V::load(p), V::load(p + V::kLanes)};
}
template <class V>
RNX_INLINE void storeElement(f32* p, Complex<V> x) {
  x.re.store(p);
  x.im.store(p + V::kLanes);
}
// One factor for all lanes, from a table of complex numbers.
template <class V>
RNX_INLINE Complex<V> splatFactor(const fc32* p) {
  return {V::splat(p->re), V::splat(p->im)};
}

// ---- Single in the shapes of simd/transpose.h ----

template <class V>
inline constexpr int kGroup = V::kLanes < 4 ? 1 : 4;  // columns that are transposed at a time

template <class Row>
RNX_INLINE void loadColumns(Row row, Single (&column)[1]) {
  column[0] = Single::load(row(0));
}
template <class Row>
RNX_INLINE void storeColumns(Row row, Single (&column)[1]) {
  column[0].store(row(0));
}

template <class V>
RNX_INLINE constexpr int pairedElement(int lane) {
  if constexpr (V::kLanes == 1) return 0;
  return simd::pairedElement(lane);
}

template <class V>
RNX_INLINE Complex<V> loadPairs(const f32* p) {
  Complex<V> x;
  if constexpr (V::kLanes == 1) {
    x = loadElement<V>(p);
  } else {
    simd::loadPairs(p, x.re, x.im);
  }
  return x;
}
template <class V>
RNX_INLINE void storePairs(f32* p, Complex<V> x) {
  if constexpr (V::kLanes == 1) {
    storeElement(p, x);
  } else {
    V first, second;
    simd::interleave(x.re, x.im, first, second);
    first.store(p);
    second.store(p + V::kLanes);
  }
}

}  // namespace
}  // namespace rnx::fft
