// Kernels of the transposition: tiles that fit the registers, in blocks that fit the first cache.
//
// A tile is kColumns source columns wide; its rows are a group, whose pixels become neighbours in the destination. The
// wide build transposes two groups of rows at once.
#include "data/pixel_rows.h"
#include "data/transpose_kernels.h"

namespace rnx::data {
namespace {

struct Image {
  const u8* src;
  s64 srcStep;
  u8* dst;
  s64 dstStep;
};

// Two groups of kRows pixels, the second one `apart` pixels behind the first.
template <int P, bool Keeps, int kRows>
RNX_INLINE void storeTileRow(u8* dst, s64 apart, Vec<u8> v) {
  if (Keeps) v = select(Mask<u8>::load(kAlphaBytes<P>.at), loadChunks(dst, apart * P), v);
  if (apart == kRows) {
    v.store(dst);
  } else {
    storeChunks(dst, apart * P, v);
  }
}

// Pixels of 1, 2, 4 or 8 bytes: a square of one chunk in each direction.
template <int P, bool Keeps>
struct Tile {
  static constexpr int kColumns = kChunk / P, kRows = kColumns;

  // The groups at row y and `apart` rows further.
  static RNX_INLINE void move(const Image image, s64 x, s64 y, s64 apart, s64) {
    const u8* src = core::at(image.src, y * image.srcStep + x * P);
    u8* dst = core::at(image.dst, x * image.dstStep + y * P);
    Vec<u8> v[kRows];
    RNX_UNROLL
    for (int r = 0; r < kRows; ++r, src = core::at(src, image.srcStep)) {
      v[r] = loadChunks(src, apart * image.srcStep);
    }
    transposeChunks<P>(v);
    RNX_UNROLL
    for (int c = 0; c < kColumns; ++c, dst = core::at(dst, image.dstStep)) {
      storeTileRow<P, Keeps, kRows>(dst, apart, v[c]);
    }
  }
};

#if RNX_VECTOR_BYTES == 32
// Pixels of 8 bytes: four columns, which are a vector of the source.
template <bool Keeps>
struct Tile<8, Keeps> {
  static constexpr int kColumns = 4, kRows = 2;

  static RNX_INLINE void move(const Image image, s64 x, s64 y, s64 apart, s64) {
    const u8* src = core::at(image.src, y * image.srcStep + x * 8);
    u8* dst = core::at(image.dst, x * image.dstStep + y * 8);
    Vec<u8> v[kColumns];
    RNX_UNROLL
    for (int g = 0; g < 2; ++g) {
      v[2 * g] = Vec<u8>::load(core::at(src, g * apart * image.srcStep));
      v[2 * g + 1] = Vec<u8>::load(core::at(src, (g * apart + 1) * image.srcStep));
    }
    transposeEights(v);
    RNX_UNROLL
    for (int c = 0; c < kColumns; ++c, dst = core::at(dst, image.dstStep)) {
      storeTileRow<8, Keeps, kRows>(dst, apart, v[c]);
    }
  }
};
#endif

// Pixels of 16 bytes only change places: four columns, as many as fill a cache line of the source.
template <bool Keeps>
struct Tile<16, Keeps> {
  static constexpr int kColumns = 4, kRows = 2;

  static RNX_INLINE void move(const Image image, s64 x, s64 y, s64 apart, s64) {
    const u8* src = core::at(image.src, y * image.srcStep + x * 16);
    u8* dst = core::at(image.dst, x * image.dstStep + y * 16);
    Vec<u8> v[kColumns][2];  // the destination's lines of 64 bytes, or halves of them
    RNX_UNROLL
    for (int g = 0; g < kGroups; ++g) {
      const u8* first = core::at(src, g * apart * image.srcStep);
      const u8* second = core::at(first, image.srcStep);
#if RNX_VECTOR_BYTES == 32
      RNX_UNROLL
      for (int c = 0; c < kColumns; c += 2) {
        v[c][g] = Vec<u8>::load(first + c * 16);
        v[c + 1][g] = Vec<u8>::load(second + c * 16);
        transposeSixteens(v[c][g], v[c + 1][g]);
      }
#else
      RNX_UNROLL
      for (int c = 0; c < kColumns; ++c) {
        v[c][0] = Vec<u8>::load(first + c * 16);
        v[c][1] = Vec<u8>::load(second + c * 16);
      }
#endif
    }
    RNX_UNROLL
    for (int c = 0; c < kColumns; ++c, dst = core::at(dst, image.dstStep)) {
      RNX_UNROLL
      for (int i = 0; i < 2; ++i) {
        u8* to = dst + (kGroups == 2 ? i * apart : i) * 16;
        if (Keeps) v[c][i] = select(Mask<u8>::load(kAlphaBytes<16>.at), Vec<u8>::load(to), v[c][i]);
        v[c][i].store(to);
      }
    }
  }
};

// Pixels of 3, 6 or 12 bytes stand in lanes of 4, 8 or 16 bytes while they are transposed. A chunk of the source holds
// 12 bytes of pixels; four of them make the three chunks of a destination row.
template <int P>
struct LaneIndex {
  static constexpr int kLane = P / 3 * 4;
  alignas(16) u8 expand[2][kChunk];    // from a chunk that starts with the pixels, or 4 bytes earlier
  alignas(16) u8 compress[4][kChunk];  // 12 bytes, rotated to where they belong in the three chunks
  constexpr LaneIndex() : expand(), compress() {
    for (int b = 0; b < kChunk; ++b) {
      const int byte = b % kLane < P ? b / kLane * P + b % kLane : 0x80;
      expand[0][b] = static_cast<u8>(byte);
      expand[1][b] = static_cast<u8>(byte == 0x80 ? byte : byte + 4);
    }
    for (int s = 0; s < 4; ++s) {
      for (int b = 0; b < kChunk; ++b) compress[s][b] = 0x80;
      for (int b = 0; b < 12; ++b) compress[s][(12 * s + b) % kChunk] = static_cast<u8>(b / P * kLane + b % P);
    }
  }
};
template <int P>
constexpr LaneIndex<P> kLaneIndex;

template <int P, bool Keeps>
requires(P % 3 == 0) struct Tile<P, Keeps> {
  static constexpr int kLane = P / 3 * 4;
  static constexpr int kColumns = kChunk / kLane, kRows = 4 * kColumns;

  static RNX_INLINE void move(const Image image, s64 x, s64 y, s64 apart, s64 width) {
    // A chunk reaches 4 bytes behind its pixels, and may not reach behind the row.
    const int early = (x + kColumns) * P + 4 > width * P ? 1 : 0;
    const Vec<u8> expand = everyGroup(loadChunk(kLaneIndex<P>.expand[early]));
    const u8* src = core::at(image.src, y * image.srcStep + x * P - 4 * early);
    u8* dst = core::at(image.dst, x * image.dstStep + y * P);
    Vec<u8> v[4][kColumns];
    RNX_UNROLL
    for (int s = 0; s < 4; ++s) {
      RNX_UNROLL
      for (int c = 0; c < kColumns; ++c, src = core::at(src, image.srcStep)) {
        v[s][c] = shuffle(loadChunks(src, apart * image.srcStep), expand);
      }
      if constexpr (kColumns > 1) transposeChunks<kLane>(v[s]);
    }
    RNX_UNROLL
    for (int c = 0; c < kColumns; ++c, dst = core::at(dst, image.dstStep)) {
      Vec<u8> part[4];
      RNX_UNROLL
      for (int s = 0; s < 4; ++s) part[s] = shuffle(v[s][c], everyGroup(loadChunk(kLaneIndex<P>.compress[s])));
      storeChunks(dst, apart * P, firstBytes<12>(part[0], part[1]));
      storeChunks(dst + kChunk, apart * P, firstBytes<8>(part[1], part[2]));
      storeChunks(dst + 2 * kChunk, apart * P, firstBytes<4>(part[2], part[3]));
    }
  }
};

template <int P, bool Keeps>
void pixelByPixel(const Image& image, s64 x0, s64 x1, s64 y0, s64 y1) {
  for (s64 y = y0; y < y1; ++y) {
    for (s64 x = x0; x < x1; ++x) {
      PixelRow<P, Keeps>::movePixel(core::at(image.dst, x * image.dstStep + y * P),
                                    core::at(image.src, y * image.srcStep + x * P));
    }
  }
}

// Rows whose step is a multiple of a large power of two share few places of the first cache: with lines of 64 bytes,
// 8 in each place, so many lines of one column.
s64 linesOfColumn(s64 step) {
  constexpr s64 kLine = 64, kWaySize = 4096, kWays = 8;
  return kWaySize / std::clamp(step & -step, kLine, kWaySize) * kWays;
}

// A block is as wide as the pixels that fill a cache line, or three, so that lines are used up at once. Fewer rows of
// the destination are kinder to the memory, where the lines of so many source rows stay in the cache until they are
// used up. Blocks follow each other down the source, which is along the rows of the destination. Of pixels of 6 bytes,
// and of 12 in images that are fetched ahead, fewer columns are better, where the cache has places for their rows.
constexpr s64 kBlockRows = 64;
template <int P, bool kFetched>
s64 blockColumns(s64 srcStep) {
  if (P == 6 && linesOfColumn(srcStep) > kBlockRows / 2) return 48 / P;
  if (P == 12 && kFetched && linesOfColumn(srcStep) > kBlockRows / 4) return 48 / P;
  return (P % 3 == 0 ? 192 : 64) / P;
}

// Rows whose tiles are walked along the source before the next ones: their lines take half of the cache's places,
// unless the first tile uses up its lines.
template <int P, class Tile>
s64 stripRows(s64 srcStep) {
  constexpr s64 kSpan = Tile::kRows * kGroups, kAll = 2 * kBlockRows;
  if (Tile::kColumns * P >= 64) return kAll;
  return std::max(linesOfColumn(srcStep) / 2 / kSpan * kSpan, kSpan);
}

// The rows of a block lie so far apart in memory that no processor foresees them.
constexpr s64 kRowsAhead = 32;
inline bool inCaches(s64 bytes) { return bytes <= 0x500000; }  // near enough to fetch nothing ahead

template <int P>
RNX_INLINE void fetchRows(const u8* image, s64 step, s64 x0, s64 x1, s64 y0, s64 y1) {
  constexpr s64 kLine = 64;
  for (s64 y = y0; y < y1; ++y) {
    const u8 *first = core::at(image, y * step + x0 * P), *end = core::at(first, (x1 - x0) * P);
    const auto misplaced = static_cast<s64>(reinterpret_cast<uintptr_t>(first) % kLine);
    for (const u8* line = core::at(first, -misplaced); line < end; line += kLine) {
      __builtin_prefetch(line, 0, 2);  // to be read, into the second cache
    }
  }
}

// Columns [x0, x1) of rows [y0, y1) of an image that is `width` pixels wide. Tiles at the ends overlap their
// neighbours. The image is a copy, which no store can change: nothing is loaded again. Rows further down, in front of
// row `fetched`, are fetched ahead.
template <int P, bool Keeps, bool Fetches = false>
RNX_INLINE void transposeBlock(const Image image, s64 x0, s64 x1, s64 y0, s64 y1, s64 width, s64 fetched = 0) {
  using Tile = Tile<P, Keeps>;
  constexpr s64 kSpan = Tile::kRows * kGroups;
  // A chunk of 12 bytes of pixels needs 16 bytes of a row.
  if (x1 - x0 < Tile::kColumns || y1 - y0 < Tile::kRows || width * P < kChunk) {
    return pixelByPixel<P, Keeps>(image, x0, x1, y0, y1);
  }
  const s64 lastY = std::max(y1 - kSpan, y0), lastApart = y1 - Tile::kRows - lastY;
  const s64 strip = stripRows<P, Tile>(image.srcStep);
  for (s64 top = y0; top < y1; top += strip) {
    const s64 bottom = std::min(top + strip, y1);
    for (s64 x = x0; x < x1; x += Tile::kColumns) {
      const s64 column = std::min(x, x1 - Tile::kColumns);
      s64 y = top;
      for (; y + kSpan <= bottom; y += kSpan) {
        if (Fetches && x == x0) {
          fetchRows<P>(image.src, image.srcStep, x0, x1, y + kRowsAhead, std::min(y + kRowsAhead + kSpan, fetched));
        }
        Tile::move(image, column, y, Tile::kRows, width);
      }
      if (y < bottom) Tile::move(image, column, lastY, lastApart, width);
    }
  }
}

template <int P, bool Keeps, bool Fetches>
void transposeBlocks(const TransposeCall& call) {
  const Image image = {call.src, call.srcStep, call.dst, call.dstStep};
  const s64 width = call.width, height = call.height, columns = blockColumns<P, Fetches>(call.srcStep);
  // A rest shorter than a block joins the last one.
  const auto end = [](s64 start, s64 n, s64 size) { return n - start < 2 * size ? n : start + size; };
  for (s64 x = 0, nextX = 0; x < width; x = nextX) {
    nextX = end(x, width, columns);
    for (s64 y = 0, nextY = 0; y < height; y = nextY) {
      nextY = end(y, height, kBlockRows);
      transposeBlock<P, Keeps, Fetches>(image, x, nextX, y, nextY, width, height);
    }
  }
}

template <int P, bool Keeps>
void transpose(const TransposeCall& call) {
  if (call.inOrder) {
    return pixelByPixel<P, Keeps>({call.src, call.srcStep, call.dst, call.dstStep}, 0, call.width, 0, call.height);
  }
  if (inCaches(call.width * call.height * P)) return transposeBlocks<P, Keeps, false>(call);
  transposeBlocks<P, Keeps, true>(call);
}

// Pixels on the side of a square in place.
template <int P>
constexpr s64 kSquare = P == 1   ? 64
                        : P <= 4 ? 32
                                 : 16;

// Blocks mirrored at the diagonal change places, one of them by way of a buffer.
template <int P>
void inPlace(u8* image, s64 step, s64 size, bool inOrder) {
  using Row = PixelRow<P, false>;
  if (inOrder) {
    for (s64 x = 1; x < size; ++x) {
      for (s64 y = 0; y < x; ++y)
        Row::exchangePixels(core::at(image, y * step + x * P), core::at(image, x * step + y * P));
    }
    return;
  }
  constexpr s64 kSize = kSquare<P>;
  const bool far = !inCaches(size * size * P);
  u8 buffer[kSize * kSize * P];
  for (s64 y = 0; y < size; y += kSize) {
    const s64 rows = std::min(kSize, size - y);
    for (s64 x = 0; x <= y; x += kSize) {
      const s64 columns = std::min(kSize, size - x);
      u8 *lower = core::at(image, y * step + x * P), *upper = core::at(image, x * step + y * P);
      if (far && x < y) {
        const s64 next = x + kSize, end = std::min(next + kSize, size);
        fetchRows<P>(image, step, y, y + rows, next, end);
        fetchRows<P>(image, step, next, end, y, y + rows);
      }
      transposeBlock<P, false>({lower, step, buffer, rows * P}, 0, columns, 0, rows, columns);
      if (x < y) transposeBlock<P, false>({upper, step, lower, step}, 0, rows, 0, columns, rows);
      for (s64 r = 0; r < columns; ++r) Row::copy(core::at(upper, r * step), buffer + r * rows * P, rows);
    }
  }
}

template <int P>
constexpr TransposeForms kForms = {transpose<P, false>, inPlace<P>};
template <int P>
constexpr TransposeForms kColors = {transpose<P, true>, nullptr};

}  // namespace

namespace RNX_WIDTH {

constinit const TransposeKernels transposeKernels = {.of1 = kForms<1>,
                                                     .of2 = kForms<2>,
                                                     .of3 = kForms<3>,
                                                     .of4 = kForms<4>,
                                                     .of6 = kForms<6>,
                                                     .of8 = kForms<8>,
                                                     .of12 = kForms<12>,
                                                     .of16 = kForms<16>,
                                                     .colors4 = kColors<4>,
                                                     .colors8 = kColors<8>,
                                                     .colors16 = kColors<16>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
