// The row kernels of the binary arithmetic, as the operations see them: tables of functions, one table per width.
#pragma once

#include "core/image.h"

namespace rnx::arith {

// One call of a kernel: dst = left op right, row by row.
template <class T>
struct BinaryCall {
  core::Rows rows;
  const T* left;
  s64 leftStep;
  const T* right;  // an image, or the values of the channels
  s64 rightStep;
  int period;  // how many values
  T* dst;
  s64 dstStep;
  int shift;   // scale factor: bits to the right, or to the left, whichever the kernel does; as it is for division
  f32 factor;  // 2^-scaleFactor, for division
};

// True when a divisor was 0.
template <class T>
using BinaryKernel = bool (*)(const BinaryCall<T>&);

// The forms of one kernel: right operand an image or a constant, all channels or all but alpha.
template <class T>
struct BinaryForms {
  BinaryKernel<T> images, constant, imagesAlpha, constantAlpha;
};

// The exact result is shifted right with rounding half to even, or left; then it is saturated. Half stands for a shift
// by one to the right, Right for more. Quotients are scaled up by the Left kernels, down by the others.
template <class T>
struct IntegerKernels {
  BinaryForms<T> add, addHalf, addRight, addLeft;
  BinaryForms<T> sub, subHalf, subRight, subLeft;
  BinaryForms<T> mul, mulRight, mulLeft;
  BinaryForms<T> divZero, divEven, divAway;  // by rounding mode
  BinaryForms<T> divZeroLeft, divEvenLeft, divAwayLeft;
};

struct FloatKernels {
  BinaryForms<f32> add, sub, mul, div;
};

struct BinaryKernels {
  IntegerKernels<u8> of8u;
  IntegerKernels<u16> of16u;
  IntegerKernels<s16> of16s;
  FloatKernels of32f;
};

namespace v128 {
extern const BinaryKernels binaryKernels;
}
namespace v256 {
extern const BinaryKernels binaryKernels;
}

}  // namespace rnx::arith
