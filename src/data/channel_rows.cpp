// Row kernels of the channel moves. A group of pixels is loaded as chunks of 16 bytes; every chunk of the result is put
// together from shuffles of the chunks that reach into it.
#include "data/channel_fours.h"

namespace rnx::data {
namespace {

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

// kChunk / elementBytes without a division.
int elementsOfChunk(const ChannelCall& call) { return kChunk >> (call.elementBytes >> 1); }

template <int In, int Out, Order O, bool Keeps>
class Mover {
public:
  static constexpr bool kOneChunk = false;

  explicit Mover(const ChannelCall& call) : call_(call) {
    const auto value = everyGroup(loadChunk(call.value));
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) {
      const auto at = positionsOf(call, j);
      RNX_UNROLL
      for (int i = 0; i < In; ++i) index_[j][i] = indexInto(i, at);
      keep_[j] = equal(at, Vec<u8>::splat(static_cast<u8>(kKeep)));
      value_[j] = equal(at, Vec<u8>::splat(static_cast<u8>(kValue))).template as<u8>() & value;
    }
    for (int i = 0; i < kSources; ++i) src_[i] = call.src[i];
    for (int j = 0; j < kResults; ++j) dst_[j] = call.dst[j];
    srcPixel_ = call.elementBytes * (O == Order::kFromPlanes ? 1 : call.route->srcChannels);
    dstPixel_ = call.elementBytes * (O == Order::kToPlanes ? 1 : call.route->dstChannels);
  }

  struct Result {
    Vec<u8> chunk[Out];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    Vec<u8> in[In + 1];
    RNX_UNROLL
    for (int i = 0; i < In; ++i) {
      const u8* src = kSources > 1 ? src_[i] : src_[0] + i * kChunk;
      in[i] = loadChunks < Adjacent && kTightSource > (src + x * srcPixel_, apart * srcPixel_);
    }
    Result result;
    RNX_UNROLL
    for (int j = 0; j < Out; ++j) {
      Vec<u8> v = value_[j];
      bool first = In > 0 && !Keeps;
      RNX_UNROLL
      for (int i = 0; i < In; ++i) {
        if (O == Order::kPixels && !kReach<In, Out>.any[j][i]) continue;
        const Vec<u8> part = shuffle(in[i], index_[j][i]);
        v = first ? part : v | part;
        first = false;
      }
      if (Keeps) v = select(keep_[j], loadChunks < Adjacent && kTightResult > (dst(x, j), apart * dstPixel_), v);
      result.chunk[j] = v;
    }
    return result;
  }

  template <bool Adjacent, bool Stream>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    if constexpr (Adjacent && Out == 3 && O != Order::kToPlanes) return storeGroups<3, Stream>(dst(x, 0), result.chunk);
    RNX_UNROLL
    for (int j = 0; j < Out; ++j)
      storeChunks<Adjacent && kTightResult, Stream>(dst(x, j), apart * dstPixel_, result.chunk[j]);
  }

  void nextRow() {
    for (const u8*& src : src_) src = core::at(src, call_.srcStep);
    for (u8*& dst : dst_) dst = core::at(dst, call_.dstStep);
  }

  s64 streamHead() const { return sameAlignment(dst_, kResults) ? pixelsToAlignment(dst_[0], dstPixel_) : -1; }

private:
  static constexpr int kSources = O == Order::kFromPlanes ? In : 1, kResults = O == Order::kToPlanes ? Out : 1;
  // Chunks of consecutive groups follow each other.
  static constexpr bool kTightSource = In == 1 || O == Order::kFromPlanes;
  static constexpr bool kTightResult = Out == 1 || O == Order::kToPlanes;

  RNX_INLINE u8* dst(s64 x, int j) const { return (kResults > 1 ? dst_[j] : dst_[0] + j * kChunk) + x * dstPixel_; }

  Vec<u8> index_[Out][In + 1];
  Mask<u8> keep_[Out];
  Vec<u8> value_[Out];
  const ChannelCall& call_;
  const u8* src_[kSources];
  u8* dst_[kResults];
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

// The last pixel of a row behind a channel pointer: one element.
void moveLastElement(const ChannelCall& call, s64 y) {
  const s64 last = (call.width - 1) * call.elementBytes;
  const u8* src =
      call.route->from[0] < 0 ? call.value : core::at(call.src[0], y * call.srcStep + last * call.route->srcChannels);
  u8* dst = core::at(call.dst[0], y * call.dstStep + last * call.route->dstChannels);
  if (call.elementBytes == 1) {
    *dst = *src;
  } else if (call.elementBytes == 2) {
    __builtin_memcpy(dst, src, 2);
  } else {
    __builtin_memcpy(dst, src, 4);
  }
}

// Places in a row are counted in pixels, or in units of which a pixel has some.
template <class Rows>
RNX_INLINE void moveRows(const ChannelCall& call, int group, s64 unitsOfPixel = 1) {
  // Behind a channel pointer the last pixel of a row ends with the channel: it is moved alone.
  const s64 whole = (call.route->channelPointer ? call.width - 1 : call.width) * unitsOfPixel;
  if (call.walk == core::Walk::kInOrder || whole < group) {
    for (s64 y = 0; y < call.height; ++y) movePixels(call, y, 0, call.width);
    return;
  }
  Rows rows(call);
  const bool stream = call.walk == core::Walk::kStream && whole >= 4 * kGroups * s64{group};
  for (s64 y = 0; y < call.height; ++y, rows.nextRow()) {
    const s64 head = stream ? rows.streamHead() : -1;
    if (head >= 0) {
      forEachGroupStreamed(whole, group, head, rows);
    } else {
      forEachGroup(whole, group, rows);
    }
    if (call.route->channelPointer) moveLastElement(call, y);
  }
  if (stream) endStream();
}

// Rows of chunks of every channel.
template <class Rows>
void move(const ChannelCall& call) {
  moveRows<Rows>(call, elementsOfChunk(call));
}

void splitFour(const ChannelCall& call) {
  constexpr s64 kSecondCache = 0x100000;
  const bool far = kBytes == 32 && 8 * call.width * call.height * call.elementBytes > kSecondCache;
  far ? move<FourPlanes<true, true>>(call) : move<FourPlanes<true>>(call);
}

// Rows of chunks of whole pixels of four channels.
template <bool HasSource, bool Keeps>
void moveFours(const ChannelCall& call) {
  moveRows<WithinFour<HasSource, Keeps>>(call, kChunk, 4 * call.elementBytes);
}

}  // namespace

namespace RNX_WIDTH {

constinit const ChannelKernels channelKernels = {
    .split3 = move<Mover<3, 3, Order::kToPlanes, false>>,
    .split4 = splitFour,
    .join3 = move<Mover<3, 3, Order::kFromPlanes, false>>,
    .join4 = move<FourPlanes<false>>,
    .extract3 = move<Mover<3, 1, Order::kPixels, false>>,
    .extract4 = move<ExtractOfFour>,
    .insert3Keep = move<Spread<3, true>>,
    .insert4Keep = move<Spread<4, true>>,
    .spread3 = move<Spread<3, false>>,
    .spread4 = move<Spread<4, false>>,
    .within3 = move<Mover<3, 3, Order::kPixels, false>>,
    .within4 = moveFours<true, false>,
    .within3Keep = move<Mover<3, 3, Order::kPixels, true>>,
    .within4Keep = moveFours<true, true>,
    .widen = move<Widen<false>>,
    .widenKeep = move<Widen<true>>,
    .narrow = move<Narrow>,
    .value3Keep = move<Mover<0, 3, Order::kPixels, true>>,
    .value4Keep = moveFours<false, true>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
