// Threads that share specs, each with its own destination and work buffer: a filter, a resize and a transform, for the
// thread sanitizer. All of them must make what one thread alone makes.
#include <cstdio>
#include <latch>
#include <thread>
#include <vector>

#include "rnxip.h"

namespace {

constexpr int kThreads = 4, kRounds = 20, kWidth = 160, kHeight = 120;
constexpr RnxiSize kSize = {kWidth, kHeight}, kHalf = {kWidth / 2, kHeight / 2};

using Bytes = std::vector<Rnx8u>;

template <class T>
T* as(Bytes& bytes) {
  return reinterpret_cast<T*>(bytes.data());
}
template <class T>
const T* as(const Bytes& bytes) {
  return reinterpret_cast<const T*>(bytes.data());
}

struct Plans {
  Bytes filter, resize, transform;
  size_t filterBuffer, resizeBuffer, transformBuffer;
};

Plans plan() {
  int spec = 0, init = 0, buffer = 0;
  Plans p;
  const Rnx16s kernel[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
  rnxiFilterBorderGetSize({3, 3}, kSize, rnx8u, rnx16s, 1, &spec, &buffer);
  p.filter.resize(static_cast<size_t>(spec)), p.filterBuffer = static_cast<size_t>(buffer);
  rnxiFilterBorderInit_16s(kernel, {3, 3}, 16, rnx8u, 1, rnxRoundNearestEven, as<RnxiFilterBorderSpec>(p.filter));

  rnxiResizeGetSize_8u(kSize, kHalf, rnxLinear, 0, &spec, &init);
  p.resize.resize(static_cast<size_t>(spec));
  rnxiResizeLinearInit_8u(kSize, kHalf, as<RnxiResizeSpec>(p.resize));
  rnxiResizeGetBufferSize_8u(as<RnxiResizeSpec>(p.resize), kHalf, 1, &buffer);
  p.resizeBuffer = static_cast<size_t>(buffer);

  rnxiDFTGetSize_R_32f(kHalf, rnxFftDivideInverse, 0, &spec, &init, &buffer);
  p.transform.resize(static_cast<size_t>(spec)), p.transformBuffer = static_cast<size_t>(buffer);
  Bytes memory(static_cast<size_t>(init) + 1);
  rnxiDFTInit_R_32f(kHalf, rnxFftDivideInverse, 0, as<RnxiDFTSpec>(p.transform), memory.data());
  return p;
}

// Smoothed, halved, transformed.
Bytes run(const Plans& p, const Bytes& image) {
  constexpr int kFloatStep = kHalf.width * 4;
  Bytes smooth(kWidth * kHeight), half(kHalf.width * kHalf.height), spectrum(half.size() * 4);
  Bytes filterBuffer(p.filterBuffer), resizeBuffer(p.resizeBuffer), transformBuffer(p.transformBuffer + 1);
  rnxiFilterBorder_8u_C1R(image.data(), kWidth, smooth.data(), kWidth, kSize, rnxBorderRepl, nullptr,
                          as<RnxiFilterBorderSpec>(p.filter), filterBuffer.data());
  rnxiResizeLinear_8u_C1R(smooth.data(), kWidth, half.data(), kHalf.width, {0, 0}, kHalf, rnxBorderRepl, nullptr,
                          as<RnxiResizeSpec>(p.resize), resizeBuffer.data());
  rnxiConvert_8u32f_C1R(half.data(), kHalf.width, as<Rnx32f>(spectrum), kFloatStep, kHalf);
  rnxiDFTFwd_RToPack_32f_C1IR(as<Rnx32f>(spectrum), kFloatStep, as<RnxiDFTSpec>(p.transform), transformBuffer.data());
  return spectrum;
}

}  // namespace

int main() {
  const Plans plans = plan();
  Bytes image(kWidth * kHeight);
  for (size_t i = 0; i < image.size(); ++i) image[i] = static_cast<Rnx8u>(i * i / 7);
  const Bytes expected = run(plans, image);

  bool equal[kThreads] = {};
  std::latch start(kThreads);  // all at once
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&, t] {
      equal[t] = true;
      start.arrive_and_wait();
      for (int round = 0; round < kRounds; ++round) equal[t] = run(plans, image) == expected && equal[t];
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int t = 0; t < kThreads; ++t) {
    if (!equal[t]) return std::printf("thread %d made something else\n", t), 1;
  }
  std::printf("%d threads, %d rounds: equal\n", kThreads, kRounds);
  return 0;
}
