// What the tests of the data movement share: shapes that are hard on vectors, and images that share memory.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {

inline std::vector<s64> hardWidths() {
  std::vector<s64> widths;
  for (s64 w = 1; w <= 70; ++w) widths.push_back(w);
  for (const s64 w : {95, 96, 97, 127, 128, 129, 160, 191, 193, 255, 257, 300}) widths.push_back(w);
  return widths;
}

enum class Steps { kApart, kAny };  // kAny: zero, negative and short ones too

inline s64 pickStep(Random& random, s64 rowBytes, Steps steps) {
  switch (random.between(0, steps == Steps::kAny ? 6 : 2)) {
    case 0:
      return rowBytes;
    case 1:
      return rowBytes + random.between(1, 70);
    case 2:
      return rowBytes + 64 - rowBytes % 64;
    case 3:
      return -rowBytes;
    case 4:
      return -rowBytes - random.between(1, 70);
    case 5:
      return 0;
    default:
      return random.between(-rowBytes, rowBytes);
  }
}

inline Placement pickPlacement(Random& random) {
  return random.pick(
      std::initializer_list<Placement>{Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside});
}

inline void placeRandomly(Image& image, Random& random, s64 rowBytes, s64 height, s64 step) {
  image.place({rowBytes, height, step}, pickPlacement(random), random, static_cast<int>(random.between(0, 63)));
  image.expectNow();
}

// Memory in which several images of a call lie at random places, overlapping or not.
class Arena {
public:
  Arena(Random& random, s64 bytes) : random_(random) {
    memory_.place({bytes, 1, bytes}, Placement::kInside, random, static_cast<int>(random.between(0, 63)));
    memory_.expectNow();
  }

  // A place for rows of so many bytes; near `other` if there is one, so that they overlap.
  u8* place(s64 rowBytes, s64 height, s64 step, const u8* other = nullptr) {
    const s64 reach = step * (height - 1), bytes = memory_.shape().rowBytes;
    const s64 low = reach < 0 ? -reach : 0, high = bytes - rowBytes - (reach > 0 ? reach : 0);
    s64 at = random_.between(low, high);
    if (other != nullptr && !random_.oneIn(4)) {
      const s64 shift =
          random_.pick(std::initializer_list<s64>{0, 1, -1, 2, -3, 4, 12, 16, -16, 31, step, -step, rowBytes});
      at = std::clamp(other - memory_.data() + shift, low, high);
    }
    return memory_.data() + at;
  }
  Image& memory() { return memory_; }

private:
  Random& random_;
  Image memory_;
};

}  // namespace rnx::test
