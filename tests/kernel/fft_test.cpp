// Fourier transforms against their definition; what is known of large ones; specs and their memory.
#include <algorithm>
#include <numeric>

#include "ref/fft_model.h"
#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {
namespace {

constexpr int kFlags[] = {1, 2, 4, 8};

// What the transforms promise against exact arithmetic: the relative error in the mean square.
f64 errorBound(s64 width, s64 height) { return 0.5e-7 * std::sqrt(std::log2(static_cast<f64>(width * height))) + 1e-7; }

struct Sizes {
  int spec = -1, init = -1, work = -1;
};

// Plans a transform of the kind that a signature names, in memory at odd addresses that ends before a forbidden page,
// or starts behind one.
class Planned {
public:
  Planned(std::string_view prefix, bool isReal, s64 width, s64 height, int flag, Random& random, bool atStart = false,
          int hint = 0) {
    const std::string ending = isReal ? "_R_32f" : "_C_32fc";
    Call query(std::string(prefix) + "GetSize" + ending), init(std::string(prefix) + "Init" + ending);
    for (Call* call : {&query, &init}) {
      if (prefix == "rnxiFFT") {
        call->set("orderX", std::countr_zero(static_cast<u64>(width)));
        call->set("orderY", std::countr_zero(static_cast<u64>(height)));
      } else {
        call->set("roiSize", RnxiSize{static_cast<int>(width), static_cast<int>(height)});
      }
      call->set("flag", flag).set("hint", hint);
    }
    query.set("pSpecSize", &sizes.spec).set("pSpecBufferSize", &sizes.init).set("pBufferSize", &sizes.work);
    EXPECT_EQ(query(), rnxStatusNoError);
    const auto place = [&](Image& block, int bytes) {
      if (bytes > 0)
        block.place({bytes + (atStart ? 0 : 3), 1, 0}, atStart ? Placement::kFlushStart : Placement::kFlushEnd, random);
      return bytes > 0 ? block.data() : nullptr;
    };
    Image initBlock;
    init.set("pSpec", place(spec, sizes.spec)).set("pMemInit", place(initBlock, sizes.init));
    EXPECT_EQ(init(), rnxStatusNoError);
    place(work, sizes.work);
  }

  Call& pass(Call& call) {
    return call.set("pSpec", spec.data()).set("pBuffer", sizes.work > 0 ? work.data() : nullptr);
  }

  Sizes sizes;
  Image spec, work;
};

std::string_view prefixOf(const Signature& s) { return s.name.substr(0, 7); }
bool isReal(const Signature& s) { return s.types == "32f"; }
bool isForward(const Signature& s) { return s.family.find("Fwd") != std::string_view::npos; }

std::vector<const Signature*> transforms() {
  return select({.family = "FFTFwd_CToC FFTInv_CToC FFTFwd_RToPack FFTInv_PackToR DFTFwd_CToC DFTInv_CToC "
                           "DFTFwd_RToPack DFTInv_PackToR"});
}

// ---- Every transform against the definition ----

class Transform : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  Call call{s};
  const int floats = isReal(s) ? 1 : 2;  // per channel
  const int channels = s.channels(), used = s.hasAlpha() ? 3 : s.channels();
  const bool inPlace = s.has("srcdst");
  Image src, dst;

  f32 value(const u8* row, s64 x, int c, int part = 0) const {
    return get<f32>(row, (x * channels + c) * floats + part);
  }

  // What the call computes of one channel, as numbers: exact, from the values in the image before the call.
  ref::Plane expected(Image& image, int c, s64 width, s64 height, int flag) {
    ref::Plane plane(width, height);
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        if (isForward(s) || !isReal(s)) {
          plane.at(x, y) = {value(image.shadowRow(y), x, c), isReal(s) ? 0 : value(image.shadowRow(y), x, c, 1)};
        } else {  // the packed spectrum and its mirror image
          const ref::Element e = ref::packedElement(x, y, width, height);
          const s64 k = (width - e.k) % width, l = (height - e.l) % height;
          const f64 v = value(image.shadowRow(y), x, c);
          plane.at(e.k, e.l) += e.part == ref::Part::kIm ? ref::Number(0, v) : ref::Number(v, 0);
          if (k != e.k || l != e.l) plane.at(k, l) += e.part == ref::Part::kIm ? ref::Number(0, -v) : ref::Number(v, 0);
        }
      }
    }
    plane = ref::transform(std::move(plane), isForward(s) ? -1 : 1);
    for (ref::Number& n : plane.numbers) n *= ref::scaleOf(flag, isForward(s), width, height);
    return plane;
  }

  void check(s64 width, s64 height, int flag) {
    const s64 rowBytes = width * channels * floats * s64{sizeof(f32)};
    src.place({rowBytes, height, rowBytes + 4 * random.between(0, 3)}, Placement::kFlushEnd, random);
    dst.place({rowBytes, height, rowBytes + random.between(0, 9)}, Placement::kInside, random,
              4 * static_cast<int>(random.between(0, 15)));
    src.fillRows(random, Data::kModerate, Element::k32f);
    dst.fillRows(random, Data::kModerate, Element::k32f);
    src.expectNow();
    dst.expectNow();
    Image& source = inPlace ? dst : src;
    Planned plan(prefixOf(s), isReal(s), width, height, flag, random, random.oneIn(2));
    plan.pass(call);
    if (!inPlace) call.image("src", src);
    call.image(inPlace ? "srcdst" : "dst", dst);

    std::vector<ref::Plane> planes;
    for (int c = 0; c < used; ++c) planes.push_back(expected(source, c, width, height, flag));
    std::vector<u8> first;
    for (int vectorBytes : vectorWidths()) {
      ScopedWidth scope(vectorBytes);
      dst.rewind();
      ASSERT_EQ(call(), rnxStatusNoError);
      f64 error = 0, norm = 0;
      std::vector<u8> result;
      for (s64 y = 0; y < height; ++y) {
        for (s64 i = 0; i < width * channels * floats; ++i) {
          const s64 x = i / (channels * floats);
          const int c = static_cast<int>(i / floats % channels), part = static_cast<int>(i % floats);
          if (c >= used) continue;
          const ref::Plane& plane = planes[static_cast<size_t>(c)];
          const f64 exact = !isReal(s)     ? (part == 0 ? plane.at(x, y).real() : plane.at(x, y).imag())
                            : isForward(s) ? ref::packedValue(plane, x, y)
                                           : plane.at(x, y).real();
          const f32 actual = get<f32>(dst.row(y), i);
          error += (actual - exact) * (actual - exact);
          norm += exact * exact;
          put(dst.shadowRow(y), i, actual);
        }
        result.insert(result.end(), dst.row(y), dst.row(y) + rowBytes);
      }
      EXPECT_LE(std::sqrt(error / norm), errorBound(width, height)) << width << " x " << height << ", flag " << flag;
      EXPECT_TRUE(dst.matches()) << width << " x " << height;  // the fourth channel, and what is around the rows
      EXPECT_TRUE(src.matches());
      if (first.empty()) first = result;
      EXPECT_EQ(result, first) << "widths of vectors differ: " << width << " x " << height;
    }
  }
};

TEST_P(Transform, EqualsTheDefinition) {
  const bool isFft = prefixOf(s) == "rnxiFFT";
  const bool isPlain = channels == 1 && !inPlace;
  int i = 0;
  if (isFft) {
    for (int w = 0; w <= 7; ++w) {
      for (int h = 0; h <= 7; ++h) {
        if (isPlain || (w + h) % 4 == 1) check(s64{1} << w, s64{1} << h, kFlags[i++ % 4]);
      }
    }
    return;
  }
  for (s64 w = 1; w <= 17; ++w) {
    for (s64 h = 1; h <= 17; ++h) {
      if (isPlain || (w + 3 * h) % 11 == 0) check(w, h, kFlags[i++ % 4]);
    }
  }
  // Lines by their factors, chirps, rotations, radices of every kind, columns that are no multiple of a vector, images
  // too narrow for vectors; and lines so long that chirps and odd lengths go in parts.
  constexpr s64 kSizes[][2] = {{1, 2048}, {1500, 1}, {37, 1},   {1, 67},   {101, 40}, {22, 91},
                               {33, 60},  {3, 134},  {97, 5},   {30, 19},  {129, 26}, {6, 301},
                               {83, 18},  {1, 2404}, {1, 2097}, {1, 2187}, {2097, 1}, {2, 1202}};
  for (const auto& [w, h] : kSizes) check(w, h, kFlags[i++ % 4]);
}

INSTANTIATE_TEST_SUITE_P(Table, Transform, testing::ValuesIn(transforms()), byName);

// ---- Large transforms, by what is known of them ----

// A complex image, its transform, and the way back, all rows tight.
class Large : public testing::TestWithParam<RnxiSize> {
protected:
  const int width = GetParam().width, height = GetParam().height, step = width * 8;
  const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
  Random random{"Large"};
  Planned plan{"rnxiDFT", false, width, height, rnxFftDivideNone, random};
  std::vector<fc32> image{count}, spectrum{count};

  void forward() {
    Call call("rnxiDFTFwd_CToC_32fc_C1R");
    plan.pass(call).image("src", image.data(), step).image("dst", spectrum.data(), step);
    ASSERT_EQ(call(), rnxStatusNoError);
  }
  void fillRandom() { fill(random, Data::kModerate, Element::k32fc, image.data(), static_cast<s64>(count)); }
  ref::Number wave(s64 x, s64 y, s64 k, s64 l, int sign) const {
    return ref::root(k * x, width, sign) * ref::root(l * y, height, sign);
  }
  static f64 energy(const std::vector<fc32>& numbers) {
    f64 sum = 0;
    for (const fc32& n : numbers) sum += f64{n.re} * n.re + f64{n.im} * n.im;
    return sum;
  }
};

TEST_P(Large, ImpulseGivesAWave) {
  const s64 x = random.between(0, width - 1), y = random.between(0, height - 1);
  image[static_cast<size_t>(y * width + x)] = {1, 0};
  forward();
  f64 error = 0;
  for (s64 l = 0; l < height; ++l) {
    for (s64 k = 0; k < width; ++k) {
      const fc32 n = spectrum[static_cast<size_t>(l * width + k)];
      error += std::norm(ref::Number(n.re, n.im) - wave(x, y, k, l, -1));
    }
  }
  EXPECT_LE(std::sqrt(error / static_cast<f64>(count)), errorBound(width, height));
}

TEST_P(Large, WaveGivesAnImpulse) {
  const s64 k = random.between(0, width - 1), l = random.between(0, height - 1);
  for (s64 y = 0; y < height; ++y) {
    for (s64 x = 0; x < width; ++x) {
      const ref::Number n = wave(x, y, k, l, 1);
      image[static_cast<size_t>(y * width + x)] = {static_cast<f32>(n.real()), static_cast<f32>(n.imag())};
    }
  }
  forward();
  spectrum[static_cast<size_t>(l * width + k)].re -= static_cast<f32>(count);
  EXPECT_LE(std::sqrt(energy(spectrum)) / static_cast<f64>(count), errorBound(width, height));
}

TEST_P(Large, KeepsEnergyAndComesBack) {
  fillRandom();
  forward();
  const f64 n = static_cast<f64>(count);
  EXPECT_NEAR(energy(spectrum) / (energy(image) * n), 1, 1e-6);
  Call call("rnxiDFTInv_CToC_32fc_C1IR");
  plan.pass(call).image("srcdst", spectrum.data(), step);
  ASSERT_EQ(call(), rnxStatusNoError);
  f64 error = 0;
  for (size_t i = 0; i < count; ++i) {
    error += std::norm(ref::Number(spectrum[i].re, spectrum[i].im) / n - ref::Number(image[i].re, image[i].im));
  }
  EXPECT_LE(std::sqrt(error / energy(image)), errorBound(width, height));
}

TEST_P(Large, ShiftTurnsTheSpectrum) {
  fillRandom();
  forward();
  const std::vector<fc32> before = spectrum;
  const s64 shift = random.between(1, height) * width + random.between(0, width - 1);
  const auto moved = image;
  for (s64 y = 0; y < height; ++y) {
    for (s64 x = 0; x < width; ++x) {
      const s64 toX = (x + shift % width) % width, toY = (y + shift / width) % height;
      image[static_cast<size_t>(toY * width + toX)] = moved[static_cast<size_t>(y * width + x)];
    }
  }
  forward();
  f64 error = 0;
  for (s64 l = 0; l < height; ++l) {
    for (s64 k = 0; k < width; ++k) {
      const auto i = static_cast<size_t>(l * width + k);
      const ref::Number turned = ref::Number(before[i].re, before[i].im) * wave(shift % width, shift / width, k, l, -1);
      error += std::norm(ref::Number(spectrum[i].re, spectrum[i].im) - turned);
    }
  }
  EXPECT_LE(std::sqrt(error / energy(before)), 1.5 * errorBound(width, height));
}

INSTANTIATE_TEST_SUITE_P(Sizes, Large,
                         testing::Values(RnxiSize{512, 256}, RnxiSize{1000, 135}, RnxiSize{601, 397},
                                         RnxiSize{65536, 1}, RnxiSize{1, 65537}, RnxiSize{2310, 13}, RnxiSize{7, 4099},
                                         RnxiSize{997, 2}, RnxiSize{127, 127}, RnxiSize{1, 131071}));

// ---- Memory ----

TEST(FftMemory, SmallOrdersNeedNoWorkMemory) {
  Random random("small");
  for (int order = 0; order < 36; ++order) {
    for (bool real : {false, true}) {
      EXPECT_EQ(Planned("rnxiFFT", real, 1 << order / 6, 1 << order % 6, 1, random).sizes.work, 0);
    }
  }
}

// Lengths of every kind: smooth, with radices by the definition, prime of both kinds, chirps, twice and thrice those.
TEST(FftMemory, WorkMemoryIsAtMostTwoImagesAndTwoRows) {
  std::vector<s64> lengths(40);
  std::iota(lengths.begin(), lengths.end(), 1);
  for (s64 n : {67, 100, 331, 601, 640, 997, 1021, 1024, 1202, 2047, 2053, 2097, 2187, 2404, 3481, 4099, 5000}) {
    lengths.push_back(n);
  }
  for (const char* kind : {"_C_32fc", "_R_32f"}) {
    const s64 pixel = kind == std::string_view("_R_32f") ? 4 : 8;
    const auto check = [&](s64 width, s64 height) {
      int spec, init, work;
      Call query(std::string("rnxiDFTGetSize") + kind);
      ASSERT_EQ(query.with(RnxiSize{static_cast<int>(width), static_cast<int>(height)}, 1, 0, &spec, &init, &work)(),
                rnxStatusNoError);
      EXPECT_LE(work, 2 * pixel * width * (height + 1)) << width << " x " << height << kind;
    };
    for (s64 width : lengths) {
      for (s64 height : lengths) check(width, height);
    }
    for (s64 n : {6561, 65521, 65536, 65537, 99991, 131071, 200000, 1000003}) {
      for (s64 few = 1; few <= 9; ++few) {
        check(n, few);
        check(few, n);
      }
    }
  }
}

// A spec is used where it was not made, after everything else of Init is gone; hints change nothing.
TEST(FftMemory, SpecMayBeCopied) {
  Random random("copy");
  const int width = 74, height = 60;
  std::vector<fc32> image(size_t{74} * 60), results[2];
  fill(random, Data::kModerate, Element::k32fc, image.data(), width * height);
  for (int i = 0; i < 2; ++i) {
    Planned plan("rnxiDFT", false, width, height, 4, random, true, 7 * i);
    Image copy({plan.sizes.spec, 1, 0}, Placement::kFlushStart, random);
    if (i == 1) {
      std::memcpy(copy.data(), plan.spec.data(), static_cast<size_t>(plan.sizes.spec));
      fillBytes(random, plan.spec.data(), plan.sizes.spec);
    }
    results[i].resize(image.size());
    Call call("rnxiDFTFwd_CToC_32fc_C1R");
    plan.pass(call).image("src", image.data(), width * 8).image("dst", results[i].data(), width * 8);
    if (i == 1) call.set("pSpec", copy.data());
    EXPECT_EQ(call(), rnxStatusNoError);
  }
  EXPECT_EQ(std::memcmp(results[0].data(), results[1].data(), image.size() * sizeof(fc32)), 0);
}

// ---- Statuses, in the order of the contract ----

TEST(FftStatus, GetSize) {
  for (const char* kind : {"_C_32fc", "_R_32f"}) {
    int spec = 5, init = 5, work = 5;
    Call fft(std::string("rnxiFFTGetSize") + kind), dft(std::string("rnxiDFTGetSize") + kind);
    const auto run = [&](int orderX, int orderY, int flag) {
      spec = init = work = 5;
      return fft.with(orderX, orderY, flag, 0, &spec, &init, &work)();
    };
    EXPECT_EQ(fft.with(40, 40, 3, 0, static_cast<int*>(nullptr), &init, &work)(), rnxStatusNullPointer);
    EXPECT_EQ(fft.with(40, 40, 3, 0, &spec, static_cast<int*>(nullptr), &work)(), rnxStatusNullPointer);
    EXPECT_EQ(fft.with(40, 40, 3, 0, &spec, &init, static_cast<int*>(nullptr))(), rnxStatusNullPointer);
    EXPECT_EQ(spec + init + work, 15);
    for (int order : {-1, 29, 31, INT32_MAX, INT32_MIN}) {
      EXPECT_EQ(run(order, 0, 3), rnxStatusBadFftOrder);
      EXPECT_EQ(run(0, order, 1), rnxStatusBadFftOrder);
      EXPECT_EQ(spec + init + work, 0);
    }
    for (int flag : {0, 3, 5, 16, -1}) EXPECT_EQ(run(2, 29, flag), rnxStatusBadFftFlag);
    EXPECT_EQ(run(28, 28, 8), rnxStatusSizeOverflow);
    EXPECT_EQ(spec + init + work, 0);
    EXPECT_EQ(run(10, 9, 8), rnxStatusNoError);

    const auto runDft = [&](RnxiSize size, int flag) { return dft.with(size, flag, 0, &spec, &init, &work)(); };
    EXPECT_EQ(dft.with(RnxiSize{0, 1}, 3, 0, &spec, static_cast<int*>(nullptr), &work)(), rnxStatusNullPointer);
    EXPECT_EQ(runDft({0, 1}, 3), rnxStatusBadSize);
    EXPECT_EQ(runDft({1, -7}, 1), rnxStatusBadSize);
    EXPECT_EQ(runDft({1, 1}, 3), rnxStatusBadFftFlag);
    EXPECT_EQ(runDft({INT32_MAX, INT32_MAX}, 1), rnxStatusSizeOverflow);
    EXPECT_EQ(spec + init + work, 0);
  }
}

TEST(FftStatus, Init) {
  std::vector<u8> memory(1 << 17);
  RnxiFFTSpec* none = nullptr;
  for (const char* kind : {"_C_32fc", "_R_32f"}) {
    Call fft(std::string("rnxiFFTInit") + kind), dft(std::string("rnxiDFTInit") + kind);
    EXPECT_EQ(fft.with(31, 0, 3, 0, none, none)(), rnxStatusBadFftOrder);
    EXPECT_EQ(fft.with(0, 31, 3, 0, none, none)(), rnxStatusBadFftOrder);
    EXPECT_EQ(fft.with(29, 30, 3, 0, none, none)(), rnxStatusNullPointer);
    EXPECT_EQ(fft.with(29, 0, 3, 0, memory.data(), none)(), rnxStatusBadFftOrder);
    EXPECT_EQ(fft.with(1, 29, 3, 0, memory.data(), none)(), rnxStatusBadFftFlag);
    EXPECT_EQ(fft.with(1, 29, 1, 0, memory.data(), none)(), rnxStatusBadFftOrder);
    EXPECT_EQ(fft.with(28, 28, 1, 0, memory.data(), none)(), rnxStatusSizeOverflow);
    EXPECT_EQ(fft.with(6, 6, 1, 0, memory.data(), none)(), rnxStatusNoError);
    EXPECT_EQ(dft.with(RnxiSize{0, 5}, 3, 0, none, none)(), rnxStatusNullPointer);
    EXPECT_EQ(dft.with(RnxiSize{0, 5}, 3, 0, memory.data(), none)(), rnxStatusBadSize);
    EXPECT_EQ(dft.with(RnxiSize{67, 5}, 3, 0, memory.data(), none)(), rnxStatusBadFftFlag);
    EXPECT_EQ(dft.with(RnxiSize{67, 5}, 1, 0, memory.data(), none)(), rnxStatusNullPointer);
    EXPECT_EQ(dft.with(RnxiSize{12, 5}, 1, 0, memory.data(), none)(), rnxStatusNoError);
  }
}

// Each fault alone and together with all later ones.
TEST(FftStatus, Transforms) {
  Random random("status");
  std::vector<u8> bytes(64 * 64 * 16 + 64, 1);
  for (const Signature* s : transforms()) {
    Planned plan(prefixOf(*s), isReal(*s), 64, 64, 1, random), other(prefixOf(*s), !isReal(*s), 64, 64, 1, random);
    Planned family(prefixOf(*s) == "rnxiFFT" ? "rnxiDFT" : "rnxiFFT", isReal(*s), 64, 64, 1, random);
    ASSERT_GT(plan.sizes.work, 0);
    const u8* none = nullptr;
    for (const char* role : {"src", "dst", "srcdst"}) {
      if (!s->has(role)) continue;
      Call call(*s);  // every image null, every step 0, no buffer
      EXPECT_EQ(call(), rnxStatusNullPointer) << s->name;
      EXPECT_EQ(call.set("pSpec", other.spec.data())(), rnxStatusBadContext) << s->name;
      EXPECT_EQ(call.set("pSpec", family.spec.data())(), rnxStatusBadContext) << s->name;
      EXPECT_EQ(call.set("pSpec", plan.spec.data())(), rnxStatusNullPointer) << s->name;
      for (const char* r : {"src", "dst", "srcdst"}) {
        if (s->has(r)) call.image(r, bytes.data(), 1024);
      }
      EXPECT_EQ(Call(call).image(role, none, 0)(), rnxStatusNullPointer) << s->name;
      for (s64 step : {0, -8}) EXPECT_EQ(Call(call).image(role, bytes.data(), step)(), rnxStatusBadStep) << s->name;
      EXPECT_EQ(call(), rnxStatusNullPointer) << s->name;  // the buffer
    }
  }
  EXPECT_TRUE(std::ranges::all_of(bytes, [](u8 b) { return b == 1; }));
}

}  // namespace
}  // namespace rnx::test
