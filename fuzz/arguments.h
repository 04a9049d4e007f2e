// Arguments for any export: images that lie in guarded memory of the size that the arguments say, numbers of every
// kind, specs that are fresh, stale or rubbish.
#pragma once

#include <algorithm>
#include <array>
#include <deque>
#include <string>
#include <vector>

#include "arena.h"
#include "chooser.h"
#include "support/call.h"

namespace rnx::fuzz {

using test::Call;
using test::Parameter;
using test::Signature;

// Far values stay far, and sums of them in range.
inline s64 bounded(f64 value) {
  constexpr f64 kFar = 0x1p50;
  return static_cast<s64>(std::clamp(value, -kFar, kFar));
}

inline constexpr s64 kMostOperandBytes = 1 << 20;

// 4 for images of floats, 8 for images of doubles, else 0.
inline int floatBytes(std::string_view type) {
  if (type.find("Rnx32f") != std::string_view::npos) return 4;
  return type.find("Rnx64f") != std::string_view::npos ? 8 : 0;
}

enum class Mood {
  kValid,   // what a careful caller passes
  kHostile  // null pointers, absurd sizes and steps, overlaps, damaged specs
};

// Memory behind one pointer: rows at `first`, `first + step` ... from it.
struct Operand {
  size_t parameter;
  int plane = -1;  // of an array of planes
  s64 first = 0, step = 0, rowBytes = 0, rows = 1;
  bool writable = false;
  bool isImage = false;
  int anchor = -1;  // the operand that this one overlaps, at `delta` bytes from its pointer
  s64 delta = 0;
  u8* pointer = nullptr;

  s64 low() const { return first + std::min<s64>(0, (rows - 1) * step); }
  s64 high() const { return first + std::max<s64>(0, (rows - 1) * step) + rowBytes; }
  // Through integers: the pointer itself may lie anywhere.
  u8* row(s64 y) const {
    return reinterpret_cast<u8*>(reinterpret_cast<uintptr_t>(pointer) + static_cast<u64>(first + y * step));
  }
  bool empty() const { return rows < 1 || rowBytes < 1; }
};

class Arguments {
public:
  Arguments(const Signature& signature, Chooser& choose, Mood mood);

  Call& call() { return call_; }
  Arena& arena() { return arena_; }
  void freeze();
  void thaw();
  // What is wrong with the memory after a call that returned this status; empty where nothing is.
  std::string verdict(RnxStatus status) const;
  // What the call wrote, without specs and scratch memory. Any float that is not a number is the same one.
  std::vector<u8> results() const;
  // Whether the result is defined to the last bit: not where float elements share bytes, for then the bits of what is
  // not a number count.
  bool isComparable() const;
  // Where two results of one call differ.
  std::string difference(const std::vector<u8>& one, const std::vector<u8>& other) const;

  // The arguments in words, and where each operand has the byte, unless that is null.
  std::string describe(const u8* byte) const;

private:
  struct Sizes {
    s64 width = 0, height = 0;
  };

  const Signature& s_;
  Chooser& choose_;
  Mood mood_;
  Call call_;
  static Arena arena_;
  std::vector<Operand> operands_;
  std::deque<RnxiSizeL> longSizes_;
  std::array<s64, test::kMaxParameters> steps_{};      // by parameter
  std::array<int, test::kMaxParameters> stepRules_{};  // how they follow from the row
  std::array<bool, test::kMaxParameters> isNull_{};
  Sizes roi_, srcRoi_, dstRoi_;
  s64 top_ = 0, left_ = 0, flip_ = 0, bitOffset_ = 0;
  u32 border_ = 0;

  // The plan of a resize, a filter or a transform.
  Sizes whole_, result_;
  s64 tileX_ = 0, tileY_ = 0, sourceX_ = 0, sourceY_ = 0;
  RnxiSize kernel_ = {1, 1};
  s64 specBytes_ = 64, bufferBytes_ = 64, initBytes_ = 0;
  // What the block holds: a spec of the right kind, of another kind, random bytes or zeros. `specKind_` and `specType_`
  // say which spec it is, in the terms of its subsystem.
  enum class Content { kFresh, kStale, kRandom, kZeros } content_ = Content::kFresh;
  int specKind_ = 0, specType_ = 0;
  bool specIsLong_ = false;

  bool hostile() const { return mood_ == Mood::kHostile; }
  bool twist(int n) { return hostile() && choose_.oneIn(n); }
  s64 length(bool isLarge = false);
  s64 number(s64 low, s64 high);
  const Parameter& parameter(size_t i) const { return s_.parameters()[i]; }

  void chooseSizes();
  void chooseSpec();
  void chooseResize();
  void chooseTile();
  void chooseTransform();
  void chooseFilter();
  void measureFilter();
  void fillSpec(u8* block);
  int typeCode() const;
  void chooseScalars();
  void chooseScalar(size_t index);
  void chooseStep(size_t index, s64 rowBytes);

  void describeOperands();  // from the sizes
  void describeImage(size_t index);
  void describeArray(size_t index);
  s64 stepOf(size_t pointer) const;
  s64 largest() const;
  void shrink();
  void overlap();
  void place();
  void fillFloats(const Operand& operand);
  void setSizes();
};

}  // namespace rnx::fuzz
