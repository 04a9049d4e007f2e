// Transforms in parts, for images too small to allow the room of a whole one. With size = p m, part t of p are the
// numbers t, t + p, t + 2 p ... of the spectrum:
//   part t = transform of u,   u_i = sum over j of x_(i + m j) * w^(t (i + m j)),   w = exp(-2 pi i / size)
// and the way back the same read from right to left:
//   result n = sum over t of w^(t n) * v_(n mod m),   v = transform of part t
// In exchange for the room the inputs are read p times. Included by row kernels only.
#pragma once

#include "fft/passes.h"

namespace rnx::fft {
namespace {

class Parts {
  using P = Precise<Single>;

public:
  Parts(const Spec& spec, const Plan& plan)
      : spec_(spec), plan_(plan), size_(plan.size), whole_(s64{plan.size} * plan.parts), count_(plan.parts) {}

  // A chirp. For each part, add(k, x) for the outputs k below `outputs`; their sums are the transform of load(0),
  // load(1) ... `part` has room for plan.size numbers here and below.
  template <class Load, class Add>
  void chirp(Load load, s64 outputs, f32* part, Add add) const {
    const Convolution<Single> convolution(spec_, plan_);
    for (s64 t = 0; t < count_; ++t) {
      fold([&](s64 j) RNX_LAMBDA { return load(j) * factor(plan_.chirp, j); }, t, part);
      convolution.run(part, spec_.table<fc64>(plan_.filter) + t * size_);
      s64 turn = 0, place = 0;  // back by forward transforms: the order is turned round
      for (s64 k = 0; k < outputs; ++k) {
        const Complex<P> w = factor(plan_.turns, turn), x = loadElement<P>(part + 2 * place);
        add(k, x * Complex<P>{w.re, negate(w.im)} * factor(plan_.chirp, k));
        turn = wrapped(turn + t);
        place = place == 0 ? size_ - 1 : place - 1;
      }
    }
  }

  // A real line of odd length, of small prime factors: put(k, x) for k up to the middle, some twice. The parts t and
  // p - t are conjugates of each other.
  template <class Load, class Put>
  void realToHalf(Load load, f32* part, Put put) const {
    for (s64 t = 0; 2 * t < count_; ++t) {
      fold(load, t, part);
      runPasses(part);
      for (s64 q = 0; q < size_; ++q) {
        const s64 k = t + count_ * q;
        const Complex<P> x = output(part, q);
        if (2 * k < whole_) {
          put(k, x);
        } else {
          put(whole_ - k, Complex<P>{x.re, negate(x.im)});
        }
      }
    }
  }

  // The transform of a spectrum that is its own conjugate mirrored: for each part, add(n, real x).
  template <class Load, class Add>
  void halfToReal(Load load, f32* part, Add add) const {
    for (s64 t = 0; 2 * t < count_; ++t) {
      for (s64 q = 0; q < size_; ++q) storeElement(part + 2 * q, load(t + count_ * q));
      runPasses(part);
      const P both = P::splat(t == 0 ? 1 : 2);
      s64 turn = 0, place = 0;
      for (s64 n = 0; n < whole_; ++n) {
        add(n, (output(part, place) * factor(plan_.turns, turn)).re * both);
        turn = wrapped(turn + t);
        place = place + 1 < size_ ? place + 1 : 0;
      }
    }
  }

private:
  s64 wrapped(s64 turn) const { return turn < whole_ ? turn : turn - whole_; }
  RNX_INLINE Complex<P> factor(u32 table, s64 k) const { return splatFactor<P>(spec_.table<fc64>(table) + k); }

  void runPasses(f32* part) const { Passes<Single>(spec_, plan_).run(part, part); }
  RNX_INLINE Complex<P> output(const f32* part, s64 q) const {
    return loadElement<P>(part + 2 * spec_.table<s32>(plan_.order)[q]);
  }

  template <class Load>
  void fold(Load load, s64 t, f32* part) const {
    for (s64 i = 0; i < size_; ++i) {
      Complex<P> sum = {{0}, {0}};
      s64 turn = t * i;
      for (s64 j = i; j < plan_.length; j += size_) {
        sum = sum + load(j) * factor(plan_.turns, turn);
        turn = wrapped(turn + t * size_);
      }
      storeElement(part + 2 * i, sum);
    }
  }

  const Spec& spec_;
  const Plan& plan_;
  const s64 size_, whole_, count_;
};

}  // namespace
}  // namespace rnx::fft
