// The processor's floating-point control state. Calls that compute in floating point do it under a state of their own,
// so that their results do not depend on the caller's rounding direction, on flushed denormals or on enabled traps; the
// caller's state, flags included, is what it was when the call returns.
#pragma once

#include <emmintrin.h>

#include <type_traits>

#include "core/types.h"

namespace rnx::simd {

enum class Direction : u32 { kNearest = 0x1f80, kTowardZero = 0x7f80 };  // all exceptions masked, denormals kept

class FloatState {
public:
  explicit FloatState(Direction direction = Direction::kNearest) {
    const auto own = static_cast<u32>(direction);
    asm volatile("stmxcsr %0" : "=m"(callers_));
    asm volatile("ldmxcsr %0" : : "m"(own) : "memory");
  }
  ~FloatState() { asm volatile("ldmxcsr %0" : : "m"(callers_) : "memory"); }
  FloatState(const FloatState&) = delete;
  FloatState& operator=(const FloatState&) = delete;

  // f(values...) under this state. The compiler does not know that arithmetic depends on the state; operands and result
  // that pass through here keep it from moving the arithmetic out. A kernel called through a pointer needs no such
  // care.
  template <class F, class... Values>
  f64 compute(F f, Values... values) const {
    (pin(values), ...);
    f64 result = f(values...);
    pin(result);
    return result;
  }

private:
  static void pin(f64& value) { asm volatile("" : "+x"(value)); }

  u32 callers_;
};

// Without the library call for negative numbers.
inline f64 squareRoot(f64 v) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(v))); }

// What a call on elements of these types needs.
struct NoFloatState {};
template <class... T>
using FloatStateFor = std::conditional_t<(std::is_floating_point_v<T> || ...), FloatState, NoFloatState>;
// The same of an exact conversion, which knows no direction: that of integers of up to 16 bits.
template <class S, class D>
using FloatStateOfConversion =
    std::conditional_t<std::is_integral_v<S> && sizeof(S) <= 2, NoFloatState, FloatStateFor<S, D>>;

}  // namespace rnx::simd
