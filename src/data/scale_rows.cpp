// Row kernels of range scaling.
#include "data/scale_kernels.h"
#include "simd/rounding.h"
#include "simd/rows.h"

namespace rnx::data {
namespace {

using namespace simd;

template <class S, class D>
struct FullRangeFunctor;

template <>
struct FullRangeFunctor<u8, u16> {
  using Lane = u8;
  explicit FullRangeFunctor(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<u16, N> operator()(const Block<u8, N>& block) const {
    return repeatBytes(block);
  }
};

// x * 257 - 32768
template <>
struct FullRangeFunctor<u8, s16> {
  using Lane = u8;
  explicit FullRangeFunctor(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<s16, N> operator()(const Block<u8, N>& block) const {
    return map(repeatBytes(block),
               [](Vec<u16> v) RNX_INLINE_LAMBDA { return v.as<s16>() ^ Vec<s16>::splat(INT16_MIN); });
  }
};

// x * 16843009 - 2^31: the byte four times
template <>
struct FullRangeFunctor<u8, s32> {
  using Lane = s32;
  explicit FullRangeFunctor(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<s32, N> operator()(const Block<s32, N>& block) const {
    return map(block, [](Vec<s32> v) RNX_INLINE_LAMBDA {
      const Vec<u32> twice = v.as<u32>() | Vec<u32>{v.as<u32>().raw << 8};
      return (twice | Vec<u32>{twice.raw << 16}).as<s32>() ^ Vec<s32>::splat(INT32_MIN);
    });
  }
};

template <>
struct FullRangeFunctor<u8, f32> {
public:
  using Lane = f32;
  explicit FullRangeFunctor(const ScaleCall& call)
      : low_(Vec<f32>::splat(call.low)), unit_(Vec<f32>::splat((call.high - call.low) / 255.0f)) {}
  template <int N>
  RNX_INLINE Block<f32, N> operator()(const Block<s32, N>& block) const {
    const Vec<f32> low = low_, unit = unit_;
    return map(widenTo<f32>(block), [low, unit](Vec<f32> v) RNX_INLINE_LAMBDA { return low + v * unit; });
  }

private:
  Vec<f32> low_, unit_;
};

// k * clamp(v) - k * low, where the clamps need not come first: rounding keeps the order, so that a v above `high`
// comes to what `high` comes to or more, and one below `low` to 0 or less, which narrowing saturates. What is not a
// number becomes what `high` comes to.
template <>
struct FullRangeFunctor<f32, u8> {
public:
  using Lane = f32;
  explicit FullRangeFunctor(const ScaleCall& call)
      : perUnit_(Vec<f32>::splat(255.0f / (call.high - call.low))),
        offset_(perUnit_ * Vec<f32>::splat(call.low)),
        most_(min(Vec<f32>::splat(255.0f), Vec<f32>::splat(call.high) * perUnit_ - offset_)) {}
  template <int N>
  RNX_INLINE Block<u8, N> operator()(const Block<f32, N>& block) const {
    const Vec<f32> perUnit = perUnit_, offset = offset_, most = most_;
    return roundIntsTo<u8, ToNearestEven>(
        map(block, [=](Vec<f32> v) RNX_INLINE_LAMBDA { return min(v * perUnit - offset, most); }));
  }

private:
  Vec<f32> perUnit_, offset_, most_;
};

// A range so narrow that k is infinite: products by 0 are not numbers, which become 0, so that the clamps come first.
struct NarrowRangeFunctor {
public:
  using Lane = f32;
  explicit NarrowRangeFunctor(const ScaleCall& call)
      : low_(Vec<f32>::splat(call.low)),
        high_(Vec<f32>::splat(call.high)),
        perUnit_(Vec<f32>::splat(255.0f / (call.high - call.low))) {}
  static bool applies(const ScaleCall& call) { return 255.0f / (call.high - call.low) > 3.402823466e+38f; }
  template <int N>
  RNX_INLINE Block<u8, N> operator()(const Block<f32, N>& block) const {
    const Vec<f32> low = low_, high = high_, perUnit = perUnit_;
    return roundTo<u8, ToNearestEven>(
        map(block, [=](Vec<f32> v) RNX_INLINE_LAMBDA { return max(min(v, high), low) * perUnit - low * perUnit; }));
  }

private:
  Vec<f32> low_, high_, perUnit_;
};

// The value shifted into the unsigned range.
RNX_INLINE Vec<u16> unsignedRange(Vec<u16> v) { return v; }
RNX_INLINE Vec<u16> unsignedRange(Vec<s16> v) { return v.as<u16>() ^ Vec<u16>::splat(0x8000); }
RNX_INLINE Vec<u32> unsignedRange(Vec<s32> v) { return v.as<u32>() ^ Vec<u32>::splat(0x80000000); }

template <class S>
struct TopByte {
  using Lane = S;
  explicit TopByte(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<u8, N> operator()(const Block<S, N>& block) const {
    return narrowTo<u8>(map(block, [](Vec<S> v) RNX_INLINE_LAMBDA {
      const auto u = unsignedRange(v);
      return decltype(u){u.raw >> (8 * sizeof(S) - 8)}.template as<SignedLane>();
    }));
  }
  using SignedLane = typename MaskOf<sizeof(S)>::Type;
};

// x * 255 / 65535 = x / 257 has no ties, and single precision rounds it right for every x: the same as
// (x * 65281 / 2^16 + 128) / 2^8 in integers.
template <class S>
struct Nearest {
  using Lane = S;
  explicit Nearest(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<u8, N> operator()(const Block<S, N>& block) const {
    return narrowTo<u8>(map(block, [](Vec<S> v) RNX_INLINE_LAMBDA {
      const auto high = multiplyHigh(unsignedRange(v), Vec<u16>::splat(65281));
      return Vec<u16>{(high + Vec<u16>::splat(128)).raw >> 8}.template as<s16>();
    }));
  }
};

template <>
struct Nearest<s32> {
  using Lane = s32;
  explicit Nearest(const ScaleCall&) {}
  template <int N>
  RNX_INLINE Block<u8, N> operator()(const Block<s32, N>& block) const {
    constexpr auto kRatio = static_cast<f32>(255.0 / 4294967295.0);
    const auto values = map(block, [](Vec<s32> v) RNX_INLINE_LAMBDA { return unsignedRange(v); });
    return roundIntsTo<u8, ToNearestEven>(
        map(widenTo<f32>(values), [](Vec<f32> v) RNX_INLINE_LAMBDA { return v * Vec<f32>::splat(kRatio); }));
  }
};

// ---- Kernels ----

template <class S, class D, class Channels, class F>
void scale(const ScaleCall& call) {
  if constexpr (std::is_same_v<F, FullRangeFunctor<f32, u8>>) {
    if (NarrowRangeFunctor::applies(call)) return scale<S, D, Channels, NarrowRangeFunctor>(call);
  }
  using Source = SourceBlock<S, typename F::Lane, kStepOf<S, D>>;
  F f(call);
  forEachElement<Channels>(call.rows, static_cast<D*>(call.dst), call.dstStep, f,
                           ImageSource<S, Source>{static_cast<const S*>(call.src), call.srcStep});
}

template <class S, class D, class F>
constexpr ScaleForms kForms = {scale<S, D, AllChannels<D>, F>, scale<S, D, ColorChannels<D>, F>};

template <class S, class D>
constexpr FullRange<S, D> kFullRange = {kForms<S, D, FullRangeFunctor<S, D>>};

template <class S>
constexpr ToBytes<S> kToBytes = {kForms<S, u8, Nearest<S>>, kForms<S, u8, TopByte<S>>};

}  // namespace

namespace RNX_WIDTH {

constinit const ScaleKernels scaleKernels = {kFullRange<u8, u16>, kFullRange<u8, s16>, kFullRange<u8, s32>,
                                             kFullRange<u8, f32>, kFullRange<f32, u8>, kToBytes<u16>,
                                             kToBytes<s16>,       kToBytes<s32>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
