// Row kernels of alpha premultiplication: the product of two fractions of the full range, rounded to nearest.
#include "alpha/premul_kernels.h"
#include "simd/rows.h"
#include "simd/saturate.h"
#include "simd/shuffle.h"

namespace rnx::alpha {
namespace {

using namespace simd;

// t / 255 to nearest for t up to 255^2: with u = t + 128, (u + (u >> 8)) >> 8 = (u * 257) >> 16.
RNX_INLINE Vec<u16> dividedBy255(Vec<u16> t) {
  const Vec<u16> u = t + Vec<u16>::splat(128);
  return multiplyHigh(u, Vec<u16>::splat(257));
}

// Even and odd bytes of v times lanes of 16 bits.
RNX_INLINE Vec<u8> product(Vec<u8> v, Vec<u16> evenFactor, Vec<u16> oddFactor) {
  const Vec<u16> lanes = v.as<u16>();
  const Vec<u16> even = dividedBy255((lanes & Vec<u16>::splat(0xff)) * evenFactor);
  const Vec<u16> odd = dividedBy255(Vec<u16>{lanes.raw >> 8} * oddFactor);
  return (even | Vec<u16>{odd.raw << 8}).as<u8>();
}

RNX_INLINE Vec<u8> product(Vec<u8> v, Vec<u8> factor) {
  const Vec<u16> lanes = factor.as<u16>();
  return product(v, lanes & Vec<u16>::splat(0xff), Vec<u16>{lanes.raw >> 8});
}
// With u = v * factor + 32768, which fits 32 bits, (u + (u >> 16)) >> 16: the upper half of u, and 1 where the sum of
// both halves of u carries.
RNX_INLINE Vec<u16> product(Vec<u16> v, Vec<u16> factor) {
  const Vec<u16> low = v * factor;
  const Vec<u16> upper = multiplyHigh(v, factor) + Vec<u16>{low.raw >> 15};
  const Vec<u16> room = low ^ Vec<u16>::splat(0x7fff);  // 65535 less the lower half of u
  return upper + min(subSaturated(upper, room), Vec<u16>::splat(1));
}

// ---- Functors ----

// A pixel of four channels as one element.
template <class T>
using Pixel = std::conditional_t<sizeof(T) == 1, u32, u64>;

struct ByOwnAlpha {
  // The pixel's alpha in front of each 16-bit pair of bytes; the alpha itself is multiplied by 255, which keeps it.
  RNX_INLINE Vec<u32> operator()(Vec<u32> pixels) const {
    const Vec<u16> factor = fourthAsWords(pixels);
    const Vec<u16> oddFactor = factor | Vec<u32>::splat(0x00ff0000).as<u16>();
    return product(pixels.as<u8>(), factor, oddFactor).as<u32>();
  }
  RNX_INLINE Vec<u64> operator()(Vec<u64> pixels) const {
    const Vec<u16> factor = fourthAsWords(pixels) | Vec<u64>::splat(0xffff000000000000).as<u16>();
    return product(pixels.as<u16>(), factor).as<u64>();
  }
};

template <class T>
struct ByElement {
  RNX_INLINE Vec<T> operator()(Vec<T> v, Vec<T> alpha) const { return product(v, alpha); }
};

template <class T>
class ByConstant {
public:
  explicit ByConstant(T alpha) : factor_(Vec<u16>::splat(alpha)) {}
  RNX_INLINE Vec<T> operator()(Vec<T> v) const {
    if constexpr (sizeof(T) == 1) {
      return product(v, factor_, factor_);
    } else {
      return product(v, factor_);
    }
  }

private:
  Vec<u16> factor_;
};

template <class T>
class ByConstantColors {
public:
  explicit ByConstantColors(T alpha) : byConstant_(alpha), alpha_(Vec<T>::splat(alpha)) {}
  RNX_INLINE Vec<Pixel<T>> operator()(Vec<Pixel<T>> pixels) const {
    return ColorChannels<T>::merge(byConstant_(pixels.template as<T>()), alpha_).template as<Pixel<T>>();
  }

private:
  ByConstant<T> byConstant_;
  Vec<T> alpha_;
};

// ---- Kernels ----

template <class T, class F>
void pixels(const PremulCall<T>& call, F f) {
  using P = Pixel<T>;
  forEachElement<AllChannels<P>>(call.rows, reinterpret_cast<P*>(call.dst), call.dstStep, f,
                                 ImageSource<P>{reinterpret_cast<const P*>(call.src), call.srcStep});
}

template <class T>
void byOwnAlpha(const PremulCall<T>& call) {
  pixels(call, ByOwnAlpha());
}

template <class T>
void byConstantColors(const PremulCall<T>& call) {
  pixels(call, ByConstantColors<T>(*call.alpha));
}

template <class T>
void byConstant(const PremulCall<T>& call) {
  ByConstant<T> f(*call.alpha);
  forEachElement<AllChannels<T>>(call.rows, call.dst, call.dstStep, f, ImageSource<T>{call.src, call.srcStep});
}

template <class T>
void byPlane(const PremulCall<T>& call) {
  ByElement<T> f;
  forEachElement<AllChannels<T>>(call.rows, call.dst, call.dstStep, f, ImageSource<T>{call.src, call.srcStep},
                                 ImageSource<T>{call.alpha, call.alphaStep});
}

template <class T>
constexpr PremulKernelsOf<T> kKernels = {
    .byOwnAlpha = byOwnAlpha<T>,
    .byPlane = byPlane<T>,
    .byConstant = byConstant<T>,
    .byConstantColors = byConstantColors<T>,
};

}  // namespace

namespace RNX_WIDTH {

constinit const PremulKernels premulKernels = {.of8u = kKernels<u8>, .of16u = kKernels<u16>};

}  // namespace RNX_WIDTH
}  // namespace rnx::alpha
