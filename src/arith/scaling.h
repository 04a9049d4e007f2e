// Exact results of sums, differences and products in wide lanes, and their scaling. For row kernels only.
#pragma once

#include "arith/binary_kernels.h"
#include "simd/saturate.h"

namespace rnx::arith {
namespace {

using namespace simd;

template <class T>
constexpr T kMin = std::is_unsigned_v<T> ? T(0) : T(T(1) << (8 * sizeof(T) - 1));
template <class T>
constexpr T kMax = static_cast<T>(~kMin<T>);

// ---- Exact results in lanes of twice the size ----

// Sums and differences of 8 bits need a sign and nine bits, those of 16 bits a sign and 17 bits.
template <class T>
using SumLane = std::conditional_t<sizeof(T) == 1, s16, s32>;
// Products fill the wide lane, with a sign only where the factors have one.
template <class T>
using ProductLane = std::conditional_t<std::is_signed_v<T>, s32, std::conditional_t<sizeof(T) == 1, u16, u32>>;

struct Add {
  template <class T>
  static RNX_INLINE Pair<SumLane<T>> exact(Vec<T> a, Vec<T> b) {
    const auto x = widen<SumLane<T>>(a), y = widen<SumLane<T>>(b);
    return {x.lo + y.lo, x.hi + y.hi};
  }
};

struct Sub {
  template <class T>
  static RNX_INLINE Pair<SumLane<T>> exact(Vec<T> a, Vec<T> b) {
    const auto x = widen<SumLane<T>>(a), y = widen<SumLane<T>>(b);
    return {x.lo - y.lo, x.hi - y.hi};
  }
};

struct Mul {
  template <class T>
  static RNX_INLINE Pair<ProductLane<T>> exact(Vec<T> a, Vec<T> b) {
    return multiply<ProductLane<T>>(a, b);
  }
};

// ---- Scaling of exact results; what comes out only needs the saturation of narrow() ----

// v / 2^n for n above 0, half to even: (v + half) >> n, less 1 where v + half is an odd multiple of 2^n, which is a tie
// that went up to an odd value. Signed lanes have headroom for the half: 8-bit sums shift by at most 9, sums of 16 bits
// by at most 17, and a product of two 16s is at most 2^30 and shifts by at most 30.
template <class W>
class RightWithHalf {
public:
  explicit RightWithHalf(int n)
      : n_(shiftCount(n)),
        half_(Vec<W>::splat(static_cast<W>(W(1) << (n - 1)))),
        step_(Vec<W>::splat(static_cast<W>(u64{1} << n))),
        below_(Vec<W>::splat(static_cast<W>((u64{2} << n) - 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const { return ofSumWithHalf(v + half_); }
  RNX_INLINE Vec<W> ofSumWithHalf(Vec<W> u) const {
    return shiftRight(u, n_) + equal(u & below_, step_).template as<W>();
  }

private:
  ShiftCount n_;
  Vec<W> half_, step_, below_;
};

template <class W>
class Right : public RightWithHalf<W> {
public:
  using RightWithHalf<W>::RightWithHalf;
};

// Unsigned products may fill the lane: the quotient is incremented where the rest is above half, or half and the
// quotient odd; that is, where rest >= half + 1 - odd. Quotients stay below the sign bit.
template <class W>
requires std::is_unsigned_v<W>
class Right<W> {
public:
  explicit Right(int n)
      : n_(shiftCount(n)),
        restBits_(Vec<W>::splat(static_cast<W>((u64{1} << n) - 1))),
        aboveHalf_(Vec<W>::splat(static_cast<W>((u64{1} << (n - 1)) + 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const {
    const Vec<W> quotient = shiftRight(v, n_), rest = v & restBits_;
    const Vec<W> bound = aboveHalf_ - (quotient & Vec<W>::splat(1));
    const Vec<W> up = equal(max(rest, bound), rest).template as<W>();  // -1 where rest >= bound
    return quotient - up;
  }

private:
  ShiftCount n_;
  Vec<W> restBits_, aboveHalf_;
};

// Bytes shifted right by 0 to 8 bits, in lanes of words of which only the bits that stay in their byte are kept.
class ByteShift {
public:
  explicit ByteShift(int n) : n_(shiftCount(n)), kept_(Vec<u8>::splat(static_cast<u8>(0xff >> n))) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> v) const { return shiftRight(v.as<u16>(), n_).as<u8>() & kept_; }

private:
  ShiftCount n_;
  Vec<u8> kept_;
};

// v * 2^n for n from 0, where the limits keep one step beyond the range of T, so that narrow() saturates.
template <class W, class T>
class Left {
public:
  explicit Left(int n)
      : n_(shiftCount(n)),
        low_(Vec<W>::splat(static_cast<W>((kMin<T> >> n) - 1))),
        high_(Vec<W>::splat(static_cast<W>((kMax<T> >> n) + 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const {
    if constexpr (std::is_signed_v<W>) v = max(v, low_);
    return shiftLeft(min(v, high_), n_);
  }

private:
  ShiftCount n_;
  Vec<W> low_, high_;
};

// ---- Functors: dst = left op right ----

template <class T>
struct NoDivision {
  explicit NoDivision(const BinaryCall<T>&) {}
  static bool metZeroDivisor() { return false; }
};

template <class T, class Op, template <class...> class Scale, class... ScaleTo>
class Scaled : public NoDivision<T> {
public:
  explicit Scaled(const BinaryCall<T>& call) : NoDivision<T>(call), scale_(call.shift) {}

  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const {
    const auto exact = Op::exact(a, b);
    return narrow<T>(decltype(exact){scale_(exact.lo), scale_(exact.hi)});
  }

private:
  using Lane = std::remove_cvref_t<decltype(Op::exact(Vec<T>{}, Vec<T>{}).lo.raw[0])>;
  Scale<Lane, ScaleTo...> scale_;
};

template <class T, class Op>
using ScaledRight = Scaled<T, Op, Right>;
template <class T, class Op>
using ScaledLeft = Scaled<T, Op, Left, T>;

}  // namespace
}  // namespace rnx::arith
