// One sequence at a time: lines, and the rows and columns of images too narrow for vectors. Such images need no work
// memory but one tile: between the axes their numbers stand in the destination.
// Included by row kernels only.
#pragma once

#include "fft/line.h"
#include "fft/parts.h"
#include "fft/transform_kernels.h"

namespace rnx::fft {
namespace {

// Two real lines a, b of one step that are transformed together as a + i b and taken apart afterwards; a lone line is
// its own partner, and both parts come out alike:
//   2 A_k = Z_k + conj Z_(n-k),   2 i B_k = Z_k - conj Z_(n-k)
struct RealPair {
  RealLine a, b;

  Line numbers() const {
    const s64 apart = reinterpret_cast<intptr_t>(b.first) - reinterpret_cast<intptr_t>(a.first);
    return {a.first, a.step, apart};
  }
};

class Series {
public:
  Series(const TransformCall& call, const Plan& plan)
      : transform_(*call.spec, plan),
        parts_(*call.spec, plan),
        length_(plan.length),
        inParts_(plan.parts > 1),
        isChirp_(plan.method == Method::kChirp),
        inverse_(call.inverse),
        tile_(call.work) {}

  RNX_INLINE void complexToComplex(Line from, Line to, f32 scale) const {
    run([=](s64 j) RNX_LAMBDA { return from.get(j); }, length_);
    const Outputs<Single> z = outputs(inverse_ ? Direction::kInverse : Direction::kForward);
    for (s64 k = 0, n = length_; k < n; ++k) to.put(k, z[k] * Single::splat(scale));
  }

  RNX_INLINE void realToPack(const RealPair& from, RealPair to, f32 scale) const {
    const Line numbers = from.numbers();
    run([=](s64 j) RNX_LAMBDA { return numbers.get(j); }, length_);
    const Outputs<Single> z = outputs(Direction::kForward);
    const s64 n = length_;
    const auto putBoth = [=](s64 column, s64 k) RNX_LAMBDA {
      to.a.put(column, z[k].re.raw * scale);
      to.b.put(column, z[k].im.raw * scale);
    };
    const f32 half = 0.5f * scale;
    putBoth(0, 0);
    for (s64 k = 1; 2 * k < n; ++k) {
      const Complex<Single> x = z[k], y = z[n - k];
      to.a.putNumber(k, (x.re + y.re).raw * half, (x.im - y.im).raw * half);
      to.b.putNumber(k, (x.im + y.im).raw * half, (y.re - x.re).raw * half);
    }
    if (n % 2 == 0) putBoth(n - 1, n / 2);
  }

  RNX_INLINE void packToReal(RealPair from, const RealPair& to, f32 scale) const {
    const s64 n = length_;
    run(
        [=](s64 k) RNX_LAMBDA {
          if (k == 0 || 2 * k == n) {
            const s64 column = k == 0 ? 0 : n - 1;
            return Complex<Single>{{from.a.get(column)}, {from.b.get(column)}};
          }
          const bool isMirrored = 2 * k > n;
          const fc32 a = from.a.number(isMirrored ? n - k : k), b = from.b.number(isMirrored ? n - k : k);
          if (isMirrored) return Complex<Single>{{a.re + b.im}, {b.re - a.im}};
          return Complex<Single>{{a.re - b.im}, {a.im + b.re}};
        },
        n);
    const Outputs<Single> z = outputs(Direction::kInverse);
    const Line numbers = to.numbers();
    for (s64 j = 0; j < n; ++j) numbers.put(j, z[j] * Single::splat(scale));
  }

  // A real line of odd length without a partner. In parts it needs half the room: no other output is computed.
  void loneToPack(RealLine from, RealLine to, f32 scale) const {
    const s64 n = length_;
    run([=](s64 j) RNX_LAMBDA { return Complex<Single>{{from.get(j)}, {0.0f}}; }, n / 2 + 1);
    const Outputs<Single> x = outputs(Direction::kForward);
    to.put(0, x[0].re.raw * scale);
    for (s64 k = 1; 2 * k < n; ++k) to.putNumber(k, x[k].re.raw * scale, x[k].im.raw * scale);
  }

  // The way back: the forward transform of the conjugate.
  void loneToReal(RealLine from, RealLine to, f32 scale) const {
    const s64 n = length_;
    const auto load = [=](s64 k) RNX_LAMBDA {
      if (k == 0) return Complex<Single>{{from.get(0)}, {0.0f}};
      const bool isMirrored = 2 * k > n;
      const fc32 x = from.number(isMirrored ? n - k : k);
      return Complex<Single>{{x.re}, {isMirrored ? x.im : -x.im}};
    };
    if (!inParts_) {
      run(load, n);
      const Outputs<Single> x = outputs(Direction::kForward);
      for (s64 j = 0; j < n; ++j) to.put(j, x[j].re.raw * scale);
      return;
    }
    clear(n);
    f32* const part = tile_ + n + 1;
    const auto add = [=, tile = tile_](s64 j, P x) RNX_LAMBDA { (P::load(tile + j) + x).store(tile + j); };
    if (isChirp_) {
      parts_.chirp([&](s64 k) RNX_LAMBDA { return widened(load(k)); }, n, part,
                   [&](s64 j, Complex<P> x) RNX_LAMBDA { add(j, x.re); });
    } else {
      parts_.halfToReal(load, part, add);
    }
    for (s64 j = 0; j < n; ++j) to.put(j, tile_[j] * scale);
  }

private:
  using P = Precise<Single>;

  static RNX_INLINE Complex<P> widened(Complex<Single> x) { return {{x.re.raw}, {x.im.raw}}; }

  Outputs<Single> outputs(Direction direction) const { return transform_.outputs(tile_, direction); }

  void clear(s64 floats) const {
    for (s64 i = 0; i < floats; ++i) tile_[i] = 0;
  }

  // Transforms load(0), load(1), ... At least the first `count` outputs are computed.
  template <class Load>
  RNX_INLINE void run(Load load, s64 count) const {
    if (!inParts_) {
      f32* const tile = tile_;
      for (s64 j = 0, n = length_; j < n; ++j) storeElement(tile + j * kElement<Single>, load(j));
      transform_.run(tile, tile);
      return;
    }
    f32* const part = tile_ + 2 * count;
    const auto wide = [&](s64 j) RNX_LAMBDA { return widened(load(j)); };
    const auto put = [tile = tile_](s64 k, Complex<P> x) RNX_LAMBDA { storeElement(tile + 2 * k, x); };
    if (!isChirp_) return parts_.realToHalf(wide, part, put);
    clear(2 * count);
    parts_.chirp(wide, count, part, [&](s64 k, Complex<P> x) RNX_LAMBDA { put(k, loadElement<P>(tile_ + 2 * k) + x); });
  }

  const Transform<Single> transform_;
  const Parts parts_;
  const s64 length_;
  const bool inParts_, isChirp_, inverse_;
  f32* const tile_;
};

// ---- Images ----

// The rows and columns of a plane.
struct PlaneView {
  f32* first;
  s64 step, channels;

  static PlaneView source(const TransformCall& c) { return {const_cast<f32*>(c.src), c.srcStep, c.channels}; }
  static PlaneView destination(const TransformCall& c) { return {c.dst, c.dstStep, c.channels}; }

  s64 pixel() const { return channels * s64{sizeof(f32)}; }
  Line complexRow(s64 y) const { return {core::at(first, y * step), sizeof(fc32), sizeof(f32)}; }
  Line complexColumn(s64 x) const { return {core::at(first, 0, 2 * x), step, sizeof(f32)}; }
  // Numbers whose parts stand in columns x and x + 1.
  Line packedColumn(s64 x) const { return {core::at(first, 0, x * channels), step, pixel()}; }
  RealPair rowPair(s64 y, s64 last) const {
    return {{core::at(first, y * step), pixel()}, {core::at(first, std::min(y + 1, last) * step), pixel()}};
  }
  RealPair columnPair(s64 left, s64 right) const {
    return {{core::at(first, 0, left * channels), step}, {core::at(first, 0, right * channels), step}};
  }
};

inline void narrowComplex(const TransformCall& call, f32 scaleX, f32 scaleY) {
  const Spec& spec = *call.spec;
  const Series rows(call, spec.plans[0]), columns(call, spec.plans[spec.columnPlan]);
  const PlaneView src = PlaneView::source(call), dst = PlaneView::destination(call);
  for (s64 y = 0; y < spec.height; ++y) rows.complexToComplex(src.complexRow(y), dst.complexRow(y), scaleX);
  for (s64 x = 0; x < spec.width; ++x) columns.complexToComplex(dst.complexColumn(x), dst.complexColumn(x), scaleY);
}

// The first and, for even widths, the last column of a packed spectrum are transforms of real columns.
inline void narrowReal(const TransformCall& call, f32 scaleX, f32 scaleY) {
  const Spec& spec = *call.spec;
  const Series rows(call, spec.plans[0]), columns(call, spec.plans[spec.columnPlan]);
  const PlaneView src = PlaneView::source(call), dst = PlaneView::destination(call);
  const s64 width = spec.width, last = spec.height - 1, right = width % 2 == 0 ? width - 1 : 0;
  const PlaneView& columnsFrom = call.inverse ? src : dst;
  const auto innerColumns = [&] {
    for (s64 x = 1; x + 1 < width; x += 2) {
      columns.complexToComplex(columnsFrom.packedColumn(x), dst.packedColumn(x), scaleY);
    }
  };
  if (call.inverse) {
    columns.packToReal(src.columnPair(0, right), dst.columnPair(0, right), scaleY);
    innerColumns();
    for (s64 y = 0; y <= last; y += 2) rows.packToReal(dst.rowPair(y, last), dst.rowPair(y, last), scaleX);
  } else {
    for (s64 y = 0; y <= last; y += 2) rows.realToPack(src.rowPair(y, last), dst.rowPair(y, last), scaleX);
    innerColumns();
    columns.realToPack(dst.columnPair(0, right), dst.columnPair(0, right), scaleY);
  }
}

}  // namespace
}  // namespace rnx::fft
