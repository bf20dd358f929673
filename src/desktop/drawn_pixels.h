// Pixels of what no window shows.
#ifndef SONOTIK_DESKTOP_DRAWN_PIXELS_H_
#define SONOTIK_DESKTOP_DRAWN_PIXELS_H_

#include "desktop/picture_cache.h"
#include "widgets/control.h"

namespace sonotik {

// A panel with all that is on it, a pixel for each unit of its size.
PixelSurface DrawnPixels(const Panel& panel, PictureCache& pictures);

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_DRAWN_PIXELS_H_
