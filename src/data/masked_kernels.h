// The row kernels of masked copies and fills, as the operations see them.
#pragma once

#include "data/pixels.h"

namespace rnx::data {

struct MaskedCall {
  s64 width;  // pixels
  s64 height;
  core::Walk walk;
  int used;       // channels that are written, of those of the kernel
  const u8* src;  // image, or null
  s64 srcStep;
  const u8* values;  // without an image: one element per channel
  u8* dst;
  s64 dstStep;
  const u8* mask;
  s64 maskStep;
};

using MaskedKernel = void (*)(const MaskedCall&);

// By the number of channels.
struct MaskedForms {
  MaskedKernel c1, c3, c4;
};

struct MaskedKernels {
  BySize<MaskedForms> copy, fill;
};

namespace v128 {
extern const MaskedKernels maskedKernels;
}
namespace v256 {
extern const MaskedKernels maskedKernels;
}

}  // namespace rnx::data
