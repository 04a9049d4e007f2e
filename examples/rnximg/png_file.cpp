// PNG by libpng. Its errors leave by longjmp: everything that runs under guarded() is C-style, without destructors,
// and the images live in the functions around it.
#include <png.h>

#include <csetjmp>
#include <cstddef>

#include "files.h"

namespace rnximg {
namespace {

struct Session {
  std::FILE* file;
  int channels;
  RnxiSize size = {};
  Rnx8u* pixels = nullptr;
  int step = 0;
  png_structp png = nullptr;
  png_infop info = nullptr;
  char reason[128] = "";
};

[[noreturn]] void onError(png_structp png, png_const_charp message) {
  auto* s = static_cast<Session*>(png_get_error_ptr(png));
  std::snprintf(s->reason, sizeof s->reason, "%s", message);
  png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) {}

bool guarded(Session* s, void (*work)(Session*)) {
  if (s->png == nullptr || s->info == nullptr) return false;
  if (setjmp(png_jmpbuf(s->png))) return false;
  work(s);
  return true;
}

png_bytep row(const Session* s, int y) { return s->pixels + static_cast<std::ptrdiff_t>(y) * s->step; }

// Reads the header and has libpng deliver 8 bits of gray, RGB, or RGB and alpha.
void readHeader(Session* s) {
  png_init_io(s->png, s->file);
  png_read_info(s->png, s->info);
  s->size = {static_cast<int32_t>(png_get_image_width(s->png, s->info)),
             static_cast<int32_t>(png_get_image_height(s->png, s->info))};
  const int type = png_get_color_type(s->png, s->info);
  const bool color = (type & PNG_COLOR_MASK_COLOR) != 0;
  const bool alpha = (type & PNG_COLOR_MASK_ALPHA) != 0 || png_get_valid(s->png, s->info, PNG_INFO_tRNS) != 0;
  if (s->channels == kAsInFile) s->channels = alpha ? 4 : color ? 3 : 1;

  png_set_scale_16(s->png);
  png_set_expand(s->png);
  if (s->channels == 1 && color) png_set_rgb_to_gray(s->png, PNG_ERROR_ACTION_NONE, -1, -1);
  if (s->channels != 1 && !color) png_set_gray_to_rgb(s->png);
  if (s->channels != 4 && alpha) png_set_strip_alpha(s->png);
  if (s->channels == 4 && !alpha) png_set_add_alpha(s->png, 0xff, PNG_FILLER_AFTER);
}

void readPixels(Session* s) {
  const int passes = png_set_interlace_handling(s->png);
  png_read_update_info(s->png, s->info);
  if (png_get_rowbytes(s->png, s->info) != static_cast<size_t>(s->size.width) * static_cast<size_t>(s->channels)) {
    png_error(s->png, "unexpected pixel format");
  }
  for (int pass = 0; pass < passes; ++pass) {
    for (int y = 0; y < s->size.height; ++y) png_read_row(s->png, row(s, y), nullptr);
  }
  png_read_end(s->png, nullptr);
}

void writeAll(Session* s) {
  const int type = s->channels == 1 ? PNG_COLOR_TYPE_GRAY : s->channels == 3 ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGBA;
  png_init_io(s->png, s->file);
  png_set_IHDR(s->png, s->info, static_cast<png_uint_32>(s->size.width), static_cast<png_uint_32>(s->size.height), 8,
               type, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(s->png, s->info);
  for (int y = 0; y < s->size.height; ++y) png_write_row(s->png, row(s, y));
  png_write_end(s->png, s->info);
}

struct Reader : Session {
  Reader(std::FILE* f, int wanted) : Session{f, wanted} {
    png = png_create_read_struct(PNG_LIBPNG_VER_STRING, static_cast<Session*>(this), onError, onWarning);
    if (png != nullptr) info = png_create_info_struct(png);
  }
  Reader(const Reader&) = delete;
  ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
};

struct Writer : Session {
  explicit Writer(std::FILE* f) : Session{f, 0} {
    png = png_create_write_struct(PNG_LIBPNG_VER_STRING, static_cast<Session*>(this), onError, onWarning);
    if (png != nullptr) info = png_create_info_struct(png);
  }
  Writer(const Writer&) = delete;
  ~Writer() { png_destroy_write_struct(&png, &info); }
};

}  // namespace

Image readPng(std::FILE* file, int channels) {
  Reader reader(file, channels);
  if (!guarded(&reader, readHeader)) failFile(std::string("damaged PNG: ") + reader.reason);
  Image image(reader.size, reader.channels);
  reader.pixels = image.data();
  reader.step = image.step();
  if (!guarded(&reader, readPixels)) failFile(std::string("damaged PNG: ") + reader.reason);
  return image;
}

void writePng(std::FILE* file, const Image& image) {
  Writer writer(file);
  writer.size = image.size();
  writer.channels = image.channels();
  writer.pixels = const_cast<Rnx8u*>(image.data());  // only read
  writer.step = image.step();
  if (!guarded(&writer, writeAll)) failFile(std::string("cannot write the PNG: ") + writer.reason);
}

}  // namespace rnximg
