// The kernels of the transforms, as the operations see them: one table per vector width.
#pragma once

#include "fft/spec.h"

namespace rnx::fft {

// One plane of one call.
struct TransformCall {
  const Spec* spec;
  const f32* src;
  s64 srcStep;
  f32* dst;
  s64 dstStep;
  s64 channels;  // floats from a pixel of a real plane to the next
  bool inverse;
  f32* work;  // on a boundary of 64 bytes
};

using TransformKernel = void (*)(const TransformCall&);

struct TransformKernels {
  TransformKernel complexToComplex, realToPack, packToReal;
};

namespace v128 {
extern const TransformKernels transformKernels;
}
namespace v256 {
extern const TransformKernels transformKernels;
}

}  // namespace rnx::fft
