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

void valueRange(ValidCall& valid, size_t index) {  // vMin, vMax
  valid.call().setAt(index, valid.call().signature().parameters()[index].name == "vMax" ? 1 : 0);
}

void filterDataType(ValidCall& valid, size_t index) {
  valid.call().setAt(index, valid.call().signature().types == "64f" ? rnx64f : rnx8u);
}

// The spec of a 3 x 3 kernel for the function's own images.
void filterSpec(ValidCall& valid, size_t index) {
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(valid.memory());
  const Element e = valid.call().signature().source();
  constexpr RnxiSize kKernel = {3, 3};
  if (e == Element::k64f) {
    constexpr f64 kOnes[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    rnxiFilterBorderInit_64f(kOnes, kKernel, rnx64f, 1, rnxRoundNearestEven, spec);
  } else {
    constexpr f32 kOnes[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
    rnxiFilterBorderInit_32f(kOnes, kKernel, e == Element::k32f ? rnx32f : rnx8u, 1, rnxRoundNearestEven, spec);
  }
  valid.call().setAt(index, spec);
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
    {"threshold", number<1>},
    {"threshold_value", number<1>},
    {"levels", number<1>},
    {"src_bit", number<0>},
    {"dst_bit", number<0>},
    {"outside", number<1>},
    {"cmpop", number<0>},
    {"relation", number<0>},
    {"anyround", number<1>},
    {"power", number<0>},
    {"hint", number<0>},
    {"muladd", number<2>},
    {"range", valueRange},
    {"alpha", number<1>},
    {"pixelwidth", number<5>},
    {"pixelheight", number<5>},
    {"srcroi", size<ValidCall::kSize>},
    {"dstroi", size<ValidCall::kLarge>},
    {"top", number<2>},
    {"left", number<2>},
    {"filterdatatype", filterDataType},
    {"filterkerneltype", number<rnx16s>},
    {"filterchannels", number<1>},
    {"filterround", number<rnxRoundNearestEven>},
    {"filterdivisor", number<2>},
    {"filterhint", number<0>},
    {"filteroffset", number<0>},
    {"filterspec", filterSpec},
    {"bordertype", number<rnxBorderConst>},
    {"bits_src", number<0>},  // their bit offsets
    {"bits_dst", number<0>},
    {"threshold_value", number<1>},
    {"levels", number<1>},
};

// Steps, and pointers where the role is a number or an array of them, have values that follow from the C type.
const RoleValue* find(const Parameter& p) {
  const auto found = std::ranges::find(kRoles, p.role, &RoleValue::role);
  if (found == std::end(kRoles) || p.isStep()) return nullptr;
  const bool isNumber = found->set == number<0> || found->set == number<1> || found->set == number<2>;
  return p.isPointer() && isNumber ? nullptr : found;
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
