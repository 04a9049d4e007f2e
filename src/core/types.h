// Element types and layouts, under the names that the whole library uses.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "rnxip/types.h"

namespace rnx {

using u8 = Rnx8u;
using s8 = Rnx8s;
using u16 = Rnx16u;
using s16 = Rnx16s;
using u32 = Rnx32u;
using s32 = Rnx32s;
using u64 = uint64_t;
using s64 = Rnx64s;
using f32 = Rnx32f;
using f64 = Rnx64f;
using sc32 = Rnx32sc;
using fc32 = Rnx32fc;

namespace core {

// Interleaved layouts. AC4 is four channels of which the fourth is not the operation's business.
struct C1 {
  static constexpr int kChannels = 1, kUsed = 1;
};
struct C2 {
  static constexpr int kChannels = 2, kUsed = 2;
};
struct C3 {
  static constexpr int kChannels = 3, kUsed = 3;
};
struct C4 {
  static constexpr int kChannels = 4, kUsed = 4;
};
struct AC4 {
  static constexpr int kChannels = 4, kUsed = 3;
};

template <class L>
inline constexpr bool kHasAlpha = L::kUsed != L::kChannels;

// A constant: a value for C1 and for a channel of interest, otherwise an array with one value per channel that is used.
template <class T, class L>
using Constant = std::conditional_t<L::kChannels == 1, T, const T*>;

template <class T>
const T* valuesOf(const T& value) {
  return &value;
}
template <class T>
const T* valuesOf(const T* const& values) {
  return values;
}

}  // namespace core
}  // namespace rnx
