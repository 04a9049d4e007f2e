// Mirror: about an axis, here, or about a diagonal, which is a transposition.
#pragma once

#include "data/copy.h"
#include "data/mirror_kernels.h"
#include "data/transpose.h"

namespace rnx::data {

inline bool isDiagonal(int flip) { return flip == rnxAxisMainDiagonal || flip == rnxAxisSecondaryDiagonal; }
inline bool isAxis(int flip) { return flip >= rnxAxisHorizontal && flip <= rnxAxisBoth; }

template <class T, class L>
const MirrorForms mirrorForms(s64 bytesMoved) {
  const MirrorKernels& kernels = core::wideRows(bytesMoved) ? v256::mirrorKernels : v128::mirrorKernels;
  return kernels.get(static_cast<int>(sizeof(T)) * L::kChannels, core::kHasAlpha<L>);
}

// Upside down is a copy whose destination is walked from its last row. From this size on it goes around the caches,
// where it does not fit them.
inline constexpr s64 kStreamedFlipBytes = 2097153;

template <class L, class T>
void flipRows(const T* src, s64 srcStep, T* dst, s64 dstStep, s64 width, s64 height) {
  const s64 elements = width * L::kChannels;
  CopyCall<T> call = {.rows = core::planRows(elements, height, core::operand(dst, dstStep, elements),
                                             core::operand(src, srcStep, elements)),
                      .src = src,
                      .srcStep = srcStep,
                      .dst = dst,
                      .dstStep = dstStep};
  const bool large = elements * height * static_cast<s64>(sizeof(T)) >= kStreamedFlipBytes;
  if (call.rows.walk == core::Walk::kStream && !large) call.rows.walk = core::Walk::kVectors;
  const FlatKernels<T>& kernels = copyKernels<T>(call.rows.bytesMoved);
  (core::kHasAlpha<L> ? kernels.copyColors : kernels.copy)(call);
}

template <class T, class L>
void mirrorAxis(const T* src, s64 srcStep, T* dst, s64 dstStep, RnxiSize roi, int flip) {
  if (flip != rnxAxisVertical) {
    dst = core::at(dst, (s64{roi.height} - 1) * dstStep);
    dstStep = -dstStep;
  }
  if (flip == rnxAxisHorizontal) {
    flipRows<L>(bits(src), srcStep, bits(dst), dstStep, roi.width, roi.height);
    return;
  }
  const s64 elements = s64{roi.width} * L::kChannels;
  const core::Operand to = core::operand(dst, dstStep, elements), from = core::operand(src, srcStep, elements);
  const bool overlap = core::relate(to, from, roi.height) == core::Relation::kOverlap;
  mirrorForms<T, L>(2 * to.rowBytes * roi.height)
      .reverseRows({.width = roi.width,
                    .height = roi.height,
                    .walk = overlap ? core::Walk::kInOrder : core::Walk::kVectors,
                    .src = bytes(src),
                    .srcStep = srcStep,
                    .dst = bytes(dst),
                    .dstStep = dstStep});
}

template <class T, class L>
RnxStatus mirrorInPlace(T* srcDst, int step, RnxiSize roi, int flip) {
  if (core::anyNull(srcDst)) return rnxStatusNullPointer;
  if (isDiagonal(flip)) return refuseDiagonalInPlace(step, roi);
  if (core::empty(roi)) return rnxStatusBadSize;
  if (!isAxis(flip)) return rnxStatusBadMirrorAxis;

  const s64 rowBytes = s64{roi.width} * L::kChannels * static_cast<s64>(sizeof(T));
  const s64 pitch = step < 0 ? -s64{step} : s64{step};
  const MirrorInPlaceCall call = {.width = roi.width,
                                  .height = roi.height,
                                  .inOrder = roi.height > 1 && pitch < rowBytes,
                                  .image = bytes(srcDst),
                                  .step = step};
  const MirrorForms forms = mirrorForms<T, L>(2 * rowBytes * roi.height);
  (flip == rnxAxisVertical     ? forms.reverseRowsInPlace
   : flip == rnxAxisHorizontal ? forms.exchangeRows
                               : forms.exchangeRowsReversed)(call);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus mirror(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, int flip) {
  if (isDiagonal(flip)) return mirrorDiagonal<T, L>(src, srcStep, dst, dstStep, roi, flip);
  if (src == dst && srcStep == dstStep) return mirrorInPlace<T, L>(dst, dstStep, roi, flip);
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (!isAxis(flip)) return rnxStatusBadMirrorAxis;

  mirrorAxis<T, L>(src, srcStep, dst, dstStep, roi, flip);
  return rnxStatusNoError;
}

}  // namespace rnx::data
