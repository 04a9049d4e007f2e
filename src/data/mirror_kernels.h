// The row kernels of Mirror about the axes, as the operations see them.
#pragma once

#include "data/pixels.h"

namespace rnx::data {

// Row y of the source goes to row y of the destination, whose step says whether the image is turned upside down.
struct MirrorCall {
  s64 width;  // pixels
  s64 height;
  core::Walk walk;
  const u8* src;
  s64 srcStep;
  u8* dst;
  s64 dstStep;
};

// Pairs of rows, from the first and the last inwards.
struct MirrorInPlaceCall {
  s64 width;
  s64 height;
  bool inOrder;  // rows overlap each other
  u8* image;
  s64 step;
};

struct MirrorForms {
  void (*reverseRows)(const MirrorCall&);
  void (*reverseRowsInPlace)(const MirrorInPlaceCall&);    // each row
  void (*exchangeRows)(const MirrorInPlaceCall&);          // upside down
  void (*exchangeRowsReversed)(const MirrorInPlaceCall&);  // both
};

using MirrorKernels = ByPixel<MirrorForms>;

namespace v128 {
extern const MirrorKernels mirrorKernels;
}
namespace v256 {
extern const MirrorKernels mirrorKernels;
}

}  // namespace rnx::data
