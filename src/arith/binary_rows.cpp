// Row kernels of Add, Sub, Mul and Div. A kernel is a functor of two vectors in the loop of simd/rows.h.
#include "arith/division.h"
#include "arith/shifted_right.h"
#include "simd/rows.h"

namespace rnx::arith {
namespace {

// ---- Unscaled integers, and half of a sum ----

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
template <class Few, class Any, class FewColors = Few, class AnyColors = Any>
constexpr BinaryForms<u8> kFormsByShift = {
    imagesByShift<Few, Any, AllChannels<u8>>, constantByShift<Few, Any, AllChannels<u8>>,
    imagesByShift<FewColors, AnyColors, ColorChannels<u8>>, constantByShift<FewColors, AnyColors, ColorChannels<u8>>};

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

template <class Channels>
using DivideBytes = Divide<u8, RoundNearestEven, false, Channels>;

constexpr BinaryForms<u8> kDivideBytes = kFormsByShift<FewQuotients<AllChannels<u8>>, DivideBytes<AllChannels<u8>>,
                                                       FewQuotients<ColorChannels<u8>>, DivideBytes<ColorChannels<u8>>>;

bool divideByConstant(const BinaryCall<u8>& call) {
  return call.period == 1 ? constant<u8, DivideByOne, AllChannels<u8>>(call) : kDivideBytes.constant(call);
}

constexpr IntegerKernels<u8> of8u() {
  IntegerKernels<u8> kernels = kIntegerKernels<u8>;
  kernels.addRight = kFormsByShift<ByteSumRight, ScaledRight<u8, Add>>;
  kernels.addRight.constant = addConstantRight<AllChannels<u8>>;
  kernels.addRight.constantAlpha = addConstantRight<ColorChannels<u8>>;
  kernels.subRight = kFormsByShift<ByteDifferenceRight, ScaledRight<u8, Sub>>;
  kernels.mulRight = kFormsByShift<ByteProductRight, ScaledRight<u8, Mul>>;
  kernels.divEven = kDivideBytes;
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
