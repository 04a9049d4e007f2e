// What reductions gather their terms in: accumulators take rounds of vectors (see simd/reduce.h), each position of a
// round standing for one channel, and deliver one result per channel. Integers are exact. Included by row kernels only.
#pragma once

#include <bit>

#include "simd/cast.h"
#include "simd/reduce.h"

namespace rnx::stats {
namespace {

using namespace simd;

// Vectors that stand apart: three channels repeat every three vectors, one and four in each.
template <int C>
constexpr int kApart = C == 3 ? 3 : 1;
// How often a round adds to each of them.
template <int C>
constexpr int kAddsPerRound = kRoundVectors / kApart<C>;

// ---- Totals by channel of lanes that stand for every stride-th element ----

// Squares of words pass 64 bits from 2^32 pixels on.
__extension__ typedef unsigned __int128 u128;

// Rounded once: below the 64 leading bits only matters whether anything is left.
inline f64 nearestDouble(u128 v) {
  constexpr int kBias = 1023, kMantissa = 52;
  const auto high = static_cast<u64>(v >> 64);
  const int below = 64 - std::countl_zero(high);
  const bool rest = static_cast<u64>(v & ((u128{1} << below) - 1)) != 0;
  return static_cast<f64>(static_cast<u64>(v >> below) | u64{rest}) *
         std::bit_cast<f64>(static_cast<u64>(kBias + below) << kMantissa);
}

template <int C>
struct Totals {
  u128 of[C] = {};

  template <class T>
  RNX_INLINE void add(Vec<T> lanes, int first, int stride) {
    RNX_UNROLL
    for (int j = 0; j < Vec<T>::kLanes; ++j) of[(first + j * stride) % C] += static_cast<u64>(lanes.raw[j]);
  }
  void deliver(f64* results) const {
    for (int c = 0; c < C; ++c) results[c] = nearestDouble(of[c]);
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

}  // namespace
}  // namespace rnx::stats
