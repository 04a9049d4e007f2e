// Row kernels of Add, Sub, Mul and Div. A kernel is a functor of two vectors in the loop of simd/rows.h.
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

// v / 2^n for n above 0, half to even. Signed lanes have headroom for the half: 8-bit sums shift by at most 9, sums of
// 16 bits by at most 17, and a product of two 16s is at most 2^30 and shifts by at most 30.
template <class W>
class Right {
public:
  explicit Right(int n) : n_(n), belowHalf_(Vec<W>::splat(static_cast<W>((W(1) << (n - 1)) - 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const {
    const Vec<W> odd = shiftRight(v, n_) & Vec<W>::splat(1);
    return shiftRight(v + belowHalf_ + odd, n_);
  }

private:
  int n_;
  Vec<W> belowHalf_;
};

// Unsigned products may fill the lane: the quotient is incremented where the rest is above half, or half and the
// quotient odd; that is, where rest >= half + 1 - odd. Quotients stay below the sign bit.
template <class W>
requires std::is_unsigned_v<W>
class Right<W> {
public:
  explicit Right(int n)
      : n_(n),
        restBits_(Vec<W>::splat(static_cast<W>((u64{1} << n) - 1))),
        aboveHalf_(Vec<W>::splat(static_cast<W>((u64{1} << (n - 1)) + 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const {
    const Vec<W> quotient = shiftRight(v, n_), rest = v & restBits_;
    const Vec<W> bound = aboveHalf_ - (quotient & Vec<W>::splat(1));
    const Vec<W> up = equal(max(rest, bound), rest).template as<W>();  // -1 where rest >= bound
    return quotient - up;
  }

private:
  int n_;
  Vec<W> restBits_, aboveHalf_;
};

// v * 2^n for n from 0, where the limits keep one step beyond the range of T, so that narrow() saturates.
template <class W, class T>
class Left {
public:
  explicit Left(int n)
      : n_(n),
        low_(Vec<W>::splat(static_cast<W>((kMin<T> >> n) - 1))),
        high_(Vec<W>::splat(static_cast<W>((kMax<T> >> n) + 1))) {}

  RNX_INLINE Vec<W> operator()(Vec<W> v) const {
    if constexpr (std::is_signed_v<W>) v = max(v, low_);
    return shiftLeft(min(v, high_), n_);
  }

private:
  int n_;
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

// ---- Division ----

// The quotient is formed in floating point, scaled by a power of two, then rounded once. That is exact: a quotient of
// m-bit integers that is not a tie keeps a relative distance of 2^-(2m+1) from every tie (2^-17 for 8 bits, 2^-33 for
// 16 bits), which the 2^-24 of single and the 2^-53 of double precision resolve.
template <class Rounding, class F>
RNX_INLINE Vec<F> quotient(Vec<F> a, Vec<F> b, Vec<F> factor, Vec<F> low, Vec<F> high) {
  return min(max(Rounding::round(a * factor / b), low), high);
}

template <class T, class Rounding, class Channels>
class Divide {
public:
  explicit Divide(const BinaryCall<T>& call) : factor_(Vec<F>::splat(F(call.factor))) {}

  RNX_INLINE Vec<T> operator()(Vec<T> a, Vec<T> b) {
    Vec<T> zero = equal(b, Vec<T>::zero()).template as<T>();
    const Vec<T> rounded = divide(a, b - zero);  // all ones are -1: a zero divisor becomes 1
    const Vec<T> result = select(zero.template as<typename MaskOf<sizeof(T)>::Type>(), byZero(a), rounded);
    zeros_ = zeros_ | Channels::merge(zero, Vec<T>::zero());
    return result;
  }

  bool metZeroDivisor() const { return anySet(zeros_); }

private:
  using F = std::conditional_t<sizeof(T) == 1, f32, f64>;

  // The largest value for a positive dividend, the smallest for a negative one, 0 for 0.
  static RNX_INLINE Vec<T> byZero(Vec<T> a) {
    const Vec<T> positive = greater(a, Vec<T>::zero()).template as<T>() & Vec<T>::splat(kMax<T>);
    if constexpr (std::is_unsigned_v<T>) return positive;
    return positive | (a & Vec<T>::splat(kMin<T>));
  }

  RNX_INLINE Vec<F> one(Vec<F> a, Vec<F> b) const {
    return quotient<Rounding>(a, b, factor_, Vec<F>::splat(F(kMin<T>)), Vec<F>::splat(F(kMax<T>)));
  }
  RNX_INLINE Vec<s32> divide(Vec<s32> a, Vec<s32> b) const {
    if constexpr (sizeof(T) == 1) {
      return truncateToInt(one(toFloat(a), toFloat(b)));
    } else {
      const Pair<f64> x = toDouble(a), y = toDouble(b);
      return truncateToInt(Pair<f64>{one(x.lo, y.lo), one(x.hi, y.hi)});
    }
  }
  template <class I>
  RNX_INLINE Pair<s32> divideWidened(Vec<I> a, Vec<I> b) const {
    const Pair<s32> x = widen<s32>(a), y = widen<s32>(b);
    return {divide(x.lo, y.lo), divide(x.hi, y.hi)};
  }
  RNX_INLINE Vec<T> divide(Vec<T> a, Vec<T> b) const {
    if constexpr (sizeof(T) == 1) {
      const Pair<s16> x = widen<s16>(a), y = widen<s16>(b);
      return narrow<T>(Pair<s16>{narrow<s16>(divideWidened(x.lo, y.lo)), narrow<s16>(divideWidened(x.hi, y.hi))});
    } else {
      return narrow<T>(divideWidened(a, b));
    }
  }

  Vec<F> factor_;
  Vec<T> zeros_ = Vec<T>::zero();
};

// ---- 32f: the operations of IEEE 754 ----

struct AddFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return a + b; }
};

struct SubFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return a - b; }
};

struct MulFloat : NoDivision<f32> {
  using NoDivision::NoDivision;
  RNX_INLINE Vec<f32> operator()(Vec<f32> a, Vec<f32> b) const { return a * b; }
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

template <class T, class Rounding>
constexpr BinaryForms<T> kDivide =
    kForms<T, Divide<T, Rounding, AllChannels<T>>, Divide<T, Rounding, ColorChannels<T>>>;

template <class T>
constexpr IntegerKernels<T> kIntegerKernels = {
    .add = kForms<T, AddSaturated<T>>,
    .addHalf = kForms<T, AddHalf<T>>,
    .addRight = kForms<T, ScaledRight<T, Add>>,
    .addLeft = kForms<T, ScaledLeft<T, Add>>,
    .sub = kForms<T, SubSaturated<T>>,
    .subRight = kForms<T, ScaledRight<T, Sub>>,
    .subLeft = kForms<T, ScaledLeft<T, Sub>>,
    .mulRight = kForms<T, ScaledRight<T, Mul>>,
    .mulLeft = kForms<T, ScaledLeft<T, Mul>>,
    .divZero = kDivide<T, RoundZero>,
    .divEven = kDivide<T, RoundNearestEven>,
    .divAway = kDivide<T, RoundHalfAway>,
};

}  // namespace

namespace RNX_WIDTH {

constinit const BinaryKernels binaryKernels = {
    .of8u = kIntegerKernels<u8>,
    .of16u = kIntegerKernels<u16>,
    .of16s = kIntegerKernels<s16>,
    .of32f = {.add = kForms<f32, AddFloat>,
              .sub = kForms<f32, SubFloat>,
              .mul = kForms<f32, MulFloat>,
              .div = kForms<f32, DivFloat<AllChannels<f32>>, DivFloat<ColorChannels<f32>>>},
};

}  // namespace RNX_WIDTH
}  // namespace rnx::arith
