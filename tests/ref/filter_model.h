// The general linear filter, pixel by pixel: sums over a source that is looked up by the border rule, divided and
// rounded in the words of the contract.
#pragma once

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "core/types.h"

namespace rnx::ref {

// ---- Borders ----

// Position p of an axis whose positions first .. last lie in memory; -1 in `constant` where the border value stands.
struct AxisModel {
  s64 first, last;

  s64 look(RnxiBorderType base, s64 p, bool& constant) const {
    if (p >= first && p <= last) return p;
    if (base == rnxBorderConst) {
      constant = true;
      return first;
    }
    if (base == rnxBorderRepl || first == last) return p < first ? first : last;
    while (p < first || p > last) p = p < first ? 2 * first - p : 2 * last - p;
    return p;
  }
};

inline AxisModel axisModel(s64 roi, s64 mask, bool before, bool after) {
  const s64 anchor = (mask - 1) / 2;
  return {before ? -anchor : 0, roi - 1 + (after ? mask - 1 - anchor : 0)};
}

template <class T>
struct SourceModel {
  const T* roi;  // first pixel
  s64 step, channels;
  RnxiBorderType border;
  const T* value;
  AxisModel columns, rows;

  T at(s64 x, s64 y, s64 c) const {
    bool constant = false;
    const s64 sx = columns.look(border & 15, x, constant), sy = rows.look(border & 15, y, constant);
    if (constant) return value[c];
    T element;
    std::memcpy(&element, reinterpret_cast<const char*>(roi) + sy * step + (sx * channels + c) * s64{sizeof(T)},
                sizeof(T));
    return element;
  }
};

// ---- Sums ----

template <class K>
struct KernelModel {
  s64 width, height;
  std::vector<K> coefficients;  // as the caller has them

  K reversed(s64 i, s64 j) const { return coefficients[static_cast<size_t>(width * height - 1 - (j * width + i))]; }
};

// Sum in the type S, every product and every sum rounded to it; row by row of the reversed kernel.
template <class S, class K, class T>
S sumModel(const KernelModel<K>& kernel, const SourceModel<T>& source, s64 x, s64 y, s64 c) {
  const s64 ax = (kernel.width - 1) / 2, ay = (kernel.height - 1) / 2;
  S sum = 0;
  for (s64 j = 0; j < kernel.height; ++j) {
    for (s64 i = 0; i < kernel.width; ++i) {
      const S product = static_cast<S>(kernel.reversed(i, j)) * static_cast<S>(source.at(x - ax + i, y - ay + j, c));
      sum = sum + product;
    }
  }
  return sum;
}

// ---- Results ----

template <class T>
T saturateModel(s64 v) {
  constexpr s64 low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  return static_cast<T>(v < low ? low : v > high ? high : v);
}

// A quotient in double precision, rounded.
inline s64 roundQuotient(f64 q, int mode) {
  if (q > 1e9) return 1000000000;
  if (q < -1e9) return -1000000000;
  if (mode == rnxRoundZero) return static_cast<s64>(q);
  const s64 r = static_cast<s64>(q < 0 ? q - 0.5 : q + 0.5);  // q + 0.5 is exact enough for the quotients at hand
  const bool tie = std::fabs(static_cast<f64>(r) - q) == 0.5;
  return mode == rnxRoundNearestEven && tie ? r - r % 2 : r;
}

inline u8 integerResult8u(s64 sum, s64 divisor, int mode, int offset) {
  const f32 scaled = static_cast<f32>(static_cast<f64>(offset) * static_cast<f64>(divisor));
  const f32 joined = static_cast<f32>(sum) + scaled;
  const f64 acc = std::trunc(static_cast<f64>(joined));
  if (acc < 1) return 0;
  return saturateModel<u8>(roundQuotient(acc / static_cast<f64>(divisor), mode));
}

// By the shift formulas for powers of two, which have to give what the quotient gives.
inline s16 integerResult16s(s64 sum, s64 divisor, int mode) {
  if (divisor > 1 && (divisor & (divisor - 1)) == 0) {
    const int s = __builtin_ctzll(static_cast<u64>(divisor));
    const s64 half = divisor / 2, mask = divisor - 1;
    s64 r = 0;
    if (mode == rnxRoundZero) r = sum < 0 ? (sum + mask) >> s : sum >> s;
    if (mode == rnxRoundNearestEven) r = (sum >> s) + ((((sum >> s) & 1) + (sum & mask) + half - 1) >> s);
    if (mode == rnxRoundHalfAway) r = sum < 0 ? (sum >> s) + (((sum & mask) + half - 1) >> s) : (sum + half) >> s;
    return saturateModel<s16>(r);
  }
  return saturateModel<s16>(roundQuotient(static_cast<f64>(sum) / static_cast<f64>(divisor), mode));
}

// A floating-point sum with its offset for an integer image. A sum that is not a number gives the lowest value.
template <class T>
T floatResult(f32 v, int mode) {
  if (std::isnan(v)) return std::numeric_limits<T>::min();
  return saturateModel<T>(roundQuotient(v, mode));
}

}  // namespace rnx::ref
