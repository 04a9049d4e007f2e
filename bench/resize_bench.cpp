// Resize: nearest and linear, with cv::resize and libyuv's scalers as peers. The row is named after the source, the
// size is that of the destination.
#include <cstdlib>

#include "support/bench.h"

#if RNX_BENCH_YUV
#include <libyuv.h>
#endif

namespace bench {
namespace {

// The functions of one element type and channel count.
template <class T>
struct Functions {
  const char* name;
  int channels;
  decltype(&rnxiResizeNearestInit_8u) initNearest, initLinear;
  RnxStatus (*nearest)(const T*, int, T*, int, RnxiPoint, RnxiSize, const RnxiResizeSpec*, Rnx8u*);
  RnxStatus (*linear)(const T*, int, T*, int, RnxiPoint, RnxiSize, RnxiBorderType, const T*, const RnxiResizeSpec*,
                      Rnx8u*);
};

struct Plan {
  Rnx8u *spec = nullptr, *buffer = nullptr;

  Plan(Size from, Size to, int channels, decltype(&rnxiResizeNearestInit_8u) init) {
    int specBytes = 0, initBytes = 0, bufferBytes = 0;
    rnxiResizeGetSize_8u(from.roi(), to.roi(), rnxLinear, 0, &specBytes, &initBytes);
    spec = static_cast<Rnx8u*>(allocate(specBytes));
    init(from.roi(), to.roi(), get());
    rnxiResizeGetBufferSize_8u(get(), to.roi(), channels, &bufferBytes);
    buffer = static_cast<Rnx8u*>(allocate(bufferBytes));
  }
  RnxiResizeSpec* get() const { return reinterpret_cast<RnxiResizeSpec*>(spec); }
};

template <class T>
Contestants opencvResize([[maybe_unused]] Size from, [[maybe_unused]] Size to, [[maybe_unused]] int channels,
                         [[maybe_unused]] bool isLinear) {
  return opencv([=]() -> Work {
    const Image<T> src(from, channels), dst(to, channels);
    cv::Mat d = mat(dst, to, channels);
    return [=, keep = std::vector{src, dst}, s = mat(src, from, channels)]() mutable {
      RNX_OPENCV(
          cv::resize(s, d, cv::Size(to.width, to.height), 0, 0, isLinear ? cv::INTER_LINEAR : cv::INTER_NEAREST));
    };
  });
}

Contestants yuvResize([[maybe_unused]] Size from, [[maybe_unused]] Size to, [[maybe_unused]] int channels,
                      [[maybe_unused]] bool isLinear) {
#if RNX_BENCH_YUV
  if (channels == 3) return {};
  return peer("libyuv", [=]() -> Work {
    const Image<Rnx8u> src(from, channels), dst(to, channels);
    const auto filter = isLinear ? libyuv::kFilterBilinear : libyuv::kFilterNone;
    return [=] {
      if (channels == 1) {
        libyuv::ScalePlane(src.data(), src.step(), from.width, from.height, dst.data(), dst.step(), to.width, to.height,
                           filter);
      } else {
        libyuv::ARGBScale(src.data(), src.step(), from.width, from.height, dst.data(), dst.step(), to.width, to.height,
                          filter);
      }
    };
  });
#else
  return {};
#endif
}

template <class T>
void rowsOf(const Functions<T>& f, Size from, Size to) {
  const std::string source = " " + std::to_string(from.width) + "x" + std::to_string(from.height);
  const auto floor = floorOf(2 * to.pixels() * f.channels * static_cast<int64_t>(sizeof(T)));
  for (const bool isLinear : {false, true}) {
    const Maker ourWork = [=]() -> Work {
      const Image<T> src(from, f.channels), dst(to, f.channels);
      const Plan plan(from, to, f.channels, isLinear ? f.initLinear : f.initNearest);
      return [=] {
        if (isLinear) {
          f.linear(src.data(), src.step(), dst.data(), dst.step(), {0, 0}, to.roi(), rnxBorderRepl, nullptr, plan.get(),
                   plan.buffer);
        } else {
          f.nearest(src.data(), src.step(), dst.data(), dst.step(), {0, 0}, to.roi(), plan.get(), plan.buffer);
        }
      };
    };
    addRow((isLinear ? "Linear " : "Nearest ") + std::string(f.name) + source, to,
           {floor, ours(ourWork), opencvResize<T>(from, to, f.channels, isLinear),
            sizeof(T) == 1 ? yuvResize(from, to, f.channels, isLinear) : Contestants{}});
  }
}

void initRow(Size size) {
  const auto of = [size](decltype(&rnxiResizeNearestInit_8u) init) {
    return ours([=]() -> Work {
      const Plan plan({1920, 1080}, size, 1, init);
      return [=] { init({1920, 1080}, size.roi(), plan.get()); };
    });
  };
  addRow("Init nearest 8u", size, {of(rnxiResizeNearestInit_8u)});
  addRow("Init linear 8u", size, {of(rnxiResizeLinearInit_8u)});
  addRow("Init linear 32f", size, {of(rnxiResizeLinearInit_32f)});
}

void addRows() {
  const std::pair<Size, Size> kPairs[] = {
      {{1920, 1080}, {640, 480}}, {{640, 480}, {1920, 1080}}, {{1920, 1080}, {1280, 720}}, {{3840, 2160}, {1920, 1080}},
      {{640, 480}, {1280, 960}},  {{640, 480}, {320, 240}},   {{64, 64}, {100, 100}}};
  const auto n8 = rnxiResizeNearestInit_8u;
  for (const auto& [from, to] : kPairs) {
    rowsOf<Rnx8u>({"8u C1", 1, n8, rnxiResizeLinearInit_8u, rnxiResizeNearest_8u_C1R, rnxiResizeLinear_8u_C1R}, from,
                  to);
    rowsOf<Rnx8u>({"8u C3", 3, n8, rnxiResizeLinearInit_8u, rnxiResizeNearest_8u_C3R, rnxiResizeLinear_8u_C3R}, from,
                  to);
    rowsOf<Rnx8u>({"8u C4", 4, n8, rnxiResizeLinearInit_8u, rnxiResizeNearest_8u_C4R, rnxiResizeLinear_8u_C4R}, from,
                  to);
    rowsOf<Rnx16u>({"16u C1", 1, n8, rnxiResizeLinearInit_16u, rnxiResizeNearest_16u_C1R, rnxiResizeLinear_16u_C1R},
                   from, to);
    rowsOf<Rnx32f>({"32f C1", 1, n8, rnxiResizeLinearInit_32f, rnxiResizeNearest_32f_C1R, rnxiResizeLinear_32f_C1R},
                   from, to);
    rowsOf<Rnx32f>({"32f C3", 3, n8, rnxiResizeLinearInit_32f, rnxiResizeNearest_32f_C3R, rnxiResizeLinear_32f_C3R},
                   from, to);
  }
  initRow({640, 480});
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
