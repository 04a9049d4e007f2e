// Row kernels of the channel moves. A group of pixels is loaded as chunks of 16 bytes; every chunk of the result is put
// together from shuffles of the chunks that reach into it.
#include "data/channel_kernels.h"
#include "simd/shuffle.h"

namespace rnx::data {
namespace {

using namespace simd;

// Whether bytes of source chunk i can come to destination chunk j, for any element size, when both sides are in pixel
// order: whether there is a pixel with bytes in both.
constexpr bool reaches(int in, int out, int i, int j) {
  for (int bytes = 1; bytes <= 4; bytes *= 2) {
    for (int p = 0; p < 16 / bytes; ++p) {
      const int src = p * in * bytes, dst = p * out * bytes;
      const bool inSource = src < 16 * (i + 1) && src + in * bytes > 16 * i;
      const bool inResult = dst < 16 * (j + 1) && dst + out * bytes > 16 * j;
      if (inSource && inResult) return true;
    }
  }
  return false;
}

// The same for every pair of chunks.
template <int In, int Out>
struct Reach {
  bool any[Out][In + 1] = {};
  constexpr Reach() {
    for (int j = 0; j < Out; ++j) {
      for (int i = 0; i < In; ++i) any[j][i] = reaches(In, Out, i, j);
    }
  }
};
template <int In, int Out>
constexpr Reach<In, Out> kReach;

// How the sides lie in memory. Pixels on both sides keep a byte near its place.
enum class Order { kPixels, kToPlanes, kFromPlanes };

// Pixels of four channels on both sides are whole in every chunk: a group is one chunk of them.
template <int In, int Out>
int groupPixels(const ChannelCall& call) {
  const bool fours = In <= 1 && Out == 1 && call.route->dstChannels == 4;
  return kChunk / call.elementBytes / (fours ? 4 : 1);
}

template <int In, int Out, Order O, bool Keeps>
class Mover {
public:
  explicit Mover(const ChannelCall& call) : call_(call) {
    const auto value = everyGroup(loadChunk(call.value));
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) {
      const auto at = everyGroup(loadChunk(reinterpret_cast<const u8*>(call.positions->at) + j * kChunk));
      RNX_UNROLL
      for (int i = 0; i < In; ++i) index_[j][i] = indexInto(i, at);
      keep_[j] = equal(at, Vec<u8>::splat(static_cast<u8>(kKeep)));
      value_[j] = equal(at, Vec<u8>::splat(static_cast<u8>(kValue))).template as<u8>() & value;
    }
    RNX_UNROLL
    for (int i = 0; i < In; ++i) src_[i] = call.route->srcPlanar ? call.src[i] : call.src[0] + i * kChunk;
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) dst_[j] = call.route->dstPlanar ? call.dst[j] : call.dst[0] + j * kChunk;
    srcPixel_ = call.elementBytes * (call.route->srcPlanar ? 1 : call.route->srcChannels);
    dstPixel_ = call.elementBytes * (call.route->dstPlanar ? 1 : call.route->dstChannels);
  }

  struct Result {
    Vec<u8> chunk[Out];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Vec<u8> in[In + 1];
    RNX_UNROLL
    for (int i = 0; i < In; ++i)
      in[i] = loadChunks < Adjacent && kTightSource > (src_[i] + x * srcPixel_, apart * srcPixel_);
    Result result;
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) {
      Vec<u8> v = value_[j];
      bool first = In > 0 && !Keeps && !kHasValue;
      RNX_UNROLL
      for (int i = 0; i < In; ++i) {
        if (O == Order::kPixels && !kReach<In, Out>.any[j][i]) continue;
        const Vec<u8> part = shuffle(in[i], index_[j][i]);
        v = first ? part : v | part;
        first = false;
      }
      if (Keeps)
        v = select(keep_[j], loadChunks < Adjacent && kTightResult > (dst_[j] + x * dstPixel_, apart * dstPixel_), v);
      result.chunk[j] = v;
    }
    return result;
  }

  template <bool Adjacent>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    RNX_UNROLL
    for (int j = 0; j < Out; ++j)
      storeChunks<Adjacent && kTightResult>(dst_[j] + x * dstPixel_, apart * dstPixel_, result.chunk[j]);
  }

  void nextRow() {
    for (int i = 0; i < In; ++i) src_[i] = core::at(src_[i], call_.srcStep);
    for (int j = 0; j < Out; ++j) dst_[j] = core::at(dst_[j], call_.dstStep);
  }

private:
  // Chunks of consecutive groups follow each other.
  static constexpr bool kTightSource = In == 1 || O == Order::kFromPlanes;
  static constexpr bool kTightResult = Out == 1 || O == Order::kToPlanes;
  static constexpr bool kHasValue = In == 0 || (In == 3 && Out == 4);

  const ChannelCall& call_;
  Vec<u8> index_[Out][In + 1];
  Mask<u8> keep_[Out];
  Vec<u8> value_[Out];
  const u8* src_[In + 1];
  u8* dst_[Out];
  s64 srcPixel_, dstPixel_;
};

// Four channels between pixels and planes: the squares of 4-byte words in four chunks are transposed, and the elements
// of a channel are brought together in the words before, or taken apart after that.
template <Order O>
class FourPlanes {
public:
  explicit FourPlanes(const ChannelCall& call) : call_(call), elementBytes_(call.elementBytes) {
    u8 index[kChunk];
    for (int b = 0; b < kChunk; ++b) {
      const int at = call.positions->at[kToPlanes ? b / 4 * kChunk + b % 4 : b];
      index[b] = static_cast<u8>(kToPlanes ? at : at / kChunk * 4 + at % kChunk);
    }
    index_ = everyGroup(loadChunk(index));
    for (int k = 0; k < 4; ++k) {
      planes_[k] = kToPlanes ? call.dst[k] : call.src[k];
    }
    pixels_ = kToPlanes ? call.src[0] : call.dst[0];
  }

  struct Result {
    Vec<u8> chunk[4];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Result r;
    RNX_UNROLL
    for (int k = 0; k < 4; ++k) {
      if constexpr (kToPlanes) {
        r.chunk[k] =
            shuffle(loadChunks(pixels_ + x * 4 * elementBytes_ + k * kChunk, apart * 4 * elementBytes_), index_);
      } else {
        r.chunk[k] = loadChunks<Adjacent>(planes_[k] + x * elementBytes_, apart * elementBytes_);
      }
    }
    transposeChunks<4>(r.chunk);
    if constexpr (!kToPlanes) {
      RNX_UNROLL
      for (int k = 0; k < 4; ++k) r.chunk[k] = shuffle(r.chunk[k], index_);
    }
    return r;
  }

  template <bool Adjacent>
  RNX_INLINE void store(s64 x, s64 apart, const Result& r) const {
    RNX_UNROLL
    for (int k = 0; k < 4; ++k) {
      if constexpr (kToPlanes) {
        storeChunks<Adjacent>(const_cast<u8*>(planes_[k]) + x * elementBytes_, apart * elementBytes_, r.chunk[k]);
      } else {
        storeChunks(const_cast<u8*>(pixels_) + x * 4 * elementBytes_ + k * kChunk, apart * 4 * elementBytes_,
                    r.chunk[k]);
      }
    }
  }

  void nextRow() {
    for (const u8*& plane : planes_) plane = core::at(plane, kToPlanes ? call_.dstStep : call_.srcStep);
    pixels_ = core::at(pixels_, kToPlanes ? call_.srcStep : call_.dstStep);
  }

private:
  static constexpr bool kToPlanes = O == Order::kToPlanes;

  const ChannelCall& call_;
  s64 elementBytes_;
  Vec<u8> index_;
  const u8* planes_[4];  // the side that is written was writable
  const u8* pixels_;
};

// Pixel by pixel, for rows shorter than a group and for images that overlap: a pixel is read, then written.
template <class T>
class PixelLoop {
public:
  explicit PixelLoop(const ChannelCall& call) : route_(*call.route) {
    for (int c = 0; c < 4; ++c) {
      const int from = route_.from[c];
      src_[c] = from < 0 ? nullptr : route_.srcPlanar ? call.src[from] : call.src[0] + from * s64{sizeof(T)};
      dst_[c] = c >= route_.dstChannels ? nullptr : route_.dstPlanar ? call.dst[c] : call.dst[0] + c * s64{sizeof(T)};
    }
    __builtin_memcpy(&value_, call.value, sizeof(T));
  }

  void row(s64 y, s64 first, s64 end, const ChannelCall& call) const {
    const s64 srcPixel = s64{sizeof(T)} * (route_.srcPlanar ? 1 : route_.srcChannels);
    const s64 dstPixel = s64{sizeof(T)} * (route_.dstPlanar ? 1 : route_.dstChannels);
    for (s64 x = first; x < end; ++x) {
      T pixel[4];
      for (int c = 0; c < route_.dstChannels; ++c) {
        if (route_.from[c] >= 0) {
          __builtin_memcpy(&pixel[c], core::at(src_[c], y * call.srcStep + x * srcPixel), sizeof(T));
        } else {
          pixel[c] = value_;
        }
      }
      for (int c = 0; c < route_.dstChannels; ++c) {
        if (route_.from[c] == kKeep) continue;
        __builtin_memcpy(core::at(dst_[c], y * call.dstStep + x * dstPixel), &pixel[c], sizeof(T));
      }
    }
  }

private:
  const Route& route_;
  const u8* src_[4];
  u8* dst_[4];
  T value_;
};

template <class T>
__attribute__((noinline)) void movePixels(const ChannelCall& call, s64 y, s64 first, s64 end) {
  const PixelLoop<T> loop(call);
  loop.row(y, first, end, call);
}

void movePixels(const ChannelCall& call, s64 y, s64 first, s64 end) {
  if (call.elementBytes == 1) return movePixels<u8>(call, y, first, end);
  if (call.elementBytes == 2) return movePixels<u16>(call, y, first, end);
  return movePixels<u32>(call, y, first, end);
}

template <class Rows>
RNX_INLINE void moveRows(const ChannelCall& call, int group) {
  // Behind a channel pointer the last pixel of a row ends with the channel: it is moved alone.
  const s64 whole = call.route->channelPointer ? call.width - 1 : call.width;
  if (call.walk == core::Walk::kInOrder || whole < group) {
    for (s64 y = 0; y < call.height; ++y) movePixels(call, y, 0, call.width);
    return;
  }
  Rows rows(call);
  for (s64 y = 0; y < call.height; ++y, rows.nextRow()) {
    forEachGroup(whole, group, rows);
    if (whole < call.width) movePixels(call, y, whole, call.width);
  }
}

template <int In, int Out, Order O, bool Keeps>
void move(const ChannelCall& call) {
  moveRows<Mover<In, Out, O, Keeps>>(call, groupPixels<In, Out>(call));
}

template <Order O>
void moveFour(const ChannelCall& call) {
  moveRows<FourPlanes<O>>(call, kChunk / call.elementBytes);
}

}  // namespace

namespace RNX_WIDTH {

constinit const ChannelKernels channelKernels = {
    .split3 = move<3, 3, Order::kToPlanes, false>,
    .split4 = moveFour<Order::kToPlanes>,
    .join3 = move<3, 3, Order::kFromPlanes, false>,
    .join4 = moveFour<Order::kFromPlanes>,
    .extract3 = move<3, 1, Order::kPixels, false>,
    .extract4 = move<4, 1, Order::kPixels, false>,
    .insert3Keep = move<1, 3, Order::kPixels, true>,
    .insert4Keep = move<1, 4, Order::kPixels, true>,
    .spread3 = move<1, 3, Order::kPixels, false>,
    .spread4 = move<1, 4, Order::kPixels, false>,
    .within3 = move<3, 3, Order::kPixels, false>,
    .within4 = move<1, 1, Order::kPixels, false>,
    .within3Keep = move<3, 3, Order::kPixels, true>,
    .within4Keep = move<1, 1, Order::kPixels, true>,
    .widen = move<3, 4, Order::kPixels, false>,
    .widenKeep = move<3, 4, Order::kPixels, true>,
    .narrow = move<4, 3, Order::kPixels, false>,
    .value3Keep = move<0, 3, Order::kPixels, true>,
    .value4Keep = move<0, 1, Order::kPixels, true>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
