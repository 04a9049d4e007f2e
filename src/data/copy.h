// Copy of all channels, or of all but alpha.
#pragma once

#include "core/split.h"
#include "data/copy_kernels.h"

namespace rnx::data {

// The arguments are checked; sizes in pixels.
template <class L, class T>
void copyPlane(const T* src, s64 srcStep, T* dst, s64 dstStep, s64 width, s64 height) {
  const s64 elements = width * L::kChannels;
  const CopyCall<T> call = {.rows = core::planRows(elements, height, core::operand(dst, dstStep, elements),
                                                   core::operand(src, srcStep, elements)),
                            .src = src,
                            .srcStep = srcStep,
                            .dst = dst,
                            .dstStep = dstStep};
  const FlatKernels<T>& kernels = copyKernels<T>(call.rows.bytesMoved);
  (core::kHasAlpha<L> ? kernels.copyColors : kernels.copy)(call);
}

template <class T, class L>
RnxStatus copy(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  copyPlane<L>(bits(src), srcStep, bits(dst), dstStep, roi.width, roi.height);
  return rnxStatusNoError;
}

// The kernels work in 64 bits, so rows of any length go in one piece. What is left of the rule of the _L forms is that
// an image too large for the plain form may have no rows.
template <class T, class L>
RnxStatus copyLong(const T* src, s64 srcStep, T* dst, s64 dstStep, const RnxiSizeL* roi) {
  if (roi == nullptr) return rnxStatusNullPointer;
  if (roi->height < 1 && !core::fits32(*roi, s64{sizeof(T)} * L::kChannels, srcStep, dstStep)) return rnxStatusNoError;
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (roi->width < 1 || roi->height < 1) return rnxStatusBadSize;

  copyPlane<L>(bits(src), srcStep, bits(dst), dstStep, roi->width, roi->height);
  return rnxStatusNoError;
}

// Flag bit 0: around the caches, and visible to other threads on return. The other bits have no meaning.
inline RnxStatus copyManaged(const u8* src, int srcStep, u8* dst, int dstStep, RnxiSize roi, int flags) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  CopyCall<u8> call = {.rows = core::planRows(roi.width, roi.height, core::operand(dst, dstStep, roi.width),
                                              core::operand(src, srcStep, roi.width)),
                       .src = src,
                       .srcStep = srcStep,
                       .dst = dst,
                       .dstStep = dstStep};
  if (call.rows.walk != core::Walk::kInOrder) {
    call.rows.walk = (flags & 1) != 0 ? core::Walk::kStream : core::Walk::kVectors;
  }
  copyKernels<u8>(call.rows.bytesMoved).copy(call);
  return rnxStatusNoError;
}

}  // namespace rnx::data
