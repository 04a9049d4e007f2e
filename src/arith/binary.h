// Add, Sub, Mul and Div of two images, or of an image and one constant per channel: checks, the choice of a kernel by
// the scale factor, warnings.
#pragma once

#include <algorithm>
#include <bit>

#include "arith/binary_kernels.h"
#include "core/checks.h"
#include "core/image.h"
#include "data/fill.h"
#include "simd/float_state.h"

namespace rnx::arith {

// ---- Which kernel, for which scale factor ----

enum class RightOperand { kImage, kConstant };

template <class T>
using Kernels = std::conditional_t<std::is_same_v<T, f32>, FloatKernels, IntegerKernels<T>>;

// A kernel and the shift it takes; no kernel where every result rounds to 0.
template <class T>
struct Choice {
  const BinaryForms<T>* forms;
  int shift;
};

// Factors down to this saturate every non-zero result; lower ones give the same and would not fit a shift count.
template <class T>
constexpr int leftShift(int scaleFactor) {
  return -std::max(scaleFactor, -8 * static_cast<int>(sizeof(T)));
}

struct Add {
  static constexpr bool kChecksSteps = false, kRefusesZeroConstants = false;
  using IntegerState = simd::NoFloatState;

  // The largest factor that leaves a non-zero sum: of 9 bits for 8u, 17 for 16u, and -65536 for 16s. The constant
  // forms of 16u stop one short of it.
  template <class T, RightOperand R>
  static constexpr int kLargestFactor = sizeof(T) == 1                                       ? 9
                                        : std::is_same_v<T, u16>&& R == RightOperand::kImage ? 17
                                                                                             : 16;

  template <class T, RightOperand R>
  static Choice<T> choose(const IntegerKernels<T>& k, int scaleFactor) {
    if (scaleFactor == 0) return {&k.add, 0};
    if (scaleFactor == 1) return {&k.addHalf, 0};
    if (scaleFactor < 0) return {&k.addLeft, leftShift<T>(scaleFactor)};
    return {scaleFactor <= kLargestFactor<T, R> ? &k.addRight : nullptr, scaleFactor};
  }
  static const BinaryForms<f32>& choose(const FloatKernels& k) { return k.add; }
};

struct Sub {
  static constexpr bool kChecksSteps = false, kRefusesZeroConstants = false;
  using IntegerState = simd::NoFloatState;

  template <class T, RightOperand R>
  static constexpr int kLargestFactor = sizeof(T) == 1 ? 8 : 16;

  template <class T, RightOperand R>
  static Choice<T> choose(const IntegerKernels<T>& k, int scaleFactor) {
    if (scaleFactor == 0) return {&k.sub, 0};
    if (scaleFactor == 1) return {&k.subHalf, 1};
    if (scaleFactor < 0) return {&k.subLeft, leftShift<T>(scaleFactor)};
    return {scaleFactor <= kLargestFactor<T, R> ? &k.subRight : nullptr, scaleFactor};
  }
  static const BinaryForms<f32>& choose(const FloatKernels& k) { return k.sub; }
};

struct Mul {
  static constexpr bool kChecksSteps = false, kRefusesZeroConstants = false;
  using IntegerState = simd::NoFloatState;

  // 255^2 has 16 bits, 65535^2 has 32; 2^30, the largest product of 16s, is a tie at 31, which goes to 0.
  template <class T, RightOperand R>
  static constexpr int kLargestFactor = sizeof(T) == 1          ? 16
                                        : std::is_unsigned_v<T> ? 32
                                                                : 30;

  template <class T, RightOperand R>
  static Choice<T> choose(const IntegerKernels<T>& k, int scaleFactor) {
    if (scaleFactor == 0) return {&k.mul, 0};
    if (scaleFactor < 0) return {&k.mulLeft, leftShift<T>(scaleFactor)};
    return {scaleFactor <= kLargestFactor<T, R> ? &k.mulRight : nullptr, scaleFactor};
  }
  static const BinaryForms<f32>& choose(const FloatKernels& k) { return k.mul; }
};

struct Div {
  static constexpr bool kChecksSteps = true, kRefusesZeroConstants = true;
  using IntegerState =
      simd::FloatState;  // integers are divided in floating point, 0 / 0 and inexact quotients included

  // Division by 0 has its own result at every factor, so no factor is too large for the kernel.
  template <class T, RightOperand R>
  static Choice<T> choose(const IntegerKernels<T>& k, int scaleFactor) {
    return {scaleFactor < 0 ? &k.divEvenLeft : &k.divEven, scaleFactor};
  }
  static const BinaryForms<f32>& choose(const FloatKernels& k) { return k.div; }
};

// 2^-scaleFactor, exact: an exponent and nothing else. Beyond 2^40 either way every quotient of 16 bits saturates or
// rounds to 0.
inline f32 divisionFactor(int scaleFactor) {
  constexpr int kBeyond = 40, kExponentBias = 127, kMantissaBits = 23;
  return std::bit_cast<f32>((kExponentBias - std::clamp(scaleFactor, -kBeyond, kBeyond)) << kMantissaBits);
}

inline const IntegerKernels<u8>& kernelsOf(const BinaryKernels& k, u8) { return k.of8u; }
inline const IntegerKernels<u16>& kernelsOf(const BinaryKernels& k, u16) { return k.of16u; }
inline const IntegerKernels<s16>& kernelsOf(const BinaryKernels& k, s16) { return k.of16s; }
inline const FloatKernels& kernelsOf(const BinaryKernels& k, f32) { return k.of32f; }

template <class T>
const Kernels<T>& kernels(s64 bytesMoved) {
  return kernelsOf(core::wideRows(bytesMoved) ? v256::binaryKernels : v128::binaryKernels, T{});
}

// ---- A call: dst = left op right ----

template <class L, class T>
BinaryCall<T> planImages(const T* left, int leftStep, const T* right, int rightStep, T* dst, int dstStep, RnxiSize roi,
                         f32 factor) {
  const s64 width = s64{roi.width} * L::kChannels;
  return {.rows = core::planRows(width, roi.height, core::operand(dst, dstStep, width),
                                 core::operand(left, leftStep, width), core::operand(right, rightStep, width)),
          .left = left,
          .leftStep = leftStep,
          .right = right,
          .rightStep = rightStep,
          .period = 0,
          .dst = dst,
          .dstStep = dstStep,
          .shift = 0,
          .factor = factor};
}

template <class T>
RnxStatus run(BinaryKernel<T> kernel, const BinaryCall<T>& call) {
  return kernel(call) ? rnxStatusWarningDivByZero : rnxStatusNoError;
}

template <class L, class T>
RnxStatus runImages(const BinaryForms<T>& forms, const BinaryCall<T>& call) {
  return run(core::kHasAlpha<L> ? forms.imagesAlpha : forms.images, call);
}

// The kernels take a value for every channel of a pixel. The one for alpha is of no effect; 1 divides.
template <class L, class T>
RnxStatus runConstant(const BinaryForms<T>& forms, const T* src, int srcStep, const T* values, T* dst, int dstStep,
                      RnxiSize roi, int shift, f32 factor) {
  T all[4] = {1, 1, 1, 1};
  std::copy(values, values + L::kUsed, all);
  const BinaryCall<T> call = {.rows = core::planRowsOf<L>(src, srcStep, dst, dstStep, roi),
                              .left = src,
                              .leftStep = srcStep,
                              .right = all,
                              .rightStep = 0,
                              .period = L::kChannels,
                              .dst = dst,
                              .dstStep = dstStep,
                              .shift = shift,
                              .factor = factor};
  return run(core::kHasAlpha<L> ? forms.constantAlpha : forms.constant, call);
}

// ---- Two images ----

template <class Op, class T, class L>
RnxStatus images(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, RnxiSize roi,
                 int scaleFactor) {
  if (core::anyNull(src1, src2, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (Op::kChecksSteps && core::anyStepBelow1(src1Step, src2Step, dstStep)) return rnxStatusBadStep;

  BinaryCall<T> call = planImages<L>(src2, src2Step, src1, src1Step, dst, dstStep, roi, divisionFactor(scaleFactor));
  const auto choice = Op::template choose<T, RightOperand::kImage>(kernels<T>(call.rows.bytesMoved), scaleFactor);
  if (choice.forms == nullptr) return data::fillZero<L>(dst, dstStep, roi);
  call.shift = choice.shift;
  [[maybe_unused]] const typename Op::IntegerState state;
  return runImages<L>(*choice.forms, call);
}

template <class Op, class L>
RnxStatus imagesFloat(const f32* src1, int src1Step, const f32* src2, int src2Step, f32* dst, int dstStep,
                      RnxiSize roi) {
  if (core::anyNull(src1, src2, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (Op::kChecksSteps && core::anyStepBelow1(src1Step, src2Step, dstStep)) return rnxStatusBadStep;

  const BinaryCall<f32> call = planImages<L>(src2, src2Step, src1, src1Step, dst, dstStep, roi, 1.0f);
  return runImages<L>(Op::choose(kernels<f32>(call.rows.bytesMoved)), call);
}

// Rounding modes other than half to even exist for division only.
template <class T, class L>
RnxStatus divideRounded(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, RnxiSize roi,
                        int roundMode, int scaleFactor) {
  if (core::anyNull(src1, src2, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(src1Step, src2Step, dstStep)) return rnxStatusBadStep;
  if (roundMode < rnxRoundZero || roundMode > rnxRoundHalfAway) return rnxStatusBadRoundMode;

  BinaryCall<T> call = planImages<L>(src2, src2Step, src1, src1Step, dst, dstStep, roi, divisionFactor(scaleFactor));
  call.shift = scaleFactor;
  const IntegerKernels<T>& k = kernels<T>(call.rows.bytesMoved);
  const BinaryForms<T>* const byMode[2][3] = {{&k.divZero, &k.divEven, &k.divAway},
                                              {&k.divZeroLeft, &k.divEvenLeft, &k.divAwayLeft}};
  const Div::IntegerState state;
  return runImages<L>(*byMode[scaleFactor < 0][roundMode], call);
}

// ---- An image and a constant ----

template <class Op, class L, class T>
RnxStatus checkConstant(const T* src, const T* values, const T* dst, RnxiSize roi) {
  if (core::anyNull(src, values, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (Op::kRefusesZeroConstants && std::find(values, values + L::kUsed, T(0)) != values + L::kUsed) {
    return rnxStatusDivByZero;
  }
  return rnxStatusNoError;
}

template <class Op, class T, class L>
RnxStatus constant(const T* src, int srcStep, core::Constant<T, L> value, T* dst, int dstStep, RnxiSize roi,
                   int scaleFactor) {
  const T* values = core::valuesOf<T>(value);
  if (const RnxStatus status = checkConstant<Op, L>(src, values, dst, roi)) return status;

  const s64 bytesMoved = 2 * s64{roi.width} * roi.height * L::kChannels * static_cast<s64>(sizeof(T));
  const auto choice = Op::template choose<T, RightOperand::kConstant>(kernels<T>(bytesMoved), scaleFactor);
  if (choice.forms == nullptr) return data::fillZero<L>(dst, dstStep, roi);
  [[maybe_unused]] const typename Op::IntegerState state;
  return runConstant<L>(*choice.forms, src, srcStep, values, dst, dstStep, roi, choice.shift,
                        divisionFactor(scaleFactor));
}

template <class Op, class L>
RnxStatus constantFloat(const f32* src, int srcStep, core::Constant<f32, L> value, f32* dst, int dstStep,
                        RnxiSize roi) {
  const f32* values = core::valuesOf<f32>(value);
  if (const RnxStatus status = checkConstant<Op, L>(src, values, dst, roi)) return status;

  const s64 bytesMoved = 2 * s64{roi.width} * roi.height * L::kChannels * s64{sizeof(f32)};
  return runConstant<L>(Op::choose(kernels<f32>(bytesMoved)), src, srcStep, values, dst, dstStep, roi, 0, 1.0f);
}

// ---- In place: the image written is the second source, or the source of the constant forms ----

template <class Op, class T, class L>
RnxStatus imagesInPlace(const T* src, int srcStep, T* srcDst, int srcDstStep, RnxiSize roi, int scaleFactor) {
  return images<Op, T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, scaleFactor);
}

template <class Op, class L>
RnxStatus imagesFloatInPlace(const f32* src, int srcStep, f32* srcDst, int srcDstStep, RnxiSize roi) {
  return imagesFloat<Op, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

template <class T, class L>
RnxStatus divideRoundedInPlace(const T* src, int srcStep, T* srcDst, int srcDstStep, RnxiSize roi, int roundMode,
                               int scaleFactor) {
  return divideRounded<T, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi, roundMode, scaleFactor);
}

template <class Op, class T, class L>
RnxStatus constantInPlace(core::Constant<T, L> value, T* srcDst, int srcDstStep, RnxiSize roi, int scaleFactor) {
  return constant<Op, T, L>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi, scaleFactor);
}

template <class Op, class L>
RnxStatus constantFloatInPlace(core::Constant<f32, L> value, f32* srcDst, int srcDstStep, RnxiSize roi) {
  return constantFloat<Op, L>(srcDst, srcDstStep, value, srcDst, srcDstStep, roi);
}

}  // namespace rnx::arith
