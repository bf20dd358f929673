// The BMP format of Windows 3: BITMAPFILEHEADER, BITMAPINFOHEADER, colours, rows from the bottom
// up.
#ifndef SONOTIK_IMAGING_BMP_FILE_H_
#define SONOTIK_IMAGING_BMP_FILE_H_

#include <string>

#include "imaging/cImage.h"

namespace sonotik {

// An image as a file, in its own depth and uncompressed.
std::string BmpFile(const cImage& image);

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_BMP_FILE_H_
