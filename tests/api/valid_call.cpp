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

template <s64 N>
void size(ValidCall& valid, size_t index) {
  static const RnxiSizeL large = {N, N};
  const RnxiSize plain = {static_cast<int>(N), static_cast<int>(N)};
  if (valid.call().signature().parameters()[index].isPointer()) {
    valid.call().setAt(index, &large);
  } else {
    valid.call().setAt(index, plain);
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
constexpr RoleValue kRoles[] = {
    {"value", number<1>},
    {"one_value", number<1>},
    {"fourth", number<1>},
    {"scale", number<0>},
    {"round", number<1>},
    {"flip", number<0>},
    {"cacheflags", number<0>},
    {"order", channelOrder},
    {"pixelwidth", number<5>},
    {"pixelheight", number<5>},
    {"srcroi", size<ValidCall::kSize>},
    {"dstroi", size<ValidCall::kLarge>},
    {"top", number<2>},
    {"left", number<2>},
};

const RoleValue* find(std::string_view role) {
  const auto found = std::ranges::find(kRoles, role, &RoleValue::role);
  return found == std::end(kRoles) ? nullptr : found;
}

// Values for everything else follow from the C type.
bool hasDefault(const Parameter& p) { return p.isPointer() || p.isStep() || p.type == "RnxiSize"; }

bool isPlanes(const Parameter& p) { return p.type.ends_with("* const*") || p.type.ends_with("**"); }

}  // namespace

std::vector<std::string> ValidCall::unknownRoles(const Signature& s) {
  std::vector<std::string> unknown;
  for (const Parameter& p : s.parameters()) {
    if (find(p.role) == nullptr && !hasDefault(p)) unknown.emplace_back(p.role);
  }
  return unknown;
}

ValidCall::ValidCall(const Signature& s) : random_(s.name), call_(s) {
  const auto parameters = s.parameters();
  for (size_t i = 0; i < parameters.size(); ++i) {
    const RoleValue* role = find(parameters[i].role);
    // The array form of a constant is memory like any other.
    const bool isArray = parameters[i].isPointer() && role != nullptr && role->set == number<1>;
    if (role != nullptr && !isArray) {
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
