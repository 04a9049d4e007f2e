// Discrete Fourier transforms of a few points, fully unrolled, forward (negative exponent), natural order in and out.
// Primes are direct; composites are built of their factors with constant twiddles. Included by row kernels only.
#pragma once

#include "fft/lanes.h"

namespace rnx::fft {
namespace {

// ---- Constants at compile time ----

// Cosine and sine of x in [0, pi/4], by their series: to the last bit or two of double precision.
constexpr f64 series(f64 x, f64 term, int first) {
  f64 sum = 0;
  for (int i = first; i < first + 24; i += 2) {
    sum += term;
    term *= -x * x / ((i + 1) * (i + 2));
  }
  return sum;
}

struct Root {
  f64 cosine, sine;
};

// Of the angle 2 pi k / n, reduced to an eighth of the circle.
constexpr Root rootOf(int k, int n) {
  k %= n;
  const int octant = 8 * k / n, rest = 8 * k - octant * n;
  const f64 x = 0.78539816339744830962 * (octant % 2 == 1 ? n - rest : rest) / n;
  const f64 c = series(x, 1, 0), s = series(x, x, 1);
  const bool swapped = (octant + 1) % 4 >= 2;
  const f64 a = swapped ? s : c, b = swapped ? c : s;
  return {octant >= 2 && octant < 6 ? -a : a, octant >= 4 ? -b : b};
}

template <int K, int N>
inline constexpr f64 kCosine = rootOf(K, N).cosine;
template <int K, int N>
inline constexpr f64 kSine = rootOf(K, N).sine;

// ---- Unrolling ----

template <int I>
struct Index {
  static constexpr int value = I;
};

template <int From, int To, class F>
RNX_INLINE void unroll(F&& f) {
  if constexpr (From < To) {
    f(Index<From>{});
    unroll<From + 1, To>(f);
  }
}

// ---- Rotations ----

template <class V>
RNX_INLINE Complex<V> timesMinusI(Complex<V> x) {
  return {x.im, negate(x.re)};
}

// x * exp(-2 pi i K / N). Quarter turns by renaming, eighths with two products, in the sums of the caller.
template <int K, int N, class V>
RNX_INLINE Complex<V> rotate(Complex<V> x) {
  constexpr int k = K % N;
  if constexpr (k == 0) {
    return x;
  } else if constexpr (4 * k == N) {
    return timesMinusI(x);
  } else if constexpr (8 * k == N) {
    const V c = splatConstant<V>(kCosine<1, 8>);
    return {(x.re + x.im) * c, (x.im - x.re) * c};
  } else if constexpr (8 * k == 3 * N) {
    const V c = splatConstant<V>(kCosine<1, 8>), minus = splatConstant<V>(-kCosine<1, 8>);
    return {(x.im - x.re) * c, (x.re + x.im) * minus};
  } else {
    const V c = splatConstant<V>(kCosine<k, N>), s = splatConstant<V>(kSine<k, N>);
    return {x.re * c + x.im * s, x.im * c - x.re * s};
  }
}

// ---- Butterflies ----

// The points of a butterfly, real and imaginary parts apart: compilers keep arrays of vectors in registers, but not
// arrays of pairs of them.
template <class V, int N>
struct Points {
  V re[N], im[N];

  RNX_INLINE Complex<V> operator[](int i) const { return {re[i], im[i]}; }
  RNX_INLINE void set(int i, Complex<V> x) {
    re[i] = x.re;
    im[i] = x.im;
  }
};

// An odd prime P, by its symmetric halves: with s_k = x_k + x_(P-k) and d_k = x_k - x_(P-k),
//   X_j, X_(P-j) = x_0 + sum of cos(2 pi jk/P) s_k  -+  i * sum of sin(2 pi jk/P) d_k
template <int P>
struct Butterfly {
  template <class V>
  static RNX_INLINE void apply(Points<V, P>& x) {
    constexpr int kHalf = P / 2;
    Points<V, kHalf + 1> sum, difference;  // from 1
    const Complex<V> first = x[0];
    Complex<V> total = first;
    unroll<1, kHalf + 1>([&](auto k) RNX_LAMBDA {
      sum.set(k.value, x[k.value] + x[P - k.value]);
      difference.set(k.value, x[k.value] - x[P - k.value]);
      total = total + sum[k.value];
    });
    x.set(0, total);
    unroll<1, kHalf + 1>([&](auto output) RNX_LAMBDA {
      constexpr int j = decltype(output)::value;
      Complex<V> r = first + sum[1] * splatConstant<V>(kCosine<j, P>),
                 i = difference[1] * splatConstant<V>(kSine<j, P>);
      unroll<2, kHalf + 1>([&](auto index) RNX_LAMBDA {
        constexpr int k = decltype(index)::value;
        r = r + sum[k] * splatConstant<V>(kCosine<k * j, P>);
        i = i + difference[k] * splatConstant<V>(kSine<k * j, P>);
      });
      x.set(j, {r.re + i.im, r.im - i.re});
      x.set(P - j, {r.re - i.im, r.im + i.re});
    });
  }
};

template <>
struct Butterfly<2> {
  template <class V>
  static RNX_INLINE void apply(Points<V, 2>& x) {
    const Complex<V> a = x[0], b = x[1];
    x.set(0, a + b);
    x.set(1, a - b);
  }
};

template <>
struct Butterfly<4> {
  template <class V>
  static RNX_INLINE void apply(Points<V, 4>& x) {
    const Complex<V> a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = x[1] - x[3];
    x.set(0, a + c);
    x.set(1, {b.re + d.im, b.im - d.re});
    x.set(2, a - c);
    x.set(3, {b.re - d.im, b.im + d.re});
  }
};

// A * B points: with input B a + b and output k + A l, transforms of A points over a, rotations, and of B points over
// b.
template <int A, int B>
struct Composite {
  template <class V>
  static RNX_INLINE void apply(Points<V, A * B>& x) {
    unroll<0, B>([&](auto column) RNX_LAMBDA {
      constexpr int b = decltype(column)::value;
      Points<V, A> t;
      unroll<0, A>([&](auto a) RNX_LAMBDA { t.set(a.value, x[B * a.value + b]); });
      Butterfly<A>::apply(t);
      unroll<0, A>([&](auto index) RNX_LAMBDA {
        constexpr int k = decltype(index)::value;
        x.set(B * k + b, rotate<b * k, A * B>(t[k]));
      });
    });
    const Points<V, A* B> y = x;
    unroll<0, A>([&](auto row) RNX_LAMBDA {
      constexpr int k = decltype(row)::value;
      Points<V, B> t;
      unroll<0, B>([&](auto b) RNX_LAMBDA { t.set(b.value, y[B * k + b.value]); });
      Butterfly<B>::apply(t);
      unroll<0, B>([&](auto l) RNX_LAMBDA { x.set(k + A * l.value, t[l.value]); });
    });
  }
};

// clang-format off
template <> struct Butterfly<6> : Composite<2, 3> {};
template <> struct Butterfly<8> : Composite<2, 4> {};
// clang-format on

}  // namespace
}  // namespace rnx::fft
