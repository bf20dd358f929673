#include "imaging/form_image.h"

#include "files/files.h"
#include "files/runtime_failure.h"
#include "imaging/bmp_file.h"
#include "imaging/cImage.h"
#include "imaging/cJpeg.h"

namespace sonotik {

std::string form_image(const PixelView& drawn, const std::string& folder) {
  std::string name = folder + "\\forum.jpg";
  cImage image;
  if (!image.CopyHDC(drawn, drawn.width, drawn.height, 24)) {
    throw RuntimeFailure("nothing is drawn for " + name);
  }
  ReplaceFile(folder + "\\forum.bmp", BmpFile(image));
  DeleteFileIfThere(name);
  cJpeg jpeg;
  jpeg.SetQuality(75);
  jpeg.SetSamplingFrequencies(2, 2, 1, 1, 1, 1);
  jpeg.SampleHDC(image.hDC(), image.Width(), image.Height());
  jpeg.SaveFile(name);
  return name;
}

}  // namespace sonotik
