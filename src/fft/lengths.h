// How a length is transformed: radices, or the length that stands for it.
#pragma once

#include <cmath>

#include "fft/spec.h"

namespace rnx::fft {

struct Factors {
  f32 cost = INFINITY;
  int count = 0;
  s32 radix[kMaxPasses];
};

Factors factorsOf(s64 n);

// The passes of the length, or of the size that stands for it.
struct Choice {
  Method method;
  s64 size;
  Factors factors;
  s64 parts = 1;
};

Choice choose(const Spec& spec, s64 length);

}  // namespace rnx::fft
