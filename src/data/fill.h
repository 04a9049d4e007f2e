// Filling an image.
#pragma once

#include <cstring>

#include "core/image.h"

namespace rnx::data {

// Zeros in every channel that the layout uses. The arguments are checked.
template <class L, class T>
RnxStatus fillZero(T* dst, s64 dstStep, RnxiSize roi) {
  for (s64 y = 0; y < roi.height; ++y, dst = core::at(dst, dstStep)) {
    if constexpr (core::kHasAlpha<L>) {
      for (s64 x = 0; x < roi.width; ++x) std::memset(dst + x * L::kChannels, 0, L::kUsed * sizeof(T));
    } else {
      std::memset(dst, 0, static_cast<size_t>(roi.width) * L::kChannels * sizeof(T));
    }
  }
  return rnxStatusNoError;
}

}  // namespace rnx::data
