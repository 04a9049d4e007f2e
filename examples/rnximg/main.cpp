// rnximg: runs a chain of library operations on a picture.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <optional>

#include "files.h"
#include "operations.h"

namespace rnximg {
namespace {

constexpr char kUsage[] =
    "usage: rnximg INPUT -o OUTPUT [--quality N] [--threads N] [OPERATION ARGUMENT... [-- OPERATION ARGUMENT...]...]\n"
    "       rnximg --help [OPERATION]\n"
    "       rnximg --version\n";

constexpr char kNotes[] =
    "\n"
    "Reads a PNG or JPEG picture, runs the operations from left to right and writes OUTPUT, whose name ends in .png,\n"
    ".jpg or .jpeg. Operations are separated by --. Pictures are worked on with 8 bits per channel: gray, RGB, or RGB\n"
    "with alpha, which the operations leave as it is and JPEG drops. Results saturate at 0 and 255. A second image\n"
    "(FILE) has the size of the first one; its channels are converted when it is read.\n"
    "\n"
    "  -o OUTPUT     where to write; nothing is written unless everything went well. Not needed after operations that\n"
    "                only print figures, such as stats\n"
    "  --quality N   of JPEG, 1 to 100; 92 if not given\n"
    "  --threads N   for operations that can share their work, 1 to 64; 1 if not given\n"
    "\n"
    "Exit status: 0 done, 1 a file or image cannot be used, 2 the command line is wrong.\n"
    "\n"
    "Example: rnximg in.jpg -o out.png brightness 20 -- mulc 1.2 1 0.9 -- blend other.png 0.25\n";

struct Step {
  const Operation* operation;
  std::vector<std::string> words;
};

struct Command {
  std::string input, output;
  int quality = 92;
  std::vector<Step> steps;
};

template <class Work>
auto naming(std::string_view word, Work work) {
  try {
    return work();
  } catch (Failure& failure) {
    failure.message = std::string(word) + ": " + failure.message;
    throw;
  }
}

// Whether there is nothing to write: all operations only print figures.
bool onlyReports(const Command& command) {
  const auto reports = [](const Step& step) { return step.operation->onlyReports; };
  return !command.steps.empty() && std::all_of(command.steps.begin(), command.steps.end(), reports);
}

Command parse(const std::vector<std::string>& words) {
  Command command;
  bool inStep = false;  // whether further words belong to the last step
  for (size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "-o" || word == "--quality" || word == "--threads") {
      if (++i == words.size()) failUsage(word + " must be followed by its value");
      if (word == "-o") {
        command.output = words[i];
      } else if (word == "--threads") {
        settings().threads = naming(word, [&] { return Arguments({words[i]}).integer("N", 1, 64); });
      } else {
        command.quality = naming(word, [&] { return Arguments({words[i]}).integer("N", 1, 100); });
      }
    } else if (word == "--") {
      if (!inStep) failUsage("an operation must stand on both sides of --");
      inStep = false;
    } else if (inStep) {
      command.steps.back().words.push_back(word);
    } else if (word.starts_with("-")) {
      failUsage("unknown option '" + word + "'");
    } else if (command.input.empty()) {
      command.input = word;
    } else {
      command.steps.push_back({&findOperation(word), {}});
      inStep = true;
    }
  }
  if (!command.steps.empty() && !inStep) failUsage("an operation must stand on both sides of --");
  if (command.input.empty()) failUsage("no INPUT is given (see rnximg --help)");
  if (!command.output.empty()) {
    checkOutputName(command.output);
  } else if (!onlyReports(command)) {
    failUsage("no output is given: -o OUTPUT");
  }
  return command;
}

void run(const Command& command) {
  Image image = readImage(command.input);
  for (const Step& step : command.steps) {
    naming(step.operation->word, [&] {
      Arguments arguments(step.words);
      step.operation->apply(image, arguments);
      arguments.finish();
    });
  }
  if (!command.output.empty()) writeImage(image, command.output, command.quality);
}

std::string synopsis(const Operation& operation) {
  return std::string(operation.word) + (operation.arguments.empty() ? "" : " ") + std::string(operation.arguments);
}

void printHelp() {
  std::printf("rnximg: runs a chain of operations on a picture\n\n%s%s", kUsage, kNotes);
  for (const Family* family : families()) {
    std::printf("\n%.*s\n", int(family->title.size()), family->title.data());
    for (const Operation& operation : family->operations) {
      std::printf("  %-24s %.*s\n", synopsis(operation).c_str(), int(operation.brief.size()), operation.brief.data());
    }
  }
}

void printHelp(const Operation& operation) {
  std::printf("usage: rnximg INPUT %s %s\n\n%.*s\n", operation.onlyReports ? "[-o OUTPUT]" : "-o OUTPUT",
              synopsis(operation).c_str(), int(operation.brief.size()), operation.brief.data());
  if (!operation.details.empty()) std::printf("%.*s\n", int(operation.details.size()), operation.details.data());
}

void main(const std::vector<std::string>& words) {
  if (words.empty()) failUsage("no INPUT is given (see rnximg --help)");
  if (words[0] == "--help" || words[0] == "-h") {
    if (words.size() > 1) {
      printHelp(findOperation(words[1]));
    } else {
      printHelp();
    }
  } else if (words[0] == "--version") {
    const RnxLibraryVersion* version = rnxiGetLibVersion();
    std::printf("rnximg with %s %s\n", version->Name, version->Version);
  } else {
    run(parse(words));
  }
}

}  // namespace
}  // namespace rnximg

int main(int argc, char** argv) {
  try {
    rnximg::main({argv + 1, argv + (argc > 0 ? argc : 1)});
    return rnximg::kDone;
  } catch (const rnximg::Failure& failure) {
    std::fprintf(stderr, "rnximg: %s\n", failure.message.c_str());
    return failure.status;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "rnximg: %s\n", error.what());
    return rnximg::kFileFailure;
  }
}
