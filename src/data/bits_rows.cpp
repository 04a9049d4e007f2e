// Row kernels of the conversions between gray and one-bit images.
#include <limits>

#include "data/bits_kernels.h"
#include "simd/bits.h"

namespace rnx::data {
namespace {

using namespace simd;

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

// Bits [first, first + n) of dst, first below 8 and both together up to 64; the others in their bytes stay.
void mergeBits(u8* dst, u64 bits, int first, int n) {
  const int bytes = (first + n + 7) / 8;
  const u64 own = ((u64{1} << n) - 1) << first;
  storeBytes(dst, (loadBytes(dst, bytes) & ~own) | bits << first, bytes);
}

// Lanes whose sign bits say whether their elements are above the threshold.
template <class T>
class Above {
public:
  explicit Above(T threshold) : threshold_(Vec<T>::splat(threshold)) {}
  RNX_INLINE Mask<T> operator()(Vec<T> v) const { return greater(v, threshold_); }

private:
  Vec<T> threshold_;
};

// The average with most - 1 - threshold, rounded up, reaches the sign bit from threshold + 1 on. Nothing is above the
// most: as if all elements were 0.
template <class T>
requires std::is_unsigned_v<T>
class Above<T> {
public:
  explicit Above(T threshold)
      : complement_(Vec<T>::splat(static_cast<T>(std::max(kMost - 1 - threshold, 0)))),
        kept_(Vec<T>::splat(threshold == kMost ? 0 : kMost)) {}
  RNX_INLINE Mask<T> operator()(Vec<T> v) const {
    return average(v & kept_, complement_).template as<typename MaskOf<sizeof(T)>::Type>();
  }

private:
  static constexpr int kMost = std::numeric_limits<T>::max();

  Vec<T> complement_, kept_;
};

// Blocks of kBytes pixels, the bits of a vector of bytes.
template <class T>
class ToBits {
public:
  explicit ToBits(T threshold) : above_(threshold) {}

  // Up to the first whole byte of bits, then by blocks; the pixels at the start and at the end are in a block too.
  void row(const T* src, u8* dst, s64 n, int offset) const {
    if (n < kBytes) return mergeBits(dst, part(src, static_cast<int>(n)), offset, static_cast<int>(n));

    const ToBits own = *this;  // in registers, which no store to the result can change
    if (offset > 0) {
      const u32 outside = (1u << offset) - 1;
      *dst = static_cast<u8>((*dst & outside) | own.block(src) << offset);
      src += 8 - offset;
      n -= 8 - offset;
      ++dst;
    }
    for (; n >= 2 * kBytes; n -= 2 * kBytes, src += 2 * kBytes, dst += 2 * kBytes / 8) {
      put(dst, own.block(src));
      put(dst + kBytes / 8, own.block(src + kBytes));
    }
    for (; n >= kBytes; n -= kBytes, src += kBytes, dst += kBytes / 8) put(dst, own.block(src));
    if (n > 0) mergeBits(dst, own.block(src - (kBytes - n)) >> (kBytes - n), 0, static_cast<int>(n));
  }

private:
  static constexpr int kLanes = Vec<T>::kLanes, kSize = sizeof(T);

  static RNX_INLINE void put(u8* dst, u32 bits) { __builtin_memcpy(dst, &bits, kBytes / 8); }

  RNX_INLINE u32 block(const T* src) const {
    Mask<T> masks[kSize];
    RNX_UNROLL
    for (int k = 0; k < kSize; ++k) masks[k] = above_(Vec<T>::load(src + k * kLanes));
    return bitsOfMasks<T>(masks);
  }
  // Of n pixels, less than a block.
  u32 part(const T* src, int n) const {
    u32 bits = 0;
    int i = 0;
    for (; i + kLanes <= n; i += kLanes) bits |= signBits(above_(Vec<T>::load(src + i))) << i;
    if (i < n) bits |= joinHalves(signBits(above_(loadPart(src + i, n - i))), n - i) << i;
    return bits;
  }

  Above<T> above_;
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

// Words of 64 bits.
template <class T>
class FromBits {
public:
  FromBits(T low, T high) : low_(Vec<T>::splat(low)), high_(Vec<T>::splat(high)) {}

  void row(const u8* src, T* dst, s64 n, int offset) const {
    const FromBits own = *this;  // in registers
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
  static constexpr int kLanes = Vec<T>::kLanes, kWord = 64;

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
