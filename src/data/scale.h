// Scaling of value ranges, and multiply-add with conversion.
#pragma once

#include <bit>

#include "core/checks.h"
#include "core/float_order.h"
#include "data/copy.h"
#include "data/scale_kernels.h"
#include "simd/float_state.h"

namespace rnx::data {

template <class L, class S, class D>
ScaleCall planScale(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi) {
  return {.rows = core::planRowsOf<L>(src, srcStep, dst, dstStep, roi),
          .src = src,
          .srcStep = srcStep,
          .dst = dst,
          .dstStep = dstStep,
          .low = 0,
          .high = 0,
          .factor = 0,
          .sum = 0};
}

inline const ScaleKernels& scaleKernels(const core::Rows& rows) {
  return core::wideRows(rows.bytesMoved) ? v256::scaleKernels : v128::scaleKernels;
}

// The kernel has a control state of its own where one is needed. It is called through a pointer, so its arithmetic
// stays inside.
template <class State = simd::FloatState>
RnxStatus runScale(ScaleKernel kernel, const ScaleCall& call) {
  [[maybe_unused]] const State state;
  kernel(call);
  return rnxStatusNoError;
}

template <class L>
ScaleKernel formOf(const ScaleForms& forms) {
  return core::kHasAlpha<L> ? forms.colors : forms.all;
}

template <class S, class D>
RnxStatus checkScale(const S* src, int srcStep, const D* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  return rnxStatusNoError;
}

// ---- Full ranges ----

template <class S, class D, class L>
RnxStatus scale(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi) {
  if (const RnxStatus status = checkScale(src, srcStep, dst, dstStep, roi)) return status;
  const ScaleCall call = planScale<L>(src, srcStep, dst, dstStep, roi);
  return runScale<simd::NoFloatState>(formOf<L>(static_cast<const FullRange<S, D>&>(scaleKernels(call.rows)).forms),
                                      call);
}

// 16-bit sources are scaled in integers.
template <class S, class L>
RnxStatus scaleToBytes(const S* src, int srcStep, u8* dst, int dstStep, RnxiSize roi, int hint) {
  if (const RnxStatus status = checkScale(src, srcStep, dst, dstStep, roi)) return status;
  const ScaleCall call = planScale<L>(src, srcStep, dst, dstStep, roi);
  const ToBytes<S>& kernels = scaleKernels(call.rows);
  using State = std::conditional_t<sizeof(S) == 2, simd::NoFloatState, simd::FloatState>;
  return runScale<State>(formOf<L>(hint == rnxAlgHintAccurate ? kernels.accurate : kernels.fast), call);
}

// The range is refused before anything else is looked at.
template <class S, class D, class L>
RnxStatus scaleFloat(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi, f32 vMin, f32 vMax) {
  if (!core::below(vMin, vMax)) return rnxStatusBadScaleRange;
  if (const RnxStatus status = checkScale(src, srcStep, dst, dstStep, roi)) return status;
  ScaleCall call = planScale<L>(src, srcStep, dst, dstStep, roi);
  call.low = vMin;
  call.high = vMax;
  return runScale(formOf<L>(static_cast<const FullRange<S, D>&>(scaleKernels(call.rows)).forms), call);
}

// ---- src * mVal + aVal ----

// |mVal - 1| and |aVal| both below 2^-52. Below 1 the next value is 2^-53 away, above it 2^-52.
inline bool isIdentity(f64 mVal, f64 aVal) {
  constexpr u64 kOne = 0x3ff0000000000000, kTwoToMinus52 = 0x3cb0000000000000, kMagnitude = 0x7fffffffffffffff;
  const auto factor = std::bit_cast<u64>(mVal), sum = std::bit_cast<u64>(aVal) & kMagnitude;
  return (factor == kOne || factor == kOne - 1) && sum < kTwoToMinus52;
}

template <class S, class D>
RnxStatus scaleC(const S* src, int srcStep, f64 mVal, f64 aVal, D* dst, int dstStep, RnxiSize roi, int hint) {
  if constexpr (std::is_same_v<S, D>) {
    if (isIdentity(mVal, aVal)) return copy<S, core::C1>(src, srcStep, dst, dstStep, roi);
  }
  if (const RnxStatus status = checkScale(src, srcStep, dst, dstStep, roi)) return status;
  ScaleCall call = planScale<core::C1>(src, srcStep, dst, dstStep, roi);
  call.factor = mVal;
  call.sum = aVal;
  const MulAdd<S, D>& kernels = core::wideRows(call.rows.bytesMoved) ? v256::mulAddKernels : v128::mulAddKernels;
  return runScale(hint == rnxAlgHintAccurate ? kernels.accurate : kernels.fast, call);
}

template <class T>
RnxStatus scaleCInPlace(T* srcDst, int srcDstStep, f64 mVal, f64 aVal, RnxiSize roi, int hint) {
  return scaleC<T, T>(srcDst, srcDstStep, mVal, aVal, srcDst, srcDstStep, roi, hint);
}

}  // namespace rnx::data
