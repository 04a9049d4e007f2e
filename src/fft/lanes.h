// The lane types of the transforms: a vector transforms as many sequences side by side as it has lanes, Single one.
// A sequence sees the same operations in the same order in each of them. Included by row kernels only.
#pragma once

#include <cstring>

#include "fft/spec.h"
#include "simd/halves.h"
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

// Lanes of a tile of V that compute in double precision: each load widens, each store rounds. Where one register does
// not hold all lanes of V, kAtOnce are computed side by side.
template <class V>
struct Precise;

template <>
struct Precise<Single> {
  static constexpr int kLanes = 1, kAtOnce = 1;
  f64 raw;

  static RNX_INLINE Precise splat(f64 v) { return {v}; }
  static RNX_INLINE Precise load(const f32* p) { return {simd::loadOne(p)}; }
  RNX_INLINE void store(f32* p) const { write(p, static_cast<f32>(raw)); }
};

template <>
struct Precise<Vec<f32>> {
  static constexpr int kLanes = Vec<f32>::kLanes, kAtOnce = kLanes / 2;
  Vec<f64>::Raw raw;

  static RNX_INLINE Precise splat(f64 v) { return {Vec<f64>::splat(v).raw}; }
  static RNX_INLINE Precise load(const f32* p) { return {simd::loadHalfAsDouble(p).raw}; }
  RNX_INLINE void store(f32* p) const { simd::storeAsSingle(p, Vec<f64>{raw}); }
};

template <class V>
RNX_INLINE Precise<V> operator+(Precise<V> a, Precise<V> b) {
  return {a.raw + b.raw};
}
template <class V>
RNX_INLINE Precise<V> operator-(Precise<V> a, Precise<V> b) {
  return {a.raw - b.raw};
}
template <class V>
RNX_INLINE Precise<V> operator*(Precise<V> a, Precise<V> b) {
  return {a.raw * b.raw};
}

// The numbers that lanes are multiplied by.
template <class V>
struct FactorOf {
  using Real = f32;
  using Number = fc32;
};
template <class V>
struct FactorOf<Precise<V>> {
  using Real = f64;
  using Number = fc64;
};
template <class V>
using Factor = typename FactorOf<V>::Number;

template <class V>
RNX_INLINE V splatConstant(f64 v) {
  return V::splat(static_cast<typename FactorOf<V>::Real>(v));
}

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
RNX_INLINE Complex<V> splatFactor(const Factor<V>* p) {
  return {V::splat(p->re), V::splat(p->im)};
}

// ---- Complex numbers in memory, real and imaginary part side by side ----

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

RNX_INLINE Single reversed(Single v) { return v; }

}  // namespace
}  // namespace rnx::fft
