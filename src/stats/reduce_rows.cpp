// Row kernels of the reductions.
#include <bit>

#include "simd/cast.h"
#include "simd/reduce.h"
#include "stats/reduce_kernels.h"

namespace rnx::stats {
namespace {

using namespace simd;

// Vectors that stand apart: three channels repeat every three vectors, one and four in each.
template <int C>
constexpr int kApart = C == 3 ? 3 : 1;
// How often a round adds to each of them.
template <int C>
constexpr int kAddsPerRound = kRoundVectors / kApart<C>;

// ---- Terms: what is summed of an element, or of two ----

// At any address, for steps need not be whole elements.
RNX_INLINE f64 elementAsDouble(const f32* p, s64 i) { return f64{simd::loadOne(p + i)}; }

struct OfImage {
  template <class T>
  static RNX_INLINE auto magnitude(Vec<T> v) {
    if constexpr (std::is_same_v<T, s16>) {
      return simd::magnitude(v);
    } else {
      return v;
    }
  }
  static RNX_INLINE Vec<f32> value(Vec<f32> v) { return v; }
  static RNX_INLINE Vec<f64> exactPairs(const f32* v, s64 step, const f32*, s64) { return pairsAsDouble(v, step); }
  static RNX_INLINE TwoPairs exactFours(const f32* v, s64 step, const f32*, s64) { return fourAsDouble(v, step); }
  static f64 exact(const f32* v, const f32*, s64 i) { return elementAsDouble(v, i); }
};

struct OfDifference {
  template <class T>
  static RNX_INLINE auto magnitude(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, s16>) {
      return (max(a, b) - min(a, b)).template as<u16>();  // up to 65535
    } else {
      return subSaturated(a, b) | subSaturated(b, a);
    }
  }
  static RNX_INLINE Vec<f32> value(Vec<f32> a, Vec<f32> b) { return a - b; }
  static RNX_INLINE Vec<f64> exactPairs(const f32* a, s64 aStep, const f32* b, s64 bStep) {
    return pairsAsDouble(a, aStep) - pairsAsDouble(b, bStep);
  }
  static RNX_INLINE TwoPairs exactFours(const f32* a, s64 aStep, const f32* b, s64 bStep) {
    const TwoPairs p = fourAsDouble(a, aStep), q = fourAsDouble(b, bStep);
    return {p.first - q.first, p.second - q.second};
  }
  static f64 exact(const f32* a, const f32* b, s64 i) { return elementAsDouble(a, i) - elementAsDouble(b, i); }
};

// ---- Totals by channel of lanes that stand for every stride-th element ----

template <int C>
struct Totals {
  u64 of[C] = {};

  template <class T>
  RNX_INLINE void add(Vec<T> lanes, int first, int stride) {
    RNX_UNROLL
    for (int j = 0; j < Vec<T>::kLanes; ++j) of[(first + j * stride) % C] += static_cast<u64>(lanes.raw[j]);
  }
  void deliver(f64* results) const {
    for (int c = 0; c < C; ++c) results[c] = static_cast<f64>(of[c]);
  }
};

// Sums of 16-bit terms, each standing for one of kStride elements, kOffset behind the first; a vector has kElements.
template <int C, int kElements, int kStride, int kOffset>
class WordSums {
public:
  static constexpr int kRounds = PairSum<u16>::kMostTerms / kAddsPerRound<C> / 2;

  RNX_INLINE void add(int k, Vec<u16> terms) { sums_[k % kApart<C>].add(terms); }
  // After so many additions to each.
  RNX_INLINE void count(int added, Totals<C>& totals) {
    pending_ += added;
    if (pending_ > PairSum<u16>::kMostTerms / 2) spill(totals);
  }
  void spill(Totals<C>& totals) {
    RNX_UNROLL
    for (int p = 0; p < kApart<C>; ++p) {
      const int first = p * kElements + kOffset;
      totals.add(sums_[p].low(), first, 2 * kStride);
      totals.add(sums_[p].high(), first + kStride, 2 * kStride);
      sums_[p] = {};
    }
    pending_ = 0;
  }

private:
  PairSum<u16> sums_[kApart<C>];
  int pending_ = 0;
};

// ---- Accumulators ----

// Sums of bytes: into 16 bits, then into 32, then into the totals.
template <int C>
class ByteSums {
public:
  static constexpr int kRounds = PairSum<u8>::kMostTerms / kAddsPerRound<C>;

  RNX_INLINE void add(int k, Vec<u8> terms) { sums_[k % kApart<C>].add(terms); }
  RNX_INLINE void flush(int) {
    RNX_UNROLL
    for (int p = 0; p < kApart<C>; ++p) {
      even_.add(p, sums_[p].low());
      odd_.add(p, sums_[p].high());
      sums_[p] = {};
    }
    even_.count(1, totals_);
    odd_.count(1, totals_);
  }
  void deliver(f64* results) {
    even_.spill(totals_);
    odd_.spill(totals_);
    totals_.deliver(results);
  }

private:
  PairSum<u8> sums_[kApart<C>];
  WordSums<C, Vec<u8>::kLanes, 2, 0> even_;
  WordSums<C, Vec<u8>::kLanes, 2, 1> odd_;
  Totals<C> totals_;
};

template <>
class ByteSums<1> {
public:
  static constexpr int kRounds = 1 << 20;
  RNX_INLINE void add(int k, Vec<u8> terms) { sums_[k % 2] = sums_[k % 2] + sumOfBytes(terms); }
  RNX_INLINE void flush(int) {}
  void deliver(f64* results) {
    Totals<1> totals;
    totals.add(sums_[0] + sums_[1], 0, 1);
    totals.deliver(results);
  }

private:
  Vec<u64> sums_[2] = {};
};

template <int C>
class Words {
public:
  using Sums = WordSums<C, Vec<u16>::kLanes, 1, 0>;
  static constexpr int kRounds = Sums::kRounds;

  RNX_INLINE void add(int k, Vec<u16> terms) { sums_.add(k, terms); }
  RNX_INLINE void flush(int rounds) { sums_.count(rounds * kAddsPerRound<C>, totals_); }
  void deliver(f64* results) {
    sums_.spill(totals_);
    totals_.deliver(results);
  }

private:
  Sums sums_;
  Totals<C> totals_;
};

// Squares of bytes are words, of even and odd elements apart.
template <int C>
class ByteSquares {
public:
  static constexpr int kRounds = WordSums<C, Vec<u8>::kLanes, 2, 0>::kRounds;

  RNX_INLINE void add(int k, Vec<u8> terms) {
    const Vec<u16> even = terms.as<u16>() & Vec<u16>::splat(0xff), odd = {terms.as<u16>().raw >> 8};
    even_.add(k, even * even);
    odd_.add(k, odd * odd);
  }
  RNX_INLINE void flush(int rounds) {
    even_.count(rounds * kAddsPerRound<C>, totals_);
    odd_.count(rounds * kAddsPerRound<C>, totals_);
  }
  void deliver(f64* results) {
    even_.spill(totals_);
    odd_.spill(totals_);
    totals_.deliver(results);
  }

private:
  WordSums<C, Vec<u8>::kLanes, 2, 0> even_;
  WordSums<C, Vec<u8>::kLanes, 2, 1> odd_;
  Totals<C> totals_;
};

// Four squares of bytes a lane: below 2^18, so 2^14 of them fit.
template <>
class ByteSquares<1> {
public:
  static constexpr int kRounds = 16384 / kRoundVectors;
  RNX_INLINE void add(int, Vec<u8> terms) {
    const Vec<u16> even = terms.as<u16>() & Vec<u16>::splat(0xff), odd = {terms.as<u16>().raw >> 8};
    sums_ = sums_ + (sumOfSquares(even) + sumOfSquares(odd));
  }
  RNX_INLINE void flush(int) {
    const Vec<u64> lanes = sums_.as<u64>();
    wide_ = wide_ + (lanes & Vec<u64>::splat(0xffffffff)) + Vec<u64>{lanes.raw >> 32};
    sums_ = Vec<u32>::zero();
  }
  void deliver(f64* results) {
    Totals<1> totals;
    totals.add(wide_, 0, 1);
    totals.deliver(results);
  }

private:
  Vec<u32> sums_ = Vec<u32>::zero();
  Vec<u64> wide_ = Vec<u64>::zero();
};

// Squares of words: the upper and the lower halves of the products.
template <int C>
class WordSquares {
public:
  using Sums = WordSums<C, Vec<u16>::kLanes, 1, 0>;
  static constexpr int kRounds = Sums::kRounds;

  RNX_INLINE void add(int k, Vec<u16> terms) {
    low_.add(k, terms * terms);
    high_.add(k, multiplyHigh(terms, terms));
  }
  RNX_INLINE void flush(int rounds) {
    low_.count(rounds * kAddsPerRound<C>, lowTotals_);
    high_.count(rounds * kAddsPerRound<C>, highTotals_);
  }
  void deliver(f64* results) {
    low_.spill(lowTotals_);
    high_.spill(highTotals_);
    for (int c = 0; c < C; ++c) lowTotals_.of[c] += highTotals_.of[c] << 16;
    lowTotals_.deliver(results);
  }

private:
  Sums low_, high_;
  Totals<C> lowTotals_, highTotals_;
};

// Squares of signed words, in pairs: up to 2^31, summed as the halves of 64 bits as in PairSum.
class SignedSquares {
public:
  static constexpr int kRounds = 1 << 20;

  RNX_INLINE void add(int, Vec<s16> terms) {
    const Vec<u64> pairs = sumOfSquares(terms).as<u64>();
    whole_ = whole_ + pairs;
    upper_ = upper_ + Vec<u64>{pairs.raw >> 32};
  }
  RNX_INLINE void flush(int) {}
  void deliver(f64* results) {
    Totals<1> totals;
    totals.add(whole_ - Vec<u64>{upper_.raw << 32}, 0, 1);
    totals.add(upper_, 0, 1);
    totals.deliver(results);
  }

private:
  Vec<u64> whole_ = Vec<u64>::zero(), upper_ = Vec<u64>::zero();
};

// The largest of each lane. Floats come as the bits of their magnitudes, which as integers are in the same order; what
// is not a number is above infinity.
template <int C, class T>
class Largest {
public:
  static constexpr int kRounds = 1 << 20;

  RNX_INLINE void add(int k, Vec<T> terms) { lanes_[k % kApart<C>] = max(lanes_[k % kApart<C>], terms); }
  RNX_INLINE void flush(int) {}
  void deliver(f64* results) {
    T largest[C] = {};
    for (int p = 0; p < kApart<C>; ++p) {
      for (int j = 0; j < Vec<T>::kLanes; ++j) {
        T& most = largest[(p * Vec<T>::kLanes + j) % C];
        most = lanes_[p].raw[j] > most ? T(lanes_[p].raw[j]) : most;
      }
    }
    for (int c = 0; c < C; ++c) {
      if constexpr (std::is_same_v<T, s32>) {
        results[c] = f64{std::bit_cast<f32>(largest[c])};
      } else {
        results[c] = static_cast<f64>(largest[c]);
      }
    }
  }

private:
  Vec<T> lanes_[kApart<C>] = {};
};

// Floats in single precision for eight rounds, which costs a relative error of seven roundings, then in double. The 24
// lanes of a round are the same at every width.
template <int C>
class FloatSums {
public:
  static constexpr int kRounds = 8;
  static constexpr int kLanes = kRoundBytes / static_cast<int>(sizeof(f32));

  RNX_INLINE void add(int k, Vec<f32> terms) { sums_[k] = sums_[k] + terms; }
  RNX_INLINE void flush(int) {
    RNX_UNROLL
    for (int k = 0; k < kRoundVectors; ++k) {
      const auto wide = spreadDouble(sums_[k]);
      RNX_UNROLL
      for (int j = 0; j < 2; ++j) {
        f64* total = totals_ + k * Vec<f32>::kLanes + j * Vec<f64>::kLanes;
        (Vec<f64>::load(total) + wide.v[j]).store(total);
      }
      sums_[k] = Vec<f32>::zero();
    }
  }
  void deliver(f64* results) const {
    for (int c = 0; c < C; ++c) {
      results[c] = 0;
      for (int lane = c; lane < kLanes; lane += C) results[c] += totals_[lane];
    }
  }

private:
  Vec<f32> sums_[kRoundVectors] = {};
  f64 totals_[kLanes] = {};
};

// ---- Operations: from an element to a term ----

RNX_INLINE Vec<f32> absolute(Vec<f32> v) { return (v.as<s32>() & Vec<s32>::splat(INT32_MAX)).as<f32>(); }
RNX_INLINE Vec<f64> absolute(Vec<f64> v) { return (v.as<s64>() & Vec<s64>::splat(INT64_MAX)).as<f64>(); }

// Elements with their sign moved into the unsigned range.
template <class T>
RNX_INLINE auto unsignedRange(Vec<T> v) {
  if constexpr (std::is_same_v<T, s16>) {
    return v.template as<u16>() ^ Vec<u16>::splat(0x8000);
  } else {
    return v;
  }
}

template <class T, int C>
struct SumAccumulator {
  using Type = Words<C>;
};
template <int C>
struct SumAccumulator<u8, C> {
  using Type = ByteSums<C>;
};
template <int C>
struct SumAccumulator<f32, C> {
  using Type = FloatSums<C>;
};

template <class Of, class T, int C>
struct SquareAccumulator {
  using Type = WordSquares<C>;
};
template <class Of, int C>
struct SquareAccumulator<Of, u8, C> {
  using Type = ByteSquares<C>;
};
template <>
struct SquareAccumulator<OfImage, s16, 1> {
  using Type = SignedSquares;
};
template <class Of, int C>
struct SquareAccumulator<Of, f32, C> {
  using Type = FloatSums<C>;
};

struct Sum {
  template <class Of, class T, int C>
  using Accumulator = typename SumAccumulator<T, C>::Type;
  template <class Of, int C, class T>
  static RNX_INLINE auto term(Vec<T> v) {
    return unsignedRange(v);
  }
};

struct Absolutes {
  template <class Of, class T, int C>
  using Accumulator = typename SumAccumulator<T, C>::Type;
  template <class Of, int C, class T, class... More>
  static RNX_INLINE auto term(Vec<T> v, More... more) {
    if constexpr (std::is_same_v<T, f32>) {
      return absolute(Of::value(v, more...));
    } else {
      return Of::magnitude(v, more...);
    }
  }
};

struct Squares {
  template <class Of, class T, int C>
  using Accumulator = typename SquareAccumulator<Of, T, C>::Type;
  template <class Of, int C, class T, class... More>
  static RNX_INLINE auto term(Vec<T> v, More... more) {
    if constexpr (std::is_same_v<T, f32>) {
      const Vec<f32> value = Of::value(v, more...);
      return value * value;
    } else if constexpr (std::is_same_v<Accumulator<Of, T, C>, SignedSquares>) {
      return v;
    } else {
      return Of::magnitude(v, more...);
    }
  }
};

template <class T>
using Magnitude = std::conditional_t<std::is_same_v<T, f32>, s32,
                                     std::make_unsigned_t<std::conditional_t<std::is_same_v<T, f32>, s32, T>>>;

struct LargestOf {
  template <class Of, class T, int C>
  using Accumulator = Largest<C, Magnitude<T>>;
  template <class Of, int C, class T, class... More>
  static RNX_INLINE auto term(Vec<T> v, More... more) {
    if constexpr (std::is_same_v<T, f32>) {
      return Of::value(v, more...).template as<s32>() & Vec<s32>::splat(INT32_MAX);
    } else {
      return Of::magnitude(v, more...);
    }
  }
};

// ---- Kernels ----

template <class Op, class Of, class T, int C>
struct Reducer {
  using Accumulator = typename Op::template Accumulator<Of, T, C>;
  static constexpr int kRounds = Accumulator::kRounds;

  template <int K, class M, class... V>
  RNX_INLINE void add(M mask, V... v) {
    accumulator.add(K, mask(Op::template term<Of, C>(v...)));
  }
  RNX_INLINE void flush(int rounds) { accumulator.flush(rounds); }

  Accumulator accumulator;
};

template <class Op, class Of, class T, int C>
void reduce(const ReduceCall<T>& call) {
  Reducer<Op, Of, T, C> reducer;
  const ReduceSource<T> first{call.first, call.firstStep};
  if constexpr (std::is_same_v<Of, OfImage>) {
    reduceRows(call.width, call.height, reducer, first);
  } else {
    reduceRows(call.width, call.height, reducer, first, ReduceSource<T>{call.second, call.secondStep});
  }
  reducer.accumulator.deliver(call.results);
  if constexpr (std::is_same_v<Op, Sum> && std::is_same_v<T, s16>) {
    for (int c = 0; c < C; ++c) call.results[c] -= 32768.0 * static_cast<f64>(call.width / C * call.height);
  }
}

// ---- Floats in double precision, in the order that is promised ----

struct ExactSum {
  static void add(f64& total, f64 v) { total += v; }
  static RNX_INLINE Vec<f64> term(Vec<f64> v) { return v; }
};
struct ExactAbsolutes : ExactSum {
  static void add(f64& total, f64 v) { total += __builtin_fabs(v); }
  static RNX_INLINE Vec<f64> term(Vec<f64> v) { return absolute(v); }
};
struct ExactSquares : ExactSum {
  static void add(f64& total, f64 v) { total += v * v; }
  static RNX_INLINE Vec<f64> term(Vec<f64> v) { return v * v; }
};

// kVectors vectors of rows side by side, as many as keep the adders busy: each row has its own totals, of the even and
// of the odd pixels. With one row that is all there is, the further rows of its vector are that row again.
template <class Op, class Of, int C, int kVectors, bool kOneRow>
void addRowsExactly(const ReduceCall<f32>& call, s64 y, f64* totals) {
  constexpr int kRows = kOneRow ? 1 : kVectors * kRowsOfPairs;
  const f32 *first = core::at(call.first, y * call.firstStep), *second = core::at(call.second, y * call.secondStep);
  const s64 firstStep = kOneRow ? 0 : call.firstStep, secondStep = kOneRow ? 0 : call.secondStep;
  Vec<f64> apart[kVectors][C] = {};
  s64 i = 0;
  constexpr int kStep = C == 1 ? 4 : 2 * C;  // elements
  for (; i + kStep <= call.width; i += kStep) {
    RNX_UNROLL
    for (int r = 0; r < kVectors; ++r) {
      const f32* a = core::at(first, r * kRowsOfPairs * firstStep, i);
      const f32* b = core::at(second, r * kRowsOfPairs * secondStep, i);
      const auto add = [&](int k, Vec<f64> pairs)
                           RNX_INLINE_LAMBDA { apart[r][k % C] = apart[r][k % C] + Op::term(pairs); };
      RNX_UNROLL
      for (int k = 0; k < kStep / 2; k += 2) {
        const f32 *p = core::at(a, 0, 2 * k), *q = core::at(b, 0, 2 * k);
        if (k + 1 < kStep / 2) {
          const TwoPairs fours = Of::exactFours(p, firstStep, q, secondStep);
          add(k, fours.first);
          add(k + 1, fours.second);
        } else {
          add(k, Of::exactPairs(p, firstStep, q, secondStep));
        }
      }
    }
  }
  f64 lanes[kVectors][C][2 * kRowsOfPairs];
  RNX_UNROLL
  for (int r = 0; r < kVectors; ++r) {
    RNX_UNROLL
    for (int k = 0; k < C; ++k) apart[r][k].store(lanes[r][k]);
  }
  for (int r = 0; r < kRows; ++r) {
    const f32 *a = core::at(first, r * firstStep), *b = core::at(second, r * secondStep);
    f64 sums[2 * C];
    for (int k = 0; k < 2 * C; ++k) sums[k] = lanes[r / kRowsOfPairs][k / 2][r % kRowsOfPairs * 2 + k % 2];
    for (s64 j = i; j < call.width; ++j) Op::add(sums[(j - i) % (2 * C)], Of::exact(a, b, j));
    for (int c = 0; c < C; ++c) totals[c] += sums[c] + sums[C + c];
  }
}

template <class Op, class Of, int C>
void reduceExactly(const ReduceCall<f32>& call) {
  constexpr int kVectors = C == 1 ? 4 : 1, kRows = kVectors * kRowsOfPairs;
  f64 totals[C] = {};
  s64 y = 0;
  for (; y + kRows <= call.height; y += kRows) addRowsExactly<Op, Of, C, kVectors, false>(call, y, totals);
  for (; y < call.height; ++y) addRowsExactly<Op, Of, C, 1, true>(call, y, totals);
  for (int c = 0; c < C; ++c) call.results[c] = totals[c];
}

// The largest needs no order. What is not a number stays.
template <class Of, int C>
void largestExactly(const ReduceCall<f32>& call) {
  const f32 *first = call.first, *second = call.second;
  f64 most[C] = {};
  for (s64 y = 0; y < call.height; ++y) {
    for (s64 i = 0; i < call.width; i += C) {
      for (int c = 0; c < C; ++c) {
        const f64 magnitude = __builtin_fabs(Of::exact(first, second, i + c));
        if (magnitude > most[c] || magnitude != magnitude) most[c] = magnitude;
      }
    }
    first = core::at(first, call.firstStep);
    second = core::at(second, call.secondStep);
  }
  for (int c = 0; c < C; ++c) call.results[c] = most[c];
}

template <class Op, class Of, class T>
constexpr ByChannels<T> kReduce = {reduce<Op, Of, T, 1>, reduce<Op, Of, T, 3>, reduce<Op, Of, T, 4>};
template <class Op, class Of>
constexpr ByChannels<f32> kExact = {reduceExactly<Op, Of, 1>, reduceExactly<Op, Of, 3>, reduceExactly<Op, Of, 4>};
template <class Of>
constexpr ByChannels<f32> kExactLargest = {largestExactly<Of, 1>, largestExactly<Of, 3>, largestExactly<Of, 4>};

template <class T>
constexpr ReduceKernelsOf<T> kKernels = {
    .image = {.sum = kReduce<Sum, OfImage, T>,
              .absolutes = kReduce<Absolutes, OfImage, T>,
              .squares = kReduce<Squares, OfImage, T>,
              .largest = kReduce<LargestOf, OfImage, T>},
    .difference = {.sum = {},
                   .absolutes = kReduce<Absolutes, OfDifference, T>,
                   .squares = kReduce<Squares, OfDifference, T>,
                   .largest = kReduce<LargestOf, OfDifference, T>},
};

}  // namespace

namespace RNX_WIDTH {

constinit const ReduceKernels reduceKernels = {
    .of8u = kKernels<u8>,
    .of16u = kKernels<u16>,
    .of16s = kKernels<s16>,
    .of32f = {kKernels<f32>,
              {.sum = kExact<ExactSum, OfImage>,
               .absolutes = kExact<ExactAbsolutes, OfImage>,
               .squares = kExact<ExactSquares, OfImage>,
               .largest = kExactLargest<OfImage>},
              {.sum = {},
               .absolutes = kExact<ExactAbsolutes, OfDifference>,
               .squares = kExact<ExactSquares, OfDifference>,
               .largest = kExactLargest<OfDifference>}},
};

}  // namespace RNX_WIDTH
}  // namespace rnx::stats
