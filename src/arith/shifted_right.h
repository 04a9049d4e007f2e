// Results of 8u and 16s that are scaled down, in fewer steps than through lanes of twice the size. For row kernels
// only.
#pragma once

#include <algorithm>

#include "arith/scaling.h"

namespace rnx::arith {
namespace {

// ---- 8u ----

// Products of bytes are at most 65025, which leaves room for a half of up to 2^8.
struct ByteProductRight : Scaled<u8, Mul, RightWithHalf> {
  using Scaled::Scaled;
  static bool takes(int shift) { return shift <= 9; }
};

// (h + 2^(n-1) - 1 + odd) >> n in lanes of bytes, where h is a difference, or floor(sum / 2) and a bit is lost:
//   odd = (bit n of h) or (the bit lost)
// The first halving of the shift is an average, (a + b + 1) >> 1, which cannot overflow.
class ByteRight {
public:
  explicit ByteRight(int n)
      : n_(shiftCount(n)),
        rest_(n - 1),
        oddBit_(Vec<u8>::splat(n < 8 ? 1 : 0)),
        addend_(Vec<u8>::splat(static_cast<u8>((1 << (n - 1)) - 2))) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> h, Vec<u8> lost) const {
    const Vec<u8> odd = (shiftRight(h.as<u16>(), n_).as<u8>() & oddBit_) | lost;
    return rest_(average(h, addend_ + odd));
  }

private:
  ShiftCount n_;
  ByteShift rest_;
  Vec<u8> oddBit_, addend_;
};

class ByteSumRight : public NoDivision<u8> {
public:
  explicit ByteSumRight(const BinaryCall<u8>& call) : NoDivision(call), right_(call.shift - 1) {}
  static bool takes(int shift) { return shift >= 3; }

  RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8> b) const {
    const Vec<u8> lost = (a ^ b) & Vec<u8>::splat(1);
    return right_(average(a, b) - lost, lost);
  }

private:
  ByteRight right_;
};

// (x + c) / 2^n for a constant, n from 2 to 7. With t = x + c + 2^(n-1) the result is t >> n, less 1 where t is an odd
// multiple of 2^n, a tie that went up to an odd value. What c and the half have above 2^8 is a whole number of results:
//   t = x + before + 1 + above * 2^n,  before a byte, so that (x + before + 1) >> 1 is an average
class ByteConstantRight : public NoDivision<u8> {
public:
  static bool takes(int shift) { return shift >= 2 && shift <= 7; }
  static u8 before(u8 c, int n) { return static_cast<u8>(c + (1 << (n - 1)) - 1); }
  static u8 above(u8 c, int n) { return static_cast<u8>((c + (1 << (n - 1)) - 1) >> 8 << (8 - n)); }

  explicit ByteConstantRight(const BinaryCall<u8>& call)
      : NoDivision(call),
        rest_(call.shift - 1),
        below_(Vec<u8>::splat(static_cast<u8>((2 << call.shift) - 1))),
        tie_(Vec<u8>::splat(static_cast<u8>((1 << call.shift) - 1))) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> x, Vec<u8> before, Vec<u8> above) const {
    const Vec<u8> up = rest_(average(x, before)) + above;
    return up + equal((x + before) & below_, tie_).as<u8>();
  }

private:
  ByteShift rest_;
  Vec<u8> below_, tie_;
};

// Differences below 0 become 0 in any case.
class ByteDifferenceRight : public NoDivision<u8> {
public:
  explicit ByteDifferenceRight(const BinaryCall<u8>& call) : NoDivision(call), right_(call.shift) {}
  static bool takes(int shift) { return shift >= 2; }

  RNX_INLINE Vec<u8> operator()(Vec<u8> a, Vec<u8> b) const { return right_(subSaturated(a, b), Vec<u8>::zero()); }

private:
  ByteRight right_;
};

// ---- 16s ----

// floor(sum / 2) and the bit lost say all about a sum of 17 bits, in 16-bit lanes. Averages are those of unsigned
// values, so values are moved by 2^15: average(a, b) rounds up, and average(a, ~b) is floor((a - b) / 2) + 2^15.
struct HalfOfSum {
  static RNX_INLINE Vec<u16> moved(Vec<s16> a, Vec<s16> b, Vec<s16> lost) {
    const Vec<s16> bias = Vec<s16>::splat(INT16_MIN);
    return average((a ^ bias).as<u16>(), (b ^ bias).as<u16>()) - lost.as<u16>();
  }
};
struct HalfOfDifference {
  static RNX_INLINE Vec<u16> moved(Vec<s16> a, Vec<s16> b, Vec<s16>) {
    return average((a ^ Vec<s16>::splat(INT16_MIN)).as<u16>(), (b ^ Vec<s16>::splat(INT16_MAX)).as<u16>());
  }
};

// With h = floor(sum / 2) and n = scaleFactor - 1 from 1 to 15:
//   (h + 2^(n-1) - 1 + odd) >> n,  odd = (bit n of h) or (bit lost)
// where the first halving of the shift is one more average, which cannot overflow.
template <class Half>
class SumRight : public NoDivision<s16> {
public:
  explicit SumRight(const BinaryCall<s16>& call)
      : NoDivision(call),
        n_(shiftCount(call.shift - 1)),
        rest_(shiftCount(call.shift - 2)),
        addend_(Vec<s16>::splat(static_cast<s16>((1 << (call.shift - 2)) - 2 + INT16_MIN))) {}

  RNX_INLINE Vec<s16> operator()(Vec<s16> a, Vec<s16> b) const {
    const Vec<s16> one = Vec<s16>::splat(1), bias = Vec<s16>::splat(INT16_MIN);
    const Vec<s16> lost = (a ^ b) & one;
    const Vec<u16> half = Half::moved(a, b, lost);
    const Vec<s16> odd = (shiftRight(half.template as<s16>() ^ bias, n_) | lost) & one;
    return shiftRight(average(half, (addend_ + odd).as<u16>()).template as<s16>() ^ bias, rest_);
  }

private:
  ShiftCount n_, rest_;
  Vec<s16> addend_;
};

// A sum of two products takes the product and the half in one step: a * b + p * q with p * q = half.
class ProductRight : public NoDivision<s16> {
public:
  explicit ProductRight(const BinaryCall<s16>& call)
      : NoDivision(call),
        right_(call.shift),
        p_(Vec<s16>::splat(static_cast<s16>(-(1 << std::min(call.shift - 1, 15))))),
        q_(Vec<s16>::splat(static_cast<s16>(-(1 << std::max(call.shift - 16, 0))))) {}

  RNX_INLINE Vec<s16> operator()(Vec<s16> a, Vec<s16> b) const {
    const Pair<s32> withHalf = addProducts(a, b, p_, q_);
    return narrow<s16>(Pair<s32>{right_.ofSumWithHalf(withHalf.lo), right_.ofSumWithHalf(withHalf.hi)});
  }

private:
  Right<s32> right_;
  Vec<s16> p_, q_;
};

}  // namespace
}  // namespace rnx::arith
