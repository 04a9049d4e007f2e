// Filling an image with a constant.
#pragma once

#include <algorithm>

#include "data/copy_kernels.h"

namespace rnx::data {

// `values`: one per channel that the layout uses. The arguments are checked; sizes in pixels.
template <class L, class T>
void fillPlane(const T* values, T* dst, s64 dstStep, s64 width, s64 height) {
  T all[4] = {};  // the kernels take a value for alpha too, of no effect
  std::copy(values, values + L::kUsed, all);
  const s64 elements = width * L::kChannels;
  const FillCall<T> call = {.rows = core::planRows(elements, height, core::operand(dst, dstStep, elements)),
                            .values = all,
                            .period = L::kChannels,
                            .dst = dst,
                            .dstStep = dstStep};
  const FlatKernels<T>& kernels = copyKernels<T>(call.rows.bytesMoved);
  (core::kHasAlpha<L> ? kernels.fillColors : kernels.fill)(call);
}

template <class T, class L>
RnxStatus set(core::Constant<T, L> value, T* dst, int dstStep, RnxiSize roi) {
  const T* values = core::valuesOf<T>(value);
  if (core::anyNull(values, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  fillPlane<L>(bits(values), bits(dst), dstStep, roi.width, roi.height);
  return rnxStatusNoError;
}

// Zeros in every channel that the layout uses, for other operations. The arguments are checked.
template <class L, class T>
RnxStatus fillZero(T* dst, s64 dstStep, RnxiSize roi) {
  static constexpr Bits<T> kZeros[4] = {};
  fillPlane<L>(kZeros, bits(dst), dstStep, roi.width, roi.height);
  return rnxStatusNoError;
}

}  // namespace rnx::data
