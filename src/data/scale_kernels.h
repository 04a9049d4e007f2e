// The row kernels of range scaling and of multiply-add with conversion, as the operations see them.
#pragma once

#include "data/convert_kernels.h"

namespace rnx::data {

struct ScaleCall {
  core::Rows rows;
  const void* src;
  s64 srcStep;
  void* dst;
  s64 dstStep;
  f32 low, high;    // the range of floats
  f64 factor, sum;  // of the multiply-add
};

using ScaleKernel = void (*)(const ScaleCall&);

// All channels, or all but alpha.
struct ScaleForms {
  ScaleKernel all, colors;
};

// The whole range of S onto the whole range of D; a float's range is the call's.
template <class S, class D>
struct FullRange {
  ScaleForms forms;
};

// To 8u, exactly or by the top eight bits.
template <class S>
struct ToBytes {
  ScaleForms accurate, fast;
};

using ScaleKernels = Table<FullRange<u8, u16>, FullRange<u8, s16>, FullRange<u8, s32>, FullRange<u8, f32>,
                           FullRange<f32, u8>, ToBytes<u16>, ToBytes<s16>, ToBytes<s32>>;

// src * factor + sum in double precision, and in single precision where no more is asked for.
template <class S, class D>
struct MulAdd {
  ScaleKernel accurate, fast;
};

template <class S, class... D>
struct MulAdds : MulAdd<S, D>... {};

using MulAddKernels =
    Table<MulAdds<u8, u8, s8, u16, s16, s32, f32, f64>, MulAdds<s8, u8, s8, u16, s16, s32, f32, f64>,
          MulAdds<u16, u8, s8, u16, s16, s32, f32, f64>, MulAdds<s16, u8, s8, u16, s16, s32, f32, f64>,
          MulAdds<s32, u8, s8, u16, s16, s32, f32, f64>, MulAdds<f32, u8, s8, u16, s16, s32, f32, f64>,
          MulAdds<f64, u8, s8, u16, s16, s32, f32, f64>>;

namespace v128 {
extern const ScaleKernels scaleKernels;
extern const MulAddKernels mulAddKernels;
}  // namespace v128
namespace v256 {
extern const ScaleKernels scaleKernels;
extern const MulAddKernels mulAddKernels;
}  // namespace v256

}  // namespace rnx::data
