#include "api/violations.h"

#include <algorithm>
#include <climits>
#include <limits>
#include <memory>

namespace rnx::test {
namespace {

using Violations = std::vector<Violation>;

void appendNumbers(Violations& list, const Parameter& p, std::initializer_list<s64> values) {
  for (s64 value : values) {
    list.push_back({std::string(p.name) + " = " + std::to_string(value),
                    [name = p.name, value](Call& call) { call.set(name, value); }});
  }
}

Violations numbersOf(const Signature& s, std::string_view role, std::initializer_list<s64> values) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (p.role == role && !p.isPointer()) appendNumbers(list, p, values);
  }
  return list;
}

// An array of ints in place of a role's pointer.
Violation arrayOf(std::string_view role, std::array<int, 4> values, const std::string& what) {
  return {what, [role, values = std::make_shared<std::array<int, 4>>(values)](Call& call) {
            call.setAt(call.indexOfRole(role), values->data());
          }};
}

// ---- Pointers ----

// Checks that take the pointer of one role out of the common check.
struct Claim {
  std::string_view token, role;
};
constexpr Claim kClaims[] = {{"value_null", "value"}, {"order_null", "order"}};

bool isClaimed(const Signature& s, std::string_view role) {
  return std::ranges::any_of(kClaims, [&](const Claim& c) { return c.role == role && s.checksFor(c.token); });
}

Violation nullOf(const Parameter& p) {
  return {std::string(p.name) + " null", [name = p.name](Call& call) { call.set(name, nullptr); }};
}

Violations nulls(const Signature& s) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (!p.isPointer() || isClaimed(s, p.role)) continue;
    list.push_back(nullOf(p));
    if (!p.type.ends_with("* const*")) continue;
    const int planes = s.layout.find('4') == std::string_view::npos ? 3 : 4;
    for (int plane = 0; plane < planes; ++plane) {
      list.push_back({std::string(p.name) + "[" + std::to_string(plane) + "] null", [name = p.name, plane](Call& call) {
                        static thread_local std::array<void*, 4> copy;
                        const size_t index = call.indexOf(name);
                        std::memcpy(copy.data(), reinterpret_cast<void*>(call.integerAt(index)), sizeof copy);
                        copy[static_cast<size_t>(plane)] = nullptr;
                        call.setAt(index, copy.data());
                      }});
    }
  }
  return list;
}

template <size_t kIndex>
Violations nullOfClaim(const Signature& s) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (p.role == kClaims[kIndex].role && p.isPointer()) list.push_back(nullOf(p));
  }
  return list;
}

// ---- Sizes and steps ----

void appendRoi(Violations& list, s64 width, s64 height) {
  list.push_back({"roi " + std::to_string(width) + " x " + std::to_string(height),
                  [width, height](Call& call) { call.roi(width, height); }});
}

Violations sizes(const Signature&) {
  constexpr s64 n = ValidCall::kSize;
  Violations list;
  for (s64 bad : {s64{0}, s64{-1}, s64{INT_MIN}}) {
    appendRoi(list, bad, n);
    appendRoi(list, n, bad);
  }
  appendRoi(list, 0, 0);
  appendRoi(list, -n, -n);
  appendRoi(list, 0, INT_MAX);
  return list;
}

Violations steps(const Signature& s) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (p.isStep()) appendNumbers(list, p, {0, -1, -ValidCall::kStep, INT_MIN + 2});
  }
  return list;
}

Violations zeroSteps(const Signature& s) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (p.isStep()) appendNumbers(list, p, {0});
  }
  return list;
}

Violations squareSizes(const Signature& s) {
  Violations list = sizes(s);
  if (s.has("srcdst")) appendRoi(list, 4, 5), appendRoi(list, 5, 4);
  return list;
}

Violations borderSizes(const Signature& s) {
  Violations list;
  for (const char* role : {"srcroi", "dstroi"}) {
    for (RnxiSizeL size : {RnxiSizeL{0, 5}, {5, 0}, {-1, 5}, {5, INT_MIN}}) {
      list.push_back({std::string(role) + " too small", [role, size = std::make_shared<RnxiSizeL>(size)](Call& call) {
                        const size_t index = call.indexOfRole(role);
                        const RnxiSize plain = {static_cast<int>(size->width), static_cast<int>(size->height)};
                        if (call.signature().isLong) {
                          call.setAt(index, size.get());
                        } else {
                          call.setAt(index, plain);
                        }
                      }});
    }
  }
  // kLarge - kSize is the most that fits.
  for (const char* role : {"top", "left"}) {
    for (Violation& v : numbersOf(s, role, {-1, INT_MIN, ValidCall::kLarge - ValidCall::kSize + 1, INT_MAX})) {
      list.push_back(std::move(v));
    }
  }
  return list;
}

// ---- Parameters of the operations ----

// One zero among the constants of the channels that are used.
Violations zeroDivisors(const Signature& s) {
  if (s.layout == "C1") return numbersOf(s, "value", {0});
  Violations list;
  const int used = s.hasAlpha() ? 3 : s.channels();
  for (int channel = 0; channel < used; ++channel) {
    withType(s.source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) {
        for (T none : std::is_floating_point_v<T> ? std::vector<T>{T(0), -T(0)} : std::vector<T>{T(0)}) {
          auto values = std::make_shared<std::array<T, 4>>(std::array<T, 4>{1, 1, 1, 1});
          (*values)[static_cast<size_t>(channel)] = none;
          list.push_back({"value[" + std::to_string(channel) + "] = 0",
                          [values](Call& call) { call.role("value", values->data()); }});
        }
      }
    });
  }
  return list;
}

Violations roundModes(const Signature& s) { return numbersOf(s, "round", {-1, 3, INT_MIN, INT_MAX}); }

Violations mirrorAxes(const Signature& s) { return numbersOf(s, "flip", {-1, 5, INT_MIN, INT_MAX}); }

Violations bitOffsets(const Signature& s) {
  return numbersOf(s, s.family == "GrayToBin" ? "dst_bit" : "src_bit", {-1, INT_MIN});
}

Violations channelOrders(const Signature& s) {
  Violations list;
  const bool toFour = s.layout == "C3C4", four = s.layout == "C4" || s.layout == "C4C3";
  const size_t entries = s.layout == "C4" || toFour ? 4 : 3;
  for (size_t i = 0; i < entries; ++i) {
    for (int bad : {-1, INT_MIN, four ? 4 : 3, INT_MAX}) {
      if (toFour && bad >= 0) continue;
      std::array<int, 4> order = {0, 1, 2, 0};
      order[i] = bad;
      list.push_back(arrayOf("order", order, "dstOrder[" + std::to_string(i) + "] = " + std::to_string(bad)));
    }
  }
  return list;
}

// ---- Values ----

Violations thresholdSelectors(const Signature& s) { return numbersOf(s, "cmpop", {-1, 1, 2, 3, 5, INT_MIN, INT_MAX}); }

// An upper level of 0 in one channel; the valid ones are above.
Violations crossedThresholds(const Signature& s) {
  Violations list;
  if (s.layout == "C1") {
    appendNumbers(list, s.parameters()[s.parameters().size() - 2], {0});
    return list;
  }
  for (size_t channel = 0; channel < 3; ++channel) {
    withType(s.source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) {
        auto values = std::make_shared<std::array<T, 4>>(std::array<T, 4>{T(9999), T(9999), T(9999), T(9999)});
        (*values)[channel] = 0;
        list.push_back({"thresholdGT[" + std::to_string(channel) + "] = 0",
                        [values](Call& call) { call.set("thresholdGT", values->data()); }});
      }
    });
  }
  return list;
}

Violations valueRanges(const Signature&) {
  constexpr f32 kNaN = std::numeric_limits<f32>::quiet_NaN(), kInfinity = std::numeric_limits<f32>::infinity();
  const std::pair<f32, f32> ranges[] = {{1, 1}, {0, -0.0f}, {1, 0}, {kNaN, 1}, {0, kNaN}, {kInfinity, kInfinity}};
  Violations list;
  for (const auto& [low, high] : ranges) {
    list.push_back({"range " + std::to_string(low) + " to " + std::to_string(high),
                    [low = low, high = high](Call& call) { call.set("vMin", low).set("vMax", high); }});
  }
  return list;
}

Violations bitOffsets(const Signature& s) {
  Violations list;
  for (const Parameter& p : s.parameters()) {
    if (p.name.ends_with("BitOffset")) appendNumbers(list, p, {-1, -8, INT_MIN});
  }
  return list;
}

// ---- The linear filter ----

// The size query writes zeros when it refuses: tests of its own look after that.
bool isSizeQuery(const Signature& s) { return s.family == "FilterBorderGetSize"; }

Violations kernelSizes(const Signature&) {
  Violations list;
  for (RnxiSize size : {RnxiSize{0, 3}, {3, 0}, {-1, 3}, {INT_MIN, INT_MIN}}) {
    list.push_back({"kernel " + std::to_string(size.width) + " x " + std::to_string(size.height),
                    [size](Call& call) { call.set("kernelSize", size); }});
  }
  return list;
}

Violations filterTypes(const Signature& s) {
  if (isSizeQuery(s)) return {};
  return s.types == "64f" ? numbersOf(s, "filterdatatype", {rnx8u, rnx32f, 0})
                          : numbersOf(s, "filterdatatype", {rnx64f, 0, 2, -1, INT_MAX});
}

Violations filterChannels(const Signature& s) {
  if (isSizeQuery(s)) return {};
  return s.types == "64f" ? numbersOf(s, "filterchannels", {0, 2, 4}) : numbersOf(s, "filterchannels", {0, 5, INT_MIN});
}

Violations filterRoundModes(const Signature& s) {
  return s.types == "64f" ? numbersOf(s, "filterround", {0, 2, 3, 16}) : numbersOf(s, "filterround", {3, 19, 32, -1});
}

Violations filterDivisors(const Signature& s) { return numbersOf(s, "filterdivisor", {0}); }

Violations filterSteps(const Signature& s) {
  Violations list = numbersOf(s, "src", {0, -1, INT_MIN});
  const s64 row = ValidCall::kSize * s.channels() * bytesOf(s.source());
  for (Violation& v : numbersOf(s, "dst", {0, -1, row - 1})) list.push_back(std::move(v));
  return list;
}

// Of the kind whose value must not be null, so that the earlier check stands beside this one.
Violations borderTypes(const Signature& s) { return numbersOf(s, "bordertype", {0x106, 0x1f6, 0x7ffffff6}); }

// Blocks that no Init function has seen: zeros, and a kernel of no columns.
Violations filterContexts(const Signature&) {
  static const std::array<int, 128> kZeros = {};
  static const std::array<int, 128> kNoColumns = [] {
    std::array<int, 128> words;
    for (size_t i = 0; i < words.size(); ++i) words[i] = i % 2 == 0 ? 3 : 0;  // at any multiple of 8 the block begins
    return words;
  }();
  Violations list;
  for (const auto* block : {&kZeros, &kNoColumns}) {
    list.push_back({"a spec that was never filled", [block](Call& call) { call.set("pSpec", block->data()); }});
  }
  return list;
}

constexpr CheckRule kRules[] = {
    {"null", -8, nulls},
    {"size", -6, sizes},
    {"step", -16, steps},
    {"divisor", -10, zeroDivisors},
    {"round", -213, roundModes},
    {"flip", -22, mirrorAxes},
    {"bitoffset", -6, bitOffsets},
    {"square", -6, squareSizes},
    {"border", -6, borderSizes},
    {"value_null", -8, nullOfClaim<0>},
    {"images_null", -8, nulls},
    {"order_null", -8, nullOfClaim<1>},
    {"step_zero", -16, zeroSteps},
    {"order", -60, channelOrders},
    {"cmpop", -14, thresholdSelectors},
    {"thresholds", -19, crossedThresholds},
    {"planes", -8, nulls},
    {"range", -12, valueRanges},
    {"bitoffset", -6, bitOffsets},
    {"filterquerysizes", -6, nullptr},
    {"filtersizesnull", -8, nullptr},
    {"filtersizeoverflow", -232, nullptr},
    {"filteroffset", -14, nullptr},  // depends on the spec
    {"filterkernelnull", -8, nulls},
    {"filterkernelsize", -6, kernelSizes},
    {"filtertypes", -59, filterTypes},
    {"filterchannels", -47, filterChannels},
    {"filterround", -213, filterRoundModes},
    {"filterdivisor", -51, filterDivisors},
    {"filterspecnull", -8, nulls},
    {"filternull", -8, nulls},
    {"filtersteps", -16, filterSteps},
    {"bordertype", -225, borderTypes},
    {"filtercontext", -13, filterContexts},
    // Of functions with specs: tested by kernel/fft_test.cpp.
    {"fftsizeout", -8, nullptr},
    {"fftabsurdorder", -17, nullptr},
    {"fftspecout", -8, nullptr},
    {"fftorder", -17, nullptr},
    {"fftsize", -6, nullptr},
    {"fftflag", -18, nullptr},
    {"fftsizeoverflow", -232, nullptr},
    {"fftmeminit", -8, nullptr},
    {"fftspec", -8, nullptr},
    {"fftcontext", -13, nullptr},
    {"fftimages", -8, nullptr},
    {"fftstep", -16, nullptr},
    {"fftbuffer", -8, nullptr},
};

// The tokens of such families start with these.
constexpr std::string_view kOwnSuites[] = {"fft", "resize_"};

}  // namespace

bool hasChecksOfItsOwn(const Signature& s) {
  return std::ranges::any_of(s.checkList(), [](std::string_view token) {
    return std::ranges::any_of(kOwnSuites, [&](std::string_view prefix) { return token.starts_with(prefix); });
  });
}

const CheckRule* checkRule(std::string_view token) {
  const auto found = std::ranges::find(kRules, token, &CheckRule::token);
  return found == std::end(kRules) ? nullptr : found;
}

}  // namespace rnx::test
