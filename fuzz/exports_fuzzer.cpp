// Every export with arguments made from bytes: it must return and touch nothing but its operands. At the end, and every
// minute, it says how many exports were reached and how many of them did work.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>

#include "arguments.h"
#include "support/companion_double.h"

namespace rnx::fuzz {
namespace {

struct Counts {
  u64 calls = 0, successes = 0;
};

class Statistics {
public:
  void count(const Signature& s, RnxStatus status) {
    Counts& c = counts_[&s];
    ++c.calls;
    c.successes += status >= 0 ? 1 : 0;
    ++statuses_[status];
    ++calls_;
  }
  ~Statistics() { print(); }
  void print() const {
    size_t worked = 0;
    for (const auto& [signature, c] : counts_) worked += c.successes > 0 ? 1 : 0;
    std::printf("exports: %llu calls, %zu of %zu exports reached, %zu of them with success; statuses:",
                static_cast<unsigned long long>(calls_), counts_.size(), test::signatures().size(), worked);
    for (const auto& [status, n] : statuses_) std::printf(" %d:%llu", status, static_cast<unsigned long long>(n));
    std::printf("\n");
    if (std::getenv("RNX_FUZZ_MISSED") != nullptr) {
      for (const Signature& s : test::signatures()) {
        const auto found = counts_.find(&s);
        if (found == counts_.end() || found->second.successes == 0) {
          std::printf("no success: %.*s\n", static_cast<int>(s.name.size()), s.name.data());
        }
      }
    }
  }

private:
  std::map<const Signature*, Counts> counts_;
  std::map<RnxStatus, u64> statuses_;
  u64 calls_ = 0;
};

Statistics& statistics() {
  static Statistics s;
  return s;
}

[[noreturn]] void fail(const Signature& s, const std::string& what) {
  std::fprintf(stderr, "%.*s: %s\n", static_cast<int>(s.name.size()), s.name.data(), what.c_str());
  abort();
}

// Allocators give their memory back; large blocks are refused before the system is asked for them.
void callAllocator(const Signature& s, Chooser& choose) {
  test::ScopedCompanion scope;
  test::companion().allocationsFail = true;
  Arguments arguments(s, choose, Mood::kHostile);
  if (s.name == "rnxiFree") {
    arguments.call().setAt(0, nullptr);
    arguments.call().callVoid();
    return;
  }
  const s64 width = s.has("pixelwidth") ? arguments.call().integerAt(0) : 0;
  const s64 height = s.has("pixelheight") ? arguments.call().integerAt(1) : 0;
  test::companion().allocationsFail = width > 4096 || height > 256;
  arguments.freeze();
  void* memory = arguments.call().result<void*>();
  arguments.thaw();
  if (const std::string wrong = arguments.verdict(0); !wrong.empty()) fail(s, wrong);
  if (s.has("pixelwidth")) rnxiFree(memory);
  statistics().count(s, memory != nullptr ? 0 : -9);
}

void callExport(const Signature& s, Chooser& choose) {
  if (s.returns != "RnxStatus") return callAllocator(s, choose);
  const bool narrow = choose.byte() % 2 == 1;
  test::ScopedWidth width(narrow ? 16 : 32);
  test::ScopedCache cache(choose.oneIn(4) ? test::kTinyCache : test::kHugeCache);
  Arguments arguments(s, choose, Mood::kHostile);
  arguments.freeze();
  const RnxStatus status = arguments.call()();
  arguments.thaw();
  statistics().count(s, status);
  if (const std::string wrong = arguments.verdict(status); !wrong.empty()) {
    fail(s, "status " + std::to_string(status) + ", " + wrong);
  }
}

}  // namespace
}  // namespace rnx::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t bytes) {
  using namespace rnx;
  static const auto table = test::signatures();
  if (bytes < 3) return -1;
  fuzz::Chooser choose(data, bytes);
  // Multiplied, so that neighbouring numbers are not neighbours in the table.
  fuzz::callExport(table[choose.word(2) * 40503 % 65536 * table.size() / 65536], choose);
  return 0;
}
