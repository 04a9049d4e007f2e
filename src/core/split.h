// The rule of the _L forms: delegate to the 32-bit form where everything fits it, otherwise call that form once per
// piece of a row. One specialisation per argument shape.
#pragma once

#include <algorithm>

#include "core/image.h"
#include "core/types.h"

namespace rnx::core {

inline constexpr s64 kFits32 = 0x7fffffff;          // exclusive bound of steps and ROI bytes of the 32-bit forms
inline constexpr s64 kMaxPiecePixels = 0x1fffffff;  // of one row

inline int clampToInt(s64 v) { return static_cast<int>(std::clamp<s64>(v, INT32_MIN, INT32_MAX)); }

// The product of the sizes counts as it stands: one negative size makes it small, and the 32-bit form refuses it.
inline bool bytesFit32(const RnxiSizeL& roi, s64 pixelBytes) {
  s64 bytes = 0;
  const bool overflow =
      __builtin_mul_overflow(roi.width, roi.height, &bytes) || __builtin_mul_overflow(bytes, pixelBytes, &bytes);
  return overflow ? (roi.width < 0) != (roi.height < 0) : bytes < kFits32;
}

template <class... Steps>
bool fits32(const RnxiSizeL& roi, s64 pixelBytes, Steps... steps) {
  return bytesFit32(roi, pixelBytes) && ((steps > -kFits32 && steps < kFits32) && ...);
}

// Calls piece(row, firstPixel, size) for one-row pieces from the top left. A width below 1 still makes one piece a row,
// so that the 32-bit form refuses it; a height below 1 makes none.
template <class Piece>
RnxStatus forEachPiece(const RnxiSizeL& roi, Piece piece) {
  RnxStatus status = rnxStatusNoError;
  for (s64 row = 0; row < roi.height; ++row) {
    s64 x = 0;
    do {
      const RnxiSize size = {clampToInt(std::min(roi.width - x, kMaxPiecePixels)), 1};
      status = piece(row, x, size);
      if (status < 0) return status;
      x += kMaxPiecePixels;
    } while (x < roi.width);
  }
  return status;
}

inline RnxiSize clampToSize(const RnxiSizeL& roi) { return {clampToInt(roi.width), clampToInt(roi.height)}; }

// Split<Plain, L>::call is the _L form of the 32-bit operation Plain on images of layout L. A piece is a row of its
// own, so its step only has to keep its sign for the operations that check it.
template <auto Plain, class L>
struct Split;

template <class L, class S1, class S2, class D, class... P,
          RnxStatus (*Plain)(const S1*, int, const S2*, int, D*, int, RnxiSize, P...)>
struct Split<Plain, L> {
  static RnxStatus call(const S1* src1, s64 step1, const S2* src2, s64 step2, D* dst, s64 dstStep, const RnxiSizeL* roi,
                        P... parameters) {
    if (roi == nullptr) return rnxStatusNullPointer;
    const int s1 = clampToInt(step1), s2 = clampToInt(step2), d = clampToInt(dstStep);
    if (fits32(*roi, s64{sizeof(D)} * L::kChannels, step1, step2, dstStep)) {
      return Plain(src1, s1, src2, s2, dst, d, clampToSize(*roi), parameters...);
    }
    return forEachPiece(*roi, [&](s64 row, s64 x, RnxiSize size) {
      const s64 n = x * L::kChannels;
      return Plain(at(src1, row * step1, n), s1, at(src2, row * step2, n), s2, at(dst, row * dstStep, n), d, size,
                   parameters...);
    });
  }
};

template <class L, class S, class D, class... P, RnxStatus (*Plain)(const S*, int, D*, int, RnxiSize, P...)>
struct Split<Plain, L> {
  static RnxStatus call(const S* src, s64 srcStep, D* dst, s64 dstStep, const RnxiSizeL* roi, P... parameters) {
    if (roi == nullptr) return rnxStatusNullPointer;
    const int s = clampToInt(srcStep), d = clampToInt(dstStep);
    if (fits32(*roi, s64{sizeof(D)} * L::kChannels, srcStep, dstStep)) {
      return Plain(src, s, dst, d, clampToSize(*roi), parameters...);
    }
    return forEachPiece(*roi, [&](s64 row, s64 x, RnxiSize size) {
      const s64 n = x * L::kChannels;
      return Plain(at(src, row * srcStep, n), s, at(dst, row * dstStep, n), d, size, parameters...);
    });
  }
};

// With a constant V: a value, or a pointer to one value per channel.
template <class L, class S, class V, class D, class... P, RnxStatus (*Plain)(const S*, int, V, D*, int, RnxiSize, P...)>
struct Split<Plain, L> {
  static RnxStatus call(const S* src, s64 srcStep, V value, D* dst, s64 dstStep, const RnxiSizeL* roi,
                        P... parameters) {
    if (roi == nullptr) return rnxStatusNullPointer;
    const int s = clampToInt(srcStep), d = clampToInt(dstStep);
    if (fits32(*roi, s64{sizeof(D)} * L::kChannels, srcStep, dstStep)) {
      return Plain(src, s, value, dst, d, clampToSize(*roi), parameters...);
    }
    return forEachPiece(*roi, [&](s64 row, s64 x, RnxiSize size) {
      const s64 n = x * L::kChannels;
      return Plain(at(src, row * srcStep, n), s, value, at(dst, row * dstStep, n), d, size, parameters...);
    });
  }
};

template <class L, class V, class D, class... P, RnxStatus (*Plain)(V, D*, int, RnxiSize, P...)>
struct Split<Plain, L> {
  static RnxStatus call(V value, D* srcDst, s64 step, const RnxiSizeL* roi, P... parameters) {
    if (roi == nullptr) return rnxStatusNullPointer;
    const int d = clampToInt(step);
    if (fits32(*roi, s64{sizeof(D)} * L::kChannels, step)) {
      return Plain(value, srcDst, d, clampToSize(*roi), parameters...);
    }
    return forEachPiece(*roi, [&](s64 row, s64 x, RnxiSize size) {
      return Plain(value, at(srcDst, row * step, x * L::kChannels), d, size, parameters...);
    });
  }
};

}  // namespace rnx::core
