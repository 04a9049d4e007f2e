// Row kernels of the comparison of two images: 255 where the relation holds in every channel, else 0. What is not a
// number makes every relation false.
#include "arith/compare_kernels.h"
#include "simd/cast.h"
#include "simd/pixels.h"

namespace rnx::arith {
namespace {

using namespace simd;

struct Less {
  template <class T>
  static RNX_INLINE Mask<T> holds(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_unsigned_v<T>) {
      return ~equal(max(a, b), a);
    } else {
      return greater(b, a);
    }
  }
};

struct LessEq {
  template <class T>
  static RNX_INLINE Mask<T> holds(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_floating_point_v<T>) {
      return {reinterpret_cast<typename Mask<T>::Raw>(a.raw <= b.raw)};
    } else {
      return equal(min(a, b), a);
    }
  }
};

struct Equal {
  template <class T>
  static RNX_INLINE Mask<T> holds(Vec<T> a, Vec<T> b) {
    return equal(a, b);
  }
};

// The byte of the alpha channel holds whatever the relation says.
template <int C>
struct AllOf {
  static constexpr int kChannels = C;
  static RNX_INLINE Vec<u8> relevant(Vec<u8> mask) { return mask; }
};
struct ColorsOf {
  static constexpr int kChannels = 4;
  static RNX_INLINE Vec<u8> relevant(Vec<u8> mask) { return mask | Vec<u32>::splat(0xff000000).as<u8>(); }
};

template <class T, class Relation, class Channels>
struct Compare {
  static constexpr int C = Channels::kChannels;

  RNX_INLINE Vec<u8> operator()(const PixelBlock<T, C>& a, const PixelBlock<T, C>& b) const {
    Mask<T> masks[PixelBlock<T, C>::kVectors];
    RNX_UNROLL
    for (int j = 0; j < PixelBlock<T, C>::kVectors; ++j) masks[j] = Relation::template holds<T>(a.v[j], b.v[j]);
    Vec<u8> bytes[C];
    RNX_UNROLL
    for (int c = 0; c < C; ++c) bytes[c] = Channels::relevant(maskBytes(masks + c * static_cast<int>(sizeof(T))));
    return foldPixels<C>(bytes);
  }
};

// One channel needs no folding: masks are narrowed to bytes.
template <class T, class Relation>
struct CompareElements {
  using B = Block<T, kBytes>;

  RNX_INLINE Vec<u8> operator()(const B& a, const B& b) const {
    Block<typename MaskOf<sizeof(T)>::Type, kBytes> masks;
    RNX_UNROLL
    for (int j = 0; j < B::kVectors; ++j) masks.v[j] = Relation::template holds<T>(a.v[j], b.v[j]);
    return narrowTo<s8>(masks).v[0].template as<u8>();
  }
};

template <class T, class Relation, class Channels>
void compare(const CompareCall<T>& call) {
  constexpr int C = Channels::kChannels;
  const auto run = [&](auto f, const auto& left, const auto& right) RNX_INLINE_LAMBDA {
    forEachElement<AllChannels<u8>>(call.rows, call.dst, call.dstStep, f, left, right);
  };
  if constexpr (C == 1) {
    using Source = ImageSource<T, Block<T, kBytes>>;
    run(CompareElements<T, Relation>(), Source{call.left, call.leftStep}, Source{call.right, call.rightStep});
  } else {
    using Source = PixelSource<T, C>;
    run(Compare<T, Relation, Channels>(), Source{call.left, call.leftStep}, Source{call.right, call.rightStep});
  }
}

template <class T, class Channels>
constexpr Relations<T> kRelations = {
    .less = compare<T, Less, Channels>, .lessEq = compare<T, LessEq, Channels>, .equal = compare<T, Equal, Channels>};

template <class T>
constexpr CompareKernelsOf<T> kKernels = {
    .c1 = kRelations<T, AllOf<1>>,
    .c3 = kRelations<T, AllOf<3>>,
    .c4 = kRelations<T, AllOf<4>>,
    .ac4 = kRelations<T, ColorsOf>,
};

}  // namespace

namespace RNX_WIDTH {

constinit const CompareKernels compareKernels = {
    .of8u = kKernels<u8>,
    .of16u = kKernels<u16>,
    .of16s = kKernels<s16>,
    .of32f = kKernels<f32>,
};

}  // namespace RNX_WIDTH
}  // namespace rnx::arith
