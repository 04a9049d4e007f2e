// Runs one call of a binary arithmetic function against the model, with both vector widths.
#pragma once

#include <xmmintrin.h>

#include <vector>

#include "ref/arith_model.h"
#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {

inline constexpr const char* kBinaryFamilies = "Add Sub Mul Div Div_Round AddC SubC MulC DivC";

// An operand: rows somewhere in an image.
struct Place {
  Image* image = nullptr;
  u8* data = nullptr;
  s64 step = 0;

  Place() = default;
  Place(Image& i) : image(&i), data(i.data()), step(i.step()) {}
  Place(Image& i, s64 offset, s64 s) : image(&i), data(i.data() + offset), step(s) {}
};

// dst = left op right. In place, `left` is `dst`; with a constant, `right` holds the values.
struct BinaryWork {
  Place left, right, dst;
  s64 width, height;
  int scale = 0;
  int roundMode = rnxRoundNearestEven;  // of functions that take one
};

class BinaryDriver {
public:
  explicit BinaryDriver(const Signature& signature);

  const Signature& signature;
  const bool inPlace, withConstant, isFloat, checksSteps;
  const int pixelBytes;
  const ref::Op op;
  unsigned controlState = _mm_getcsr();  // of floating point, during calls

  // Fails the test and returns false where the library and the model differ.
  bool check(const BinaryWork& work);
  // The constants: as many as the function may read and no more, in front of a page that cannot be touched. DivC gets
  // no zeros.
  Image& values(Random& random, Data data);

private:
  RnxStatus runModel(const BinaryWork& work);

  Call call_;
  Image values_;
};

}  // namespace rnx::test
