// Row kernels of the conversions between gray and one-bit images: 64 pixels, a word of bits, at a time.
#include "data/bits_kernels.h"
#include "simd/bits.h"

namespace rnx::data {
namespace {

using namespace simd;

constexpr int kWord = 64;

// The n lowest bytes of a word, n at most 8, and where they come from or go to.
u64 loadBytes(const u8* src, int n) {
  const auto two = [&](auto part) {  // overlapping parts from the start and from the end
    constexpr int kPart = sizeof(part);
    auto last = part;
    __builtin_memcpy(&part, src, kPart);
    __builtin_memcpy(&last, src + n - kPart, kPart);
    return u64{part} | static_cast<u64>(last) << (8 * (n - kPart));
  };
  return n >= 8 ? two(u64{}) : n >= 4 ? two(u32{}) : n >= 2 ? two(u16{}) : n == 1 ? two(u8{}) : 0;
}

void storeBytes(u8* dst, u64 bytes, int n) {
  const auto two = [&](auto part) {
    using Part = decltype(part);
    constexpr int kPart = sizeof(part);
    const Part first = static_cast<Part>(bytes), last = static_cast<Part>(bytes >> (8 * (n - kPart)));
    __builtin_memcpy(dst, &first, kPart);
    __builtin_memcpy(dst + n - kPart, &last, kPart);
  };
  n >= 8 ? two(u64{}) : n >= 4 ? two(u32{}) : n >= 2 ? two(u16{}) : n == 1 ? two(u8{}) : void();
}

template <class T>
class ToBits {
public:
  explicit ToBits(T threshold) : threshold_(Vec<T>::splat(threshold)) {}

  // The bits before the row's first one go through the accumulator like those of pixels.
  void row(const T* src, u8* dst, s64 n, int offset) const {
    const ToBits own = *this;  // in registers, which no store to the result can change
    const u32 outside = (1u << offset) - 1;
    u64 before = *dst & outside;
    if (offset == 0) {
      for (; n >= kWord; n -= kWord, src += kWord, dst += kWord / 8) put(dst, own.word(src));
    } else {
      for (; n >= kWord; n -= kWord, src += kWord, dst += kWord / 8) {
        const u64 bits = own.word(src);
        put(dst, bits << offset | before);
        before = bits >> (kWord - offset);
      }
    }
    if (n == 0) {
      if (offset > 0) *dst = static_cast<u8>((*dst & ~outside) | before);
      return;
    }
    const int rest = static_cast<int>(n), count = offset + rest;  // up to 70
    const u64 bits = part(src, rest);
    const int whole = std::min(count, kWord) / 8;
    storeBytes(dst, bits << offset | before, whole);
    if (count % 8 == 0) return;
    const u64 last = whole < 8 ? (bits << offset | before) >> (8 * whole) : bits >> (kWord - offset);
    dst[whole] = static_cast<u8>((dst[whole] & ~((1u << count % 8) - 1)) | last);
  }

private:
  static constexpr int kLanes = Vec<T>::kLanes, kSize = sizeof(T);

  static RNX_INLINE void put(u8* dst, u64 bits) { __builtin_memcpy(dst, &bits, sizeof(bits)); }

  // Unsigned elements are above the threshold where the larger of both is not the threshold.
  static constexpr bool kInverse = std::is_unsigned_v<T>;
  RNX_INLINE Mask<T> compare(Vec<T> v) const {
    if constexpr (kInverse) {
      return equal(max(v, threshold_), threshold_);
    } else {
      return greater(v, threshold_);
    }
  }

  // Of kBytes pixels.
  RNX_INLINE u64 block(const T* src) const {
    Mask<T> masks[kSize];
    RNX_UNROLL
    for (int k = 0; k < kSize; ++k) masks[k] = compare(Vec<T>::load(src + k * kLanes));
    return bitsOfMasks<T>(masks);
  }
  RNX_INLINE u64 word(const T* src) const {
    u64 bits = 0;
    RNX_UNROLL
    for (int i = 0; i < kWord; i += kBytes) bits |= block(src + i) << i;
    return kInverse ? ~bits : bits;
  }
  // Of n pixels, less than a word; the bits behind them are 0.
  u64 part(const T* src, int n) const {
    u64 bits = 0;
    int i = 0;
    for (; i + kBytes <= n; i += kBytes) bits |= block(src + i) << i;
    for (; i + kLanes <= n; i += kLanes) bits |= u64{signBits(compare(Vec<T>::load(src + i)))} << i;
    if (i < n) bits |= u64{joinHalves(signBits(compare(loadPart(src + i, n - i))), n - i)} << i;
    return (kInverse ? ~bits : bits) & ((u64{1} << n) - 1);
  }

  Vec<T> threshold_;
};

template <class T>
void toBits(const ToBitsCall<T>& call) {
  const ToBits<T> rows(call.threshold);
  const T* src = call.src;
  u8* dst = call.dst;
  for (s64 y = 0; y < call.height; ++y) {
    if (call.inOrder) {
      for (s64 x = 0, bit = call.offset; x < call.width; ++x, ++bit) {
        rows.row(src + x, dst + bit / 8, 1, static_cast<int>(bit % 8));
      }
    } else {
      rows.row(src, dst, call.width, call.offset);
    }
    src = core::at(src, call.srcStep);
    dst = core::at(dst, call.dstStep);
  }
}

template <class T>
class FromBits {
public:
  FromBits(T low, T high) : low_(Vec<T>::splat(low)), high_(Vec<T>::splat(high)) {}

  void row(const u8* src, T* dst, s64 n, int offset) const {
    const FromBits own = *this;  // as above
    if (offset == 0) {
      for (; n >= kWord; n -= kWord, src += kWord / 8, dst += kWord) own.word(get(src), dst);
    } else {
      for (; n >= kWord; n -= kWord, src += kWord / 8, dst += kWord) own.word(shifted(get(src), src[8], offset), dst);
    }
    if (n == 0) return;
    const int bytes = static_cast<int>(offset + n + 7) / 8;
    u64 bits = loadBytes(src, std::min(bytes, 8));
    bits = bytes == 9 ? shifted(bits, src[8], offset) : bits >> offset;
    part(bits, dst, static_cast<int>(n));
  }

private:
  static constexpr int kLanes = Vec<T>::kLanes;

  static RNX_INLINE u64 get(const u8* src) {
    u64 bits;
    __builtin_memcpy(&bits, src, sizeof(bits));
    return bits;
  }
  // From bit `offset`, above 0, on; the ninth byte holds the last ones.
  static RNX_INLINE u64 shifted(u64 bits, u8 ninth, int offset) {
    return bits >> offset | u64{ninth} << (kWord - offset);
  }

  RNX_INLINE Vec<T> level(Vec<u64> bits) const { return select(spread_(bits), high_, low_); }

  RNX_INLINE void word(u64 bits, T* dst) const { vectors(Vec<u64>::splat(bits), dst); }
  template <int First = 0>
  RNX_INLINE void vectors(Vec<u64> bits, T* dst) const {
    level(shiftBitsRight<First>(bits)).store(dst + First);
    if constexpr (First + kLanes < kWord) vectors<First + kLanes>(bits, dst);
  }

  void part(u64 bits, T* dst, int n) const {
    int i = 0;
    for (; i + kLanes <= n; i += kLanes, bits >>= kLanes) level(Vec<u64>::splat(bits)).store(dst + i);
    if (i < n) {
      storePart(dst + i, n - i, level(Vec<u64>::splat(makeHalves(static_cast<u32>(bits), n - i))));
    }
  }

  Vec<T> low_, high_;
  BitSpreader<T> spread_;
};

template <class T>
void fromBits(const FromBitsCall<T>& call) {
  const FromBits<T> rows(call.low, call.high);
  const u8* src = call.src;
  T* dst = call.dst;
  for (s64 y = 0; y < call.height; ++y) {
    if (call.inOrder) {
      for (s64 x = 0, bit = call.offset; x < call.width; ++x, ++bit) {
        rows.row(src + bit / 8, dst + x, 1, static_cast<int>(bit % 8));
      }
    } else {
      rows.row(src, dst, call.width, call.offset);
    }
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
