// Conversions of one value, in extended precision: every value and every scaled integer is exact in it.
#pragma once

#include <cmath>
#include <limits>

#include "support/signatures.h"

namespace rnx::test::ref {

struct Range {
  long double low, high;
};

inline Range rangeOf(Element element) {
  return withType(element, [](auto zero) -> Range {
    using T = decltype(zero);
    using Limits = std::numeric_limits<T>;
    if constexpr (std::is_arithmetic_v<T>) {
      return {static_cast<long double>(Limits::lowest()), static_cast<long double>(Limits::max())};
    }
    return {};
  });
}

inline bool isFloat(Element e) { return e == Element::k32f || e == Element::k64f; }

// To an integer; what is not a number goes down with the first two modes and up with the others.
inline long double toInteger(long double v, Element to, int roundMode) {
  const Range range = rangeOf(to);
  const bool firstModes = roundMode == 0 || roundMode == 1;
  if (std::isnan(v)) return firstModes ? range.low : range.high;
  const long double r = roundMode == 0 ? truncl(v) : roundMode == 1 ? rintl(v) : roundl(v);
  return r < range.low ? range.low : r > range.high ? range.high : r;
}

inline long double scaled(long double v, Element from, Element to, int roundMode, int scaleFactor) {
  if (!isFloat(from)) {
    const int n = scaleFactor < -5000 ? -5000 : scaleFactor > 5000 ? 5000 : scaleFactor;
    return toInteger(ldexpl(v, -n), to, roundMode);
  }
  const long double factor = scaleFactor >= 127    ? 0
                             : scaleFactor <= -128 ? std::numeric_limits<long double>::infinity()
                                                   : ldexpl(1, -scaleFactor);
  return toInteger(v * factor, to, roundMode);
}

}  // namespace rnx::test::ref
