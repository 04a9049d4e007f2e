// Pictures in files: PNG and JPEG.
#pragma once

#include <cstdio>
#include <string>

#include "image.h"

namespace rnximg {

inline constexpr int kAsInFile = 0;

// Reads a PNG or JPEG, told apart by their first bytes. With `channels` of 1, 3 or 4 the decoder converts.
Image readImage(const std::string& path, int channels = kAsInFile);

// Writes a picture in the format that the name's ending stands for, through a temporary file beside it: the name
// holds the old picture or the whole new one. `quality` (1 to 100) is for JPEG, which drops alpha.
void writeImage(const Image& image, const std::string& path, int quality);

// Fails unless the name has an ending that writeImage knows.
void checkOutputName(const std::string& path);

// ---- The two formats. Failures carry the reason without the name of the file. ----

Image readPng(std::FILE* file, int channels);
void writePng(std::FILE* file, const Image& image);

Image readJpeg(std::FILE* file, int channels);
void writeJpeg(std::FILE* file, const Image& image, int quality);

}  // namespace rnximg
