// Add, Sub, Mul, Div and their constant forms.
#include "support/bench.h"

namespace bench {
namespace {

template <class T>
using ImagesSfs = RnxStatus (*)(const T*, int, const T*, int, T*, int, RnxiSize, int);
template <class T>
using ConstantSfs = RnxStatus (*)(const T*, int, T, T*, int, RnxiSize, int);
template <class T>
using ConstantC3Sfs = RnxStatus (*)(const T*, int, const T*, T*, int, RnxiSize, int);
using CvImages = std::function<void(const cv::Mat&, const cv::Mat&, cv::Mat&)>;
using CvConstant = std::function<void(const cv::Mat&, cv::Mat&)>;

template <class T>
int64_t bytesOf(Size size, int channels, int images) {
  return images * channels * size.pixels() * static_cast<int64_t>(sizeof(T));
}

template <class T>
Maker images(Size size, int channels, std::function<void(const T*, const T*, T*, int)> work) {
  return [=]() -> Work {
    const Image<T> a(size, channels), b(size, channels), d(size, channels);
    return [=] { work(a.data(), b.data(), d.data(), a.step()); };
  };
}

template <class T>
Maker cvImages(Size size, int channels, const CvImages& work) {
  return [=]() -> Work {
    const Image<T> a(size, channels), b(size, channels), d(size, channels);
    cv::Mat dst = mat(d, size, channels);
    return [=, keep = std::vector{a, b, d}, ma = mat(a, size, channels), mb = mat(b, size, channels)]() mutable {
      work(ma, mb, dst);
    };
  };
}

template <class T>
void imagesRow(const std::string& name, Size size, int channels, ImagesSfs<T> f, int scaleFactor, const CvImages& cv) {
  addRow(name, size,
         {floorOf(bytesOf<T>(size, channels, 3)),
          ours(images<T>(
              size, channels,
              [=](auto* a, auto* b, auto* d, int step) { f(a, step, b, step, d, step, size.roi(), scaleFactor); })),
          opencv(cvImages<T>(size, channels, cv))});
}

void floatRow(const std::string& name, Size size, decltype(&rnxiAdd_32f_C1R) f, const CvImages& cv) {
  addRow(name, size,
         {floorOf(bytesOf<float>(size, 1, 3)),
          ours(images<float>(size, 1,
                             [=](auto* a, auto* b, auto* d, int step) { f(a, step, b, step, d, step, size.roi()); })),
          opencv(cvImages<float>(size, 1, cv))});
}

// The peer's result with a factor: through its own scale argument where it has one.
CvImages add([[maybe_unused]] double scale) {
  if (scale == 1) return RNX_OPENCV([](auto& a, auto& b, auto& d) { cv::add(a, b, d); });
  return RNX_OPENCV([=](auto& a, auto& b, auto& d) { cv::addWeighted(a, scale, b, scale, 0, d); });
}
CvImages sub([[maybe_unused]] double scale) {
  if (scale == 1) return RNX_OPENCV([](auto& a, auto& b, auto& d) { cv::subtract(b, a, d); });
  return RNX_OPENCV([=](auto& a, auto& b, auto& d) { cv::addWeighted(b, scale, a, -scale, 0, d); });
}
CvImages mul([[maybe_unused]] double scale) {
  return RNX_OPENCV([=](auto& a, auto& b, auto& d) { cv::multiply(a, b, d, scale); });
}
CvImages divide([[maybe_unused]] double scale) {
  return RNX_OPENCV([=](auto& a, auto& b, auto& d) { cv::divide(b, a, d, scale); });
}
CvConstant convert([[maybe_unused]] double scale, [[maybe_unused]] double offset) {
  return RNX_OPENCV([=](auto& a, auto& d) { a.convertTo(d, a.type(), scale, offset); });
}
CvConstant addScalar() {
  return RNX_OPENCV([](auto& a, auto& d) { cv::add(a, cv::Scalar(20, 40, 3), d); });
}
CvConstant mulScalar([[maybe_unused]] double scale) {
  return RNX_OPENCV([=](auto& a, auto& d) { cv::multiply(a, cv::Scalar(20, 40, 3), d, scale); });
}

template <class T>
void constantRow(const std::string& name, Size size, int channels, std::function<void(const T*, T*, int)> f,
                 const CvConstant& cv) {
  addRow(name, size,
         {floorOf(bytesOf<T>(size, channels, 2)), ours([=]() -> Work {
            const Image<T> a(size, channels), d(size, channels);
            return [=] { f(a.data(), d.data(), a.step()); };
          }),
          opencv([=]() -> Work {
            const Image<T> a(size, channels), d(size, channels);
            cv::Mat dst = mat(d, size, channels);
            return [=, keep = std::vector{a, d}, src = mat(a, size, channels)]() mutable { cv(src, dst); };
          })});
}

void imageRows(Size size) {
  for (const int sf : {0, 7}) {
    const std::string suffix = " sf" + std::to_string(sf);
    const double k = 1.0 / (1 << sf);
    imagesRow<Rnx8u>("Add 8u C1" + suffix, size, 1, rnxiAdd_8u_C1RSfs, sf, add(k));
    imagesRow<Rnx8u>("Add 8u C3" + suffix, size, 3, rnxiAdd_8u_C3RSfs, sf, add(k));
    imagesRow<Rnx16s>("Add 16s C1" + suffix, size, 1, rnxiAdd_16s_C1RSfs, sf, add(k));
    imagesRow<Rnx8u>("Sub 8u C1" + suffix, size, 1, rnxiSub_8u_C1RSfs, sf, sub(k));
    imagesRow<Rnx8u>("Sub 8u C3" + suffix, size, 3, rnxiSub_8u_C3RSfs, sf, sub(k));
    imagesRow<Rnx16s>("Sub 16s C1" + suffix, size, 1, rnxiSub_16s_C1RSfs, sf, sub(k));
    imagesRow<Rnx8u>("Mul 8u C1" + suffix, size, 1, rnxiMul_8u_C1RSfs, sf, mul(k));
    imagesRow<Rnx8u>("Mul 8u C3" + suffix, size, 3, rnxiMul_8u_C3RSfs, sf, mul(k));
    imagesRow<Rnx16s>("Mul 16s C1" + suffix, size, 1, rnxiMul_16s_C1RSfs, sf, mul(k));
    imagesRow<Rnx8u>("Div 8u C1" + suffix, size, 1, rnxiDiv_8u_C1RSfs, sf, divide(k));
    imagesRow<Rnx16s>("Div 16s C1" + suffix, size, 1, rnxiDiv_16s_C1RSfs, sf, divide(k));
  }
  imagesRow<Rnx8u>("Add 8u C1 sf1", size, 1, rnxiAdd_8u_C1RSfs, 1, add(0.5));
  floatRow("Add 32f C1", size, rnxiAdd_32f_C1R, add(1));
  floatRow("Sub 32f C1", size, rnxiSub_32f_C1R, sub(1));
  floatRow("Mul 32f C1", size, rnxiMul_32f_C1R, mul(1));
  floatRow("Div 32f C1", size, rnxiDiv_32f_C1R, divide(1));
}

void constantRows(Size size) {
  const RnxiSize roi = size.roi();
  static const Rnx8u k8[3] = {20, 40, 3};
  for (const int sf : {0, 7}) {
    const std::string suffix = " sf" + std::to_string(sf);
    const double k = 1.0 / (1 << sf);
    constantRow<Rnx8u>(
        "AddC 8u C1" + suffix, size, 1,
        [=](auto* a, auto* d, int step) { rnxiAddC_8u_C1RSfs(a, step, 20, d, step, roi, sf); }, convert(k, 20 * k));
    constantRow<Rnx8u>(
        "AddC 8u C3" + suffix, size, 3,
        [=](auto* a, auto* d, int step) { rnxiAddC_8u_C3RSfs(a, step, k8, d, step, roi, sf); }, addScalar());
    constantRow<Rnx8u>(
        "MulC 8u C1" + suffix, size, 1,
        [=](auto* a, auto* d, int step) { rnxiMulC_8u_C1RSfs(a, step, 20, d, step, roi, sf); }, convert(20 * k, 0));
    constantRow<Rnx8u>(
        "MulC 8u C3" + suffix, size, 3,
        [=](auto* a, auto* d, int step) { rnxiMulC_8u_C3RSfs(a, step, k8, d, step, roi, sf); }, mulScalar(k));
    constantRow<Rnx16s>(
        "AddC 16s C1" + suffix, size, 1,
        [=](auto* a, auto* d, int step) { rnxiAddC_16s_C1RSfs(a, step, 20, d, step, roi, sf); }, convert(k, 20 * k));
    constantRow<Rnx16s>(
        "MulC 16s C1" + suffix, size, 1,
        [=](auto* a, auto* d, int step) { rnxiMulC_16s_C1RSfs(a, step, 20, d, step, roi, sf); }, convert(20 * k, 0));
    constantRow<Rnx8u>(
        "DivC 8u C1" + suffix, size, 1,
        [=](auto* a, auto* d, int step) { rnxiDivC_8u_C1RSfs(a, step, 20, d, step, roi, sf); }, convert(k / 20, 0));
  }
  constantRow<float>(
      "AddC 32f C1", size, 1, [=](auto* a, auto* d, int step) { rnxiAddC_32f_C1R(a, step, 20.0f, d, step, roi); },
      convert(1, 20));
  constantRow<float>(
      "MulC 32f C1", size, 1, [=](auto* a, auto* d, int step) { rnxiMulC_32f_C1R(a, step, 20.0f, d, step, roi); },
      convert(20, 0));
}

void addRows() {
  for (const Size size : kSizes) {
    imageRows(size);
    constantRows(size);
  }
  // The bare call.
  imagesRow<Rnx8u>("Add 8u C1 sf0", {1, 1}, 1, rnxiAdd_8u_C1RSfs, 0, add(1));
  imagesRow<Rnx8u>("Mul 8u C1 sf7", {1, 1}, 1, rnxiMul_8u_C1RSfs, 7, mul(1.0 / 128));
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
