// Products of packed spectra, to the bit, and what they are for.
#include "ref/fft_model.h"
#include "support/call.h"
#include "support/companion_double.h"

namespace rnx::test {
namespace {

class MulPack : public testing::TestWithParam<const Signature*> {
protected:
  const Signature& s = *GetParam();
  Random random{s.name};
  Call call{s};
  const bool conjugate = s.family == "MulPackConj", inPlace = s.has("srcdst");
  const int channels = s.channels(), used = s.hasAlpha() ? 3 : s.channels();

  // dst = a * b or a * conj(b) in single precision, from the values before the call.
  void model(Image& a, Image& b, Image& dst, s64 width, s64 height) {
    const auto value = [&](Image& image, s64 x, s64 y, int c) { return get<f32>(image.row(y), x * channels + c); };
    for (s64 y = 0; y < height; ++y) {
      for (s64 x = 0; x < width; ++x) {
        const ref::Part part = ref::packedElement(x, y, width, height).part;
        const ref::Position q = ref::partnerOf(x, y, width, height);
        for (int c = 0; c < used; ++c) {
          const f32 u = value(a, x, y, c), v = value(b, x, y, c);
          f32 result = u * v;
          if (part != ref::Part::kReal) {
            const f32 uu = value(a, q.x, q.y, c), vv = value(b, q.x, q.y, c);
            if (part == ref::Part::kRe) {
              result = conjugate ? u * v + uu * vv : u * v - uu * vv;
            } else {  // u and v are the imaginary parts
              result = conjugate ? u * vv - uu * v : uu * v + u * vv;
            }
          }
          put(dst.shadowRow(y), x * channels + c, result);
        }
      }
    }
  }

  // Which operand is the destination: none, the first or the second.
  void check(s64 width, s64 height, int aliased) {
    Image images[3];
    const s64 rowBytes = width * channels * s64{sizeof(f32)};
    for (Image& image : images) {
      image.place({rowBytes, height, rowBytes + 4 * random.between(0, 2)},
                  random.oneIn(2) ? Placement::kFlushEnd : Placement::kFlushStart, random);
      image.fillRows(random, Data::kModerate, Element::k32f);
      image.expectNow();
    }
    Image& a = images[0];
    Image& b = inPlace || aliased == 1 ? images[2] : images[1];
    Image& dst = images[2];
    // With the first source as destination it is the second factor: dst = src2 * conj(dst).
    model(a, aliased == 2 ? dst : b, dst, width, height);
    if (inPlace) {
      call.image("src", a).image("srcdst", dst);
    } else {
      call.image("src1", aliased == 1 ? dst : a)
          .image("src2", aliased == 1   ? a
                         : aliased == 2 ? dst
                                        : b)
          .image("dst", dst);
    }
    call.roi(width, height);
    for (int vectorBytes : vectorWidths()) {
      ScopedWidth scope(vectorBytes);
      dst.rewind();
      ASSERT_EQ(call(), rnxStatusNoError);
      for (Image& image : images)
        ASSERT_TRUE(image.matches(Element::k32f)) << width << " x " << height << " " << aliased;
    }
  }
};

TEST_P(MulPack, EqualsTheModel) {
  for (s64 width = 1; width <= 40; ++width) {
    for (s64 height : {1, 2, 3, 4, 21}) {
      for (int aliased = 0; aliased < (inPlace ? 1 : 3); ++aliased) check(width, height, aliased);
    }
  }
  check(301, 30, 0);
}

TEST_P(MulPack, ChecksPointersThenStepsThenSize) {
  Image image({64, 4, 64}, Placement::kInside, random);
  std::vector<std::string_view> roles;
  for (std::string_view role : {"src", "src1", "src2", "dst", "srcdst"}) {
    if (s.has(role)) roles.push_back(role);
  }
  for (std::string_view role : roles) call.image(role, image);
  call.roi(1, 1);
  for (std::string_view role : roles) {
    EXPECT_EQ(Call(call).image(role, nullptr, 0).roi(0, 0)(), rnxStatusNullPointer);
    for (s64 step : {0, -4}) EXPECT_EQ(Call(call).image(role, image.data(), step).roi(0, 0)(), rnxStatusBadStep);
  }
  EXPECT_EQ(Call(call).roi(0, 1)(), rnxStatusBadSize);
  EXPECT_EQ(Call(call).roi(1, -1)(), rnxStatusBadSize);
}

INSTANTIATE_TEST_SUITE_P(Table, MulPack, testing::ValuesIn(select({.family = "MulPack MulPackConj"})), byName);

// The product of two spectra is the circular convolution of the images, with the conjugate their correlation.
TEST(MulPackUse, ConvolvesAndCorrelates) {
  Random random("convolution");
  for (const auto& [width, height] : {std::pair{24, 20}, {15, 33}, {7, 2}, {1, 9}}) {
    const auto n = static_cast<size_t>(width * height);
    int spec = 0, init = 0, work = 0;
    const RnxiSize roi = {width, height};
    rnxiDFTGetSize_R_32f(roi, rnxFftDivideInverse, 0, &spec, &init, &work);
    std::vector<u8> specBlock(static_cast<size_t>(spec)), initBlock(static_cast<size_t>(init)),
        block(static_cast<size_t>(work));
    auto* plan = reinterpret_cast<RnxiDFTSpec*>(specBlock.data());
    ASSERT_EQ(rnxiDFTInit_R_32f(roi, rnxFftDivideInverse, 0, plan, initBlock.data()), rnxStatusNoError);
    std::vector<f32> a(n), b(n), fa(n), fb(n), out(n);
    fill(random, Data::kModerate, Element::k32f, a.data(), width * height);
    fill(random, Data::kModerate, Element::k32f, b.data(), width * height);
    const int step = width * 4;
    rnxiDFTFwd_RToPack_32f_C1R(a.data(), step, fa.data(), step, plan, block.data());
    rnxiDFTFwd_RToPack_32f_C1R(b.data(), step, fb.data(), step, plan, block.data());
    for (bool correlate : {false, true}) {
      (correlate ? rnxiMulPackConj_32f_C1R : rnxiMulPack_32f_C1R)(fa.data(), step, fb.data(), step, out.data(), step,
                                                                  roi);
      rnxiDFTInv_PackToR_32f_C1IR(out.data(), step, plan, block.data());
      f64 error = 0, norm = 0;
      for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
          f64 sum = 0;
          for (int v = 0; v < height; ++v) {
            for (int u = 0; u < width; ++u) {
              const int ax = correlate ? (x + u) % width : (x - u + width) % width;
              const int ay = correlate ? (y + v) % height : (y - v + height) % height;
              sum += f64{a[static_cast<size_t>(ay * width + ax)]} * b[static_cast<size_t>(v * width + u)];
            }
          }
          const f64 difference = f64{out[static_cast<size_t>(y * width + x)]} - sum;
          error += difference * difference;
          norm += sum * sum;
        }
      }
      EXPECT_LE(std::sqrt(error / norm), 1e-6) << width << " x " << height;
    }
  }
}

}  // namespace
}  // namespace rnx::test
