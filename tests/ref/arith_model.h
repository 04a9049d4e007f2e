// Add, Sub, Mul and Div element by element, from the rule: the exact rational result, scaled by a power of two, rounded
// once, saturated. Whole numbers only; nothing here is fast.
#pragma once

#include <algorithm>
#include <limits>

#include "support/signatures.h"

namespace rnx::test::ref {

enum class Op { kAdd, kSub, kMul, kDiv };

inline s64 floorDivide(s64 n, s64 d) { return n / d - (n % d < 0 ? 1 : 0); }

// n / d for d > 0, by rounding mode: 0 toward zero, 1 half to even, 2 half away from zero.
inline s64 roundedQuotient(s64 n, s64 d, int roundMode) {
  const s64 below = floorDivide(n, d), twiceRest = 2 * (n - below * d);
  if (roundMode == 0) return below + (n < 0 && twiceRest != 0 ? 1 : 0);
  if (twiceRest != d) return below + (twiceRest > d ? 1 : 0);
  return roundMode == 1 ? below + (below & 1) : below + (n > 0 ? 1 : 0);
}

// One operation on one type.
struct Arithmetic {
  Op op;
  bool withConstant;
  int scale = 0;
  int roundMode = rnxRoundNearestEven;
  bool metZeroDivisor = false;

  // Scale factors above this write zeros, even where a result would round to something else.
  template <class T>
  int largestScale() const {
    if (sizeof(T) == 1 && op == Op::kAdd) return 9;
    if (sizeof(T) == 1 && op == Op::kSub) return 8;
    if (sizeof(T) == 1 && op == Op::kMul) return 16;
    if (sizeof(T) == 2 && withConstant && (op == Op::kAdd || op == Op::kSub)) return 16;
    return std::numeric_limits<int>::max();
  }

  template <class T>
  T operator()(T left, T right) {
    using Limits = std::numeric_limits<T>;
    if (scale > largestScale<T>()) return 0;
    if (op == Op::kDiv && right == 0) {
      metZeroDivisor = true;
      return left > 0 ? Limits::max() : left < 0 ? Limits::min() : T(0);
    }
    s64 n = left, d = 1;
    if (op == Op::kAdd) n += right;
    if (op == Op::kSub) n -= right;
    if (op == Op::kMul) n *= right;
    if (op == Op::kDiv) d = right;
    if (d < 0) n = -n, d = -d;
    // Beyond these factors everything saturates or rounds to 0: products have 32 bits, quotients are 0 or 2^-16 to
    // 2^16.
    const int right40 = std::min(scale, 40), left40 = std::min(-std::max(scale, -40), op == Op::kMul ? 30 : 40);
    if (scale > 0) {
      d *= s64{1} << right40;
    } else {
      n *= s64{1} << left40;
    }
    return static_cast<T>(std::clamp<s64>(roundedQuotient(n, d, roundMode), Limits::min(), Limits::max()));
  }

  f32 operator()(f32 left, f32 right) {
    if (op == Op::kAdd) return left + right;
    if (op == Op::kSub) return left - right;
    if (op == Op::kMul) return left * right;
    metZeroDivisor = metZeroDivisor || right == 0.0f;
    return left / right;
  }
};

// The rows of an operand. A constant is a row of one pixel that stands for every pixel.
struct Rows {
  u8* data;
  s64 step;
  bool isConstant = false;
};

// The call as a loop over the rows from the top and the elements from the left.
template <class T>
RnxStatus apply(Arithmetic arithmetic, const Signature& s, Rows left, Rows right, Rows dst, s64 width, s64 height) {
  const int channels = s.channels(), used = s.hasAlpha() ? 3 : channels;
  for (s64 y = 0; y < height; ++y) {
    for (s64 x = 0; x < width; ++x) {
      for (int c = 0; c < used; ++c) {
        const s64 i = x * channels + c;
        const T b = right.isConstant ? get<T>(right.data, c) : get<T>(right.data + y * right.step, i);
        put<T>(dst.data + y * dst.step, i, arithmetic(get<T>(left.data + y * left.step, i), b));
      }
    }
  }
  return arithmetic.metZeroDivisor ? rnxStatusWarningDivByZero : rnxStatusNoError;
}

}  // namespace rnx::test::ref
