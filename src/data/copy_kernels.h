// The row kernels of Copy and Set without a mask, as the operations see them.
#pragma once

#include "data/pixels.h"

namespace rnx::data {

template <class T>
struct CopyCall {
  core::Rows rows;
  const T* src;
  s64 srcStep;
  T* dst;
  s64 dstStep;
};

template <class T>
struct FillCall {
  core::Rows rows;
  const T* values;
  int period;  // how many values: 1, 3 or 4
  T* dst;
  s64 dstStep;
};

// All channels, or all but alpha.
template <class T>
struct FlatKernels {
  void (*copy)(const CopyCall<T>&);
  void (*copyColors)(const CopyCall<T>&);
  void (*fill)(const FillCall<T>&);
  void (*fillColors)(const FillCall<T>&);
};

struct CopyKernels {
  FlatKernels<u8> of1;
  FlatKernels<u16> of2;
  FlatKernels<u32> of4;
  FlatKernels<u64> of8;  // only copies of all channels
};

namespace v128 {
extern const CopyKernels copyKernels;
}
namespace v256 {
extern const CopyKernels copyKernels;
}

template <class T>
const FlatKernels<T>& copyKernels(s64 bytesMoved) {
  const CopyKernels& k = core::wideRows(bytesMoved) ? v256::copyKernels : v128::copyKernels;
  if constexpr (sizeof(T) == 1) {
    return k.of1;
  } else if constexpr (sizeof(T) == 2) {
    return k.of2;
  } else if constexpr (sizeof(T) == 4) {
    return k.of4;
  } else {
    return k.of8;
  }
}

}  // namespace rnx::data
