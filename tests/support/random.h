// Random data from a seed that is printed at the start and set by the environment variable RNX_SEED. Every function
// starts from the seed and its own name, so a failure can be repeated with that function alone.
#pragma once

#include <iterator>
#include <string_view>

#include "support/elements.h"

namespace rnx::test {

u64 seed();

class Random {
public:
  explicit Random(std::string_view name);

  u64 next();
  // Both ends included.
  s64 between(s64 low, s64 high) {
    return static_cast<s64>(static_cast<u64>(low) + next() % (static_cast<u64>(high) - static_cast<u64>(low) + 1));
  }
  bool oneIn(int n) { return between(1, n) == 1; }
  template <class Range>
  const auto& pick(const Range& range) {
    return *(std::begin(range) + between(0, static_cast<s64>(std::size(range)) - 1));
  }

private:
  u64 state_[4];
};

enum class Data {
  kBits,      // any pattern of bits; floats of every kind
  kModerate,  // integers as above, floats between -1000 and 1000
  kExtreme,   // limits and their neighbours, zeros, ones; floats with NaN, infinities, both zeros, subnormals
  kTies       // small values and neighbours of powers of two; floats on and beside halves
};
inline constexpr Data kAllData[] = {Data::kBits, Data::kModerate, Data::kExtreme, Data::kTies};

// Complex elements count as two.
void fill(Random& random, Data data, Element element, void* elements, s64 count);

void fillBytes(Random& random, void* bytes, s64 count);

template <class T>
T value(Random& random, Data data);

}  // namespace rnx::test
