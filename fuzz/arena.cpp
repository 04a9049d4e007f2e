#include "arena.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#define RNX_ASAN 1
#endif
#endif
#ifndef RNX_ASAN
#define RNX_ASAN 0
#define __asan_poison_memory_region(p, n) (void)(p), (void)(n)
#define __asan_unpoison_memory_region(p, n) (void)(p), (void)(n)
#endif

namespace rnx::fuzz {
namespace {

constexpr size_t kPage = 4096, kMargin = 128;

}  // namespace

Block::Block(size_t capacity) {
  const size_t bytes = (capacity + kPage - 1) / kPage * kPage;
  void* map = mmap(nullptr, bytes + 2 * kPage, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (map == MAP_FAILED) std::perror("mmap"), abort();
  first_ = static_cast<u8*>(map) + kPage;
  last_ = first_ + bytes;
  if (mprotect(first_, bytes, PROT_READ | PROT_WRITE) != 0) std::perror("mprotect"), abort();
}

void Block::open(size_t bytes, int placement, u64 seed) {
  const size_t room = capacity() - bytes;
  begin_ = placement == 0 ? last_ - bytes : first_;
  if (placement >= 2) begin_ = first_ + std::min(room, kMargin + static_cast<size_t>(placement));
  end_ = begin_ + bytes;
  low_ = begin_ - std::min<size_t>(kMargin, static_cast<size_t>(begin_ - first_));
  high_ = end_ + std::min<size_t>(kMargin, static_cast<size_t>(last_ - end_));
  for (u8* p = low_; p < high_; p += 8) {
    seed = seed * 6364136223846793005u + 1442695040888963407u;
    const u64 word = seed ^ seed >> 29;
    std::memcpy(p, &word, std::min<size_t>(8, static_cast<size_t>(high_ - p)));
  }
  access_.assign(static_cast<size_t>(high_ - low_), Access::kNone);
}

void Block::allow(u8* from, s64 bytes, Access access) {
  for (s64 i = from - low_; i < from - low_ + bytes; ++i) {
    Access& a = access_[static_cast<size_t>(i)];
    a = std::max(a, access);
  }
}

void Block::freeze() {
  before_.assign(low_, high_);
  if (!RNX_ASAN) return;
  for (size_t i = 0; i < access_.size();) {
    const size_t from = i;
    while (i < access_.size() && access_[i] == Access::kNone) ++i;
    if (i > from) __asan_poison_memory_region(low_ + from, i - from);
    while (i < access_.size() && access_[i] != Access::kNone) ++i;
  }
}

void Block::thaw() { __asan_unpoison_memory_region(first_, capacity()); }

const u8* Block::damage(bool writesAllowed) const {
  if (std::memcmp(low_, before_.data(), before_.size()) == 0) return nullptr;
  for (size_t i = 0; i < before_.size(); ++i) {
    if (low_[i] != before_[i] && !(writesAllowed && access_[i] == Access::kWrite)) return low_ + i;
  }
  return nullptr;
}

Block& Arena::open(size_t bytes, int placement, u64 seed) {
  constexpr size_t kSizes[] = {0x2000, 0x10000, 0x80000, 0x400000};
  const size_t needed = bytes + 2 * kMargin + 64;
  taken_.resize(pool_.size());
  for (size_t i = 0; i < pool_.size(); ++i) {
    if (taken_[i] || pool_[i]->capacity() < needed || pool_[i]->capacity() / 64 > needed) continue;
    taken_[i] = true;
    used_.push_back(pool_[i]);
    pool_[i]->open(bytes, placement, seed);
    return *pool_[i];
  }
  size_t capacity = needed;
  for (size_t size : kSizes) {
    if (size >= needed) {
      capacity = size;
      break;
    }
  }
  pool_.push_back(new Block(capacity));
  return open(bytes, placement, seed);
}

void Arena::freeze() {
  for (Block* b : used_) b->freeze();
}

void Arena::thaw() {
  for (Block* b : used_) b->thaw();
}

}  // namespace rnx::fuzz
