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

enum class Order { kPixels, kPlanes };  // kPlanes: on either side

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

  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Vec<u8> in[In + 1];
    RNX_UNROLL
    for (int i = 0; i < In; ++i) in[i] = loadChunks(src_[i] + x * srcPixel_, apart * srcPixel_);
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
      if (Keeps) v = select(keep_[j], loadChunks(dst_[j] + x * dstPixel_, apart * dstPixel_), v);
      result.chunk[j] = v;
    }
    return result;
  }

  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) storeChunks(dst_[j] + x * dstPixel_, apart * dstPixel_, result.chunk[j]);
  }

  void nextRow() {
    for (int i = 0; i < In; ++i) src_[i] = core::at(src_[i], call_.srcStep);
    for (int j = 0; j < Out; ++j) dst_[j] = core::at(dst_[j], call_.dstStep);
  }

private:
  static constexpr bool kHasValue = In == 0 || (In == 3 && Out == 4);

  const ChannelCall& call_;
  Vec<u8> index_[Out][In + 1];
  Mask<u8> keep_[Out];
  Vec<u8> value_[Out];
  const u8* src_[In + 1];
  u8* dst_[Out];
  s64 srcPixel_, dstPixel_;
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

template <int In, int Out, Order O, bool Keeps>
void move(const ChannelCall& call) {
  const int group = kChunk / call.elementBytes;
  // Behind a channel pointer the last pixel of a row ends with the channel: it is moved alone.
  const s64 whole = call.route->channelPointer ? call.width - 1 : call.width;
  if (call.walk == core::Walk::kInOrder || whole < group) {
    for (s64 y = 0; y < call.height; ++y) movePixels(call, y, 0, call.width);
    return;
  }
  Mover<In, Out, O, Keeps> mover(call);
  for (s64 y = 0; y < call.height; ++y, mover.nextRow()) {
    forEachGroup(whole, group, mover);
    if (whole < call.width) movePixels(call, y, whole, call.width);
  }
}

}  // namespace

namespace RNX_WIDTH {

constinit const ChannelKernels channelKernels = {
    .split3 = move<3, 3, Order::kPlanes, false>,
    .split4 = move<4, 4, Order::kPlanes, false>,
    .join3 = move<3, 3, Order::kPlanes, false>,
    .join4 = move<4, 4, Order::kPlanes, false>,
    .extract3 = move<3, 1, Order::kPixels, false>,
    .extract4 = move<4, 1, Order::kPixels, false>,
    .insert3Keep = move<1, 3, Order::kPixels, true>,
    .insert4Keep = move<1, 4, Order::kPixels, true>,
    .spread3 = move<1, 3, Order::kPixels, false>,
    .spread4 = move<1, 4, Order::kPixels, false>,
    .within3 = move<3, 3, Order::kPixels, false>,
    .within4 = move<4, 4, Order::kPixels, false>,
    .within3Keep = move<3, 3, Order::kPixels, true>,
    .within4Keep = move<4, 4, Order::kPixels, true>,
    .widen = move<3, 4, Order::kPixels, false>,
    .widenKeep = move<3, 4, Order::kPixels, true>,
    .narrow = move<4, 3, Order::kPixels, false>,
    .value3Keep = move<0, 3, Order::kPixels, true>,
    .value4Keep = move<0, 4, Order::kPixels, true>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
