// How the program fails: one line on the standard error stream and an exit status.
#pragma once

#include <string>
#include <utility>

namespace rnximg {

enum ExitStatus {
  kDone = 0,
  kFileFailure = 1,  // a file or an image
  kUsageFailure = 2  // the command line
};

struct Failure {
  ExitStatus status;
  std::string message;
};

[[noreturn]] inline void failUsage(std::string message) { throw Failure{kUsageFailure, std::move(message)}; }
[[noreturn]] inline void failFile(std::string message) { throw Failure{kFileFailure, std::move(message)}; }

}  // namespace rnximg
