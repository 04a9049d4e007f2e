// The general linear filter against its model: kernels of all shapes, all borders with the ROI at the edge of what may
// be read, divisors, rounding, specs and buffers of exactly the reported size.
#include <algorithm>
#include <array>
#include <climits>
#include <numeric>
#include <thread>

#include "ref/filter_model.h"
#include "support/call.h"
#include "support/companion_double.h"
#include "support/guarded.h"

namespace rnx::test {
namespace {

RnxDataType selectorOf(Element e) {
  switch (e) {
    case Element::k8u:
      return rnx8u;
    case Element::k16u:
      return rnx16u;
    case Element::k16s:
      return rnx16s;
    case Element::k32f:
      return rnx32f;
    default:
      return rnx64f;
  }
}

bool staysInteger(int dataType, int channels, s64 kw, s64 kh) {
  if (dataType == rnx8u) return true;
  return dataType == rnx16s && channels <= 2 && kw > 1 && kh > 1 && !(channels == 1 && kw < 3);
}

// ---- One way to use the filter ----

struct Job {
  int kw = 3, kh = 3;
  s64 width = 10, height = 5;  // of the ROI
  RnxiBorderType border = rnxBorderRepl;
  RnxDataType kernelType = rnx32f;
  int divisor = 1, roundMode = rnxRoundNearestEven, offset = 0;
  std::vector<f64> kernel;
  Data data = Data::kBits;
};

std::ostream& operator<<(std::ostream& out, const Job& j) {
  return out << "kernel " << j.kw << 'x' << j.kh << " of type " << j.kernelType << ", ROI " << j.width << 'x'
             << j.height << ", border 0x" << std::hex << j.border << std::dec << ", divisor " << j.divisor
             << ", rounding " << j.roundMode << ", offset " << j.offset;
}

// A block of exactly the reported size between canaries or beside an unreadable page.
struct Caller {
  explicit Caller(std::string_view name) : random(name), call(name) {}

  Random random;
  Call call;
  Image src, dst, spec, buffer;

  Placement anyPlacement() {
    return random.pick(std::to_array({Placement::kFlushEnd, Placement::kFlushStart, Placement::kInside}));
  }
  void placeBlock(Image& image, int bytes) {
    image.place({bytes, 1, bytes}, anyPlacement(), random, static_cast<int>(random.between(0, 63)));
  }

  template <class K>
  ref::KernelModel<K> modelKernel(const Job& job) {
    ref::KernelModel<K> k{job.kw, job.kh, {}};
    for (const f64 c : job.kernel) k.coefficients.push_back(static_cast<K>(c));
    return k;
  }

  RnxStatus init(const Job& job, int dataType, int channels) {
    auto* block = reinterpret_cast<RnxiFilterBorderSpec*>(spec.data());
    const RnxiSize size = {job.kw, job.kh};
    if (job.kernelType == rnx16s) {
      const auto k = modelKernel<s16>(job);
      return rnxiFilterBorderInit_16s(k.coefficients.data(), size, job.divisor, dataType, channels, job.roundMode,
                                      block);
    }
    if (job.kernelType == rnx32f) {
      const auto k = modelKernel<f32>(job);
      return rnxiFilterBorderInit_32f(k.coefficients.data(), size, dataType, channels, job.roundMode, block);
    }
    const auto k = modelKernel<f64>(job);
    return rnxiFilterBorderInit_64f(k.coefficients.data(), size, dataType, channels, job.roundMode, block);
  }

  // Asks for the sizes, fills the spec.
  void prepare(const Job& job, int dataType, int channels) {
    int specSize = 0, bufferSize = 0;
    ASSERT_EQ(rnxiFilterBorderGetSize({job.kw, job.kh}, {static_cast<int>(job.width), static_cast<int>(job.height)},
                                      dataType, job.kernelType, channels, &specSize, &bufferSize),
              rnxStatusNoError);
    placeBlock(spec, specSize);
    placeBlock(buffer, bufferSize);
    ASSERT_GE(init(job, dataType, channels), 0);
    if (job.offset != 0) {
      auto* block = reinterpret_cast<RnxiFilterBorderSpec*>(spec.data());
      ASSERT_EQ(rnxiFilterBorderSetMode(rnxAlgHintNone, job.offset, block), rnxStatusNoError);
    }
  }

  // Every result of the ROI in the destination's copy.
  template <class T>
  void model(const Job& job, const ref::SourceModel<T>& source, int dataType) {
    const s64 channels = source.channels;
    const bool integer = job.kernelType == rnx16s && staysInteger(dataType, static_cast<int>(channels), job.kw, job.kh);
    const auto k16 = integer ? modelKernel<s16>(job) : ref::KernelModel<s16>{};
    const auto k64 = modelKernel<f64>(job);
    auto k32 = modelKernel<f32>(job);
    if (job.kernelType == rnx16s) {
      for (size_t n = 0; n < job.kernel.size(); ++n) {
        k32.coefficients[n] = static_cast<f32>(job.kernel[n] * (1.0 / job.divisor));
      }
    }
    const int mode = job.roundMode & 3;
    for (s64 y = 0; y < job.height; ++y) {
      for (s64 x = 0; x < job.width; ++x) {
        for (s64 c = 0; c < channels; ++c) {
          T result{};
          if constexpr (std::is_same_v<T, f64>) {
            result = ref::sumModel<f64>(k64, source, x, y, c);
          } else if constexpr (std::is_same_v<T, f32>) {
            result = ref::sumModel<f32>(k32, source, x, y, c) + 0.0f;
          } else if (!integer) {
            const f32 sum = ref::sumModel<f32>(k32, source, x, y, c) + static_cast<f32>(job.offset);
            result = ref::floatResult<T>(sum, mode);
          } else if constexpr (std::is_same_v<T, u8>) {
            result = ref::integerResult8u(ref::sumModel<s64>(k16, source, x, y, c), job.divisor, mode, job.offset);
          } else if constexpr (std::is_same_v<T, s16>) {
            result = ref::integerResult16s(ref::sumModel<s64>(k16, source, x, y, c), job.divisor, mode);
          }
          put(dst.shadowRow(y), x * channels + c, result);
        }
      }
    }
  }

  // Filters in both widths and compares all memory.
  template <class T>
  void check(const Job& job) {
    const Signature& s = call.signature();
    const int channels = s.channels(), dataType = selectorOf(s.source());
    const s64 pixel = channels * s64{sizeof(T)};
    const auto columns =
        ref::axisModel(job.width, job.kw, job.border & rnxBorderInMemLeft, job.border & rnxBorderInMemRight);
    const auto rows =
        ref::axisModel(job.height, job.kh, job.border & rnxBorderInMemTop, job.border & rnxBorderInMemBottom);
    prepare(job, dataType, channels);

    // Only what may be read is there.
    const s64 rowBytes = (columns.last - columns.first + 1) * pixel;
    src.place({rowBytes, rows.last - rows.first + 1, rowBytes + random.between(0, 40)}, anyPlacement(), random,
              static_cast<int>(random.between(0, 63)));
    src.fillRows(random, job.data, s.source());
    const u8* roi = src.row(-rows.first) - columns.first * pixel;
    T value[4];
    fill(random, job.data, s.source(), value, 4);
    const bool isConstant = (job.border & 15) == rnxBorderConst;
    const ref::SourceModel<T> source = {
        reinterpret_cast<const T*>(roi), src.step(), channels, job.border, value, columns, rows};

    const s64 dstBytes = job.width * pixel;
    dst.place({dstBytes, job.height, dstBytes + random.between(0, 40)}, anyPlacement(), random,
              static_cast<int>(random.between(0, 63)));
    const std::vector<u8> before(dst.row(0), dst.row(job.height - 1) + dstBytes);
    for (Image* image : {&src, &dst, &spec, &buffer}) image->expectNow();
    model(job, source, dataType);
    for (const int width : vectorWidths()) {
      ScopedWidth scope(width);
      std::copy(before.begin(), before.end(), dst.row(0));
      ASSERT_EQ(call.image("src", roi, src.step())
                    .image("dst", dst)
                    .roi(job.width, job.height)
                    .set("border", job.border)
                    .set("borderValue", isConstant ? value : nullptr)
                    .set("pSpec", spec.data())
                    .set("pBuffer", buffer.data())(),
                rnxStatusNoError)
          << job;
      ASSERT_TRUE(dst.matches(s.source())) << job << ", vectors of " << width;
      ASSERT_TRUE(src.matches() && spec.matches()) << job;
      std::memcpy(buffer.shadowRow(0), buffer.data(), static_cast<size_t>(buffer.shape().rowBytes));
      ASSERT_TRUE(buffer.matches()) << job << ", beyond the buffer";
    }
  }

  void checkAny(const Job& job) {
    switch (call.signature().source()) {
      case Element::k8u:
        return check<u8>(job);
      case Element::k16u:
        return check<u16>(job);
      case Element::k16s:
        return check<s16>(job);
      case Element::k32f:
        return check<f32>(job);
      default:
        return check<f64>(job);
    }
  }
};

// ---- Random jobs ----

const int kDivisors[] = {1,    2,    3,    4,     5,       7,       8,       9,       16,       25,
                         49,   64,   81,   255,   256,     -1,      257,     273,     1003,     4095,
                         8191, 8192, 8193, 10000, 16384,   32768,   65535,   65536,   1000003,  -2,
                         -3,   -16,  -255, -256,  1 << 29, 1 << 30, INT_MAX, INT_MIN, -16777217};

class JobMaker {
public:
  JobMaker(const Signature& s, Random& random) : s_(s), random_(random) {}

  RnxiBorderType border() {
    const RnxiBorderType flags = static_cast<RnxiBorderType>(random_.between(0, 15) << 4);
    if (random_.oneIn(16)) return rnxBorderInMem;
    return flags | random_.pick(std::to_array<RnxiBorderType>({rnxBorderRepl, rnxBorderMirror, rnxBorderConst}));
  }

  f64 coefficient16s(int kind) {
    if (kind == 0) return static_cast<f64>(random_.between(-9, 9));
    if (kind == 1) return static_cast<f64>(random_.between(-300, 300));
    if (kind == 2) return static_cast<f64>(random_.between(-32767, 32766));
    return random_.pick(std::to_array<f64>({-32768, 32767, -1, 0, 3}));
  }
  f64 coefficientFloat(int kind) {
    if (kind == 0) return static_cast<f64>(random_.between(-8, 8)) / 4;  // ties
    if (kind == 1) return static_cast<f64>(random_.between(-1000000, 1000000)) / 3e6;
    if (kind == 2) return static_cast<f64>(random_.between(-1000000, 1000000)) * 1e24;
    return random_.pick(std::to_array<f64>({0.0, -0.0, 0.5, -1.0, INFINITY, 1e-40}));
  }

  Job job(int kw, int kh, s64 width, s64 height) {
    Job j;
    j.kw = kw, j.kh = kh, j.width = width, j.height = height;
    j.border = border();
    const Element e = s_.source();
    const bool isDouble = e == Element::k64f;
    j.kernelType = isDouble ? rnx64f : e == Element::k32f || random_.oneIn(2) ? rnx32f : rnx16s;
    j.roundMode = isDouble ? rnxRoundNearestEven : static_cast<int>(random_.between(0, 2));
    if (random_.oneIn(4)) j.roundMode |= rnxRoundHintFlag;
    j.divisor = random_.oneIn(2) ? random_.pick(kDivisors) : static_cast<int>(random_.between(1, 100));
    if (random_.oneIn(3) && (e == Element::k8u || e == Element::k16u)) j.offset = anyOffset();
    const int kind = random_.oneIn(2) ? 0 : static_cast<int>(random_.between(1, 3));
    for (int n = 0; n < kw * kh; ++n) {
      j.kernel.push_back(j.kernelType == rnx16s ? coefficient16s(kind) : coefficientFloat(kind));
    }
    j.data = random_.pick(kAllData);
    return j;
  }

private:
  int anyOffset() {
    return static_cast<int>(random_.oneIn(4) ? random_.between(INT_MIN, INT_MAX) : random_.between(-300, 300));
  }

  const Signature& s_;
  Random& random_;
};

class FilterBorder : public testing::TestWithParam<const Signature*> {
protected:
  Caller caller{GetParam()->name};
  JobMaker maker{*GetParam(), caller.random};
  s64 channels = GetParam()->channels();
};

TEST_P(FilterBorder, KernelsOfAllShapesUpTo9) {
  for (int kh = 1; kh <= 9; ++kh) {
    for (int kw = 1; kw <= 9; ++kw) {
      for (int n = 0; n < 3; ++n) {
        const s64 width = n == 0 ? caller.random.between(1, 12) : caller.random.between(10, 90);
        caller.checkAny(maker.job(kw, kh, width, caller.random.between(1, 12)));
        if (HasFatalFailure()) return;
      }
    }
  }
}

TEST_P(FilterBorder, AllBordersAndSmallImages) {
  for (const RnxiBorderType base : {rnxBorderRepl, rnxBorderMirror, rnxBorderConst}) {
    for (RnxiBorderType flags = 0; flags <= 240; flags += 16) {
      for (int n = 0; n < 6; ++n) {
        const auto size = [&](s64 most) { return caller.random.between(1, most); };
        Job job = maker.job(static_cast<int>(size(6)), static_cast<int>(size(6)), size(n < 3 ? 5 : 40), size(5));
        job.border = base | flags;
        caller.checkAny(job);
        if (HasFatalFailure()) return;
      }
    }
  }
}

TEST_P(FilterBorder, LargeKernelsAndLongRows) {
  const RnxiSize kernels[] = {{15, 15}, {31, 2}, {2, 31}, {1, 40}, {70, 1}, {17, 17}, {3, 3}, {5, 5}};
  for (const RnxiSize k : kernels) {
    caller.checkAny(
        maker.job(k.width, k.height, caller.random.between(1, 300 / channels), caller.random.between(1, 9)));
    if (HasFatalFailure()) return;
  }
}

// Every vector tail: widths around multiples of all block sizes.
TEST_P(FilterBorder, AllWidths) {
  for (s64 width = 1; width <= 140 / channels; ++width) {
    caller.checkAny(maker.job(3, 2, width, 3));
    if (HasFatalFailure()) return;
  }
}

// Constant kernels as large as they go: sums beyond 32 bits.
TEST_P(FilterBorder, LargestSums) {
  for (const f64 c : {32767.0, 32766.0, -32767.0, -32768.0}) {
    for (const int divisor : {17 * 17 * 32767, 1 << 23, 1 << 30, -3, 65535}) {
      Job job = maker.job(17, 17, 40, 3);
      if (job.kernelType == rnx64f) return;
      std::fill(job.kernel.begin(), job.kernel.end(), c);
      job.divisor = divisor;
      job.data = Data::kExtreme;
      caller.checkAny(job);
      if (HasFatalFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Table, FilterBorder, testing::ValuesIn(select({.family = "FilterBorder"})), byName);

// ---- Division ----

// Quotients on and beside all ties, for every divisor, rounding mode and offset. Sums of all values from a to b appear.
void checkDivision(const char* name, Job job, std::span<const int> offsets, std::span<const int> divisors = kDivisors) {
  Caller caller(name);
  for (const int divisor : divisors) {
    for (const int offset : offsets) {
      for (job.roundMode = 0; job.roundMode <= 2; ++job.roundMode) {
        job.divisor = divisor, job.offset = offset;
        caller.checkAny(job);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  }
}

TEST(FilterDivision, Of8u) {
  for (const f64 c : {1.0, -1.0, 3.0, 64.0, 255.0, 2048.0, 32766.0, -32768.0}) {
    Job job{.kw = 2, .kh = 1, .width = 400, .height = 3, .kernelType = rnx16s, .kernel = {c, 1}, .data = Data::kBits};
    checkDivision("rnxiFilterBorder_8u_C1R", job, std::to_array({0, 1, -100, 100000}));
  }
}

// Kernels whose sums stay within 16 bits, up to the last.
TEST(FilterDivision, OfBytes) {
  std::vector<int> divisors(257);
  std::iota(divisors.begin(), divisors.end(), 1);
  divisors.insert(divisors.end(), {512, 8192, 16384, 32768, 1 << 20, -1, -255});
  for (const f64 c : {126.0, 127.0, -128.0, -129.0}) {
    Job job{.kw = 2, .kh = 1, .width = 400, .height = 3, .kernelType = rnx16s, .kernel = {c, 1}, .data = Data::kBits};
    checkDivision("rnxiFilterBorder_8u_C1R", job, std::to_array({0}), divisors);
  }
}

TEST(FilterDivision, Of16s) {
  for (const f64 c : {1.0, -1.0, 3.0, 255.0, 32766.0, -32768.0}) {
    for (const Data data : {Data::kTies, Data::kBits}) {
      Job job{.kw = 3,
              .kh = 2,
              .width = 400,
              .height = 3,
              .kernelType = rnx16s,
              .kernel = {0, 0, c, 0, 1, 0},
              .data = data};
      checkDivision("rnxiFilterBorder_16s_C1R", job, std::to_array({0}));
    }
  }
}

// ---- Threads ----

TEST(FilterBorderThreads, ShareASpec) {
  const RnxiSize roi = {321, 60}, size = {5, 5};
  int specSize = 0, bufferSize = 0;
  ASSERT_EQ(rnxiFilterBorderGetSize(size, roi, rnx8u, rnx16s, 1, &specSize, &bufferSize), rnxStatusNoError);
  std::vector<u8> block(static_cast<size_t>(specSize)), src(321 * 60);
  auto* spec = reinterpret_cast<RnxiFilterBorderSpec*>(block.data());
  Random random("threads");
  fillBytes(random, src.data(), static_cast<s64>(src.size()));
  std::vector<s16> kernel(25, 3);
  kernel[7] = -20;
  ASSERT_EQ(rnxiFilterBorderInit_16s(kernel.data(), size, 7, rnx8u, 1, rnxRoundHalfAway, spec), rnxStatusNoError);
  std::vector<std::vector<u8>> results(8, std::vector<u8>(src.size()));
  std::vector<std::thread> threads;
  for (auto& result : results) {
    threads.emplace_back([&] {
      std::vector<u8> buffer(static_cast<size_t>(bufferSize));
      for (int n = 0; n < 20; ++n) {
        rnxiFilterBorder_8u_C1R(src.data(), 321, result.data(), 321, roi, rnxBorderMirror, nullptr, spec,
                                buffer.data());
      }
    });
  }
  for (auto& thread : threads) thread.join();
  for (const auto& result : results) EXPECT_EQ(result, results[0]);
}

}  // namespace
}  // namespace rnx::test
