// Border extension, as the operations see it: images with a frame of pixels around them, and single rows with pixels to
// the left and right. Other subsystems build their bordered rows with it too.
#pragma once

#include "data/pixels.h"

namespace rnx::data {

enum class Border { kConst, kReplicate, kMirror, kWrap };

// The source position of position p in a row (or column) of n, where p may lie outside. Not for kConst.
//
//   kReplicate    a a a|a b c|c c c
//   kMirror       b c b|a b c|b a b    the edge pixel is not repeated; period 2n - 2
//   kWrap         a b c|a b c|a b c    period n
inline s64 borderSource(Border border, s64 p, s64 n) {
  if (p >= 0 && p < n) return p;
  if (border == Border::kReplicate || n == 1) return p < 0 ? 0 : n - 1;
  const s64 period = border == Border::kMirror ? 2 * n - 2 : n;
  const s64 rest = p % period + (p % period < 0 ? period : 0);
  return rest < n ? rest : period - rest;
}

// The image of width x height pixels lies in the destination `left` pixels from the left and `top` rows from the top.
// The destination does not overlap the source; where there is no source the image is in its place already.
struct BorderCall {
  Border border;
  const u8* value;  // kConst: one pixel
  const u8* src;    // or null
  s64 srcStep;
  s64 width, height;
  u8* dst;  // the first pixel of the frame
  s64 dstStep;
  s64 top, bottom, left, right;
  bool stream = false;  // the image is too large for the caches: write around them
};

using BorderKernels = ByPixel<void (*)(const BorderCall&)>;

namespace v128 {
extern const BorderKernels borderKernels;
}
namespace v256 {
extern const BorderKernels borderKernels;
}

// Builds the frame, and copies the image where there is a source. With keepsAlpha pixels are four elements, of which
// the destination's fourth is never changed.
inline void extendImage(int pixelBytes, bool keepsAlpha, BorderCall call) {
  const s64 border = call.top + call.bottom, rows = call.src == nullptr ? border : border + call.height;
  const s64 rowBytes = (call.left + call.width + call.right) * pixelBytes;
  // Rows that overlap each other: what comes out depends on the vectors, so let it be the same ones always.
  const bool rowsOverlap = border + call.height > 1 && call.dstStep < rowBytes;
  call.stream = call.src != nullptr && core::exceedsCaches(call.width * call.height * pixelBytes + rowBytes * rows);
  const bool wide = !rowsOverlap && core::wideRows(rowBytes * rows);
  (wide ? v256::borderKernels : v128::borderKernels).get(pixelBytes, keepsAlpha)(call);
}

// One row of `width` pixels with `left` and `right` pixels beside it: dst[0] is the first of the left ones.
inline void extendRow(Border border, int pixelBytes, const u8* value, const u8* src, s64 width, s64 left, s64 right,
                      u8* dst) {
  extendImage(pixelBytes, false,
              {.border = border,
               .value = value,
               .src = src,
               .srcStep = 0,
               .width = width,
               .height = 1,
               .dst = dst,
               .dstStep = 0,
               .top = 0,
               .bottom = 0,
               .left = left,
               .right = right});
}

}  // namespace rnx::data
