// The form that is never shown: controls that serve as working buffers.
#ifndef SONOTIK_FORMS_FORM2_H_
#define SONOTIK_FORMS_FORM2_H_

#include "forms/design.h"

namespace sonotik {

// The window's style as its check boxes hold it.
struct WindowStyle {
  bool title_bar = true;
  bool sizable = true;
  bool top_most = false;
};

struct Form2 {
  PictureBox forum_picture;  // New forum.bmp
  // What is drawn on it: the track that plays.
  PictureBox forum_cover;
  Label forum_artist;
  Label forum_title;
  Label forum_album;
  WindowStyle style;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_FORM2_H_
