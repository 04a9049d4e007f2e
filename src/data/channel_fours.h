// Moves of channels where pixels of four channels are on one side or on both: their chunks hold whole pixels. For row
// kernels only.
#pragma once

#include "data/channel_kernels.h"
#include "simd/shuffle.h"

namespace rnx::data {
namespace {

using namespace simd;

RNX_INLINE Vec<u8> positionsOf(const ChannelCall& call, int chunk) {
  return everyGroup(loadChunk(reinterpret_cast<const u8*>(call.positions->at) + chunk * kChunk));
}

// As many channels on both sides, four, or the constant into some of them. Places in a row are counted in bytes.
template <bool HasSource, bool Keeps>
class WithinFour {
public:
  static constexpr bool kOneChunk = true;

  explicit WithinFour(const ChannelCall& call)
      : call_(call), src_(HasSource ? call.src[0] : nullptr), dst_(call.dst[0]) {
    const Vec<u8> at = positionsOf(call, 0);
    index_ = indexInto(0, at);
    keep_ = equal(at, Vec<u8>::splat(static_cast<u8>(kKeep)));
    value_ = everyGroup(loadChunk(call.value));
  }

  template <bool Adjacent>
  RNX_INLINE Vec<u8> compute(s64 x, s64 apart) const {
    const Vec<u8> v = HasSource ? shuffle(loadChunks<Adjacent>(src_ + x, apart), index_) : value_;
    return Keeps ? select(keep_, loadChunks<Adjacent>(dst_ + x, apart), v) : v;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, Vec<u8> v) const {
    storeChunks<Adjacent, Stream>(dst_ + x, apart, v);
  }

  void nextRow() {
    if (HasSource) src_ = core::at(src_, call_.srcStep);
    dst_ = core::at(dst_, call_.dstStep);
  }
  s64 streamHead() const {
    const s64 pixel = 4 * call_.elementBytes, pixels = pixelsToAlignment(dst_, pixel);
    return pixels < 0 ? pixels : pixels * pixel;
  }

private:
  const ChannelCall& call_;
  const u8* src_;
  u8* dst_;
  Vec<u8> index_, value_;
  Mask<u8> keep_;
};

// What the moves between two images in pixel order share.
class BetweenPixels {
public:
  explicit BetweenPixels(const ChannelCall& call)
      : src_(call.src[0]),
        dst_(call.dst[0]),
        srcStep_(call.srcStep),
        dstStep_(call.dstStep),
        srcPixel_(call.elementBytes * call.route->srcChannels),
        dstPixel_(call.elementBytes * call.route->dstChannels) {}

  void nextRow() {
    src_ = core::at(src_, srcStep_);
    dst_ = core::at(dst_, dstStep_);
  }
  s64 streamHead() const { return pixelsToAlignment(dst_, dstPixel_); }

protected:
  // Result register j of C: chunk j of both groups, or with Adjacent a whole register in the order of memory.
  template <int C, bool Adjacent>
  RNX_INLINE Vec<u8> old(s64 x, s64 apart, int j) const {
    return loadChunks<Adjacent>(dst_ + x * dstPixel_ + j * (Adjacent ? kBytes : kChunk), apart * dstPixel_);
  }
  template <int C, bool Adjacent, bool Stream>
  RNX_INLINE void storeAll(s64 x, s64 apart, const Vec<u8>* chunk) const {
    RNX_UNROLL
    for (int j = 0; j < C; ++j) {
      storeChunks<Adjacent, Stream>(dst_ + x * dstPixel_ + j * (Adjacent ? kBytes : kChunk), apart * dstPixel_,
                                    chunk[j]);
    }
  }

  const u8* src_;
  u8* dst_;
  s64 srcStep_, dstStep_, srcPixel_, dstPixel_;
};

// Four channels to three: every chunk gives 12 bytes.
class Narrow : public BetweenPixels {
public:
  static constexpr bool kOneChunk = false;

  explicit Narrow(const ChannelCall& call) : BetweenPixels(call) {
    const __m128i twelve = loadChunk(reinterpret_cast<const u8*>(call.positions->at));
    index_[0] = everyGroup(twelve);
    index_[1] = everyGroup(turnChunk<12>(twelve));
    index_[2] = everyGroup(turnChunk<24>(twelve));
    index_[3] = everyGroup(turnChunk<36>(twelve));
  }

  struct Result {
    Vec<u8> chunk[3];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    const u8* src = src_ + x * srcPixel_;
    Vec<u8> v[4];
    Result result;
#if RNX_VECTOR_BYTES == 32
    if constexpr (Adjacent) {
      RNX_UNROLL
      for (int i = 0; i < 4; ++i) v[i] = shuffle(Vec<u8>::load(src + i * kBytes), index_[0]);
      joinTwelvesInMemory(v, result.chunk);
      return result;
    }
#endif
    RNX_UNROLL
    for (int i = 0; i < 4; ++i) v[i] = shuffle(loadChunks(src + i * kChunk, apart * srcPixel_), index_[i]);
    joinTwelves(v, result.chunk);
    return result;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    storeAll<3, Adjacent, Stream>(x, apart, result.chunk);
  }

private:
  Vec<u8> index_[4];
};

// Three channels to four: every chunk comes from 12 bytes, the last one of a group from the end of the 16 bytes before
// the group's end, for nothing behind it may be read.
template <bool Keeps>
class Widen : public BetweenPixels {
public:
  static constexpr bool kOneChunk = false;

  explicit Widen(const ChannelCall& call) : BetweenPixels(call) {
    const Vec<u8> at = positionsOf(call, 0);
    index_ = indexInto(0, at);
    last_ = Vec<u8>::of(RNX_MM(adds_epu8)(index_.bits(), Vec<u8>::splat(4).bits()));
    keep_ = equal(at, Vec<u8>::splat(static_cast<u8>(kKeep)));
    value_ = equal(at, Vec<u8>::splat(static_cast<u8>(kValue))).template as<u8>() & everyGroup(loadChunk(call.value));
  }

  struct Result {
    Vec<u8> chunk[4];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    const u8* src = src_ + x * srcPixel_;
    Result result;
    RNX_UNROLL
    for (int j = 0; j < 4; ++j) {
      Vec<u8> v;
      if constexpr (Adjacent) {
        const u8* twelves = src + j * 12 * kGroups;
        v = shuffle(j == 3 ? loadTwelves<true>(twelves) : loadTwelves<false>(twelves), index_);
      } else {
        v = shuffle(loadChunks(src + j * 12 - (j == 3 ? 4 : 0), apart * srcPixel_), j == 3 ? last_ : index_);
      }
      v = v | value_;
      result.chunk[j] = Keeps ? select(keep_, old<4, Adjacent>(x, apart, j), v) : v;
    }
    return result;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    storeAll<4, Adjacent, Stream>(x, apart, result.chunk);
  }

private:
  Vec<u8> index_, last_, value_;
  Mask<u8> keep_;
};

// One of four channels: chunk i gives word i. Behind a channel pointer the groups of a row but the first are read from
// where their first pixel begins, if pixels lie at multiples of their size: such loads divide no cache line.
class ExtractOfFour : public BetweenPixels {
public:
  static constexpr bool kOneChunk = false;

  explicit ExtractOfFour(const ChannelCall& call) : BetweenPixels(call), early_(bytesInFront(call)) {
    const Vec<u8> at = positionsOf(call, 0) + Vec<u8>::splat(static_cast<u8>(early_));
    RNX_UNROLL
    for (int i = 0; i < 4; ++i) index_[i] = indexInto(i, at);
    alignas(kChunk) static constexpr u8 kPlaces[kChunk] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    behind_ = everyGroup(loadChunk(kPlaces)) - Vec<u8>::splat(static_cast<u8>(early_));  // below 0: no byte
  }

  template <bool Adjacent>
  RNX_INLINE Vec<u8> compute(s64 x, s64 apart) const {
    if (x == 0) {  // nothing in front of the row may be read: the bytes are moved
      return extract<Adjacent>(src_, apart, [&](Vec<u8> v) RNX_INLINE_LAMBDA { return shuffle(v, behind_); });
    }
    return extract<Adjacent>(src_ + x * srcPixel_ - early_, apart, [](Vec<u8> v) RNX_INLINE_LAMBDA { return v; });
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, Vec<u8> v) const {
    storeAll<1, Adjacent, Stream>(x, apart, &v);
  }

private:
  static s64 bytesInFront(const ChannelCall& call) {
    const s64 pixel = call.elementBytes * s64{4}, bytes = reinterpret_cast<intptr_t>(call.src[0]) & (pixel - 1);
    return (call.srcStep & (pixel - 1)) == 0 && (bytes & (call.elementBytes - 1)) == 0 ? bytes : 0;
  }

  template <bool Adjacent, class Placed>
  RNX_INLINE Vec<u8> extract(const u8* src, s64 apart, Placed placed) const {
    Vec<u8> v = Vec<u8>::zero();
    RNX_UNROLL
    for (int i = 0; i < 4; ++i) {
      const Vec<u8> in = Adjacent ? Vec<u8>::load(src + i * kBytes) : loadChunks(src + i * kChunk, apart * srcPixel_);
      const Vec<u8> part = shuffle(placed(in), index_[i]);
      v = i == 0 ? part : v | part;
    }
    return Adjacent ? wordsToMemory(v) : v;
  }

  s64 early_;
  Vec<u8> index_[4], behind_;
};

// One channel into one or all of three or four.
template <int C, bool Keeps>
class Spread : public BetweenPixels {
public:
  static constexpr bool kOneChunk = false;

  explicit Spread(const ChannelCall& call) : BetweenPixels(call) {
    RNX_UNROLL
    for (int j = 0; j < C; ++j) {
      index_[j] = indexInto(0, positionsOf(call, j));
      keep_[j] = equal(positionsOf(call, j), Vec<u8>::splat(static_cast<u8>(kKeep))).template as<u8>();
    }
    RNX_UNROLL
    for (int j = 0; j < C; ++j) {
      indexInMemory_[j] = C == 3 ? registerOfThree(index_, j) : index_[j];
      keepInMemory_[j] = C == 3 ? registerOfThree(keep_, j) : keep_[j];
    }
  }

  struct Result {
    Vec<u8> chunk[C];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    const u8* src = src_ + x * srcPixel_;
    Vec<u8> in;
    if (C == 4 || !Adjacent) in = Adjacent ? wordsFromMemory(Vec<u8>::load(src)) : loadChunks(src, apart * srcPixel_);
    Result result;
    RNX_UNROLL
    for (int j = 0; j < C; ++j) {
      if (C == 3 && Adjacent) in = chunkForThree(src, j);
      const Vec<u8> v = shuffle(in, (Adjacent ? indexInMemory_ : index_)[j]);
      const Vec<u8> keep = (Adjacent ? keepInMemory_ : keep_)[j];
      result.chunk[j] = Keeps ? select(keep.template as<s8>(), old<C, Adjacent>(x, apart, j), v) : v;
    }
    return result;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    storeAll<C, Adjacent, Stream>(x, apart, result.chunk);
  }

private:
  Vec<u8> index_[C], keep_[C], indexInMemory_[C], keepInMemory_[C];
};

// Four channels between pixels and planes: the squares of 4-byte words in four chunks are transposed, and the elements
// of a channel are brought together in the words before, or taken apart after that.
// Pixels beyond the second cache are fetched ahead: beside four planes that are written the processor is late to do so.
template <bool ToPlanes, bool Fetches = false>
class FourPlanes {
public:
  static constexpr bool kOneChunk = false;

  explicit FourPlanes(const ChannelCall& call) : call_(call), elementBytes_(call.elementBytes) {
    u8 index[kChunk];
    for (int b = 0; b < kChunk; ++b) {
      const int at = call.positions->at[ToPlanes ? b / 4 * kChunk + b % 4 : b];
      index[b] = static_cast<u8>(ToPlanes ? at : at / kChunk * 4 + at % kChunk);
    }
    index_ = everyGroup(loadChunk(index));
    for (int k = 0; k < 4; ++k) {
      planes_[k] = ToPlanes ? call.dst[k] : call.src[k];
    }
    pixels_ = ToPlanes ? call.src[0] : call.dst[0];
  }

  struct Result {
    Vec<u8> chunk[4];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Result r;
    RNX_UNROLL
    for (int k = 0; k < 4; ++k) {
      if constexpr (ToPlanes) {
        const u8* pixels = pixels_ + x * 4 * elementBytes_;
        if (Fetches && k % 2 == 0) __builtin_prefetch(core::at(pixels, kAhead + k * kBytes));
        r.chunk[k] = shuffle(
            Adjacent ? Vec<u8>::load(pixels + k * kBytes) : loadChunks(pixels + k * kChunk, apart * 4 * elementBytes_),
            index_);
      } else {
        r.chunk[k] = loadChunks<Adjacent>(planes_[k] + x * elementBytes_, apart * elementBytes_);
      }
    }
    transposeChunks<4>(r.chunk);
    RNX_UNROLL
    for (int k = 0; k < 4; ++k) {
      if constexpr (!ToPlanes) {
        r.chunk[k] = shuffle(r.chunk[k], index_);
      } else if constexpr (Adjacent) {
        r.chunk[k] = wordsToMemory(r.chunk[k]);
      }
    }
    return r;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& r) const {
    if constexpr (Adjacent && !ToPlanes) {
      return storeGroups<4, Stream>(const_cast<u8*>(pixels_) + x * 4 * elementBytes_, r.chunk);
    }
    RNX_UNROLL
    for (int k = 0; k < 4; ++k) {
      if constexpr (ToPlanes) {
        storeChunks<Adjacent, Stream>(const_cast<u8*>(planes_[k]) + x * elementBytes_, apart * elementBytes_,
                                      r.chunk[k]);
      } else {
        storeChunks<false, Stream>(const_cast<u8*>(pixels_) + x * 4 * elementBytes_ + k * kChunk,
                                   apart * 4 * elementBytes_, r.chunk[k]);
      }
    }
  }

  void nextRow() {
    for (const u8*& plane : planes_) plane = core::at(plane, ToPlanes ? call_.dstStep : call_.srcStep);
    pixels_ = core::at(pixels_, ToPlanes ? call_.srcStep : call_.dstStep);
  }
  s64 streamHead() const {
    // Lines of four planes that fill by 16 bytes leave the processor before they are full: 2 to 3 times slower.
    if (ToPlanes && kBytes == 16) return -1;
    if (!ToPlanes) return pixelsToAlignment(pixels_, 4 * elementBytes_);
    return sameAlignment(planes_, 4) ? pixelsToAlignment(planes_[0], elementBytes_) : -1;
  }

private:
  static constexpr int kAhead = 512;  // bytes

  Vec<u8> index_;
  const ChannelCall& call_;
  s64 elementBytes_;
  const u8* planes_[4];  // the side that is written was writable
  const u8* pixels_;
};

}  // namespace
}  // namespace rnx::data
