// How operations see images: pointers moved by bytes, and the rows of a call as one plane for a kernel.
#pragma once

#include "core/types.h"
#include "rnxcore.h"

namespace rnx::core {

// `pointer` moved by bytes, then by elements. Through integers: a caller's step may point anywhere, and a null pointer
// must reach the check that refuses it.
template <class T>
T* at(T* pointer, s64 bytes, s64 elements = 0) {
  const auto offset = static_cast<uintptr_t>(bytes) + static_cast<uintptr_t>(elements) * sizeof(T);
  return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(pointer) + offset);
}

// How a kernel may walk its rows.
enum class Walk {
  kVectors,  // every row is either identical with a source row or apart from all of them
  kStream,   // the same, and the result is too large for the caches: write around them
  kInOrder   // a result row overlaps a source row: element by element, from the left
};

// One image of a call, as bytes.
struct Operand {
  uintptr_t address;
  s64 step;
  s64 rowBytes;
};

template <class T>
Operand operand(const T* pointer, s64 step, s64 width) {
  return {reinterpret_cast<uintptr_t>(pointer), step, width * static_cast<s64>(sizeof(T))};
}

enum class Relation {
  kApart,      // no byte in common
  kIdentical,  // the same rows
  kRowsApart,  // rows interleave or are shifted by whole rows: no row overlaps another in part
  kOverlap
};

inline Relation relate(const Operand& dst, const Operand& src, s64 height) {
  if (dst.address == src.address && (dst.step == src.step || height == 1)) {
    return dst.rowBytes == src.rowBytes ? Relation::kIdentical : Relation::kOverlap;
  }
  // Bytes from the first to behind the last, the last row being the lower one when the step is negative.
  const auto span = [height](const Operand& o, s64& first, s64& end) {
    const s64 reach = o.step * (height - 1);
    first = (reach < 0 ? reach : 0);
    end = (reach < 0 ? 0 : reach) + o.rowBytes;
  };
  s64 dstFirst = 0, dstEnd = 0, srcFirst = 0, srcEnd = 0;
  span(dst, dstFirst, dstEnd);
  span(src, srcFirst, srcEnd);
  const s64 distance = static_cast<s64>(dst.address - src.address);
  if (distance + dstFirst >= srcEnd || distance + dstEnd <= srcFirst) return Relation::kApart;

  const s64 pitch = dst.step < 0 ? -dst.step : dst.step;
  if (dst.step != src.step || pitch < dst.rowBytes || pitch < src.rowBytes) return Relation::kOverlap;
  const s64 phase = ((distance % pitch) + pitch) % pitch;
  const bool sameColumns = phase == 0 && dst.rowBytes == src.rowBytes;
  const bool besideEachOther = phase >= src.rowBytes && phase + dst.rowBytes <= pitch;
  return sameColumns || besideEachOther ? Relation::kRowsApart : Relation::kOverlap;
}

// Whether a call that moves so many bytes should write around the caches.
inline bool exceedsCaches(s64 bytesMoved) {
  constexpr s64 kWorthAsking = 0x80000;
  if (bytesMoved <= kWorthAsking) return false;
  int32_t cache = 0;
  return rnxGetMaxCacheSizeB(&cache) == 0 && bytesMoved >= cache;
}

// Rows of a call: how many, how many elements each, and how to walk them.
struct Rows {
  s64 width;  // elements
  s64 height;
  s64 bytesMoved;
  Walk walk;
};

// Merges contiguous rows and finds out how the result meets the sources. Elements are counted in the destination's
// type; all images have the same number of them.
template <class... Sources>
Rows planRows(s64 width, s64 height, const Operand& dst, const Sources&... src) {
  Rows rows = {width, height, (dst.rowBytes + ... + src.rowBytes) * height, Walk::kVectors};
  bool apart = true, mergeable = true;
  [[maybe_unused]] const auto meet = [&](const Operand& source) {
    const Relation relation = relate(dst, source, height);
    apart = apart && relation == Relation::kApart;
    mergeable = mergeable && (relation == Relation::kApart || relation == Relation::kIdentical);
    if (relation == Relation::kOverlap) rows.walk = Walk::kInOrder;
  };
  (meet(src), ...);
  if (mergeable && dst.step == dst.rowBytes && ((src.step == src.rowBytes) && ...)) {
    rows.width = width * height;
    rows.height = 1;
  }
  if (apart && exceedsCaches(rows.bytesMoved)) rows.walk = Walk::kStream;
  return rows;
}

// The same for a result of one source with pixels of the layout L.
template <class L, class S, class D>
Rows planRowsOf(const S* src, s64 srcStep, const D* dst, s64 dstStep, RnxiSize roi) {
  const s64 width = s64{roi.width} * L::kChannels;
  return planRows(width, roi.height, operand(dst, dstStep, width), operand(src, srcStep, width));
}

// The kernels exist twice, for 16-byte and for 32-byte vectors, with the same results. Asking for the processor's
// features costs about 3 ns, which a call that moves less than this does not win back.
inline bool wideRows(s64 bytesMoved) {
  constexpr s64 kWorthAsking = 2048;
  return bytesMoved >= kWorthAsking && ownGetFeature(rnxFeatureAvx2) != 0;
}

}  // namespace rnx::core
