// Filling the tables of a resize spec, vector by vector, and checking a tile's entries.
#include "geom/resize_rows.h"
#include "simd/convert.h"

namespace rnx::geom {
namespace {

using namespace simd;

constexpr int L = Vec<s32>::kLanes;  // entries of a step: two vectors of doubles

#if RNX_VECTOR_BYTES == 32
RNX_INLINE Vec<f32> toSingle(Pair<f64> v) {
  return {_mm256_set_m128(_mm256_cvtpd_ps(v.hi.raw), _mm256_cvtpd_ps(v.lo.raw))};
}
#else
RNX_INLINE Vec<f32> toSingle(Pair<f64> v) { return {_mm_movelh_ps(_mm_cvtpd_ps(v.lo.raw), _mm_cvtpd_ps(v.hi.raw))}; }
#endif

// The centres i + 0.5 of the destination positions, exact.
struct Centres {
  Pair<f64> at;

  static RNX_INLINE Centres begin() {
    Centres c;
    for (int i = 0; i < L / 2; ++i) {
      c.at.lo.raw[i] = i + 0.5;
      c.at.hi.raw[i] = i + L / 2 + 0.5;
    }
    return c;
  }
  RNX_INLINE void next() {
    const Vec<f64> step = Vec<f64>::splat(L);
    at = {at.lo + step, at.hi + step};
  }
};

// Truncation of (i + 0.5) * scale - 1e-10: a centre on the boundary of two pixels belongs to the lower one.
void nearest(s32* index, s64 n, f64 scale) {
  const Vec<f64> factor = Vec<f64>::splat(scale), epsilon = Vec<f64>::splat(1e-10);
  Centres centres = Centres::begin();
  for (s64 i = 0; i < n; i += L, centres.next()) {
    truncateToInt(Pair<f64>{centres.at.lo * factor - epsilon, centres.at.hi * factor - epsilon}).store(index + i);
  }
}

// x = (i + 0.5) * scale - 0.5; its floor is the index and the rest the fraction.
template <class Weight, class F>
RNX_INLINE void linear(s32* index, Weight* weights, s64 n, f64 scale, F storeWeights) {
  const Vec<f64> factor = Vec<f64>::splat(scale), half = Vec<f64>::splat(0.5);
  Centres centres = Centres::begin();
  for (s64 i = 0; i < n; i += L, centres.next()) {
    const Pair<f64> x = {centres.at.lo * factor - half, centres.at.hi * factor - half};
    const Pair<f64> floor = {roundTo<_MM_FROUND_TO_NEG_INF>(x.lo), roundTo<_MM_FROUND_TO_NEG_INF>(x.hi)};
    truncateToInt(floor).store(index + i);
    storeWeights(weights + i, Pair<f64>{x.lo - floor.lo, x.hi - floor.hi});
  }
}

// w = truncation of fraction * 16384 + 1e-7, which keeps an exact product from falling one short.
void linearFixed(s32* index, FixedPair* weights, s64 n, f64 scale) {
  const Vec<f64> one = Vec<f64>::splat(16384), epsilon = Vec<f64>::splat(1e-7);
  const Vec<u32> whole = Vec<u32>::splat(16384);
  linear(index, weights, n, scale, [&](FixedPair* to, Pair<f64> f) {
    const Vec<u32> w = truncateToInt(Pair<f64>{f.lo * one + epsilon, f.hi * one + epsilon}).template as<u32>();
    (whole + w * Vec<u32>::splat(65535)).store(to);  // 16384 - w + (w << 16)
  });
}

void linearSingle(s32* index, f32* weights, s64 n, f64 scale) {
  linear(index, weights, n, scale, [](f32* to, Pair<f64> f) { toSingle(f).store(to); });
}

void linearDouble(s32* index, f64* weights, s64 n, f64 scale) {
  linear(index, weights, n, scale, [](f64* to, Pair<f64> f) { f.lo.store(to), f.hi.store(to + L / 2); });
}

bool ascending(const s32* index, s64 n) {
  constexpr int kAtOnce = 4;
  const auto fallsAt = [=](s64 i) RNX_INLINE_LAMBDA {
    return greater(Vec<s32>::load(index + i), Vec<s32>::load(index + i + 1));
  };
  s64 i = 0;
  Mask<s32> falls[kAtOnce] = {};
  for (; i + kAtOnce * L < n; i += kAtOnce * L) {
    RNX_UNROLL
    for (int k = 0; k < kAtOnce; ++k) falls[k] = falls[k] | fallsAt(i + k * L);
  }
  for (; i + L < n; i += L) falls[0] = falls[0] | fallsAt(i);
  bool holds = !anySet((falls[0] | falls[1]) | (falls[2] | falls[3]));
  for (; i + 1 < n; ++i) holds = holds && index[i] <= index[i + 1];
  return holds;
}

}  // namespace

namespace RNX_WIDTH {

constinit const TableKernels tableKernels = {nearest, linearFixed, linearSingle, linearDouble, ascending};

}  // namespace RNX_WIDTH
}  // namespace rnx::geom
