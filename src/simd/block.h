// Block<T, N>: N elements in memory order, as one vector of T or several.
#pragma once

#include <algorithm>

#include "simd/vec.h"

namespace rnx::simd {
namespace {

template <class T, int N>
struct Block {
  static constexpr int kLanes = N;
  static constexpr int kVectors = N / Vec<T>::kLanes;
  static_assert(kVectors * Vec<T>::kLanes == N, "a block is whole vectors");

  Vec<T> v[kVectors];

  static RNX_INLINE Block zero() {
    Block block;
    RNX_UNROLL
    for (Vec<T>& v : block.v) v = Vec<T>::zero();
    return block;
  }
  static RNX_INLINE Block load(const T* p) {
    Block block;
    RNX_UNROLL
    for (int k = 0; k < kVectors; ++k) block.v[k] = Vec<T>::load(p + k * Vec<T>::kLanes);
    return block;
  }
  RNX_INLINE void store(T* p) const {
    RNX_UNROLL
    for (int k = 0; k < kVectors; ++k) v[k].store(p + k * Vec<T>::kLanes);
  }
  RNX_INLINE void stream(T* p) const {
    RNX_UNROLL
    for (int k = 0; k < kVectors; ++k) v[k].stream(p + k * Vec<T>::kLanes);
  }
};

// f on each vector; its result has as many lanes.
template <class T, int N, class F>
RNX_INLINE auto map(const Block<T, N>& block, F f) {
  using U = std::remove_cvref_t<decltype(f(block.v[0]).raw[0])>;
  Block<U, N> result;
  RNX_UNROLL
  for (int k = 0; k < block.kVectors; ++k) result.v[k] = f(block.v[k]);
  return result;
}

// How many elements a step takes that reads S, works in lanes of W and writes D: four vectors of the largest, and at
// least a whole vector of the smallest; a single vector where all are of one size.
template <class S, class D, class W = D>
inline constexpr int kStepOf = [] {
  constexpr int kSizes[] = {sizeof(S), sizeof(D), sizeof(W)};
  const int most = std::max({kSizes[0], kSizes[1], kSizes[2]}), least = std::min({kSizes[0], kSizes[1], kSizes[2]});
  return most == least ? kBytes / most : std::max(4 * kBytes / most, kBytes / least);
}();

}  // namespace
}  // namespace rnx::simd
