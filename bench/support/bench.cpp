#include "support/bench.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <sys/mman.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <new>
#include <random>
#include <regex>

#include "rnxcore.h"

namespace {

bool narrowOnly = false;  // while a narrow contestant runs

}  // namespace

// Found before rnxcore's own by the library under test.
extern "C" __attribute__((visibility("default"))) int ownGetFeature(uint64_t mask) {
  static const auto real = reinterpret_cast<int (*)(uint64_t)>(dlsym(RTLD_NEXT, "ownGetFeature"));
  return narrowOnly ? 0 : real(mask);
}

namespace bench {
namespace {

// "row|WxH|contestant"
std::string benchmarkName(const std::string& row, Size size, const std::string& contestant) {
  return row + "|" + std::to_string(size.width) + "x" + std::to_string(size.height) + "|" + contestant;
}

// Keeps the fastest repetition of every contestant of a row and prints the row when it has run.
class Table : public benchmark::BenchmarkReporter {
public:
  explicit Table(const char* csvPath) {
    if (csvPath != nullptr) csv_.open(csvPath);
    if (csv_) csv_ << "row,size,contestant,ns,ns_per_pixel\n";
  }

  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      std::string name = run.benchmark_name();
      name = name.substr(0, name.find('/'));
      const auto second = name.rfind('|');
      row_ = name.substr(0, second);
      const double ns = run.GetAdjustedRealTime();
      auto [cell, isNew] = cells_.try_emplace(name.substr(second + 1), ns);
      cell->second = std::min(cell->second, ns);
    }
  }

  void Finalize() override {
    const auto bar = row_.rfind('|');
    const std::string row = row_.substr(0, bar), size = row_.substr(bar + 1);
    if (!cells_.empty()) print(row, size, cells_);
    for (const auto& [who, ns] : cells_) {
      if (csv_) csv_ << row << ',' << size << ',' << who << ',' << ns << ',' << ns / pixelsOf(size) << '\n';
    }
    cells_.clear();
  }

private:
  using Cells = std::map<std::string, double>;

  static double pixelsOf(const std::string& size) {
    int width = 0, height = 0;
    std::sscanf(size.c_str(), "%dx%d", &width, &height);
    return static_cast<double>(width) * height;
  }

  // name, size, ours in ns and ns per pixel, then every other contestant as its time over ours (above 1: we are faster)
  static void print(const std::string& row, const std::string& size, const Cells& cells) {
    const auto ours = cells.find("rnx256");
    std::printf("%-26s %9s", row.c_str(), size.c_str());
    const double base = ours == cells.end() ? 0 : ours->second;
    std::printf("  %10.1f ns %8.4f ns/px ", base, base / pixelsOf(size));
    for (const auto& [who, ns] : cells) {
      if (who != "rnx256") std::printf("  %s %.2f", who.c_str(), base > 0 ? ns / base : 0);
    }
    bool slower = false;  // by more than the noise
    for (const auto& [who, ns] : cells) slower = slower || (who != "floor" && who != "rnx128" && ns < 0.97 * base);
    std::printf("%s\n", slower ? "   SLOWER" : "");
  }

  std::ofstream csv_;
  std::string row_;
  Cells cells_;
};

struct Row {
  std::string name;
  Size size;
  std::vector<Contestant> contestants;
};

std::vector<Row>& rows() {
  static std::vector<Row> all;
  return all;
}

void registerContestant(const Row& row, const Contestant& contestant) {
  benchmark::RegisterBenchmark(benchmarkName(row.name, row.size, contestant.name).c_str(),
                               [contestant](benchmark::State& state) {
                                 freeAll();
                                 const Work work = contestant.make();
                                 narrowOnly = contestant.narrow;
                                 work();
                                 for (auto _ : state) work();
                                 narrowOnly = false;
                               });
}

// Row by row, so that what is compared ran within the same second.
void runRows(Table& table) {
  const std::regex filter(benchmark::GetBenchmarkFilter(), std::regex::extended);
  for (const Row& row : rows()) {
    bool any = false;
    for (const Contestant& contestant : row.contestants) {
      if (!std::regex_search(benchmarkName(row.name, row.size, contestant.name), filter)) continue;
      registerContestant(row, contestant);
      any = true;
    }
    if (any) benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::ClearRegisteredBenchmarks();
  }
}

}  // namespace

Contestants ours(Maker make) { return {{"rnx256", make, false}, {"rnx128", make, true}}; }

Contestants peer(const std::string& name, Maker make) { return {{name, std::move(make), false}}; }

Contestants floorOf(int64_t bytesMoved) {
  return peer("floor", [bytesMoved]() -> Work {
    const int64_t n = std::max<int64_t>(bytesMoved / 2, 1);
    const Image<uint8_t> from(n, 1), to(n, 1);
    return [=] {
      std::memcpy(to.data(), from.data(), static_cast<size_t>(n));
      benchmark::ClobberMemory();
    };
  });
}

Contestants readFloorOf(int64_t bytesRead) {
  return peer("floor", [bytesRead]() -> Work {
    const Image<uint8_t> all(bytesRead, 1);
    std::memset(all.data(), 1, static_cast<size_t>(bytesRead));
    return [=] { benchmark::DoNotOptimize(std::memchr(all.data(), 0, static_cast<size_t>(bytesRead))); };
  });
}

void addRow(const std::string& name, Size size, const std::vector<Contestants>& contestants) {
  Row row = {name, size, {}};
  for (const Contestants& group : contestants)
    row.contestants.insert(row.contestants.end(), group.begin(), group.end());
  rows().push_back(row);
}

// One arena for the operands of every contestant, in turn: where memory lies, and on which pages, moves the figures of
// large images by a tenth. Starts are a cache line and some pages apart, so that no two operands share all cache sets.
namespace {

class Arena {
public:
  Arena() {
    void* p = mmap(nullptr, kBytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (p == MAP_FAILED) throw std::bad_alloc();
    const auto address = reinterpret_cast<uintptr_t>(p);
    start_ = static_cast<uint8_t*>(p) + (0 - address) % kHugePage;
    madvise(start_, kBytes - kHugePage, MADV_HUGEPAGE);
  }
  void* take(int64_t bytes) {
    void* p = start_ + used_;
    used_ += (bytes + 4095) / 4096 * 4096 + kStagger;
    if (used_ > kBytes - kHugePage) throw std::bad_alloc();
    return p;
  }
  void reset() { used_ = 0; }

private:
  static constexpr int64_t kBytes = int64_t{1} << 30, kHugePage = 2 << 20, kStagger = 5 * 4096 + 11 * 64;
  uint8_t* start_;
  int64_t used_ = 0;
};

Arena& arena() {
  static Arena only;
  return only;
}

// Random numbers for the first elements, which are then repeated.
template <class T, class Next>
void fillWith(T* values, int64_t count, Next next) {
  std::minstd_rand random(1);
  const int64_t period = std::min<int64_t>(count, 1 << 18);
  for (int64_t i = 0; i < period; ++i) values[i] = next(random);
  for (int64_t i = period; i < count; i += period) std::copy_n(values, std::min(period, count - i), values + i);
}

}  // namespace

void* allocate(int64_t bytes) { return arena().take(bytes); }
void freeAll() { arena().reset(); }

void fillRandom(void* memory, int64_t bytes) {
  fillWith(static_cast<uint8_t*>(memory), bytes, [](auto& random) { return static_cast<uint8_t>(random() >> 8); });
}
void fillRandom(float* values, int64_t count) {
  fillWith(values, count, [](auto& random) { return 1.0f + static_cast<float>(random() % 65536) / 65536.0f; });
}
void fillRandom(double* values, int64_t count) {
  fillWith(values, count, [](auto& random) { return 1.0 + static_cast<double>(random() % 65536) / 65536.0; });
}

}  // namespace bench

int main(int argc, char** argv) {
  RNX_OPENCV(cv::setNumThreads(1));
  bench::Table table(std::getenv("RNX_BENCH_CSV"));
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  bench::runRows(table);
  benchmark::Shutdown();
  return 0;
}
