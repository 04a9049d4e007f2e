// The kernels of Transpose and of Mirror about a diagonal, as the operations see them.
#pragma once

#include "data/pixels.h"

namespace rnx::data {

// Source pixel (x, y) goes to destination pixel (y, x).
struct TransposeCall {
  s64 width, height;  // of the source
  bool inOrder;       // the images overlap: pixel by pixel along the source's rows
  const u8* src;
  s64 srcStep;
  u8* dst;
  s64 dstStep;
};

struct TransposeForms {
  void (*transpose)(const TransposeCall&);
  void (*inPlace)(u8* image, s64 step, s64 size, bool inOrder);  // a square
};

using TransposeKernels = ByPixel<TransposeForms>;

namespace v128 {
extern const TransposeKernels transposeKernels;
}
namespace v256 {
extern const TransposeKernels transposeKernels;
}

}  // namespace rnx::data
