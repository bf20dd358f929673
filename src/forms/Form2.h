// The form that is never shown: controls that serve as working buffers.
#ifndef SONOTIK_FORMS_FORM2_H_
#define SONOTIK_FORMS_FORM2_H_

#include <array>
#include <string>

#include "forms/design.h"
#include "platform/displays.h"

namespace sonotik {

// A check box that holds one flag of the main window's style.
struct StyleCheck {
  bool value = false;
  bool enabled = true;
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
  std::array<StyleCheck, kStyleFlags> style;  // by StyleFlag
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_FORM2_H_
