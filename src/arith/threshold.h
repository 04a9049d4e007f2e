// Fixed-level thresholding: elements below or above a threshold become the threshold or a given value.
#pragma once

#include <algorithm>

#include "arith/binary.h"
#include "arith/threshold_kernels.h"
#include "core/checks.h"
#include "core/float_order.h"
#include "simd/float_state.h"

namespace rnx::arith {

inline const ThresholdKernelsOf<u8>& kernelsOf(const ThresholdKernels& k, u8) { return k.of8u; }
inline const ThresholdKernelsOf<u16>& kernelsOf(const ThresholdKernels& k, u16) { return k.of16u; }
inline const ThresholdKernelsOf<s16>& kernelsOf(const ThresholdKernels& k, s16) { return k.of16s; }
inline const ThresholdKernelsOf<f32>& kernelsOf(const ThresholdKernels& k, f32) { return k.of32f; }

// The kernels take a value for every channel of a pixel. The one for alpha is of no effect.
template <class T, class L>
struct ChannelValues {
  explicit ChannelValues(const T* values) { std::copy(values, values + L::kUsed, all); }
  T all[4] = {};
};

template <class L, class T>
RnxStatus runThreshold(ThresholdForms<T> ThresholdKernelsOf<T>::*forms, const T* src, int srcStep, T* dst, int dstStep,
                       RnxiSize roi, const T* low, const T* lowValue, const T* high, const T* highValue) {
  const ChannelValues<T, L> l(low), lv(lowValue), h(high), hv(highValue);
  const ThresholdCall<T> call = {.rows = core::planRowsOf<L>(src, srcStep, dst, dstStep, roi),
                                 .src = src,
                                 .srcStep = srcStep,
                                 .dst = dst,
                                 .dstStep = dstStep,
                                 .period = L::kChannels,
                                 .low = l.all,
                                 .lowValue = lv.all,
                                 .high = h.all,
                                 .highValue = hv.all};
  const auto& table = core::wideRows(call.rows.bytesMoved) ? v256::thresholdKernels : v128::thresholdKernels;
  const ThresholdForms<T>& chosen = kernelsOf(table, T{}).*forms;
  [[maybe_unused]] const simd::FloatStateFor<T> state;
  (core::kHasAlpha<L> ? chosen.colors : chosen.all)(call);
  return rnxStatusNoError;
}

inline bool isThresholdSelector(int cmpOp) { return cmpOp == rnxCmpLess || cmpOp == rnxCmpGreater; }

// The side of an element that is changed.
struct Below {};
struct Above {};

// ---- Clamp to the threshold ----

template <class T, class L>
RnxStatus threshold(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, core::Constant<T, L> level,
                    int cmpOp) {
  const T* t = core::valuesOf<T>(level);
  if (core::anyNull(src, dst, t)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (!isThresholdSelector(cmpOp)) return rnxStatusUnsupportedMode;

  const auto forms = cmpOp == rnxCmpGreater ? &ThresholdKernelsOf<T>::lower : &ThresholdKernelsOf<T>::raise;
  return runThreshold<L>(forms, src, srcStep, dst, dstStep, roi, t, t, t, t);
}

template <class Side, class T, class L>
RnxStatus thresholdSide(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, core::Constant<T, L> level) {
  constexpr int kCmpOp = std::is_same_v<Side, Above> ? rnxCmpGreater : rnxCmpLess;
  return threshold<T, L>(src, srcStep, dst, dstStep, roi, level, kCmpOp);
}

// ---- Replace by a value ----

template <class Side, class T, class L>
RnxStatus thresholdValueSide(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, core::Constant<T, L> level,
                             core::Constant<T, L> value) {
  const T *t = core::valuesOf<T>(level), *v = core::valuesOf<T>(value);
  if (core::anyNull(src, dst, t, v)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;

  const auto forms =
      std::is_same_v<Side, Above> ? &ThresholdKernelsOf<T>::replaceAbove : &ThresholdKernelsOf<T>::replaceBelow;
  return runThreshold<L>(forms, src, srcStep, dst, dstStep, roi, t, v, t, v);
}

// The selector is refused before anything else is looked at.
template <class T, class L>
RnxStatus thresholdValue(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, core::Constant<T, L> level,
                         core::Constant<T, L> value, int cmpOp) {
  if (!isThresholdSelector(cmpOp)) return rnxStatusUnsupportedMode;
  const auto side = cmpOp == rnxCmpGreater ? thresholdValueSide<Above, T, L> : thresholdValueSide<Below, T, L>;
  return side(src, srcStep, dst, dstStep, roi, level, value);
}

template <class T, class L>
RnxStatus thresholdOutside(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi,
                           core::Constant<T, L> thresholdLT, core::Constant<T, L> valueLT,
                           core::Constant<T, L> thresholdGT, core::Constant<T, L> valueGT) {
  const T *low = core::valuesOf<T>(thresholdLT), *lowValue = core::valuesOf<T>(valueLT);
  const T *high = core::valuesOf<T>(thresholdGT), *highValue = core::valuesOf<T>(valueGT);
  if (core::anyNull(src, dst, low, lowValue, high, highValue)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  for (int c = 0; c < L::kUsed; ++c) {
    if (core::below(high[c], low[c])) return rnxStatusBadThreshold;
  }
  return runThreshold<L>(&ThresholdKernelsOf<T>::replaceOutside, src, srcStep, dst, dstStep, roi, low, lowValue, high,
                         highValue);
}

// ---- In place ----

// InPlace<Plain>::call is Plain with its source as destination.
template <auto Plain>
struct InPlace;

template <class T, class... P, RnxStatus (*Plain)(const T*, int, T*, int, RnxiSize, P...)>
struct InPlace<Plain> {
  static RnxStatus call(T* srcDst, int srcDstStep, RnxiSize roi, P... parameters) {
    return Plain(srcDst, srcDstStep, srcDst, srcDstStep, roi, parameters...);
  }
};

}  // namespace rnx::arith
