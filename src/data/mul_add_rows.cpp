// Row kernels of multiply-add with conversion: src * factor + sum, clamped to the destination's range, half to even.
#include "data/scale_kernels.h"
#include "simd/rounding.h"
#include "simd/rows.h"

namespace rnx::data {
namespace {

using namespace simd;

// W is the precision of the arithmetic. What is not a number becomes the smallest integer.
template <class S, class D, class W>
class MulAddFunctor {
public:
  explicit MulAddFunctor(const ScaleCall& call)
      : factor_(Vec<W>::splat(static_cast<W>(call.factor))), sum_(Vec<W>::splat(static_cast<W>(call.sum))) {}

  template <int N>
  RNX_INLINE Block<D, N> operator()(const Block<S, N>& block) const {
    const Vec<W> factor = factor_, sum = sum_;
    const auto exact = map(widenTo<W>(block), [=](Vec<W> v) RNX_INLINE_LAMBDA { return v * factor + sum; });
    if constexpr (std::is_same_v<D, W>) {
      return exact;
    } else if constexpr (std::is_same_v<D, f32>) {
      return narrowToSingle(exact);
    } else {
      return simd::roundTo<D, ToNearestEven>(exact);
    }
  }

private:
  Vec<W> factor_, sum_;
};

template <class S, class D, class W>
void mulAdd(const ScaleCall& call) {
  MulAddFunctor<S, D, W> f(call);
  forEachElement<AllChannels<D>>(
      call.rows, static_cast<D*>(call.dst), call.dstStep, f,
      ImageSource<S, Block<S, kStepOf<S, D>>>{static_cast<const S*>(call.src), call.srcStep});
}

// Single precision has bits to spare for 8 and 16 bits.
template <class T>
constexpr bool kFitsSingle = sizeof(T) <= 2 || std::is_same_v<T, f32>;

template <class S, class D>
constexpr MulAdd<S, D> kMulAdd = {mulAdd<S, D, f64>,
                                  mulAdd<S, D, std::conditional_t<kFitsSingle<S> && kFitsSingle<D>, f32, f64>>};

template <class S>
constexpr MulAdds<S, u8, s8, u16, s16, s32, f32, f64> kMulAdds = {kMulAdd<S, u8>,  kMulAdd<S, s8>,  kMulAdd<S, u16>,
                                                                  kMulAdd<S, s16>, kMulAdd<S, s32>, kMulAdd<S, f32>,
                                                                  kMulAdd<S, f64>};

}  // namespace

namespace RNX_WIDTH {

constinit const MulAddKernels mulAddKernels = {kMulAdds<u8>,  kMulAdds<s8>,  kMulAdds<u16>, kMulAdds<s16>,
                                               kMulAdds<s32>, kMulAdds<f32>, kMulAdds<f64>};

}  // namespace RNX_WIDTH
}  // namespace rnx::data
