// The reductions over rows, as the operations see them.
#pragma once

#include "core/image.h"

namespace rnx::stats {

inline constexpr int kMaxChannels = 4;

template <class T>
struct ReduceCall {
  const T* first;
  s64 firstStep;
  const T* second;  // of the differences; otherwise not looked at
  s64 secondStep;
  s64 width;  // elements of a row
  s64 height;
  f64* results;  // one per channel
};

template <class T>
using ReduceKernel = void (*)(const ReduceCall<T>&);

// By channels: one, three, four.
template <class T>
struct ByChannels {
  ReduceKernel<T> c1, c3, c4;
};

// Sums of elements, of magnitudes, of squares, and the largest magnitude.
template <class T>
struct Reductions {
  ByChannels<T> sum, absolutes, squares, largest;
};

// The same of an image and of the difference of two; there is no sum of differences. Integers are summed exactly.
template <class T>
struct ReduceKernelsOf {
  Reductions<T> image, difference;
};

// Floats also come with sums in double precision: elements at even and odd pixels of a row apart, then row by row.
struct FloatReduceKernels : ReduceKernelsOf<f32> {
  Reductions<f32> accurateImage, accurateDifference;
};

struct ReduceKernels {
  ReduceKernelsOf<u8> of8u;
  ReduceKernelsOf<u16> of16u;
  ReduceKernelsOf<s16> of16s;
  FloatReduceKernels of32f;
};

namespace v128 {
extern const ReduceKernels reduceKernels;
}
namespace v256 {
extern const ReduceKernels reduceKernels;
}

}  // namespace rnx::stats
