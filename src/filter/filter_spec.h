// The spec of the general linear filter: what the Init functions leave for the filter, and where its kernel lies.
#pragma once

#include "core/spec.h"

namespace rnx::filter {

// What a spec was made for. The numbers are the spec's identifier and the first word of it.
enum class KernelKind : s32 {
  kInteger8u = 0,
  kInteger16s = 1,
  kFloat8u = 3,
  kFloat16s = 4,
  kFloat16u = 5,
  kFloat32f = 6,
  kDouble64f = 7
};

enum class DivisorMode : s32 { kOne = 0, kPowerOfTwo = 1, kOther = 2 };

// The bits of a rounding mode that say how to round; the hint flag may stand beside them.
inline constexpr s32 kRoundingBits = 3;

struct FilterSpec {
  KernelKind kind;
  s32 width, height;  // of the kernel
  DivisorMode divisorMode;
  s32 shift, half, mask;  // of a divisor 2^shift: 2^(shift-1) and 2^shift - 1
  f32 reciprocal;
  s32 divisor;
  f32 divisorFloat;
  f64 divisorDouble;
  s32 roundMode;
  s32 offset;
  f32 scaledOffset;  // as it is added to a sum: times the divisor for integer kernels
  s32 hint;
  s32 fastInteger;  // the coefficients may be multiplied in pairs: each lies within -32767..32766
  s32 channels;
  s64 positive, negative;  // integer kernels: sum of the coefficients above 0, and of the magnitudes of those below
};

// The kernel follows the record, in reverse order, so that a filter walks it forward with the image:
//
//   kFloat*      f32[width * height]
//   kDouble64f   f64[width * height]
//   kInteger*    f64[width * height], then the coefficient pairs of 16 bits and of 8, see pairsOf()
inline constexpr s64 kKernelOffset = 128;
static_assert(sizeof(FilterSpec) <= kKernelOffset);

inline s64 taps(s64 width, s64 height) { return width * height; }

template <class F>
F* kernelOf(FilterSpec* spec) {
  return reinterpret_cast<F*>(reinterpret_cast<char*>(spec) + kKernelOffset);
}
template <class F>
const F* kernelOf(const FilterSpec* spec) {
  return reinterpret_cast<const F*>(reinterpret_cast<const char*>(spec) + kKernelOffset);
}

// Integer sums run over pairs of image rows, and two result rows, y and y + 1, share the pairs that start at y. For a
// kernel of rows K0 K1 K2 and every column of it:
//
//   pair of image rows   y, y+1     y+2, y+3
//   for result row y     (K0, K1)   (K2, 0)
//   for result row y+1   (0, K0)    (K1, K2)
template <class Coefficient>
struct PairTaps {
  Coefficient first[2], second[2];  // for the two result rows
};

inline s64 rowPairs(s64 kernelHeight) { return (kernelHeight + 2) / 2; }

// Coefficient: s16, or s8 where fitBytes().
template <class Coefficient>
const PairTaps<Coefficient>* pairsOf(const FilterSpec* spec) {
  const auto* wide = reinterpret_cast<const PairTaps<s16>*>(kernelOf<f64>(spec) + taps(spec->width, spec->height));
  if constexpr (std::is_same_v<Coefficient, s16>) {
    return wide;
  } else {
    return reinterpret_cast<const PairTaps<s8>*>(wide + rowPairs(spec->height) * spec->width);
  }
}
template <class Coefficient>
PairTaps<Coefficient>* pairsOf(FilterSpec* spec) {
  return const_cast<PairTaps<Coefficient>*>(pairsOf<Coefficient>(static_cast<const FilterSpec*>(spec)));
}

// Whether every coefficient is a signed byte, and the sums of any of its products with 8u pixels fit 16 bits.
inline bool fitBytes(const FilterSpec& spec) {
  return spec.positive <= 127 && spec.negative <= 128 && spec.fastInteger != 0;
}

// Whether a block can be a spec at all: one that was never filled is refused rather than followed.
inline bool isSpec(const FilterSpec& spec) {
  const auto kind = static_cast<u32>(spec.kind);
  constexpr u32 kKinds = 0b11111011;  // 2 is never made
  return kind <= static_cast<u32>(KernelKind::kDouble64f) && (kKinds >> kind & 1) != 0 && spec.width >= 1 &&
         spec.height >= 1;
}

// ---- Sizes ----

inline s64 round64(s64 bytes) { return core::roundUp(bytes, core::kSpecAlignment); }

inline constexpr s64 kSpecFrame = 191;  // the record, and the slack of the alignment
static_assert(kKernelOffset + core::kSpecAlignment - 1 <= kSpecFrame);

inline s64 doubleSpecBytes(s64 width, s64 height) { return round64(taps(width, height) * 8) + kSpecFrame; }

// Room for pairs and for copies of the kernel, whatever the kernel type.
inline s64 pairBytes(s64 width, s64 height) { return round64((width + 1) / 2 * 40 * height * 4); }

inline s64 integerSpecBytes(s64 width, s64 height) {
  return round64(taps(width, height) * 2) + kSpecFrame + pairBytes(width, height);
}
inline s64 floatSpecBytes(s64 width, s64 height, int channels) {
  const s64 replicated = channels == 2 ? 0 : round64(taps(width, height) * 16);
  return round64(taps(width, height) * 4) + kSpecFrame + pairBytes(width, height) + replicated;
}

// Whether a 16s kernel stays one; otherwise it becomes a kernel of floats.
inline bool staysInteger(RnxiSize kernel, int dataType, int channels) {
  if (dataType == rnx8u) return true;
  if (dataType != rnx16s || channels > 2) return false;
  return kernel.width > 1 && kernel.height > 1 && (channels > 1 || kernel.width > 2);
}

}  // namespace rnx::filter
