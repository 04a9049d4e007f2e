// The table of exports as tests see it: what every function is called, what it takes, and where it is.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rnxip.h"
#include "support/elements.h"

namespace rnx::test {

struct Parameter {
  std::string_view type;  // "const Rnx8u*"
  std::string_view name;  // "pSrc1"
  std::string_view role;  // "src1", as in api/arguments.toml

  bool isPointer() const { return type.ends_with('*'); }
  bool isOutput() const { return isPointer() && !type.starts_with("const "); }
  // The distance between rows that belongs to an image role.
  bool isStep() const { return !isPointer() && name.ends_with("Step"); }
};

inline constexpr int kMaxParameters = 16;

struct Signature {
  std::string_view name;
  void (*address)();
  std::string_view subsystem;
  std::string_view family;  // "AddC"
  std::string_view types;   // "8u", "8u16s" or "" where the name has none
  std::string_view layout;  // "C1" ... "AC4" or ""
  std::string_view form;    // "RSfs", "IR", ...
  bool isLong;              // ends in _L
  std::string_view returns;
  std::string_view checks;  // tokens of api/checks.toml, in their order
  Parameter parameterArray[kMaxParameters];

  std::span<const Parameter> parameters() const;
  bool has(std::string_view role) const;
  bool checksFor(std::string_view token) const;
  std::vector<std::string_view> checkList() const;

  Element source() const;       // the first type of the name
  Element destination() const;  // the last one; the same in functions of one type
  int channels() const;         // elements of a pixel: 1 to 4; 4 for AC4
  bool hasAlpha() const { return layout == "AC4"; }

  // The function itself: signature.as<RnxStatus(const Rnx8u*, int)>()(p, n).
  template <class F>
  F* as() const {
    return reinterpret_cast<F*>(address);
  }
};

// All exports, in the byte order of their names.
std::span<const Signature> signatures();

// The export of this name; ends the program where there is none.
const Signature& signature(std::string_view name);

// Empty strings match everything, several words any one of them: select({.family = "Add Sub", .types = "8u"}).
struct Selection {
  std::string_view subsystem = "", family = "", types = "", layout = "", form = "";
  int isLong = -1;  // 0 plain, 1 _L, -1 both
};
std::vector<const Signature*> select(const Selection& selection);

// For parameterised suites: INSTANTIATE_TEST_SUITE_P(All, Suite, ValuesIn(select(...)), byName).
inline constexpr auto byName = [](const auto& info) { return std::string(info.param->name); };

void PrintTo(const Signature* signature, std::ostream* out);

}  // namespace rnx::test
