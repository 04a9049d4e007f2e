// GrayToBin and BinToGray.
#pragma once

#include "core/checks.h"
#include "data/bits_kernels.h"
#include "simd/float_state.h"

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

// How the images meet, and rows of whole bytes that follow each other as one row.
template <class T, class Call>
Call planned(Call call, s64 grayStep, s64 bitStep) {
  const s64 grayBytes = call.width * static_cast<s64>(sizeof(T)), bitBytes = (call.offset + call.width + 7) / 8;
  constexpr bool kFromGray = std::is_same_v<Call, ToBitsCall<T>>;
  const core::Operand src = {reinterpret_cast<uintptr_t>(call.src), call.srcStep, kFromGray ? grayBytes : bitBytes};
  const core::Operand dst = {reinterpret_cast<uintptr_t>(call.dst), call.dstStep, kFromGray ? bitBytes : grayBytes};
  const core::Relation relation = core::relate(dst, src, call.height);
  call.inOrder = relation == core::Relation::kOverlap;
  const bool wholeBytes = call.offset == 0 && call.width % 8 == 0;
  if (relation == core::Relation::kApart && wholeBytes && bitStep == bitBytes && grayStep == grayBytes) {
    call.width *= call.height;
    call.height = 1;
  }
  return call;
}

template <class T>
const BitsForms<T>& bitsForms(RnxiSize roi) {
  const bool wide = core::wideRows(s64{roi.width} * roi.height * static_cast<s64>(sizeof(T)));
  return bitsForms(wide ? v256::bitsKernels : v128::bitsKernels, T{});
}

template <class T>
RnxStatus grayToBits(const T* src, int srcStep, u8* dst, int dstStep, int dstBitOffset, RnxiSize roi, T threshold) {
  if (const RnxStatus status = checkBits(src, srcStep, dst, dstStep, dstBitOffset, roi)) return status;

  const ToBitsCall<T> call = {.width = roi.width,
                              .height = roi.height,
                              .inOrder = false,
                              .src = src,
                              .srcStep = srcStep,
                              .dst = dst,
                              .dstStep = dstStep,
                              .offset = dstBitOffset % 8,
                              .threshold = threshold};
  [[maybe_unused]] const simd::FloatStateFor<T> state;
  bitsForms<T>(roi).toBits(planned<T>(call, srcStep, dstStep));
  return rnxStatusNoError;
}

template <class T>
RnxStatus bitsToGray(const u8* src, int srcStep, int srcBitOffset, T* dst, int dstStep, RnxiSize roi, T low, T high) {
  if (const RnxStatus status = checkBits(src, srcStep, dst, dstStep, srcBitOffset, roi)) return status;

  const FromBitsCall<T> call = {.width = roi.width,
                                .height = roi.height,
                                .inOrder = false,
                                .src = src,
                                .srcStep = srcStep,
                                .offset = srcBitOffset % 8,
                                .dst = dst,
                                .dstStep = dstStep,
                                .low = low,
                                .high = high};
  bitsForms<T>(roi).fromBits(planned<T>(call, dstStep, srcStep));
  return rnxStatusNoError;
}

}  // namespace rnx::data
