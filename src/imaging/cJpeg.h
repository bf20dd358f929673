// A JPEG encoder: baseline sequential, the standard's Huffman tables, JFIF 1.02.
#ifndef SONOTIK_IMAGING_CJPEG_H_
#define SONOTIK_IMAGING_CJPEG_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "imaging/jpeg_sampling.h"
#include "imaging/jpeg_tables.h"
#include "imaging/pixel_view.h"

namespace sonotik {

// Quality and sampling count for the pictures that are sampled after they are set; a new encoder
// has quality 75 and halves the colours in both directions.
class cJpeg {
 public:
  int32_t Quality() const { return quality_; }
  // What isn't from 1 to 100 changes nothing; that is meant.
  void SetQuality(int32_t quality);
  // How finely Y, Cb and Cr are sampled, each against the finest. Throws RuntimeFailure("Invalid
  // Sampling Value") unless all are from 1 to 4.
  void SetSamplingFrequencies(int h1, int v1, int h2, int v2, int h3, int v3);

  // Samples, transforms and quantises a part of what is drawn somewhere; what lies beyond it is
  // black. False, and no picture, if there is nothing or if it has a side above 65,535 or more than
  // 67 million pixels.
  bool SampleHDC(const PixelView& dc, int width, int height, int x = 0, int y = 0);

  const std::string& Comment() const { return comment_; }
  // Throws RuntimeFailure("Illegal Comment Length") above 65,535 characters. A file has room for
  // 65,533 of them and is written with those.
  void SetComment(std::string comment);

  // The sampled picture as a file. Throws RuntimeFailure if there is none.
  std::string FileBytes() const;
  // Puts it in the place of any file of that name. Throws RuntimeFailure.
  void SaveFile(const std::string& path) const;

 private:
  struct Sampling {
    size_t across = 1;
    size_t down = 1;
  };
  struct Component {
    Sampling sampling;
    size_t tables = 0;  // 0 luminance, 1 chrominance
    size_t height = 0;  // in samples
    // Only blocks in which the picture has a part, each in zigzag order.
    size_t blocks_wide = 0;
    size_t blocks_high = 0;
    std::vector<int16_t> coefficients;
  };
  // A sampled picture, with the tables by which it was quantised.
  struct Picture {
    size_t width = 0;
    size_t height = 0;
    Sampling most;
    std::array<Component, kComponents> components;
    std::vector<QuantizationTable> quantization;
  };

  static void TransformStrip(const ColorStrip& strip, size_t number, Picture& picture);
  static void WriteScan(const Picture& picture, size_t first, size_t count, std::string& out);

  int32_t quality_ = 75;
  std::array<Sampling, kComponents> sampling_ = {{{2, 2}, {1, 1}, {1, 1}}};
  std::string comment_;
  Picture picture_;
};

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_CJPEG_H_
