// Nearest and linear resize of one tile: checks, the tile in the source, the choice of a kernel.
#pragma once

#include "core/checks.h"
#include "geom/resize.h"

namespace rnx::geom {

// ---- Tiles ----

struct Tile {
  s64 x, y;
  Length2 size;
};

inline Tile tileOf(const RnxiPoint& offset, const RnxiSize& size) { return {offset.x, offset.y, lengths(size)}; }
inline Tile tileOf(const RnxiPointL& offset, const RnxiSizeL* size) { return {offset.x, offset.y, lengths(size)}; }

// The spec that a tile needs.
struct Needed {
  u32 tag, kind, element;
};

// From the size on, in the order of the contract. The _L functions look at the type together with the tag.
inline RnxStatus checkTile(const ResizeSpec& spec, const Needed& needed, const Tile& tile) {
  if (isZero(tile.size)) return rnxStatusWarningNoOperation;
  if (!isSpec(spec, needed.tag)) return rnxStatusBadContext;
  if (needed.tag == kResizeTagLong && spec.element != needed.element) return rnxStatusBadContext;
  if (isNegative(tile.size)) return rnxStatusBadSize;
  if (startsOutside(spec, tile.x, tile.y)) return rnxStatusOutOfRange;
  if (spec.antialiasing != 0) return rnxStatusUnsupportedMode;
  if (spec.interpolation != needed.kind || spec.element != needed.element) return rnxStatusBadContext;
  return rnxStatusNoError;
}

inline TileAxis tileAxis(const Axis& axis, const s32* index, s64 offset, s64 length) {
  return {.index = index + offset,
          .count = std::min(length, axis.destination - offset),
          .origin = sourceOffset(axis, offset),
          .halves = axis.reducedSource == 2 && axis.reducedDestination == 1,
          .doubles = axis.reducedSource == 1 && axis.reducedDestination == 2 && offset % 2 == 0};
}

// The kernels follow the entries without looking at them again. Those of an Init function always pass.
inline bool entriesFit(const TableKernels& k, const TileAxis& axis, s64 first, s64 last) {
  return axis.index[0] >= first && axis.index[axis.count - 1] <= last && k.ascending(axis.index, axis.count);
}

inline bool tablesFit(const ResizeSpec& spec, const ResizeCall& call, s64 first) {
  const TableKernels& k = tableKernels(call.columns.count + call.rows.count);
  return entriesFit(k, call.columns, first, spec.horizontal.source - 1) &&
         entriesFit(k, call.rows, first, spec.vertical.source - 1);
}

inline ResizeCall planTile(const ResizeSpec& spec, const Tile& tile, const void* src, s64 srcStep, void* dst,
                           s64 dstStep) {
  return {.src = src,
          .srcStep = srcStep,
          .dst = dst,
          .dstStep = dstStep,
          .columns = tileAxis(spec.horizontal, columnIndex(spec), tile.x, tile.size.width),
          .rows = tileAxis(spec.vertical, rowIndex(spec), tile.y, tile.size.height)};
}

// ---- Nearest ----

inline NearestKernel nearestKernel(int pixelBytes, s64 bytesMoved) {
  const NearestKernels& k = core::wideRows(bytesMoved) ? v256::nearestKernels : v128::nearestKernels;
  switch (pixelBytes) {
    case 1:
      return k.of1;
    case 2:
      return k.of2;
    case 3:
      return k.of3;
    case 4:
      return k.of4;
    case 6:
      return k.of6;
    case 8:
      return k.of8;
    case 12:
      return k.of12;
    default:
      return k.of16;
  }
}

// Pixels are only copied, so that their size is all that counts.
inline RnxStatus nearestTile(int pixelBytes, u32 tag, const void* src, s64 srcStep, void* dst, s64 dstStep,
                             const Tile& tile, const RnxiResizeSpec* block) {
  const ResizeSpec& spec = specIn(block);
  if (const RnxStatus status = checkTile(spec, {tag, rnxNearest, rnx32f}, tile)) return status;
  const ResizeCall call = planTile(spec, tile, src, srcStep, dst, dstStep);
  if (!tablesFit(spec, call, 0)) return rnxStatusBadContext;

  nearestKernel(pixelBytes, call.columns.count * call.rows.count * pixelBytes)(call);
  return truncation(spec, tile.size);
}

template <class T, class L>
RnxStatus resizeNearest(const T* src, int srcStep, T* dst, int dstStep, RnxiPoint dstOffset, RnxiSize dstSize,
                        const RnxiResizeSpec* block, Rnx8u* buffer) {
  if (core::anyNull(src, dst) || core::anyNull(block) || core::anyNull(buffer)) return rnxStatusNullPointer;
  return nearestTile(sizeof(T) * L::kChannels, kResizeTag, src, srcStep, dst, dstStep, tileOf(dstOffset, dstSize),
                     block);
}

template <class T, class L>
RnxStatus resizeNearestLong(const T* src, s64 srcStep, T* dst, s64 dstStep, RnxiPointL dstOffset,
                            const RnxiSizeL* dstSize, const RnxiResizeSpec* block, Rnx8u* buffer) {
  if (core::anyNull(src, dst) || core::anyNull(block) || core::anyNull(buffer)) return rnxStatusNullPointer;
  if (core::anyNull(dstSize)) return rnxStatusNullPointer;
  return nearestTile(sizeof(T) * L::kChannels, kResizeTagLong, src, srcStep, dst, dstStep, tileOf(dstOffset, dstSize),
                     block);
}

// ---- Linear ----

// Of a border type: the kind, and the flags of the sides that lie in memory.
inline constexpr u32 kBorderKind = 0x0F, kBorderFlags = 0xF0;

// The second reflection kind is replication.
inline RnxiBorderType plainBorder(RnxiBorderType border) {
  return (border & kBorderKind) == rnxBorderMirrorR ? (border & kBorderFlags) + rnxBorderRepl : border;
}

inline bool isBorder(RnxiBorderType border, bool allowMirror) {
  if (border > 255) return false;
  const u32 kind = border & kBorderKind;
  return border == rnxBorderInMem || kind == rnxBorderRepl || (allowMirror && kind == rnxBorderMirror);
}

// A flag speaks of a side of the tile. Inside the destination the neighbouring source pixels lie in memory anyway, and
// what the flag says about pixels beyond the whole source is not meant; 240 means those as well.
inline Neighbours neighbours(const Axis& axis, const TileAxis& tile, s64 offset, RnxiBorderType border, u32 before,
                             u32 after) {
  const bool all = border == rnxBorderInMem;
  const bool realBefore = all || ((border & before) != 0 && offset == 0);
  const bool realAfter = all || ((border & after) != 0 && offset + tile.count == axis.destination);
  const s64 last = axis.source - 1, step = (border & kBorderKind) == rnxBorderMirror ? std::min<s64>(1, last) : 0;
  return {.last = last, .firstOfBefore = realBefore ? -1 : step, .secondOfLast = realAfter ? last + 1 : last - step};
}

inline LinearKernel formOf(const LinearForms& forms, int channels) {
  return channels == 1 ? forms.c1 : channels == 3 ? forms.c3 : forms.c4;
}
inline const LinearForms& linearForms(bool wide, u8) {
  return wide ? v256::linearKernels.of8u : v128::linearKernels.of8u;
}
inline const LinearForms& linearForms(bool wide, u16) {
  return wide ? v256::linearKernels.of16u : v128::linearKernels.of16u;
}
inline const LinearForms& linearForms(bool wide, s16) {
  return wide ? v256::linearKernels.of16s : v128::linearKernels.of16s;
}
inline const LinearForms& linearForms(bool wide, f32) {
  return wide ? v256::linearFloatKernels.of32f : v128::linearFloatKernels.of32f;
}
inline const LinearForms& linearForms(bool wide, f64) {
  return wide ? v256::linearFloatKernels.of64f : v128::linearFloatKernels.of64f;
}

template <class T>
using LinearWeight = std::conditional_t<sizeof(T) == 1, FixedPair, std::conditional_t<sizeof(T) == 8, f64, f32>>;
template <class T>
inline constexpr u32 kLinearElement = sizeof(T) == 1   ? rnx16s
                                      : sizeof(T) == 8 ? rnx64f
                                                       : rnx32f;

template <class T>
RnxStatus linearTile(int channels, u32 tag, const T* src, s64 srcStep, T* dst, s64 dstStep, const Tile& tile,
                     RnxiBorderType border, const RnxiResizeSpec* block, Rnx8u* buffer) {
  using Weight = LinearWeight<T>;
  const ResizeSpec& spec = specIn(block);
  if (const RnxStatus status = checkTile(spec, {tag, rnxLinear, kLinearElement<T>}, tile)) return status;
  LinearCall call = {
      .tile = planTile(spec, tile, src, srcStep, dst, dstStep),
      .columnNeighbours = {},
      .rowNeighbours = {},
      .columnWeights = columnWeights<Weight>(spec) + tile.x,
      .rowWeights = rowWeights<Weight>(spec) + tile.y,
      .intermediate = {},
      .stream = false,
  };
  call.columnNeighbours =
      neighbours(spec.horizontal, call.tile.columns, tile.x, border, rnxBorderInMemLeft, rnxBorderInMemRight);
  call.rowNeighbours =
      neighbours(spec.vertical, call.tile.rows, tile.y, border, rnxBorderInMemTop, rnxBorderInMemBottom);
  constexpr s64 kBeforeFirst = -1;
  if (!tablesFit(spec, call.tile, kBeforeFirst)) return rnxStatusBadContext;

  const Length2 size = {call.tile.columns.count, call.tile.rows.count};
  const BufferLayout layout = bufferLayout(spec, size, channels);
  char* rows = core::alignedIn<char>(buffer, kTableAlignment) + layout.rows + layout.columns;
  call.intermediate[0] = rows;
  call.intermediate[1] = rows + layout.rowBytes;

  const s64 bytes = size.width * size.height * channels * s64{sizeof(T)};
  formOf(linearForms(core::wideRows(bytes), T{}), channels)(call);
  return truncation(spec, tile.size);
}

template <class T, class L>
RnxStatus resizeLinear(const T* src, int srcStep, T* dst, int dstStep, RnxiPoint dstOffset, RnxiSize dstSize,
                       RnxiBorderType border, const T*, const RnxiResizeSpec* block, Rnx8u* buffer) {
  border = plainBorder(border);
  if (!isBorder(border, true)) return rnxStatusBadBorderType;
  if (core::anyNull(src, dst) || core::anyNull(block) || core::anyNull(buffer)) return rnxStatusNullPointer;
  return linearTile(L::kChannels, kResizeTag, src, srcStep, dst, dstStep, tileOf(dstOffset, dstSize), border, block,
                    buffer);
}

template <class T, class L>
RnxStatus resizeLinearLong(const T* src, s64 srcStep, T* dst, s64 dstStep, RnxiPointL dstOffset,
                           const RnxiSizeL* dstSize, RnxiBorderType border, const T*, const RnxiResizeSpec* block,
                           Rnx8u* buffer) {
  if (!isBorder(border, false)) return rnxStatusBadBorderType;
  if (core::anyNull(src, dst) || core::anyNull(block) || core::anyNull(buffer)) return rnxStatusNullPointer;
  if (core::anyNull(dstSize)) return rnxStatusNullPointer;
  return linearTile(L::kChannels, kResizeTagLong, src, srcStep, dst, dstStep, tileOf(dstOffset, dstSize), border, block,
                    buffer);
}

}  // namespace rnx::geom
