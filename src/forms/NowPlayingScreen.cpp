#include "forms/NowPlayingScreen.h"

namespace sonotik {

using namespace design;

NowPlayingScreen::NowPlayingScreen(Panel& screen) : panel(screen) {
  AddPicture(panel, cover_frame, {36, 36, 528, 528}, PictureFit::kStretch);
  AddPicture(panel, cover, {40, 40, 520, 520});
  AddLabel(panel, title, {610, 60, 630, 64}, 26, kText, Align::kLeft, true);
  AddLabel(panel, artist, {610, 128, 630, 48}, 19, kAmber);
  AddLabel(panel, length, {610, 182, 630, 36}, 15, kMuted);

  AddPanel(panel, next_song, {610, 400, 630, 160}, kRaised);
  AddLabel(next_song, next_song_caption, {164, 14, 450, 30}, 13, kMuted);
  next_song_caption.SetCaption("Next Song:");
  AddPicture(next_song, next_song_cover, {16, 16, 128, 128});
  AddLabel(next_song, next_song_title, {164, 50, 450, 40}, 16, kText, Align::kLeft, true);
  AddLabel(next_song, next_song_artist, {164, 94, 450, 34}, 14, kAmber);
  next_song.SetVisible(false);

  panel.Add(video, {40, 24, 934, 526});
  video.SetVisible(false);
  AddButton(panel, full_screen, {40, 566, 220, 60}, "FULLSCREEN", 14);
  full_screen.SetVisible(false);
}

}  // namespace sonotik
