// CopyConstBorder, CopyReplicateBorder, CopyMirrorBorder and CopyWrapBorder: checks, and images that overlap.
#pragma once

#include "data/border_kernels.h"
#include "data/copy.h"

namespace rnx::data {

// The sizes of a call, in 64 bits whatever the form is.
struct BorderLayout {
  RnxiSizeL src, dst;
  s64 top, left;

  bool valid() const {
    return src.width >= 1 && src.height >= 1 && dst.width >= 1 && dst.height >= 1 && top >= 0 && left >= 0 &&
           left <= dst.width - src.width && top <= dst.height - src.height;
  }
};

template <class Pixel>
u8* frameStart(Pixel* inside, s64 step, s64 pixelBytes, const BorderLayout& layout) {
  return core::at(bytes(inside), -layout.top * step - layout.left * pixelBytes);
}

// With no source the image is in its place already.
template <class L, class T>
void buildFrame(Border border, const T* value, const T* src, s64 srcStep, u8* dst, s64 dstStep,
                const BorderLayout& layout) {
  constexpr s64 kPixelBytes = s64{sizeof(T)} * L::kChannels;
  T pixel[4] = {};
  if (value != nullptr) __builtin_memcpy(pixel, value, sizeof(T) * L::kUsed);
  BorderCall call = {.border = border,
                     .value = bytes(pixel),
                     .src = bytes(src),
                     .srcStep = srcStep,
                     .width = layout.src.width,
                     .height = layout.src.height,
                     .dst = dst,
                     .dstStep = dstStep,
                     .top = layout.top,
                     .bottom = layout.dst.height - layout.src.height - layout.top,
                     .left = layout.left,
                     .right = layout.dst.width - layout.src.width - layout.left};
  if (src != nullptr) {
    // Rows of the whole frame against those of the source: apart from each other, or the image is copied first.
    const s64 frame = layout.dst.width * kPixelBytes, image = layout.src.width * kPixelBytes;
    const core::Operand whole = {reinterpret_cast<uintptr_t>(dst), dstStep, frame};
    const core::Operand rows = {reinterpret_cast<uintptr_t>(src), srcStep, image};
    const core::Operand behind = {rows.address + static_cast<uintptr_t>(srcStep * (layout.src.height - 1)), srcStep,
                                  image};
    const uintptr_t end = whole.address + static_cast<uintptr_t>(dstStep * (layout.dst.height - 1) + frame);
    const bool apart = rows.address >= end || behind.address + static_cast<uintptr_t>(image) <= whole.address;
    if (!apart) {
      auto* inside = reinterpret_cast<Bits<T>*>(core::at(dst, layout.top * dstStep + layout.left * kPixelBytes));
      copyPlane<L>(bits(src), srcStep, inside, dstStep, layout.src.width, layout.src.height);
      call.src = nullptr;
    }
  }
  extendImage(static_cast<int>(kPixelBytes), core::kHasAlpha<L>, call);
}

// ---- Replicate, mirror, wrap ----

template <Border B, class T, class L>
RnxStatus frameInPlace(T* srcDst, s64 step, const BorderLayout& layout) {
  if (core::anyNull(srcDst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(step)) return rnxStatusBadStep;
  if (!layout.valid()) return rnxStatusBadSize;

  u8* start = frameStart(srcDst, step, s64{sizeof(T)} * L::kChannels, layout);
  buildFrame<L, T>(B, nullptr, nullptr, 0, start, step, layout);
  return rnxStatusNoError;
}

// One pointer twice means in place, with the destination's step. Replicate and mirror look before they check anything,
// wrap looks afterwards.
template <Border B, class T, class L>
RnxStatus frame(const T* src, s64 srcStep, T* dst, s64 dstStep, const BorderLayout& layout) {
  if (B != Border::kWrap && src == dst) return frameInPlace<B, T, L>(dst, dstStep, layout);
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (!layout.valid()) return rnxStatusBadSize;
  if (B == Border::kWrap && src == dst) return frameInPlace<B, T, L>(dst, dstStep, layout);

  buildFrame<L, T>(B, nullptr, src, srcStep, bytes(dst), dstStep, layout);
  return rnxStatusNoError;
}

// ---- Constant ----

template <class T, class L>
RnxStatus frameConst(const T* src, s64 srcStep, T* dst, s64 dstStep, const BorderLayout& layout, const T* value) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(srcStep, dstStep)) return rnxStatusBadStep;
  if (!layout.valid()) return rnxStatusBadSize;
  if (core::anyNull(value)) return rnxStatusNullPointer;

  buildFrame<L>(Border::kConst, value, src, srcStep, bytes(dst), dstStep, layout);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus frameConstInPlace(T* srcDst, s64 step, const BorderLayout& layout, const T* value) {
  if (core::anyNull(srcDst)) return rnxStatusNullPointer;
  if (core::anyStepBelow1(step)) return rnxStatusBadStep;
  if (!layout.valid()) return rnxStatusBadSize;
  if (core::anyNull(value)) return rnxStatusNullPointer;

  u8* start = frameStart(srcDst, step, s64{sizeof(T)} * L::kChannels, layout);
  buildFrame<L, T>(Border::kConst, value, nullptr, 0, start, step, layout);
  return rnxStatusNoError;
}

// ---- The exports: sizes by value with 32-bit steps, or by address with 64-bit steps ----

inline BorderLayout layoutOf(RnxiSize src, RnxiSize dst, int top, int left) {
  return {{src.width, src.height}, {dst.width, dst.height}, top, left};
}

template <Border B, class T, class L>
struct BorderCopy {
  static RnxStatus call(const T* src, int srcStep, RnxiSize srcRoi, T* dst, int dstStep, RnxiSize dstRoi, int top,
                        int left) {
    return frame<B, T, L>(src, srcStep, dst, dstStep, layoutOf(srcRoi, dstRoi, top, left));
  }
  static RnxStatus callLong(const T* src, s64 srcStep, const RnxiSizeL* srcRoi, T* dst, s64 dstStep,
                            const RnxiSizeL* dstRoi, s64 top, s64 left) {
    if (core::anyNull(srcRoi, dstRoi)) return rnxStatusNullPointer;
    return frame<B, T, L>(src, srcStep, dst, dstStep, {*srcRoi, *dstRoi, top, left});
  }
  static RnxStatus inPlace(T* srcDst, int step, RnxiSize srcRoi, RnxiSize dstRoi, int top, int left) {
    return frameInPlace<B, T, L>(srcDst, step, layoutOf(srcRoi, dstRoi, top, left));
  }
  static RnxStatus inPlaceLong(T* srcDst, s64 step, const RnxiSizeL* srcRoi, const RnxiSizeL* dstRoi, s64 top,
                               s64 left) {
    if (core::anyNull(srcRoi, dstRoi)) return rnxStatusNullPointer;
    return frameInPlace<B, T, L>(srcDst, step, {*srcRoi, *dstRoi, top, left});
  }
};

template <class T, class L>
struct ConstBorderCopy {
  using Value = core::Constant<T, L>;

  static RnxStatus call(const T* src, int srcStep, RnxiSize srcRoi, T* dst, int dstStep, RnxiSize dstRoi, int top,
                        int left, Value value) {
    return frameConst<T, L>(src, srcStep, dst, dstStep, layoutOf(srcRoi, dstRoi, top, left), core::valuesOf<T>(value));
  }
  static RnxStatus callLong(const T* src, s64 srcStep, const RnxiSizeL* srcRoi, T* dst, s64 dstStep,
                            const RnxiSizeL* dstRoi, s64 top, s64 left, Value value) {
    if (core::anyNull(srcRoi, dstRoi)) return rnxStatusNullPointer;
    return frameConst<T, L>(src, srcStep, dst, dstStep, {*srcRoi, *dstRoi, top, left}, core::valuesOf<T>(value));
  }
  static RnxStatus inPlace(T* srcDst, int step, RnxiSize srcRoi, RnxiSize dstRoi, int top, int left, Value value) {
    return frameConstInPlace<T, L>(srcDst, step, layoutOf(srcRoi, dstRoi, top, left), core::valuesOf<T>(value));
  }
  static RnxStatus inPlaceLong(T* srcDst, s64 step, const RnxiSizeL* srcRoi, const RnxiSizeL* dstRoi, s64 top, s64 left,
                               Value value) {
    if (core::anyNull(srcRoi, dstRoi)) return rnxStatusNullPointer;
    return frameConstInPlace<T, L>(srcDst, step, {*srcRoi, *dstRoi, top, left}, core::valuesOf<T>(value));
  }
};

}  // namespace rnx::data
