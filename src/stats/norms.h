// Sums, means and norms.
#pragma once

#include <algorithm>
#include <bit>

#include "core/checks.h"
#include "simd/float_state.h"
#include "stats/reduce_kernels.h"

namespace rnx::stats {

using simd::FloatState;

inline const ReduceKernelsOf<u8>& kernelsOf(const ReduceKernels& k, u8) { return k.of8u; }
inline const ReduceKernelsOf<u16>& kernelsOf(const ReduceKernels& k, u16) { return k.of16u; }
inline const ReduceKernelsOf<s16>& kernelsOf(const ReduceKernels& k, s16) { return k.of16s; }
inline const FloatReduceKernels& kernelsOf(const ReduceKernels& k, f32) { return k.of32f; }

inline const ReduceKernels& kernels(s64 bytesRead) {
  return core::wideRows(bytesRead) ? v256::reduceKernels : v128::reduceKernels;
}

template <class L, class T>
ReduceKernel<T> forChannels(const ByChannels<T>& k) {
  return L::kChannels == 1 ? k.c1 : L::kChannels == 3 ? k.c3 : k.c4;
}

// One image, or two of which the difference is meant.
template <class T>
struct Images {
  const T* first;
  int firstStep;
  const T* second = nullptr;
  int secondStep = 0;
};

template <class T>
using Reduction = ByChannels<T> Reductions<T>::*;

// Whether a result in single precision is as near as promised: nothing has left the range of the type, and of squares
// so little was lost below it (2^-150 each) that it does not count; nothing at all where the largest element is 0.
template <class L>
bool isReliable(const f64* results, RnxiSize roi, bool squares, const f64* largest = nullptr) {
  const f64 least = squares ? 0x1p-126 * static_cast<f64>(s64{roi.width} * roi.height) : 0;
  for (int c = 0; c < L::kChannels; ++c) {
    const bool finite = (std::bit_cast<u64>(results[c]) & 0x7ff0000000000000) != 0x7ff0000000000000;
    const bool lost = squares && results[c] < least && (largest == nullptr || std::bit_cast<u64>(largest[c]) != 0);
    if (!finite || lost) return false;
  }
  return true;
}

// The control state is set by the caller of this.
template <class L, class T>
void reduce(Reduction<T> reduction, const Images<T>& images, RnxiSize roi, f64* results,
            [[maybe_unused]] bool accurate = false) {
  const s64 width = s64{roi.width} * L::kChannels, bytes = width * static_cast<s64>(sizeof(T));
  const bool two = images.second != nullptr;
  ReduceCall<T> call = {.first = images.first,
                        .firstStep = images.firstStep,
                        .second = images.second,
                        .secondStep = images.secondStep,
                        .width = width,
                        .height = roi.height,
                        .results = results};
  const auto& table = kernelsOf(kernels(bytes * roi.height), T{});
  const auto run = [&](const Reductions<T>& r, Reduction<T> which) { forChannels<L>(r.*which)(call); };
  if constexpr (std::is_same_v<T, f32>) {
    if (accurate) return run(two ? table.accurateDifference : table.accurateImage, reduction);
  }
  if (images.firstStep == bytes && (!two || images.secondStep == bytes)) {
    call.width *= roi.height;
    call.height = 1;
  }
  run(two ? table.difference : table.image, reduction);
  if constexpr (std::is_same_v<T, f32>) {
    const bool squares = reduction == &Reductions<T>::squares;
    if (isReliable<L>(results, roi, squares)) return;
    if (squares) {  // often of equal images
      f64 largest[kMaxChannels];
      call.results = largest;
      run(two ? table.difference : table.image, &Reductions<T>::largest);
      if (isReliable<L>(results, roi, squares, largest)) return;
    }
    reduce<L>(reduction, images, roi, results, true);
  }
}

// ---- Sum and Mean ----

template <class T, class L>
RnxStatus sum(const T* src, int srcStep, RnxiSize roi, f64* sums, int hint) {
  if (core::anyNull(src, sums)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;

  const FloatState state;
  f64 results[kMaxChannels];
  reduce<L, T>(&Reductions<T>::sum, {src, srcStep}, roi, results, hint == rnxAlgHintAccurate);
  std::copy(results, results + L::kChannels, sums);
  return rnxStatusNoError;
}

template <class T, class L>
RnxStatus mean(const T* src, int srcStep, RnxiSize roi, f64* means, int hint) {
  if (core::anyNull(means)) return rnxStatusNullPointer;
  f64 sums[kMaxChannels];
  if (const RnxStatus status = sum<T, L>(src, srcStep, roi, sums, hint)) return status;

  const auto pixels = static_cast<s32>(static_cast<u32>(roi.width) * static_cast<u32>(roi.height));
  const FloatState state;
  for (int c = 0; c < L::kChannels; ++c) {
    means[c] = state.compute([](f64 total, f64 count) { return total / count; }, sums[c], static_cast<f64>(pixels));
  }
  return rnxStatusNoError;
}

// ---- Norms ----

struct Inf {
  template <class L, class T>
  static void norm(const FloatState&, const Images<T>& images, RnxiSize roi, f64* results, bool) {
    reduce<L>(&Reductions<T>::largest, images, roi, results);
  }
};

struct L1 {
  template <class L, class T>
  static void norm(const FloatState&, const Images<T>& images, RnxiSize roi, f64* results, bool accurate) {
    reduce<L>(&Reductions<T>::absolutes, images, roi, results, accurate);
  }
};

struct L2 {
  template <class L, class T>
  static void whole(const FloatState& state, const Images<T>& images, RnxiSize roi, f64* results, bool accurate) {
    reduce<L>(&Reductions<T>::squares, images, roi, results, accurate);
    for (int c = 0; c < L::kChannels; ++c) results[c] = state.compute(simd::squareRoot, results[c]);
  }

  // 8u in one channel goes by strips of this width, whose norms are squared and summed in double precision.
  static constexpr int kStrip = 32768;

  template <class L, class T>
  static void norm(const FloatState& state, const Images<T>& images, RnxiSize roi, f64* results, bool accurate) {
    if constexpr (std::is_same_v<T, u8> && L::kChannels == 1) {
      if (roi.width > kStrip) return strips(state, images, roi, results);
    }
    whole<L>(state, images, roi, results, accurate);
  }

  static void strips(const FloatState& state, Images<u8> images, RnxiSize roi, f64* results) {
    f64 total = 0;
    for (int left = roi.width; left > 0; left -= kStrip) {
      f64 strip = 0;
      whole<core::C1>(state, images, {std::min(left, kStrip), roi.height}, &strip, false);
      total = state.compute([](f64 sum, f64 v) { return sum + v * v; }, total, strip);
      images.first += kStrip;
      if (images.second != nullptr) images.second += kStrip;
    }
    results[0] = state.compute(simd::squareRoot, total);
  }
};

template <class Norm, class T, class L>
RnxStatus norm(const T* src, int srcStep, RnxiSize roi, f64* values, int hint) {
  if (core::anyNull(src, values)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(srcStep)) return rnxStatusBadStep;

  const FloatState state;
  Norm::template norm<L, T>(state, {src, srcStep}, roi, values, hint == rnxAlgHintAccurate);
  return rnxStatusNoError;
}

template <class Norm, class T, class L>
RnxStatus normDiff(const T* src1, int src1Step, const T* src2, int src2Step, RnxiSize roi, f64* values, int hint) {
  if (core::anyNull(src1, src2, values)) return rnxStatusNullPointer;
  if (core::empty(roi)) return rnxStatusBadSize;
  if (core::anyStepBelow1(src1Step, src2Step)) return rnxStatusBadStep;

  const FloatState state;
  Norm::template norm<L, T>(state, {src1, src1Step, src2, src2Step}, roi, values, hint == rnxAlgHintAccurate);
  return rnxStatusNoError;
}

// The norm of the difference relative to that of the second image. By a norm of 0: infinity, and of 0 by 0 a NaN with
// its sign bit set, with a warning; the other channels have their quotients.
template <class Norm, class T, class L>
RnxStatus normRel(const T* src1, int src1Step, const T* src2, int src2Step, RnxiSize roi, f64* values, int hint) {
  f64 difference[kMaxChannels], reference[kMaxChannels];
  if (core::anyNull(values)) return rnxStatusNullPointer;
  const RnxStatus status = normDiff<Norm, T, L>(src1, src1Step, src2, src2Step, roi, difference, hint);
  if (status != rnxStatusNoError) return status;

  constexpr u64 kInfinity = 0x7ff0000000000000, kNegativeNaN = 0xfff8000000000000;
  const FloatState state;
  Norm::template norm<L, T>(state, {src2, src2Step}, roi, reference, hint == rnxAlgHintAccurate);
  RnxStatus result = rnxStatusNoError;
  for (int c = 0; c < L::kChannels; ++c) {
    if (std::bit_cast<u64>(reference[c]) != 0) {
      values[c] = state.compute([](f64 a, f64 b) { return a / b; }, difference[c], reference[c]);
    } else {
      values[c] = std::bit_cast<f64>(std::bit_cast<u64>(difference[c]) == 0 ? kNegativeNaN : kInfinity);
      result = rnxStatusWarningDivByZero;
    }
  }
  return result;
}

// ---- Without a hint: integers, and the infinity norms ----

template <class T, class L>
RnxStatus sum(const T* src, int srcStep, RnxiSize roi, f64* sums) {
  return sum<T, L>(src, srcStep, roi, sums, rnxAlgHintNone);
}

template <class T, class L>
RnxStatus mean(const T* src, int srcStep, RnxiSize roi, f64* means) {
  return mean<T, L>(src, srcStep, roi, means, rnxAlgHintNone);
}

template <class Norm, class T, class L>
RnxStatus norm(const T* src, int srcStep, RnxiSize roi, f64* values) {
  return norm<Norm, T, L>(src, srcStep, roi, values, rnxAlgHintNone);
}

template <class Norm, class T, class L>
RnxStatus normDiff(const T* src1, int src1Step, const T* src2, int src2Step, RnxiSize roi, f64* values) {
  return normDiff<Norm, T, L>(src1, src1Step, src2, src2Step, roi, values, rnxAlgHintNone);
}

template <class Norm, class T, class L>
RnxStatus normRel(const T* src1, int src1Step, const T* src2, int src2Step, RnxiSize roi, f64* values) {
  return normRel<Norm, T, L>(src1, src1Step, src2, src2Step, roi, values, rnxAlgHintNone);
}

}  // namespace rnx::stats
