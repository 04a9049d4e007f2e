// Decisions taken from the bytes of a fuzzer's input, or from a random seed.
#pragma once

#include <climits>
#include <cstring>
#include <iterator>

#include "core/types.h"

namespace rnx::fuzz {

class Chooser {
public:
  // Zeros follow the last byte: they choose what is plain and valid.
  Chooser(const u8* data, size_t bytes) : data_(data), end_(data + bytes) {}
  explicit Chooser(u64 seed) : state_(seed * 2 + 1) {}

  u8 byte() {
    if (data_ == nullptr) return static_cast<u8>(random() >> 56);
    return data_ < end_ ? *data_++ : u8{0};
  }
  u64 word(int bytes = 4) {
    u64 value = 0;
    for (int i = 0; i < bytes; ++i) value = value << 8 | byte();
    return value;
  }
  s64 between(s64 low, s64 high) {
    const u64 count = static_cast<u64>(high - low) + 1;
    return low + static_cast<s64>((count <= 256 ? byte() : word()) % count);
  }
  bool oneIn(int n) { return byte() % n == n - 1; }
  template <class Range>
  auto pick(const Range& range) {
    return *(std::begin(range) + between(0, static_cast<s64>(std::size(range)) - 1));
  }

  // Small numbers, limits and their neighbours, anything.
  s64 anyInteger(bool wide) {
    switch (byte() % 10) {
      case 0:
        return -between(1, 9);
      case 1:
        return (s64{1} << between(0, 31)) + between(0, 2) - 1;
      case 2:
        return INT_MAX - between(0, 70);
      case 3:
        return INT_MIN + between(0, 70);
      case 4:
        return static_cast<s32>(word());
      case 5:
        return wide ? static_cast<s64>(word(8)) : static_cast<s32>(word());
      case 6:
        return wide ? (oneIn(2) ? INT64_MIN + between(0, 70) : INT64_MAX - between(0, 70)) : 0;
      default:
        return between(0, 80);
    }
  }

private:
  u64 random() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return state_ * 0x2545f4914f6cdd1d;
  }

  const u8* data_ = nullptr;
  const u8* end_ = nullptr;
  u64 state_ = 1;
};

}  // namespace rnx::fuzz
