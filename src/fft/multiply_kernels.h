// The row kernels of spectrum products, as the operations see them: one table per vector width.
#pragma once

#include "core/types.h"

namespace rnx::fft {

// dst = left * right, or left * conj right; dst may be one of the two. In order, number by number, where it overlaps
// them otherwise.
struct MultiplyCall {
  const f32* left;
  s64 leftStep;
  const f32* right;
  s64 rightStep;
  f32* dst;
  s64 dstStep;
  s64 width, height;  // pixels
  bool inOrder;
};

using MultiplyKernel = void (*)(const MultiplyCall&);

struct MultiplyForms {
  MultiplyKernel c1, c3, c4, ac4;
};

struct MultiplyKernels {
  MultiplyForms plain, conjugate;
};

namespace v128 {
extern const MultiplyKernels multiplyKernels;
}
namespace v256 {
extern const MultiplyKernels multiplyKernels;
}

}  // namespace rnx::fft
