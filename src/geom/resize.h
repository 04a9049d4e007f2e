// The framework of the resize functions: size queries, Init, and what a spec tells about tiles.
#pragma once

#include <numeric>

#include "core/image.h"
#include "geom/resize_kernels.h"
#include "geom/resize_spec.h"

namespace rnx::geom {

// ---- Sizes as the two groups of functions pass them ----

inline Length2 lengths(const RnxiSize& size) { return {size.width, size.height}; }
inline Length2 lengths(const RnxiSizeL* size) { return {size->width, size->height}; }

inline bool isZero(const Length2& size) { return size.width == 0 || size.height == 0; }
inline bool isNegative(const Length2& size) { return size.width < 0 || size.height < 0; }
inline bool exceeds(const Length2& size, s64 limit) { return size.width > limit || size.height > limit; }

// Every resize function answers a pair of images so: a size of 0 is nothing to do, a negative one is wrong.
inline RnxStatus checkSizes(const Length2& source, const Length2& destination) {
  if (isZero(source) || isZero(destination)) return rnxStatusWarningNoOperation;
  if (isNegative(source) || isNegative(destination)) return rnxStatusBadSize;
  return rnxStatusNoError;
}

// ---- GetSize ----

// What the kind, the source size and the antialiasing flag lead to once the arguments are in range.
inline RnxStatus planSpec(int kind, bool antialiasing, bool of64f, const Length2& source, const Length2& destination,
                          SpecSizes& sizes) {
  if (kind == 0) return rnxStatusUnsupportedMode;
  if (of64f && (kind != rnxLinear || antialiasing)) return rnxStatusUnsupportedMode;
  if (sourceTooSmall(kind, source, destination)) return rnxStatusBadSize;
  const bool refused = antialiasing && (kind == rnxNearest || kind == rnxSuper);
  sizes = specSizes(kind, antialiasing && !refused, of64f, source, destination);
  return refused ? rnxStatusWarningNoAntialiasing : rnxStatusNoError;
}

inline RnxStatus resizeSize(bool of64f, RnxiSize srcSize, RnxiSize dstSize, int kind, Rnx32u antialiasing,
                            int* specSize, int* initSize) {
  if (core::anyNull(specSize, initSize)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (!isInterpolation(kind)) return rnxStatusBadInterpolation;

  SpecSizes sizes = {};
  const RnxStatus status = planSpec(kind, antialiasing != 0, of64f, source, destination, sizes);
  if (status < 0) return status;
  if (sizes.spec > core::kMaxReportedSize || sizes.initBuffer > core::kMaxReportedSize) {
    *specSize = *initSize = 0;
    return rnxStatusSizeOverflow;
  }
  *specSize = static_cast<int>(sizes.spec);
  *initSize = static_cast<int>(sizes.initBuffer);
  return status;
}

template <class T>
RnxStatus resizeGetSize(RnxiSize srcSize, RnxiSize dstSize, int kind, Rnx32u antialiasing, int* specSize,
                        int* initSize) {
  return resizeSize(std::is_same_v<T, f64>, srcSize, dstSize, kind, antialiasing, specSize, initSize);
}

inline bool isNarrowType(int type) { return type == rnx8u || type == rnx16u || type == rnx16s || type == rnx32f; }

inline RnxStatus resizeGetSizeLong(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int type, int kind,
                                   Rnx32u antialiasing, s64* specSize, s64* initSize) {
  if (core::anyNull(srcSize, dstSize) || core::anyNull(specSize, initSize)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (!isInterpolation(kind)) return rnxStatusBadInterpolation;
  const bool of64f = type == rnx64f;
  if (!isNarrowType(type) && !(of64f && kind == rnxLinear)) return rnxStatusBadDataType;
  if (of64f && antialiasing != 0) return rnxStatusUnsupportedMode;
  if (exceeds(source, kMaxLongSize) || exceeds(destination, kMaxLongSize)) {
    *specSize = *initSize = 0;
    return rnxStatusSizeOverflow;
  }

  SpecSizes sizes = {};
  const RnxStatus status = planSpec(kind, antialiasing != 0, of64f, source, destination, sizes);
  if (status < 0) return status;
  *specSize = sizes.spec;
  *initSize = sizes.initBuffer;
  return status;
}

// ---- Init ----

// Positions whose coordinate (i + 0.5) * scale - 0.5 lies below 0, and at or after the last pixel. Coordinates ascend.
inline void countBorder(Axis& axis) {
  const f64 scale = axis.scale(), last = static_cast<f64>(axis.source - 1);
  const auto coordinate = [scale](s64 i) { return (static_cast<f64>(i) + 0.5) * scale - 0.5; };
  const s64 n = axis.destination;
  while (axis.before < n && coordinate(axis.before) < 0) ++axis.before;
  while (axis.after < n && coordinate(n - 1 - axis.after) >= last) ++axis.after;
}

inline Axis planAxis(s64 source, s64 destination) {
  const s64 divisor = std::gcd(source, destination);
  return {source, destination, source / divisor, destination / divisor, 0, 0};
}

inline const TableKernels& tableKernels(s64 entries) {
  constexpr s64 kBytesPerEntry = 16;  // of arithmetic rather than of memory
  return core::wideRows(kBytesPerEntry * entries) ? v256::tableKernels : v128::tableKernels;
}

inline ResizeSpec& beginSpec(RnxiResizeSpec* block, u32 tag, u32 element, u32 kind, const Length2& source,
                             const Length2& destination) {
  ResizeSpec& spec = *core::alignedIn<ResizeSpec>(block);
  spec = {};
  spec.tag = tag;
  spec.element = element;
  spec.interpolation = kind;
  spec.vertical = planAxis(source.height, destination.height);
  spec.horizontal = planAxis(source.width, destination.width);
  return spec;
}

inline void initNearest(RnxiResizeSpec* block, u32 tag, const Length2& source, const Length2& destination) {
  const ResizeSpec& spec = beginSpec(block, tag, rnx32f, rnxNearest, source, destination);
  const TableKernels& k = tableKernels(destination.width + destination.height);
  // Of the lengths themselves: not the reduced ones, whose quotient is the same.
  k.nearest(const_cast<s32*>(rowIndex(spec)), destination.height, spec.vertical.scale());
  k.nearest(const_cast<s32*>(columnIndex(spec)), destination.width, spec.horizontal.scale());
}

inline auto fillLinear(const TableKernels& k, FixedPair) { return k.linearFixed; }
inline auto fillLinear(const TableKernels& k, f32) { return k.linearSingle; }
inline auto fillLinear(const TableKernels& k, f64) { return k.linearDouble; }

template <class Weight>
void initLinear(RnxiResizeSpec* block, u32 tag, const Length2& source, const Length2& destination) {
  constexpr u32 kElement = std::is_same_v<Weight, f64> ? rnx64f : std::is_same_v<Weight, f32> ? rnx32f : rnx16s;
  ResizeSpec& spec = beginSpec(block, tag, kElement, rnxLinear, source, destination);
  spec.taps = 1;
  for (u32& side : spec.border) side = spec.taps;
  countBorder(spec.vertical);
  countBorder(spec.horizontal);
  const auto fill = fillLinear(tableKernels(destination.width + destination.height), Weight{});
  fill(const_cast<s32*>(rowIndex(spec)), const_cast<Weight*>(rowWeights<Weight>(spec)), destination.height,
       spec.vertical.scale());
  fill(const_cast<s32*>(columnIndex(spec)), const_cast<Weight*>(columnWeights<Weight>(spec)), destination.width,
       spec.horizontal.scale());
}

// The Init functions with 32-bit sizes refuse the sizes for which no spec size is reported.
inline bool specTooLarge(int kind, bool of64f, const Length2& source, const Length2& destination) {
  return specSizes(kind, false, of64f, source, destination).spec > core::kMaxReportedSize;
}

inline RnxStatus resizeNearestInit(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* block) {
  if (core::anyNull(block)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (specTooLarge(rnxNearest, false, source, destination)) return rnxStatusSizeOverflow;

  initNearest(block, kResizeTag, source, destination);
  return rnxStatusNoError;
}

inline RnxStatus resizeNearestInitLong(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int type,
                                       RnxiResizeSpec* block) {
  if (core::anyNull(srcSize, dstSize) || core::anyNull(block)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (!isNarrowType(type)) return rnxStatusBadDataType;
  if (exceeds(source, kMaxLongSize) || exceeds(destination, kMaxLongSize)) return rnxStatusSizeOverflow;

  initNearest(block, kResizeTagLong, source, destination);
  return rnxStatusNoError;
}

template <class Weight>
RnxStatus resizeLinearInit(RnxiSize srcSize, RnxiSize dstSize, RnxiResizeSpec* block) {
  if (core::anyNull(block)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (sourceTooSmall(rnxLinear, source, destination)) return rnxStatusBadSize;
  if (specTooLarge(rnxLinear, std::is_same_v<Weight, f64>, source, destination)) return rnxStatusSizeOverflow;

  initLinear<Weight>(block, kResizeTag, source, destination);
  return rnxStatusNoError;
}

inline RnxStatus resizeLinearInitLong(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, int type,
                                      RnxiResizeSpec* block) {
  if (core::anyNull(srcSize, dstSize) || core::anyNull(block)) return rnxStatusNullPointer;
  const Length2 source = lengths(srcSize), destination = lengths(dstSize);
  if (const RnxStatus status = checkSizes(source, destination)) return status;
  if (sourceTooSmall(rnxLinear, source, destination)) return rnxStatusBadSize;
  if (!isNarrowType(type) && type != rnx64f) return rnxStatusBadDataType;
  if (exceeds(source, kMaxLongSize) || exceeds(destination, kMaxLongSize)) return rnxStatusSizeOverflow;

  const auto init = type == rnx8u ? initLinear<FixedPair> : type == rnx64f ? initLinear<f64> : initLinear<f32>;
  init(block, kResizeTagLong, source, destination);
  return rnxStatusNoError;
}

inline RnxStatus resizeLinearInitLong8u(const RnxiSizeL* srcSize, const RnxiSizeL* dstSize, RnxiResizeSpec* block) {
  return resizeLinearInitLong(srcSize, dstSize, rnx8u, block);
}

// ---- GetBufferSize ----

inline RnxStatus truncation(const ResizeSpec& spec, const Length2& tile) {
  const bool truncated = tile.width > spec.horizontal.destination || tile.height > spec.vertical.destination;
  return truncated ? rnxStatusWarningSizeTruncated : rnxStatusNoError;
}

inline bool isChannelCount(int channels) { return channels == 1 || channels == 3 || channels == 4; }

template <class T>
RnxStatus resizeGetBufferSize(const RnxiResizeSpec* block, RnxiSize dstSize, int channels, int* bufferSize) {
  if (core::anyNull(block) || core::anyNull(bufferSize)) return rnxStatusNullPointer;
  if (core::empty(dstSize)) return rnxStatusBadSize;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, kResizeTag) || (spec.element == rnx64f) != std::is_same_v<T, f64>) return rnxStatusBadContext;
  if (!isChannelCount(channels)) return rnxStatusBadChannelCount;

  const Length2 tile = lengths(dstSize);
  if (const RnxStatus status = core::reportSize(bufferLayout(spec, tile, channels).bytes(), bufferSize)) return status;
  return truncation(spec, tile);
}

inline RnxStatus resizeGetBufferSizeLong(const RnxiResizeSpec* block, const RnxiSizeL* dstSize, int channels,
                                         s64* bufferSize) {
  if (core::anyNull(block) || core::anyNull(dstSize) || core::anyNull(bufferSize)) return rnxStatusNullPointer;
  const Length2 tile = lengths(dstSize);
  if (isZero(tile) || isNegative(tile)) return rnxStatusBadSize;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, kResizeTagLong)) return rnxStatusBadContext;
  if (!isChannelCount(channels)) return rnxStatusBadChannelCount;

  *bufferSize = bufferLayout(spec, tile, channels).bytes();
  return truncation(spec, tile);
}

// ---- What a spec tells about tiles ----

template <u32 Tag>
RnxStatus resizeGetBorderSize(const RnxiResizeSpec* block, RnxiBorderSize* borderSize) {
  if (core::anyNull(block) || core::anyNull(borderSize)) return rnxStatusNullPointer;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, Tag)) return rnxStatusBadContext;

  *borderSize = {spec.border[0], spec.border[1], spec.border[2], spec.border[3]};
  return rnxStatusNoError;
}

// The conversion of a coordinate that any offset may have led to.
inline int clampToInt32(s64 v) { return static_cast<int>(std::clamp<s64>(v, INT32_MIN, INT32_MAX)); }

inline RnxStatus resizeGetSrcOffset(const RnxiResizeSpec* block, RnxiPoint dstOffset, RnxiPoint* srcOffset) {
  if (core::anyNull(block) || core::anyNull(srcOffset)) return rnxStatusNullPointer;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, kResizeTag)) return rnxStatusBadContext;

  srcOffset->x = clampToInt32(sourceOffset(spec.horizontal, dstOffset.x));
  srcOffset->y = clampToInt32(sourceOffset(spec.vertical, dstOffset.y));
  return rnxStatusNoError;
}

inline RnxStatus resizeGetSrcOffsetLong(const RnxiResizeSpec* block, RnxiPointL dstOffset, RnxiPointL* srcOffset) {
  if (core::anyNull(block) || core::anyNull(srcOffset)) return rnxStatusNullPointer;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, kResizeTagLong)) return rnxStatusBadContext;

  srcOffset->x = sourceOffset(spec.horizontal, dstOffset.x);
  srcOffset->y = sourceOffset(spec.vertical, dstOffset.y);
  return rnxStatusNoError;
}

inline bool startsOutside(const ResizeSpec& spec, s64 x, s64 y) {
  return x < 0 || y < 0 || x >= spec.horizontal.destination || y >= spec.vertical.destination;
}

struct Span {
  s64 start, length;
};

// Source positions of the destination positions [start, start + length), of which the part inside counts.
inline Span sourceSpan(const Axis& axis, const s32* index, const Span& destination) {
  const s64 end = std::min(destination.start + destination.length, axis.destination);
  const s64 start = sourceOffset(axis, destination.start);
  return {start, (end == axis.destination ? axis.source : index[end - 1] + s64{1}) - start};
}

template <u32 Tag>
RnxStatus resizeGetSrcRoi(const RnxiResizeSpec* block, RnxiRect dstRoi, RnxiRect* srcRoi) {
  if (core::anyNull(block) || core::anyNull(srcRoi)) return rnxStatusNullPointer;
  if (dstRoi.width < 1 || dstRoi.height < 1) return rnxStatusBadSize;
  const ResizeSpec& spec = specIn(block);
  if (!isSpec(spec, Tag)) return rnxStatusBadContext;
  if (startsOutside(spec, dstRoi.x, dstRoi.y)) return rnxStatusOutOfRange;

  const Span columns = sourceSpan(spec.horizontal, columnIndex(spec), {dstRoi.x, dstRoi.width});
  const Span rows = sourceSpan(spec.vertical, rowIndex(spec), {dstRoi.y, dstRoi.height});
  *srcRoi = {clampToInt32(columns.start), clampToInt32(rows.start), clampToInt32(columns.length),
             clampToInt32(rows.length)};
  return truncation(spec, {dstRoi.width, dstRoi.height});
}

}  // namespace rnx::geom
