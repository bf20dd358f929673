#include "forms/Form2.h"

namespace sonotik {

using namespace design;

Form2::Form2() {
  forum.SetPlace({0, 0, 480, 160});
  forum.SetBackColor(kNight);
  AddPicture(forum, forum_picture, {0, 0, 480, 160});
  AddPicture(forum, forum_cover, {16, 16, 128, 128});
  AddLabel(forum, forum_title, {160, 24, 304, 40}, 16, kAmber, Align::kLeft, true);
  AddLabel(forum, forum_artist, {160, 68, 304, 32}, 14);
  AddLabel(forum, forum_album, {160, 104, 304, 28}, 11, kMuted);
}

}  // namespace sonotik
