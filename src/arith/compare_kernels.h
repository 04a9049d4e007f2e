// The row kernels of the comparison of two images, as the operations see them.
#pragma once

#include "core/image.h"

namespace rnx::arith {

template <class T>
struct CompareCall {
  core::Rows rows;  // in pixels
  const T* left;
  s64 leftStep;
  const T* right;
  s64 rightStep;
  u8* dst;
  s64 dstStep;
};

template <class T>
using CompareKernel = void (*)(const CompareCall<T>&);

template <class T>
struct Relations {
  CompareKernel<T> less, lessEq, equal;
};

template <class T>
struct CompareKernelsOf {
  Relations<T> c1, c3, c4, ac4;
};

struct CompareKernels {
  CompareKernelsOf<u8> of8u;
  CompareKernelsOf<u16> of16u;
  CompareKernelsOf<s16> of16s;
  CompareKernelsOf<f32> of32f;
};

namespace v128 {
extern const CompareKernels compareKernels;
}
namespace v256 {
extern const CompareKernels compareKernels;
}

}  // namespace rnx::arith
