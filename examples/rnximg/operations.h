// The registry of operations. A family is one file ops_<family>.cpp with a table:
//
//     void invert(Image& image, Arguments& arguments);   // changes the current image or puts another in its place
//
//     const Family kFamily("Logic", {
//         {"invert", "[LEVEL]", "turns light into dark, from LEVEL (255) down", invert},
//     });
//
// Nothing else has to be changed: the build takes every ops_*.cpp, and the help is made from the tables. All work on
// pixels is done by the library; an operation only turns words into the arguments of its functions.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "image.h"

namespace rnximg {

// The words behind an operation, taken one by one. Every way to take one fails with a clear line when the word is
// missing or wrong; `what` names it as in the help.
class Arguments {
public:
  explicit Arguments(std::vector<std::string> words) : words_(std::move(words)) {}

  bool more() const { return next_ < words_.size(); }
  int integer(const char* what, int low, int high);
  double number(const char* what, double low, double high);
  // Any word.
  std::string text(const char* what) { return word(what); }
  // One of the words listed.
  std::string choice(const char* what, std::initializer_list<std::string_view> allowed);
  // All words that are left: one number for all colours, or, unless the image is gray, one for each of R, G and B.
  std::array<double, 3> perColor(const char* what, double low, double high, const Image& image);
  // The same with integers.
  std::array<Rnx8u, 3> levels(const char* what, const Image& image);
  // One word: an integer for all colours, or one for each, separated by commas.
  std::array<Rnx8u, 3> color(const char* what, const Image& image);
  // A picture from a file, in the channels of `image`.
  Image image(const char* what, const Image& image);
  // The same; fails unless it has the size of `image`. With `channels` in these.
  Image sameSizeImage(const char* what, const Image& image, int channels = 0);

  // Fails when words are left.
  void finish() const;

private:
  const std::string& word(const char* what);

  std::vector<std::string> words_;
  size_t next_ = 0;
};

struct Operation {
  std::string_view word;
  std::string_view arguments;  // as shown by the help, e.g. "FILE [WEIGHT]"
  std::string_view brief;      // one line
  void (*apply)(Image& image, Arguments& arguments);
  std::string_view details = {};  // more lines for the operation's own help
  bool onlyReports = false;       // prints figures and leaves the image as it is: no OUTPUT is needed
};

// What the command line says beside the operations.
struct Settings {
  int threads = 1;
};
Settings& settings();

// A named table of operations, known to the program as soon as it exists. Needs a static life.
class Family {
public:
  Family(std::string_view title, std::vector<Operation> operations);
  Family(const Family&) = delete;

  std::string_view title;
  std::vector<Operation> operations;
};

// All families by title.
std::vector<const Family*> families();

// Fails on an unknown word.
const Operation& findOperation(std::string_view word);

}  // namespace rnximg
