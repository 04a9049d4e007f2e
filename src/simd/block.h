// Block<T, N>: N elements in memory order, as one vector of T or several.
#pragma once

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

// How many elements a step takes that reads S and writes D: a whole vector of the smaller ones.
template <class S, class D>
inline constexpr int kStepOf = Vec<S>::kLanes > Vec<D>::kLanes ? Vec<S>::kLanes : Vec<D>::kLanes;

}  // namespace
}  // namespace rnx::simd
