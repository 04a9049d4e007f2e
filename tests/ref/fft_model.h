// Fourier transforms and packed spectra by their definitions, in double precision.
#pragma once

#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "core/types.h"

namespace rnx::test::ref {

using Number = std::complex<f64>;

// One plane of complex numbers.
struct Plane {
  s64 width, height;
  std::vector<Number> numbers;

  Plane(s64 w, s64 h) : width(w), height(h), numbers(static_cast<size_t>(w * h)) {}
  Number& at(s64 x, s64 y) { return numbers[static_cast<size_t>(y * width + x)]; }
  const Number& at(s64 x, s64 y) const { return numbers[static_cast<size_t>(y * width + x)]; }
};

// exp(sign * 2 pi i k / n)
inline Number root(s64 k, s64 n, int sign) {
  const f64 angle = 2 * std::numbers::pi * static_cast<f64>(k % n) / static_cast<f64>(n);
  return {std::cos(angle), sign * std::sin(angle)};
}

inline void transformRows(Plane& p, int sign) {
  std::vector<Number> roots, row(static_cast<size_t>(p.width));
  for (s64 k = 0; k < p.width; ++k) roots.push_back(root(k, p.width, sign));
  for (s64 y = 0; y < p.height; ++y) {
    for (s64 k = 0; k < p.width; ++k) {
      Number sum = 0;
      for (s64 x = 0; x < p.width; ++x) sum += p.at(x, y) * roots[static_cast<size_t>(x * k % p.width)];
      row[static_cast<size_t>(k)] = sum;
    }
    for (s64 k = 0; k < p.width; ++k) p.at(k, y) = row[static_cast<size_t>(k)];
  }
}

inline Plane transposed(const Plane& p) {
  Plane t(p.height, p.width);
  for (s64 y = 0; y < p.height; ++y) {
    for (s64 x = 0; x < p.width; ++x) t.at(y, x) = p.at(x, y);
  }
  return t;
}

// sign -1 forward, 1 inverse; neither is scaled.
inline Plane transform(Plane p, int sign) {
  transformRows(p, sign);
  p = transposed(p);
  transformRows(p, sign);
  return transposed(p);
}

// Of both axes together.
inline f64 scaleOf(int flag, bool forward, s64 width, s64 height) {
  const f64 n = static_cast<f64>(width * height);
  if (flag == 4) return 1 / std::sqrt(n);
  return flag == (forward ? 1 : 2) ? 1 / n : 1;
}

// ---- The packed layout: which part of which number stands in an element ----

enum class Part { kReal, kRe, kIm };  // a real number, or a part of a complex one

struct Element {
  s64 k, l;  // frequencies
  Part part;
};

// Along an axis of n elements: element 0 and, for even n, the last one stand alone; the others are pairs from 1.
inline bool standsAlone(s64 i, s64 n) { return i == 0 || (n % 2 == 0 && i == n - 1); }
inline s64 frequencyOf(s64 i) { return (i + 1) / 2; }

inline Element packedElement(s64 x, s64 y, s64 width, s64 height) {
  const auto partOf = [](s64 i) { return i % 2 == 1 ? Part::kRe : Part::kIm; };
  if (!standsAlone(x, width)) return {frequencyOf(x), y, partOf(x)};
  const s64 k = frequencyOf(x);
  if (!standsAlone(y, height)) return {k, frequencyOf(y), partOf(y)};
  return {k, frequencyOf(y), Part::kReal};
}

inline f64 packedValue(const Plane& spectrum, s64 x, s64 y) {
  const Element e = packedElement(x, y, spectrum.width, spectrum.height);
  const Number n = spectrum.at(e.k, e.l);
  return e.part == Part::kIm ? n.imag() : n.real();
}

// The element that holds the other part of the number: below in the outer columns, beside it elsewhere.
struct Position {
  s64 x, y;
};
inline Position partnerOf(s64 x, s64 y, s64 width, s64 height) {
  const s64 step = packedElement(x, y, width, height).part == Part::kRe ? 1 : -1;
  return standsAlone(x, width) ? Position{x, y + step} : Position{x + step, y};
}

}  // namespace rnx::test::ref
