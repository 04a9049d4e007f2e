// The library from C++. Succeeds when the sum is right.
#include <rnxip.h>

#include <array>

int main() {
  const std::array<Rnx32f, 3> gains = {2.0f, 0.5f, -1.0f};
  std::array<Rnx32f, 6> pixels = {1, 2, 3, 4, 5, 6};
  const RnxStatus status = rnxiMulC_32f_C3IR(gains.data(), pixels.data(), sizeof pixels, {2, 1});
  const std::array<Rnx32f, 6> expected = {2, 1, -3, 8, 2.5f, -6};
  return status == rnxStatusNoError && pixels == expected ? 0 : 1;
}
