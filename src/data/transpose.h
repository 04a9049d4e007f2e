// Transpose, and Mirror about a diagonal.
#pragma once

#include "data/transpose_kernels.h"

namespace rnx::data {

// A block of rows that may lie anywhere.
struct Block {
  core::Operand rows;
  s64 height;

  s64 first() const { return rows.step < 0 ? rows.step * (height - 1) : 0; }
  s64 end() const { return (rows.step < 0 ? 0 : rows.step * (height - 1)) + rows.rowBytes; }
};

// Whether a row of the block overlaps the next one.
inline bool rowsOverlap(const Block& a) {
  return a.height > 1 && (a.rows.step < 0 ? -a.rows.step : a.rows.step) < a.rows.rowBytes;
}

// Whether two blocks have a byte in common. Blocks side by side in one image have not; with different steps, or rows
// longer than a step, it is enough that the bytes from the first to the last one of each meet.
inline bool overlap(const Block& a, const Block& b) {
  const s64 distance = static_cast<s64>(b.rows.address - a.rows.address);
  if (distance + b.first() >= a.end() || distance + b.end() <= a.first()) return false;
  const s64 pitch = a.rows.step < 0 ? -a.rows.step : a.rows.step;
  if (a.rows.step != b.rows.step || pitch < a.rows.rowBytes || pitch < b.rows.rowBytes) return true;
  const s64 phase = ((distance % pitch) + pitch) % pitch;
  return phase < a.rows.rowBytes || phase + b.rows.rowBytes > pitch;
}

template <class L, class T>
Block sourceBlock(const T* src, s64 step, RnxiSize roi) {
  return {core::operand(src, step, s64{roi.width} * L::kChannels), roi.height};
}
template <class L, class T>
Block transposedBlock(const T* dst, s64 step, RnxiSize roi) {
  return {core::operand(dst, step, s64{roi.height} * L::kChannels), roi.width};
}

template <class T, class L>
TransposeForms transposeForms(RnxiSize roi) {
  constexpr s64 kPixelBytes = static_cast<s64>(sizeof(T)) * L::kChannels;
  const bool wide = core::wideRows(2 * kPixelBytes * roi.width * roi.height);
  return (wide ? v256::transposeKernels : v128::transposeKernels).get(kPixelBytes, core::kHasAlpha<L>);
}

template <class T, class L>
RnxStatus transposeInPlace(T* srcDst, int step, RnxiSize roi) {
  if (core::anyNull(srcDst)) return rnxStatusNullPointer;
  if (core::empty(roi) || roi.width != roi.height) return rnxStatusBadSize;

  transposeForms<T, L>(roi).inPlace(bytes(srcDst), step, roi.width, rowsOverlap(sourceBlock<L>(srcDst, step, roi)));
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus transpose(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi) {
  if (src == dst && srcStep == dstStep) return transposeInPlace<T, L>(dst, dstStep, roi);
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  const Block from = sourceBlock<L>(src, srcStep, roi), to = transposedBlock<L>(dst, dstStep, roi);
  transposeForms<T, L>(roi).transpose({.width = roi.width,
                                       .height = roi.height,
                                       .inOrder = overlap(from, to) || rowsOverlap(to),
                                       .src = bytes(src),
                                       .srcStep = srcStep,
                                       .dst = bytes(dst),
                                       .dstStep = dstStep});
  return rnxStatusNoError;
}

// ---- Mirror about a diagonal: not in place ----

inline RnxStatus refuseDiagonalInPlace(int step, RnxiSize roi) {
  if (core::anyStepBelow1(step)) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  return rnxStatusUnsupportedMode;
}

// About the second diagonal: both images are walked from their last rows.
template <class T, class L>
RnxStatus mirrorDiagonal(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, int flip) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (core::empty(roi)) return rnxStatusBadSize;
  const Block from = sourceBlock<L>(src, srcStep, roi), to = transposedBlock<L>(dst, dstStep, roi);
  if (overlap(from, to)) return rnxStatusUnsupportedMode;

  TransposeCall call = {.width = roi.width,
                        .height = roi.height,
                        .inOrder = rowsOverlap(to),
                        .src = bytes(src),
                        .srcStep = srcStep,
                        .dst = bytes(dst),
                        .dstStep = dstStep};
  if (flip == rnxAxisSecondaryDiagonal) {
    call.src = core::at(call.src, (s64{roi.height} - 1) * srcStep);
    call.srcStep = -call.srcStep;
    call.dst = core::at(call.dst, (s64{roi.width} - 1) * dstStep);
    call.dstStep = -call.dstStep;
  }
  transposeForms<T, L>(roi).transpose(call);
  return rnxStatusNoError;
}

}  // namespace rnx::data
