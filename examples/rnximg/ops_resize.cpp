// Resize: to a size or by a factor, in tiles for as many threads as the command line allows.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <thread>

#include "operations.h"

namespace rnximg {
namespace {

constexpr int kLargest = 32767;

using Block = std::unique_ptr<Rnx8u, decltype(&std::free)>;

Block allocate(int bytes) {
  Block block(static_cast<Rnx8u*>(std::malloc(static_cast<size_t>(bytes))), std::free);
  if (!block) failFile("no memory for a resize");
  return block;
}

// One resize: the spec of the two images and a kind. All channels are treated alike, alpha too.
class Resize {
public:
  Resize(const Image& from, Image& to, bool isLinear) : from_(from), to_(to), isLinear_(isLinear), spec_(makeSpec()) {}

  // Bands of rows, each with a buffer of its own, by one thread each.
  void run(int threads) const {
    const RnxiSize size = to_.size();
    const int bands = std::min(threads, size.height), rows = (size.height + bands - 1) / bands;
    int bufferSize = 0;
    check(rnxiResizeGetBufferSize_8u(spec(), {size.width, rows}, to_.channels(), &bufferSize));
    std::vector<Block> buffers;
    for (int i = 0; i < bands; ++i) buffers.push_back(allocate(bufferSize));
    std::vector<RnxStatus> statuses(static_cast<size_t>(bands), rnxStatusNoError);
    std::vector<std::jthread> workers;
    for (int i = 0; i < bands && i * rows < size.height; ++i) {
      const auto k = static_cast<size_t>(i);
      workers.emplace_back([&, i, k] {
        statuses[k] = tile({0, i * rows}, {size.width, std::min(rows, size.height - i * rows)}, buffers[k].get());
      });
    }
    workers.clear();
    for (const RnxStatus status : statuses) check(status);
  }

private:
  Block makeSpec() const {
    int specSize = 0, initSize = 0;
    const int kind = isLinear_ ? rnxLinear : rnxNearest;
    check(rnxiResizeGetSize_8u(from_.size(), to_.size(), kind, 0, &specSize, &initSize));
    Block block = allocate(specSize);
    const auto init = isLinear_ ? rnxiResizeLinearInit_8u : rnxiResizeNearestInit_8u;
    check(init(from_.size(), to_.size(), reinterpret_cast<RnxiResizeSpec*>(block.get())));
    return block;
  }

  const RnxiResizeSpec* spec() const { return reinterpret_cast<const RnxiResizeSpec*>(spec_.get()); }

  RnxStatus tile(RnxiPoint offset, RnxiSize size, Rnx8u* buffer) const {
    RnxiPoint first = {};
    if (const RnxStatus status = rnxiResizeGetSrcOffset_8u(spec(), offset, &first)) return status;
    const int n = to_.channels();
    const Rnx8u* src = from_.data() + static_cast<ptrdiff_t>(first.y) * from_.step() + first.x * n;
    Rnx8u* dst = to_.data() + static_cast<ptrdiff_t>(offset.y) * to_.step() + offset.x * n;
    if (isLinear_) {
      return byChannels(to_, rnxiResizeLinear_8u_C1R, rnxiResizeLinear_8u_C3R, rnxiResizeLinear_8u_C4R)(
          src, from_.step(), dst, to_.step(), offset, size, rnxBorderRepl, nullptr, spec(), buffer);
    }
    return byChannels(to_, rnxiResizeNearest_8u_C1R, rnxiResizeNearest_8u_C3R, rnxiResizeNearest_8u_C4R)(
        src, from_.step(), dst, to_.step(), offset, size, spec(), buffer);
  }

  const Image& from_;
  Image& to_;
  bool isLinear_;
  Block spec_;
};

void resizeTo(Image& image, RnxiSize size, Arguments& arguments) {
  bool isLinear = !arguments.more() || arguments.choice("KIND", {"nearest", "linear"}) == "linear";
  // One pixel has no neighbours to mix; the nearest one is the same then.
  if (image.size().width < 2 || image.size().height < 2) isLinear = false;
  Image result(size, image.channels());
  Resize(image, result, isLinear).run(settings().threads);
  image = std::move(result);
}

RnxiSize parseSize(const std::string& word) {
  RnxiSize size = {};
  const char* end = word.data() + word.size();
  const auto [x, first] = std::from_chars(word.data(), end, size.width);
  const bool separated = first == std::errc() && x != end && *x == 'x';
  const auto [stop, second] = std::from_chars(separated ? x + 1 : end, end, size.height);
  const auto inRange = [](int n) { return n >= 1 && n <= kLargest; };
  if (!separated || second != std::errc() || stop != end || !inRange(size.width) || !inRange(size.height)) {
    failUsage("SIZE must be WIDTHxHEIGHT with both from 1 to 32767, not '" + word + "'");
  }
  return size;
}

void resize(Image& image, Arguments& arguments) { resizeTo(image, parseSize(arguments.text("SIZE")), arguments); }

void scale(Image& image, Arguments& arguments) {
  const double factor = arguments.number("FACTOR", 0.001, 1000);
  const auto scaled = [factor](int n) {
    const double length = std::round(n * factor);
    if (length > kLargest) failUsage("FACTOR makes the image larger than 32767 pixels");
    return std::max(1, static_cast<int>(length));
  };
  resizeTo(image, {scaled(image.size().width), scaled(image.size().height)}, arguments);
}

const Family kFamily("Geometry: size",
                     {
                         {"resize", "WxH [KIND]", "resizes to W by H pixels; KIND is linear or nearest", resize,
                          "Done in bands of rows by the threads of --threads."},
                         {"scale", "FACTOR [KIND]", "resizes by a factor, e.g. 0.5; KIND is linear or nearest", scale,
                          "Done in bands of rows by the threads of --threads."},
                     });

}  // namespace
}  // namespace rnximg
