// Row kernels of the conversions between gray and one-bit images: 32 pixels, a word of bits, at a time.
#include "data/bits_kernels.h"
#include "simd/bits.h"

namespace rnx::data {
namespace {

using namespace simd;

constexpr int kWord = 32;

template <class T>
class ToBits {
public:
  explicit ToBits(T threshold) : threshold_(Vec<T>::splat(threshold)) {}

  // Of n pixels, n at most a word.
  RNX_INLINE u32 word(const T* src, int n) const {
    u32 bits = 0;
    int i = 0;
    for (; i + kLanes <= n; i += kLanes) bits |= above(Vec<T>::load(src + i)) << i;
    if (i < n) bits |= joinHalves(above(loadPart(src + i, n - i)), n - i) << i;
    return bits;
  }

  // The bits before the row's first one go through the accumulator like those of pixels.
  void row(const T* src, u8* dst, s64 n, int offset) const {
    u64 bits = *dst & ((1u << offset) - 1);
    for (; n >= kWord; n -= kWord, src += kWord, dst += kWord / 8) {
      bits |= static_cast<u64>(word(src, kWord)) << offset;
      __builtin_memcpy(dst, &bits, kWord / 8);
      bits >>= kWord;
    }
    int count = offset + static_cast<int>(n);
    if (n > 0) bits |= static_cast<u64>(word(src, static_cast<int>(n))) << offset;
    for (; count >= 8; count -= 8, bits >>= 8) *dst++ = static_cast<u8>(bits);
    if (count > 0) *dst = static_cast<u8>((*dst & ~((1u << count) - 1)) | bits);
  }

private:
  static constexpr int kLanes = Vec<T>::kLanes;

  RNX_INLINE u32 above(Vec<T> v) const { return signBits(greater(v, threshold_)); }

  Vec<T> threshold_;
};

template <class T>
void toBits(const ToBitsCall<T>& call) {
  const ToBits<T> rows(call.threshold);
  const T* src = call.src;
  u8* dst = call.dst;
  for (s64 y = 0; y < call.height; ++y) {
    rows.row(src, dst, call.width, call.offset);
    src = core::at(src, call.srcStep);
    dst = core::at(dst, call.dstStep);
  }
}

template <class T>
class FromBits {
public:
  FromBits(T low, T high) : low_(Vec<T>::splat(low)), high_(Vec<T>::splat(high)) {}

  RNX_INLINE void word(u32 bits, T* dst, int n) const {
    int i = 0;
    for (; i + kLanes <= n; i += kLanes) level(bits >> i).store(dst + i);
    if (i < n) storePart(dst + i, n - i, level(makeHalves(bits >> i, n - i)));
  }

  void row(const u8* src, T* dst, s64 n, int offset) const {
    for (; n >= kWord; n -= kWord, src += kWord / 8, dst += kWord) {
      u64 bits = 0;
      __builtin_memcpy(&bits, src, kWord / 8);
      if (offset > 0) bits |= static_cast<u64>(src[kWord / 8]) << kWord;  // it holds the word's last bits
      word(static_cast<u32>(bits >> offset), dst, kWord);
    }
    if (n == 0) return;
    u64 bits = 0;
    for (int b = 0; 8 * b < offset + n; ++b) bits |= static_cast<u64>(src[b]) << (8 * b);
    word(static_cast<u32>(bits >> offset), dst, static_cast<int>(n));
  }

private:
  static constexpr int kLanes = Vec<T>::kLanes;

  RNX_INLINE Vec<T> level(u32 bits) const { return select(spreadBits<T>(bits), high_, low_); }

  Vec<T> low_, high_;
};

template <class T>
void fromBits(const FromBitsCall<T>& call) {
  const FromBits<T> rows(call.low, call.high);
  const u8* src = call.src;
  T* dst = call.dst;
  for (s64 y = 0; y < call.height; ++y) {
    rows.row(src, dst, call.width, call.offset);
    src = core::at(src, call.srcStep);
    dst = core::at(dst, call.dstStep);
  }
}

template <class T>
constexpr BitsForms<T> kForms = {.toBits = toBits<T>, .fromBits = fromBits<T>};

}  // namespace

namespace RNX_WIDTH {

constinit const BitsKernels bitsKernels = {
    .of8u = kForms<u8>, .of16u = kForms<u16>, .of16s = kForms<s16>, .of32f = kForms<f32>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
