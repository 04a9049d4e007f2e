// From sums to the elements of a result row: offset, division, rounding, saturation.
//
// Quotients are exact, rounded once. They are taken by a multiplication with the reciprocal where that can be proved to
// give the same: for integers a and d > 0, (a + 1/2) / d keeps a distance of at least 1 / (2d) from every integer, so
// its truncation is that of a / d as long as the error of the product is smaller.
#pragma once

#include "filter/filter_spec.h"
#include "simd/order.h"

namespace rnx::filter {
namespace {

using namespace simd;

template <class Rounding>
inline constexpr bool kRoundsUp = !std::is_same_v<Rounding, RoundZero>;
template <class Rounding>
inline constexpr bool kTiesToEven = std::is_same_v<Rounding, RoundNearestEven>;

// ---- Integer sums, results still in 32 bits ----

struct NoDivision {
  explicit NoDivision(const FilterSpec&) {}
  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const { return sum; }
};

// sum / 2^shift = floor + rest / 2^shift, rounded by what is added to the rest.
template <class Rounding>
class Shift {
public:
  explicit Shift(const FilterSpec& s)
      : shift_(shiftCount(s.shift)), half_(Vec<s32>::splat(s.half)), mask_(Vec<s32>::splat(s.mask)) {}

  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const {
    const Vec<s32> floor = shiftRight(sum, shift_), rest = sum & mask_, one = Vec<s32>::splat(1);
    const Vec<s32> minusOneBelow0 = greater(Vec<s32>::zero(), sum);
    if constexpr (!kRoundsUp<Rounding>) {
      return floor + shiftRight(rest + (minusOneBelow0 & mask_), shift_);
    } else if constexpr (kTiesToEven<Rounding>) {
      return floor + shiftRight(rest + (half_ - one) + (floor & one), shift_);
    } else {
      return floor + shiftRight(rest + half_ + minusOneBelow0, shift_);
    }
  }

private:
  ShiftCount shift_;
  Vec<s32> half_, mask_;
};

// For 8u and 0 < d <= kLargest. Sums are limited to 256d, which saturates, so the quotient in single precision, of two
// roundings and a rounded reciprocal, has an error below 256.5 * 2^-23 < 1 / (2d). Half a divisor is added to round:
// (d - 1) / 2 + 1/2 for an odd one, where there are no ties, d / 2 + 1/2 for an even one.
template <class Rounding>
class DivideSingle {
public:
  static constexpr s32 kLargest = 8192;

  explicit DivideSingle(const FilterSpec& s)
      : limit_(Vec<s32>::splat(256 * s.divisor - 1)),
        bias_(Vec<f32>::splat(static_cast<f32>(kRoundsUp<Rounding> ? s.divisor / 2 : 0) + 0.5f)),
        half_(Vec<f32>::splat(s.divisorFloat / 2)),
        divisor_(Vec<f32>::splat(s.divisorFloat)),
        reciprocal_(Vec<f32>::splat(s.reciprocal)) {}

  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const {
    const Vec<f32> a = toFloat(clamp(sum, Vec<s32>::zero(), limit_));
    const Vec<s32> up = truncateToInt((a + bias_) * reciprocal_);
    if constexpr (!kTiesToEven<Rounding>) return up;
    const Vec<s32> tie = equal(toFloat(up) * divisor_, a + half_);
    return up - (up & tie & Vec<s32>::splat(1));
  }

private:
  Vec<s32> limit_;
  Vec<f32> bias_, half_, divisor_, reciprocal_;
};

// For every 32-bit sum and divisor: the error of the product, below 2^33 * 2^-52 / d, is smaller than 1 / (2d). The
// magnitude is rounded and takes the sign of the quotient; it is limited to what still saturates. A negative sum of 8u
// is 0 before the division, whatever the divisor's sign is.
template <class Rounding, bool NegativeIsZero>
class DivideDouble {
public:
  explicit DivideDouble(const FilterSpec& s) {
    const f64 magnitude = s.divisorDouble < 0 ? -s.divisorDouble : s.divisorDouble;
    const s64 half = kRoundsUp<Rounding> ? static_cast<s64>(magnitude) / 2 : 0;
    sign_ = s.divisorDouble < 0 ? signBit() : Vec<u8>::zero();
    bias_ = Vec<f64>::splat(static_cast<f64>(half) + 0.5);
    half_ = Vec<f64>::splat(magnitude / 2);
    divisor_ = Vec<f64>::splat(magnitude);
    reciprocal_ = Vec<f64>::splat(1 / magnitude);
  }

  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const {
    if constexpr (NegativeIsZero) sum = max(sum, Vec<s32>::zero());
    const Pair<f64> a = toDouble(sum);
    return truncateToInt(Pair<f64>{divide(a.lo), divide(a.hi)});
  }

private:
  static RNX_INLINE Vec<u8> signBit() { return Vec<f64>::splat(-0.0).as<u8>(); }

  RNX_INLINE Vec<f64> divide(Vec<f64> sum) const {
    const Vec<u8> sign = (sum.as<u8>() & signBit()) ^ sign_;
    const Vec<f64> a = (sum.as<u8>() & ~signBit()).as<f64>();
    Vec<f64> up = roundTo<_MM_FROUND_TO_ZERO>((a + bias_) * reciprocal_);
    if constexpr (kTiesToEven<Rounding>) {
      const auto tie = equal(up * divisor_, a + half_);
      const Vec<f64> even = roundTo<_MM_FROUND_TO_ZERO>(up * Vec<f64>::splat(0.5)) * Vec<f64>::splat(2);
      up = select(tie, even, up);
    }
    constexpr f64 kSaturates = 65536;
    return (min(up, Vec<f64>::splat(kSaturates)).template as<u8>() | sign).template as<f64>();
  }

  Vec<u8> sign_;
  Vec<f64> bias_, half_, divisor_, reciprocal_;
};

// The step that sums of 8u take through single precision: (int)((float)sum + offset).
template <class Next>
class SingleStep {
public:
  explicit SingleStep(const FilterSpec& s) : offset_(Vec<f32>::splat(s.scaledOffset)), next_(s) {}
  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const { return next_(truncateToInt(toFloat(sum) + offset_)); }

private:
  Vec<f32> offset_;
  Next next_;
};

// ---- Floating-point sums, results saturated in 32 bits ----

template <class T>
inline constexpr int kLowest = std::is_unsigned_v<T> ? 0 : -32768;
template <class T>
inline constexpr int kHighest = sizeof(T) == 1          ? 255
                                : std::is_unsigned_v<T> ? 65535
                                                        : 32767;

// A half is added to the magnitude; one unit below 1/2, so that the largest number below a tie does not round up to it.
template <class Rounding, class F>
RNX_INLINE Vec<F> roundFloat(Vec<F> v) {
  if constexpr (std::is_same_v<Rounding, RoundHalfAway>) {
    constexpr F kBelowHalf = sizeof(F) == 4 ? F(0x1.fffffep-2) : F(0x1.fffffffffffffp-2);
    const auto sign = v.template as<u8>() & Vec<F>::splat(F(-0.0)).template as<u8>();
    v = v + (Vec<F>::splat(kBelowHalf).template as<u8>() | sign).template as<F>();
    return roundTo<_MM_FROUND_TO_ZERO>(v);
  } else {
    return Rounding::round(v);
  }
}

// Limits before it rounds, so that sums beyond 32 bits saturate; a sum that is not a number gives the lowest value.
template <class T, class Rounding, class F>
RNX_INLINE Vec<F> roundSaturated(Vec<F> v) {
  return roundFloat<Rounding>(min(max(v, Vec<F>::splat(kLowest<T>)), Vec<F>::splat(kHighest<T>)));
}

template <class T, class Rounding>
class FinishFloat {
public:
  using Sum = f32;
  explicit FinishFloat(const FilterSpec& s) : offset_(Vec<f32>::splat(s.scaledOffset)) {}
  RNX_INLINE Vec<s32> operator()(const f32* sums) const {
    return truncateToInt(roundSaturated<T, Rounding>(Vec<f32>::load(sums) + offset_));
  }

private:
  Vec<f32> offset_;
};

// Integer sums of any size, held in double precision. Sums of 8u go through single precision as above: adding two
// singles in double and rounding that once more is their sum in single.
template <class T, class Rounding>
class FinishWideInteger {
public:
  using Sum = f64;
  explicit FinishWideInteger(const FilterSpec& s)
      : offset_(Vec<f64>::splat(s.scaledOffset)), divisor_(Vec<f64>::splat(s.divisorDouble)) {}
  RNX_INLINE Vec<s32> operator()(const f64* sums) const {
    constexpr int L = Vec<f64>::kLanes;
    return truncateToInt(Pair<f64>{finish(Vec<f64>::load(sums)), finish(Vec<f64>::load(sums + L))});
  }

private:
  RNX_INLINE Vec<f64> finish(Vec<f64> sum) const {
    if constexpr (std::is_unsigned_v<T>) {
      sum = roundTo<_MM_FROUND_TO_ZERO>(roundToSingle(roundToSingle(sum) + offset_));
      sum = max(sum, Vec<f64>::zero());
    }
    return roundSaturated<T, Rounding>(sum / divisor_);
  }

  Vec<f64> offset_, divisor_;
};

template <class Next>
class FinishInteger {
public:
  using Sum = s32;
  explicit FinishInteger(const FilterSpec& s) : next_(s) {}
  RNX_INLINE Vec<s32> operator()(const s32* sums) const { return next_(Vec<s32>::load(sums)); }

private:
  Next next_;
};

// ---- Rows ----

// finish(sums) gives the results of one vector of 32 bits. Sums are readable up to a whole vector of T.
template <class T, class Finish>
void finishRow(const FilterSpec& spec, const typename Finish::Sum* sums, T* dst, s64 n) {
  constexpr int L = Vec<T>::kLanes, L32 = Vec<s32>::kLanes;
  const Finish finish(spec);
  const auto vectorAt = [&](s64 i) __attribute__((always_inline)) {
    Vec<s32> v[kWideVectors<T>];
    for (int k = 0; k < kWideVectors<T>; ++k) v[k] = finish(sums + i + k * L32);
    return narrowInOrder<T>(v);
  };
  if (n < L) {
    T whole[L];
    vectorAt(0).store(whole);
    std::memcpy(dst, whole, static_cast<size_t>(n) * sizeof(T));
    return;
  }
  for (s64 i = 0;; i += L) {
    i = i + L > n ? n - L : i;
    vectorAt(i).store(dst + i);
    if (i + L == n) return;
  }
}

// ---- Which one ----

template <class T, class Sum>
using FinishRow = void (*)(const FilterSpec&, const Sum*, T*, s64);

// One of three, by the rounding mode.
template <class T, class Zero, class Even, class Away>
FinishRow<T, typename Zero::Sum> byRounding(s32 roundMode) {
  switch (roundMode & kRoundingBits) {
    case rnxRoundZero:
      return finishRow<T, Zero>;
    case rnxRoundNearestEven:
      return finishRow<T, Even>;
    default:
      return finishRow<T, Away>;
  }
}

// Next<F> is what stands between the sums and the division F.
template <class T, template <class> class Next>
FinishRow<T, s32> finishOfDivisor(const FilterSpec& s) {
  using Zero = RoundZero;
  using Even = RoundNearestEven;
  using Away = RoundHalfAway;
  constexpr bool kNegativeIsZero = std::is_unsigned_v<T>;
  if (s.divisorMode == DivisorMode::kOne) return finishRow<T, Next<NoDivision>>;
  if (s.divisorMode == DivisorMode::kPowerOfTwo) {
    return byRounding<T, Next<Shift<Zero>>, Next<Shift<Even>>, Next<Shift<Away>>>(s.roundMode);
  }
  if constexpr (sizeof(T) == 1) {
    if (s.divisor > 0 && s.divisor <= DivideSingle<Zero>::kLargest) {
      return byRounding<T, Next<DivideSingle<Zero>>, Next<DivideSingle<Even>>, Next<DivideSingle<Away>>>(s.roundMode);
    }
  }
  return byRounding<T, Next<DivideDouble<Zero, kNegativeIsZero>>, Next<DivideDouble<Even, kNegativeIsZero>>,
                    Next<DivideDouble<Away, kNegativeIsZero>>>(s.roundMode);
}

// The step through single precision does nothing to sums that it holds exactly.
inline bool needsSingle(const FilterSpec& s) {
  constexpr s64 kExact = s64{1} << 24;
  return s.scaledOffset != 0 || std::max(s.positive, s.negative) * 255 > kExact;
}

template <class F>
using Directly = FinishInteger<F>;
template <class F>
using ThroughSingle = FinishInteger<SingleStep<F>>;

inline FinishRow<u8, s32> finishOfSums(const FilterSpec& s, u8) {
  return needsSingle(s) ? finishOfDivisor<u8, ThroughSingle>(s) : finishOfDivisor<u8, Directly>(s);
}
inline FinishRow<s16, s32> finishOfSums(const FilterSpec& s, s16) { return finishOfDivisor<s16, Directly>(s); }

template <class T>
FinishRow<T, f64> finishOfWideSums(const FilterSpec& s) {
  return byRounding<T, FinishWideInteger<T, RoundZero>, FinishWideInteger<T, RoundNearestEven>,
                    FinishWideInteger<T, RoundHalfAway>>(s.roundMode);
}

template <class T>
FinishRow<T, f32> finishOfFloats(const FilterSpec& s) {
  return byRounding<T, FinishFloat<T, RoundZero>, FinishFloat<T, RoundNearestEven>, FinishFloat<T, RoundHalfAway>>(
      s.roundMode);
}

}  // namespace
}  // namespace rnx::filter
