// Conversions of one value, in extended precision: every value and every scaled integer is exact in it.
#pragma once

#include <cmath>
#include <limits>

#include "support/signatures.h"

namespace rnx::test::ref {

template <class D>
D saturate(long double v) {
  using Limits = std::numeric_limits<D>;
  if (v <= static_cast<long double>(Limits::min())) return Limits::min();
  if (v >= static_cast<long double>(Limits::max())) return Limits::max();
  return static_cast<D>(v);
}

inline long double rounded(long double v, int roundMode) {
  return roundMode == 0 ? truncl(v) : roundMode == 1 ? rintl(v) : roundl(v);
}

// To an integer; what is not a number goes down with the first two modes and up with the others.
template <class D, class S>
D toInteger(S v, int roundMode) {
  if (std::isnan(static_cast<f64>(v))) {
    return roundMode == 0 || roundMode == 1 ? std::numeric_limits<D>::min() : std::numeric_limits<D>::max();
  }
  return saturate<D>(rounded(static_cast<long double>(v), roundMode));
}

template <class D, class S>
D scaled(S v, int roundMode, int scaleFactor) {
  if constexpr (std::is_floating_point_v<S>) {
    const S factor = scaleFactor >= 127    ? S(0)
                     : scaleFactor <= -128 ? std::numeric_limits<S>::infinity()
                                           : static_cast<S>(std::ldexp(1.0f, -scaleFactor));
    return toInteger<D>(static_cast<S>(v * factor), roundMode);
  } else {
    const int n = std::max(-5000, std::min(5000, scaleFactor));
    return saturate<D>(rounded(ldexpl(static_cast<long double>(v), -n), roundMode));
  }
}

template <class D, class S>
D converted(S v) {
  if constexpr (std::is_floating_point_v<D>) {
    return static_cast<D>(v);
  } else {
    return saturate<D>(static_cast<long double>(v));
  }
}

}  // namespace rnx::test::ref
