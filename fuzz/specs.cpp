// Specs and what belongs to them: sizes, tiles, buffers.
#include <algorithm>

#include "arguments.h"

namespace rnx::fuzz {
namespace {

constexpr s64 kMostSpecBytes = 1 << 20;

RnxiSize plain(s64 width, s64 height) { return {static_cast<int>(width), static_cast<int>(height)}; }

// ---- Resize ----

s64 resizeSpecBytes(bool isLong, int type, int kind, RnxiSize from, RnxiSize to) {
  int bytes = 0, init = 0;
  if (isLong) {
    const RnxiSizeL source = {from.width, from.height}, destination = {to.width, to.height};
    Rnx64s longBytes = 0, longInit = 0;
    const RnxStatus status = rnxiResizeGetSize_L(&source, &destination, type, static_cast<RnxiInterpolationType>(kind),
                                                 0, &longBytes, &longInit);
    return status < 0 ? 0 : longBytes;
  }
  const auto query = type == rnx64f ? rnxiResizeGetSize_64f : rnxiResizeGetSize_8u;
  return query(from, to, static_cast<RnxiInterpolationType>(kind), 0, &bytes, &init) < 0 ? 0 : bytes;
}

RnxStatus initResize(bool isLong, int type, int kind, RnxiSize from, RnxiSize to, RnxiResizeSpec* spec) {
  const RnxiSizeL source = {from.width, from.height}, destination = {to.width, to.height};
  if (kind == rnxNearest) {
    return isLong ? rnxiResizeNearestInit_L(&source, &destination, type, spec)
                  : rnxiResizeNearestInit_8u(from, to, spec);
  }
  if (isLong) {
    return type == rnx8u ? rnxiResizeLinearInit_8u_L(&source, &destination, spec)
                         : rnxiResizeLinearInit_L(&source, &destination, type, spec);
  }
  const auto init = type == rnx8u    ? rnxiResizeLinearInit_8u
                    : type == rnx64f ? rnxiResizeLinearInit_64f
                                     : rnxiResizeLinearInit_32f;
  return init(from, to, spec);
}

// ---- Transforms: the kinds are complex or real, by orders or by size ----

enum Transform { kFftComplex, kFftReal, kDftComplex, kDftReal };

RnxStatus transformSizes(int kind, RnxiSize size, int orderX, int orderY, int flag, int* spec, int* init, int* work) {
  switch (kind) {
    case kFftComplex:
      return rnxiFFTGetSize_C_32fc(orderX, orderY, flag, 0, spec, init, work);
    case kFftReal:
      return rnxiFFTGetSize_R_32f(orderX, orderY, flag, 0, spec, init, work);
    case kDftComplex:
      return rnxiDFTGetSize_C_32fc(size, flag, 0, spec, init, work);
    default:
      return rnxiDFTGetSize_R_32f(size, flag, 0, spec, init, work);
  }
}

void initTransform(int kind, RnxiSize size, int orderX, int orderY, int flag, u8* spec, u8* init) {
  switch (kind) {
    case kFftComplex:
      rnxiFFTInit_C_32fc(orderX, orderY, flag, 0, reinterpret_cast<RnxiFFTSpec*>(spec), init);
      return;
    case kFftReal:
      rnxiFFTInit_R_32f(orderX, orderY, flag, 0, reinterpret_cast<RnxiFFTSpec*>(spec), init);
      return;
    case kDftComplex:
      rnxiDFTInit_C_32fc(size, flag, 0, reinterpret_cast<RnxiDFTSpec*>(spec), init);
      return;
    default:
      rnxiDFTInit_R_32f(size, flag, 0, reinterpret_cast<RnxiDFTSpec*>(spec), init);
  }
}

int orderOf(s64 length) { return 63 - __builtin_clzll(static_cast<u64>(length)); }

}  // namespace

int Arguments::typeCode() const {
  if (s_.types.empty()) return rnx8u;
  switch (s_.source()) {
    case test::Element::k16u:
      return rnx16u;
    case test::Element::k16s:
      return rnx16s;
    case test::Element::k32f:
      return rnx32f;
    case test::Element::k64f:
      return rnx64f;
    default:
      return rnx8u;
  }
}

void Arguments::chooseSpec() {
  const bool reads = s_.has("resizespec") || s_.has("fftspec") || s_.has("dftspec") || s_.has("filterspec");
  if (reads && hostile()) {
    const u8 what = choose_.byte();
    content_ = what < 170   ? Content::kFresh
               : what < 220 ? Content::kStale
               : what < 245 ? Content::kRandom
                            : Content::kZeros;
  }
  if (s_.subsystem == "geom") chooseResize();
  if (s_.subsystem == "fft" && !s_.has("roi")) chooseTransform();
  if (s_.subsystem == "filter") chooseFilter();
}

void Arguments::chooseResize() {
  const bool query = s_.has("resizesizes"), makes = s_.has("initresize");
  whole_ = {length(true), length()};
  result_ = {length(true), length()};
  if (!hostile()) whole_ = {whole_.width + 1, whole_.height + 1};
  if (query) return;

  specIsLong_ = s_.isLong;
  specType_ = typeCode();
  if (s_.types.empty()) {
    constexpr int kTypes[] = {rnx8u, rnx16u, rnx16s, rnx32f, rnx64f};
    specType_ = choose_.pick(kTypes);
    if (s_.has("elementtype")) specType_ = static_cast<int>(call_.integerAt(call_.indexOfRole("elementtype")));
  }
  const bool nearest = s_.family.starts_with("ResizeNearest");
  specKind_ = nearest || (!s_.family.starts_with("ResizeLinear") && choose_.oneIn(2)) ? rnxNearest : rnxLinear;
  if (content_ == Content::kStale) {
    const u8 how = choose_.byte();
    if (how % 2) specKind_ = rnxNearest + rnxLinear - specKind_;
    if (how % 3 == 1) specIsLong_ = !specIsLong_;
    if (how % 5 == 1) specType_ = specType_ == rnx8u ? rnx32f : rnx8u;
  }
  if (specKind_ == rnxNearest && !makes && specType_ == rnx64f) specType_ = rnx32f;  // there is none for 64f
  if (makes) {
    while (true) {
      specBytes_ = resizeSpecBytes(specIsLong_, specType_, specKind_, plain(whole_.width, whole_.height),
                                   plain(result_.width, result_.height));
      if (specBytes_ <= kMostSpecBytes) break;
      result_ = {result_.width / 2, result_.height / 2};
    }
    // A source that fits 64 bits only is refused.
    if (specBytes_ == 0) specBytes_ = 64;
    if (s_.isLong &&
        (whole_.width > INT_MAX || whole_.height > INT_MAX || result_.width > INT_MAX || result_.height > INT_MAX ||
         std::min({whole_.width, whole_.height, result_.width, result_.height}) < INT_MIN)) {
      whole_ = result_ = {INT_MAX, INT_MAX};
    }
    return;
  }

  chooseTile();
}

// The functions that use a spec get sizes that Init accepts; what they are asked may still be absurd.
void Arguments::chooseTile() {
  const auto sane = [&](s64 n, s64 least, s64 most) {
    return n >= least && n <= most ? n : choose_.between(least, most);
  };
  whole_ = {sane(whole_.width, 2, 2000), sane(whole_.height, 2, 300)};
  result_ = {sane(result_.width, 1, 2000), sane(result_.height, 1, 300)};
  const RnxiSize from = plain(whole_.width, whole_.height), to = plain(result_.width, result_.height);
  specBytes_ = std::max<s64>(64, resizeSpecBytes(specIsLong_, specType_, specKind_, from, to));

  tileX_ = twist(12) ? choose_.anyInteger(s_.isLong) : choose_.between(0, result_.width - 1);
  tileY_ = twist(12) ? choose_.anyInteger(s_.isLong) : choose_.between(0, result_.height - 1);
  if (choose_.oneIn(2)) tileX_ = tileY_ = 0;
  if (!hostile() || !choose_.oneIn(4)) {
    const s64 restX =
        std::max<s64>(1, std::min(result_.width, bounded(static_cast<f64>(result_.width) - static_cast<f64>(tileX_))));
    const s64 restY = std::max<s64>(
        1, std::min(result_.height, bounded(static_cast<f64>(result_.height) - static_cast<f64>(tileY_))));
    roi_ = choose_.oneIn(2) ? Sizes{restX, restY} : Sizes{choose_.between(1, restX), choose_.between(1, restY)};
  }
  const bool inside = tileX_ >= 0 && tileY_ >= 0 && tileX_ < result_.width && tileY_ < result_.height;
  std::vector<u8> spec(static_cast<size_t>(specBytes_));
  auto* block = reinterpret_cast<RnxiResizeSpec*>(spec.data());
  const bool valid = initResize(specIsLong_, specType_, specKind_, from, to, block) == 0;
  if (valid && inside) {
    if (specIsLong_) {
      RnxiPointL place = {};
      rnxiResizeGetSrcOffset_L(block, {tileX_, tileY_}, &place);
      sourceX_ = place.x, sourceY_ = place.y;
    } else {
      RnxiPoint place = {};
      rnxiResizeGetSrcOffset_8u(block, {static_cast<int>(tileX_), static_cast<int>(tileY_)}, &place);
      sourceX_ = place.x, sourceY_ = place.y;
    }
  }
  const int channels = s_.channels();
  if (s_.has("workbuffer") && valid) {
    const RnxiSizeL tile = {roi_.width, roi_.height};
    Rnx64s longBytes = 0;
    int bytes = 0;
    if (specIsLong_) {
      rnxiResizeGetBufferSize_L(block, &tile, channels, &longBytes);
    } else if (specType_ == rnx64f) {
      rnxiResizeGetBufferSize_64f(block, plain(roi_.width, roi_.height), channels, &bytes);
    } else {
      rnxiResizeGetBufferSize_8u(block, plain(roi_.width, roi_.height), channels, &bytes);
    }
    bufferBytes_ = std::max<s64>(longBytes + bytes, 64);
  }
}

void Arguments::chooseTransform() {
  const bool dft = s_.family.starts_with("DFT");
  const bool real = s_.family.find("_R") != std::string_view::npos || s_.family.find("ToR") != std::string_view::npos;
  specKind_ = (dft ? kDftComplex : kFftComplex) + (real ? 1 : 0);
  if (content_ == Content::kStale) specKind_ ^= 1;  // complex for real
  int flag = 2;
  if (s_.has("flag")) flag = static_cast<int>(call_.integerAt(call_.indexOfRole("flag")));

  const bool plans = s_.has("flag");
  if (!plans)
    roi_ = {1 + (choose_.oneIn(8) ? choose_.between(0, 300) : choose_.between(0, 69)), choose_.between(1, 70)};
  int orderX = 0, orderY = 0;
  if (s_.has("orders")) {
    const size_t index = call_.indexOfRole("orders");
    orderX = static_cast<int>(call_.integerAt(index)), orderY = static_cast<int>(call_.integerAt(index + 1));
  } else if (!dft && roi_.width > 0 && roi_.height > 0) {
    orderX = orderOf(roi_.width), orderY = orderOf(roi_.height);
    roi_ = {s64{1} << orderX, s64{1} << orderY};
  }
  int spec = 0, init = 0, work = 0;
  RnxiSize size = plain(roi_.width, roi_.height);
  while (transformSizes(specKind_, size, orderX, orderY, flag, &spec, &init, &work) == 0 &&
         (spec > kMostSpecBytes || init > kMostSpecBytes || work > kMostSpecBytes) && plans && !s_.has("sizesout")) {
    size = {std::max(1, size.width / 2), std::max(1, size.height / 2)};
    orderX = std::max(0, orderX - 1), orderY = std::max(0, orderY - 1);
  }
  if (plans) {
    roi_ = {size.width, size.height};
    if (s_.has("orders")) {
      const size_t index = call_.indexOfRole("orders");
      call_.setAt(index, orderX), call_.setAt(index + 1, orderY);
    }
  }
  specBytes_ = std::max(spec, 64);
  initBytes_ = init;
  bufferBytes_ = work;
}

void Arguments::chooseFilter() {
  const auto side = [&] { return static_cast<int>(twist(8) ? choose_.between(1, 40) : choose_.between(1, 7)); };
  kernel_ = {side(), side()};
  if (s_.has("filterkernelsize") && twist(6)) kernel_.width = static_cast<int>(choose_.anyInteger(false));
  if (s_.has("filterkernelsize") && twist(6)) kernel_.height = static_cast<int>(choose_.anyInteger(false));
  const bool big = static_cast<f64>(kernel_.width) * kernel_.height > 4096 && kernel_.width > 0 && kernel_.height > 0;
  if (s_.has("filterkernel") && big) kernel_ = {choose_.oneIn(2) ? 64 : 1, 64};

  // Kinds: 0 integer, 1 float, 2 double.
  specType_ = s_.types.empty() ? rnx8u : typeCode();
  if (s_.family == "FilterBorderSetMode") {
    constexpr int kTypes[] = {rnx8u, rnx16u, rnx16s, rnx32f, rnx64f};
    specType_ = choose_.pick(kTypes);
  }
  if (content_ == Content::kStale) {
    constexpr int kTypes[] = {rnx8u, rnx16u, rnx16s, rnx32f, rnx64f};
    specType_ = choose_.pick(kTypes);
  }
  specKind_ = specType_ == rnx64f ? 2 : specType_ == rnx32f || choose_.oneIn(2) ? 1 : 0;
  if (s_.has("filterkernel")) {  // an Init function
    specKind_ = s_.types == "64f" ? 2 : s_.types == "32f" ? 1 : 0;
    specType_ = static_cast<int>(call_.integerAt(call_.indexOfRole("filterdatatype")));
    if (!hostile() && specKind_ == 2) {
      specType_ = rnx64f;
      call_.role("filterdatatype", int{rnx64f}).role("filterchannels", 1).role("filterround", 1);
    }
  }
  measureFilter();
}

// The size of the buffer depends on the ROI, which may become smaller yet.
void Arguments::measureFilter() {
  int spec = 0, buffer = 0;
  int channels = s_.layout.empty() ? 4 : s_.channels();
  if (s_.has("filterchannels")) channels = static_cast<int>(call_.integerAt(call_.indexOfRole("filterchannels")));
  if (specKind_ == 2) channels = 1;
  const int kernelType = specKind_ == 2 ? rnx64f : specKind_ == 1 ? rnx32f : rnx16s;
  // A spec of another type goes with a buffer for this one's channels.
  RnxiSize roi = plain(roi_.width, roi_.height);
  if (roi.width < 1 || roi.height < 1 || !s_.has("filterspec")) roi = {1, 1};
  if (specKind_ == 2 && !s_.layout.empty()) {
    roi.width = static_cast<int>(std::min<s64>(s64{roi.width} * s_.channels(), INT32_MAX));
  }
  rnxiFilterBorderGetSize(kernel_, roi, specType_, kernelType, channels, &spec, &buffer);
  specBytes_ = std::max(spec, 64);
  bufferBytes_ = std::max(buffer, 64);
}

void Arguments::fillSpec(u8* block) {
  if (content_ == Content::kRandom) return;  // as it lies there
  if (content_ == Content::kZeros) {
    std::memset(block, 0, static_cast<size_t>(specBytes_));
    return;
  }
  if (s_.subsystem == "geom" && s_.has("resizespec")) {
    initResize(specIsLong_, specType_, specKind_, plain(whole_.width, whole_.height),
               plain(result_.width, result_.height), reinterpret_cast<RnxiResizeSpec*>(block));
  }
  if (s_.subsystem == "fft" && !s_.has("flag")) {
    std::vector<u8> init(static_cast<size_t>(initBytes_ + 1));
    const int flag = 1 << choose_.between(0, 3);
    initTransform(specKind_, plain(roi_.width, roi_.height), orderOf(roi_.width), orderOf(roi_.height), flag, block,
                  initBytes_ > 0 ? init.data() : nullptr);
  }
  if (s_.subsystem == "filter" && !s_.has("filterkernel")) {
    auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block);
    const s64 taps = s64{kernel_.width} * kernel_.height;
    const int channels = specKind_ == 2 ? 1 : s_.channels();
    std::vector<f64> doubles;
    std::vector<f32> floats;
    std::vector<s16> integers;
    for (s64 i = 0; i < taps; ++i) {
      integers.push_back(
          static_cast<s16>(choose_.oneIn(8) ? choose_.word(2) : static_cast<u64>(choose_.between(-9, 9))));
      floats.push_back(static_cast<f32>(integers.back()) / 16);
      doubles.push_back(floats.back());
    }
    const int round = static_cast<int>(choose_.between(0, 2));
    if (specKind_ == 2) {
      rnxiFilterBorderInit_64f(doubles.data(), kernel_, specType_, channels, rnxRoundNearestEven, spec);
    } else if (specKind_ == 1) {
      rnxiFilterBorderInit_32f(floats.data(), kernel_, specType_, channels, round, spec);
    } else {
      const int divisor = static_cast<int>(choose_.between(1, 64));
      rnxiFilterBorderInit_16s(integers.data(), kernel_, divisor, specType_, channels, round, spec);
    }
    if (choose_.oneIn(4)) {
      const int offset = specType_ == rnx8u || specType_ == rnx16u ? static_cast<int>(choose_.between(-200, 200)) : 0;
      rnxiFilterBorderSetMode(static_cast<int>(choose_.between(0, 2)), offset, spec);
    }
  }
}

}  // namespace rnx::fuzz
