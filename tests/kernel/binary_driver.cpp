#include "kernel/binary_driver.h"

#include <algorithm>

namespace rnx::test {
namespace {

ref::Op opOf(std::string_view family) {
  if (family.starts_with("Add")) return ref::Op::kAdd;
  if (family.starts_with("Sub")) return ref::Op::kSub;
  if (family.starts_with("Mul")) return ref::Op::kMul;
  return ref::Op::kDiv;
}

}  // namespace

BinaryDriver::BinaryDriver(const Signature& s)
    : signature(s),
      inPlace(s.has("srcdst")),
      withConstant(s.has("value")),
      isFloat(s.source() == Element::k32f),
      checksSteps(s.checksFor("step")),
      pixelBytes(s.channels() * bytesOf(s.source())),
      op(opOf(s.family)),
      call_(s) {}

Image& BinaryDriver::values(Random& random, Data data) {
  const Element element = signature.source();
  const int count = signature.hasAlpha() ? 3 : signature.channels();
  values_.place({count * bytesOf(element), 1, 0}, Placement::kFlushEnd, random);
  values_.fillRows(random, data, element);
  withType(element, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_arithmetic_v<T>) {
      for (int i = 0; i < count; ++i) {
        if (signature.checksFor("divisor") && get<T>(values_.data(), i) == 0) put<T>(values_.data(), i, 3);
      }
    }
  });
  return values_;
}

RnxStatus BinaryDriver::runModel(const BinaryWork& w) {
  const auto rows = [](const Place& p) { return ref::Rows{p.image->shadow(p.data), p.step}; };
  ref::Rows right = rows(w.right);
  right.isConstant = withConstant;
  ref::Arithmetic arithmetic = {op, withConstant, w.scale};
  if (signature.has("round")) arithmetic.roundMode = w.roundMode;
  return withType(signature.source(), [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_same_v<T, u8> || std::is_same_v<T, u16> || std::is_same_v<T, s16> || std::is_same_v<T, f32>) {
      return ref::apply<T>(arithmetic, signature, rows(w.left), right, rows(w.dst), w.width, w.height);
    }
    return RnxStatus{rnxStatusInternalFailure};
  });
}

bool BinaryDriver::check(const BinaryWork& w) {
  std::vector<Image*> images = {w.left.image, w.right.image, w.dst.image};
  std::ranges::sort(images);
  images.erase(std::unique(images.begin(), images.end()), images.end());
  for (Image* image : images) image->expectNow();
  const RnxStatus expected = runModel(w);

  if (!inPlace && !withConstant) call_.image("src2", w.left.data, w.left.step);
  if (!inPlace && withConstant) call_.image("src", w.left.data, w.left.step);
  if (!withConstant) call_.image(inPlace ? "src" : "src1", w.right.data, w.right.step);
  call_.image(inPlace ? "srcdst" : "dst", w.dst.data, w.dst.step).roi(w.width, w.height);
  if (!isFloat) call_.role("scale", w.scale);
  if (signature.has("round")) call_.role("round", w.roundMode);
  if (withConstant && signature.layout != "C1") call_.role("value", w.right.data);
  if (withConstant && signature.layout == "C1") {
    withType(signature.source(), [&](auto zero) {
      using T = decltype(zero);
      if constexpr (std::is_arithmetic_v<T>) call_.role("value", get<T>(w.right.data));
    });
  }

  for (int width : vectorWidths()) {
    ScopedWidth scope(width);
    for (Image* image : images) image->rewind();
    const unsigned before = _mm_getcsr();
    _mm_setcsr(controlState);
    const RnxStatus status = call_();
    const unsigned after = _mm_getcsr();
    _mm_setcsr(before);
    EXPECT_TRUE(isFloat || after == controlState);
    for (Image* image : images) {
      const auto result = image->matches(image == w.dst.image ? signature.source() : Element::k8u);
      if (status == expected && result) continue;
      ADD_FAILURE() << result.message() << "\n  status " << status << ", expected " << expected << "; vectors of "
                    << width << " bytes, " << w.width << " x " << w.height << ", steps " << w.left.step << " "
                    << w.right.step << " " << w.dst.step << ", scale factor " << w.scale << ", rounding " << w.roundMode
                    << ", " << (image == w.dst.image ? "destination" : "source");
      return false;
    }
  }
  return true;
}

}  // namespace rnx::test
