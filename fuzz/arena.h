// Memory for the operands of one call: blocks between pages that cannot be touched, in which every byte is known to be
// forbidden, readable or writable. The address sanitizer, where it is there, is told which are forbidden; the rest is
// compared with a copy after the call.
#pragma once

#include <string>
#include <vector>

#include "core/types.h"

namespace rnx::fuzz {

enum class Access : u8 { kNone, kRead, kWrite };

class Block {
public:
  explicit Block(size_t capacity);
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;

  size_t capacity() const { return static_cast<size_t>(last_ - first_); }
  // Lays out so many bytes, at the end of the memory, at its start or inside; all forbidden, all random.
  void open(size_t bytes, int placement, u64 seed);
  u8* begin() const { return begin_; }
  void allow(u8* from, s64 bytes, Access access);

  void freeze();  // remembers all bytes and tells the sanitizer
  void thaw();
  // The first byte that changed though it was not writable; where nothing may be written, that changed at all.
  const u8* damage(bool writesAllowed) const;
  void restore() { std::copy(before_.begin(), before_.end(), low_); }

private:
  u8 *first_, *last_;                     // the memory between the pages
  u8 *begin_ = nullptr, *end_ = nullptr;  // what was asked for
  u8 *low_ = nullptr, *high_ = nullptr;   // with the margins
  std::vector<Access> access_;
  std::vector<u8> before_;
};

// Blocks are kept for later calls.
class Arena {
public:
  Block& open(size_t bytes, int placement, u64 seed);
  void freeze();
  void thaw();
  void clear() { used_.clear(), taken_.clear(); }
  const std::vector<Block*>& blocks() const { return used_; }

private:
  std::vector<Block*> pool_, used_;
  std::vector<bool> taken_;
};

}  // namespace rnx::fuzz
