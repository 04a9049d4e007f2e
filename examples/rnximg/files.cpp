#include "files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <memory>

namespace rnximg {
namespace {

enum class Format { kPng, kJpeg, kUnknown };

struct Close {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Close>;

Format formatOfName(const std::string& path) {
  std::string ending = std::filesystem::path(path).extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(), [](unsigned char c) { return std::tolower(c); });
  if (ending == ".png") return Format::kPng;
  return ending == ".jpg" || ending == ".jpeg" ? Format::kJpeg : Format::kUnknown;
}

Format formatOfContents(std::FILE* file) {
  unsigned char head[8] = {};
  const size_t n = std::fread(head, 1, sizeof head, file);
  if (std::ferror(file)) failFile(std::strerror(errno));
  if (n == 0) failFile("the file is empty");
  std::rewind(file);
  if (n == sizeof head && std::memcmp(head, "\x89PNG\r\n\x1a\n", sizeof head) == 0) return Format::kPng;
  return n >= 3 && std::memcmp(head, "\xff\xd8\xff", 3) == 0 ? Format::kJpeg : Format::kUnknown;
}

// A new file beside the one to be written, which takes its name on commit() and vanishes otherwise.
class Replacement {
public:
  explicit Replacement(const std::string& path) : path_(target(path)), temporary_(path_ + ".XXXXXX") {
    const int descriptor = mkstemp(temporary_.data());
    if (descriptor < 0) failFile(std::strerror(errno));
    file_.reset(fdopen(descriptor, "wb"));
    const mode_t mask = umask(0);
    umask(mask);
    fchmod(descriptor, 0666 & ~mask);
  }
  ~Replacement() {
    if (!committed_) unlink(temporary_.c_str());
  }

  std::FILE* file() const { return file_.get(); }

  void commit() {
    const bool written = std::fflush(file_.get()) == 0 && !std::ferror(file_.get()) && fsync(fileno(file_.get())) == 0;
    const bool closed = std::fclose(file_.release()) == 0;
    if (!written || !closed || std::rename(temporary_.c_str(), path_.c_str()) != 0) failFile(std::strerror(errno));
    committed_ = true;
  }

private:
  // Through symbolic links, so that renaming keeps them; never in the place of a folder or device.
  static std::string target(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path real = fs::is_symlink(path, error) ? fs::weakly_canonical(path, error) : fs::path(path);
    if (fs::exists(real, error) && !fs::is_regular_file(real, error)) failFile("not a regular file");
    return real.string();
  }

  std::string path_, temporary_;
  File file_;
  bool committed_ = false;
};

template <class Work>
auto naming(const std::string& path, Work work) {
  try {
    return work();
  } catch (Failure& failure) {
    failure.message = path + ": " + failure.message;
    throw;
  }
}

}  // namespace

Image readImage(const std::string& path, int channels) {
  return naming(path, [&] {
    const File file(std::fopen(path.c_str(), "rb"));
    if (!file) failFile(std::strerror(errno));
    switch (formatOfContents(file.get())) {
      case Format::kPng:
        return readPng(file.get(), channels);
      case Format::kJpeg:
        return readJpeg(file.get(), channels);
      case Format::kUnknown:
        break;
    }
    failFile("neither PNG nor JPEG");
  });
}

void checkOutputName(const std::string& path) {
  if (formatOfName(path) == Format::kUnknown) failUsage(path + ": the output's name must end in .png, .jpg or .jpeg");
}

void writeImage(const Image& image, const std::string& path, int quality) {
  checkOutputName(path);
  naming(path, [&] {
    Replacement replacement(path);
    if (formatOfName(path) == Format::kPng) {
      writePng(replacement.file(), image);
    } else {
      writeJpeg(replacement.file(), image, quality);
    }
    replacement.commit();
  });
}

}  // namespace rnximg
