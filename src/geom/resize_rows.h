// What the row kernels of the resize functions share.
#pragma once

#include <algorithm>
#include <bit>

#include "geom/resize_kernels.h"
#include "simd/gather.h"

namespace rnx::geom {
namespace {

RNX_INLINE s64 firstNeighbour(const Neighbours& n, s64 x) { return x < 0 ? n.firstOfBefore : x; }
RNX_INLINE s64 secondNeighbour(const Neighbours& n, s64 x) { return x >= n.last ? n.secondOfLast : x + 1; }

// Row `row` behind `pointer`, whatever the step: the product wraps like an address.
template <class T>
RNX_INLINE T* rowAt(T* pointer, s64 row, s64 step) {
  return core::at(pointer, static_cast<s64>(static_cast<u64>(row) * static_cast<u64>(step)));
}

// The columns of a tile are walked in strips, so that the tables of a strip fit a fixed array.
template <class F>
RNX_INLINE void forEachStrip(s64 count, s64 most, F f) {
  const s64 strips = (count + most - 1) / most;
  for (s64 i = 0, first = 0; i < strips; ++i) {
    const s64 end = count * (i + 1) / strips;
    f(first, end - first);
    first = end;
  }
}

// ---- Tables of gathered bytes ----

// Of the source row, in bytes from the image pointer: only these may be read.
struct Extent {
  s64 low, end;
};

// How many windows a block needs whose bytes lie `span` apart from first to last; 0 when there are not so many.
RNX_INLINE int windowsFor(s64 span, const Extent& extent) {
  const s64 windows = (span + simd::kBlockBytes - 1) / simd::kBlockBytes;
  return windows <= simd::kMostWindows && windows * simd::kBlockBytes <= extent.end - extent.low
             ? static_cast<int>(windows)
             : 0;
}

// The first window of a block begins at its first byte, or before it where windows would reach out of the row.
RNX_INLINE s64 baseFor(s64 first, int windows, const Extent& extent) {
  return std::min(first, extent.end - windows * simd::kBlockBytes);
}

// ---- Rows of a linear resize ----

// Two horizontally resampled source rows in the work buffer, known by their numbers in the source.
template <class T, class Resample>
class KeptRows {
public:
  KeptRows(const LinearCall& call, const Resample& resample)
      : resample_(resample),
        tile_(call.tile),
        rows_{static_cast<T*>(call.intermediate[0]), static_cast<T*>(call.intermediate[1])} {}

  // The resampled row `number`. The row `other` stays if it is there.
  RNX_INLINE const T* get(s64 number, s64 other) {
    for (int i = 0; i < 2; ++i) {
      if (numbers_[i] == number) return rows_[i];
    }
    const int place = numbers_[0] == other ? 1 : 0;
    numbers_[place] = number;
    resample_(rowAt(static_cast<const T*>(tile_.src), number - tile_.rows.origin, tile_.srcStep), rows_[place]);
    return rows_[place];
  }

private:
  static constexpr s64 kNone = INT64_MIN;

  const Resample& resample_;
  const ResizeCall& tile_;
  T* rows_[2];
  s64 numbers_[2] = {kNone, kNone};
};

}  // namespace
}  // namespace rnx::geom
