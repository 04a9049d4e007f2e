// Fourier transforms and products of spectra. FFTW: with measured and with estimated plans, in single precision.
#include "support/bench.h"

#if RNX_BENCH_FFTW
#include <fftw3.h>
#endif

namespace bench {
namespace {

const std::vector<Size> kTransformSizes = {{64, 64},     {256, 256},   {512, 512}, {1024, 1024},
                                           {2048, 2048}, {640, 480},   {480, 640}, {1000, 1000},
                                           {1920, 1080}, {1080, 1920}, {601, 397},  // primes
                                           {65536, 1},   {1, 65536}};

// ---- Ours ----

struct Plan {
  explicit Plan(Size size, bool isReal) {
    int specSize = 0, initSize = 0, workSize = 0;
    (isReal ? rnxiDFTGetSize_R_32f : rnxiDFTGetSize_C_32fc)(size.roi(), rnxFftDivideNone, 0, &specSize, &initSize,
                                                            &workSize);
    memory = {Image<Rnx8u>(specSize, 1), Image<Rnx8u>(initSize + 1, 1), Image<Rnx8u>(workSize + 1, 1)};
    (isReal ? rnxiDFTInit_R_32f : rnxiDFTInit_C_32fc)(
        size.roi(), rnxFftDivideNone, 0, reinterpret_cast<RnxiDFTSpec*>(memory[0].data()), memory[1].data());
  }
  const RnxiDFTSpec* spec() const { return reinterpret_cast<const RnxiDFTSpec*>(memory[0].data()); }
  Rnx8u* work() const { return memory[2].data(); }

  std::vector<Image<Rnx8u>> memory;
};

using ComplexTransform = decltype(&rnxiDFTFwd_CToC_32fc_C1R);
using RealTransform = decltype(&rnxiDFTFwd_RToPack_32f_C1R);

Contestants ourComplex(Size size, ComplexTransform transform) {
  return ours([=]() -> Work {
    const Image<float> from(size, 2), to(size, 2);
    const Plan plan(size, false);
    return [=] {
      transform(reinterpret_cast<Rnx32fc*>(from.data()), from.step(), reinterpret_cast<Rnx32fc*>(to.data()), to.step(),
                plan.spec(), plan.work());
    };
  });
}

Contestants ourReal(Size size, RealTransform transform) {
  return ours([=]() -> Work {
    const Image<float> from(size, 1), to(size, 1);
    const Plan plan(size, true);
    return [=] { transform(from.data(), from.step(), to.data(), to.step(), plan.spec(), plan.work()); };
  });
}

// ---- FFTW ----

enum class Kind { kForward, kInverse, kRealForward, kRealInverse };

#if RNX_BENCH_FFTW
Contestants fftw(const std::string& name, Size size, Kind kind, unsigned flags) {
  return peer(name, [=]() -> Work {
    const int h = size.height, w = size.width;
    const Image<float> from(Size{w + 2, h}, 2), to(Size{w + 2, h}, 2);  // room for half spectra
    auto* a = reinterpret_cast<fftwf_complex*>(from.data());
    auto* b = reinterpret_cast<fftwf_complex*>(to.data());
    fftwf_plan plan = kind == Kind::kRealForward ? fftwf_plan_dft_r2c_2d(h, w, from.data(), b, flags)
                      : kind == Kind::kRealInverse
                          ? fftwf_plan_dft_c2r_2d(h, w, a, to.data(), flags)
                          : fftwf_plan_dft_2d(h, w, a, b, kind == Kind::kForward ? -1 : 1, flags);
    fillRandom(from.data(), from.elements());
    const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> keep(plan, fftwf_destroy_plan);
    return [=, images = std::vector{from, to}] { fftwf_execute(keep.get()); };
  });
}
std::vector<Contestants> fftw(Size size, Kind kind) {
  return {fftw("fftw-measure", size, kind, FFTW_MEASURE), fftw("fftw-estimate", size, kind, FFTW_ESTIMATE)};
}
#else
std::vector<Contestants> fftw(Size, Kind) { return {}; }
#endif

// ---- OpenCV ----

Contestants cvTransform(Size size, int channels, [[maybe_unused]] int flags) {
  return opencv([=]() -> Work {
    const Image<float> from(size, channels), to(size, channels);
    cv::Mat dst = mat(to, size, channels);
    return [=, keep = std::vector{from, to}, src = mat(from, size, channels)]() mutable {
      RNX_OPENCV(cv::dft(src, dst, flags);)
    };
  });
}

#if RNX_BENCH_OPENCV
constexpr int kCvInverse = cv::DFT_INVERSE, kCvRealInverse = cv::DFT_INVERSE | cv::DFT_REAL_OUTPUT;
#else
constexpr int kCvInverse = 0, kCvRealInverse = 0;
#endif

void transformRow(const std::string& name, Size size, Kind kind, const Contestants& us, const Contestants& cv) {
  std::vector<Contestants> contestants = {us, cv};
  for (const Contestants& c : fftw(size, kind)) contestants.push_back(c);
  addRow(name, size, contestants);
}

using Product = decltype(&rnxiMulPack_32f_C1R);

void productRow(const std::string& name, Size size, Product product, [[maybe_unused]] bool conjugate) {
  addRow(name, size,
         {floorOf(3 * 4 * size.pixels()), ours([=]() -> Work {
            const Image<float> a(size, 1), b(size, 1), d(size, 1);
            return [=] { product(a.data(), a.step(), b.data(), b.step(), d.data(), d.step(), size.roi()); };
          }),
          opencv([=]() -> Work {
            const Image<float> a(size, 1), b(size, 1), d(size, 1);
            cv::Mat dst = mat(d, size, 1);
            return [=, keep = std::vector{a, b, d}, ma = mat(a, size, 1), mb = mat(b, size, 1)]() mutable {
              RNX_OPENCV(cv::mulSpectrums(ma, mb, dst, 0, conjugate);)
            };
          })});
}

void addRows() {
  for (const Size size : kTransformSizes) {
    transformRow("DFT 32fc fwd", size, Kind::kForward, ourComplex(size, rnxiDFTFwd_CToC_32fc_C1R),
                 cvTransform(size, 2, 0));
    transformRow("DFT 32fc inv", size, Kind::kInverse, ourComplex(size, rnxiDFTInv_CToC_32fc_C1R),
                 cvTransform(size, 2, kCvInverse));
    transformRow("DFT 32f fwd", size, Kind::kRealForward, ourReal(size, rnxiDFTFwd_RToPack_32f_C1R),
                 cvTransform(size, 1, 0));
    transformRow("DFT 32f inv", size, Kind::kRealInverse, ourReal(size, rnxiDFTInv_PackToR_32f_C1R),
                 cvTransform(size, 1, kCvRealInverse));
  }
  for (const Size size : kSizes) {
    productRow("MulPack 32f C1", size, rnxiMulPack_32f_C1R, false);
    productRow("MulPackConj 32f C1", size, rnxiMulPackConj_32f_C1R, true);
  }
}

const Registration kRows(addRows);

}  // namespace
}  // namespace bench
