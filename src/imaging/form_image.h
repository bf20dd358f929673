// The picture of the track that plays, for programs that show it elsewhere.
#ifndef SONOTIK_IMAGING_FORM_IMAGE_H_
#define SONOTIK_IMAGING_FORM_IMAGE_H_

#include <string>

#include "imaging/pixel_view.h"

namespace sonotik {

// Writes what is drawn on the hidden form as "forum.bmp" and "forum.jpg" into a folder, and gives
// the path of the latter. "forum" is what others look for. Throws RuntimeFailure if nothing is
// drawn or a file can't be written.
std::string form_image(const PixelView& drawn, const std::string& folder);

}  // namespace sonotik

#endif  // SONOTIK_IMAGING_FORM_IMAGE_H_
