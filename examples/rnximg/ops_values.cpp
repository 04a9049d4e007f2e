// Element types and value ranges, thresholds, comparison, figures about pictures, premultiplied alpha.
#include <array>
#include <cstdio>

#include "float_image.h"
#include "operations.h"

namespace rnximg {
namespace {

using Colors = std::array<Rnx8u, 3>;

int takeRounding(Arguments& arguments, int otherwise = rnxRoundNearestEven) {
  if (!arguments.more()) return otherwise;
  const std::string rounding = arguments.choice("ROUNDING", {"zero", "even", "away"});
  return rounding == "zero" ? rnxRoundZero : rounding == "even" ? rnxRoundNearestEven : rnxRoundHalfAway;
}

int takeHint(Arguments& arguments) {
  if (!arguments.more()) return rnxAlgHintFast;
  return arguments.choice("HINT", {"fast", "accurate"}) == "fast" ? rnxAlgHintFast : rnxAlgHintAccurate;
}

// The functions that exist for one channel only take all channels of a pixel as so many pixels. Alpha is taken back
// from the picture as it was.
RnxiSize flatSize(const Image& image) { return {image.size().width * image.channels(), image.size().height}; }

void putColors(Image& image, Image&& result) {
  if (image.channels() == 4) {
    check(rnxiCopy_8u_AC4R(result.data(), result.step(), image.data(), image.step(), image.size()));
  } else {
    image = std::move(result);
  }
}

// ---- Conversion and scaling ----

// The shares of red, green and blue in how light a colour looks.
void gray(Image& image, Arguments& arguments) {
  const int roundMode = takeRounding(arguments);
  if (image.channels() == 1) return;
  constexpr float kShares[3] = {0.299f, 0.587f, 0.114f};
  FloatImage pixels = toFloat(image);
  check(byChannels(image, rnxiMulC_32f_C3IR, rnxiMulC_32f_C3IR, rnxiMulC_32f_AC4IR)(kShares, pixels.data(),
                                                                                    pixels.step(), image.size()));
  FloatImage sum(image.size(), 1), part(image.size(), 1);
  const auto one = image.channels() == 3 ? rnxiCopy_32f_C3C1R : rnxiCopy_32f_C4C1R;
  check(one(pixels.data(), pixels.step(), sum.data(), sum.step(), image.size()));
  for (int c = 1; c < 3; ++c) {
    check(one(pixels.data() + c, pixels.step(), part.data(), part.step(), image.size()));
    check(rnxiAdd_32f_C1IR(part.data(), part.step(), sum.data(), sum.step(), image.size()));
  }
  image = Image(image.size(), 1);
  toBytes(sum, image, roundMode);
}

void convert(Image& image, Arguments& arguments) {
  const int scaleFactor = arguments.integer("SCALEFACTOR", -8, 8), roundMode = takeRounding(arguments);
  FloatImage pixels(image.size(), image.channels());
  Image result(image.size(), image.channels());
  check(rnxiConvert_8u32f_C1R(image.data(), image.step(), pixels.data(), pixels.step(), flatSize(image)));
  check(rnxiConvert_32f8u_C1RSfs(pixels.data(), pixels.step(), result.data(), result.step(), flatSize(image), roundMode,
                                 scaleFactor));
  putColors(image, std::move(result));
}

struct Range {
  float low, high;
};

Range takeRange(Arguments& arguments) {
  const auto low = static_cast<float>(arguments.number("LOW", -1e6, 1e6));
  const auto high = static_cast<float>(arguments.number("HIGH", -1e6, 1e6));
  if (!(low < high)) failUsage("LOW must be below HIGH");
  return {low, high};
}

void stretch(Image& image, Arguments& arguments) {
  const Range range = takeRange(arguments);
  const FloatImage pixels = toFloat(image);
  check(byChannels(image, rnxiScale_32f8u_C1R, rnxiScale_32f8u_C3R, rnxiScale_32f8u_AC4R)(
      pixels.data(), pixels.step(), image.data(), image.step(), image.size(), range.low, range.high));
}

void squeeze(Image& image, Arguments& arguments) {
  const Range range = takeRange(arguments);
  FloatImage pixels(image.size(), image.channels());
  check(byChannels(image, rnxiScale_8u32f_C1R, rnxiScale_8u32f_C3R, rnxiScale_8u32f_AC4R)(
      image.data(), image.step(), pixels.data(), pixels.step(), image.size(), range.low, range.high));
  toBytes(pixels, image, takeRounding(arguments));
}

void scaleConstant(Image& image, Arguments& arguments) {
  const double factor = arguments.number("FACTOR", -1e6, 1e6), addend = arguments.number("ADDEND", -1e9, 1e9);
  const int hint = takeHint(arguments);
  Image result(image.size(), image.channels());
  check(rnxiScaleC_8u_C1R(image.data(), image.step(), factor, addend, result.data(), result.step(), flatSize(image),
                          hint));
  putColors(image, std::move(result));
}

// ---- Thresholds ----

int takeSide(Arguments& arguments) {
  return arguments.choice("SIDE", {"less", "greater"}) == "less" ? rnxCmpLess : rnxCmpGreater;
}

// Calls c1 with the first value of every colour, or c3 or ac4 with arrays of three; other values go to all as they are.
template <class C1, class C3, class... Values>
void apply(Image& image, C1 c1, C3 c3, C3 ac4, const Values&... values) {
  const auto single = [](const auto& v) {
    if constexpr (requires { v[0]; }) {
      return v[0];
    } else {
      return v;
    }
  };
  const auto array = [](const auto& v) {
    if constexpr (requires { v.data(); }) {
      return v.data();
    } else {
      return v;
    }
  };
  check(image.channels() == 1
            ? c1(image.data(), image.step(), image.size(), single(values)...)
            : byChannels(image, c3, c3, ac4)(image.data(), image.step(), image.size(), array(values)...));
}

void threshold(Image& image, Arguments& arguments) {
  const std::string form =
      arguments.choice("FORM", {"clamp", "raise", "lower", "replace", "below", "above", "outside"});
  const auto color = [&](const char* what) { return arguments.color(what, image); };
  if (form == "clamp") {
    const int side = takeSide(arguments);
    apply(image, rnxiThreshold_8u_C1IR, rnxiThreshold_8u_C3IR, rnxiThreshold_8u_AC4IR, color("LEVEL"), side);
  } else if (form == "raise") {
    apply(image, rnxiThreshold_LT_8u_C1IR, rnxiThreshold_LT_8u_C3IR, rnxiThreshold_LT_8u_AC4IR, color("LEVEL"));
  } else if (form == "lower") {
    apply(image, rnxiThreshold_GT_8u_C1IR, rnxiThreshold_GT_8u_C3IR, rnxiThreshold_GT_8u_AC4IR, color("LEVEL"));
  } else if (form == "replace") {
    const int side = takeSide(arguments);
    const Colors level = color("LEVEL"), value = color("VALUE");
    apply(image, rnxiThreshold_Val_8u_C1IR, rnxiThreshold_Val_8u_C3IR, rnxiThreshold_Val_8u_AC4IR, level, value, side);
  } else if (form == "outside") {
    const Colors low = color("LOW"), lowValue = color("VALUE"), high = color("HIGH"), highValue = color("VALUE");
    for (size_t c = 0; c < low.size(); ++c) {
      if (high[c] < low[c]) failUsage("HIGH must not be below LOW");
    }
    apply(image, rnxiThreshold_LTValGTVal_8u_C1IR, rnxiThreshold_LTValGTVal_8u_C3IR, rnxiThreshold_LTValGTVal_8u_AC4IR,
          low, lowValue, high, highValue);
  } else {
    const Colors level = color("LEVEL"), value = color("VALUE");
    if (form == "below") {
      apply(image, rnxiThreshold_LTVal_8u_C1IR, rnxiThreshold_LTVal_8u_C3IR, rnxiThreshold_LTVal_8u_AC4IR, level,
            value);
    } else {
      apply(image, rnxiThreshold_GTVal_8u_C1IR, rnxiThreshold_GTVal_8u_C3IR, rnxiThreshold_GTVal_8u_AC4IR, level,
            value);
    }
  }
}

void compare(Image& image, Arguments& arguments) {
  const std::string relation = arguments.choice("RELATION", {"less", "lesseq", "equal", "greatereq", "greater"});
  const Image other = arguments.sameSizeImage("FILE", image);
  const int cmpOp = relation == "less"        ? rnxCmpLess
                    : relation == "lesseq"    ? rnxCmpLessEq
                    : relation == "equal"     ? rnxCmpEq
                    : relation == "greatereq" ? rnxCmpGreaterEq
                                              : rnxCmpGreater;
  Image mask(image.size(), 1);
  check(byChannels(image, rnxiCompare_8u_C1R, rnxiCompare_8u_C3R, rnxiCompare_8u_AC4R)(
      image.data(), image.step(), other.data(), other.step(), mask.data(), mask.step(), image.size(), cmpOp));
  image = std::move(mask);
}

// ---- Figures ----

using PerChannel = std::array<double, 4>;

struct Figure {
  const char* title;
  PerChannel values;
};

// A line per channel.
void print(const Image& image, std::initializer_list<Figure> figures) {
  const auto cell = [](const std::string& text, const char* end) { std::printf("%16s%s", text.c_str(), end); };
  std::printf("%-7s", "channel");
  for (const Figure& f : figures) cell(f.title, &f + 1 == figures.end() ? "\n" : "");
  for (int c = 0; c < image.channels(); ++c) {
    constexpr const char* kNames[] = {"red", "green", "blue", "alpha"};
    std::printf("%-7s", image.channels() == 1 ? "gray" : kNames[c]);
    for (const Figure& f : figures) {
      char text[32];
      std::snprintf(text, sizeof text, "%.10g", f.values[static_cast<size_t>(c)]);
      cell(text, &f + 1 == figures.end() ? "\n" : "");
    }
  }
}

using OfImage = RnxStatus (*)(const Rnx8u*, int, RnxiSize, double*);
using OfImages = RnxStatus (*)(const Rnx8u*, int, const Rnx8u*, int, RnxiSize, double*);

PerChannel figure(const Image& image, OfImage c1, OfImage c3, OfImage c4) {
  PerChannel values = {};
  check(byChannels(image, c1, c3, c4)(image.data(), image.step(), image.size(), values.data()));
  return values;
}

// A relative norm by 0 is infinite or not a number, which its figure says well enough.
PerChannel figure(const Image& image, const Image& other, OfImages c1, OfImages c3, OfImages c4) {
  PerChannel values = {};
  const RnxStatus status = byChannels(image, c1, c3, c4)(image.data(), image.step(), other.data(), other.step(),
                                                         image.size(), values.data());
  if (status != rnxStatusWarningDivByZero) check(status);
  return values;
}

void stats(Image& image, Arguments& arguments) {
  arguments.finish();  // before anything is printed
  print(image, {{"sum", figure(image, rnxiSum_8u_C1R, rnxiSum_8u_C3R, rnxiSum_8u_C4R)},
                {"mean", figure(image, rnxiMean_8u_C1R, rnxiMean_8u_C3R, rnxiMean_8u_C4R)},
                {"Inf norm", figure(image, rnxiNorm_Inf_8u_C1R, rnxiNorm_Inf_8u_C3R, rnxiNorm_Inf_8u_C4R)},
                {"L1 norm", figure(image, rnxiNorm_L1_8u_C1R, rnxiNorm_L1_8u_C3R, rnxiNorm_L1_8u_C4R)},
                {"L2 norm", figure(image, rnxiNorm_L2_8u_C1R, rnxiNorm_L2_8u_C3R, rnxiNorm_L2_8u_C4R)}});
}

void diff(Image& image, Arguments& arguments) {
  const Image other = arguments.sameSizeImage("FILE", image);
  arguments.finish();
  const auto of = [&](OfImages c1, OfImages c3, OfImages c4) { return figure(image, other, c1, c3, c4); };
  print(image, {{"Inf", of(rnxiNormDiff_Inf_8u_C1R, rnxiNormDiff_Inf_8u_C3R, rnxiNormDiff_Inf_8u_C4R)},
                {"L1", of(rnxiNormDiff_L1_8u_C1R, rnxiNormDiff_L1_8u_C3R, rnxiNormDiff_L1_8u_C4R)},
                {"L2", of(rnxiNormDiff_L2_8u_C1R, rnxiNormDiff_L2_8u_C3R, rnxiNormDiff_L2_8u_C4R)},
                {"Inf relative", of(rnxiNormRel_Inf_8u_C1R, rnxiNormRel_Inf_8u_C3R, rnxiNormRel_Inf_8u_C4R)},
                {"L1 relative", of(rnxiNormRel_L1_8u_C1R, rnxiNormRel_L1_8u_C3R, rnxiNormRel_L1_8u_C4R)},
                {"L2 relative", of(rnxiNormRel_L2_8u_C1R, rnxiNormRel_L2_8u_C3R, rnxiNormRel_L2_8u_C4R)}});
}

// ---- Alpha ----

void alpha(Image& image, Arguments& arguments) {
  const Image opacity = arguments.sameSizeImage("FILE", image, 1);
  Image result(image.size(), 4);
  if (image.channels() == 1) {
    check(rnxiDup_8u_C1C4R(image.data(), image.step(), result.data(), result.step(), image.size()));
  } else {
    check((image.channels() == 3 ? rnxiCopy_8u_C3AC4R : rnxiCopy_8u_C4R)(image.data(), image.step(), result.data(),
                                                                         result.step(), image.size()));
  }
  check(rnxiCopy_8u_C1C4R(opacity.data(), opacity.step(), result.data() + 3, result.step(), image.size()));
  image = std::move(result);
}

void premultiply(Image& image, Arguments& arguments) {
  if (arguments.more()) {
    const auto constant = static_cast<Rnx8u>(arguments.integer("ALPHA", 0, 255));
    check(byChannels(image, rnxiAlphaPremulC_8u_C1IR, rnxiAlphaPremulC_8u_C3IR, rnxiAlphaPremulC_8u_AC4IR)(
        constant, image.data(), image.step(), image.size()));
    return;
  }
  if (image.channels() != 4) failUsage("the image has no alpha: give ALPHA, or set one first (alpha FILE)");
  check(rnxiAlphaPremul_8u_AC4IR(image.data(), image.step(), image.size()));
}

const Family kFamily(
    "Values",
    {
        {"gray", "[ROUNDING]", "lightness: 0.299 R + 0.587 G + 0.114 B in floating point, without alpha", gray,
         "ROUNDING is zero, even or away: toward zero, or to nearest with ties to even or away from zero; even."},
        {"convert", "SCALEFACTOR [ROUNDING]", "multiplies by 2^-SCALEFACTOR (-8 to 8) in floating point", convert,
         "ROUNDING is zero, even or away: toward zero, or to nearest with ties to even or away from zero; even."},
        {"stretch", "LOW HIGH", "maps LOW ... HIGH onto 0 ... 255 for more contrast", stretch},
        {"squeeze", "LOW HIGH [ROUNDING]", "maps 0 ... 255 onto LOW ... HIGH for less contrast", squeeze,
         "ROUNDING is zero, even or away: toward zero, or to nearest with ties to even or away from zero; even."},
        {"scalec", "FACTOR ADDEND [HINT]", "v * FACTOR + ADDEND, rounded once; HINT fast or accurate; fast",
         scaleConstant},
        {"threshold", "FORM ...", "clamps or replaces the levels on one side of a level, or on both", threshold,
         "LEVEL and VALUE are 0 to 255: one integer for all colours, or R,G,B.\n"
         "raise LEVEL                     levels below LEVEL become LEVEL\n"
         "lower LEVEL                     levels above LEVEL become LEVEL\n"
         "clamp SIDE LEVEL                as raise (SIDE less) or lower (SIDE greater)\n"
         "below LEVEL VALUE               levels below LEVEL become VALUE\n"
         "above LEVEL VALUE               levels above LEVEL become VALUE\n"
         "replace SIDE LEVEL VALUE        as below (SIDE less) or above (SIDE greater)\n"
         "outside LOW VALUE HIGH VALUE    levels below LOW and levels above HIGH get values of their own"},
        {"compare", "RELATION FILE", "255 where the image is RELATION FILE in all colours, else 0: a gray image",
         compare, "RELATION is less, lesseq, equal, greatereq or greater."},
        {"stats", "", "prints sum, mean and norms of each channel", stats, {}, true},
        {"diff", "FILE", "prints the norms of the difference to a second image, also relative to it", diff,
         "Relative to an image of zeros: inf, or nan where both are.", true},
        {"alpha", "FILE", "takes alpha from a second image, which is read as gray", alpha},
        {"premultiply", "[ALPHA]", "multiplies the colours by alpha / 255: that of the pixel, or ALPHA (0 to 255)",
         premultiply, "With ALPHA, an image that has an alpha channel gets ALPHA there."},
    });

}  // namespace
}  // namespace rnximg
