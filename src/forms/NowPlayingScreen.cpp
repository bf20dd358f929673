#include "forms/NowPlayingScreen.h"

namespace sonotik {

using namespace design;

NowPlayingScreen::NowPlayingScreen(Panel& screen) : panel(screen) {
  // Cover and video share the left; whichever shows, the names stand beside it.
  AddPicture(panel, cover_frame, {151, 26, 538, 538}, PictureFit::kStretch);
  AddPicture(panel, cover, {155, 30, 530, 530});
  AddLabel(panel, title, {836, 40, 420, 64}, 24, kText, Align::kLeft, true);
  AddLabel(panel, artist, {836, 108, 420, 44}, 18, kAmber);
  AddLabel(panel, length, {836, 156, 420, 36}, 15, kMuted);

  AddLabel(panel, rating_caption, {836, 212, 160, 40}, 13, kMuted);
  rating_caption.SetCaption("Current Rating:");
  panel.Add(rating, {836, 256, 220, 88});
  rating.SetStretch(2);
  AddButton(panel, rating_up, {1076, 256, 84, 88}, "+", 20);
  AddButton(panel, rating_down, {1172, 256, 84, 88}, "-", 20);
  for (Control* item : {static_cast<Control*>(&rating), static_cast<Control*>(&rating_caption),
                        static_cast<Control*>(&rating_up), static_cast<Control*>(&rating_down)}) {
    item->SetVisible(false);
  }
  AddPanel(panel, next_song, {836, 400, 420, 160}, kRaised);
  AddLabel(next_song, next_song_caption, {160, 14, 244, 30}, 13, kMuted);
  next_song_caption.SetCaption("Next Song:");
  AddPicture(next_song, next_song_cover, {16, 16, 128, 128});
  AddLabel(next_song, next_song_title, {160, 50, 248, 40}, 15, kText, Align::kLeft, true);
  AddLabel(next_song, next_song_artist, {160, 94, 248, 34}, 13, kAmber);
  next_song.SetVisible(false);

  panel.Add(video, {40, 30, 760, 530});
  video.SetVisible(false);
  AddButton(panel, full_screen, {40, 570, 220, 60}, "FULLSCREEN", 14);
  full_screen.SetVisible(false);
}

}  // namespace sonotik
