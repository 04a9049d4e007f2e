// Conversion of the element type, with rounding and scale factors.
#pragma once

#include <algorithm>
#include <bit>

#include "core/checks.h"
#include "data/convert_kernels.h"
#include "data/fill.h"
#include "simd/float_state.h"

namespace rnx::data {

template <class Entry>
const Entry& convertKernels(const core::Rows& rows) {
  return core::wideRows(rows.bytesMoved) ? v256::convertKernels : v128::convertKernels;
}

template <class L, class S, class D>
ConvertCall planConversion(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi) {
  return {.rows = core::planRowsOf<L>(src, srcStep, dst, dstStep, roi),
          .src = src,
          .srcStep = srcStep,
          .dst = dst,
          .dstStep = dstStep,
          .shift = 0,
          .factor = 1.0f};
}

template <class L>
ConvertKernel formOf(const ConvertForms& forms) {
  return core::kHasAlpha<L> ? forms.colors : forms.all;
}

// Any mode but the first two rounds half away from zero.
inline int roundIndex(int roundMode) {
  return roundMode == rnxRoundZero || roundMode == rnxRoundNearestEven ? roundMode : rnxRoundHalfAway;
}

// Half is added to the magnitude with truncation.
inline simd::Direction directionOf(int roundMode) {
  return roundIndex(roundMode) == rnxRoundHalfAway ? simd::Direction::kTowardZero : simd::Direction::kNearest;
}

template <class S, class D, class L>
RnxStatus convert(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;

  const ConvertCall call = planConversion<L>(src, srcStep, dst, dstStep, roi);
  const auto kernel = formOf<L>(convertKernels<Plain<S, D>>(call.rows).forms);
  [[maybe_unused]] const simd::FloatStateOfConversion<S, D> state;
  kernel(call);
  return rnxStatusNoError;
}

template <class S, class D, class L>
RnxStatus convertRounded(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi, int roundMode) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;

  const ConvertCall call = planConversion<L>(src, srcStep, dst, dstStep, roi);
  const auto kernel = formOf<L>(convertKernels<Rounded<S, D>>(call.rows).forms[roundIndex(roundMode)]);
  const simd::FloatState state(directionOf(roundMode));
  kernel(call);
  return rnxStatusNoError;
}

// ---- With a scale factor: steps are not checked ----

// 2^-scaleFactor from a biased exponent between 0 and 255: 0 for factors above 126, infinity below -127.
inline f32 floatFactor(int scaleFactor) {
  const auto exponent = std::clamp<s64>(s64{127} - scaleFactor, 0, 255);
  return std::bit_cast<f32>(static_cast<u32>(exponent) << 23);
}

template <class S, class D>
RnxStatus convertFloatScaled(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi, int roundMode,
                             int scaleFactor) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  ConvertCall call = planConversion<core::C1>(src, srcStep, dst, dstStep, roi);
  call.factor = floatFactor(scaleFactor);
  const auto kernel = convertKernels<RoundedScaled<S, D>>(call.rows).kernels[roundIndex(roundMode)];
  const simd::FloatState state(directionOf(roundMode));
  kernel(call);
  return rnxStatusNoError;
}

// The image holds floats before the call and integers after it.
template <class S, class D>
RnxStatus convertFloatScaledInPlace(D* srcDst, int srcDstStep, RnxiSize roi, int roundMode, int scaleFactor) {
  static_assert(sizeof(S) == sizeof(D));
  return convertFloatScaled(reinterpret_cast<const S*>(srcDst), srcDstStep, srcDst, srcDstStep, roi, roundMode,
                            scaleFactor);
}

template <class S, class D>
RnxStatus convertShifted(const S* src, int srcStep, D* dst, int dstStep, RnxiSize roi, int roundMode, int scaleFactor) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  constexpr int kSourceBits = 8 * sizeof(S);
  if (scaleFactor > kSourceBits) return fillZero<core::C1>(dst, dstStep, roi);  // less than half a unit

  ConvertCall call = planConversion<core::C1>(src, srcStep, dst, dstStep, roi);
  const auto& kernels = convertKernels<Shifted<S, D>>(call.rows);
  // Lower factors saturate every value but 0, as this one does.
  constexpr int kValueBits = 8 * static_cast<int>(sizeof(D)) - (std::is_signed_v<D> ? 1 : 0);
  call.shift = scaleFactor > 0 ? scaleFactor : -std::max(scaleFactor, -kValueBits);
  (scaleFactor > 0 ? kernels.right[roundIndex(roundMode)] : kernels.left)(call);
  return rnxStatusNoError;
}

}  // namespace rnx::data
