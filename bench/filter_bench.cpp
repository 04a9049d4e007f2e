// The general linear filter beside the peer's, which correlates: kernels here are symmetric.
#include "support/bench.h"

namespace bench {
namespace {

struct KernelSize {
  int width, height;
  std::string name() const { return std::to_string(width) + "x" + std::to_string(height); }
  int taps() const { return width * height; }
};

const KernelSize kSquares[] = {{3, 3}, {5, 5}, {7, 7}, {9, 9}, {15, 15}};
const KernelSize kAll[] = {{3, 3}, {5, 5}, {7, 7}, {9, 9}, {15, 15}, {9, 1}, {1, 9}};

struct Border {
  const char* name;
  RnxiBorderType type;
  [[maybe_unused]] int cvType;
};
const Border kReplicate = {"", rnxBorderRepl, RNX_OPENCV(cv::BORDER_REPLICATE)};
const Border kMirror = {" mirror", rnxBorderMirror, RNX_OPENCV(cv::BORDER_REFLECT_101)};
const Border kConstant = {" const", rnxBorderConst, RNX_OPENCV(cv::BORDER_CONSTANT)};
const Border kInMemory = {" in memory", rnxBorderInMem, RNX_OPENCV(cv::BORDER_REPLICATE)};

template <class T>
using Filter = RnxStatus (*)(const T*, int, T*, int, RnxiSize, RnxiBorderType, const T*, const RnxiFilterBorderSpec*,
                             Rnx8u*);

template <class T>
constexpr int kType = std::is_same_v<T, Rnx8u>    ? rnx8u
                      : std::is_same_v<T, Rnx16u> ? rnx16u
                      : std::is_same_v<T, Rnx16s> ? rnx16s
                      : std::is_same_v<T, float>  ? rnx32f
                                                  : rnx64f;

RnxiFilterBorderSpec* specIn(const Image<Rnx8u>& block) {
  return reinterpret_cast<RnxiFilterBorderSpec*>(block.data());
}

// Symmetric, no two taps beside each other alike.
template <class K>
std::vector<K> coefficients(KernelSize k) {
  std::vector<K> c(static_cast<size_t>(k.taps()));
  for (size_t i = 0; i < c.size(); ++i) {
    const auto value = static_cast<int>(std::min(i, c.size() - 1 - i) % 7) + 1;
    c[i] = std::is_same_v<K, Rnx16s> ? static_cast<K>(value) : static_cast<K>(value) / static_cast<K>(4 * k.taps());
  }
  return c;
}

// divisor 0: a kernel of the floating-point type K.
template <class K>
RnxStatus init(KernelSize k, int dataType, int channels, int divisor, RnxiFilterBorderSpec* spec) {
  const auto c = coefficients<K>(k);
  const RnxiSize size = {k.width, k.height};
  if constexpr (std::is_same_v<K, Rnx16s>) {
    return rnxiFilterBorderInit_16s(c.data(), size, divisor, dataType, channels, rnxRoundNearestEven, spec);
  } else if constexpr (std::is_same_v<K, float>) {
    return rnxiFilterBorderInit_32f(c.data(), size, dataType, channels, rnxRoundNearestEven, spec);
  } else {
    return rnxiFilterBorderInit_64f(c.data(), size, dataType, channels, rnxRoundNearestEven, spec);
  }
}

constexpr int kMargin = 8;  // pixels around the ROI that lie in memory

template <class T, class K>
void filterRow(const std::string& name, Size size, int channels, Filter<T> f, KernelSize k, int divisor,
               const Border& border) {
  const Size around = {size.width + 2 * kMargin, size.height + 2 * kMargin};
  const int kernelType = kType<K>;
  const Maker work = [=]() -> Work {
    int specSize = 0, bufferSize = 0;
    rnxiFilterBorderGetSize({k.width, k.height}, size.roi(), kType<T>, kernelType, channels, &specSize, &bufferSize);
    const Image<Rnx8u> spec(specSize, 1), buffer(bufferSize, 1);
    init<K>(k, kType<T>, channels, divisor, specIn(spec));
    const Image<T> src(around, channels), dst(size, channels);
    const T* roi = src.data() + (int64_t{kMargin} * around.width + kMargin) * channels;
    return [=, keep = src] {
      static const T kValue[4] = {1, 2, 3, 4};
      f(roi, keep.step(), dst.data(), dst.step(), size.roi(), border.type, kValue, specIn(spec), buffer.data());
    };
  };
  // The peer has floating-point kernels only, and works on the ROI alone.
  const Maker theirs = [=]() -> Work {
    const Image<T> src(size, channels), dst(size, channels);
    std::vector<double> taps;
    for (const K c : coefficients<K>(k)) taps.push_back(static_cast<double>(c) / (divisor == 0 ? 1 : divisor));
    cv::Mat d = mat(dst, size, channels);
    return [=, keep = std::vector{src, dst}, s = mat(src, size, channels)]() mutable {
      RNX_OPENCV(static const int kDepth = std::is_same_v<K, double> ? CV_64F : CV_32F; cv::Mat kernel;
                 cv::Mat(k.height, k.width, CV_64F, taps.data()).convertTo(kernel, kDepth);
                 cv::filter2D(s, d, -1, kernel, cv::Point(-1, -1), 0, border.cvType));
    };
  };
  addRow("Filter " + name + " " + k.name() + border.name, size,
         {floorOf(2 * channels * size.pixels() * static_cast<int64_t>(sizeof(T))), ours(work), opencv(theirs)});
}

void rowsOf8u(Size size) {
  for (const KernelSize k : kAll) {
    filterRow<Rnx8u, Rnx16s>("8u C1 int", size, 1, rnxiFilterBorder_8u_C1R, k, 3 * k.taps(), kReplicate);
    filterRow<Rnx8u, float>("8u C1 float", size, 1, rnxiFilterBorder_8u_C1R, k, 0, kReplicate);
  }
  for (const KernelSize k : kSquares) {
    filterRow<Rnx8u, Rnx16s>("8u C3 int", size, 3, rnxiFilterBorder_8u_C3R, k, 3 * k.taps(), kReplicate);
    filterRow<Rnx8u, Rnx16s>("8u C4 int", size, 4, rnxiFilterBorder_8u_C4R, k, 3 * k.taps(), kReplicate);
  }
  for (const int divisor : {1, 64}) {
    filterRow<Rnx8u, Rnx16s>("8u C1 int divisor " + std::to_string(divisor), size, 1, rnxiFilterBorder_8u_C1R, {3, 3},
                             divisor, kReplicate);
  }
}

void rowsOfOthers(Size size) {
  for (const KernelSize k : kSquares) {
    filterRow<Rnx16s, Rnx16s>("16s C1 int", size, 1, rnxiFilterBorder_16s_C1R, k, 3 * k.taps(), kReplicate);
    filterRow<Rnx16u, float>("16u C1 float", size, 1, rnxiFilterBorder_16u_C1R, k, 0, kReplicate);
    filterRow<float, float>("32f C3", size, 3, rnxiFilterBorder_32f_C3R, k, 0, kReplicate);
  }
  for (const KernelSize k : kAll)
    filterRow<float, float>("32f C1", size, 1, rnxiFilterBorder_32f_C1R, k, 0, kReplicate);
  for (const KernelSize k : {kSquares[0], kSquares[2]}) {
    filterRow<double, double>("64f C1", size, 1, rnxiFilterBorder_64f_C1R, k, 0, kReplicate);
    for (const Border& border : {kMirror, kConstant, kInMemory}) {
      filterRow<Rnx8u, Rnx16s>("8u C1 int", size, 1, rnxiFilterBorder_8u_C1R, k, 3 * k.taps(), border);
      filterRow<float, float>("32f C1", size, 1, rnxiFilterBorder_32f_C1R, k, 0, border);
    }
  }
}

void addRows() {
  for (const Size size : {kSizes[0], kSizes[1], kSizes[2]}) {
    rowsOf8u(size);
    rowsOfOthers(size);
  }
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
