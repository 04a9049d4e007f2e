#include "support/signatures.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ostream>

namespace rnx::test {
namespace {

// The table in the form that costs neither compile time nor start-up code: plain string literals.
struct RawParameter {
  const char *type, *name, *role;
};
struct RawSignature {
  const char* name;
  void (*address)();
  const char *subsystem, *family, *types, *layout, *form;
  bool isLong;
  const char *returns, *checks;
  RawParameter parameters[kMaxParameters];
};

const RawSignature kRawTable[] = {
#include "signatures.inc"
};

std::vector<Signature> readTable() {
  std::vector<Signature> table;
  for (const RawSignature& raw : kRawTable) {
    Signature s = {raw.name, raw.address, raw.subsystem, raw.family, raw.types, raw.layout,
                   raw.form, raw.isLong,  raw.returns,   raw.checks, {}};
    for (int i = 0; i < kMaxParameters && raw.parameters[i].name != nullptr; ++i) {
      s.parameterArray[i] = {raw.parameters[i].type, raw.parameters[i].name, raw.parameters[i].role};
    }
    table.push_back(s);
  }
  return table;
}

bool matches(std::string_view words, std::string_view value) {
  if (words.empty()) return true;
  for (size_t at = 0; at < words.size();) {
    const size_t end = std::min(words.find(' ', at), words.size());
    if (words.substr(at, end - at) == value) return true;
    at = end + 1;
  }
  return false;
}

// "8u16s" has two tags.
std::vector<Element> tags(std::string_view types) {
  std::vector<Element> found;
  while (!types.empty()) {
    size_t length = 0;
    Element element{};
    for (const ElementName& e : kElementNames) {
      if (types.starts_with(e.tag) && e.tag.size() > length) element = e.element, length = e.tag.size();
    }
    if (length == 0) std::fprintf(stderr, "unknown element type in '%.*s'\n", int(types.size()), types.data()), abort();
    found.push_back(element);
    types.remove_prefix(length);
  }
  return found;
}

}  // namespace

std::span<const Parameter> Signature::parameters() const {
  size_t n = 0;
  while (n < std::size(parameterArray) && !parameterArray[n].name.empty()) ++n;
  return {parameterArray, n};
}

bool Signature::has(std::string_view role) const {
  return std::ranges::any_of(parameters(), [&](const Parameter& p) { return p.role == role; });
}

bool Signature::checksFor(std::string_view token) const { return !checks.empty() && matches(checks, token); }

std::vector<std::string_view> Signature::checkList() const {
  std::vector<std::string_view> list;
  for (size_t at = 0; at < checks.size();) {
    const size_t end = std::min(checks.find(' ', at), checks.size());
    list.push_back(checks.substr(at, end - at));
    at = end + 1;
  }
  return list;
}

Element Signature::source() const { return tags(types).front(); }
Element Signature::destination() const { return tags(types).back(); }

int Signature::channels() const {
  const auto digit = layout.find_first_of("1234");
  return digit == std::string_view::npos ? 1 : layout[digit] - '0';
}

std::span<const Signature> signatures() {
  static const std::vector<Signature> table = readTable();
  return table;
}

const Signature& signature(std::string_view name) {
  const auto found = std::ranges::lower_bound(signatures(), name, {}, &Signature::name);
  if (found == signatures().end() || found->name != name) {
    std::fprintf(stderr, "no export is called %.*s\n", static_cast<int>(name.size()), name.data());
    abort();
  }
  return *found;
}

std::vector<const Signature*> select(const Selection& s) {
  std::vector<const Signature*> found;
  for (const Signature& e : signatures()) {
    if (matches(s.subsystem, e.subsystem) && matches(s.family, e.family) && matches(s.types, e.types) &&
        matches(s.layout, e.layout) && matches(s.form, e.form) && (s.isLong < 0 || (s.isLong == 1) == e.isLong)) {
      found.push_back(&e);
    }
  }
  return found;
}

void PrintTo(const Signature* signature, std::ostream* out) { *out << signature->name; }

}  // namespace rnx::test
