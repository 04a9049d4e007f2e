// JPEG by libjpeg. Its errors leave by longjmp: everything that runs under guarded() is C-style, without destructors,
// and the images live in the functions around it.
#include <csetjmp>
#include <cstddef>
#include <cstdio>

#include <jpeglib.h>

#include <jerror.h>

#include "files.h"

namespace rnximg {
namespace {

struct Codec {
  std::FILE* file;
  int channels;
  RnxiSize size = {};
  Rnx8u* pixels = nullptr;
  int step = 0;
  jpeg_error_mgr errors = {};
  std::jmp_buf jump = {};
  char reason[JMSG_LENGTH_MAX] = "";
};

[[noreturn]] void onError(j_common_ptr info) {
  auto* s = static_cast<Codec*>(info->client_data);
  s->errors.format_message(info, s->reason);
  std::longjmp(s->jump, 1);
}

// Level -1 is corrupt data, which libjpeg would paint over. What camera software gets wrong without harm to the
// pixels passes.
void onMessage(j_common_ptr info, int level) {
  const int code = info->err->msg_code;
  if (level < 0 && code != JWRN_EXTRANEOUS_DATA && code != JWRN_ADOBE_XFORM && code != JWRN_JFIF_MAJOR) onError(info);
}

void onOutput(j_common_ptr) {}

jpeg_error_mgr* prepare(jpeg_error_mgr* errors) {
  jpeg_std_error(errors);
  errors->error_exit = onError;
  errors->emit_message = onMessage;
  errors->output_message = onOutput;
  return errors;
}

template <class S>
bool guarded(S* s, void (*work)(S*)) {
  if (setjmp(s->jump)) return false;
  work(s);
  return true;
}

JSAMPROW row(const Codec* s, unsigned y) { return s->pixels + static_cast<std::ptrdiff_t>(y) * s->step; }

J_COLOR_SPACE colorSpace(int channels, J_COLOR_SPACE fourChannels) {
  return channels == 1 ? JCS_GRAYSCALE : channels == 3 ? JCS_RGB : fourChannels;
}

struct Reader : Codec {
  Reader(std::FILE* f, int wanted) : Codec{f, wanted} {
    info.err = prepare(&errors);
    info.client_data = static_cast<Codec*>(this);
  }
  Reader(const Reader&) = delete;
  ~Reader() { jpeg_destroy_decompress(&info); }

  jpeg_decompress_struct info = {};
};

void readHeader(Reader* s) {
  jpeg_create_decompress(&s->info);  // keeps err and client_data
  jpeg_stdio_src(&s->info, s->file);
  jpeg_read_header(&s->info, TRUE);
  if (s->info.num_components != 1 && s->info.num_components != 3) {
    ERREXIT(&s->info, JERR_CONVERSION_NOTIMPL);  // CMYK
  }
  if (s->channels == kAsInFile) s->channels = s->info.num_components;
  s->size = {static_cast<int32_t>(s->info.image_width), static_cast<int32_t>(s->info.image_height)};
  s->info.out_color_space = colorSpace(s->channels, JCS_EXT_RGBA);
}

void readPixels(Reader* s) {
  jpeg_start_decompress(&s->info);
  while (s->info.output_scanline < s->info.output_height) {
    JSAMPROW next = row(s, s->info.output_scanline);
    jpeg_read_scanlines(&s->info, &next, 1);
  }
  jpeg_finish_decompress(&s->info);
}

struct Writer : Codec {
  Writer(std::FILE* f, int q) : Codec{f, 0}, quality(q) {
    info.err = prepare(&errors);
    info.client_data = static_cast<Codec*>(this);
  }
  Writer(const Writer&) = delete;
  ~Writer() { jpeg_destroy_compress(&info); }

  jpeg_compress_struct info = {};
  int quality;
};

void writeAll(Writer* s) {
  jpeg_create_compress(&s->info);
  jpeg_stdio_dest(&s->info, s->file);
  s->info.image_width = static_cast<JDIMENSION>(s->size.width);
  s->info.image_height = static_cast<JDIMENSION>(s->size.height);
  s->info.input_components = s->channels;
  s->info.in_color_space = colorSpace(s->channels, JCS_EXT_RGBX);
  jpeg_set_defaults(&s->info);
  jpeg_set_quality(&s->info, s->quality, TRUE);
  s->info.optimize_coding = TRUE;
  jpeg_start_compress(&s->info, TRUE);
  while (s->info.next_scanline < s->info.image_height) {
    JSAMPROW next = row(s, s->info.next_scanline);
    jpeg_write_scanlines(&s->info, &next, 1);
  }
  jpeg_finish_compress(&s->info);
}

}  // namespace

Image readJpeg(std::FILE* file, int channels) {
  Reader reader(file, channels);
  if (!guarded(&reader, readHeader)) failFile(std::string("damaged or unsupported JPEG: ") + reader.reason);
  Image image(reader.size, reader.channels);
  reader.pixels = image.data();
  reader.step = image.step();
  if (!guarded(&reader, readPixels)) failFile(std::string("damaged JPEG: ") + reader.reason);
  return image;
}

void writeJpeg(std::FILE* file, const Image& image, int quality) {
  Writer writer(file, quality);
  writer.size = image.size();
  writer.channels = image.channels();
  writer.pixels = const_cast<Rnx8u*>(image.data());  // only read
  writer.step = image.step();
  if (!guarded(&writer, writeAll)) failFile(std::string("cannot write the JPEG: ") + writer.reason);
}

}  // namespace rnximg
