// The row kernels of the resize functions, as the operations see them: tables of functions, one table per width.
#pragma once

#include "core/image.h"

namespace rnx::geom {

// ---- Filling and checking the tables of a spec ----

// Weight of an 8u neighbour pair: 16384 - w in the low half, w in the high one.
using FixedPair = u32;

struct TableKernels {
  // Writes whole vectors: a table has room for a multiple of 32 entries.
  void (*nearest)(s32* index, s64 n, f64 scale);
  void (*linearFixed)(s32* index, FixedPair* weights, s64 n, f64 scale);
  void (*linearSingle)(s32* index, f32* weights, s64 n, f64 scale);
  void (*linearDouble)(s32* index, f64* weights, s64 n, f64 scale);
  // Whether index[0] <= index[1] <= ... <= index[n - 1].
  bool (*ascending)(const s32* index, s64 n);
};

// ---- One direction of a tile ----

// Destination positions of a tile and the source positions that belong to them. `index` counts in the whole source; the
// image pointers of a tile stand at source position `origin`.
struct TileAxis {
  const s32* index;
  s64 count;
  s64 origin;
  // By the sizes of the images, positions counted from the tile's first and from the origin:
  bool halves;   // position i takes source position 2 i, or the pair (2 i, 2 i + 1)
  bool doubles;  // nearest: positions 2 i and 2 i + 1 take source position i
};

// The neighbours of source position x are x and x + 1, but for the first of position -1 and the second of the last
// position, which the border decides.
struct Neighbours {
  s64 last;           // last position of the source
  s64 firstOfBefore;  // first neighbour of position -1
  s64 secondOfLast;
};

// ---- A tile ----

struct ResizeCall {
  const void* src;
  s64 srcStep;
  void* dst;
  s64 dstStep;
  TileAxis columns, rows;
};

using NearestKernel = void (*)(const ResizeCall&);

struct LinearCall {
  ResizeCall tile;
  Neighbours columnNeighbours, rowNeighbours;
  const void* columnWeights;  // of the tile's first column and row
  const void* rowWeights;
  void* intermediate[2];  // two rows of the work buffer
  bool stream;            // the result is too large for the caches: write around them
};

using LinearKernel = void (*)(const LinearCall&);

struct NearestKernels {
  NearestKernel of1, of2, of3, of4, of6, of8, of12, of16;  // by bytes per pixel
};

struct LinearForms {
  LinearKernel c1, c3, c4;
};

struct LinearKernels {
  LinearForms of8u, of16u, of16s;
};

struct LinearFloatKernels {
  LinearForms of32f, of64f;
};

namespace v128 {
extern const TableKernels tableKernels;
extern const NearestKernels nearestKernels;
extern const LinearKernels linearKernels;
extern const LinearFloatKernels linearFloatKernels;
}  // namespace v128
namespace v256 {
extern const TableKernels tableKernels;
extern const NearestKernels nearestKernels;
extern const LinearKernels linearKernels;
extern const LinearFloatKernels linearFloatKernels;
}  // namespace v256

}  // namespace rnx::geom
