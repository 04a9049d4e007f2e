#include "arguments.h"

#include <algorithm>

namespace rnx::fuzz {
namespace {

using test::bytesOf;
using test::Element;

template <class F>
void forgiveNaN(u8* bytes, s64 count) {
  for (s64 i = 0; i + s64{sizeof(F)} <= count; i += s64{sizeof(F)}) {
    F value;
    std::memcpy(&value, bytes + i, sizeof(F));
    if (value != value) std::memset(bytes + i, 0xff, sizeof(F));
  }
}

struct Range {
  std::string_view role;
  s64 low, high;
};
// What the checks of a role accept, or nearly.
constexpr Range kRanges[] = {
    {"scale", -34, 34},       {"power", -40, 40},          {"anyround", -1, 3},    {"round", 0, 2},
    {"flip", 0, 4},           {"relation", 0, 4},          {"cacheflags", 0, 1},   {"hint", 0, 2},
    {"channels", 3, 4},       {"antialiasing", 0, 1},      {"filterround", 0, 2},  {"filterdivisor", 1, 40},
    {"filterchannels", 1, 4}, {"filteroffset", -300, 300}, {"filterhint", 0, 2},   {"ffthint", 0, 2},
    {"orders", 0, 7},         {"pixelwidth", 1, 300},      {"pixelheight", 1, 40},
};
constexpr s64 kTypeCodes[] = {rnx8u, rnx16u, rnx16s, rnx32f, rnx64f};
constexpr u32 kBorders[] = {rnxBorderRepl, rnxBorderMirror, rnxBorderMirrorR, rnxBorderConst, rnxBorderInMem};

f64 anyFloat(Chooser& choose) {
  constexpr f64 kSpecial[] = {0, -0.0, 1, -1, 0.5, -2.5, 255, 1e-40, 3e38, -1e300, 1e10};
  switch (choose.byte() % 8) {
    case 0:
      return __builtin_inf();
    case 1:
      return __builtin_nan("");
    case 2: {
      const u64 bits = choose.word(8);
      f64 value;
      std::memcpy(&value, &bits, 8);
      return value;
    }
    case 3:
      return static_cast<f64>(choose.between(-1000, 1000)) / 16;
    default:
      return choose.pick(kSpecial);
  }
}

}  // namespace

Arena Arguments::arena_;

Arguments::Arguments(const Signature& signature, Chooser& choose, Mood mood)
    : s_(signature), choose_(choose), mood_(mood), call_(signature) {
  arena_.clear();
  // First of all, whatever the input goes on to choose.
  for (size_t i = 0; i < s_.parameters().size(); ++i) stepRules_[i] = hostile() ? choose_.byte() : choose_.byte() % 4;
  chooseScalars();
  chooseSizes();
  chooseSpec();
  describeOperands();
  for (int i = 0; i < 200 && largest() > kMostOperandBytes; ++i) shrink(), describeOperands();
  if (hostile()) overlap();
  place();
  setSizes();
}

// ---- Sizes ----

s64 Arguments::length(bool isLarge) {
  const u8 kind = choose_.byte();
  if (!hostile()) return isLarge && kind < 40 ? choose_.between(70, 700) : 1 + kind % 70;
  if (kind < 190) return 1 + kind % 70;
  if (kind < 220) return choose_.between(1, 2000);
  if (kind < 235) return -(kind % 2);
  return choose_.anyInteger(s_.isLong);
}

s64 Arguments::number(s64 low, s64 high) {
  return twist(12) ? choose_.anyInteger(s_.isLong) : choose_.between(low, high);
}

void Arguments::chooseSizes() {
  roi_ = {length(true), length()};
  if ((s_.family == "Mirror" || s_.family == "Transpose") && s_.has("srcdst") && !twist(16)) roi_.height = roi_.width;
  if (s_.has("dstroi")) {
    srcRoi_ = {length(true), length()};
    top_ = number(0, 20), left_ = number(0, 20);
    dstRoi_ = {length(true), length()};
    if (!twist(8)) {  // wrap, too: any frame around the source
      dstRoi_ = {bounded(static_cast<f64>(srcRoi_.width) + static_cast<f64>(left_)) + choose_.between(0, 40),
                 bounded(static_cast<f64>(srcRoi_.height) + static_cast<f64>(top_)) + choose_.between(0, 40)};
    }
  }
}

// ---- Numbers ----

void Arguments::chooseScalars() {
  const auto parameters = s_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    isNull_[i] = parameters[i].isPointer() && twist(80);
    if (!parameters[i].isPointer() && !parameters[i].isStep()) chooseScalar(i);
  }
}

void Arguments::chooseScalar(size_t index) {
  const Parameter& p = parameter(index);
  if (p.type == "Rnx32f" || p.type == "Rnx64f") {
    f64 value = anyFloat(choose_);
    if (p.role == "range" && !hostile()) value = p.name == "vMin" ? -3 : 200;
    call_.setAt(index, value);
    return;
  }
  if (p.type == "Rnx32fc" || p.type == "Rnx32sc" || p.type.starts_with("Rnxi")) {
    if (p.type != "RnxiBorderType") return;  // sizes and places are set when they are known
    border_ = choose_.pick(kBorders);
    if (border_ != rnxBorderInMem && choose_.oneIn(2)) border_ |= static_cast<u32>(choose_.byte() & 0xf0);
    if (twist(12)) border_ = static_cast<u32>(choose_.anyInteger(false));
    call_.setAt(index, border_);
    return;
  }
  s64 value = 0;
  const auto range = std::ranges::find(kRanges, p.role, &Range::role);
  if (range != std::end(kRanges)) {
    value = number(range->low, range->high);
  } else if (p.role == "cmpop") {
    value = twist(12) ? choose_.anyInteger(false) : (choose_.oneIn(2) ? 4 : 0);
  } else if (p.role == "flag") {
    value = twist(12) ? choose_.anyInteger(false) : 1 << choose_.between(0, 3);
  } else if (p.role == "interpolation") {
    constexpr s64 kKinds[] = {rnxNearest, rnxLinear, rnxCubic, rnxSuper, rnxLanczos};
    value = twist(12) ? choose_.anyInteger(false) : choose_.pick(kKinds);
  } else if (p.role == "elementtype" || p.role == "filterdatatype" || p.role == "filterkerneltype") {
    value = twist(12) ? choose_.anyInteger(false) : choose_.pick(kTypeCodes);
  } else if (p.name.ends_with("BitOffset")) {
    value = bitOffset_ = number(0, 20);
  } else if (p.role == "outside") {
    value = p.name == "thresholdLT" ? choose_.between(0, 40) : p.name == "thresholdGT" ? choose_.between(30, 100) : 7;
    if (hostile()) value = static_cast<s64>(choose_.word());
  } else {
    value = static_cast<s64>(choose_.word());  // a pixel value
  }
  if (p.role == "flip") flip_ = value;
  call_.setAt(index, value);
}

// ---- The call ----

void Arguments::setSizes() {
  const auto parameters = s_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    const Parameter& p = parameters[i];
    const auto set = [&](const Sizes& size) {
      if (p.type == "RnxiSize") {
        call_.setAt(i, RnxiSize{static_cast<int>(size.width), static_cast<int>(size.height)});
      } else if (p.type == "const RnxiSizeL*") {
        longSizes_.push_back({size.width, size.height});
        call_.setAt(i, static_cast<const void*>(isNull_[i] ? nullptr : &longSizes_.back()));
      }
    };
    if (p.role == "srcroi") {
      set(srcRoi_);
    } else if (p.role == "dstroi") {
      set(dstRoi_);
    } else if (p.role == "srcsize") {
      set(whole_);
    } else if (p.role == "dstsize") {
      set(result_);
    } else if (p.role == "filterkernelsize") {
      set({kernel_.width, kernel_.height});
    } else if (p.role == "top") {
      call_.setAt(i, top_);
    } else if (p.role == "left") {
      call_.setAt(i, left_);
    } else if (p.role == "tileoffset") {
      if (p.type == "RnxiPoint") {
        call_.setAt(i, RnxiPoint{static_cast<int>(tileX_), static_cast<int>(tileY_)});
      } else {
        call_.setAt(i, RnxiPointL{tileX_, tileY_});
      }
    } else if (p.role == "dstrect") {
      call_.setAt(i, RnxiRect{static_cast<int>(tileX_), static_cast<int>(tileY_), static_cast<int>(roi_.width),
                              static_cast<int>(roi_.height)});
    } else {
      set(roi_);  // roi, tilesize, transformsize, filterroi
    }
  }
}

void Arguments::freeze() { arena_.freeze(); }
void Arguments::thaw() { arena_.thaw(); }

std::vector<u8> Arguments::results() const {
  std::vector<u8> all;
  for (const Operand& o : operands_) {
    const Parameter& p = parameter(o.parameter);
    if (!o.writable || o.empty() || p.name == "pSpec" || p.name == "pBuffer" || p.role == "meminit") continue;
    for (s64 y = 0; y < o.rows; ++y) {
      const u8* row = o.row(y);
      all.insert(all.end(), row, row + o.rowBytes);
      u8* copy = all.data() + all.size() - o.rowBytes;
      if (floatBytes(p.type) == 4) forgiveNaN<f32>(copy, o.rowBytes);
      if (floatBytes(p.type) == 8) forgiveNaN<f64>(copy, o.rowBytes);
    }
  }
  return all;
}

bool Arguments::isComparable() const {
  return std::ranges::none_of(operands_, [&](const Operand& o) {
    const int element = floatBytes(parameter(o.parameter).type);
    if (!o.isImage || element == 0 || o.empty()) return false;
    const bool rowsOverlap = o.writable && o.rows > 1 && std::abs(o.step) < o.rowBytes;
    return rowsOverlap || (o.anchor >= 0 && (o.delta % element != 0 || o.step % element != 0));
  });
}

std::string Arguments::difference(const std::vector<u8>& one, const std::vector<u8>& other) const {
  size_t at = 0;
  while (at < one.size() && one[at] == other[at]) ++at;
  return "the results differ, first in byte " + std::to_string(at) + " of " + std::to_string(one.size()) +
         describe(nullptr);
}

// Each operand, and where it has the byte.
std::string Arguments::describe(const u8* byte) const {
  std::string text;
  for (size_t i = 0; i < s_.parameters().size(); ++i) {
    if (!parameter(i).isPointer() && !parameter(i).isStep()) {
      text += "\n  " + std::string(parameter(i).name) + " " + std::to_string(call_.integerAt(i));
    }
  }
  text += "\n  ROI " + std::to_string(roi_.width) + " x " + std::to_string(roi_.height) + ", kernel " +
          std::to_string(kernel_.width) + " x " + std::to_string(kernel_.height) + ", spec content " +
          std::to_string(static_cast<int>(content_)) + ", kind " + std::to_string(specKind_) + ", type " +
          std::to_string(specType_);
  for (const Operand& o : operands_) {
    text += "\n  " + std::string(parameter(o.parameter).name) + ": ";
    if (byte != nullptr) text += "byte " + std::to_string(byte - o.pointer) + " of ";
    text += std::to_string(o.rows) + " rows of " + std::to_string(o.rowBytes) + " bytes, step " +
            std::to_string(o.step) + ", first " + std::to_string(o.first);
    if (o.anchor >= 0) text += ", overlaps at " + std::to_string(o.delta);
  }
  return text;
}

std::string Arguments::verdict(RnxStatus status) const {
  // The size queries write zeros when they refuse.
  const bool images = std::ranges::any_of(operands_, &Operand::isImage);
  const bool mayWrite = status >= 0 || !images;
  for (const Block* block : arena_.blocks()) {
    const u8* byte = block->damage(mayWrite);
    if (byte == nullptr) continue;
    return std::string(status < 0 ? "a refused call wrote" : "a byte was written that may not be") + describe(byte);
  }
  return {};
}

}  // namespace rnx::fuzz
