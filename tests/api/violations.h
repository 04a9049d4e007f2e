// How to break each check of the table, and the status that must come of it.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "api/valid_call.h"

namespace rnx::test {

struct Violation {
  std::string what;
  std::function<void(Call&)> apply;
};

struct CheckRule {
  std::string_view token;
  RnxStatus status;
  std::vector<Violation> (*violations)(const Signature&);  // null: the family's own suite tests it
};

// Null where no rule is known.
const CheckRule* checkRule(std::string_view token);

// Exports whose arguments have to fit a spec or sizes that were asked for: their own suites test the checks.
bool hasChecksOfItsOwn(const Signature& signature);

}  // namespace rnx::test
