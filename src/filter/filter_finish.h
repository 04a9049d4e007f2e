// From sums to the elements of a result row: offset, division, rounding, saturation.
//
// Quotients are exact, rounded once. They are taken by a multiplication with the reciprocal where that can be proved to
// give the same: for integers a and d > 0, (a + 1/2) / d keeps a distance of at least 1 / (2d) from every integer, so
// its truncation is that of a / d as long as the error of the product is smaller.
#pragma once

#include <bit>

#include "filter/filter_sums.h"
#include "simd/cast.h"

namespace rnx::filter {
namespace {

using namespace simd;

template <class Rounding>
inline constexpr bool kRoundsUp = !std::is_same_v<Rounding, RoundZero>;
template <class Rounding>
inline constexpr bool kTiesToEven = std::is_same_v<Rounding, RoundNearestEven>;

// ---- Integer sums: functors from sums to results, still in the lanes of the sums, of 32 or 16 bits ----

struct NoDivision {
  explicit NoDivision(const FilterSpec&) {}
  template <class Lane>
  RNX_INLINE Vec<Lane> operator()(Vec<Lane> sum) const {
    return sum;
  }
};

// sum / 2^shift = floor + rest / 2^shift, rounded by what is added to the rest.
template <class Rounding, class Lane = s32>
class Shift {
public:
  explicit Shift(const FilterSpec& s)
      : shift_(shiftCount(s.shift)),
        half_(Vec<Lane>::splat(static_cast<Lane>(s.half))),
        mask_(Vec<Lane>::splat(static_cast<Lane>(s.mask))) {}

  RNX_INLINE Vec<Lane> operator()(Vec<Lane> sum) const {
    const Vec<Lane> floor = shiftRight(sum, shift_), rest = sum & mask_, one = Vec<Lane>::splat(1);
    const Vec<Lane> minusOneBelow0 = greater(Vec<Lane>::zero(), sum);
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
  Vec<Lane> half_, mask_;
};

// Sums of bytes by 0 < d <= 255, in lanes of 16 bits; a negative sum is 0. For 0 <= n < 2^15, 2^k <= d < 2^(k+1) and
// m = 2^(16+k) / d rounded down, plus 1: n m / 2^(16+k) exceeds n / d by less than n / 2^(16+k) < 1 / d, so that both
// have the same integer part.
template <class Rounding>
class DivideSmall {
public:
  explicit DivideSmall(const FilterSpec& s)
      : half_(splat(kRoundsUp<Rounding> ? s.divisor / 2 : 0)), divisor_(splat(s.divisor)) {
    const int k = 31 - std::countl_zero(static_cast<u32>(s.divisor));
    factor_ = splat((1 << (16 + k)) / s.divisor + 1);
    shift_ = shiftCount(k);
  }

  RNX_INLINE Vec<s16> operator()(Vec<s16> sum) const {
    const Vec<u16> n = max(sum, Vec<s16>::zero()).as<u16>() + half_;
    const Vec<u16> up = shiftRight(multiplyHigh(n, factor_), shift_);
    if constexpr (!kTiesToEven<Rounding>) return up.as<s16>();
    const Vec<u16> tie = equal(up * divisor_, n).template as<u16>();
    return (up - (up & tie & splat(1))).as<s16>();
  }

private:
  static RNX_INLINE Vec<u16> splat(s32 v) { return Vec<u16>::splat(static_cast<u16>(v)); }

  Vec<u16> half_, divisor_, factor_;
  ShiftCount shift_;
};

// For 0 < d <= kLargestSingle. Up to the quotients q that do not saturate, 256.5 for 8u and 32769.5 for 16s, the
// quotient in single precision, of two roundings and a rounded reciprocal, has an error below q * 2^-23 < 1 / (2d);
// what lies beyond saturates either way. To round, half a divisor is added: (d - 1) / 2 + 1/2 for an odd one, which has
// no ties, d / 2 + 1/2 for an even one. Sums of 16s are divided by their magnitude.
template <class T>
inline constexpr s32 kLargestSingle = sizeof(T) == 1 ? 8192 : 100;

template <class T, class Rounding>
class DivideSingle {
public:
  explicit DivideSingle(const FilterSpec& s)
      : bias_(Vec<f32>::splat(static_cast<f32>(kRoundsUp<Rounding> ? s.divisor / 2 : 0) + 0.5f)),
        half_(Vec<f32>::splat(s.divisorFloat / 2)),
        divisor_(Vec<f32>::splat(s.divisorFloat)),
        reciprocal_(Vec<f32>::splat(s.reciprocal)) {}

  RNX_INLINE Vec<s32> operator()(Vec<s32> sum) const {
    if constexpr (std::is_unsigned_v<T>) {
      return divide(sum);
    } else {
      const Vec<s32> negative = greater(Vec<s32>::zero(), sum);
      return (divide((sum ^ negative) - negative) ^ negative) - negative;
    }
  }

private:
  RNX_INLINE Vec<s32> divide(Vec<s32> sum) const {
    const Vec<f32> a = toFloat(sum);
    const Vec<s32> up = truncateToInt((a + bias_) * reciprocal_);
    if constexpr (!kTiesToEven<Rounding>) return up;
    const Vec<s32> tie = equal(toFloat(up) * divisor_, a + half_);
    return up - (up & tie & Vec<s32>::splat(1));
  }

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
class ThroughSingle {
public:
  explicit ThroughSingle(const FilterSpec& s) : offset_(Vec<f32>::splat(s.scaledOffset)), next_(s) {}
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
class RoundFloat {
public:
  explicit RoundFloat(const FilterSpec& s) : offset_(Vec<f32>::splat(s.scaledOffset)) {}
  RNX_INLINE Vec<s32> operator()(Vec<f32> sum) const {
    return truncateToInt(roundSaturated<T, Rounding>(sum + offset_));
  }

private:
  Vec<f32> offset_;
};

// Integer sums of any size, held in double precision. Sums of 8u go through single precision as above: adding two
// singles in double and rounding that once more is their sum in single.
template <class T, class Rounding>
class DivideWide {
public:
  explicit DivideWide(const FilterSpec& s)
      : offset_(Vec<f64>::splat(s.scaledOffset)), divisor_(Vec<f64>::splat(s.divisorDouble)) {}
  RNX_INLINE Vec<s32> operator()(Vec<f64> low, Vec<f64> high) const {
    return truncateToInt(Pair<f64>{divide(low), divide(high)});
  }

private:
  RNX_INLINE Vec<f64> divide(Vec<f64> sum) const {
    if constexpr (std::is_unsigned_v<T>) {
      sum = roundTo<_MM_FROUND_TO_ZERO>(roundToSingle(roundToSingle(sum) + offset_));
      sum = max(sum, Vec<f64>::zero());
    }
    return roundSaturated<T, Rounding>(sum / divisor_);
  }

  Vec<f64> offset_, divisor_;
};

// ---- Blocks of results ----

// Sums that are the results. They began with 0.0, so that none of them is -0.0: adding the offset 0 changes nothing.
struct Unrounded {
  explicit Unrounded(const FilterSpec&) {}
  template <class T>
  RNX_INLINE void store(T* out, const SumBlock<T>& sums) const {
    constexpr int L = Vec<T>::kLanes;
    sums.a.store(out), sums.b.store(out + L), sums.c.store(out + 2 * L), sums.d.store(out + 3 * L);
  }
};

// Each vector of sums becomes a vector of results as wide.
template <class T, class Result>
class Rounded {
public:
  explicit Rounded(const FilterSpec& s) : result_(s) {}

  template <class V>
  RNX_INLINE void store(T* out, const SumBlock<V>& sums) const {
    const Block<V, SumBlock<V>::kElements> block = {{sums.a, sums.b, sums.c, sums.d}};
    narrowTo<T>(map(block, result_)).store(out);
  }

private:
  Result result_;
};

// Two vectors of sums become a vector of 32-bit results.
template <class T, class Result>
class RoundedWide {
public:
  explicit RoundedWide(const FilterSpec& s) : result_(s) {}

  RNX_INLINE void store(T* out, const SumBlock<f64>& sums) const {
    const Vec<s32> low = result_(sums.a, sums.b), high = result_(sums.c, sums.d);
    constexpr int L = Vec<s32>::kLanes;
    if constexpr (sizeof(T) == 1) {
      storeHalf(out, narrowTo<T>(Block<s32, 4 * L>{{low, high, low, high}}).v[0]);
    } else {
      narrowTo<T>(Block<s32, 2 * L>{{low, high}}).store(out);
    }
  }

private:
  Result result_;
};

// ---- Which one ----

// One of three, by the rounding mode.
template <class F>
F byRounding(s32 roundMode, F zero, F even, F away) {
  const s32 mode = roundMode & kRoundingBits;
  return mode == rnxRoundZero ? zero : mode == rnxRoundNearestEven ? even : away;
}

// Next<F> is what stands between the sums and the division F.
template <class T, template <class> class Next, class Zero, class Even, class Away>
SumTwoRows<s32, T> sumPairsBy(s32 roundMode) {
  return byRounding<SumTwoRows<s32, T>>(roundMode, sumPairs<s32, T, Rounded<T, Next<Zero>>>,
                                        sumPairs<s32, T, Rounded<T, Next<Even>>>,
                                        sumPairs<s32, T, Rounded<T, Next<Away>>>);
}

template <class T, template <class> class Next>
SumTwoRows<s32, T> sumPairsOf(const FilterSpec& s) {
  using Zero = RoundZero;
  using Even = RoundNearestEven;
  using Away = RoundHalfAway;
  constexpr bool kNegativeIsZero = std::is_unsigned_v<T>;
  if (s.divisorMode == DivisorMode::kOne) return sumPairs<s32, T, Rounded<T, Next<NoDivision>>>;
  if (s.divisorMode == DivisorMode::kPowerOfTwo) {
    return sumPairsBy<T, Next, Shift<Zero>, Shift<Even>, Shift<Away>>(s.roundMode);
  }
  if (s.divisor > 0 && s.divisor <= kLargestSingle<T>) {
    using ToZero = DivideSingle<T, Zero>;
    using ToNearest = DivideSingle<T, Away>;
    // Without ties the two ways to nearest are one.
    return s.divisor % 2 == 0 ? sumPairsBy<T, Next, ToZero, DivideSingle<T, Even>, ToNearest>(s.roundMode)
                              : sumPairsBy<T, Next, ToZero, ToNearest, ToNearest>(s.roundMode);
  }
  return sumPairsBy<T, Next, DivideDouble<Zero, kNegativeIsZero>, DivideDouble<Even, kNegativeIsZero>,
                    DivideDouble<Away, kNegativeIsZero>>(s.roundMode);
}

// The step through single precision does nothing to sums that it holds exactly.
inline bool needsSingle(const FilterSpec& s) {
  constexpr s64 kExact = s64{1} << 24;
  return s.scaledOffset != 0 || std::max(s.positive, s.negative) * 255 > kExact;
}

template <class F>
using Directly = F;

inline SumTwoRows<s32, u8> sumsOfPairs(const FilterSpec& s, u8) {
  return needsSingle(s) ? sumPairsOf<u8, ThroughSingle>(s) : sumPairsOf<u8, Directly>(s);
}
inline SumTwoRows<s32, s16> sumsOfPairs(const FilterSpec& s, s16) { return sumPairsOf<s16, Directly>(s); }

template <class Zero, class Even, class Away>
SumTwoRows<s16, u8> sumBytePairsBy(s32 roundMode) {
  return byRounding<SumTwoRows<s16, u8>>(roundMode, sumPairs<s16, u8, Rounded<u8, Zero>>,
                                         sumPairs<s16, u8, Rounded<u8, Even>>, sumPairs<s16, u8, Rounded<u8, Away>>);
}

// Of a spec that staysIn16().
inline SumTwoRows<s16, u8> sumsOfBytePairs(const FilterSpec& s) {
  using Zero = RoundZero;
  using Even = RoundNearestEven;
  using Away = RoundHalfAway;
  if (s.divisorMode == DivisorMode::kOne) return sumPairs<s16, u8, Rounded<u8, NoDivision>>;
  if (s.divisorMode == DivisorMode::kPowerOfTwo) {
    return sumBytePairsBy<Shift<Zero, s16>, Shift<Even, s16>, Shift<Away, s16>>(s.roundMode);
  }
  return s.divisor % 2 == 0 ? sumBytePairsBy<DivideSmall<Zero>, DivideSmall<Even>, DivideSmall<Away>>(s.roundMode)
                            : sumBytePairsBy<DivideSmall<Zero>, DivideSmall<Away>, DivideSmall<Away>>(s.roundMode);
}

// Sums in the precision V with the finish of each rounding mode.
template <class V, class T, class Zero, class Even, class Away>
SumTwoRows<f32, T> sumRowsBy(s32 roundMode) {
  return byRounding<SumTwoRows<f32, T>>(roundMode, sumRows<V, f32, T, Zero>, sumRows<V, f32, T, Even>,
                                        sumRows<V, f32, T, Away>);
}

template <class T>
SumTwoRows<f32, T> sumsOfWideIntegers(const FilterSpec& s) {
  return sumRowsBy<f64, T, RoundedWide<T, DivideWide<T, RoundZero>>, RoundedWide<T, DivideWide<T, RoundNearestEven>>,
                   RoundedWide<T, DivideWide<T, RoundHalfAway>>>(s.roundMode);
}

template <class T>
SumTwoRows<f32, T> sumsOfFloats(const FilterSpec& s) {
  return sumRowsBy<f32, T, Rounded<T, RoundFloat<T, RoundZero>>, Rounded<T, RoundFloat<T, RoundNearestEven>>,
                   Rounded<T, RoundFloat<T, RoundHalfAway>>>(s.roundMode);
}

}  // namespace
}  // namespace rnx::filter
