// Fourier transforms: sizes and contents of specs, and the transforms themselves. Power-of-two transforms (FFT) and
// those of any size (DFT) differ in their plans' arguments and tags only.
#pragma once

#include "core/checks.h"
#include "core/image.h"
#include "core/spec.h"
#include "fft/plan.h"
#include "fft/transform_kernels.h"

namespace rnx::fft {

// ---- Planning ----

inline bool isScalingFlag(int flag) { return flag == 1 || flag == 2 || flag == 4 || flag == 8; }

// The one-dimensional plan of an axis refuses its order, then the flag; the row plan speaks first.
inline RnxStatus checkOrders(int orderX, int orderY, int flag) {
  constexpr int kLargestOrder = 28;
  for (const int order : {orderX, orderY}) {
    if (order < 0 || order > kLargestOrder) return rnxStatusBadFftOrder;
    if (!isScalingFlag(flag)) return rnxStatusBadFftFlag;
  }
  return rnxStatusNoError;
}

template <Tag kTag>
Request requestFor(RnxiSize size, int orderX, int orderY, int flag, int hint) {
  return {kTag, kTag == kTagFftReal || kTag == kTagDftReal, size, orderX, orderY, flag, hint};
}
template <Tag kTag>
Request requestFor(int orderX, int orderY, int flag, int hint) {
  return requestFor<kTag>({1 << orderX, 1 << orderY}, orderX, orderY, flag, hint);
}

inline bool fits(const Sizes& sizes) {
  return reported(sizes.spec) <= core::kMaxReportedSize && reported(sizes.init) <= core::kMaxReportedSize &&
         reported(sizes.work) <= core::kMaxReportedSize;
}

inline RnxStatus reportSizes(const Request& request, int* specSize, int* initSize, int* workSize) {
  const Sizes sizes = measureSpec(request);
  if (!fits(sizes)) return rnxStatusSizeOverflow;
  *specSize = static_cast<int>(reported(sizes.spec));
  *initSize = static_cast<int>(reported(sizes.init));
  *workSize = static_cast<int>(reported(sizes.work));
  return rnxStatusNoError;
}

inline RnxStatus initSpec(const Request& request, void* spec, u8* init) {
  const Sizes sizes = measureSpec(request);
  if (!fits(sizes)) return rnxStatusSizeOverflow;
  if (sizes.init > 0 && init == nullptr) return rnxStatusNullPointer;
  writeSpec(request, core::alignedIn<char>(spec), core::alignedIn<void>(init));
  return rnxStatusNoError;
}

template <Tag kTag>
RnxStatus fftGetSize(int orderX, int orderY, int flag, int hint, int* specSize, int* initSize, int* workSize) {
  if (core::anyNull(specSize, initSize, workSize)) return rnxStatusNullPointer;
  *specSize = *initSize = *workSize = 0;
  if (const RnxStatus status = checkOrders(orderX, orderY, flag)) return status;
  return reportSizes(requestFor<kTag>(orderX, orderY, flag, hint), specSize, initSize, workSize);
}

template <Tag kTag>
RnxStatus fftInit(int orderX, int orderY, int flag, int hint, RnxiFFTSpec* spec, u8* init) {
  constexpr int kAbsurdOrder = 31;  // tested before the spec
  if (orderX >= kAbsurdOrder || orderY >= kAbsurdOrder) return rnxStatusBadFftOrder;
  if (spec == nullptr) return rnxStatusNullPointer;
  if (const RnxStatus status = checkOrders(orderX, orderY, flag)) return status;
  return initSpec(requestFor<kTag>(orderX, orderY, flag, hint), spec, init);
}

template <Tag kTag>
RnxStatus dftGetSize(RnxiSize size, int flag, int hint, int* specSize, int* initSize, int* workSize) {
  if (core::anyNull(specSize, initSize, workSize)) return rnxStatusNullPointer;
  *specSize = *initSize = *workSize = 0;
  if (core::empty(size)) return rnxStatusBadSize;
  if (!isScalingFlag(flag)) return rnxStatusBadFftFlag;
  return reportSizes(requestFor<kTag>(size, 0, 0, flag, hint), specSize, initSize, workSize);
}

template <Tag kTag>
RnxStatus dftInit(RnxiSize size, int flag, int hint, RnxiDFTSpec* spec, u8* init) {
  if (spec == nullptr) return rnxStatusNullPointer;
  if (core::empty(size)) return rnxStatusBadSize;
  if (!isScalingFlag(flag)) return rnxStatusBadFftFlag;
  return initSpec(requestFor<kTag>(size, 0, 0, flag, hint), spec, init);
}

// ---- Transforms ----

enum class Direction { kForward, kInverse };

// One plane after the other.
inline void transformPlanes(TransformCall call, int planes, bool isPack) {
  const s64 bytes = 2 * s64{call.spec->width} * call.spec->height * call.channels * s64{sizeof(f32)};
  const TransformKernels& kernels = core::wideRows(bytes) ? v256::transformKernels : v128::transformKernels;
  const TransformKernel kernel =
      !isPack ? kernels.complexToComplex : (call.inverse ? kernels.packToReal : kernels.realToPack);
  for (int plane = 0; plane < planes; ++plane) {
    kernel(call);
    ++call.src;
    ++call.dst;
  }
}

__attribute__((noinline)) inline void transformOnStack(TransformCall call, int planes, bool isPack) {
  alignas(core::kSpecAlignment) f32 work[kStackWork / sizeof(f32)];
  call.work = work;
  transformPlanes(call, planes, isPack);
}

template <Tag kTag, Direction kDirection, class L>
RnxStatus transform(const f32* src, int srcStep, f32* dst, int dstStep, const void* block, u8* buffer) {
  constexpr bool kIsPack = kTag == kTagFftReal || kTag == kTagDftReal;
  if (block == nullptr) return rnxStatusNullPointer;
  const Spec& spec = *core::alignedIn<const Spec>(block);
  if (spec.tag != kTag) return rnxStatusBadContext;
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (spec.workSize > 0 && buffer == nullptr) return rnxStatusNullPointer;

  TransformCall call = {.spec = &spec,
                        .src = src,
                        .srcStep = srcStep,
                        .dst = dst,
                        .dstStep = dstStep,
                        .channels = L::kChannels,
                        .inverse = kDirection == Direction::kInverse,
                        .work = core::alignedIn<f32>(buffer)};
  if (spec.workSize > 0) {
    transformPlanes(call, L::kUsed, kIsPack);
  } else {
    transformOnStack(call, L::kUsed, kIsPack);
  }
  return rnxStatusNoError;
}

// ---- The exports ----

template <class S, Tag kTag, Direction kDirection>
RnxStatus complexTransform(const fc32* src, int srcStep, fc32* dst, int dstStep, const S* spec, u8* buffer) {
  return transform<kTag, kDirection, core::C1>(reinterpret_cast<const f32*>(src), srcStep, reinterpret_cast<f32*>(dst),
                                               dstStep, spec, buffer);
}
template <class S, Tag kTag, Direction kDirection>
RnxStatus complexInPlace(fc32* srcDst, int step, const S* spec, u8* buffer) {
  return complexTransform<S, kTag, kDirection>(srcDst, step, srcDst, step, spec, buffer);
}

template <class S, Tag kTag, Direction kDirection, class L>
RnxStatus realTransform(const f32* src, int srcStep, f32* dst, int dstStep, const S* spec, u8* buffer) {
  return transform<kTag, kDirection, L>(src, srcStep, dst, dstStep, spec, buffer);
}
template <class S, Tag kTag, Direction kDirection, class L>
RnxStatus realInPlace(f32* srcDst, int step, const S* spec, u8* buffer) {
  return transform<kTag, kDirection, L>(srcDst, step, srcDst, step, spec, buffer);
}

}  // namespace rnx::fft
