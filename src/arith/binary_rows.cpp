// Row kernels of Add, Sub, Mul and Div. A kernel is a functor of two vectors in the loop of simd/rows.h.
#include <algorithm>

#include "arith/binary_kernels.h"
#include "simd/convert.h"
#include "simd/rows.h"

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

template <class T>
struct AddSaturated : NoDivision<T> {
  using NoDivision<T>::NoDivision;
  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const { return addSaturated(a, b); }
};

template <class T>
struct SubSaturated : NoDivision<T> {
  using NoDivision<T>::NoDivision;
  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const { return subSaturated(a, b); }
};

template <class T>
struct MulSaturated : NoDivision<T> {
  using NoDivision<T>::NoDivision;
  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const {
    if constexpr (std::is_same_v<T, u16>) {  // all ones where the upper half of the product is not 0
      return a * b | ~equal(multiplyHigh(a, b), Vec<u16>::zero()).template as<u16>();
    } else if constexpr (std::is_same_v<T, u8>) {
      const Pair<u16> product = Mul::exact(a, b);
      const Vec<u16> most = Vec<u16>::splat(255);
      return narrow<u8>(Pair<u16>{min(product.lo, most), min(product.hi, most)});
    } else {
      return narrow<T>(Mul::exact(inRegister(a), inRegister(b)));
    }
  }
};

// Half the sum, half to even: the average rounds up, which is wrong where the sum is odd and the average too.
template <class T>
struct AddHalf : NoDivision<T> {
  using NoDivision<T>::NoDivision;
  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) const {
    const Vec<T> up = average(a, b);
    return up - ((a ^ b) & up & Vec<T>::splat(1));
  }
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

// ---- 8u shifted right, in fewer steps ----

// Products of bytes are at most 65025, which leaves room for a half of up to 2^8.
struct ByteProductRight : Scaled<u8, Mul, RightWithHalf> {
  using Scaled::Scaled;
  static bool takes(int shift) { return shift <= 9; }
};

// (h + 2^(n-1) - 1 + odd) >> n in lanes of bytes, where h is a difference, or floor(sum / 2) and a bit is lost:
//   odd = (bit n of h) or (the bit lost)
// The first halving of the shift is an average, (a + b + 1) >> 1, which cannot overflow; the shifts are those of words,
// of which only the bits that stay in their byte are kept.
class ByteRight {
public:
  explicit ByteRight(int n)
      : n_(shiftCount(n)),
        rest_(shiftCount(n - 1)),
        oddBit_(Vec<u8>::splat(n < 8 ? 1 : 0)),
        addend_(Vec<u8>::splat(static_cast<u8>((1 << (n - 1)) - 2))),
        kept_(Vec<u8>::splat(static_cast<u8>(0xFF >> (n - 1)))) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> h, Vec<u8> lost) const {
    const Vec<u8> odd = (shifted(h, n_) & oddBit_) | lost;
    return shifted(average(h, addend_ + odd), rest_) & kept_;
  }

private:
  static RNX_INLINE Vec<u8> shifted(Vec<u8> v, ShiftCount n) { return shiftRight(v.as<u16>(), n).as<u8>(); }

  ShiftCount n_, rest_;
  Vec<u8> oddBit_, addend_, kept_;
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
        rest_(shiftCount(call.shift - 1)),
        kept_(Vec<u8>::splat(static_cast<u8>(0xFF >> (call.shift - 1)))),
        below_(Vec<u8>::splat(static_cast<u8>((2 << call.shift) - 1))),
        tie_(Vec<u8>::splat(static_cast<u8>((1 << call.shift) - 1))) {}

  RNX_INLINE Vec<u8> operator()(Vec<u8> x, Vec<u8> before, Vec<u8> above) const {
    const Vec<u8> up = (shiftRight(average(x, before).as<u16>(), rest_).as<u8>() & kept_) + above;
    return up + equal((x + before) & below_, tie_).as<u8>();
  }

private:
  ShiftCount rest_;
  Vec<u8> kept_, below_, tie_;
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

// ---- 16s shifted right, in fewer steps than through the wide lanes ----

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

// ---- Division ----

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
    zeros_ = zeros_ | Channels::merge(equal(b, Vec<T>::zero()).template as<T>(), Vec<T>::zero());
    return result(a, b) & ~equal(a, Vec<T>::zero()).template as<T>();
  }

  bool metZeroDivisor() const { return anySet(zeros_); }

private:
  using F = std::conditional_t<ScaledUp && sizeof(T) == 2, f64, f32>;

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
      return truncateToInt(quotient(toFloat(a), toFloat(b)));
    } else {
      const Pair<f64> x = toDouble(a), y = toDouble(b);
      return truncateToInt(Pair<f64>{quotient(x.lo, y.lo), quotient(x.hi, y.hi)});
    }
  }
  RNX_INLINE Vec<F> quotient(Vec<F> a, Vec<F> b) const {
    Vec<F> q = Rounding::round(a * factor_ / b);
    if constexpr (ScaledUp && std::is_signed_v<T>) q = max(q, Vec<F>::splat(F(kMin<T>)));
    return min(q, Vec<F>::splat(F(kMax<T>)));  // the limit for what is no number, too
  }

  Vec<F> factor_;
  Vec<T> zeros_ = Vec<T>::zero();
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

// ---- 32f: the operations of IEEE 754 ----

struct AddFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return addInOrder(a, b); }
};

struct SubFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return a - b; }
};

struct MulFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return multiplyInOrder(a, b); }
};

template <class Channels>
struct DivFloat {
  explicit DivFloat(const BinaryCall<f32>&) {}
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) {
    zeros = zeros | Channels::merge(equal(b, Vec<f32>::zero()).as<f32>(), Vec<f32>::zero()).template as<u8>();
    return a / b;
  }
  bool metZeroDivisor() const { return anySet(zeros); }

  Vec<u8> zeros = Vec<u8>::zero();
};

// ---- Kernels ----

template <class T, class F, class Channels>
bool images(const BinaryCall<T>& call) {
  F f(call);
  forEachElement<Channels>(call.rows, call.dst, call.dstStep, f, ImageSource<T>{call.left, call.leftStep},
                           ImageSource<T>{call.right, call.rightStep});
  return f.metZeroDivisor();
}

template <class T, class F, class Channels>
bool constant(const BinaryCall<T>& call) {
  F f(call);
  forEachElement<Channels>(call.rows, call.dst, call.dstStep, f, ImageSource<T>{call.left, call.leftStep},
                           PatternSource<T>(call.right, call.period));
  return f.metZeroDivisor();
}

template <class T, class FAll, class FColors = FAll>
constexpr BinaryForms<T> kForms = {images<T, FAll, AllChannels<T>>, constant<T, FAll, AllChannels<T>>,
                                   images<T, FColors, ColorChannels<T>>, constant<T, FColors, ColorChannels<T>>};

// Few for the scale factors that it takes, Any for the others.
template <class Few, class Any, class Channels>
bool imagesByShift(const BinaryCall<u8>& call) {
  return Few::takes(call.shift) ? images<u8, Few, Channels>(call) : images<u8, Any, Channels>(call);
}
template <class Few, class Any, class Channels>
bool constantByShift(const BinaryCall<u8>& call) {
  return Few::takes(call.shift) ? constant<u8, Few, Channels>(call) : constant<u8, Any, Channels>(call);
}
template <class Few, class Any>
constexpr BinaryForms<u8> kFormsByShift = {
    imagesByShift<Few, Any, AllChannels<u8>>, constantByShift<Few, Any, AllChannels<u8>>,
    imagesByShift<Few, Any, ColorChannels<u8>>, constantByShift<Few, Any, ColorChannels<u8>>};

template <class Channels>
bool addConstantRight(const BinaryCall<u8>& call) {
  if (!ByteConstantRight::takes(call.shift)) return constantByShift<ByteSumRight, ScaledRight<u8, Add>, Channels>(call);
  u8 before[4] = {}, above[4] = {};
  for (int c = 0; c < call.period; ++c) {
    before[c] = ByteConstantRight::before(call.right[c], call.shift);
    above[c] = ByteConstantRight::above(call.right[c], call.shift);
  }
  ByteConstantRight f(call);
  forEachElement<Channels>(call.rows, call.dst, call.dstStep, f, ImageSource<u8>{call.left, call.leftStep},
                           PatternSource<u8>(before, call.period), PatternSource<u8>(above, call.period));
  return false;
}

template <class T, class Rounding, bool ScaledUp>
constexpr BinaryForms<T> kDivide =
    kForms<T, Divide<T, Rounding, ScaledUp, AllChannels<T>>, Divide<T, Rounding, ScaledUp, ColorChannels<T>>>;

// What all types share.
template <class T>
constexpr IntegerKernels<T> kIntegerKernels = {
    .add = kForms<T, AddSaturated<T>>,
    .addHalf = kForms<T, AddHalf<T>>,
    .addRight = kForms<T, ScaledRight<T, Add>>,
    .addLeft = kForms<T, ScaledLeft<T, Add>>,
    .sub = kForms<T, SubSaturated<T>>,
    .subHalf = kForms<T, ScaledRight<T, Sub>>,
    .subRight = kForms<T, ScaledRight<T, Sub>>,
    .subLeft = kForms<T, ScaledLeft<T, Sub>>,
    .mul = kForms<T, MulSaturated<T>>,
    .mulRight = kForms<T, ScaledRight<T, Mul>>,
    .mulLeft = kForms<T, ScaledLeft<T, Mul>>,
    .divZero = kDivide<T, RoundZero, false>,
    .divEven = kDivide<T, RoundNearestEven, false>,
    .divAway = kDivide<T, RoundHalfAway, false>,
    .divZeroLeft = kDivide<T, RoundZero, true>,
    .divEvenLeft = kDivide<T, RoundNearestEven, true>,
    .divAwayLeft = kDivide<T, RoundHalfAway, true>,
};

bool divideByConstant(const BinaryCall<u8>& call) {
  using Any = Divide<u8, RoundNearestEven, false, AllChannels<u8>>;
  return call.period == 1 ? constant<u8, DivideByOne, AllChannels<u8>>(call) : constant<u8, Any, AllChannels<u8>>(call);
}

constexpr IntegerKernels<u8> of8u() {
  IntegerKernels<u8> kernels = kIntegerKernels<u8>;
  kernels.addRight = kFormsByShift<ByteSumRight, ScaledRight<u8, Add>>;
  kernels.addRight.constant = addConstantRight<AllChannels<u8>>;
  kernels.addRight.constantAlpha = addConstantRight<ColorChannels<u8>>;
  kernels.subRight = kFormsByShift<ByteDifferenceRight, ScaledRight<u8, Sub>>;
  kernels.mulRight = kFormsByShift<ByteProductRight, ScaledRight<u8, Mul>>;
  kernels.divEven.constant = divideByConstant;
  return kernels;
}

constexpr IntegerKernels<s16> of16s() {
  IntegerKernels<s16> kernels = kIntegerKernels<s16>;
  kernels.addRight = kForms<s16, SumRight<HalfOfSum>>;
  kernels.subRight = kForms<s16, SumRight<HalfOfDifference>>;
  kernels.mulRight = kForms<s16, ProductRight>;
  return kernels;
}

}  // namespace

namespace RNX_WIDTH {

constinit const BinaryKernels binaryKernels = {
    .of8u = of8u(),
    .of16u = kIntegerKernels<u16>,
    .of16s = of16s(),
    .of32f = {.add = kForms<f32, AddFloat>,
              .sub = kForms<f32, SubFloat>,
              .mul = kForms<f32, MulFloat>,
              .div = kForms<f32, DivFloat<AllChannels<f32>>, DivFloat<ColorChannels<f32>>>},
};

}  // namespace RNX_WIDTH
}  // namespace rnx::arith
