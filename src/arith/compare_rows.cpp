// Row kernels of the comparison of two images: 255 where the relation holds in every channel, else 0. What is not a
// number makes every relation false.
#include "arith/compare_kernels.h"
#include "simd/pixels.h"

namespace rnx::arith {
namespace {

using namespace simd;

// Each operand is used once, so that one of them needs no load of its own. kOpposite: `holds` says where the relation
// does not hold; turning bytes over costs less than turning larger lanes over.
struct Less {
  template <class T>
  static constexpr bool kOpposite = std::is_unsigned_v<T>;
  template <class T>
  static RNX_INLINE Mask<T> holds(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_unsigned_v<T>) {
      return equal(subSaturated(b, a), Vec<T>::zero());
    } else {
      return greater(b, a);
    }
  }
};

struct LessEq {
  template <class T>
  static constexpr bool kOpposite = std::is_integral_v<T>&& std::is_signed_v<T>;
  template <class T>
  static RNX_INLINE Mask<T> holds(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_floating_point_v<T>) {
      return {reinterpret_cast<typename Mask<T>::Raw>(a.raw <= b.raw)};
    } else if constexpr (std::is_unsigned_v<T>) {
      return equal(subSaturated(a, b), Vec<T>::zero());
    } else {
      return greater(a, b);
    }
  }
};

struct Equal {
  template <class T>
  static constexpr bool kOpposite = false;
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
  using B = PixelBlock<T, C>;

  RNX_INLINE Vec<u8> operator()(const B& a, const B& b) const {
    Block<typename MaskOf<sizeof(T)>::Type, B::kLanes> masks;
    RNX_UNROLL
    for (int j = 0; j < B::kVectors; ++j) masks.v[j] = Relation::template holds<T>(a.v[j], b.v[j]);
    const auto bytes = map(narrowTo<s8>(masks), [](Vec<s8> v) {
      return Channels::relevant((Relation::template kOpposite<T> ? ~v : v).template as<u8>());
    });
    if constexpr (C == 1) {
      return bytes.v[0];
    } else if constexpr (C == 3) {
      return foldThrees(bytes);
    } else {
      return foldFours(bytes);
    }
  }
};

template <class T, class Relation, class Channels>
void compare(const CompareCall<T>& call) {
  constexpr int C = Channels::kChannels;
  using Source = std::conditional_t<C == 1, ImageSource<T, PixelBlock<T, 1>>, PixelSource<T, C>>;
  Compare<T, Relation, Channels> f;
  forEachElement<AllChannels<u8>>(call.rows, call.dst, call.dstStep, f, Source{call.left, call.leftStep},
                                  Source{call.right, call.rightStep});
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
