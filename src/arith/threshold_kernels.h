// The row kernels of thresholding, as the operations see them.
#pragma once

#include "core/image.h"

namespace rnx::arith {

template <class T>
struct ThresholdCall {
  core::Rows rows;
  const T* src;
  s64 srcStep;
  T* dst;
  s64 dstStep;
  int period;  // how many values each of these has
  const T *low, *lowValue, *high, *highValue;
};

template <class T>
using ThresholdKernel = void (*)(const ThresholdCall<T>&);

// All channels, or all but alpha.
template <class T>
struct ThresholdForms {
  ThresholdKernel<T> all, colors;
};

template <class T>
struct ThresholdKernelsOf {
  ThresholdForms<T> raise;           // elements below `low` become `low`
  ThresholdForms<T> lower;           // elements above `high` become `high`
  ThresholdForms<T> replaceBelow;    // elements below `low` become `lowValue`
  ThresholdForms<T> replaceAbove;    // elements above `high` become `highValue`
  ThresholdForms<T> replaceOutside;  // both
};

struct ThresholdKernels {
  ThresholdKernelsOf<u8> of8u;
  ThresholdKernelsOf<u16> of16u;
  ThresholdKernelsOf<s16> of16s;
  ThresholdKernelsOf<f32> of32f;
};

namespace v128 {
extern const ThresholdKernels thresholdKernels;
}
namespace v256 {
extern const ThresholdKernels thresholdKernels;
}

}  // namespace rnx::arith
