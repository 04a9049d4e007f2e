#include "api/valid_call.h"

#include <algorithm>

namespace rnx::test {
namespace {

// ---- The value of each role that is not an image, an array of any values or the ROI. A family adds its own here. ----

using SetRole = void (*)(ValidCall& valid, size_t index);

template <s64 N>
void number(ValidCall& valid, size_t index) {
  valid.call().setAt(index, N);
}

// Where a later parameter of the role has to be the larger one.
void rising(ValidCall& valid, size_t index) { valid.call().setAt(index, index); }

template <s64 N>
void size(ValidCall& valid, size_t index) {
  static const RnxiSizeL large = {N, N};
  if (valid.call().signature().isLong) {
    valid.call().setAt(index, &large);
  } else {
    valid.call().setAt(index, RnxiSize{static_cast<int>(N), static_cast<int>(N)});
  }
}

void channelOrder(ValidCall& valid, size_t index) {
  static const int order[] = {2, 1, 0, 2};
  valid.call().setAt(index, order);
}

struct RoleValue {
  std::string_view role;
  SetRole set;
};

// Numbers. Where a layout makes an array of the role, it is memory like any other.
constexpr RoleValue kNumbers[] = {
    {"value", number<1>},    {"one_value", number<1>},  {"fourth", number<1>},
    {"alpha", number<1>},    {"threshold", number<1>},  {"threshold_value", number<1>},
    {"levels", number<1>},   {"muladd", number<2>},     {"scale", number<0>},
    {"power", number<0>},    {"round", number<1>},      {"anyround", number<1>},
    {"hint", number<0>},     {"cacheflags", number<0>}, {"flip", number<0>},
    {"relation", number<0>}, {"cmpop", number<0>},      {"top", number<2>},
    {"left", number<2>},     {"bits_src", number<0>},   {"bits_dst", number<0>},
    {"outside", rising},     {"range", rising},
};
constexpr RoleValue kOthers[] = {
    {"order", channelOrder},
    {"srcroi", size<ValidCall::kSize>},
    {"dstroi", size<ValidCall::kLarge>},
};

// Null where the value follows from the C type.
const RoleValue* find(const Parameter& p) {
  if (const auto other = std::ranges::find(kOthers, p.role, &RoleValue::role); other != std::end(kOthers)) return other;
  if (p.isPointer() || p.isStep()) return nullptr;
  const auto number = std::ranges::find(kNumbers, p.role, &RoleValue::role);
  return number == std::end(kNumbers) ? nullptr : number;
}

bool hasDefault(const Parameter& p) { return p.isPointer() || p.isStep() || p.type == "RnxiSize"; }

bool isPlanes(const Parameter& p) { return p.type.ends_with("* const*") || p.type.ends_with("**"); }

}  // namespace

std::vector<std::string> ValidCall::unknownRoles(const Signature& s) {
  std::vector<std::string> unknown;
  for (const Parameter& p : s.parameters()) {
    if (find(p) == nullptr && !hasDefault(p)) unknown.emplace_back(p.role);
  }
  return unknown;
}

ValidCall::ValidCall(const Signature& s) : random_(s.name), call_(s) {
  const auto parameters = s.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    if (const RoleValue* role = find(parameters[i])) {
      role->set(*this, i);
    } else {
      setDefault(i);
    }
  }
}

void ValidCall::setDefault(size_t index) {
  const Parameter& p = call_.signature().parameters()[index];
  if (p.role == "roi") {
    call_.roi(kSize, kSize);
  } else if (isPlanes(p)) {
    auto& planes = planes_.emplace_back();
    for (void*& plane : planes) plane = memory();
    call_.setAt(index, planes.data());
  } else if (p.isPointer()) {
    // In place with a border, the image lies two rows and two pixels inside its memory.
    const bool hasBorder = p.role == "srcdst" && call_.signature().has("dstroi");
    call_.setAt(index, memory() + (hasBorder ? 2 * kStep + 64 : 0));
  } else if (p.isStep()) {
    call_.setAt(index, kStep);
  } else if (p.type == "RnxiSize") {
    call_.setAt(index, RnxiSize{kSize, kSize});
  }
}

u8* ValidCall::memory() {
  Image& image = memory_.emplace_back();
  image.place({kBytes, 1, kBytes}, Placement::kInside, random_);
  std::memset(image.data(), 1, kBytes);
  return image.data();
}

void ValidCall::freeze() {
  for (Image& image : memory_) image.expectNow();
}

testing::AssertionResult ValidCall::untouched() {
  for (Image& image : memory_) {
    if (auto result = image.matches(); !result) return result;
  }
  return testing::AssertionSuccess();
}

}  // namespace rnx::test
