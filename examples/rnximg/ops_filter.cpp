// Linear filters: any kernel, and some that have names.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>
#include <vector>

#include "operations.h"

namespace rnximg {
namespace {

struct Kernel {
  std::vector<float> coefficients;
  RnxiSize size = {0, 0};
};

struct Mode {
  double divisor = 0;  // 0: the sum of the coefficients, or 1 where that is not above 0
  int offset = 0;
  int rounding = rnxRoundNearestEven;
  RnxiBorderType border = rnxBorderRepl;
  Rnx8u outside = 0;
};

// ---- Kernels from words and files ----

// "1 2 1" or "1,2,1" as a row. False where something else stands there.
bool addRow(std::string line, Kernel& kernel) {
  std::replace(line.begin(), line.end(), ',', ' ');
  std::istringstream words(line);
  int width = 0;
  for (float c = 0; words >> c; ++width) kernel.coefficients.push_back(c);
  if (!words.eof()) return false;
  if (width == 0) return true;
  if (kernel.size.height > 0 && width != kernel.size.width) failUsage("KERNEL has rows of different lengths");
  kernel.size = {width, kernel.size.height + 1};
  return true;
}

Kernel readKernel(std::istream& rows, char separator, const std::string& name) {
  Kernel kernel;
  for (std::string line; std::getline(rows, line, separator);) {
    if (!addRow(line, kernel)) failUsage("KERNEL " + name + ": '" + line + "' is not a row of numbers");
  }
  if (kernel.size.height == 0) failUsage("KERNEL " + name + " is empty");
  return kernel;
}

Kernel takeKernel(Arguments& arguments) {
  const std::string word = arguments.text("KERNEL");
  const bool isInline = word.find_first_not_of("0123456789.,/+-eE ") == std::string::npos;
  if (isInline) {
    std::istringstream rows(word);
    return readKernel(rows, '/', word);
  }
  std::ifstream file(word);
  if (!file) failFile("cannot read " + word);
  return readKernel(file, '\n', word);
}

// ---- Running a filter ----

bool isInteger(double v) { return v == std::rint(v) && std::fabs(v) <= 32767; }

// The memory of a spec and of a work buffer.
struct Blocks {
  Blocks(const Kernel& kernel, const Image& image, int kernelType) {
    int specBytes = 0, bufferBytes = 0;
    check(rnxiFilterBorderGetSize(kernel.size, image.size(), rnx8u, kernelType, image.channels(), &specBytes,
                                  &bufferBytes));
    specMemory.resize(static_cast<size_t>(specBytes));
    buffer.resize(static_cast<size_t>(bufferBytes));
  }
  RnxiFilterBorderSpec* spec() { return reinterpret_cast<RnxiFilterBorderSpec*>(specMemory.data()); }

  std::vector<Rnx8u> specMemory, buffer;
};

// A kernel of integers is summed exactly; any other one, in floats, takes the divisor into its coefficients.
Blocks prepare(const Kernel& kernel, const Mode& mode, double divisor, const Image& image) {
  const auto& floats = kernel.coefficients;
  const bool integers = isInteger(divisor) && std::all_of(floats.begin(), floats.end(), isInteger);
  Blocks blocks(kernel, image, integers ? rnx16s : rnx32f);
  if (integers) {
    const std::vector<Rnx16s> coefficients(floats.begin(), floats.end());
    check(rnxiFilterBorderInit_16s(coefficients.data(), kernel.size, static_cast<int>(divisor), rnx8u, image.channels(),
                                   mode.rounding, blocks.spec()));
  } else {
    std::vector<float> coefficients;
    for (const float c : floats) coefficients.push_back(static_cast<float>(c / divisor));
    check(rnxiFilterBorderInit_32f(coefficients.data(), kernel.size, rnx8u, image.channels(), mode.rounding,
                                   blocks.spec()));
  }
  check(rnxiFilterBorderSetMode(rnxAlgHintNone, mode.offset, blocks.spec()));
  return blocks;
}

// Alpha stays as it is.
void run(const Kernel& kernel, const Mode& mode, Image& image) {
  double sum = 0;
  for (const float c : kernel.coefficients) sum += static_cast<double>(c);
  Blocks blocks = prepare(kernel, mode, mode.divisor != 0 ? mode.divisor : sum > 0 ? sum : 1, image);
  const Rnx8u outside[4] = {mode.outside, mode.outside, mode.outside, mode.outside};
  Image result(image.size(), image.channels());
  const auto filter = byChannels(image, rnxiFilterBorder_8u_C1R, rnxiFilterBorder_8u_C3R, rnxiFilterBorder_8u_C4R);
  check(filter(image.data(), image.step(), result.data(), result.step(), image.size(), mode.border, outside,
               blocks.spec(), blocks.buffer.data()));
  if (image.channels() == 4) {
    check(rnxiCopy_8u_AC4R(result.data(), result.step(), image.data(), image.step(), image.size()));
  } else {
    image = std::move(result);
  }
}

// ---- Operations ----

void takeBorder(Arguments& arguments, Mode& mode) {
  const std::string border = arguments.choice("BORDER", {"replicate", "mirror", "black", "white"});
  mode.border = border == "replicate" ? rnxBorderRepl : border == "mirror" ? rnxBorderMirror : rnxBorderConst;
  mode.outside = border == "white" ? 255 : 0;
}

void filter(Image& image, Arguments& arguments) {
  const Kernel kernel = takeKernel(arguments);
  Mode mode;
  while (arguments.more()) {
    const std::string option = arguments.choice("OPTION", {"divisor", "offset", "round", "border"});
    if (option == "divisor") {
      mode.divisor = arguments.number("DIVISOR", -1e9, 1e9);
      if (mode.divisor == 0) failUsage("DIVISOR must not be 0");
    } else if (option == "offset") {
      mode.offset = arguments.integer("OFFSET", -255, 255);
    } else if (option == "round") {
      const std::string rounding = arguments.choice("ROUNDING", {"zero", "even", "away"});
      mode.rounding = rounding == "zero" ? rnxRoundZero : rounding == "even" ? rnxRoundNearestEven : rnxRoundHalfAway;
    } else {
      takeBorder(arguments, mode);
    }
  }
  run(kernel, mode, image);
}

// Binomial weights: the row and the column of them multiplied.
void blur(Image& image, Arguments& arguments) {
  const int radius = arguments.more() ? arguments.integer("RADIUS", 1, 4) : 2;
  std::vector<float> row = {1};
  for (int n = 0; n < 2 * radius; ++n) {
    row.push_back(0);
    for (size_t i = row.size() - 1; i > 0; --i) row[i] += row[i - 1];
  }
  Kernel kernel;
  for (const float down : row) {
    for (const float across : row) kernel.coefficients.push_back(down * across);
  }
  kernel.size = {2 * radius + 1, 2 * radius + 1};
  run(kernel, {}, image);
}

void sharpen(Image& image, Arguments&) { run({{0, -1, 0, -1, 5, -1, 0, -1, 0}, {3, 3}}, {}, image); }

void edges(Image& image, Arguments&) { run({{-1, -1, -1, -1, 8, -1, -1, -1, -1}, {3, 3}}, {}, image); }

// Light from the top left on mid-grey. The filter is a convolution: it turns the kernel by half a turn.
void emboss(Image& image, Arguments&) {
  Mode mode;
  mode.offset = 128;
  run({{2, 1, 0, 1, 0, -1, 0, -1, -2}, {3, 3}}, mode, image);
}

const Family kFamily(
    "Filters",
    {
        {"filter", "KERNEL [OPTION VALUE]...", "convolves with a kernel, e.g. \"1,2,1/2,4,2/1,2,1\"", filter,
         "KERNEL: rows separated by '/', numbers by ','; or a text file of rows of numbers.\n"
         "divisor NUMBER   of every sum; else the sum of the numbers, or 1 where that is not above 0\n"
         "offset NUMBER    -255 to 255, added to every result\n"
         "round WORD       zero, even or away: toward zero, or to nearest with ties to even or away from zero; even\n"
         "border WORD      replicate, mirror, black or white: what lies outside the picture; replicate\n"
         "Kernels of integers are summed exactly. Alpha stays as it is."},
        {"blur", "[RADIUS]", "binomial blur over 2 * RADIUS + 1 pixels, RADIUS 1 to 4; 2", blur},
        {"sharpen", "", "strengthens differences to the four neighbours", sharpen},
        {"edges", "", "differences to the eight neighbours", edges},
        {"emboss", "", "slopes as light and shadow on mid-grey", emboss},
    });

}  // namespace
}  // namespace rnximg
