// The form that is never shown: controls that serve as working buffers.
#ifndef SONOTIK_FORMS_FORM2_H_
#define SONOTIK_FORMS_FORM2_H_

#include <string>

#include "forms/design.h"

namespace sonotik {

// The window's style as its check boxes hold it.
struct WindowStyle {
  bool title_bar = true;
  bool sizable = true;
  bool top_most = false;
};

struct Form2 {
  Form2();

  // What is drawn for others when a track starts: its cover and names on New forum.bmp.
  Panel forum;
  PictureBox forum_picture;
  PictureBox forum_cover;
  Label forum_artist;
  Label forum_title;
  Label forum_album;
  std::string forum_file;  // the last one that was written
  WindowStyle style;
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_FORM2_H_
