// The operands of a call: the memory that its sizes and steps speak of.
#include <algorithm>

#include "arguments.h"

namespace rnx::fuzz {
namespace {

using test::bytesOf;

// Bytes of one element behind a pointer of this type.
s64 elementBytes(std::string_view type) {
  if (type.starts_with("const ")) type.remove_prefix(6);
  for (const auto& [tag, element] : test::kElementNames) {
    if (type.starts_with("Rnx") && type.substr(3).starts_with(tag) && type.substr(3 + tag.size()).starts_with("*")) {
      return bytesOf(element);
    }
  }
  if (type == "int*") return 4;
  if (type == "RnxiPoint*" || type == "Rnx64s*") return 8;
  return 16;  // RnxiRect, RnxiPointL, RnxiBorderSize, RnxiSizeL
}

int digitOf(std::string_view layout) {
  const auto at = layout.find_first_of("1234");
  return at == std::string_view::npos ? 1 : layout[at] - '0';
}

struct Channels {
  s64 count, used;  // used: 1 where a pointer names one channel of several
};

// Of the source or destination side of a layout such as C1, AC4, C3C, C4C1, AC4C3, C3P3.
Channels channelsOf(const Signature& s, bool isDestination) {
  std::string_view layout = s.layout;
  const auto firstDigit = layout.find_first_of("1234");
  if (firstDigit == std::string_view::npos) return {1, 1};
  const std::string_view source = layout.substr(0, firstDigit + 1), rest = layout.substr(firstDigit + 1);
  if (rest.empty()) {
    const bool oneChannel = s.form.starts_with("C");  // Set_8u_C3CR
    return {digitOf(source), oneChannel ? 1 : digitOf(source)};
  }
  if (rest == "C") return {digitOf(source), 1};
  const bool single = source == "C1" || rest == "C1";  // C3C1, C1C4: one channel on the wider side
  const int n = isDestination ? digitOf(rest) : digitOf(source);
  return {n, single && s.family == "Copy" ? 1 : n};
}

bool isStats(std::string_view role) { return role == "sum" || role == "mean" || role == "norm"; }

bool isImageRole(std::string_view role) {
  constexpr std::string_view kRoles[] = {"src",        "src1",       "src2",        "dst",       "srcdst",
                                         "mask",       "maskdst",    "src_channel", "dst_any",   "dst_channel",
                                         "src_planes", "dst_planes", "planes",      "dstplanes", "srcdstplanes",
                                         "bits_src",   "bits_dst"};
  return std::ranges::find(kRoles, role) != std::end(kRoles);
}

bool writes(std::string_view role) { return role.find("dst") != std::string_view::npos || role == "srcdst"; }

bool isPlanes(const Parameter& p) { return p.type.ends_with("* const*"); }

}  // namespace

// ---- Images ----

// The step follows a rule that was chosen before the row was known.
void Arguments::chooseStep(size_t index, s64 rowBytes) {
  const int rule = stepRules_[index];
  constexpr s64 kFar[] = {INT_MAX, INT_MIN, INT_MAX - 1, 0x40000000, -0x40000000};
  const bool checked = s_.checksFor("step") || s_.checksFor("filtersteps") || s_.checksFor("fftstep") ||
                       s_.has("dstroi") || s_.subsystem == "geom";
  s64 step = rowBytes;
  if (rule % 4 == 1) step += 64 - rowBytes % 64;
  if (rule % 4 == 2) step += rule % 23;
  if (rule % 4 == 3 && rule < 4 && !checked) step = -step;  // valid calls
  if (rule >= 160 && rule < 190) step = -step - rule % 3;
  if (rule >= 190 && rule < 200) step = 0;
  if (rule >= 200 && rule < 215) step = rowBytes - 1 - rule % 7;
  if (rule >= 215 && rule < 225) step = rule - 220;
  if (rule >= 250) step = kFar[static_cast<size_t>(rule - 250) % std::size(kFar)];
  if (rule == 249 && s_.isLong) step = INT64_MIN + 64;
  steps_[index] = step;
}

s64 Arguments::stepOf(size_t pointer) const { return steps_[pointer + 1]; }

void Arguments::describeImage(size_t index) {
  const Parameter& p = parameter(index);
  const bool written = writes(p.role) && p.role != "src";
  const Channels channels = channelsOf(s_, written && p.role != "srcdst");
  const s64 element = elementBytes(p.type);
  Sizes size = roi_;
  Operand o = {.parameter = index, .writable = written, .isImage = true};

  s64 pixel = channels.count * element, used = channels.used * element;
  if (isPlanes(p) || p.role == "mask" || p.role == "maskdst") pixel = used = element;
  if (p.role == "dst" && s_.family == "Transpose") size = {roi_.height, roi_.width};
  if (p.role == "dst" && s_.family == "Mirror" && (flip_ == 3 || flip_ == 4)) size = {roi_.height, roi_.width};
  if (s_.has("dstroi")) size = written ? dstRoi_ : srcRoi_;
  const bool isResize = s_.has("tileoffset");
  if (isResize) {
    // A tile that begins outside the destination is refused.
    const bool inside = tileX_ >= 0 && tileY_ >= 0 && tileX_ < result_.width && tileY_ < result_.height;
    const Sizes tile = {std::min(roi_.width, result_.width - (inside ? tileX_ : 0)),
                        std::min(roi_.height, result_.height - (inside ? tileY_ : 0))};
    size = !written ? whole_ : inside ? tile : Sizes{};
  }
  o.rows = size.height;
  o.rowBytes = size.width < 1 ? 0 : (std::min<s64>(size.width, s64{1} << 40) - 1) * pixel + used;
  if (p.role == "bits_src" || p.role == "bits_dst") {
    o.rowBytes = size.width < 1 ? 0 : (bitOffset_ % 8 + std::min<s64>(size.width, s64{1} << 40) + 7) / 8;
  }
  chooseStep(index + 1, o.rowBytes);
  const s64 step = o.step = stepOf(index);
  if (o.empty()) o.rows = o.rowBytes = 0;

  // The other channels between those of a channel pointer belong to the image, where its rows follow each other.
  if (used < pixel && step == size.width * pixel && !o.empty()) {
    o.rowBytes = bounded(static_cast<f64>(o.rows - 1) * static_cast<f64>(step)) + o.rowBytes;
    o.rows = 1;
  }

  // Frames and neighbourhoods reach beyond the pointer.
  const bool inPlaceFrame = s_.has("dstroi") && p.role == "srcdst";
  if (inPlaceFrame && !o.empty()) {
    o.first =
        bounded(-static_cast<f64>(top_) * static_cast<f64>(step) - static_cast<f64>(left_) * static_cast<f64>(pixel));
  }
  s64 above = 0, below = 0, before = 0, behind = 0;
  if (!written && isResize && s_.has("border")) {
    above = (border_ & rnxBorderInMemTop) != 0, below = (border_ & rnxBorderInMemBottom) != 0;
    before = (border_ & rnxBorderInMemLeft) != 0, behind = (border_ & rnxBorderInMemRight) != 0;
  }
  if (!written && s_.has("bordertype")) {
    const s64 kw = kernel_.width, kh = kernel_.height;
    if (border_ & rnxBorderInMemTop) above = (kh - 1) / 2;
    if (border_ & rnxBorderInMemBottom) below = kh - 1 - (kh - 1) / 2;
    if (border_ & rnxBorderInMemLeft) before = (kw - 1) / 2;
    if (border_ & rnxBorderInMemRight) behind = kw - 1 - (kw - 1) / 2;
  }
  if (!o.empty()) {
    o.first -= above * step + before * pixel;
    o.rows += above + below;
    o.rowBytes += (before + behind) * pixel;
    if (!written && isResize) o.first -= sourceY_ * step + sourceX_ * pixel;
  }
  if (!isPlanes(p)) {
    operands_.push_back(o);
    return;
  }
  const int planes = s_.layout.find('4') == std::string_view::npos ? 3 : 4;
  operands_.push_back({.parameter = index, .rowBytes = planes * 8});
  for (int plane = 0; plane < planes; ++plane) {
    o.plane = plane;
    operands_.push_back(o);
  }
}

// Arrays of values, results, specs, buffers.
void Arguments::describeArray(size_t index) {
  const Parameter& p = parameter(index);
  Operand o = {.parameter = index, .writable = p.isOutput()};
  const s64 element = elementBytes(p.type);
  const int channels = digitOf(s_.layout);
  o.rowBytes = element;
  if (p.role == "value" || p.role == "threshold" || p.role == "outside") {
    o.rowBytes = element * (s_.layout == "AC4" ? 3 : channels);
  } else if (p.role == "bordervalue" || isStats(p.role)) {
    o.rowBytes = element * channels;
  } else if (p.role == "order") {
    o.rowBytes = 4 * (s_.layout == "C4" || s_.layout == "C3C4" ? 4 : 3);
  } else if (p.role == "filterkernel") {
    o.rowBytes = std::min(kernel_.width, kernel_.height) < 1 ? element : element * kernel_.width * kernel_.height;
  } else if (p.name == "pSpec") {
    o.rowBytes = specBytes_;
  } else if (p.role == "meminit") {
    o.rowBytes = initBytes_;
    isNull_[index] = isNull_[index] || initBytes_ == 0;
  } else if (p.name == "pBuffer") {
    o.rowBytes = bufferBytes_;
    isNull_[index] = isNull_[index] || (bufferBytes_ == 0 && s_.subsystem == "fft");
  } else if (p.role == "border") {
    o.rowBytes = 0;  // not looked at
  }
  operands_.push_back(o);
}

void Arguments::describeOperands() {
  operands_.clear();
  const auto parameters = s_.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    const Parameter& p = parameters[i];
    if (!p.isPointer() || p.type == "const RnxiSizeL*" || p.role == "memory") continue;
    if (isImageRole(p.role) && p.role != "order") {
      describeImage(i);
    } else {
      describeArray(i);
    }
  }
}

// One operand may begin anywhere in another.
void Arguments::overlap() {
  if (!choose_.oneIn(4)) return;
  std::vector<int> images;
  for (size_t i = 0; i < operands_.size(); ++i) {
    if (operands_[i].isImage) images.push_back(static_cast<int>(i));
  }
  // Blocks of a spec may not overlap images, nor what the headers exclude.
  const bool excluded = s_.subsystem == "geom" || s_.subsystem == "filter" || s_.subsystem == "fft" ||
                        s_.family == "GrayToBin" || s_.family == "BinToGray";
  if (images.size() < 2) return;
  for (size_t i = 1; i < images.size(); ++i) {
    if (choose_.oneIn(3)) continue;
    Operand& o = operands_[static_cast<size_t>(images[i])];
    const Operand& root = operands_[static_cast<size_t>(images[0])];
    const u8 how = choose_.byte();
    s64 delta = 0;
    if (how >= 100) delta = choose_.between(-70, 70);
    if (how >= 180) delta = root.step * choose_.between(-2, 2) + choose_.between(-3, 3);
    if (excluded && (delta != 0 || s_.subsystem != "fft")) continue;
    if (s_.has("dstroi") && delta == 0) continue;  // means in place: those forms are exports of their own
    if (std::abs(static_cast<f64>(delta)) > kMostOperandBytes) continue;
    if (how % 4 != 3 && o.first == 0 && o.plane < 0) {  // most often with the same step
      o.step = steps_[o.parameter + 1] = root.step;
      if (!o.empty() && o.high() - o.low() > kMostOperandBytes) o.rows = 0, isNull_[o.parameter] = true;
    }
    o.anchor = images[0];
    o.delta = delta;
  }
}

s64 Arguments::largest() const {
  s64 most = 0;
  for (const Operand& o : operands_) {
    if (o.empty()) continue;
    f64 extent = std::abs(static_cast<f64>(o.rows - 1) * static_cast<f64>(o.step)) +
                 std::abs(static_cast<f64>(o.first)) + static_cast<f64>(o.rowBytes);
    extent = std::max(extent, static_cast<f64>(o.rows) * static_cast<f64>(o.rowBytes));  // the time, with steps of 0
    most = std::max(most, extent > 1e15 ? s64{1} << 50 : static_cast<s64>(extent));
  }
  return most;
}

void Arguments::shrink() {
  // The sizes of a plan are small enough: its steps were not.
  if (s_.subsystem == "geom" || (s_.subsystem == "fft" && !s_.has("roi"))) {
    for (int& rule : stepRules_) rule = rule >= 249 ? 0 : rule;
    return;
  }
  const bool flat = roi_.height <= 1 && srcRoi_.height <= 1 && dstRoi_.height <= 1;
  const auto halve = [](s64& n) { n = n > 1 ? n / 2 : n; };
  if (flat) {
    for (s64* n : {&roi_.width, &srcRoi_.width, &dstRoi_.width, &left_}) halve(*n);
    for (size_t i = 0; i < stepRules_.size(); ++i) {
      if (roi_.width <= 1 && stepRules_[i] >= 216) stepRules_[i] %= 160;
    }
  } else {
    for (s64* n : {&roi_.height, &srcRoi_.height, &dstRoi_.height, &top_}) halve(*n);
  }
  if (s_.has("bordertype") || s_.has("dstroi")) {
    for (int& rule : stepRules_) rule = rule >= 249 ? 0 : rule;
  }
  if (s_.has("filterroi") || s_.has("filterspec")) measureFilter();
  if (s_.family == "Mirror" || s_.family == "Transpose") {
    roi_.width = std::min(roi_.width, std::max<s64>(roi_.height, 1) * 64);
    if (s_.has("srcdst") && roi_.width > 0 && roi_.height > 0)
      roi_.width = roi_.height = std::min(roi_.width, roi_.height);
  }
}

// ---- Into memory ----

void Arguments::place() {
  const auto root = [&](const Operand& o) { return o.anchor < 0 ? &o : &operands_[static_cast<size_t>(o.anchor)]; };
  std::vector<Block*> blocks(operands_.size());
  for (size_t i = 0; i < operands_.size(); ++i) {
    if (operands_[i].anchor >= 0) continue;
    s64 low = 0, high = 0;
    bool any = false;
    for (const Operand& o : operands_) {
      if (root(o) != &operands_[i] || o.empty()) continue;
      low = any ? std::min(low, o.delta + o.low()) : o.delta + o.low();
      high = any ? std::max(high, o.delta + o.high()) : o.delta + o.high();
      any = true;
    }
    const u8 placement = choose_.byte();
    // Images, specs and buffers may lie anywhere, arrays of numbers where their type may.
    const Parameter& p = parameter(operands_[i].parameter);
    const bool anywhere = operands_[i].isImage || p.name == "pSpec" || p.name == "pBuffer" || p.role == "meminit";
    int where = placement % 4;
    if (where >= 2) where = 2 + (anywhere ? placement / 4 : placement / 64 * 16 + 14);
    Block& block = arena_.open(static_cast<size_t>(high - low), where, choose_.word(2) + i);
    blocks[i] = &block;
    operands_[i].pointer = reinterpret_cast<u8*>(reinterpret_cast<uintptr_t>(block.begin()) - static_cast<u64>(low));
  }
  for (size_t i = 0; i < operands_.size(); ++i) {
    Operand& o = operands_[i];
    if (o.anchor >= 0) {
      const Operand& base = *root(o);
      o.pointer = reinterpret_cast<u8*>(reinterpret_cast<uintptr_t>(base.pointer) + static_cast<u64>(o.delta));
      blocks[i] = blocks[static_cast<size_t>(o.anchor)];
    }
    for (s64 y = 0; y < o.rows && !o.empty(); ++y) {
      blocks[i]->allow(o.row(y), o.rowBytes, o.writable ? Access::kWrite : Access::kRead);
    }
  }

  const bool moderate = !choose_.oneIn(4);
  for (Operand& o : operands_) {
    const Parameter& p = parameter(o.parameter);
    if (moderate) fillFloats(o);
    if (o.plane >= 0) {
      void* planes;
      std::memcpy(&planes,
                  &operands_[static_cast<size_t>(&o - operands_.data()) - static_cast<size_t>(o.plane) - 1].pointer, 8);
      const void* plane = twist(60) ? nullptr : o.pointer;
      std::memcpy(static_cast<u8*>(planes) + 8 * o.plane, &plane, 8);
      call_.setAt(o.parameter + 1, steps_[o.parameter + 1]);
      continue;
    }
    // A bit offset of 8 and more counts modulo 8 only.
    call_.setAt(o.parameter, static_cast<const void*>(isNull_[o.parameter] ? nullptr : o.pointer));
    if (o.isImage) call_.setAt(o.parameter + 1, steps_[o.parameter + 1]);
    if (p.role == "order") {
      for (s64 k = 0; k < o.rowBytes / 4; ++k) {
        const bool four = s_.layout.starts_with("C4") || s_.layout == "C3C4";
        const int entry = static_cast<int>(number(0, four ? 3 : 2));
        std::memcpy(o.pointer + 4 * k, &entry, 4);
      }
    }
    // Random lower levels are seldom below random upper ones in every channel.
    if (p.name == "thresholdLT" && !twist(2)) std::memset(o.pointer, 0, static_cast<size_t>(o.rowBytes));
    if (p.name == "pSpec") fillSpec(o.pointer);
  }
}

// Random bits are numbers of absurd size, most of them.
void Arguments::fillFloats(const Operand& o) {
  if (floatBytes(parameter(o.parameter).type) == 0 || !o.isImage) return;
  const int bytes = floatBytes(parameter(o.parameter).type);
  u64 state = choose_.word(2) + 1;
  for (s64 y = 0; y < o.rows; ++y) {
    u8* row = o.row(y);
    for (s64 x = 0; x + bytes <= o.rowBytes; x += bytes) {
      state = state * 6364136223846793005u + 1442695040888963407u;
      const f64 value = static_cast<f64>(static_cast<s64>(state) >> 40) / 8192;  // up to 1024
      const f32 single = static_cast<f32>(value);
      std::memcpy(row + x, bytes == 4 ? static_cast<const void*>(&single) : &value, static_cast<size_t>(bytes));
    }
  }
}

}  // namespace rnx::fuzz
