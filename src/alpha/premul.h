// Alpha premultiplication: by the pixel's own alpha, or by one constant.
#pragma once

#include "alpha/premul_kernels.h"
#include "core/checks.h"
#include "data/copy.h"
#include "data/fill.h"

namespace rnx::alpha {

inline const PremulKernelsOf<u8>& kernelsOf(const PremulKernels& k, u8) { return k.of8u; }
inline const PremulKernelsOf<u16>& kernelsOf(const PremulKernels& k, u16) { return k.of16u; }

template <class T>
const PremulKernelsOf<T>& kernels(const core::Rows& rows) {
  return kernelsOf(core::wideRows(rows.bytesMoved) ? v256::premulKernels : v128::premulKernels, T{});
}

// Rows whose elements are E, which may be a whole pixel.
template <class E, class T>
PremulCall<T> plan(const T* src, int srcStep, const T* alpha, T* dst, int dstStep, s64 width, s64 height) {
  const auto operand = [width](const T* p, int step) {
    return core::operand(reinterpret_cast<const E*>(p), step, width);
  };
  return {.rows = core::planRows(width, height, operand(dst, dstStep), operand(src, srcStep)),
          .src = src,
          .srcStep = srcStep,
          .alpha = alpha,
          .alphaStep = 0,
          .dst = dst,
          .dstStep = dstStep};
}

template <class T>
struct PixelOf {
  T channels[4];
};

// ---- By the pixel's own alpha ----

template <class T>
RnxStatus premul(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  const auto call = plan<PixelOf<T>, T>(src, srcStep, nullptr, dst, dstStep, roi.width, roi.height);
  kernels<T>(call.rows).byOwnAlpha(call);
  return rnxStatusNoError;
}

template <class T>
RnxStatus premulInPlace(T* srcDst, int srcDstStep, RnxiSize roi) {
  return premul<T>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

// ---- By a constant ----

template <class T, class L>
RnxStatus premulConstant(const T* src, int srcStep, T alpha, T* dst, int dstStep, RnxiSize roi) {
  if (core::anyNull(src, dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  if constexpr (core::kHasAlpha<L>) {
    const auto call = plan<PixelOf<T>, T>(src, srcStep, &alpha, dst, dstStep, roi.width, roi.height);
    kernels<T>(call.rows).byConstantColors(call);
  } else {
    const s64 width = s64{roi.width} * L::kChannels;
    const auto call = plan<T, T>(src, srcStep, &alpha, dst, dstStep, width, roi.height);
    kernels<T>(call.rows).byConstant(call);
  }
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus premulConstantInPlace(T alpha, T* srcDst, int srcDstStep, RnxiSize roi) {
  return premulConstant<T, L>(srcDst, srcDstStep, alpha, srcDst, srcDstStep, roi);
}

// ---- Four planes, of which the fourth is alpha. Plane by plane, in their order. ----

template <class T>
bool anyPlaneNull(const T* const planes[4]) {
  return planes == nullptr || core::anyNull(planes[0], planes[1], planes[2], planes[3]);
}

template <class T>
RnxStatus premulPlanes(const T* const src[4], int srcStep, T* const dst[4], int dstStep, RnxiSize roi) {
  if (anyPlaneNull<T>(src) || anyPlaneNull<T>(dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  for (int c = 0; c < 3; ++c) {
    const auto operand = [&](const T* p, int step) { return core::operand(p, step, roi.width); };
    const PremulCall<T> call = {.rows = core::planRows(roi.width, roi.height, operand(dst[c], dstStep),
                                                       operand(src[c], srcStep), operand(src[3], srcStep)),
                                .src = src[c],
                                .srcStep = srcStep,
                                .alpha = src[3],
                                .alphaStep = srcStep,
                                .dst = dst[c],
                                .dstStep = dstStep};
    kernels<T>(call.rows).byPlane(call);
  }
  return data::copy<T, core::C1>(src[3], srcStep, dst[3], dstStep, roi);
}

template <class T>
RnxStatus premulPlanesInPlace(T* const srcDst[4], int srcDstStep, RnxiSize roi) {
  return premulPlanes<T>(srcDst, srcDstStep, srcDst, srcDstStep, roi);
}

template <class T>
RnxStatus premulConstantPlanes(const T* const src[4], int srcStep, T alpha, T* const dst[4], int dstStep,
                               RnxiSize roi) {
  if (anyPlaneNull<T>(src) || anyPlaneNull<T>(dst)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  for (int c = 0; c < 3; ++c) premulConstant<T, core::C1>(src[c], srcStep, alpha, dst[c], dstStep, roi);
  return data::set<T, core::C1>(alpha, dst[3], dstStep, roi);
}

template <class T>
RnxStatus premulConstantPlanesInPlace(T alpha, T* const srcDst[4], int srcDstStep, RnxiSize roi) {
  return premulConstantPlanes<T>(srcDst, srcDstStep, alpha, srcDst, srcDstStep, roi);
}

}  // namespace rnx::alpha
