// Row kernels of thresholding. Every comparison is strict: an element equal to a threshold is kept, and so is one that
// is not a number.
#include "arith/threshold_kernels.h"
#include "simd/convert.h"
#include "simd/rows.h"

namespace rnx::arith {
namespace {

using namespace simd;

// Where v is not below (above) the threshold. The minimum and maximum of floats give their second operand for zeros of
// either sign and for what is not a number, which is the element here.
template <class T>
RNX_INLINE Mask<T> notBelow(Vec<T> v, Vec<T> threshold) {
  return equal(max(threshold, v), v);
}
template <class T>
RNX_INLINE Mask<T> notAbove(Vec<T> v, Vec<T> threshold) {
  return equal(min(threshold, v), v);
}
RNX_INLINE Mask<f32> notBelow(Vec<f32> v, Vec<f32> threshold) { return ~greater(threshold, v); }
RNX_INLINE Mask<f32> notAbove(Vec<f32> v, Vec<f32> threshold) { return ~greater(v, threshold); }

template <class T>
struct Raise {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> low) const { return max(low, v); }
};

template <class T>
struct Lower {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> high) const { return min(high, v); }
};

template <class T>
struct ReplaceBelow {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> low, Vec<T> value) const { return select(notBelow(v, low), v, value); }
};

template <class T>
struct ReplaceAbove {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> high, Vec<T> value) const {
    return select(notAbove(v, high), v, value);
  }
};

// Both masks are of the element itself, so that nothing is replaced twice.
template <class T>
struct ReplaceOutside {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> low, Vec<T> lowValue, Vec<T> high, Vec<T> highValue) const {
    return select(notBelow(v, low), select(notAbove(v, high), v, highValue), lowValue);
  }
};

// Which of the call's values the functor takes.
enum class Takes { kLow, kHigh, kLowPair, kHighPair, kBoth };

template <class T, class F, Takes kTakes, class Channels>
void threshold(const ThresholdCall<T>& call) {
  F f;
  const ImageSource<T> src{call.src, call.srcStep};
  const auto pattern = [&](const T* values) RNX_INLINE_LAMBDA { return PatternSource<T>(values, call.period); };
  const auto run = [&](const auto&... values) RNX_INLINE_LAMBDA {
    forEachElement<Channels>(call.rows, call.dst, call.dstStep, f, src, values...);
  };
  if constexpr (kTakes == Takes::kLow) run(pattern(call.low));
  if constexpr (kTakes == Takes::kHigh) run(pattern(call.high));
  if constexpr (kTakes == Takes::kLowPair) run(pattern(call.low), pattern(call.lowValue));
  if constexpr (kTakes == Takes::kHighPair) run(pattern(call.high), pattern(call.highValue));
  if constexpr (kTakes == Takes::kBoth) {
    run(pattern(call.low), pattern(call.lowValue), pattern(call.high), pattern(call.highValue));
  }
}

template <class T, class F, Takes kTakes>
constexpr ThresholdForms<T> kForms = {threshold<T, F, kTakes, AllChannels<T>>,
                                      threshold<T, F, kTakes, ColorChannels<T>>};

template <class T>
constexpr ThresholdKernelsOf<T> kKernels = {
    .raise = kForms<T, Raise<T>, Takes::kLow>,
    .lower = kForms<T, Lower<T>, Takes::kHigh>,
    .replaceBelow = kForms<T, ReplaceBelow<T>, Takes::kLowPair>,
    .replaceAbove = kForms<T, ReplaceAbove<T>, Takes::kHighPair>,
    .replaceOutside = kForms<T, ReplaceOutside<T>, Takes::kBoth>,
};

}  // namespace

namespace RNX_WIDTH {

constinit const ThresholdKernels thresholdKernels = {
    .of8u = kKernels<u8>,
    .of16u = kKernels<u16>,
    .of16s = kKernels<s16>,
    .of32f = kKernels<f32>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::arith
