// Copy and Set of the pixels that a mask selects.
#pragma once

#include <algorithm>

#include "data/masked_kernels.h"

namespace rnx::data {

template <class L, class T>
void runMasked(const T* src, s64 srcStep, const T* values, T* dst, s64 dstStep, RnxiSize roi, const u8* mask,
               s64 maskStep) {
  const s64 elements = s64{roi.width} * L::kChannels;
  const core::Operand result = core::operand(dst, dstStep, elements),
                      selects = core::operand(mask, maskStep, roi.width);
  const core::Rows rows =
      src == nullptr ? core::planRows(roi.width, roi.height, result, selects)
                     : core::planRows(roi.width, roi.height, result, selects, core::operand(src, srcStep, elements));
  const MaskedCall call = {.width = rows.width,
                           .height = rows.height,
                           .walk = rows.walk,
                           .used = L::kUsed,
                           .src = bytes(src),
                           .srcStep = srcStep,
                           .values = bytes(values),
                           .dst = bytes(dst),
                           .dstStep = dstStep,
                           .mask = mask,
                           .maskStep = maskStep};
  const MaskedKernels& kernels = core::wideRows(rows.bytesMoved) ? v256::maskedKernels : v128::maskedKernels;
  const MaskedForms forms = (src == nullptr ? kernels.fill : kernels.copy)[sizeof(T)];
  (L::kChannels == 1 ? forms.c1 : L::kChannels == 3 ? forms.c3 : forms.c4)(call);
}

template <class T, class L>
RnxStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, const u8* mask, int maskStep) {
  if (core::anyNull(src, dst, mask)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  runMasked<L, T>(src, srcStep, nullptr, dst, dstStep, roi, mask, maskStep);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus setMasked(core::Constant<T, L> value, T* dst, int dstStep, RnxiSize roi, const u8* mask, int maskStep) {
  const T* values = core::valuesOf<T>(value);
  if (core::anyNull(values, dst, mask)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  T all[4] = {};  // the caller's array may lie in the image
  std::copy(values, values + L::kUsed, all);
  runMasked<L, T>(nullptr, 0, all, dst, dstStep, roi, mask, maskStep);
  return rnxStatusNoError;
}

}  // namespace rnx::data
