#include "operations.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "files.h"

namespace rnximg {
namespace {

// Filled before main by the families' constructors, in an order that the linker chooses.
std::vector<const Family*>& registry() {
  static std::vector<const Family*> all;
  return all;
}

// The whole word as a number; false when it is anything else.
template <class N>
bool parse(const std::string& word, N& number) {
  const char* first = word.c_str();
  const char* end = first + word.size();
  if (word.size() > 1 && *first == '+' && first[1] != '-') ++first;
  const auto [stop, error] = std::from_chars(first, end, number);
  return error == std::errc() && stop == end;
}

std::string toText(double v) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", v);
  return text;
}

template <class N>
N parseWithin(const char* what, const std::string& word, N low, N high, const char* kind) {
  N value = {};
  if (parse(word, value) && value >= low && value <= high) return value;
  failUsage(std::string(what) + " must be " + kind + " from " + toText(double(low)) + " to " + toText(double(high)) +
            ", not '" + word + "'");
}

}  // namespace

void check(RnxStatus status) {
  if (status < 0) failFile("the library refused the image with status " + std::to_string(status));
  if (status == rnxStatusWarningDivByZero) std::fputs("rnximg: warning: a divisor is 0\n", stderr);
}

Settings& settings() {
  static Settings all;
  return all;
}

// ---- Arguments ----

const std::string& Arguments::word(const char* what) {
  if (!more()) failUsage(std::string(what) + " is missing");
  return words_[next_++];
}

int Arguments::integer(const char* what, int low, int high) {
  return parseWithin(what, word(what), low, high, "an integer");
}

double Arguments::number(const char* what, double low, double high) {
  return parseWithin(what, word(what), low, high, "a number");
}

std::string Arguments::choice(const char* what, std::initializer_list<std::string_view> allowed) {
  const std::string& given = word(what);
  if (std::find(allowed.begin(), allowed.end(), given) != allowed.end()) return given;
  std::string list;
  for (const std::string_view a : allowed) (list += list.empty() ? "" : ", ") += a;
  failUsage(std::string(what) + " must be one of " + list + ", not '" + given + "'");
}

std::array<double, 3> Arguments::perColor(const char* what, double low, double high, const Image& image) {
  std::array<double, 3> values = {};
  values.fill(number(what, low, high));
  if (!more()) return values;
  if (image.channels() == 1) failUsage("the image is gray: one " + std::string(what) + " is enough");
  for (size_t i = 1; i < values.size(); ++i) values[i] = number(what, low, high);
  return values;
}

std::array<Rnx8u, 3> Arguments::levels(const char* what, const Image& image) {
  const size_t first = next_;
  const auto values = perColor(what, 0, 255, image);
  for (size_t i = first; i < next_; ++i) parseWithin(what, words_[i], 0, 255, "an integer");
  return {static_cast<Rnx8u>(values[0]), static_cast<Rnx8u>(values[1]), static_cast<Rnx8u>(values[2])};
}

std::array<Rnx8u, 3> Arguments::color(const char* what, const Image& image) {
  const std::string& all = word(what);
  std::vector<std::string> parts(1);
  for (const char c : all) {
    if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  if (parts.size() != 1 && parts.size() != 3)
    failUsage(std::string(what) + " must be one integer or R,G,B: '" + all + "'");
  if (parts.size() == 3 && image.channels() == 1)
    failUsage("the image is gray: one " + std::string(what) + " is enough");
  return Arguments(std::move(parts)).levels(what, image);
}

Image Arguments::image(const char* what, const Image& image) { return readImage(word(what), image.channels()); }

Image Arguments::sameSizeImage(const char* what, const Image& image, int channels) {
  const std::string& path = word(what);
  Image other = readImage(path, channels != 0 ? channels : image.channels());
  if (other.size().width != image.size().width || other.size().height != image.size().height) {
    failFile(path + " has " + rnximg::toText(other.size()) + " pixels, the image " + rnximg::toText(image.size()) +
             ": both must have the same size");
  }
  return other;
}

void Arguments::finish() const {
  if (more()) failUsage("one word too many: '" + words_[next_] + "' (operations are separated by --)");
}

// ---- Families ----

Family::Family(std::string_view t, std::vector<Operation> o) : title(t), operations(std::move(o)) {
  registry().push_back(this);
}

std::vector<const Family*> families() {
  std::vector<const Family*> sorted = registry();
  std::sort(sorted.begin(), sorted.end(), [](const Family* a, const Family* b) { return a->title < b->title; });
  return sorted;
}

const Operation& findOperation(std::string_view word) {
  for (const Family* family : registry()) {
    for (const Operation& operation : family->operations) {
      if (operation.word == word) return operation;
    }
  }
  failUsage("unknown operation '" + std::string(word) + "' (rnximg --help lists them)");
}

}  // namespace rnximg
