// Row kernels of type conversion.
#include "data/convert_kernels.h"
#include "simd/rounding.h"
#include "simd/rows.h"

namespace rnx::data {
namespace {

using namespace simd;

// ---- Functors: one block of S into one block of D. Lane is what they compute in. ----

// Negative values become 0 where S has a sign and D has none.
template <class T, int N>
RNX_INLINE Block<T, N> withoutNegatives(const Block<T, N>& block) {
  return map(block, [](Vec<T> v) RNX_INLINE_LAMBDA { return max(v, Vec<T>::zero()); });
}

// Signed lanes of the size of T.
template <class T>
using SignedLane = typename MaskOf<sizeof(T)>::Type;

template <class S, class D>
struct PlainFunctor {
  using Lane = D;
  explicit PlainFunctor(const ConvertCall&) {}

  template <class B, int N>  // lanes of S, or what they were widened to
  RNX_INLINE Block<D, N> operator()(const Block<B, N>& block) const {
    constexpr bool kLosesSign = std::is_signed_v<S> && std::is_unsigned_v<D>;
    if constexpr (std::is_floating_point_v<D>) {
      return widenTo<D>(block);
    } else if constexpr (sizeof(S) < sizeof(D)) {
      const auto wide = widenTo<SignedLane<D>>(block);
      if constexpr (kLosesSign) {
        return narrowTo<D>(withoutNegatives(wide));
      } else {
        return narrowTo<D>(wide);
      }
    } else if constexpr (sizeof(S) == sizeof(D)) {
      static_assert(kLosesSign);
      return narrowTo<D>(withoutNegatives(block));
    } else if constexpr (std::is_unsigned_v<S>) {  // narrowing reads signed lanes
      const auto small = map(block, [](Vec<S> v) RNX_INLINE_LAMBDA { return min(v, Vec<S>::splat(kLargest<D>)); });
      return narrowTo<D>(narrowTo<SignedLane<S>>(small));
    } else {
      return narrowTo<D>(block);
    }
  }
};

template <class S, class D, class Rounding>
struct RoundedFunctor {
  using Lane = S;
  explicit RoundedFunctor(const ConvertCall&) {}

  template <int N>
  RNX_INLINE Block<D, N> operator()(const Block<S, N>& block) const {
    return simd::roundTo<D, Rounding>(map(block, [](Vec<S> v) RNX_INLINE_LAMBDA { return inRegister(v); }));
  }
};

template <class S, class D, class Rounding>
class RoundedScaledFunctor {
public:
  using Lane = S;
  explicit RoundedScaledFunctor(const ConvertCall& call) : factor_(Vec<S>::splat(call.factor)) {}

  template <int N>
  RNX_INLINE Block<D, N> operator()(const Block<S, N>& block) const {
    const Vec<S> factor = factor_;
    return simd::roundTo<D, Rounding>(map(block, [factor](Vec<S> v) RNX_INLINE_LAMBDA { return v * factor; }));
  }

private:
  Vec<S> factor_;
};

// ---- Integers with a scale factor, in lanes of 16 or 32 bits ----

template <class S>
using ScaleLane = std::conditional_t<sizeof(S) == 4, S, std::conditional_t<std::is_signed_v<S>, s16, u16>>;

// Rounding modes of m / 2^n with quotient and rest: what must be added to the quotient. Sums never leave the lane.
template <class Rounding, class U>
class RightShift {
public:
  explicit RightShift(int n)
      : count_(shiftCount(n)),
        countBut1_(shiftCount(n - 1)),
        restBits_(Vec<U>::splat(static_cast<U>((u64{1} << n) - 1))),
        aboveHalf_(Vec<U>::splat(static_cast<U>((u64{1} << (n - 1)) + 1))) {}

  RNX_INLINE Vec<U> operator()(Vec<U> m) const {
    const Vec<U> quotient = shiftRight(m, count_), one = Vec<U>::splat(1);
    if constexpr (std::is_same_v<Rounding, ToZero>) {
      return quotient;
    } else if constexpr (std::is_same_v<Rounding, HalfAway>) {
      return quotient + (shiftRight(m, countBut1_) & one);  // the bit of the half
    } else {  // up where the rest is above half, or half and the quotient odd
      const Vec<U> rest = m & restBits_, bound = aboveHalf_ - (quotient & one);
      return quotient - equal(max(rest, bound), rest).template as<U>();  // all ones are -1
    }
  }

private:
  ShiftCount count_, countBut1_;
  Vec<U> restBits_, aboveHalf_;
};

// Blocks of lanes that narrowing saturates to D.
template <class D, class W, int N>
RNX_INLINE Block<D, N> saturateTo(const Block<W, N>& block) {
  if constexpr (std::is_signed_v<W>) {
    return narrowTo<D>(block);
  } else {
    const auto small = map(block, [](Vec<W> v) RNX_INLINE_LAMBDA { return min(v, Vec<W>::splat(kLargest<D>)); });
    return narrowTo<D>(narrowTo<SignedLane<W>>(small));
  }
}

template <class W, class S, int N>
RNX_INLINE Block<W, N> scaleLanes(const Block<S, N>& block) {
  if constexpr (sizeof(W) == sizeof(S)) {
    return block;
  } else {
    return narrowTo<W>(widenTo<s16>(block));
  }
}

// The modes are symmetric: the magnitude is shifted.
template <class S, class D, class Rounding>
class RightFunctor {
public:
  using Lane = S;
  explicit RightFunctor(const ConvertCall& call) : shift_(call.shift) {}

  template <int N>
  RNX_INLINE Block<D, N> operator()(const Block<S, N>& block) const {
    const auto shift = shift_;
    return saturateTo<D>(map(scaleLanes<W>(block), [shift](Vec<W> v) RNX_INLINE_LAMBDA {
      if constexpr (std::is_signed_v<W>) {
        return withSign(shift(magnitude(v)), v);
      } else {
        return shift(v);
      }
    }));
  }

private:
  using W = ScaleLane<S>;
  RightShift<Rounding, std::make_unsigned_t<W>> shift_;
};

// Limits keep one step beyond the range of D, so that narrowing saturates.
template <class S, class D>
class LeftFunctor {
public:
  using Lane = S;
  explicit LeftFunctor(const ConvertCall& call)
      : count_(shiftCount(call.shift)),
        low_(Vec<W>::splat(static_cast<W>((s64{kSmallest<D>} >> call.shift) - 1))),
        high_(Vec<W>::splat(static_cast<W>((s64{kLargest<D>} >> call.shift) + 1))) {}

  template <int N>
  RNX_INLINE Block<D, N> operator()(const Block<S, N>& block) const {
    const auto count = count_;
    const Vec<W> low = low_, high = high_;
    return saturateTo<D>(map(scaleLanes<W>(block), [=](Vec<W> v) RNX_INLINE_LAMBDA {
      if constexpr (std::is_signed_v<W>) v = max(v, low);
      return shiftLeft(min(v, high), count);
    }));
  }

private:
  using W = ScaleLane<S>;
  ShiftCount count_;
  Vec<W> low_, high_;
};

// ---- Kernels ----

template <class S, class D, class Channels, class F>
void convert(const ConvertCall& call) {
  using Source = SourceBlock<S, typename F::Lane, kStepOf<S, D>>;
  F f(call);
  forEachElement<Channels>(call.rows, static_cast<D*>(call.dst), call.dstStep, f,
                           ImageSource<S, Source>{static_cast<const S*>(call.src), call.srcStep});
}

template <class S, class D, class F>
constexpr ConvertKernel kAll = convert<S, D, AllChannels<D>, F>;
template <class S, class D, class F>
constexpr ConvertForms kForms = {kAll<S, D, F>, convert<S, D, ColorChannels<D>, F>};

template <class Entry>
struct KernelsOf;

template <class S, class D>
struct KernelsOf<Plain<S, D>> {
  static constexpr Plain<S, D> kEntry = {kForms<S, D, PlainFunctor<S, D>>};
};

template <class S, class D>
struct KernelsOf<Rounded<S, D>> {
  static constexpr Rounded<S, D> kEntry = {{kForms<S, D, RoundedFunctor<S, D, ToZero>>,
                                            kForms<S, D, RoundedFunctor<S, D, ToNearestEven>>,
                                            kForms<S, D, RoundedFunctor<S, D, HalfAway>>}};
};

template <class S, class D>
struct KernelsOf<RoundedScaled<S, D>> {
  static constexpr RoundedScaled<S, D> kEntry = {{kAll<S, D, RoundedScaledFunctor<S, D, ToZero>>,
                                                  kAll<S, D, RoundedScaledFunctor<S, D, ToNearestEven>>,
                                                  kAll<S, D, RoundedScaledFunctor<S, D, HalfAway>>}};
};

template <class S, class D>
struct KernelsOf<Shifted<S, D>> {
  static constexpr Shifted<S, D> kEntry = {
      {kAll<S, D, RightFunctor<S, D, ToZero>>, kAll<S, D, RightFunctor<S, D, ToNearestEven>>,
       kAll<S, D, RightFunctor<S, D, HalfAway>>},
      kAll<S, D, LeftFunctor<S, D>>};
};

template <class... Entries>
constexpr Table<Entries...> tableOf(const Table<Entries...>*) {
  return {KernelsOf<Entries>::kEntry...};
}

}  // namespace

namespace RNX_WIDTH {

constinit const ConvertKernels convertKernels = tableOf(static_cast<const ConvertKernels*>(nullptr));

}  // namespace RNX_WIDTH
}  // namespace rnx::data
