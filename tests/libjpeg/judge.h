// What another library makes of a picture and of a JPEG file.
#ifndef SONOTIK_TESTS_LIBJPEG_JUDGE_H_
#define SONOTIK_TESTS_LIBJPEG_JUDGE_H_

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

// Behind cstdio, which it takes for granted.
#include <jpeglib.h>

#include "imaging/cImage.h"

namespace sonotik {

// Across and down for each of the three components.
using Factors = std::array<int, 6>;

// A 24-bit picture by that library's encoder.
inline std::string EncodedByLibjpeg(const cImage& image, int quality, const Factors& factors) {
  jpeg_compress_struct job;
  jpeg_error_mgr errors;
  job.err = jpeg_std_error(&errors);  // which ends the program on an error
  jpeg_create_compress(&job);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;  // NOLINT: the library's type
  jpeg_mem_dest(&job, &bytes, &size);
  job.image_width = static_cast<JDIMENSION>(image.Width());
  job.image_height = static_cast<JDIMENSION>(image.Height());
  job.input_components = 3;
  job.in_color_space = JCS_EXT_BGR;
  jpeg_set_defaults(&job);
  jpeg_set_quality(&job, quality, TRUE);
  int interleaved = 0;
  jpeg_scan_info alone[3];
  for (int i = 0; i < 3; ++i) {
    const auto at = static_cast<size_t>(2 * i);
    job.comp_info[i].h_samp_factor = factors[at];
    job.comp_info[i].v_samp_factor = factors[at + 1];
    interleaved += factors[at] * factors[at + 1];
    alone[i] = {1, {i, 0, 0, 0}, 0, 63, 0, 0};
  }
  if (interleaved > C_MAX_BLOCKS_IN_MCU) {
    job.scan_info = alone;
    job.num_scans = 3;
  }
  jpeg_start_compress(&job, TRUE);
  for (int y = 0; y < image.Height(); ++y) {
    JSAMPROW row = const_cast<JSAMPROW>(image.hDC().Row(y));
    jpeg_write_scanlines(&job, &row, 1);
  }
  jpeg_finish_compress(&job);
  jpeg_destroy_compress(&job);
  const std::string file(reinterpret_cast<const char*>(bytes), size);
  std::free(bytes);
  return file;
}

struct Decoded {
  int width = 0;
  int height = 0;
  long warnings = 0;  // NOLINT: the library's type
  std::vector<uint8_t> bgr;
};

// Without `shown` only the coefficients are read.
inline Decoded DecodedByLibjpeg(const std::string& file, bool shown = true) {
  jpeg_decompress_struct job;
  jpeg_error_mgr errors;
  job.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&job);
  jpeg_mem_src(&job, reinterpret_cast<const unsigned char*>(file.data()), file.size());
  jpeg_read_header(&job, TRUE);
  Decoded made{static_cast<int>(job.image_width), static_cast<int>(job.image_height), 0, {}};
  if (shown) {
    job.out_color_space = JCS_EXT_BGR;
    jpeg_start_decompress(&job);
    const size_t row_bytes = size_t{3} * job.output_width;
    made.bgr.resize(row_bytes * job.output_height);
    while (job.output_scanline < job.output_height) {
      JSAMPROW row = made.bgr.data() + row_bytes * job.output_scanline;
      jpeg_read_scanlines(&job, &row, 1);
    }
  } else {
    jpeg_read_coefficients(&job);
  }
  jpeg_finish_decompress(&job);
  made.warnings = errors.num_warnings;
  jpeg_destroy_decompress(&job);
  return made;
}

}  // namespace sonotik

#endif  // SONOTIK_TESTS_LIBJPEG_JUDGE_H_
