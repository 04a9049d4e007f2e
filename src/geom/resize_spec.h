// The spec of the resize functions and everything that is computed from it: the sizes of spec and buffer, the places of
// the tables, the mapping of a destination offset into the source.
//
// A spec is a header followed by four tables, each with an entry for every destination row or column:
//
//   header | row index | column index | row weights | column weights
//
// The places of the tables follow from the destination size in the header, so a spec holds no address.
#pragma once

#include <algorithm>
#include <cmath>

#include "core/checks.h"
#include "core/spec.h"

namespace rnx::geom {

// ---- Header ----

inline constexpr u32 kResizeTag = 0x4B617389;      // of the functions with 32-bit sizes
inline constexpr u32 kResizeTagLong = 0x4B61738C;  // of the _L functions

inline constexpr s64 kMaxLongSize = 0x1FFFFFF;  // width or height in the _L functions

struct Length2 {
  s64 width, height;
};

// One direction of the resize. The reduced lengths are the lengths divided by their greatest common divisor.
struct Axis {
  s64 source, destination;
  s64 reducedSource, reducedDestination;
  s64 before,
      after;  // destination positions whose source coordinate lies before the first, or at or after the last pixel

  f64 scale() const { return static_cast<f64>(reducedSource) / static_cast<f64>(reducedDestination); }
};

struct ResizeSpec {
  u32 tag;
  u32 element;        // type code of the weights' kind: 19 for 64f, 7 for linear 8u, otherwise 13
  u32 interpolation;  // RnxiInterpolationType
  u32 taps;           // source neighbours on each side of a coordinate
  u32 antialiasing;
  u32 border[4];  // top, bottom, left, right: pixels read beyond the source region
  u32 reserved;
  Axis vertical, horizontal;
};

// Reported sizes: this much for the header and the alignment, and the tables.
inline constexpr s64 kReportedHeader = 400, kReportedHeader64f = 384;
inline constexpr s64 kHeaderBytes = core::roundUp(sizeof(ResizeSpec), core::kSpecAlignment);
static_assert(kHeaderBytes + core::kSpecAlignment <= kReportedHeader64f);

inline constexpr s64 kTableAlignment = 32;  // entries, and bytes of the parts of a buffer
inline s64 roundUp32(s64 n) { return core::roundUp(n, kTableAlignment); }

// ---- Kinds of interpolation ----

inline bool isInterpolation(int kind) {
  return kind == 0 || kind == rnxNearest || kind == rnxLinear || kind == rnxCubic || kind == rnxSuper ||
         kind == rnxLanczos;
}

// Source pixels per destination pixel and axis while nothing is shrunk: the support of the kind's kernel.
inline s64 supportOf(int kind) {
  constexpr s64 kCubicTaps = 4, kMostLanczosTaps = 6;
  return kind == rnxLinear ? 2 : kind == rnxCubic ? kCubicTaps : kMostLanczosTaps;
}

// Source pixels that one destination pixel may need along an axis.
inline s64 tapsOf(int kind, bool antialiasing, s64 source, s64 destination) {
  if (kind == rnxSuper) return (source + destination - 1) / destination + 1;
  if (!antialiasing || source <= destination) return supportOf(kind);
  return (supportOf(kind) * source + destination - 1) / destination;
}

inline bool sourceTooSmall(int kind, const Length2& source, const Length2& destination) {
  if (kind == rnxSuper) return source.width < destination.width || source.height < destination.height;
  const s64 least = kind == rnxLinear ? 2 : kind == rnxCubic || kind == rnxLanczos ? 4 : 1;
  return source.width < least || source.height < least;
}

// ---- Sizes ----

struct SpecSizes {
  s64 spec, initBuffer;
};

inline SpecSizes specSizes(int kind, bool antialiasing, bool of64f, const Length2& source, const Length2& destination) {
  constexpr s64 kIndexBytes = 4, kWeightBytes = 4, kSmallestInitBuffer = 64;
  const s64 columns = roundUp32(destination.width), rows = roundUp32(destination.height);
  if (of64f) return {(kIndexBytes + 8) * (columns + rows) + kReportedHeader64f, kSmallestInitBuffer};
  if (kind == rnxNearest) return {kIndexBytes * (columns + rows) + kReportedHeader, kSmallestInitBuffer};
  if (kind == rnxLinear && !antialiasing) {
    return {(kIndexBytes + kWeightBytes) * (columns + rows) + kReportedHeader, kSmallestInitBuffer};
  }
  const s64 tapsX = tapsOf(kind, antialiasing, source.width, destination.width);
  const s64 tapsY = tapsOf(kind, antialiasing, source.height, destination.height);
  return {
      (kIndexBytes + kWeightBytes * tapsX) * columns + (kIndexBytes + kWeightBytes * tapsY) * rows + kReportedHeader,
      8 * roundUp32(std::max(tapsX, tapsY)) + kSmallestInitBuffer};
}

// Parts of the work buffer of a tile: an index per row and column, then the rows of intermediate values.
struct BufferLayout {
  s64 rows, columns;
  s64 rowBytes;  // of one row of intermediate values
  s64 kept;      // how many of them
  s64 slack;

  s64 bytes() const { return rows + columns + kept * rowBytes + slack; }
};

inline BufferLayout bufferLayout(const ResizeSpec& spec, const Length2& tile, int channels) {
  const s64 width = std::min(tile.width, spec.horizontal.destination);
  const s64 height = std::min(tile.height, spec.vertical.destination);
  const bool of64f = spec.element == rnx64f;
  return {.rows = roundUp32(4 * height),
          .columns = roundUp32(4 * width),
          .rowBytes = roundUp32((of64f ? 8 : 4) * channels * width),
          .kept = of64f ? 3 : 2 * s64{spec.taps},
          .slack = of64f ? 96 : 64};
}

// ---- Tables ----

inline constexpr s64 kIndexEntry = 4;

template <class Spec>  // ResizeSpec, const or not
auto* tableAt(Spec* spec, s64 offset) {
  using Byte = std::conditional_t<std::is_const_v<Spec>, const char, char>;
  return reinterpret_cast<Byte*>(spec) + kHeaderBytes + offset;
}

// The tables of a spec; Weight is the type of a linear spec's weights.
struct Tables {
  s64 columnIndex, rowWeight, columnWeight;  // offsets behind the row index

  Tables(const ResizeSpec& spec, s64 weightBytes) {
    const s64 rows = roundUp32(spec.vertical.destination), columns = roundUp32(spec.horizontal.destination);
    columnIndex = kIndexEntry * rows;
    rowWeight = columnIndex + kIndexEntry * columns;
    columnWeight = rowWeight + weightBytes * rows;
  }
};

inline const s32* rowIndex(const ResizeSpec& spec) { return reinterpret_cast<const s32*>(tableAt(&spec, 0)); }
inline const s32* columnIndex(const ResizeSpec& spec) {
  return reinterpret_cast<const s32*>(tableAt(&spec, Tables(spec, 0).columnIndex));
}
template <class Weight>
const Weight* rowWeights(const ResizeSpec& spec) {
  return reinterpret_cast<const Weight*>(tableAt(&spec, Tables(spec, sizeof(Weight)).rowWeight));
}
template <class Weight>
const Weight* columnWeights(const ResizeSpec& spec) {
  return reinterpret_cast<const Weight*>(tableAt(&spec, Tables(spec, sizeof(Weight)).columnWeight));
}

// ---- A spec that comes from a caller ----

inline const ResizeSpec& specIn(const RnxiResizeSpec* block) { return *core::alignedIn<const ResizeSpec>(block); }

inline bool isSound(const Axis& axis) {
  const auto fits = [](s64 length) { return length >= 1 && length <= INT32_MAX; };
  return fits(axis.source) && fits(axis.destination) && fits(axis.reducedSource) && fits(axis.reducedDestination) &&
         axis.source * axis.reducedDestination == axis.destination * axis.reducedSource;
}

// The tag names the functions that may use the spec. The rest of the header is looked at as well, so that a block that
// was overwritten is refused rather than followed. The linear kernels keep two rows, whatever the buffer was sized for.
inline bool isSpec(const ResizeSpec& spec, u32 tag) {
  constexpr u32 kMostTaps = 3;
  const bool plainLinear = spec.interpolation == rnxLinear && spec.antialiasing == 0;
  const bool tapsFit = plainLinear ? spec.taps == 1 : spec.taps <= kMostTaps;
  return spec.tag == tag && tapsFit && isSound(spec.vertical) && isSound(spec.horizontal);
}

// ---- Mapping ----

// The source position at which the image pointer of a tile stands. Offsets outside the image have one as well, as far
// as 64 bits go.
inline s64 sourceOffset(const Axis& axis, s64 destinationOffset) {
  constexpr f64 kFar = 0x1p62;
  return static_cast<s64>(std::clamp(std::floor(static_cast<f64>(destinationOffset) * axis.scale()), -kFar, kFar));
}

}  // namespace rnx::geom
