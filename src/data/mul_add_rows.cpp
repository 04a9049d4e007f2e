// Row kernels of multiply-add with conversion: src * factor + sum, clamped to the destination's range, half to even.
#include "data/scale_kernels.h"
#include "simd/rounding.h"
#include "simd/rows.h"

namespace rnx::data {
namespace {

using namespace simd;

// W is the precision of the arithmetic. What is not a number becomes the smallest integer. Bounded: no result leaves
// the int range, so that narrowing alone saturates.
template <class S, class D, class W, bool kBounded>
class MulAddFunctor {
public:
  explicit MulAddFunctor(const ScaleCall& call)
      : factor_(Vec<W>::splat(static_cast<W>(call.factor))), sum_(Vec<W>::splat(static_cast<W>(call.sum))) {}

  template <class B, int N>  // lanes of S, or what they were widened to
  RNX_INLINE Block<D, N> operator()(const Block<B, N>& block) const {
    const Vec<W> factor = factor_, sum = sum_;
    const auto exact = map(widenTo<W>(block), [=](Vec<W> v) RNX_INLINE_LAMBDA { return v * factor + sum; });
    if constexpr (std::is_same_v<D, W>) {
      return exact;
    } else if constexpr (std::is_same_v<D, f32>) {
      return narrowToSingle(exact);
    } else if constexpr (kBounded) {
      return roundIntsTo<D, ToNearestEven>(exact);
    } else {
      return simd::roundTo<D, ToNearestEven>(exact);
    }
  }

private:
  Vec<W> factor_, sum_;
};

// Whether all results are ints, whatever the source holds. False where a constant is not a number.
template <class S>
bool isBounded(const ScaleCall& call) {
  constexpr f64 kMostSource = S(-1) < 0 ? f64{kLargest<S>} + 1 : f64{kLargest<S>}, kMost = 2147483000;
  return __builtin_fabs(call.factor) * kMostSource + __builtin_fabs(call.sum) < kMost;
}

template <class S, class D, class W, bool kBounded = false>
void mulAdd(const ScaleCall& call) {
  constexpr bool kMayBeBounded = sizeof(S) <= 2 && sizeof(D) <= 2 && std::is_same_v<W, f32>;
  if constexpr (kMayBeBounded && !kBounded) {
    if (isBounded<S>(call)) return mulAdd<S, D, W, true>(call);
  }
  using Source = SourceBlock<S, W, kStepOf<S, D, W>>;
  MulAddFunctor<S, D, W, kBounded> f(call);
  forEachElement<AllChannels<D>>(call.rows, static_cast<D*>(call.dst), call.dstStep, f,
                                 ImageSource<S, Source>{static_cast<const S*>(call.src), call.srcStep});
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
