// The window of the second monitor: the video for the room, and over it what was added and what is
// told of the song.
#ifndef SONOTIK_FORMS_FORM3_H_
#define SONOTIK_FORMS_FORM3_H_

#include "forms/design.h"

namespace sonotik {

struct Form3 {
  Form3();

  Form form;
  Panel facts;
  Panel facts_inner;  // the mark at the right end of the facts
  Label fact;
  Panel ticker;
  Label ticker_caption;
  VideoBox video;      // shows while it has a picture
  PictureBox picture;  // behind the video

  // Takes the monitor's size in pixels; letters and bars grow with its height.
  void Resize(int width, int height);

 private:
  void LayOut();
};

}  // namespace sonotik

#endif  // SONOTIK_FORMS_FORM3_H_
