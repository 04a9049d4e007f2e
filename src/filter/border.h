// Border types: which are accepted, and what a neighbourhood operation has to produce around its ROI.
#pragma once

#include <algorithm>

#include "data/border_kernels.h"

namespace rnx::filter {

inline constexpr RnxiBorderType kBaseBits = 15, kFlagBits = 240;

inline RnxiBorderType baseOf(RnxiBorderType border) { return border & kBaseBits; }

inline bool acceptedByFilters(RnxiBorderType border) {
  if (border > (kBaseBits | kFlagBits)) return false;
  const RnxiBorderType base = baseOf(border);
  return border == rnxBorderInMem || base == rnxBorderRepl || base == rnxBorderMirror || base == rnxBorderConst;
}

// One direction of an image for a neighbourhood that reaches `before` positions back and `after` forward. The positions
// of the ROI and of the flagged sides lie in memory; the others are produced from them.
//
//   | produced | in memory before the ROI | ROI | in memory after it | produced |
//              |<------------------ size ----------------->|
struct Extent {
  s64 producedBefore, size, producedAfter;
  s64 memoryBefore;

  s64 total() const { return producedBefore + size + producedAfter; }
  bool complete() const { return producedBefore == 0 && producedAfter == 0; }
};

struct Border {
  data::Border kind;
  Extent columns, rows;
};

// Of a border type that is accepted. rnxBorderInMem alone needs none.
inline data::Border kindOf(RnxiBorderType border) {
  switch (baseOf(border)) {
    case rnxBorderConst:
      return data::Border::kConst;
    case rnxBorderMirror:
      return data::Border::kMirror;
    default:
      return data::Border::kReplicate;
  }
}

// An operation of `mask` columns or rows with its anchor in the middle, rounded down. A reflected border of a mask of
// two has one more position behind the image than the mask reaches.
inline Extent extentOf(s64 roi, s64 mask, bool memoryBefore, bool memoryAfter, bool mirrored) {
  const s64 before = (mask - 1) / 2, after = mask - 1 - before;
  Extent e = {before, roi, after, 0};
  if (memoryBefore || before == 0) {
    e.memoryBefore = before;
    e.size += before;
    e.producedBefore = 0;
  }
  if (memoryAfter || after == 0) {
    e.size += after;
    e.producedAfter = 0;
  } else if (mirrored && mask == 2 && roi > mask) {
    e.producedAfter = 2;
  }
  return e;
}

inline Border borderOf(RnxiSize roi, RnxiSize mask, RnxiBorderType border) {
  const bool mirrored = baseOf(border) == rnxBorderMirror;
  const auto flag = [border](RnxiBorderType side) { return (border & side) != 0; };
  return {
      .kind = kindOf(border),
      .columns = extentOf(roi.width, mask.width, flag(rnxBorderInMemLeft), flag(rnxBorderInMemRight), mirrored),
      .rows = extentOf(roi.height, mask.height, flag(rnxBorderInMemTop), flag(rnxBorderInMemBottom), mirrored),
  };
}

}  // namespace rnx::filter
