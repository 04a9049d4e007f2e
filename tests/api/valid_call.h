// A call of any export that its checks accept, with guarded memory behind every pointer.
#pragma once

#include <deque>
#include <string>

#include "support/call.h"

namespace rnx::test {

class ValidCall {
public:
  // Images of kSize x kSize pixels; where a result is larger (borders), kLarge x kLarge. A row fits any of them.
  static constexpr s64 kSize = 5, kLarge = 9, kStep = 320, kBytes = kStep * kLarge;

  explicit ValidCall(const Signature& signature);

  // The roles that valid_call.cpp has no value for.
  static std::vector<std::string> unknownRoles(const Signature& signature);

  Call& call() { return call_; }
  Random& random() { return random_; }
  // Memory of kBytes, all ones, checked by untouched().
  u8* memory();
  // From here on nothing may be written.
  void freeze();
  testing::AssertionResult untouched();

private:
  Random random_;
  std::deque<Image> memory_;
  std::deque<std::array<void*, 4>> planes_;
  Call call_;

  void setDefault(size_t index);
};

}  // namespace rnx::test
