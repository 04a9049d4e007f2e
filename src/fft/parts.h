// The convolution of a chirp in parts, for images too small to allow its room whole. Part t of p computes the numbers
// t, t + p, t + 2 p ... of the spectrum, m of them, and what they add to the result:
//   u_i = sum over j of y_(i + m j) * w^(t (i + m j)),   w = exp(-2 pi i / (p m))
//   result k = sum over t of w^(-t k) v_(k mod m),   where v is the convolution of u with part t of the filter
// In exchange for the room, the inputs are read p times. Included by row kernels only.
#pragma once

#include "fft/passes.h"

namespace rnx::fft {
namespace {

class ChirpInParts {
  using P = Precise<Single>;

public:
  ChirpInParts(const Spec& spec, const Plan& plan) : plan_(plan), passes_(spec, plan), spec_(spec) {}

  // For each part, add(k, x) for the outputs k below count; their sums are the transform of load(0), load(1), ...
  // `part` has room for plan.size numbers.
  template <class Load, class Add>
  void run(Load load, s64 count, f32* part, Add add) const {
    const s64 size = plan_.size, whole = size * plan_.parts;
    for (s64 t = 0; t < plan_.parts; ++t) {
      fold(load, t, part);
      passes_.inFrequency(part, part);
      for (s64 k = 0; k < size; ++k) {
        storeElement(part + 2 * k, loadElement<P>(part + 2 * k) * factor(plan_.filter, t * size + k));
      }
      passes_.inTime(part);
      s64 turn = 0, place = 0;  // the passes turn the order round
      for (s64 k = 0; k < count; ++k) {
        const Complex<P> back = factor(plan_.turns, turn);
        const Complex<P> v = loadElement<P>(part + 2 * place) * Complex<P>{back.re, negate(back.im)};
        add(k, v * factor(plan_.chirp, k));
        turn = wrap(turn + t, whole);
        place = place == 0 ? size - 1 : place - 1;
      }
    }
  }

private:
  static s64 wrap(s64 i, s64 n) { return i < n ? i : i - n; }
  RNX_INLINE Complex<P> factor(u32 table, s64 k) const { return splatFactor<P>(spec_.table<fc64>(table) + k); }

  template <class Load>
  void fold(Load load, s64 t, f32* part) const {
    const s64 size = plan_.size, whole = size * plan_.parts;
    for (s64 i = 0; i < size; ++i) {
      Complex<P> sum = {{0}, {0}};
      s64 turn = t * i;
      for (s64 j = i; j < plan_.length; j += size) {
        const Complex<Single> x = load(j);
        sum = sum + Complex<P>{{x.re.raw}, {x.im.raw}} * factor(plan_.chirp, j) * factor(plan_.turns, turn);
        turn = wrap(turn + t * size, whole);
      }
      storeElement(part + 2 * i, sum);
    }
  }

  const Plan& plan_;
  const Passes<P> passes_;
  const Spec& spec_;
};

}  // namespace
}  // namespace rnx::fft
