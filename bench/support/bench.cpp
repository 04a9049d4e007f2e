#include "support/bench.h"

#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <random>

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

// Keeps the fastest repetition of every benchmark and prints one line per row at the end.
class Table : public benchmark::BenchmarkReporter {
public:
  explicit Table(const char* csvPath) : csvPath_(csvPath) {}

  bool ReportContext(const Context&) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      std::string name = run.benchmark_name();
      name = name.substr(0, name.find('/'));
      const auto second = name.rfind('|');
      Cells& cells = rows_[name.substr(0, second)];
      const std::string who = name.substr(second + 1);
      const double ns = run.GetAdjustedRealTime();
      auto [cell, isNew] = cells.try_emplace(who, ns);
      cell->second = std::min(cell->second, ns);
      if (isNew && cells.size() == 1) order_.push_back(name.substr(0, second));
    }
  }

  void Finalize() override {
    std::ofstream csv;
    if (csvPath_ != nullptr) csv.open(csvPath_);
    if (csv) csv << "row,size,contestant,ns,ns_per_pixel\n";
    std::sort(order_.begin(), order_.end());
    for (const std::string& key : order_) {
      const auto bar = key.rfind('|');
      const std::string row = key.substr(0, bar), size = key.substr(bar + 1);
      print(row, size, rows_[key]);
      for (const auto& [who, ns] : rows_[key]) {
        if (csv) csv << row << ',' << size << ',' << who << ',' << ns << ',' << ns / pixelsOf(size) << '\n';
      }
    }
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

  const char* csvPath_;
  std::map<std::string, Cells> rows_;
  std::vector<std::string> order_;
};

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
  for (const Contestants& group : contestants) {
    for (const Contestant& contestant : group) {
      benchmark::RegisterBenchmark(benchmarkName(name, size, contestant.name).c_str(),
                                   [contestant](benchmark::State& state) {
                                     const Work work = contestant.make();
                                     narrowOnly = contestant.narrow;
                                     work();
                                     for (auto _ : state) work();
                                     narrowOnly = false;
                                   });
    }
  }
}

void* allocate(int64_t bytes) { return aligned_alloc(64, static_cast<size_t>((bytes + 63) / 64 * 64)); }

void fillRandom(void* memory, int64_t bytes) {
  std::minstd_rand random(1);
  auto* p = static_cast<uint8_t*>(memory);
  for (int64_t i = 0; i < bytes; ++i) p[i] = static_cast<uint8_t>(random() >> 8);
}

void fillRandom(float* values, int64_t count) {
  std::minstd_rand random(1);
  for (int64_t i = 0; i < count; ++i) values[i] = 1.0f + static_cast<float>(random() % 65536) / 65536.0f;
}

void fillRandom(double* values, int64_t count) {
  std::minstd_rand random(1);
  for (int64_t i = 0; i < count; ++i) values[i] = 1.0 + static_cast<double>(random() % 65536) / 65536.0;
}

}  // namespace bench

int main(int argc, char** argv) {
  RNX_OPENCV(cv::setNumThreads(1));
  const char* csvPath = std::getenv("RNX_BENCH_CSV");
  bench::Table table(csvPath);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks(&table);
  benchmark::Shutdown();
  return 0;
}
