// The row kernels of type conversion, as the operations see them. Which pairs of types there are stands here once; the
// tables are made from the lists.
#pragma once

#include "core/image.h"

namespace rnx::data {

struct ConvertCall {
  core::Rows rows;
  const void* src;
  s64 srcStep;
  void* dst;
  s64 dstStep;
  int shift;   // scale factor of integers: bits to the right, or to the left, whichever the kernel does
  f32 factor;  // 2^-scaleFactor of floats
};

using ConvertKernel = void (*)(const ConvertCall&);

// All channels, or all but alpha.
struct ConvertForms {
  ConvertKernel all, colors;
};

// Saturating; exact where D holds every value of S.
template <class S, class D>
struct Plain {
  ConvertForms forms;
};

// Float to integer, by rounding mode: toward zero, nearest even, half away.
template <class S, class D>
struct Rounded {
  ConvertForms forms[3];
};

// The same after a multiplication by 2^-scaleFactor.
template <class S, class D>
struct RoundedScaled {
  ConvertKernel kernels[3];
};

// Integer to integer: right shifts by rounding mode, and left shifts, of 0 bits too.
template <class S, class D>
struct Shifted {
  ConvertKernel right[3], left;
};

template <class... Entries>
struct Table : Entries... {};

using ConvertKernels =
    Table<Plain<u8, u16>, Plain<u8, s16>, Plain<u8, s32>, Plain<u8, f32>, Plain<s8, u8>, Plain<s8, u16>, Plain<s8, s16>,
          Plain<s8, u32>, Plain<s8, s32>, Plain<s8, f32>, Plain<s8, f64>, Plain<u16, u8>, Plain<u16, u32>,
          Plain<u16, s32>, Plain<u16, f32>, Plain<s16, u8>, Plain<s16, u16>, Plain<s16, u32>, Plain<s16, s32>,
          Plain<s16, f32>, Plain<s32, u8>, Plain<s32, s8>, Plain<s32, u32>, Plain<s32, f32>, Plain<u32, f32>,
          Rounded<f32, u8>, Rounded<f32, s8>, Rounded<f32, u16>, Rounded<f32, s16>,  //
          RoundedScaled<f32, u8>, RoundedScaled<f32, s8>, RoundedScaled<f32, u16>, RoundedScaled<f32, s16>,
          RoundedScaled<f32, u32>, RoundedScaled<f32, s32>, RoundedScaled<f64, u8>, RoundedScaled<f64, s8>,
          RoundedScaled<f64, u16>, RoundedScaled<f64, s16>,  //
          Shifted<u8, s8>, Shifted<u16, s8>, Shifted<u16, s16>, Shifted<s16, s8>, Shifted<s32, u16>, Shifted<s32, s16>,
          Shifted<u32, u8>, Shifted<u32, s8>, Shifted<u32, u16>, Shifted<u32, s16>, Shifted<u32, s32>>;

namespace v128 {
extern const ConvertKernels convertKernels;
}
namespace v256 {
extern const ConvertKernels convertKernels;
}

}  // namespace rnx::data
