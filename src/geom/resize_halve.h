// The linear resize of unsigned integers to half the size in both directions: all weights are one half, R is the mean
// rounded up, and the result is the mean of the means of the pairs in two rows. For row kernels only.
#pragma once

#include "geom/resize_rows.h"
#include "simd/shuffle.h"

namespace rnx::geom {
namespace {

using namespace simd;

template <int C>
RNX_INLINE Vec<u8> halved(const u8* above, const u8* below) {
  return C == 1 ? squareMeans(above, below) : squareMeans4(above, below);
}
template <int C>
RNX_INLINE Vec<u16> halved(const u16* above, const u16* below) {
  return squareMeans(above, below);
}

// Where the bytes of 16 pixels of three channels come from in six chunks with the means of pairs: those of the pair of
// pixels 2 i and 2 i + 1 stand in the place of pixel 2 i.
struct PairIndex {
  alignas(16) u8 at[3][6][kChunk];
  bool used[3][6];
  constexpr PairIndex() : at(), used() {
    for (int b = 0; b < 3 * kChunk; ++b) {
      const int from = b / 3 * 6 + b % 3;
      for (int i = 0; i < 6; ++i) {
        const bool here = from / kChunk == i;
        at[b / kChunk][i][b % kChunk] = here ? static_cast<u8>(from % kChunk) : 0x80;
        used[b / kChunk][i] = used[b / kChunk][i] || here;
      }
    }
  }
};
constexpr PairIndex kPairIndex;

class HalveThree {
public:
  static constexpr bool kOneChunk = false;
  static constexpr int kGroup = kChunk;  // pixels

  const u8 *above, *below;
  u8* dst;

  struct Result {
    Vec<u8> chunk[3];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Vec<u8> means[6];
    const auto pairs = [&](const u8* row, int i, Vec<u8>& next) RNX_INLINE_LAMBDA {
      const Vec<u8> chunk = loadChunks(row + 6 * x + i * kChunk, 6 * apart);
      const Vec<u8> result = average(chunk, nextBytes<3>(chunk, next));
      next = chunk;
      return result;
    };
    // Behind the last chunk nothing is needed.
    Vec<u8> nextAbove = Vec<u8>::zero(), nextBelow = Vec<u8>::zero();
    RNX_UNROLL
    for (int i = 5; i >= 0; --i) means[i] = average(pairs(above, i, nextAbove), pairs(below, i, nextBelow));
    Result result;
    RNX_UNROLL
    for (int j = 0; j < 3; ++j) {
      bool first = true;
      RNX_UNROLL
      for (int i = 0; i < 6; ++i) {
        if (!kPairIndex.used[j][i]) continue;
        const Vec<u8> part = shuffle(means[i], everyGroup(loadChunk(kPairIndex.at[j][i])));
        result.chunk[j] = first ? part : result.chunk[j] | part;
        first = false;
      }
    }
    return result;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    if constexpr (Adjacent) return storeGroups<3, Stream>(dst + 3 * x, result.chunk);
    RNX_UNROLL
    for (int j = 0; j < 3; ++j) storeChunks(dst + 3 * x + j * kChunk, 3 * apart, result.chunk[j]);
  }
};

template <class T, int C>
constexpr s64 kLeastHalved = C == 3 ? HalveThree::kGroup : Vec<T>::kLanes / C;  // columns

template <class T, int C>
inline constexpr bool kCanHalve = C == 1 ? std::is_unsigned_v<T> : sizeof(T) == 1;

template <class T, int C>
void halve(const ResizeCall& tile) {
  constexpr s64 L = Vec<T>::kLanes;
  const s64 n = tile.columns.count * C;
  const T* above = static_cast<const T*>(tile.src);
  T* dst = static_cast<T*>(tile.dst);
  for (s64 y = 0; y < tile.rows.count; ++y) {
    const T* below = core::at(above, tile.srcStep);
    if constexpr (C == 3) {
      HalveThree rows;
      rows.above = above, rows.below = below, rows.dst = dst;
      forEachGroup(tile.columns.count, HalveThree::kGroup, rows);
    } else {
      for (s64 i = 0; i + L <= n; i += L) halved<C>(above + 2 * i, below + 2 * i).store(dst + i);
      if (n % L != 0) halved<C>(above + 2 * (n - L), below + 2 * (n - L)).store(dst + n - L);
    }
    above = core::at(below, tile.srcStep);
    dst = core::at(dst, tile.dstStep);
  }
}

}  // namespace
}  // namespace rnx::geom
