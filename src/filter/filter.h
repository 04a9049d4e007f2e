// The general linear filter of an image: checks, and the choice of a kernel by the spec.
#pragma once

#include "core/checks.h"
#include "core/image.h"
#include "filter/filter_init.h"
#include "filter/filter_kernels.h"

namespace rnx::filter {

// Whether all sums of an integer kernel fit 32 bits, for pixels from -low to high.
inline bool sumsFit32(const FilterSpec& spec, s64 low, s64 high) {
  const s64 largest = spec.positive * high + spec.negative * low;
  const s64 smallest = spec.positive * low + spec.negative * high;  // its magnitude
  return largest <= INT32_MAX && smallest <= INT32_MAX;
}

// The sums of 8u images go through single precision, where the offset joins them: INT_MAX rounds up to 2^31 there.
inline bool paired(const FilterSpec& spec, u8) {
  constexpr f32 kSafe = 2147483000.0f;
  const auto bound = static_cast<f32>(std::max(spec.positive, spec.negative) * 255);
  const f32 offset = spec.scaledOffset < 0 ? -spec.scaledOffset : spec.scaledOffset;
  return spec.fastInteger != 0 && sumsFit32(spec, 0, 255) && bound + offset < kSafe;
}
inline bool paired(const FilterSpec& spec, s16) { return spec.fastInteger != 0 && sumsFit32(spec, 32768, 32767); }

template <class T>
FilterKernel<T> chooseIntegerOrFloat(const IntegerFilters<T>& k, const FilterSpec& spec, KernelKind integerKind) {
  if (spec.kind != integerKind) return k.floating;
  return paired(spec, T{}) ? k.integer : k.wideInteger;
}

// Whether both the sums and the steps from them to results stay within 16 bits: a sum plus half a divisor, or the rest
// of a division by a power of two.
inline bool staysIn16(const FilterSpec& spec) {
  const s32 largestDivisor = spec.divisorMode == DivisorMode::kPowerOfTwo ? 16384 : 255;
  return fitBytes(spec) && spec.scaledOffset == 0 && spec.divisor > 0 && spec.divisor <= largestDivisor;
}

inline FilterKernel<u8> choose(const FilterKernels& k, const FilterSpec& spec, u8) {
  if (spec.kind == KernelKind::kInteger8u && staysIn16(spec)) return k.bytesOf8u;
  return chooseIntegerOrFloat(k.of8u, spec, KernelKind::kInteger8u);
}
inline FilterKernel<s16> choose(const FilterKernels& k, const FilterSpec& spec, s16) {
  return chooseIntegerOrFloat(k.of16s, spec, KernelKind::kInteger16s);
}
inline FilterKernel<u16> choose(const FilterKernels& k, const FilterSpec&, u16) { return k.of16u; }
inline FilterKernel<f32> choose(const FilterKernels& k, const FilterSpec&, f32) { return k.of32f; }
inline FilterKernel<f64> choose(const FilterKernels& k, const FilterSpec&, f64) { return k.of64f; }

// A filter moves more than its images: every pixel once per coefficient.
inline s64 bytesMoved(RnxiSize roi, s64 pixelBytes, const FilterSpec& spec) {
  constexpr s64 kEnough = 1 << 20;  // keeps the product in range
  return std::min(roi.width * pixelBytes, kEnough) * std::min(s64{roi.height}, kEnough) *
         std::min(taps(spec.width, spec.height), kEnough);
}

template <class T, class L>
RnxStatus filterBorder(const T* src, int srcStep, T* dst, int dstStep, RnxiSize roi, RnxiBorderType border,
                       const T* borderValue, const RnxiFilterBorderSpec* specBlock, u8* buffer) {
  if (core::anyNull(src, dst, specBlock, buffer)) return rnxStatusNullPointer;
  if (baseOf(border) == rnxBorderConst && borderValue == nullptr) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  constexpr s64 kPixelBytes = L::kChannels * s64{sizeof(T)};
  if (srcStep < 1 || dstStep < roi.width * kPixelBytes) return rnxStatusBadStep;
  if (!acceptedByFilters(border)) return rnxStatusBadBorderType;

  const auto* spec = core::alignedIn<const FilterSpec>(specBlock);
  if (!isSpec(*spec)) return rnxStatusBadContext;
  // A buffer that was measured for elements of 4 bytes is too small for 64f: any result will do, none is the safe one.
  if (std::is_same_v<T, f64> && spec->kind != KernelKind::kDouble64f) return rnxStatusNoError;

  const RnxiSize mask = {spec->width, spec->height};
  const s64 unit = std::is_same_v<T, f64> ? s64{sizeof(f64)} : kUnit;
  const FilterCall<T> call = {
      .src = src,
      .srcStep = srcStep,
      .dst = dst,
      .dstStep = dstStep,
      .width = roi.width,
      .height = roi.height,
      .channels = L::kChannels,
      .border = borderOf(roi, mask, border),
      .borderValue = borderValue,
      .spec = spec,
      .buffer = layOut(core::alignedIn<char>(buffer), borderedElements(roi, mask.width, L::kChannels), mask.height,
                       unit, kVectorBytes)};
  const bool wide = core::wideRows(bytesMoved(roi, kPixelBytes, *spec));
  choose(wide ? v256::filterKernels : v128::filterKernels, *spec, T{})(call);
  return rnxStatusNoError;
}

}  // namespace rnx::filter
