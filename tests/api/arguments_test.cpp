// The argument checks of every export: each violation gives its status, of two violations the earlier check's decides,
// and nothing is written.
#include <xmmintrin.h>

#include <map>
#include <set>

#include "api/violations.h"

namespace rnx::test {
namespace {

// The rules of an export's checks, in their order.
std::vector<const CheckRule*> rulesOf(const Signature& s) {
  std::vector<const CheckRule*> rules;
  for (std::string_view token : s.checkList()) {
    const CheckRule* rule = checkRule(token);
    if (rule != nullptr && rule->violations != nullptr) rules.push_back(rule);
  }
  return rules;
}

std::vector<const Signature*> testable() {
  std::vector<const Signature*> list;
  for (const Signature& s : signatures()) {
    if (!hasChecksOfItsOwn(s) && !rulesOf(s).empty() && ValidCall::unknownRoles(s).empty()) list.push_back(&s);
  }
  return list;
}

class Arguments : public testing::TestWithParam<const Signature*> {};

TEST_P(Arguments, FirstViolationDecidesAndNothingIsWritten) {
  ValidCall valid(*GetParam());
  valid.freeze();  // remembers the arguments' own values
  ASSERT_GE(valid.call()(), 0) << "the valid call is refused";
  valid.freeze();

  const auto expect = [&](RnxStatus status, std::initializer_list<const Violation*> violations) {
    Call call(valid.call());
    std::string what;
    for (const Violation* v : violations) {
      v->apply(call);
      what += v->what + "; ";
    }
    // A floating-point control state of the caller's own: rounding up, denormals flushed.
    const unsigned before = _mm_getcsr(), own = 0xdfc0;
    _mm_setcsr(own);
    const RnxStatus result = call();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(before);
    ASSERT_EQ(result, status) << what;
    ASSERT_EQ(after, own) << what;
    ASSERT_TRUE(valid.untouched()) << what;
  };

  const auto rules = rulesOf(*GetParam());
  std::vector<std::vector<Violation>> violations;
  for (const CheckRule* rule : rules) {
    violations.push_back(rule->violations(*GetParam()));
  }
  for (size_t first = 0; first < rules.size(); ++first) {
    for (const Violation& one : violations[first]) {
      expect(rules[first]->status, {&one});
      for (size_t second = first + 1; second < rules.size(); ++second) {
        // The later check's first, so that of two violations by one argument the earlier check's stands.
        for (const Violation& other : violations[second]) expect(rules[first]->status, {&other, &one});
        if (HasFatalFailure()) return;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Table, Arguments, testing::ValuesIn(testable()), byName);

TEST(ArgumentsTable, EveryCheckAndEveryRoleIsKnown) {
  std::set<std::string> missing;
  std::map<std::string_view, size_t> uses;  // violations per check, over all exports
  for (const Signature& s : signatures()) {
    if (hasChecksOfItsOwn(s)) continue;
    for (std::string_view token : s.checkList()) {
      if (checkRule(token) == nullptr) {
        missing.insert("check '" + std::string(token) + "' of " + std::string(s.family) +
                       ": no rule in tests/api/violations.cpp");
      }
    }
    for (const CheckRule* rule : rulesOf(s)) uses[rule->token] += rule->violations(s).size();
    if (rulesOf(s).empty()) continue;
    for (const std::string& role : ValidCall::unknownRoles(s)) {
      missing.insert("role '" + role + "' of " + std::string(s.family) + ": no value in tests/api/valid_call.cpp");
    }
  }
  for (const auto& [token, count] : uses) EXPECT_GT(count, 0u) << "check '" << token << "' is never violated";
  for (const std::string& line : missing) ADD_FAILURE() << line;
}

}  // namespace
}  // namespace rnx::test
