// Quotients of integers. For row kernels only.
#pragma once

#include <algorithm>

#include "arith/scaling.h"
#include "simd/convert.h"
#include "simd/rows.h"

namespace rnx::arith {
namespace {

// The quotient is formed in floating point, scaled by a power of two, then rounded once. It must not fall on a tie that
// the exact quotient only comes near to. A quotient x / d of integers that is not a tie keeps a distance of 1 / (2d)
// from every tie, which is 1 / (2x) of itself. Single precision, with its 2^-24, therefore serves dividends below 2^23:
// 8u always, as x is below 2^16 where the result does not saturate, and 16 bits unless they are scaled up.
// The same arithmetic has the rule for divisors of 0: the quotient is infinite, which saturates to the largest value
// for a positive dividend and to the smallest for a negative one; 0 / 0 is no number and is made 0 at the end.

// ScaledUp says that the scale factor is negative: then 16 bits need double precision, and quotients a lower limit
// before they become integers. Others are above -2^15 or infinite, and minus infinity becomes the smallest integer.
template <class T, class Rounding, bool ScaledUp, class Channels>
class Divide {
public:
  static constexpr bool kLong = true;

  explicit Divide(const BinaryCall<T>& call) : factor_(Vec<F>::splat(F(call.factor))) {}

  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) {
    const Vec<T> zeros = equal(b, Vec<T>::zero()).template as<T>();
    zeros_ = zeros_ | Channels::merge(zeros, Vec<T>::zero());
    const Vec<T> q = kLimited ? result(a, b) : result(a, b) | zeros;
    return q & ~equal(a, Vec<T>::zero()).template as<T>();
  }

  bool metZeroDivisor() const { return anySet(zeros_); }

private:
  using F = std::conditional_t<ScaledUp && sizeof(T) == 2, f64, f32>;
  // Quotients without a sign that are not scaled up are in range but for the infinite ones, which become an integer
  // without any bits of T.
  static constexpr bool kLimited = ScaledUp || std::is_signed_v<T>;

  RNX_INLINE Vec<T> result(Vec<T> a, Vec<T> b) const {
    if constexpr (sizeof(T) == 1) {
      const Pair<u16> x = widen<u16>(a), y = widen<u16>(b);
      return narrow<u8>(Pair<u16>{narrow<u16>(ofLanes(x.lo, y.lo)), narrow<u16>(ofLanes(x.hi, y.hi))});
    } else {
      return narrow<T>(ofLanes(a, b));
    }
  }
  template <class I>
  RNX_INLINE Pair<s32> ofLanes(Vec<I> a, Vec<I> b) const {
    const Pair<s32> x = widen<s32>(a), y = widen<s32>(b);
    return {ofLanes(x.lo, y.lo), ofLanes(x.hi, y.hi)};
  }
  RNX_INLINE Vec<s32> ofLanes(Vec<s32> a, Vec<s32> b) const {
    if constexpr (std::is_same_v<F, f32>) {
      return Rounding::toInt(quotient(toFloat(a), toFloat(b)));
    } else {
      const Pair<f64> x = toDouble(a), y = toDouble(b);
      return Rounding::toInt(Pair<f64>{quotient(x.lo, y.lo), quotient(x.hi, y.hi)});
    }
  }
  RNX_INLINE Vec<F> quotient(Vec<F> a, Vec<F> b) const {
    Vec<F> q = a * factor_ / b;
    if constexpr (!kLimited) return q;
    if constexpr (ScaledUp && std::is_signed_v<T>) q = max(q, Vec<F>::splat(F(kMin<T>)));
    return min(q, Vec<F>::splat(F(kMax<T>)));  // the limit for what is no number, too
  }

  Vec<F> factor_;
  Vec<T> zeros_ = Vec<T>::zero();
};

// 8u, half to even, from a scale factor n of 5 on, without a division: there are at most K = 2^(8-n) results above 0.
// The result is the number of k in 1 ... K with a / (b * 2^n) above k - 1/2, or equal to it where k is even:
//   (2k - 1) * b <= (a - 1) >> (n - 1)  for odd k,  (2k - 1) * b <= a >> (n - 1)  for even k
// The multiples of b may saturate, for the right sides are below 16; what is above K does not count by itself.
template <class Channels>
class FewQuotients {
public:
  static constexpr bool kLong = true;
  static bool takes(int shift) { return shift >= 5; }

  explicit FewQuotients(const BinaryCall<u8>& call)
      : pairs_(call.shift > 8 ? 0 : std::max(128 >> call.shift, 1)), shifted_(std::min(call.shift, 9) - 1) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8> b) {
    const Vec<u8> zero = Vec<u8>::zero(), zeros = equal(b, zero).as<u8>();
    zeros_ = zeros_ | Channels::merge(zeros, zero);
    const Vec<u8> odd = shifted_(subSaturated(a, Vec<u8>::splat(1))), even = shifted_(a), twice = addSaturated(b, b);
    Vec<u8> multiple = b, q = zero;
    for (int i = 0; i < pairs_; ++i) {
      const Vec<u8> next = addSaturated(multiple, twice);
      q = q - equal(max(multiple, odd), odd).as<u8>() - equal(max(next, even), even).as<u8>();
      multiple = addSaturated(next, twice);
    }
    return (q | zeros) & ~equal(a, zero).as<u8>();
  }

  bool metZeroDivisor() const { return anySet(zeros_); }

private:
  int pairs_;  // of an odd k and the even one behind it
  ByteShift shifted_;
  Vec<u8> zeros_ = Vec<u8>::zero();
};

// 8u by one constant, half to even, without a division. With d = divisor * 2^scaleFactor:
//   q = floor((2a + d) / 2d), less 1 where the division leaves no rest, which is a tie that went up, and q is odd.
// The division by 2d is a multiplication by m = ceil(2^(10+s) / 2d), where s gives m 16 bits. It is exact for
// numerators below 2^15; they are below 2^10, because from d = 510 on everything rounds to 0 (m = 0 does that).
class DivideByOne : public NoDivision<u8> {
public:
  explicit DivideByOne(const BinaryCall<u8>& call) : NoDivision(call) {
    const u64 d = static_cast<u64>(static_cast<f32>(call.right[0]) / call.factor);
    if (d >= 510) return;
    int s = 6;
    while ((u64{1} << (10 + s)) / (2 * d) < 0x8000) ++s;
    divisor64_ = splat(d << 6);
    twice_ = splat(2 * d);
    multiplier_ = splat(((u64{1} << (10 + s)) + 2 * d - 1) / (2 * d));
    shift_ = splat(u64{1} << (16 - s));
  }

  RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8>) const {
    const Pair<u16> x = widen<u16>(a);
    return narrow<u8>(Pair<u16>{one(x.lo), one(x.hi)});
  }

private:
  static Vec<u16> splat(u64 v) { return Vec<u16>::splat(static_cast<u16>(v)); }

  RNX_INLINE Vec<u16> one(Vec<u16> a) const {
    const Vec<u16> numerator = shiftLeft<7>(a) + divisor64_;  // times 64
    const Vec<u16> q = multiplyHigh(multiplyHigh(numerator, multiplier_), shift_);
    const Vec<u16> tie = equal(shiftLeft<6>(q * twice_), numerator).as<u16>();
    return q - (q & tie & Vec<u16>::splat(1));
  }

  Vec<u16> divisor64_ = splat(0), twice_ = splat(0), multiplier_ = splat(0), shift_ = splat(0);
};

}  // namespace
}  // namespace rnx::arith
