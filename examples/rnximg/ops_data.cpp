// Mirror images, quarter turns, borders, crops, channels, one-bit images.
#include <cstddef>

#include "operations.h"

namespace rnximg {
namespace {

// Alpha moves with its pixel: pictures with alpha use the C4 forms.

// ---- Mirror and turn ----

using Mirror = RnxStatus (*)(const Rnx8u*, int, Rnx8u*, int, RnxiSize, int);

Image mirrored(const Image& image, int flip) {
  const bool turns = flip == rnxAxisMainDiagonal || flip == rnxAxisSecondaryDiagonal;
  const RnxiSize size = image.size();
  Image result(turns ? RnxiSize{size.height, size.width} : size, image.channels());
  check(byChannels<Mirror>(image, rnxiMirror_8u_C1R, rnxiMirror_8u_C3R, rnxiMirror_8u_C4R)(
      image.data(), image.step(), result.data(), result.step(), size, flip));
  return result;
}

void mirrorInPlace(Image& image, int flip) {
  check(byChannels(image, rnxiMirror_8u_C1IR, rnxiMirror_8u_C3IR, rnxiMirror_8u_C4IR)(image.data(), image.step(),
                                                                                      image.size(), flip));
}

void transposeImage(Image& image) {
  const RnxiSize size = image.size();
  Image result({size.height, size.width}, image.channels());
  check(byChannels(image, rnxiTranspose_8u_C1R, rnxiTranspose_8u_C3R, rnxiTranspose_8u_C4R)(
      image.data(), image.step(), result.data(), result.step(), size));
  image = std::move(result);
}

void flip(Image& image, Arguments& arguments) {
  const std::string axis = arguments.choice("AXIS", {"horizontal", "vertical", "both", "main", "second"});
  if (axis == "main" || axis == "second") {
    image = mirrored(image, axis == "main" ? rnxAxisMainDiagonal : rnxAxisSecondaryDiagonal);
  } else {
    mirrorInPlace(image, axis == "horizontal" ? rnxAxisHorizontal : axis == "vertical" ? rnxAxisVertical : rnxAxisBoth);
  }
}

void transpose(Image& image, Arguments&) { transposeImage(image); }

// Clockwise: a transposition, and the mirror image of that.
void rotate(Image& image, Arguments& arguments) {
  const std::string angle = arguments.choice("ANGLE", {"90", "180", "270"});
  if (angle == "180") return mirrorInPlace(image, rnxAxisBoth);
  transposeImage(image);
  mirrorInPlace(image, angle == "90" ? rnxAxisVertical : rnxAxisHorizontal);
}

// ---- Border and crop ----

void border(Image& image, Arguments& arguments) {
  constexpr int kWidest = 10000;
  const std::string kind = arguments.choice("KIND", {"constant", "replicate", "mirror"});
  const int width = arguments.integer("WIDTH", 1, kWidest);
  const RnxiSize inner = image.size(), outer = {inner.width + 2 * width, inner.height + 2 * width};
  Image result(outer, image.channels());
  if (kind == "constant") {
    const auto color = arguments.levels("LEVEL", image);
    const Rnx8u opaque[4] = {color[0], color[1], color[2], 255};
    check(image.channels() == 1
              ? rnxiCopyConstBorder_8u_C1R(image.data(), image.step(), inner, result.data(), result.step(), outer,
                                           width, width, color[0])
              : byChannels(image, rnxiCopyConstBorder_8u_C3R, rnxiCopyConstBorder_8u_C3R, rnxiCopyConstBorder_8u_C4R)(
                    image.data(), image.step(), inner, result.data(), result.step(), outer, width, width, opaque));
  } else {
    const auto copy = kind == "mirror" ? byChannels(image, rnxiCopyMirrorBorder_8u_C1R, rnxiCopyMirrorBorder_8u_C3R,
                                                    rnxiCopyMirrorBorder_8u_C4R)
                                       : byChannels(image, rnxiCopyReplicateBorder_8u_C1R,
                                                    rnxiCopyReplicateBorder_8u_C3R, rnxiCopyReplicateBorder_8u_C4R);
    check(copy(image.data(), image.step(), inner, result.data(), result.step(), outer, width, width));
  }
  image = std::move(result);
}

// An ROI is a pointer to its first pixel, the step of the whole image, and a size.
void crop(Image& image, Arguments& arguments) {
  const RnxiSize size = image.size();
  const int x = arguments.integer("X", 0, size.width - 1), y = arguments.integer("Y", 0, size.height - 1);
  const RnxiSize roi = {arguments.integer("WIDTH", 1, size.width - x), arguments.integer("HEIGHT", 1, size.height - y)};
  Image result(roi, image.channels());
  const Rnx8u* first = image.data() + static_cast<std::ptrdiff_t>(y) * image.step() + x * image.channels();
  check(byChannels(image, rnxiCopy_8u_C1R, rnxiCopy_8u_C3R, rnxiCopy_8u_C4R)(first, image.step(), result.data(),
                                                                             result.step(), roi));
  image = std::move(result);
}

// ---- Channels ----

int channelIndex(const std::string& letter) { return static_cast<int>(std::string_view("rgba").find(letter)); }

void refuseGray(const Image& image) {
  if (image.channels() == 1) failUsage("the image is gray: it has one channel only");
}

void swap(Image& image, Arguments& arguments) {
  refuseGray(image);
  int order[4] = {0, 0, 0, 3};
  for (int c = 0; c < 3; ++c) order[c] = channelIndex(arguments.choice("CHANNEL", {"r", "g", "b"}));
  check((image.channels() == 3 ? rnxiSwapChannels_8u_C3IR : rnxiSwapChannels_8u_C4IR)(image.data(), image.step(),
                                                                                      image.size(), order));
}

void extract(Image& image, Arguments& arguments) {
  refuseGray(image);
  const int channel = channelIndex(arguments.choice("CHANNEL", {"r", "g", "b", "a"}));
  if (channel >= image.channels()) failUsage("the image has no alpha channel");
  Image result(image.size(), 1);
  check((image.channels() == 3 ? rnxiCopy_8u_C3C1R : rnxiCopy_8u_C4C1R)(image.data() + channel, image.step(),
                                                                        result.data(), result.step(), image.size()));
  image = std::move(result);
}

void dropAlpha(Image& image, Arguments&) {
  if (image.channels() != 4) return;
  Image result(image.size(), 3);
  check(rnxiCopy_8u_AC4C3R(image.data(), image.step(), result.data(), result.step(), image.size()));
  image = std::move(result);
}

void toColor(Image& image, Arguments&) {
  if (image.channels() != 1) return;
  Image result(image.size(), 3);
  check(rnxiDup_8u_C1C3R(image.data(), image.step(), result.data(), result.step(), image.size()));
  image = std::move(result);
}

// ---- One bit ----

// To one bit per pixel and back to two levels.
void bilevel(Image& image, Arguments& arguments) {
  if (image.channels() != 1) failUsage("the image is not gray: extract a channel first");
  const auto threshold = static_cast<Rnx8u>(arguments.integer("THRESHOLD", 0, 255));
  const bool levels = arguments.more();
  const auto low = static_cast<Rnx8u>(levels ? arguments.integer("LOW", 0, 255) : 0);
  const auto high = static_cast<Rnx8u>(levels ? arguments.integer("HIGH", 0, 255) : 255);
  Image bits({(image.size().width + 7) / 8, image.size().height}, 1);
  check(rnxiGrayToBin_8u1u_C1R(image.data(), image.step(), bits.data(), bits.step(), 0, image.size(), threshold));
  check(rnxiBinToGray_1u8u_C1R(bits.data(), bits.step(), 0, image.data(), image.step(), image.size(), low, high));
}

const Family kFamily(
    "Geometry and channels",
    {
        {"flip", "AXIS", "mirrors about the horizontal or vertical axis, both, or the main or second diagonal", flip,
         "AXIS is horizontal (upside down), vertical, both, main or second."},
        {"transpose", "", "exchanges rows and columns", transpose},
        {"rotate", "ANGLE", "turns clockwise by 90, 180 or 270 degrees", rotate},
        {"border", "KIND WIDTH [LEVEL | R G B]", "adds a border of WIDTH pixels: constant, replicate or mirror", border,
         "A constant border needs its colour; the other kinds take none."},
        {"crop", "X Y WIDTH HEIGHT", "cuts out a rectangle", crop},
        {"swap", "CHANNEL CHANNEL CHANNEL", "takes red, green and blue from these channels (r, g or b)", swap},
        {"extract", "CHANNEL", "one channel (r, g, b or a) as a gray image", extract},
        {"dropalpha", "", "leaves alpha out", dropAlpha},
        {"color", "", "a gray image as RGB", toColor},
        {"bilevel", "THRESHOLD [LOW HIGH]", "a gray image in two levels: HIGH (255) above THRESHOLD, else LOW (0)",
         bilevel, "The image goes through one bit per pixel."},
    });

}  // namespace
}  // namespace rnximg
