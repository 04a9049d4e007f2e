// Image allocation: the only functions of the library that allocate. Images of equal pixel size share one instance.
#pragma once

#include "core/types.h"
#include "rnxcore.h"

namespace rnx::core {

inline constexpr s64 kRowAlignment = 64;
inline constexpr s64 kMaxImageBytes = 0x7fffffff;  // of the forms with 32-bit sizes

// On the paths that return null the step tells why: 0 where the row is refused, kept where the whole image is.
template <int PixelBytes>
void* allocateImage(int width, int height, int* step) {
  if (step == nullptr) return nullptr;
  *step = 0;
  if (width < 1 || height < 1) return nullptr;
  const s64 rowBytes = s64{width} * PixelBytes;
  if (rowBytes > kMaxImageBytes) return nullptr;
  // Up to 0x80000000: the largest rows wrap to a negative step, and the size test below refuses them.
  const s64 alignedStep = (rowBytes + kRowAlignment - 1) & -kRowAlignment;
  *step = static_cast<int>(alignedStep);
  const s64 total = alignedStep * height;
  if (total > kMaxImageBytes) return nullptr;
  return rnxMalloc(static_cast<int32_t>(total));
}

template <int PixelBytes>
void* allocateImageLong(s64 width, s64 height, s64* step) {
  if (step == nullptr) return nullptr;
  *step = 0;
  if (width < 1 || height < 1) return nullptr;
  s64 rowBytes = 0, total = 0;
  if (__builtin_mul_overflow(width, s64{PixelBytes}, &rowBytes)) return nullptr;
  if (rowBytes > INT64_MAX - (kRowAlignment - 1)) return nullptr;
  *step = (rowBytes + kRowAlignment - 1) & -kRowAlignment;
  if (__builtin_mul_overflow(*step, height, &total)) return nullptr;
  return rnxMalloc_L(total);
}

inline void freeImage(void* memory) { rnxFree(memory); }

}  // namespace rnx::core
