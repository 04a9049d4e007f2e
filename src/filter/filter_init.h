// Size query and initialisation of the general linear filter.
#pragma once

#include <bit>

#include "core/checks.h"
#include "filter/filter_kernels.h"
#include "filter/filter_spec.h"
#include "rnxcore.h"

namespace rnx::filter {

// ---- Checks that several functions share ----

inline bool isIntegerImage(int dataType) { return dataType == rnx8u || dataType == rnx16u || dataType == rnx16s; }
inline bool isFilteredImage(int dataType) { return isIntegerImage(dataType) || dataType == rnx32f; }

inline bool isChannelCount(int channels) { return channels >= 1 && channels <= 4; }

inline bool isRoundMode(int mode) {
  const int direction = mode & ~rnxRoundHintFlag;
  return direction >= rnxRoundZero && direction <= rnxRoundHalfAway;
}

// ---- Sizes ----

inline RnxStatus checkSizeQuery(RnxiSize kernel, RnxiSize roi, int dataType, int kernelType, int channels) {
  if (core::empty(kernel) || core::empty(roi)) return rnxStatusBadSize;
  if (kernelType == rnx64f) {
    if (dataType != rnx64f) return rnxStatusBadDataType;
    return channels == 1 ? rnxStatusNoError : rnxStatusBadChannel;
  }
  if (!isFilteredImage(dataType) || (kernelType != rnx16s && kernelType != rnx32f)) return rnxStatusBadDataType;
  return isChannelCount(channels) ? rnxStatusNoError : rnxStatusBadChannel;
}

inline s64 specBytes(RnxiSize kernel, int dataType, int kernelType, int channels) {
  // Beyond this even two bytes for each coefficient are too many, and the products below would not fit.
  if (taps(kernel.width, kernel.height) > core::kMaxReportedSize) return core::kMaxReportedSize + 1;
  if (kernelType == rnx64f) return doubleSpecBytes(kernel.width, kernel.height);
  if (kernelType == rnx16s && staysInteger(kernel, dataType, channels)) {
    return integerSpecBytes(kernel.width, kernel.height);
  }
  return floatSpecBytes(kernel.width, kernel.height, channels);
}

// One column more than the kernel needs, for the reflected border of a kernel of two columns.
inline s64 borderedElements(RnxiSize roi, s64 kernelWidth, s64 channels) {
  return (roi.width + kernelWidth) * channels;
}

inline s64 bufferBytes(RnxiSize kernel, RnxiSize roi, int dataType, int channels) {
  // A processor with 64-byte vectors gets room for them now: kernels for it may come without new sizes.
  const s64 vectorBytes = ownGetFeature(rnxFeatureAvx512) != 0 ? 2 * kVectorBytes : kVectorBytes;
  const s64 elements = borderedElements(roi, kernel.width, channels);
  const s64 unit = dataType == rnx64f ? s64{sizeof(f64)} : kUnit;
  return layOut(nullptr, elements, kernel.height, unit, vectorBytes).bytes + core::kSpecAlignment - 1;
}

inline RnxStatus getSize(RnxiSize kernel, RnxiSize roi, int dataType, int kernelType, int channels, int* specSize,
                         int* bufferSize) {
  if (specSize != nullptr) *specSize = 0;
  if (bufferSize != nullptr) *bufferSize = 0;
  if (const RnxStatus status = checkSizeQuery(kernel, roi, dataType, kernelType, channels)) return status;
  if (core::anyNull(specSize, bufferSize)) return rnxStatusNullPointer;
  const s64 buffer = bufferBytes(kernel, roi, dataType, channels);
  const s64 spec = specBytes(kernel, dataType, kernelType, channels);
  if (buffer > core::kMaxReportedSize || spec > core::kMaxReportedSize) return rnxStatusSizeOverflow;
  *bufferSize = static_cast<int>(buffer);
  *specSize = static_cast<int>(spec);
  return rnxStatusNoError;
}

// ---- Specs of floating-point kernels ----

// A spec without kernel, with offset and hint 0.
inline FilterSpec* beginSpec(RnxiFilterBorderSpec* block, KernelKind kind, RnxiSize kernel, int channels,
                             int roundMode) {
  auto* spec = core::alignedIn<FilterSpec>(block);
  *spec = {.kind = kind,
           .width = kernel.width,
           .height = kernel.height,
           .divisorMode = DivisorMode::kOne,
           .shift = 0,
           .half = 0,
           .mask = 0,
           .reciprocal = 1,
           .divisor = 1,
           .divisorFloat = 1,
           .divisorDouble = 1,
           .roundMode = roundMode,
           .offset = 0,
           .scaledOffset = 0,
           .hint = rnxAlgHintNone,
           .fastInteger = 0,
           .channels = channels,
           .positive = 0,
           .negative = 0};
  return spec;
}

// kernel[n] = convert(source[taps - 1 - n])
template <class F, class K, class Convert>
void storeReversed(FilterSpec* spec, const K* source, Convert convert) {
  const s64 n = taps(spec->width, spec->height);
  F* kernel = kernelOf<F>(spec);
  for (s64 i = 0; i < n; ++i) kernel[i] = convert(source[n - 1 - i]);
}

inline KernelKind floatKind(int dataType) {
  switch (dataType) {
    case rnx8u:
      return KernelKind::kFloat8u;
    case rnx16u:
      return KernelKind::kFloat16u;
    case rnx16s:
      return KernelKind::kFloat16s;
    default:
      return KernelKind::kFloat32f;
  }
}

inline RnxStatus init32f(const f32* kernel, RnxiSize kernelSize, int dataType, int channels, int roundMode,
                         RnxiFilterBorderSpec* block) {
  if (core::anyNull(kernel, block)) return rnxStatusNullPointer;
  if (core::empty(kernelSize)) return rnxStatusBadSize;
  if (!isFilteredImage(dataType)) return rnxStatusBadDataType;
  if (!isChannelCount(channels)) return rnxStatusBadChannel;
  if (!isRoundMode(roundMode)) return rnxStatusBadRoundMode;

  FilterSpec* spec = beginSpec(block, floatKind(dataType), kernelSize, channels, roundMode);
  storeReversed<f32>(spec, kernel, [](f32 c) { return c; });
  return rnxStatusNoError;
}

inline RnxStatus init64f(const f64* kernel, RnxiSize kernelSize, int dataType, int channels, int roundMode,
                         RnxiFilterBorderSpec* block) {
  if (core::anyNull(kernel, block)) return rnxStatusNullPointer;
  if (core::empty(kernelSize)) return rnxStatusBadSize;
  if (dataType != rnx64f) return rnxStatusBadDataType;
  if (channels != 1) return rnxStatusBadChannel;
  if ((roundMode & ~rnxRoundHintFlag) != rnxRoundNearestEven) return rnxStatusBadRoundMode;

  FilterSpec* spec = beginSpec(block, KernelKind::kDouble64f, kernelSize, channels, roundMode);
  storeReversed<f64>(spec, kernel, [](f64 c) { return c; });
  return rnxStatusNoError;
}

// ---- Specs of integer kernels ----

inline void classifyDivisor(FilterSpec* spec, int divisor) {
  spec->divisor = divisor;
  spec->divisorFloat = static_cast<f32>(divisor);
  spec->divisorDouble = divisor;
  spec->reciprocal = 1.0f / spec->divisorFloat;  // exact for powers of two
  if (divisor == 1) return;
  spec->divisorMode = DivisorMode::kOther;
  if (divisor > 0 && std::has_single_bit(static_cast<u32>(divisor))) {
    spec->divisorMode = DivisorMode::kPowerOfTwo;
    spec->shift = std::countr_zero(static_cast<u32>(divisor));
    spec->half = divisor / 2;
    spec->mask = divisor - 1;
  }
}

// The reversed kernel's coefficient in the row and column, 0 in rows outside it.
inline s16 reversedTap(const FilterSpec& spec, const s16* kernel, s64 row, s64 column) {
  if (row < 0 || row >= spec.height) return 0;
  return kernel[taps(spec.width, spec.height) - 1 - (row * spec.width + column)];
}

template <class Coefficient>
void storePairs(FilterSpec* spec, const s16* kernel) {
  PairTaps<Coefficient>* pairs = pairsOf<Coefficient>(spec);
  for (s64 p = 0; p < rowPairs(spec->height); ++p) {
    for (s64 i = 0; i < spec->width; ++i) {
      const auto tap = [&](s64 row) { return static_cast<Coefficient>(reversedTap(*spec, kernel, row, i)); };
      *pairs++ = {.first = {tap(2 * p), tap(2 * p + 1)}, .second = {tap(2 * p - 1), tap(2 * p)}};
    }
  }
}

// What the sums can reach is proved from the coefficients of either sign. Two products of -32768 and -32768 would not
// fit the 32 bits of their sum, and the bound on the positive side keeps a distance that stored specs rely on.
inline void surveyCoefficients(FilterSpec* spec, const s16* kernel) {
  constexpr int kLowest = -32767, kHighest = 32766;
  spec->fastInteger = 1;
  for (s64 i = 0; i < taps(spec->width, spec->height); ++i) {
    (kernel[i] > 0 ? spec->positive : spec->negative) += kernel[i] > 0 ? kernel[i] : -s64{kernel[i]};
    if (kernel[i] < kLowest || kernel[i] > kHighest) spec->fastInteger = 0;
  }
}

inline void initInteger(const s16* kernel, RnxiSize kernelSize, int divisor, int dataType, int channels, int roundMode,
                        RnxiFilterBorderSpec* block) {
  const KernelKind kind = dataType == rnx8u ? KernelKind::kInteger8u : KernelKind::kInteger16s;
  FilterSpec* spec = beginSpec(block, kind, kernelSize, channels, roundMode);
  classifyDivisor(spec, divisor);
  surveyCoefficients(spec, kernel);
  storeReversed<f64>(spec, kernel, [](s16 c) { return static_cast<f64>(c); });
  storePairs<s16>(spec, kernel);
  if (fitBytes(*spec)) storePairs<s8>(spec, kernel);
}

inline RnxStatus init16s(const s16* kernel, RnxiSize kernelSize, int divisor, int dataType, int channels, int roundMode,
                         RnxiFilterBorderSpec* block) {
  if (core::anyNull(kernel, block)) return rnxStatusNullPointer;
  if (core::empty(kernelSize)) return rnxStatusBadSize;
  if (!isIntegerImage(dataType)) return rnxStatusBadDataType;
  if (!isChannelCount(channels)) return rnxStatusBadChannel;
  if (!isRoundMode(roundMode)) return rnxStatusBadRoundMode;
  if (divisor == 0) return rnxStatusBadDivisor;

  if (staysInteger(kernelSize, dataType, channels)) {
    initInteger(kernel, kernelSize, divisor, dataType, channels, roundMode, block);
  } else {
    const f64 factor = 1.0 / divisor;
    FilterSpec* spec = beginSpec(block, floatKind(dataType), kernelSize, channels, roundMode);
    storeReversed<f32>(spec, kernel, [factor](s16 c) { return static_cast<f32>(c * factor); });
  }
  const bool hasAlternativePath = dataType == rnx8u || (dataType == rnx16s && channels == 1);
  const bool hintIgnored = (roundMode & rnxRoundHintFlag) != 0 && !hasAlternativePath;
  return hintIgnored ? rnxStatusWarningHintIgnored : rnxStatusNoError;
}

// ---- Mode ----

inline RnxStatus setMode(int hint, int offset, RnxiFilterBorderSpec* block) {
  if (block == nullptr) return rnxStatusNullPointer;
  auto* spec = core::alignedIn<FilterSpec>(block);
  const KernelKind kind = spec->kind;
  const bool takesOffset = kind != KernelKind::kInteger16s && kind != KernelKind::kFloat16s &&
                           kind != KernelKind::kFloat32f && kind != KernelKind::kDouble64f;
  if (offset != 0 && !takesOffset) return rnxStatusUnsupportedMode;
  if (kind == KernelKind::kDouble64f) return rnxStatusNoError;

  const bool hasAlternativePath =
      kind == KernelKind::kInteger8u || (kind == KernelKind::kInteger16s && spec->channels == 1);
  if (hint != rnxAlgHintAccurate) {
    spec->roundMode &= kRoundingBits;
  } else if (hasAlternativePath) {
    spec->roundMode |= rnxRoundHintFlag;
  }
  spec->hint = hint;
  spec->offset = offset;
  const bool isInteger = kind == KernelKind::kInteger8u || kind == KernelKind::kInteger16s;
  spec->scaledOffset = isInteger ? static_cast<f32>(offset * spec->divisorDouble) : static_cast<f32>(offset);
  return rnxStatusNoError;
}

}  // namespace rnx::filter
