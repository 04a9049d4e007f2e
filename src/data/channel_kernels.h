// Moves of channels between pixels of one to four channels and planes, as the operations see them: a route says where
// every channel of a destination pixel comes from, and the kernels turn it into byte shuffles. The kernels know the
// numbers of channels; the size of the elements is data.
#pragma once

#include "core/compiler.h"
#include "data/pixels.h"

namespace rnx::data {

// Where a destination channel comes from: a source channel, or one of these.
inline constexpr s8 kKeep = -128;  // the destination keeps its element
inline constexpr s8 kValue = -64;  // the constant of the call

struct Route {
  int srcChannels;  // 0: no source, only the constant
  bool srcPlanar;
  int dstChannels;
  bool dstPlanar;
  s8 from[4];
  bool channelPointer = false;  // the image of several channels is addressed by one of them, the route's channel 0
};

// A group is 16 bytes of every channel. For each byte of the destination's group: the position in the source's group
// it comes from, or kKeep or kValue. Planar groups are the chunks of the planes one after the other.
struct Positions {
  alignas(16) s8 at[64];
};

constexpr Positions positions(const Route& route, int elementBytes) {
  Positions result = {};
  const int groupPixels = 16 / elementBytes;
  for (int c = 0; c < route.dstChannels; ++c) {
    const int from = route.from[c];
    const int srcPitch = route.srcPlanar ? elementBytes : route.srcChannels * elementBytes;
    const int dstPitch = route.dstPlanar ? elementBytes : route.dstChannels * elementBytes;
    int src = from * (route.srcPlanar ? 16 : elementBytes);
    int dst = c * (route.dstPlanar ? 16 : elementBytes);
    for (int p = 0; p < groupPixels; ++p, src += srcPitch, dst += dstPitch) {
      for (int b = 0; b < elementBytes; ++b) result.at[dst + b] = static_cast<s8>(from < 0 ? from : src + b);
    }
  }
  return result;
}

// The same at run time, for the first Pixels of a destination in pixel order. All bytes of a pixel are formed at once;
// from pixel to pixel the positions grow by a source pixel.
template <int ElementBytes, int Channels, int Pixels>
RNX_INLINE void firstPositions(const Route& route, Positions& result) {
  constexpr u32 kOnes = ElementBytes == 4 ? 0x01010101 : ElementBytes == 2 ? 0x0101 : 1;
  constexpr u32 kAscending = ElementBytes == 4 ? 0x03020100 : ElementBytes == 2 ? 0x0100 : 0;
  constexpr int kElementBits = 8 * ElementBytes, kPixelBits = Channels * kElementBits;
  u64 words[7] = {};
  const auto put = [&](u64 value, int bits, int at) RNX_INLINE_LAMBDA {
    words[at / 64] |= value << at % 64;
    if (at % 64 + bits > 64) words[at / 64 + 1] |= value >> (64 - at % 64);
  };
  u64 pixel = 0, growth = 0;
  RNX_UNROLL
  for (int c = 0; c < Channels; ++c) {
    const int from = route.from[c];
    const u32 element =
        from < 0 ? kOnes * static_cast<u8>(from) : kOnes * static_cast<u8>(from * ElementBytes) + kAscending;
    const u32 step = from < 0 ? 0 : kOnes * static_cast<u8>(route.srcChannels * ElementBytes);
    if constexpr (kPixelBits > 64) {
      RNX_UNROLL
      for (u32 p = 0; p < Pixels; ++p)
        put(element + p * step, kElementBits, static_cast<int>(p) * kPixelBits + c * kElementBits);
    } else {
      pixel |= u64{element} << c * kElementBits;
      growth |= u64{step} << c * kElementBits;
    }
  }
  if constexpr (kPixelBits <= 64) {
    RNX_UNROLL
    for (int p = 0; p < Pixels; ++p, pixel += growth) put(pixel, kPixelBits, p * kPixelBits);
  }
  // One store a chunk, for kernels load it as a whole: a load that spans two stores waits for both.
  using Chunk = u64 __attribute__((vector_size(16)));
  RNX_UNROLL
  for (int i = 0; i < (Pixels * kPixelBits + 127) / 128; ++i) {
    const Chunk chunk = {words[2 * i], words[2 * i + 1]};
    __builtin_memcpy(result.at + 16 * i, &chunk, 16);
  }
}

struct ChannelCall {
  s64 width;  // pixels
  s64 height;
  core::Walk walk;
  int elementBytes;
  const Route* route;
  const Positions* positions;
  const u8* src[4];  // the image, or its planes; of the four, what the route has none of stays unset
  s64 srcStep;
  u8* dst[4];
  s64 dstStep;
  u8 value[16];  // the constant, repeated
};

using ChannelKernel = void (*)(const ChannelCall&);

// By the numbers of channels on both sides. `within` kernels read and write pixel order, so that a byte never moves
// far; kernels with Keep leave elements of the destination as they are.
struct ChannelKernels {
  ChannelKernel split3, split4, join3, join4;  // pixel order to planes and back
  ChannelKernel extract3, extract4;            // one channel of several
  ChannelKernel insert3Keep, insert4Keep;      // into one channel of several
  ChannelKernel spread3, spread4;              // one channel into all
  ChannelKernel within3, within4;              // as many channels on both sides
  ChannelKernel within3Keep, within4Keep;
  ChannelKernel widen, widenKeep;        // three to four
  ChannelKernel narrow;                  // four to three
  ChannelKernel value3Keep, value4Keep;  // the constant into some channels
};

namespace v128 {
extern const ChannelKernels channelKernels;
}
namespace v256 {
extern const ChannelKernels channelKernels;
}

}  // namespace rnx::data
