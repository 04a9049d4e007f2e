// Real lines of even length n, as n / 2 complex numbers z_j = x_(2j) + i x_(2j+1); with h = n / 2,
//   E_k = (Z_k + conj Z_(h-k)) / 2,   O_k = (Z_k - conj Z_(h-k)) / 2i,   X_k = E_k + exp(-2 pi i k / n) O_k
// The packed spectrum and Z take the same room, the destination: numbers k and h - k become those of the other kind in
// place, vectors of them where the line is contiguous. Number X_k begins an element before Z_k, so what one step writes
// reaches into the numbers of the next one on one side: those are loaded first.
// Included by row kernels only.
#pragma once

#include "fft/line.h"
#include "fft/transform_kernels.h"

namespace rnx::fft {
namespace {

// Where the numbers of a kind stand in a line: Z_k from element 2 k, X_k from 2 k - 1.
enum class Kind { kHalves, kPacked };

template <Kind kKind>
RNX_INLINE f32* numberAt(const RealLine& line, s64 k) {
  return line.at(2 * k - (kKind == Kind::kPacked ? 1 : 0));
}

// Numbers k, k + 1 ... in the lanes.
template <class V, Kind kKind>
RNX_INLINE Complex<V> loadNumbers(const RealLine& line, s64 k) {
  const f32* p = numberAt<kKind>(line, k);
  if constexpr (V::kLanes > 1) {
    return loadPairs<V>(p);
  } else {
    return {Single::load(p), Single::load(core::at(p, line.step))};
  }
}
template <class V, Kind kKind>
RNX_INLINE void storeNumbers(const RealLine& line, s64 k, Complex<V> x) {
  f32* p = numberAt<kKind>(line, k);
  if constexpr (V::kLanes > 1) {
    storePairs(p, x);
  } else {
    x.re.store(p);
    x.im.store(core::at(p, line.step));
  }
}

// Numbers k, k - 1 ... in the lanes.
template <class V, Kind kKind>
RNX_INLINE Complex<V> loadMirrored(const RealLine& line, s64 k) {
  const Complex<V> x = loadNumbers<V, kKind>(line, k - (V::kLanes - 1));
  return {reversed(x.re), reversed(x.im)};
}
template <class V, Kind kKind>
RNX_INLINE void storeMirrored(const RealLine& line, s64 k, Complex<V> x) {
  storeNumbers<V, kKind>(line, k - (V::kLanes - 1), Complex<V>{reversed(x.re), reversed(x.im)});
}

template <class V>
struct Mirrored {
  Complex<V> x, y;  // numbers k and h - k
};

// From Z; w = exp(-2 pi i k / n).
template <class V>
RNX_INLINE Mirrored<V> unpacked(Complex<V> a, Complex<V> b, Complex<V> w, V half) {
  const Complex<V> even = {a.re + b.re, a.im - b.im}, odd = {a.im + b.im, b.re - a.re};
  const Complex<V> turned = odd * w;
  const Complex<V> x = even + turned, y = even - turned;
  return {x * half, Complex<V>{y.re, negate(y.im)} * half};
}

// To 2 Z, by i * conj w * difference.
template <class V>
RNX_INLINE Mirrored<V> packed(Complex<V> a, Complex<V> b, Complex<V> w) {
  const Complex<V> sum = {a.re + b.re, a.im - b.im}, difference = {a.re - b.re, a.im + b.im};
  const Complex<V> turned = difference * Complex<V>{w.im, w.re};
  const Complex<V> x = sum + turned, y = sum - turned;
  return {x, {y.re, negate(y.im)}};
}

class Halves {
public:
  explicit Halves(const TransformCall& call)
      : twiddles_(call.spec->table<f32>(call.spec->halfTwiddles)),
        h_(std::max(call.spec->width, call.spec->height) / 2) {}

  // Z to the packed spectrum. In the middle, where h is even, numbers k and h - k are the same.
  void unpack(const RealLine& line, f32 scale) const {
    const f32 re = line.get(0), im = line.get(1), half = 0.5f * scale;
    Complex<Single> b = loadNumbers<Single, Kind::kHalves>(line, h_ - 1);
    s64 k = 1;
    if (line.isContiguous()) k = unpackFrom<Vec<f32>>(k, line, b, half);
    k = unpackFrom<Single>(k, line, b, half);
    if (2 * k == h_) {
      storeNumbers<Single, Kind::kPacked>(line, k, unpacked(b, b, twiddles<Single>(k), Single::splat(half)).x);
    }
    line.put(0, (re + im) * scale);
    line.put(2 * h_ - 1, (re - im) * scale);
  }

  // The packed spectrum to 2 Z; src may be dst.
  void pack(const RealLine& src, const RealLine& dst) const {
    const f32 first = src.get(0), last = src.get(2 * h_ - 1);
    Complex<Single> a = {};
    if (h_ > 1) a = loadNumbers<Single, Kind::kPacked>(src, 1);
    s64 k = 1;
    if (src.isContiguous() && dst.isContiguous()) k = packFrom<Vec<f32>>(k, src, dst, a);
    k = packFrom<Single>(k, src, dst, a);
    if (2 * k == h_) storeNumbers<Single, Kind::kHalves>(dst, k, packed(a, a, twiddles<Single>(k)).x);
    dst.put(0, first + last);
    dst.put(1, first - last);
  }

private:
  template <class V>
  RNX_INLINE Complex<V> twiddles(s64 k) const {
    return loadPairs<V>(twiddles_ + 2 * k);
  }
  // Whether numbers k ... and h - k ... fill vectors that share none.
  template <class V>
  RNX_INLINE bool fills(s64 k) const {
    return 2 * (k + V::kLanes - 1) < h_;
  }
  template <class V>
  static RNX_INLINE Complex<Single> firstOf(Complex<V> ahead) {
    if constexpr (V::kLanes > 1) {
      return {{ahead.re.raw[0]}, {ahead.im.raw[0]}};
    } else {
      return ahead;
    }
  }

  // b is Z_(h-k), before and after.
  template <class V>
  s64 unpackFrom(s64 k, const RealLine& line, Complex<Single>& b, f32 scale) const {
    if (!fills<V>(k)) return k;
    const V half = V::splat(scale);
    Complex<V> mirrored;
    if constexpr (V::kLanes > 1) {
      mirrored = loadMirrored<V, Kind::kHalves>(line, h_ - k);
    } else {
      mirrored = b;
    }
    for (; fills<V>(k); k += V::kLanes) {
      const Complex<V> a = loadNumbers<V, Kind::kHalves>(line, k);
      const Mirrored<V> m = unpacked(a, mirrored, twiddles<V>(k), half);
      mirrored = loadMirrored<V, Kind::kHalves>(line, h_ - k - V::kLanes);
      storeNumbers<V, Kind::kPacked>(line, k, m.x);
      storeMirrored<V, Kind::kPacked>(line, h_ - k, m.y);
    }
    b = firstOf(mirrored);
    return k;
  }

  // a is X_k, before and after.
  template <class V>
  s64 packFrom(s64 k, const RealLine& src, const RealLine& dst, Complex<Single>& a) const {
    if (!fills<V>(k)) return k;
    Complex<V> numbers;
    if constexpr (V::kLanes > 1) {
      numbers = loadNumbers<V, Kind::kPacked>(src, k);
    } else {
      numbers = a;
    }
    for (; fills<V>(k); k += V::kLanes) {
      const Complex<V> b = loadMirrored<V, Kind::kPacked>(src, h_ - k);
      const Mirrored<V> m = packed(numbers, b, twiddles<V>(k));
      numbers = loadNumbers<V, Kind::kPacked>(src, k + V::kLanes);
      storeNumbers<V, Kind::kHalves>(dst, k, m.x);
      storeMirrored<V, Kind::kHalves>(dst, h_ - k, m.y);
    }
    a = firstOf(numbers);
    return k;
  }

  const f32* twiddles_;
  const s64 h_;
};

}  // namespace
}  // namespace rnx::fft
