// Row kernels of the nearest resize: pixels of 1 to 16 bytes are copied from the columns and rows of the index tables.
#include "geom/resize_rows.h"

namespace rnx::geom {
namespace {

using namespace simd;

// Calls produce(source row, result row) for the columns from `first` on, of `bytes` in all. Rows that are taken from
// the same source row are copied from one another, unless they overlap.
template <int P, class F>
RNX_INLINE void forEachRow(const ResizeCall& call, s64 first, s64 bytes, F produce) {
  const s64 rowBytes = call.columns.count * P;
  const bool repeat = call.dstStep >= rowBytes || call.dstStep <= -rowBytes;
  u8* dst = static_cast<u8*>(call.dst) + first * P;
  const u8* previous = nullptr;
  for (s64 y = 0; y < call.rows.count; ++y) {
    const s32 row = call.rows.index[y];
    if (repeat && previous != nullptr && row == call.rows.index[y - 1]) {
      copyBytes(dst, previous, bytes);
    } else {
      produce(rowAt(static_cast<const u8*>(call.src), row - call.rows.origin, call.srcStep), dst);
    }
    previous = dst;
    dst = core::at(dst, call.dstStep);
  }
}

// ---- Columns one behind the other ----

template <int P>
void copyColumns(const ResizeCall& call) {
  const s64 offset = (call.columns.index[0] - call.columns.origin) * P, bytes = call.columns.count * P;
  forEachRow<P>(call, 0, bytes, [=](const u8* src, u8* dst) { copyBytes(dst, src + offset, bytes); });
}

// ---- Every second column ----

template <class T>
void halveColumns(const ResizeCall& call) {
  constexpr s64 L = Vec<T>::kLanes;
  const s64 n = call.columns.count;
  forEachRow<sizeof(T)>(call, 0, n * s64{sizeof(T)}, [=](const u8* srcRow, u8* dstRow) {
    const T* src = reinterpret_cast<const T*>(srcRow);
    T* dst = reinterpret_cast<T*>(dstRow);
    for (s64 i = 0; i + L < n; i += L) firstOfPairs(src + 2 * i).store(dst + i);
    everySecond(src + 2 * (n - L)).store(dst + n - L);
  });
}

// ---- Pixels of up to four bytes: gathered by table ----

constexpr int kStripBytes = 8192;

template <int P>
class ByteTable {
public:
  // False where the pixels lie too far apart, or the row is too short for windows.
  bool build(const TileAxis& columns, const Extent& extent, s64 first, s64 count) {
    column_ = columns.index + first;
    origin_ = columns.origin;
    bytes_ = count * P;
    s64 span = 1;
    for (s64 q = 0; q < blocks(); ++q) {
      span = std::max(span, pixelOffset(lastByte(q)) + P - pixelOffset(firstByte(q)));
    }
    windows_ = windowsFor(span, extent);
    if (windows_ == 0) return false;
    for (s64 q = 0; q < blocks(); ++q) buildBlock(q, extent);
    return true;
  }

  void gatherRow(const u8* src, u8* dst) const {
    switch (windows_) {
      case 1:
        return gather<1>(src, dst);
      case 2:
        return gather<2>(src, dst);
      case 3:
        return gather<3>(src, dst);
      default:
        return gather<4>(src, dst);
    }
  }

private:
  // The vectors of a row lie one behind the other but for the last, which ends with the row.
  s64 vectors() const { return (bytes_ + kBytes - 1) / kBytes; }
  s64 blocks() const { return vectors() * kBlocksPerVector; }
  s64 firstByte(s64 q) const {
    const s64 vector = q / kBlocksPerVector;
    const s64 start = vector + 1 == vectors() ? std::max<s64>(bytes_ - kBytes, 0) : vector * kBytes;
    return std::min(start + q % kBlocksPerVector * kBlockBytes, bytes_ - 1);
  }
  s64 lastByte(s64 q) const { return std::min(firstByte(q) + kBlockBytes, bytes_) - 1; }
  // Of the source pixel that a result byte belongs to. Pixels ascend; their bytes do not where a pixel repeats.
  s64 pixelOffset(s64 byte) const { return (column_[byte / P] - origin_) * P; }

  void buildBlock(s64 q, const Extent& extent) {
    const s64 first = firstByte(q), last = lastByte(q);
    const s64 base = baseFor(pixelOffset(first), windows_, extent);
    const int bias = windows_ == 1 ? kStoredBias<1> : kStoredBias<2>;
    bases_[q] = base;
    u8* picks = picks_ + q * kBlockBytes;
    s64 column = first / P, channel = first % P;
    for (s64 i = 0; i < kBlockBytes; ++i) {
      picks[i] = static_cast<u8>((column_[column] - origin_) * P + channel - base + bias);
      if (first + i >= last) continue;  // behind the row the last byte repeats
      if (++channel == P) channel = 0, ++column;
    }
  }

  template <int Windows>
  RNX_INLINE Vec<u8> vector(const u8* src, s64 v) const {
    return gatherBytes<Windows>(src, bases_ + v * kBlocksPerVector, picks_ + v * kBytes);
  }

  template <int Windows>
  void gather(const u8* src, u8* dst) const {
    const s64 last = vectors() - 1;
    if (bytes_ < kBytes) {
      alignas(kBytes) u8 row[kBytes];
      vector<Windows>(src, 0).store(row);
      return copyBytes(dst, row, bytes_);
    }
    for (s64 v = 0; v < last; ++v) vector<Windows>(src, v).store(dst + v * kBytes);
    vector<Windows>(src, last).store(dst + bytes_ - kBytes);
  }

  const s32* column_;
  s64 origin_, bytes_;
  int windows_;
  s64 bases_[kStripBytes / kBlockBytes + kBlocksPerVector];
  alignas(kBytes) u8 picks_[kStripBytes + kBytes];
};

// ---- Pixel by pixel ----

template <int Bytes>
struct PixelOf {
  u8 bytes[Bytes];
};
template <int Bytes>
RNX_INLINE void copyPixel(u8* to, const u8* from) {
  PixelOf<Bytes> pixel;
  __builtin_memcpy(&pixel, from, Bytes);
  __builtin_memcpy(to, &pixel, Bytes);
}

// Pixels of 3, 6 and 12 bytes are copied with a part of the one behind them as long as there is one in both rows.
template <int P>
RNX_INLINE void copyPixels(const TileAxis& columns, s64 first, s64 count, const u8* src, u8* dst) {
  constexpr int kWide = static_cast<int>(std::bit_ceil(unsigned{P}));
  const s32* index = columns.index + first;
  const u8* origin = core::at(src, -columns.origin * P);
  const s32 last = index[count - 1];
  s64 i = 0;
  for (; i + 1 < count && (P == kWide || index[i] < last); ++i) {
    copyPixel<kWide>(dst + i * P, origin + s64{index[i]} * P);
  }
  for (; i < count; ++i) copyPixel<P>(dst + i * P, origin + s64{index[i]} * P);
}

template <int P>
void copyEachPixel(const ResizeCall& call, s64 first, s64 count) {
  forEachRow<P>(call, first, count * P,
                [&](const u8* src, u8* dst) { copyPixels<P>(call.columns, first, count, src, dst); });
}

// ---- Every column twice, four bytes each ----

void doubleColumns(const ResizeCall& call) {
  constexpr s64 L = Vec<u32>::kLanes;
  const s64 n = call.columns.count;
  forEachRow<4>(call, 0, n * 4, [&](const u8* src, u8* dst) {
    s64 i = 0;
    for (; i + 2 * L <= n; i += 2 * L) {
      storeTwice(Vec<u32>::load(reinterpret_cast<const u32*>(src) + i / 2), reinterpret_cast<u32*>(dst) + i);
    }
    if (i < n) copyPixels<4>(call.columns, i, n - i, src, dst + i * 4);
  });
}

// ---- Choice ----

template <int P>
void gatherStrip(const ResizeCall& call, const Extent& extent, s64 first, s64 count) {
  ByteTable<P> table;
  if (!table.build(call.columns, extent, first, count)) return copyEachPixel<P>(call, first, count);
  forEachRow<P>(call, first, count * P, [&](const u8* src, u8* dst) { table.gatherRow(src, dst); });
}

template <int P>
void nearest(const ResizeCall& call) {
  const TileAxis& columns = call.columns;
  const s64 n = columns.count, first = columns.index[0], last = columns.index[n - 1];
  if (last - first == n - 1) return copyColumns<P>(call);
  if constexpr (P == 1 || P == 2 || P == 4) {
    using T = std::conditional_t<P == 1, u8, std::conditional_t<P == 2, u16, u32>>;
    if (columns.halves && n >= Vec<T>::kLanes) return halveColumns<T>(call);
  }
  if constexpr (P == 4) {
    if (columns.doubles) return doubleColumns(call);
  }
  if constexpr (P <= 4) {
    const Extent extent = {(first - columns.origin) * P, (last - columns.origin + 1) * P};
    forEachStrip(n, kStripBytes / P, [&](s64 start, s64 count) { gatherStrip<P>(call, extent, start, count); });
  } else {
    copyEachPixel<P>(call, 0, n);
  }
}

}  // namespace

namespace RNX_WIDTH {

constinit const NearestKernels nearestKernels = {
    nearest<1>, nearest<2>, nearest<3>, nearest<4>, nearest<6>, nearest<8>, nearest<12>, nearest<16>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::geom
