// Set, Copy, channels, Mirror, Transpose, borders and one-bit images.
#include "support/bench.h"

#if RNX_BENCH_YUV
#include <libyuv.h>
#define RNX_YUV(...) peer("libyuv", __VA_ARGS__)
#else
#define RNX_YUV(...) \
  Contestants {}
#endif

namespace bench {
namespace {

constexpr int64_t kByte = 1;

// Work on a source and a destination of so many channels, by pointer and by matrix.
template <class T>
using Plain = std::function<void(const T* src, int srcStep, T* dst, int dstStep)>;
using CvPlain = std::function<void(const cv::Mat& src, cv::Mat& dst)>;

template <class T>
Maker plain(Size size, int srcChannels, int dstChannels, const Plain<T>& work) {
  return [=]() -> Work {
    const Image<T> a(size, srcChannels), d(size, dstChannels);
    return [=] { work(a.data(), a.step(), d.data(), d.step()); };
  };
}

template <class T>
Maker cvPlain(Size size, int srcChannels, int dstChannels, const CvPlain& work) {
  return [=]() -> Work {
    const Image<T> a(size, srcChannels), d(size, dstChannels);
    cv::Mat dst = mat(d, size, dstChannels);
    return [=, keep = std::vector{a, d}, src = mat(a, size, srcChannels)]() mutable { work(src, dst); };
  };
}

template <class T>
void row(const std::string& name, Size size, int srcChannels, int dstChannels, const Plain<T>& ours_, const CvPlain& cv,
         const Plain<T>& yuv = nullptr) {
  const int64_t bytes = (srcChannels + dstChannels) * size.pixels() * static_cast<int64_t>(sizeof(T));
  std::vector<Contestants> all = {floorOf(bytes), ours(plain<T>(size, srcChannels, dstChannels, ours_))};
  if (cv) all.push_back(opencv(cvPlain<T>(size, srcChannels, dstChannels, cv)));
  if (yuv) all.push_back(RNX_YUV(plain<T>(size, srcChannels, dstChannels, yuv)));
  addRow(name, size, all);
}

#if RNX_BENCH_OPENCV
#define CV_WORK(...) [=]([[maybe_unused]] const cv::Mat& a, cv::Mat& d) { __VA_ARGS__; }
#else
#define CV_WORK(...) CvPlain()
#endif
#if RNX_BENCH_YUV
#define YUV_WORK(T, ...) Plain<T>([=](const T* a, int as, T* d, int ds) { __VA_ARGS__; })
#else
#define YUV_WORK(T, ...) Plain<T>()
#endif
#define RNX_WORK(T, ...) Plain<T>([=](const T* a, int as, T* d, int ds) { __VA_ARGS__; })

// ---- Copy and Set ----

void copyRows(Size size) {
  const RnxiSize roi = size.roi();
  row<Rnx8u>("Copy 8u C1", size, 1, 1, RNX_WORK(Rnx8u, rnxiCopy_8u_C1R(a, as, d, ds, roi)), CV_WORK(a.copyTo(d)));
  row<Rnx8u>("Copy 8u C3", size, 3, 3, RNX_WORK(Rnx8u, rnxiCopy_8u_C3R(a, as, d, ds, roi)), CV_WORK(a.copyTo(d)));
  row<Rnx16u>("Copy 16u C1", size, 1, 1, RNX_WORK(Rnx16u, rnxiCopy_16u_C1R(a, as, d, ds, roi)), CV_WORK(a.copyTo(d)));
  row<float>("Copy 32f C3", size, 3, 3, RNX_WORK(float, rnxiCopy_32f_C3R(a, as, d, ds, roi)), CV_WORK(a.copyTo(d)));
  row<Rnx8u>("Copy 8u AC4", size, 4, 4, RNX_WORK(Rnx8u, rnxiCopy_8u_AC4R(a, as, d, ds, roi)), nullptr);

  static const Rnx8u k8[4] = {1, 2, 3, 4};
  static const float kf[3] = {1, 2, 3};
  row<Rnx8u>("Set 8u C1", size, 0, 1, RNX_WORK(Rnx8u, (void)a, (void)as, rnxiSet_8u_C1R(7, d, ds, roi)),
             CV_WORK(d.setTo(7)));
  row<Rnx8u>("Set 8u C3", size, 0, 3, RNX_WORK(Rnx8u, (void)a, (void)as, rnxiSet_8u_C3R(k8, d, ds, roi)),
             CV_WORK(d.setTo(cv::Scalar(1, 2, 3))));
  row<Rnx8u>("Set 8u C4", size, 0, 4, RNX_WORK(Rnx8u, (void)a, (void)as, rnxiSet_8u_C4R(k8, d, ds, roi)),
             CV_WORK(d.setTo(cv::Scalar(1, 2, 3, 4))));
  row<float>("Set 32f C3", size, 0, 3, RNX_WORK(float, (void)a, (void)as, rnxiSet_32f_C3R(kf, d, ds, roi)),
             CV_WORK(d.setTo(cv::Scalar(1, 2, 3))));
}

// The mask selects the even pixels of random halves.
template <class T>
void maskedRow(const std::string& name, Size size, int channels,
               const std::function<void(const T*, T*, int, const Rnx8u*, int)>& work,
               [[maybe_unused]] const std::function<void(const cv::Mat&, cv::Mat&, const cv::Mat&)>& cv) {
  const int64_t bytes = size.pixels() * (2 * channels * static_cast<int64_t>(sizeof(T)) + kByte);
  addRow(name, size,
         {floorOf(bytes), ours([=]() -> Work {
            const Image<T> a(size, channels), d(size, channels);
            const Image<Rnx8u> m(size, 1);
            for (int64_t i = 0; i < m.elements(); ++i) m.data()[i] = m.data()[i] & 1;
            return [=] { work(a.data(), d.data(), a.step(), m.data(), m.step()); };
          }),
          opencv([=]() -> Work {
            const Image<T> a(size, channels), d(size, channels);
            const Image<Rnx8u> m(size, 1);
            for (int64_t i = 0; i < m.elements(); ++i) m.data()[i] = m.data()[i] & 1;
            cv::Mat dst = mat(d, size, channels);
            return [=, keep = std::vector{a, d}, src = mat(a, size, channels), mask = mat(m, size, 1)]() mutable {
              cv(src, dst, mask);
            };
          })});
}

#if RNX_BENCH_OPENCV
#define CV_MASKED(...) []([[maybe_unused]] const cv::Mat& a, cv::Mat& d, const cv::Mat& m) { __VA_ARGS__; }
#else
#define CV_MASKED(...) nullptr
#endif

void maskedRows(Size size) {
  const RnxiSize roi = size.roi();
  static const Rnx8u k8[3] = {1, 2, 3};
  maskedRow<Rnx8u>(
      "CopyMasked 8u C1", size, 1,
      [=](auto* a, auto* d, int s, auto* m, int ms) { rnxiCopy_8u_C1MR(a, s, d, s, roi, m, ms); },
      CV_MASKED(a.copyTo(d, m)));
  maskedRow<Rnx8u>(
      "CopyMasked 8u C3", size, 3,
      [=](auto* a, auto* d, int s, auto* m, int ms) { rnxiCopy_8u_C3MR(a, s, d, s, roi, m, ms); },
      CV_MASKED(a.copyTo(d, m)));
  maskedRow<float>(
      "CopyMasked 32f C1", size, 1,
      [=](auto* a, auto* d, int s, auto* m, int ms) { rnxiCopy_32f_C1MR(a, s, d, s, roi, m, ms); },
      CV_MASKED(a.copyTo(d, m)));
  maskedRow<Rnx8u>(
      "SetMasked 8u C1", size, 1, [=](auto*, auto* d, int s, auto* m, int ms) { rnxiSet_8u_C1MR(7, d, s, roi, m, ms); },
      CV_MASKED(d.setTo(7, m)));
  maskedRow<Rnx8u>(
      "SetMasked 8u C3", size, 3,
      [=](auto*, auto* d, int s, auto* m, int ms) { rnxiSet_8u_C3MR(k8, d, s, roi, m, ms); },
      CV_MASKED(d.setTo(cv::Scalar(1, 2, 3), m)));
}

// ---- Channels ----

// Planes are the thirds or quarters of one image that is as wide as they are and as high as all of them.
template <class T>
struct Planes {
  Planes(T* first, Size size, int n) {
    for (int k = 0; k < n; ++k) at[k] = first + k * size.pixels();
  }
  T* at[4];
};

template <class T>
void planeRows(const std::string& type, Size size, RnxStatus (*split)(const T*, int, T* const*, int, RnxiSize),
               RnxStatus (*join)(const T* const*, int, T*, int, RnxiSize), int n, const Plain<T>& yuvSplit = nullptr,
               const Plain<T>& yuvJoin = nullptr) {
  const RnxiSize roi = size.roi();
  const int step = size.width * static_cast<int>(sizeof(T));
  const std::string c = std::to_string(n);
  row<T>("Copy " + type + " C" + c + "P" + c, size, n, n,
         RNX_WORK(T, (void)ds; split(a, as, Planes<T>(d, size, n).at, step, roi)),
         CV_WORK(std::vector<cv::Mat> planes; for (int k = 0; k < n; ++k) planes.push_back(cv::Mat(
             size.height, size.width, CV_MAKETYPE(a.depth(), 1), d.data + k * size.pixels() * step / size.width));
                 cv::split(a, planes)),
         yuvSplit);
  row<T>("Copy " + type + " P" + c + "C" + c, size, n, n,
         RNX_WORK(T, (void)as; Planes<const T> planes(a, size, n); join(planes.at, step, d, ds, roi)),
         CV_WORK(std::vector<cv::Mat> planes; for (int k = 0; k < n; ++k) planes.push_back(cv::Mat(
             size.height, size.width, CV_MAKETYPE(a.depth(), 1), a.data + k * size.pixels() * step / size.width));
                 cv::merge(planes, d)),
         yuvJoin);
}

#if RNX_BENCH_OPENCV
CvPlain mixed(std::vector<int> pairs) {
  return [=](const cv::Mat& a, cv::Mat& d) { cv::mixChannels(&a, 1, &d, 1, pairs.data(), pairs.size() / 2); };
}
CvPlain colors(int code) {
  return [=](const cv::Mat& a, cv::Mat& d) { cv::cvtColor(a, d, code); };
}
#define CV_CODE(name) colors(cv::name)
#else
CvPlain mixed(const std::vector<int>&) { return nullptr; }
#define CV_CODE(name) CvPlain()
#endif

void channelRows(Size size) {
  const RnxiSize roi = size.roi();
  const int64_t plane = size.pixels();
  [[maybe_unused]] const int w = size.width, h = size.height;
  planeRows<Rnx8u>("8u", size, rnxiCopy_8u_C3P3R, rnxiCopy_8u_P3C3R, 3,
                   YUV_WORK(Rnx8u, (void)ds; libyuv::SplitRGBPlane(a, as, d, w, d + plane, w, d + 2 * plane, w, w, h)),
                   YUV_WORK(Rnx8u, (void)as; libyuv::MergeRGBPlane(a, w, a + plane, w, a + 2 * plane, w, d, ds, w, h)));
  planeRows<Rnx8u>("8u", size, rnxiCopy_8u_C4P4R, rnxiCopy_8u_P4C4R, 4,
                   YUV_WORK(Rnx8u, (void)ds; libyuv::SplitARGBPlane(a, as, d, w, d + plane, w, d + 2 * plane, w,
                                                                    d + 3 * plane, w, w, h)),
                   YUV_WORK(Rnx8u, (void)as; libyuv::MergeARGBPlane(a, w, a + plane, w, a + 2 * plane, w, a + 3 * plane,
                                                                    w, d, ds, w, h)));
  planeRows<Rnx16u>("16u", size, rnxiCopy_16u_C3P3R, rnxiCopy_16u_P3C3R, 3);
  planeRows<float>("32f", size, rnxiCopy_32f_C3P3R, rnxiCopy_32f_P3C3R, 3);
  planeRows<float>("32f", size, rnxiCopy_32f_C4P4R, rnxiCopy_32f_P4C4R, 4);

  row<Rnx8u>("Copy 8u C3C1", size, 3, 1, RNX_WORK(Rnx8u, rnxiCopy_8u_C3C1R(a + 1, as, d, ds, roi)), mixed({1, 0}));
  row<Rnx8u>("Copy 8u C4C1", size, 4, 1, RNX_WORK(Rnx8u, rnxiCopy_8u_C4C1R(a + 1, as, d, ds, roi)), mixed({1, 0}),
             YUV_WORK(Rnx8u, libyuv::ARGBExtractAlpha(a, as, d, ds, w, h)));
  row<Rnx8u>("Copy 8u C1C3", size, 1, 3, RNX_WORK(Rnx8u, rnxiCopy_8u_C1C3R(a, as, d + 1, ds, roi)), mixed({0, 1}));
  row<Rnx8u>("Copy 8u AC4C3", size, 4, 3, RNX_WORK(Rnx8u, rnxiCopy_8u_AC4C3R(a, as, d, ds, roi)),
             CV_CODE(COLOR_BGRA2BGR), YUV_WORK(Rnx8u, libyuv::ARGBToRGB24(a, as, d, ds, w, h)));
  row<Rnx8u>("Copy 8u C3AC4", size, 3, 4, RNX_WORK(Rnx8u, rnxiCopy_8u_C3AC4R(a, as, d, ds, roi)),
             mixed({0, 0, 1, 1, 2, 2}));
  row<Rnx8u>("Dup 8u C1C3", size, 1, 3, RNX_WORK(Rnx8u, rnxiDup_8u_C1C3R(a, as, d, ds, roi)), CV_CODE(COLOR_GRAY2BGR));
  row<Rnx8u>("Dup 8u C1C4", size, 1, 4, RNX_WORK(Rnx8u, rnxiDup_8u_C1C4R(a, as, d, ds, roi)),
             mixed({0, 0, 0, 1, 0, 2, 0, 3}));

  static const int kReverse[4] = {2, 1, 0, 3};
  row<Rnx8u>("Swap 8u C3", size, 3, 3, RNX_WORK(Rnx8u, rnxiSwapChannels_8u_C3R(a, as, d, ds, roi, kReverse)),
             CV_CODE(COLOR_BGR2RGB), YUV_WORK(Rnx8u, libyuv::RAWToRGB24(a, as, d, ds, w, h)));
  row<Rnx8u>("Swap 8u C4", size, 4, 4, RNX_WORK(Rnx8u, rnxiSwapChannels_8u_C4R(a, as, d, ds, roi, kReverse)),
             CV_CODE(COLOR_BGRA2RGBA), YUV_WORK(Rnx8u, libyuv::ARGBToABGR(a, as, d, ds, w, h)));
  row<Rnx16u>("Swap 16u C3", size, 3, 3, RNX_WORK(Rnx16u, rnxiSwapChannels_16u_C3R(a, as, d, ds, roi, kReverse)),
              CV_CODE(COLOR_BGR2RGB));
  row<float>("Swap 32f C3", size, 3, 3, RNX_WORK(float, rnxiSwapChannels_32f_C3R(a, as, d, ds, roi, kReverse)),
             CV_CODE(COLOR_BGR2RGB));
  row<Rnx8u>("Swap 8u C3C4", size, 3, 4, RNX_WORK(Rnx8u, rnxiSwapChannels_8u_C3C4R(a, as, d, ds, roi, kReverse, 255)),
             CV_CODE(COLOR_BGR2RGBA), YUV_WORK(Rnx8u, libyuv::RAWToARGB(a, as, d, ds, w, h)));
  row<Rnx8u>("Swap 8u C4C3", size, 4, 3, RNX_WORK(Rnx8u, rnxiSwapChannels_8u_C4C3R(a, as, d, ds, roi, kReverse)),
             CV_CODE(COLOR_BGRA2RGB), YUV_WORK(Rnx8u, libyuv::ARGBToRAW(a, as, d, ds, w, h)));
}

// ---- Mirror and transpose ----

void mirrorRows(Size size) {
  const RnxiSize roi = size.roi();
  [[maybe_unused]] const int w = size.width, h = size.height;
  const auto flips = [&]<class T>(const std::string& type, int channels, auto f, T) {
    for (const int flip : {0, 1, 2}) {
      row<T>("Mirror " + type + " flip" + std::to_string(flip), size, channels, channels,
             RNX_WORK(T, f(a, as, d, ds, roi, flip)), CV_WORK(cv::flip(a, d, flip == 2 ? -1 : flip)));
    }
  };
  flips("8u C1", 1, rnxiMirror_8u_C1R, Rnx8u{});
  flips("8u C3", 3, rnxiMirror_8u_C3R, Rnx8u{});
  flips("8u C4", 4, rnxiMirror_8u_C4R, Rnx8u{});
  flips("16u C1", 1, rnxiMirror_16u_C1R, Rnx16u{});
  flips("32f C1", 1, rnxiMirror_32f_C1R, float{});
}

void transposeRows(Size size) {
  const Size turned = {size.height, size.width};
  const auto one = [&]<class T>(const std::string& type, int channels, auto f, T) {
    addRow("Transpose " + type, size,
           {floorOf(2 * channels * size.pixels() * static_cast<int64_t>(sizeof(T))), ours([=]() -> Work {
              const Image<T> a(size, channels), d(turned, channels);
              return [=] { f(a.data(), a.step(), d.data(), d.step(), size.roi()); };
            }),
            opencv([=]() -> Work {
              const Image<T> a(size, channels), d(turned, channels);
              cv::Mat dst = mat(d, turned, channels);
              return [=, keep = std::vector{a, d}, src = mat(a, size, channels)]() mutable {
                RNX_OPENCV(cv::transpose(src, dst));
              };
            })});
  };
  one("8u C1", 1, rnxiTranspose_8u_C1R, Rnx8u{});
  one("8u C3", 3, rnxiTranspose_8u_C3R, Rnx8u{});
  one("8u C4", 4, rnxiTranspose_8u_C4R, Rnx8u{});
  one("16u C1", 1, rnxiTranspose_16u_C1R, Rnx16u{});
  one("16u C3", 3, rnxiTranspose_16u_C3R, Rnx16u{});
  one("16u C4", 4, rnxiTranspose_16u_C4R, Rnx16u{});
  one("32f C1", 1, rnxiTranspose_32f_C1R, float{});
  one("32f C3", 3, rnxiTranspose_32f_C3R, float{});
  one("32f C4", 4, rnxiTranspose_32f_C4R, float{});
}

// In place: every call undoes or repeats the one before.
template <class T>
void inPlaceRow(const std::string& name, Size size, int channels,
                const std::function<void(T* image, int step, RnxiSize roi)>& work, [[maybe_unused]] const CvPlain& cv) {
  addRow(name, size,
         {floorOf(2 * channels * size.pixels() * static_cast<int64_t>(sizeof(T))), ours([=]() -> Work {
            const Image<T> a(size, channels);
            return [=] { work(a.data(), a.step(), size.roi()); };
          }),
          opencv([=]() -> Work {
            const Image<T> a(size, channels);
            return [=, keep = a, m = mat(a, size, channels)]() mutable { cv(m, m); };
          })});
}

void transposeInPlaceRows(Size size) {
  inPlaceRow<Rnx8u>("TransposeInPlace 8u C1", size, 1, rnxiTranspose_8u_C1IR, CV_WORK(cv::transpose(d, d)));
  inPlaceRow<Rnx8u>("TransposeInPlace 8u C3", size, 3, rnxiTranspose_8u_C3IR, CV_WORK(cv::transpose(d, d)));
  inPlaceRow<Rnx16u>("TransposeInPlace 16u C4", size, 4, rnxiTranspose_16u_C4IR, CV_WORK(cv::transpose(d, d)));
  inPlaceRow<float>("TransposeInPlace 32f C1", size, 1, rnxiTranspose_32f_C1IR, CV_WORK(cv::transpose(d, d)));
  inPlaceRow<float>("TransposeInPlace 32f C3", size, 3, rnxiTranspose_32f_C3IR, CV_WORK(cv::transpose(d, d)));
}

void mirrorInPlaceRows(Size size) {
  for (const int flip : {0, 1, 2}) {
    const std::string name = " flip" + std::to_string(flip);
    inPlaceRow<Rnx8u>(
        "MirrorInPlace 8u C1" + name, size, 1,
        [flip](auto* a, int step, RnxiSize roi) { rnxiMirror_8u_C1IR(a, step, roi, flip); },
        CV_WORK(cv::flip(d, d, flip == 2 ? -1 : flip)));
    inPlaceRow<Rnx8u>(
        "MirrorInPlace 8u C3" + name, size, 3,
        [flip](auto* a, int step, RnxiSize roi) { rnxiMirror_8u_C3IR(a, step, roi, flip); },
        CV_WORK(cv::flip(d, d, flip == 2 ? -1 : flip)));
  }
}

// ---- Borders ----

template <class T>
void borderRow(const std::string& name, Size size, int channels, int border,
               const std::function<void(const T*, int, RnxiSize, T*, int, RnxiSize)>& work,
               [[maybe_unused]] int cvKind) {
  const Size outer = {size.width + 2 * border, size.height + 2 * border};
  const int64_t bytes = (size.pixels() + outer.pixels()) * channels * static_cast<int64_t>(sizeof(T));
  addRow(name + " border " + std::to_string(border), size,
         {floorOf(bytes), ours([=]() -> Work {
            const Image<T> a(size, channels), d(outer, channels);
            return [=] { work(a.data(), a.step(), size.roi(), d.data(), d.step(), outer.roi()); };
          }),
          opencv([=]() -> Work {
            const Image<T> a(size, channels), d(outer, channels);
            cv::Mat dst = mat(d, outer, channels);
            return [=, keep = std::vector{a, d}, src = mat(a, size, channels)]() mutable {
              RNX_OPENCV(cv::copyMakeBorder(src, dst, border, border, border, border, cvKind, cv::Scalar(1, 2, 3)));
            };
          })});
}

// Only the frame is written; the floor is a copy of that much.
void borderInPlaceRow(Size size, int border) {
  const Size outer = {size.width + 2 * border, size.height + 2 * border};
  addRow("BorderInPlace Replicate 8u C1 border " + std::to_string(border), size,
         {floorOf(2 * (outer.pixels() - size.pixels())), ours([=]() -> Work {
            const Image<Rnx8u> d(outer, 1);
            return [=] {
              rnxiCopyReplicateBorder_8u_C1IR(d.data() + border * d.step() + border, d.step(), size.roi(), outer.roi(),
                                              border, border);
            };
          })});
}

void borderRows(Size size) {
  enum { kConst = 0, kReplicate = 1, kReflect101 = 4 };  // the peer's names for the kinds
  static const Rnx8u k8[3] = {1, 2, 3};
  for (const int b : {3, 8}) {
    borderInPlaceRow(size, b);
    borderRow<Rnx8u>(
        "Replicate 8u C1", size, 1, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyReplicateBorder_8u_C1R(a, as, i, d, ds, o, b, b);
        },
        kReplicate);
    borderRow<Rnx8u>(
        "Replicate 8u C3", size, 3, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyReplicateBorder_8u_C3R(a, as, i, d, ds, o, b, b);
        },
        kReplicate);
    borderRow<Rnx8u>(
        "MirrorBorder 8u C1", size, 1, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyMirrorBorder_8u_C1R(a, as, i, d, ds, o, b, b);
        },
        kReflect101);
    borderRow<Rnx8u>(
        "MirrorBorder 8u C3", size, 3, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyMirrorBorder_8u_C3R(a, as, i, d, ds, o, b, b);
        },
        kReflect101);
    borderRow<float>(
        "MirrorBorder 32f C1", size, 1, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyMirrorBorder_32f_C1R(a, as, i, d, ds, o, b, b);
        },
        kReflect101);
    borderRow<Rnx8u>(
        "ConstBorder 8u C1", size, 1, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyConstBorder_8u_C1R(a, as, i, d, ds, o, b, b, 7);
        },
        kConst);
    borderRow<Rnx8u>(
        "ConstBorder 8u C3", size, 3, b,
        [=](auto* a, int as, RnxiSize i, auto* d, int ds, RnxiSize o) {
          rnxiCopyConstBorder_8u_C3R(a, as, i, d, ds, o, b, b, k8);
        },
        kConst);
  }
}

// ---- One-bit images ----

void bitRows(Size size) {
  const RnxiSize roi = size.roi();
  const int bitStep = (size.width + 7) / 8;
  addRow("GrayToBin 8u", size, {
    floorOf(size.pixels() * 9 / 8),
        ours(
            plain<Rnx8u>(size, 1, 1, RNX_WORK(Rnx8u, (void)ds; rnxiGrayToBin_8u1u_C1R(a, as, d, bitStep, 0, roi, 127))))
  });
  addRow("GrayToBin 8u offset3", size, {
    floorOf(size.pixels() * 9 / 8),
        ours(plain<Rnx8u>(size, 1, 1,
                          RNX_WORK(Rnx8u, (void)ds; rnxiGrayToBin_8u1u_C1R(a, as, d, bitStep + 1, 3, roi, 127))))
  });
  addRow("BinToGray 8u", size, {
    floorOf(size.pixels() * 9 / 8),
        ours(plain<Rnx8u>(size, 1, 1,
                          RNX_WORK(Rnx8u, (void)as; rnxiBinToGray_1u8u_C1R(a, bitStep, 0, d, ds, roi, 0, 255))))
  });
  addRow("GrayToBin 32f", size, {floorOf(size.pixels() * 33 / 8), ours([=]() -> Work {
                                   const Image<float> a(size, 1);
                                   const Image<Rnx8u> d(size, 1);
                                   return [=] {
                                     rnxiGrayToBin_32f1u_C1R(a.data(), a.step(), d.data(), bitStep, 0, roi, 1.5f);
                                   };
                                 })});
}

void addRows() {
  for (const Size size : kSizes) {
    copyRows(size);
    maskedRows(size);
    channelRows(size);
    mirrorRows(size);
    mirrorInPlaceRows(size);
    transposeRows(size);
    borderRows(size);
    bitRows(size);
  }
  transposeRows({4096, 4096});
  transposeRows({1003, 997});
  for (const int n : {512, 997, 4096}) transposeInPlaceRows({n, n});
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
