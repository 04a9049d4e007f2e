// Thresholds, comparison, conversion, scaling, reductions and alpha premultiplication.
#include "support/bench.h"

#include <algorithm>

#if RNX_BENCH_YUV
#include <libyuv.h>
#define RNX_YUV(...) __VA_ARGS__
#else
#define RNX_YUV(...)
#endif

namespace bench {
namespace {

using Cv1 = std::function<void(const cv::Mat&, cv::Mat&)>;
using Cv2 = std::function<void(const cv::Mat&, const cv::Mat&, cv::Mat&)>;

template <class S, class D>
void row(const std::string& name, Size size, int channels, std::function<void(const S*, int, D*, int)> f, const Cv1& cv,
         const Contestants& other = {}) {
  const int64_t bytes = size.pixels() * channels * static_cast<int64_t>(sizeof(S) + sizeof(D));
  addRow(name, size,
         {floorOf(bytes), ours([=]() -> Work {
            const Image<S> a(size, channels);
            const Image<D> d(size, channels);
            return [=] { f(a.data(), a.step(), d.data(), d.step()); };
          }),
          !cv ? Contestants() : opencv([=]() -> Work {
            const Image<S> a(size, channels);
            const Image<D> d(size, channels);
            cv::Mat dst = mat(d, size, channels);
            return [=, keepA = a, keepD = d, src = mat(a, size, channels)]() mutable { cv(src, dst); };
          }),
          other});
}

template <class S>
void reduction(const std::string& name, Size size, int channels, std::function<void(const S*, int, const S*)> f,
               bool two, const Cv2& cv, const Contestants& other = {}) {
  addRow(name, size,
         {readFloorOf(size.pixels() * channels * static_cast<int64_t>(sizeof(S)) * (two ? 2 : 1)), ours([=]() -> Work {
            const Image<S> a(size, channels), b(size, channels);
            std::reverse(b.data(), b.data() + b.elements());  // images that differ
            return [=] { f(a.data(), a.step(), b.data()); };
          }),
          opencv([=]() -> Work {
            const Image<S> a(size, channels), b(size, channels);
            std::reverse(b.data(), b.data() + b.elements());
            return [=, keep = std::vector{a, b}, ma = mat(a, size, channels), mb = mat(b, size, channels)] {
              cv::Mat none;
              cv(ma, mb, none);
            };
          }),
          other});
}

#if RNX_BENCH_YUV
Contestants yuv(Maker make) { return peer("libyuv", std::move(make)); }
#else
Contestants yuv(const Maker&) { return {}; }
#endif

Cv1 convertTo([[maybe_unused]] double scale = 1, [[maybe_unused]] double offset = 0) {
  return RNX_OPENCV([=](auto& a, auto& d) { a.convertTo(d, d.type(), scale, offset); });
}
Cv1 threshold([[maybe_unused]] int kind) {
  return RNX_OPENCV([=](auto& a, auto& d) { cv::threshold(a, d, 100, 200, kind); });
}

void thresholds(Size size) {
  const RnxiSize roi = size.roi();
  row<Rnx8u, Rnx8u>(
      "Threshold_GT 8u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_GT_8u_C1R(s, n, d, m, roi, 100); }, threshold(2));
  row<Rnx8u, Rnx8u>(
      "Threshold_LTVal 8u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_LTVal_8u_C1R(s, n, d, m, roi, 100, 0); }, threshold(3));
  row<Rnx8u, Rnx8u>(
      "Threshold_GTVal 8u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_GTVal_8u_C1R(s, n, d, m, roi, 100, 255); }, threshold(0));
  row<Rnx8u, Rnx8u>(
      "Threshold_LTValGTVal 8u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_LTValGTVal_8u_C1R(s, n, d, m, roi, 50, 0, 100, 255); },
      threshold(2));
  row<Rnx8u, Rnx8u>(
      "Threshold_GT 8u C3", size, 3,
      [=](auto* s, int n, auto* d, int m) {
        constexpr Rnx8u kLevels[3] = {100, 100, 100};
        rnxiThreshold_GT_8u_C3R(s, n, d, m, roi, kLevels);
      },
      threshold(2));
  row<Rnx16u, Rnx16u>(
      "Threshold_GT 16u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_GT_16u_C1R(s, n, d, m, roi, 100); }, threshold(2));
  row<Rnx16u, Rnx16u>(
      "Threshold_LTVal 16u", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_LTVal_16u_C1R(s, n, d, m, roi, 100, 0); }, threshold(3));
  row<Rnx16s, Rnx16s>(
      "Threshold_LTVal 16s", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_LTVal_16s_C1R(s, n, d, m, roi, 100, 0); }, threshold(3));
  row<float, float>(
      "Threshold_LTVal 32f", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_LTVal_32f_C1R(s, n, d, m, roi, 100, 0); }, threshold(3));
  row<Rnx16s, Rnx16s>(
      "Threshold_GT 16s", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_GT_16s_C1R(s, n, d, m, roi, 100); }, threshold(2));
  row<float, float>(
      "Threshold_GT 32f", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiThreshold_GT_32f_C1R(s, n, d, m, roi, 100); }, threshold(2));
}

void conversions(Size size) {
  const RnxiSize roi = size.roi();
  row<Rnx8u, float>(
      "Convert 8u32f", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_8u32f_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx8u, float>("Convert 8u32f AC4", size, 4,
                    [=](auto* s, int n, auto* d, int m) { rnxiConvert_8u32f_AC4R(s, n, d, m, roi); }, {});
  row<float, Rnx8u>(
      "Convert 32f8u zero", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f8u_C1R(s, n, d, m, roi, 0); },
      convertTo());
  row<float, Rnx8u>(
      "Convert 32f8u even", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f8u_C1R(s, n, d, m, roi, 1); },
      convertTo());
  row<float, Rnx8u>(
      "Convert 32f8u away", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f8u_C1R(s, n, d, m, roi, 2); },
      convertTo());
  row<float, Rnx8u>(
      "Convert 32f8u Sfs7", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f8u_C1RSfs(s, n, d, m, roi, 1, 7); }, convertTo(1 / 128.0));
  row<Rnx8u, Rnx16u>(
      "Convert 8u16u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_8u16u_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx8u, Rnx16s>(
      "Convert 8u16s", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_8u16s_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx16s, Rnx8u>(
      "Convert 16s8u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_16s8u_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx16s, float>(
      "Convert 16s32f", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_16s32f_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx16u, Rnx16s>(
      "Convert 16u16s Sfs4 away", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiConvert_16u16s_C1RSfs(s, n, d, m, roi, 2, 4); }, convertTo(1 / 16.0));
  row<float, Rnx16u>(
      "Convert 32f16u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f16u_C1R(s, n, d, m, roi, 1); },
      convertTo());
  row<Rnx16u, Rnx8u>(
      "Convert 16u8u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_16u8u_C1R(s, n, d, m, roi); },
      convertTo());
  row<Rnx16s, Rnx8s>(
      "Convert 16s8s Sfs4", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiConvert_16s8s_C1RSfs(s, n, d, m, roi, 1, 4); }, convertTo(1 / 16.0));
  row<Rnx16u, float>(
      "Convert 16u32f", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_16u32f_C1R(s, n, d, m, roi); },
      convertTo());
  row<float, Rnx16s>(
      "Convert 32f16s", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiConvert_32f16s_C1R(s, n, d, m, roi, 1); },
      convertTo());
  row<Rnx16u, Rnx8u>(
      "Scale 16u8u accurate", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_16u8u_C1R(s, n, d, m, roi, 2); },
      convertTo(255 / 65535.0));
  row<Rnx16u, Rnx8u>(
      "Scale 16u8u fast", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_16u8u_C1R(s, n, d, m, roi, 0); },
      convertTo(1 / 256.0), yuv([=]() -> Work {
        const Image<Rnx16u> a(size, 1);
        const Image<Rnx8u> d(size, 1);
        return [=] {
          RNX_YUV(libyuv::Convert16To8Plane(a.data(), size.width, d.data(), size.width, 256, size.width, size.height));
        };
      }));
  row<Rnx8u, Rnx16u>(
      "Scale 8u16u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_8u16u_C1R(s, n, d, m, roi); },
      convertTo(257), yuv([=]() -> Work {
        const Image<Rnx8u> a(size, 1);
        const Image<Rnx16u> d(size, 1);
        return [=] {
          RNX_YUV(
              libyuv::Convert8To16Plane(a.data(), size.width, d.data(), size.width, 65536, size.width, size.height));
        };
      }));
  row<Rnx16s, Rnx8u>(
      "Scale 16s8u accurate", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_16s8u_C1R(s, n, d, m, roi, 2); },
      convertTo(255 / 65535.0, 127.5));
  row<Rnx8u, float>(
      "Scale 8u32f", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_8u32f_C1R(s, n, d, m, roi, 0, 1); },
      convertTo(1 / 255.0));
  row<float, Rnx8u>(
      "Scale 32f8u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScale_32f8u_C1R(s, n, d, m, roi, 0, 1); },
      convertTo(255));
  row<Rnx8u, Rnx8u>(
      "ScaleC 8u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScaleC_8u_C1R(s, n, 1.5, 3, d, m, roi, 0); },
      convertTo(1.5, 3));
  row<Rnx8u, Rnx8u>("ScaleC 8u accurate", size, 1,
                    [=](auto* s, int n, auto* d, int m) { rnxiScaleC_8u_C1R(s, n, 1.5, 3, d, m, roi, 2); }, {});
  row<Rnx16u, Rnx16u>(
      "ScaleC 16u", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScaleC_16u_C1R(s, n, 1.5, 3, d, m, roi, 0); },
      convertTo(1.5, 3));
  row<Rnx8u, float>(
      "ScaleC 8u32f", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiScaleC_8u32f_C1R(s, n, 1.5, 3, d, m, roi, 0); }, convertTo(1.5, 3));
  row<float, float>(
      "ScaleC 32f", size, 1, [=](auto* s, int n, auto* d, int m) { rnxiScaleC_32f_C1R(s, n, 1.5, 3, d, m, roi, 0); },
      convertTo(1.5, 3));
}

template <class T>
void compareRow(const std::string& name, Size size, int channels,
                std::function<void(const T*, int, const T*, Rnx8u*, int)> f) {
  addRow(name, size,
         {floorOf(size.pixels() * static_cast<int64_t>(2 * sizeof(T) * static_cast<size_t>(channels) + 1)),
          ours([=]() -> Work {
            const Image<T> a(size, channels), b(size, channels);
            std::reverse(b.data(), b.data() + b.elements());
            const Image<Rnx8u> d(size, 1);
            return [=] { f(a.data(), a.step(), b.data(), d.data(), d.step()); };
          }),
          opencv([=]() -> Work {
            const Image<T> a(size, channels), b(size, channels);
            std::reverse(b.data(), b.data() + b.elements());
            const Image<Rnx8u> d(size, channels);
            [[maybe_unused]] cv::Mat dst = mat(d, size, channels);
            [[maybe_unused]] cv::Mat ma = mat(a, size, channels), mb = mat(b, size, channels);
            return [=, keep = std::vector{a, b}, keepD = d]() mutable {
              RNX_OPENCV(cv::compare(ma, mb, dst, cv::CMP_GT));
            };
          })});
}

void comparisons(Size size) {
  const RnxiSize roi = size.roi();
  compareRow<Rnx8u>("Compare 8u", size, 1,
                    [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_8u_C1R(a, n, b, n, d, m, roi, 4); });
  compareRow<Rnx8u>("Compare 8u equal", size, 1,
                    [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_8u_C1R(a, n, b, n, d, m, roi, 2); });
  compareRow<Rnx16u>("Compare 16u", size, 1,
                     [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_16u_C1R(a, n, b, n, d, m, roi, 4); });
  compareRow<Rnx16s>("Compare 16s", size, 1,
                     [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_16s_C1R(a, n, b, n, d, m, roi, 4); });
  compareRow<float>("Compare 32f", size, 1,
                    [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_32f_C1R(a, n, b, n, d, m, roi, 4); });
  compareRow<Rnx8u>("Compare 8u C3", size, 3,
                    [=](auto* a, int n, auto* b, auto* d, int m) { rnxiCompare_8u_C3R(a, n, b, n, d, m, roi, 4); });
}

void reductions(Size size) {
  const RnxiSize roi = size.roi();
  static Rnx64f r[4];
  const Cv2 sum = RNX_OPENCV([](auto& a, auto&, auto&) { r[0] = cv::sum(a)[0]; });
  const auto norm = [](int kind) -> Cv2 {
    (void)kind;
    return RNX_OPENCV([=](auto& a, auto&, auto&) { r[0] = cv::norm(a, kind); });
  };
  const auto diff = [](int kind) -> Cv2 {
    (void)kind;
    return RNX_OPENCV([=](auto& a, auto& b, auto&) { r[0] = cv::norm(a, b, kind); });
  };
  const Cv2 relative = RNX_OPENCV([](auto& a, auto& b, auto&) { r[0] = cv::norm(a, b, 4 | cv::NORM_RELATIVE); });
  reduction<Rnx8u>(
      "Sum 8u C1", size, 1, [=](auto* a, int n, auto*) { rnxiSum_8u_C1R(a, n, roi, r); }, false, sum);
  reduction<Rnx8u>(
      "Sum 8u C3", size, 3, [=](auto* a, int n, auto*) { rnxiSum_8u_C3R(a, n, roi, r); }, false, sum);
  reduction<Rnx8u>(
      "Mean 8u C1", size, 1, [=](auto* a, int n, auto*) { rnxiMean_8u_C1R(a, n, roi, r); }, false, sum);
  reduction<Rnx8u>(
      "Sum 8u C4", size, 4, [=](auto* a, int n, auto*) { rnxiSum_8u_C4R(a, n, roi, r); }, false, sum);
  reduction<Rnx16u>(
      "Sum 16u C1", size, 1, [=](auto* a, int n, auto*) { rnxiSum_16u_C1R(a, n, roi, r); }, false, sum);
  reduction<float>(
      "Sum 32f C1 accurate", size, 1, [=](auto* a, int n, auto*) { rnxiSum_32f_C1R(a, n, roi, r, 2); }, false, sum);
  reduction<Rnx16s>(
      "Norm_Inf 16s", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_Inf_16s_C1R(a, n, roi, r); }, false, norm(1));
  reduction<float>(
      "Norm_Inf 32f", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_Inf_32f_C1R(a, n, roi, r); }, false, norm(1));
  reduction<Rnx16s>(
      "Norm_L1 16s", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L1_16s_C1R(a, n, roi, r); }, false, norm(2));
  reduction<float>(
      "Norm_L1 32f", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L1_32f_C1R(a, n, roi, r, 0); }, false, norm(2));
  reduction<Rnx16u>(
      "Norm_L2 16u", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L2_16u_C1R(a, n, roi, r); }, false, norm(4));
  reduction<float>(
      "NormDiff_L1 32f", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_L1_32f_C1R(a, n, b, n, roi, r, 0); },
      true, diff(2));
  reduction<Rnx8u>(
      "NormDiff_Inf 8u", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_Inf_8u_C1R(a, n, b, n, roi, r); }, true,
      diff(1));
  reduction<Rnx16s>(
      "NormDiff_L2 16s", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_L2_16s_C1R(a, n, b, n, roi, r); }, true,
      diff(4));
  reduction<Rnx8u>(
      "NormRel_L2 8u", size, 1, [=](auto* a, int n, auto* b) { rnxiNormRel_L2_8u_C1R(a, n, b, n, roi, r); }, true,
      relative);
  reduction<Rnx16s>(
      "Sum 16s C1", size, 1, [=](auto* a, int n, auto*) { rnxiSum_16s_C1R(a, n, roi, r); }, false, sum);
  reduction<float>(
      "Sum 32f C1", size, 1, [=](auto* a, int n, auto*) { rnxiSum_32f_C1R(a, n, roi, r, 0); }, false, sum);
  reduction<Rnx8u>(
      "Norm_Inf 8u", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_Inf_8u_C1R(a, n, roi, r); }, false, norm(1));
  reduction<Rnx8u>(
      "Norm_L1 8u", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L1_8u_C1R(a, n, roi, r); }, false, norm(2));
  reduction<Rnx8u>(
      "Norm_L2 8u", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L2_8u_C1R(a, n, roi, r); }, false, norm(4));
  reduction<Rnx16s>(
      "Norm_L2 16s", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L2_16s_C1R(a, n, roi, r); }, false, norm(4));
  reduction<float>(
      "Norm_L2 32f", size, 1, [=](auto* a, int n, auto*) { rnxiNorm_L2_32f_C1R(a, n, roi, r, 0); }, false, norm(4));
  reduction<Rnx8u>(
      "NormDiff_L1 8u", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_L1_8u_C1R(a, n, b, n, roi, r); }, true,
      diff(2));
  reduction<Rnx8u>(
      "NormDiff_L2 8u", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_L2_8u_C1R(a, n, b, n, roi, r); }, true,
      diff(4), yuv([=]() -> Work {
        const Image<Rnx8u> a(size, 1), b(size, 1);
        std::reverse(b.data(), b.data() + b.elements());
        return [=] {
          RNX_YUV(r[0] = static_cast<double>(libyuv::ComputeSumSquareErrorPlane(a.data(), a.step(), b.data(), b.step(),
                                                                                size.width, size.height)));
        };
      }));
  reduction<float>(
      "NormDiff_L2 32f", size, 1, [=](auto* a, int n, auto* b) { rnxiNormDiff_L2_32f_C1R(a, n, b, n, roi, r, 0); },
      true, diff(4));
}

void alphas(Size size) {
  const RnxiSize roi = size.roi();
  row<Rnx8u, Rnx8u>(
      "AlphaPremul 8u AC4", size, 4, [=](auto* s, int n, auto* d, int m) { rnxiAlphaPremul_8u_AC4R(s, n, d, m, roi); },
      RNX_OPENCV([](auto& a, auto& d) { cv::cvtColor(a, d, cv::COLOR_RGBA2mRGBA); }), yuv([=]() -> Work {
        const Image<Rnx8u> a(size, 4), d(size, 4);
        return [=] { RNX_YUV(libyuv::ARGBAttenuate(a.data(), a.step(), d.data(), d.step(), size.width, size.height)); };
      }));
  row<Rnx16u, Rnx16u>("AlphaPremul 16u AC4", size, 4,
                      [=](auto* s, int n, auto* d, int m) { rnxiAlphaPremul_16u_AC4R(s, n, d, m, roi); }, {});
  row<Rnx8u, Rnx8u>(
      "AlphaPremulC 8u C4", size, 4,
      [=](auto* s, int n, auto* d, int m) { rnxiAlphaPremulC_8u_C4R(s, n, 100, d, m, roi); }, convertTo(100 / 255.0),
      yuv([=]() -> Work {
        const Image<Rnx8u> a(size, 4), d(size, 4);
        return [=] {
          RNX_YUV(libyuv::ARGBShade(a.data(), a.step(), d.data(), d.step(), size.width, size.height, 0x64646464));
        };
      }));
  row<Rnx16u, Rnx16u>(
      "AlphaPremulC 16u C1", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiAlphaPremulC_16u_C1R(s, n, 25700, d, m, roi); },
      convertTo(25700 / 65535.0));
  row<Rnx8u, Rnx8u>(
      "AlphaPremulC 8u C1", size, 1,
      [=](auto* s, int n, auto* d, int m) { rnxiAlphaPremulC_8u_C1R(s, n, 100, d, m, roi); }, convertTo(100 / 255.0));
}

void addRows() {
  for (const Size size : kSizes) {
    thresholds(size);
    conversions(size);
    comparisons(size);
    reductions(size);
    alphas(size);
  }
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
