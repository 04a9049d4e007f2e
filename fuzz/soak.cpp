// The soak: exports in random order on random images for a given time. Each call runs with narrow and with wide
// vectors: both must return the same status and the same bytes, and write nothing but the result.
//
//   soak [SECONDS [SEED]]     5 seconds and a seed of the clock unless they are given
//   soak call SEED            one call again, with its arguments, by the seed that its failure was reported with
//
// RNX_HOSTILE=1 makes all calls hostile, which are else one of eight; RNX_FUZZ_MISSED=1 lists what never succeeded.
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>

#include "arguments.h"
#include "support/companion_double.h"

namespace rnx::fuzz {
namespace {

struct Result {
  RnxStatus status;
  std::string damage;
  std::vector<u8> bytes;
};

Result run(Arguments& arguments, int vectorBytes) {
  const test::ScopedWidth width(vectorBytes);
  arguments.freeze();
  Result result;
  result.status = arguments.call()();
  arguments.thaw();
  result.damage = arguments.verdict(result.status);
  result.bytes = arguments.results();
  for (Block* block : arguments.arena().blocks()) block->restore();
  return result;
}

constexpr unsigned kMostSeconds = 20;  // of one call

// The call that runs, for the report of a crash.
const char* currentName = "";
unsigned long long currentSeed = 0;

void reportCrash(int signal) {
  std::fprintf(stderr, "%s, call seed %llu: %s\n", currentName, currentSeed,
               signal == SIGALRM ? "takes too long" : "crash");
  std::signal(signal, SIG_DFL);
  if (signal == SIGALRM) raise(SIGALRM);  // which the return repeats
}

class Soak {
public:
  Soak() {
    for (const Signature& s : test::signatures()) {
      if (s.returns == "RnxStatus") table_.push_back(&s);
    }
#ifdef RNXIP_SANITIZED  // whose own reports say more
    constexpr int kSignals[] = {SIGABRT, SIGALRM};
#else
    constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGALRM};
#endif
    for (int signal : kSignals) std::signal(signal, reportCrash);
  }

  void call(u64 seed, bool verbose = false) {
    Chooser choose(seed);
    const Signature& s = *table_[choose.word() % table_.size()];
    currentName = s.name.data(), currentSeed = seed;
    alarm(kMostSeconds);
    const test::ScopedCache cache(choose.oneIn(4) ? test::kTinyCache : test::kHugeCache);
    Arguments arguments(s, choose, hostile_ || choose.oneIn(8) ? Mood::kHostile : Mood::kValid);
    if (verbose) std::fprintf(stderr, "%s%s\n", currentName, arguments.describe(nullptr).c_str());
    const Result narrow = run(arguments, 16), wide = run(arguments, 32);
    ++calls_;
    reached_.insert(&s);
    if (narrow.status >= 0) succeeded_.insert(&s);
    std::string what;
    if (narrow.status != wide.status) what = "the statuses differ";
    if (arguments.isComparable() && narrow.bytes != wide.bytes) what = arguments.difference(narrow.bytes, wide.bytes);
    if (!narrow.damage.empty()) what = narrow.damage;
    if (!wide.damage.empty()) what = wide.damage;
    if (what.empty()) return;
    ++failures_;
    std::printf("%.*s, call seed %llu, statuses %d and %d: %s\n", static_cast<int>(s.name.size()), s.name.data(),
                currentSeed, narrow.status, wide.status, what.c_str());
  }

  u64 failures() const { return failures_; }

  void print() const {
    std::printf("%llu calls; %zu of %zu exports reached, %zu with success; %llu failures\n",
                static_cast<unsigned long long>(calls_), reached_.size(), table_.size(), succeeded_.size(),
                static_cast<unsigned long long>(failures_));
    if (std::getenv("RNX_FUZZ_MISSED") == nullptr) return;
    for (const Signature* s : table_) {
      if (!succeeded_.contains(s)) std::printf("no success: %s\n", s->name.data());
    }
  }

private:
  std::vector<const Signature*> table_;
  std::set<const Signature*> reached_, succeeded_;
  u64 calls_ = 0, failures_ = 0;
  bool hostile_ = std::getenv("RNX_HOSTILE") != nullptr;
};

}  // namespace
}  // namespace rnx::fuzz

int main(int argc, char** argv) {
  using Clock = std::chrono::steady_clock;
  rnx::fuzz::Soak soak;
  if (argc == 3 && std::strcmp(argv[1], "call") == 0) {
    soak.call(std::strtoull(argv[2], nullptr, 10), true);
    soak.print();
    return soak.failures() == 0 ? 0 : 1;
  }
  const auto end = Clock::now() + std::chrono::duration<double>(argc > 1 ? std::atof(argv[1]) : 5);
  const auto now = std::chrono::system_clock::now().time_since_epoch().count();
  const unsigned long long seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : static_cast<unsigned>(now / 1000);
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  std::printf("soak: seed %llu\n", seed);
  rnx::fuzz::Chooser seeds(seed);
  while (Clock::now() < end && soak.failures() < 20) soak.call(seeds.word(8));
  soak.print();
  return soak.failures() == 0 ? 0 : 1;
}
