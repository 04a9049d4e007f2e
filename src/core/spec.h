// Specs and buffers: blocks that the caller allocates after a size query, at any address. The library works at the next
// multiple of the alignment inside the block; the reported sizes hold the slack. A spec begins with the identifier of
// its kind and holds offsets, never addresses, so that a block may be copied to another place of the same alignment.
#pragma once

#include <cstring>

#include "core/types.h"

namespace rnx::core {

inline constexpr s64 kSpecAlignment = 64;

constexpr s64 roundUp(s64 value, s64 multiple) { return (value + multiple - 1) / multiple * multiple; }

// The first address of the block that is a multiple of `alignment`.
template <class T, class Block>
T* alignedIn(Block* block, s64 alignment = kSpecAlignment) {
  const auto mask = static_cast<uintptr_t>(alignment - 1);
  return reinterpret_cast<T*>((reinterpret_cast<uintptr_t>(block) + mask) & ~mask);
}

// Walks a block of memory part by part: each call takes the next `bytes`, rounded up to the alignment. Run with a null
// block it measures, so that a size query and its user can never disagree.
class Carver {
public:
  explicit Carver(void* alignedBlock) : base_(static_cast<char*>(alignedBlock)) {}

  template <class T>
  T* take(s64 count) {
    const s64 offset = used_;
    used_ += roundUp(count * static_cast<s64>(sizeof(T)), kSpecAlignment);
    return base_ == nullptr ? nullptr : reinterpret_cast<T*>(base_ + offset);
  }

  s64 used() const { return used_; }

private:
  char* base_;
  s64 used_ = 0;
};

// Largest size that a query reports in 32 bits; above it the answer is rnxStatusSizeOverflow and 0.
inline constexpr s64 kMaxReportedSize = 0x7fffffff;

inline RnxStatus reportSize(s64 bytes, int* size) {
  *size = bytes > kMaxReportedSize ? 0 : static_cast<int>(bytes);
  return bytes > kMaxReportedSize ? rnxStatusSizeOverflow : rnxStatusNoError;
}

}  // namespace rnx::core
