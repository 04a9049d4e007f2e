// Products of packed spectra.
#pragma once

#include "core/checks.h"
#include "core/image.h"
#include "fft/multiply_kernels.h"

namespace rnx::fft {

enum class Factor { kPlain, kConjugate };

template <class L>
MultiplyKernel kernelOf(const MultiplyForms& forms) {
  if constexpr (core::kHasAlpha<L>) return forms.ac4;
  return L::kChannels == 1 ? forms.c1 : (L::kChannels == 3 ? forms.c3 : forms.c4);
}

template <Factor kFactor, class L>
RnxStatus multiplyImages(const f32* src1, int src1Step, const f32* src2, int src2Step, f32* dst, int dstStep,
                         RnxiSize roi) {
  if (core::anyNull(src1, src2, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(src1Step, src2Step, dstStep)) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  const s64 width = s64{roi.width} * L::kChannels;
  const core::Rows rows = core::planRows(width, roi.height, core::operand(dst, dstStep, width),
                                         core::operand(src1, src1Step, width), core::operand(src2, src2Step, width));
  const MultiplyKernels& kernels = core::wideRows(rows.bytesMoved) ? v256::multiplyKernels : v128::multiplyKernels;
  kernelOf<L>(kFactor == Factor::kConjugate ? kernels.conjugate : kernels.plain)(
      {src1, src1Step, src2, src2Step, dst, dstStep, roi.width, roi.height, rows.walk == core::Walk::kInOrder});
  return rnxStatusNoError;
}

// srcDst = src * srcDst, or src * conj(srcDst)
template <Factor kFactor, class L>
RnxStatus multiplyInPlace(const f32* src, int srcStep, f32* srcDst, int srcDstStep, RnxiSize roi) {
  return multiplyImages<kFactor, L>(src, srcStep, srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// dst = src1 * src2, or src1 * conj(src2). A source that is the destination makes this the in-place form with the other
// one as its source: where that is the first, the result is src2 * conj(src1).
template <Factor kFactor, class L>
RnxStatus multiply(const f32* src1, int src1Step, const f32* src2, int src2Step, f32* dst, int dstStep, RnxiSize roi) {
  if (src1 == dst && src1Step == dstStep) return multiplyInPlace<kFactor, L>(src2, src2Step, dst, dstStep, roi);
  return multiplyImages<kFactor, L>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

}  // namespace rnx::fft
