// The row kernels of alpha premultiplication, as the operations see them.
#pragma once

#include "core/image.h"

namespace rnx::alpha {

template <class T>
struct PremulCall {
  core::Rows rows;  // of elements; of pixels in the kernels of four channels
  const T* src;
  s64 srcStep;
  const T* alpha;  // a plane, or one value
  s64 alphaStep;
  T* dst;
  s64 dstStep;
};

template <class T>
using PremulKernel = void (*)(const PremulCall<T>&);

template <class T>
struct PremulKernelsOf {
  PremulKernel<T> byOwnAlpha;        // four channels, of which the fourth multiplies the others and is kept
  PremulKernel<T> byPlane;           // each element by the element of the alpha plane
  PremulKernel<T> byConstant;        // each element by one value
  PremulKernel<T> byConstantColors;  // four channels, of which the fourth becomes the value
};

struct PremulKernels {
  PremulKernelsOf<u8> of8u;
  PremulKernelsOf<u16> of16u;
};

namespace v128 {
extern const PremulKernels premulKernels;
}
namespace v256 {
extern const PremulKernels premulKernels;
}

}  // namespace rnx::alpha
