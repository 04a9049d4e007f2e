// Fourier transforms: the spectrum as a picture, filters by frequency, and the search for a patch.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include "float_image.h"
#include "operations.h"

namespace rnximg {
namespace {

float* rowOf(FloatImage& image, int y) {
  return reinterpret_cast<float*>(reinterpret_cast<Rnx8u*>(image.data()) + std::ptrdiff_t{y} * image.step());
}

// Plans for images of one size; the inverse is divided by the number of pixels.
class Transform {
public:
  explicit Transform(RnxiSize size) {
    int specSize = 0, initSize = 0, workSize = 0;
    check(rnxiDFTGetSize_R_32f(size, rnxFftDivideInverse, rnxAlgHintNone, &specSize, &initSize, &workSize));
    spec_.resize(static_cast<size_t>(specSize));
    work_.resize(static_cast<size_t>(workSize));
    std::vector<Rnx8u> init(static_cast<size_t>(initSize));
    check(rnxiDFTInit_R_32f(size, rnxFftDivideInverse, rnxAlgHintNone, spec(), init.data()));
  }
  void forward(FloatImage& image) {
    run(image, rnxiDFTFwd_RToPack_32f_C1IR, rnxiDFTFwd_RToPack_32f_C3IR, rnxiDFTFwd_RToPack_32f_AC4IR);
  }
  void inverse(FloatImage& image) {
    run(image, rnxiDFTInv_PackToR_32f_C1IR, rnxiDFTInv_PackToR_32f_C3IR, rnxiDFTInv_PackToR_32f_AC4IR);
  }

private:
  using Function = RnxStatus (*)(Rnx32f*, int, const RnxiDFTSpec*, Rnx8u*);

  RnxiDFTSpec* spec() { return reinterpret_cast<RnxiDFTSpec*>(spec_.data()); }
  void run(FloatImage& image, Function c1, Function c3, Function ac4) {
    const Function f = image.channels() == 1 ? c1 : image.channels() == 3 ? c3 : ac4;
    check(f(image.data(), image.step(), spec(), work_.data()));
  }

  std::vector<Rnx8u> spec_, work_;
};

// ---- Packed spectra ----

struct Frequency {
  int k, l;
  bool isImaginary;
};

// Which number of the spectrum stands in an element: see the drawing in rnxip/fft.h.
Frequency frequencyAt(int x, int y, RnxiSize size) {
  const auto alone = [](int i, int n) { return i == 0 || (n % 2 == 0 && i == n - 1); };
  const int k = (x + 1) / 2;
  if (!alone(x, size.width)) return {k, y, x % 2 == 0};
  return {k, (y + 1) / 2, !alone(y, size.height) && y % 2 == 0};
}

// Of the frequency's own size, 1 being the finest pattern that the pixels can hold.
double radiusOf(Frequency f, RnxiSize size) {
  const int l = std::min(f.l, size.height - f.l);
  return std::hypot(2.0 * f.k / size.width, 2.0 * l / size.height);
}

template <class Gain>
void filter(Image& image, double offset, Gain gain) {
  const RnxiSize size = image.size();
  FloatImage pixels = toFloat(image), gains(size, image.channels());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const auto value = static_cast<float>(gain(radiusOf(frequencyAt(x, y, size), size)));
      std::fill_n(rowOf(gains, y) + std::ptrdiff_t{x} * image.channels(), image.channels(), value);
    }
  }
  Transform transform(size);
  transform.forward(pixels);
  check(byChannels(image, rnxiMul_32f_C1IR, rnxiMul_32f_C3IR, rnxiMul_32f_AC4IR)(gains.data(), gains.step(),
                                                                                 pixels.data(), pixels.step(), size));
  transform.inverse(pixels);
  const auto level = static_cast<float>(offset);
  const float levels[3] = {level, level, level};
  check(image.channels() == 1 ? rnxiAddC_32f_C1IR(level, pixels.data(), pixels.step(), size)
                              : byChannels(image, rnxiAddC_32f_C3IR, rnxiAddC_32f_C3IR, rnxiAddC_32f_AC4IR)(
                                    levels, pixels.data(), pixels.step(), size));
  toBytes(pixels, image);
}

double bell(double radius, double cutoff) { return std::exp(-0.5 * radius * radius / (cutoff * cutoff)); }

void lowpass(Image& image, Arguments& arguments) {
  const double cutoff = arguments.number("CUTOFF", 1e-3, 10);
  filter(image, 0, [=](double radius) { return bell(radius, cutoff); });
}

void highpass(Image& image, Arguments& arguments) {
  const double cutoff = arguments.number("CUTOFF", 1e-3, 10);
  filter(image, 128, [=](double radius) { return 1 - bell(radius, cutoff); });
}

// ---- The spectrum as a picture ----

// log(1 + |F|), the largest white, frequency 0 in the middle.
void spectrum(Image& image, Arguments&) {
  const RnxiSize size = image.size();
  const int channels = image.channels(), colors = std::min(channels, 3);
  FloatImage pixels = toFloat(image), picture(size, channels);
  Transform(size).forward(pixels);
  for (int c = 0; c < colors; ++c) {
    std::vector<double> energy(static_cast<size_t>(size.width) * static_cast<size_t>(size.height));
    const auto at = [&](int k, int l) -> double& {
      return energy[static_cast<size_t>(l) * static_cast<size_t>(size.width) + static_cast<size_t>(k)];
    };
    double largest = 0;
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const double v = rowOf(pixels, y)[x * channels + c];
        const Frequency f = frequencyAt(x, y, size);
        const int k = (size.width - f.k) % size.width, l = (size.height - f.l) % size.height;
        at(f.k, f.l) += v * v;
        if (k != f.k || l != f.l) at(k, l) += v * v;
        largest = std::max(largest, at(f.k, f.l));
      }
    }
    const double scale = 255 / std::max(std::log1p(std::sqrt(largest)), 1e-9);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const int k = (x + (size.width + 1) / 2) % size.width, l = (y + (size.height + 1) / 2) % size.height;
        rowOf(picture, y)[x * channels + c] = static_cast<float>(scale * std::log1p(std::sqrt(at(k, l))));
      }
    }
  }
  toBytes(picture, image);
}

// ---- The search for a patch ----

// srcDst(x) = sum over u of image(x + u) * srcDst(u), around the edges
void correlate(Transform& transform, FloatImage& image, FloatImage& srcDst) {
  transform.forward(image);
  transform.forward(srcDst);
  check((image.channels() == 1 ? rnxiMulPackConj_32f_C1IR
         : image.channels() == 3
             ? rnxiMulPackConj_32f_C3IR
             : rnxiMulPackConj_32f_AC4IR)(image.data(), image.step(), srcDst.data(), srcDst.step(), image.size()));
  transform.inverse(srcDst);
}

// Halves the colours of a part of the image.
void dim(Image& image, int x, int y, int width, int height) {
  if (width < 1 || height < 1) return;
  const Rnx8u halves[3] = {1, 1, 1};
  Rnx8u* first = image.data() + std::ptrdiff_t{y} * image.step() + std::ptrdiff_t{x} * image.channels();
  const RnxiSize size = {width, height};
  check(image.channels() == 1 ? rnxiMulC_8u_C1IRSfs(1, first, image.step(), size, 1)
                              : byChannels(image, rnxiMulC_8u_C3IRSfs, rnxiMulC_8u_C3IRSfs, rnxiMulC_8u_AC4IRSfs)(
                                    halves, first, image.step(), size, 1));
}

// The place where the sum of (image - patch)^2 is least: that of image^2 under the patch less twice the correlation.
void match(Image& image, Arguments& arguments) {
  const Image patch = arguments.image("FILE", image);
  const RnxiSize size = image.size(), part = patch.size();
  if (part.width > size.width || part.height > size.height) failUsage("FILE must not be larger than the image");
  const int channels = image.channels(), colors = std::min(channels, 3);
  FloatImage pixels = toFloat(image), squares = toFloat(image), shape = toFloat(patch);
  FloatImage correlation(size, channels), energy(size, channels);
  for (int y = 0; y < size.height; ++y) {
    const std::ptrdiff_t inside = y < part.height ? std::ptrdiff_t{part.width} * channels : 0;
    const std::ptrdiff_t all = std::ptrdiff_t{size.width} * channels;
    std::fill_n(rowOf(energy, y), inside, 1.0f);
    std::fill_n(rowOf(energy, y) + inside, all - inside, 0.0f);
    if (inside > 0) std::copy_n(rowOf(shape, y), inside, rowOf(correlation, y));
    std::fill_n(rowOf(correlation, y) + inside, all - inside, 0.0f);
  }
  check(byChannels(image, rnxiMul_32f_C1IR, rnxiMul_32f_C3IR, rnxiMul_32f_AC4IR)(pixels.data(), pixels.step(),
                                                                                 squares.data(), squares.step(), size));
  Transform transform(size);
  correlate(transform, pixels, correlation);
  correlate(transform, squares, energy);

  double least = INFINITY;
  int foundX = 0, foundY = 0;
  for (int y = 0; y <= size.height - part.height; ++y) {
    for (int x = 0; x <= size.width - part.width; ++x) {
      double sum = 0;
      for (int c = 0; c < colors; ++c) {
        const std::ptrdiff_t i = std::ptrdiff_t{x} * channels + c;
        sum += rowOf(energy, y)[i] - 2.0 * rowOf(correlation, y)[i];
      }
      if (sum < least) least = sum, foundX = x, foundY = y;
    }
  }
  std::printf("%d %d\n", foundX, foundY);
  dim(image, 0, 0, size.width, foundY);
  dim(image, 0, foundY, foundX, part.height);
  dim(image, foundX + part.width, foundY, size.width - foundX - part.width, part.height);
  dim(image, 0, foundY + part.height, size.width, size.height - foundY - part.height);
}

const Family kFamily("Fourier transforms",
                     {
                         {"spectrum", "", "shows the logarithm of the spectrum, frequency 0 in the middle", spectrum},
                         {"lowpass", "CUTOFF", "keeps the frequencies around and below CUTOFF", lowpass,
                          "CUTOFF is relative to the finest pattern that pixels can hold, e.g. 0.1. The gain falls\n"
                          "like a bell curve: exp(-(f / CUTOFF)^2 / 2). The picture is continued periodically."},
                         {"highpass", "CUTOFF", "keeps the frequencies above CUTOFF, around the middle level 128",
                          highpass, "The complement of lowpass, with 128 added."},
                         {"match", "FILE", "finds the picture in FILE in the image: prints x and y, dims the rest",
                          match},
                     });

}  // namespace
}  // namespace rnximg
