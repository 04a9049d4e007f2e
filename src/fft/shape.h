// How images are walked, and the work memory of that.
#pragma once

#include "core/spec.h"
#include "fft/spec.h"

namespace rnx::fft {

inline constexpr s64 kComplexBytes = sizeof(fc32);  // of one number

constexpr s64 alignUp(s64 bytes) { return core::roundUp(bytes, core::kSpecAlignment); }

// Fills what depends on the size of the image, but for its plans.
void shapeSpec(Spec& spec);

// What the caller provides: nothing where the stack has room.
inline s64 workBytes(const Spec& spec) {
  const s64 bytes = spec.stripBytes + spec.tileBytes;
  return bytes <= kStackWork ? 0 : bytes;
}

}  // namespace rnx::fft
