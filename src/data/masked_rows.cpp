// Row kernels of masked copies and fills: the mask bytes of a group of pixels are spread over the bytes of the pixels,
// and select between the new and the old bytes without a branch.
#include "data/masked_kernels.h"
#include "simd/shuffle.h"

namespace rnx::data {
namespace {

using namespace simd;

// For byte b of a group of pixels, the number of its pixel; 0x80 for channels that are not written.
template <class T, int Channels, int Used>
struct PixelNumbers {
  alignas(16) u8 at[Channels * kChunk];

  constexpr PixelNumbers() : at() {
    for (int b = 0; b < Channels * kChunk; ++b) {
      const int element = b / static_cast<int>(sizeof(T));
      at[b] = static_cast<u8>(element % Channels < Used ? element / Channels : 0x80);
    }
  }
};

template <class T, int Channels, int Used>
constexpr PixelNumbers<T, Channels, Used> kPixelNumbers;

template <class T, int Channels, bool Image>
class Masked {
public:
  static constexpr bool kOneChunk = false;
  static constexpr int kPixels = kChunk / static_cast<int>(sizeof(T));  // of a group
  static constexpr s64 kPixelBytes = s64{sizeof(T)} * Channels;

  explicit Masked(const MaskedCall& call) : call_(call), src_(call.src), dst_(call.dst), mask_(call.mask) {
    const bool alpha = call.used == Channels;
    const u8 *numbers = alpha ? kPixelNumbers<T, Channels, Channels>.at : kPixelNumbers < T, Channels,
             Channels == 4 ? 3 : Channels >.at;
    u8 values[Channels * kChunk] = {};
    if (!Image) {
      for (int p = 0; p < kPixels; ++p) {
        __builtin_memcpy(values + p * kPixelBytes, call.values, sizeof(T) * static_cast<size_t>(call.used));
      }
    }
    RNX_UNROLL
    for (int j = 0; j < Channels; ++j) {
      number_[j] = everyGroup(loadChunk(numbers + j * kChunk));
      value_[j] = everyGroup(loadChunk(values + j * kChunk));
    }
  }

  struct Result {
    Vec<u8> chunk[Channels];
  };

  template <bool Adjacent>
  RNX_INLINE Result compute(s64 x, s64 apart) const {
    const Vec<u8> mask = loadStarts<kPixels>(mask_ + x, apart);
    Result result;
    RNX_UNROLL
    for (int j = 0; j < Channels; ++j) {
      const s64 at = x * kPixelBytes + j * kChunk;
      const Vec<u8> now = Image ? loadChunks < Adjacent && Channels == 1 > (src_ + at, apart * kPixelBytes) : value_[j];
      const Vec<u8> old = loadChunks < Adjacent && Channels == 1 > (dst_ + at, apart * kPixelBytes);
      result.chunk[j] = select(equal(shuffle(mask, number_[j]), Vec<u8>::zero()), old, now);
    }
    return result;
  }

  template <bool Adjacent, bool>
  RNX_INLINE void store(s64 x, s64 apart, const Result& result) const {
    RNX_UNROLL
    for (int j = 0; j < Channels; ++j) {
      storeChunks<Adjacent && Channels == 1>(dst_ + x * kPixelBytes + j * kChunk, apart * kPixelBytes, result.chunk[j]);
    }
  }

  void nextRow() {
    if (Image) src_ = core::at(src_, call_.srcStep);
    dst_ = core::at(dst_, call_.dstStep);
    mask_ = core::at(mask_, call_.maskStep);
  }

  // Element by element where the mask says so; short rows, and images that overlap.
  __attribute__((noinline)) void inOrder(s64 n) const {
    for (s64 x = 0; x < n; ++x) {
      if (mask_[x] == 0) continue;
      T pixel[Channels];
      const size_t bytes = sizeof(T) * static_cast<size_t>(call_.used);
      __builtin_memcpy(pixel, Image ? src_ + x * kPixelBytes : call_.values, bytes);
      __builtin_memcpy(dst_ + x * kPixelBytes, pixel, bytes);
    }
  }

private:
  const MaskedCall& call_;
  const u8* src_;
  u8* dst_;
  const u8* mask_;
  Vec<u8> number_[Channels], value_[Channels];
};

template <class T, int Channels, bool Image>
void masked(const MaskedCall& call) {
  Masked<T, Channels, Image> rows(call);
  const bool inOrder = call.walk == core::Walk::kInOrder || call.width < rows.kPixels;
  for (s64 y = 0; y < call.height; ++y, rows.nextRow()) {
    if (inOrder) {
      rows.inOrder(call.width);
    } else {
      forEachGroup(call.width, rows.kPixels, rows);
    }
  }
}

template <class T, bool Image>
constexpr MaskedForms kForms = {masked<T, 1, Image>, masked<T, 3, Image>, masked<T, 4, Image>};

template <bool Image>
constexpr BySize<MaskedForms> kBySize = {kForms<u8, Image>, kForms<u16, Image>, kForms<u32, Image>};

}  // namespace

namespace RNX_WIDTH {

constinit const MaskedKernels maskedKernels = {.copy = kBySize<true>, .fill = kBySize<false>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
