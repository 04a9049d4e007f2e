// GrayToBin and BinToGray.
#pragma once

#include "core/checks.h"
#include "data/bits_kernels.h"

namespace rnx::data {

// A negative bit offset has the status of a bad size.
template <class S, class D>
RnxStatus checkBits(const S* src, int srcStep, const D* dst, int dstStep, int bitOffset, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (bitOffset < 0) return rnxStatusBadSize;
  return rnxStatusNoError;
}

template <class T>
const BitsForms<T>& bitsForms(RnxiSize roi) {
  const bool wide = core::wideRows(s64{roi.width} * roi.height * static_cast<s64>(sizeof(T)));
  return bitsForms(wide ? v256::bitsKernels : v128::bitsKernels, T{});
}

template <class T>
RnxStatus grayToBits(const T* src, int srcStep, u8* dst, int dstStep, int dstBitOffset, RnxiSize roi, T threshold) {
  if (const RnxStatus status = checkBits(src, srcStep, dst, dstStep, dstBitOffset, roi)) return status;

  bitsForms<T>(roi).toBits({.width = roi.width,
                            .height = roi.height,
                            .src = src,
                            .srcStep = srcStep,
                            .dst = dst,
                            .dstStep = dstStep,
                            .offset = dstBitOffset % 8,
                            .threshold = threshold});
  return rnxStatusNoError;
}

template <class T>
RnxStatus bitsToGray(const u8* src, int srcStep, int srcBitOffset, T* dst, int dstStep, RnxiSize roi, T low, T high) {
  if (const RnxStatus status = checkBits(src, srcStep, dst, dstStep, srcBitOffset, roi)) return status;

  bitsForms<T>(roi).fromBits({.width = roi.width,
                              .height = roi.height,
                              .src = src,
                              .srcStep = srcStep,
                              .offset = srcBitOffset % 8,
                              .dst = dst,
                              .dstStep = dstStep,
                              .low = low,
                              .high = high});
  return rnxStatusNoError;
}

}  // namespace rnx::data
