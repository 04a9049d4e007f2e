// Row kernels of the reductions.
#include "stats/accumulators.h"
#include "stats/reduce_kernels.h"

namespace rnx::stats {
namespace {

using namespace simd;

// ---- Terms: what is summed of an element, or of two ----

// At any address, for steps need not be whole elements.
RNX_INLINE f64 elementAsDouble(const f32* p, s64 i) { return f64{simd::loadOne(p + i)}; }

struct OfImage {
  static constexpr bool kTwoImages = false;
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
  static constexpr bool kTwoImages = true;
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
    const s64 pixels = call.width / C * call.height;
    for (int c = 0; c < C; ++c) call.results[c] -= 32768.0 * static_cast<f64>(pixels);
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

// Of images that come from memory so many rows side by side are more than the processor foresees: lines, counted in
// elements, are fetched ahead.
constexpr s64 kLine = 16, kAhead = 8 * kLine;
inline bool comesFromMemory(s64 bytes) { return bytes >= 0x1000000; }

// kVectors vectors of rows side by side, as many as keep the adders busy: each row has its own totals, of the even and
// of the odd pixels. With one row that is all there is, the further rows of its vector are that row again.
template <class Op, class Of, int C, int kVectors, bool kOneRow, bool kFetches = false>
void addRowsExactly(const ReduceCall<f32>& call, s64 y, f64* totals) {
  constexpr int kRows = kOneRow ? 1 : kVectors * kRowsOfPairs;
  const f32 *first = core::at(call.first, y * call.firstStep), *second = core::at(call.second, y * call.secondStep);
  const s64 firstStep = kOneRow ? 0 : call.firstStep, secondStep = kOneRow ? 0 : call.secondStep;
  Vec<f64> apart[kVectors][C] = {};
  s64 i = 0;
  constexpr int kStep = C == 1 ? 4 : 2 * C;  // elements
  for (; i + kStep <= call.width; i += kStep) {
    if (kFetches && i % kLine == 0) {
      for (int r = 0; r < kRows; ++r) {
        __builtin_prefetch(core::at(first, r * firstStep, i + kAhead));
        if (Of::kTwoImages) __builtin_prefetch(core::at(second, r * secondStep, i + kAhead));
      }
    }
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
  const s64 bytes = call.width * call.height * static_cast<s64>(sizeof(f32)) * (Of::kTwoImages ? 2 : 1);
  const auto addRows = kVectors > 1 && comesFromMemory(bytes) ? addRowsExactly<Op, Of, C, kVectors, false, true>
                                                              : addRowsExactly<Op, Of, C, kVectors, false, false>;
  for (; y + kRows <= call.height; y += kRows) addRows(call, y, totals);
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
