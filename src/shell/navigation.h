// What touches do: the ways between the screens and the commands on them.
#ifndef SONOTIK_SHELL_NAVIGATION_H_
#define SONOTIK_SHELL_NAVIGATION_H_

#include "shell/menu.h"

namespace sonotik {

class Navigation {
 public:
  Navigation(Assembly& house, Menu& menu);

  void OpenAlbum(const std::string& folder);
  void PressTrackRow(int row);
  void DoubleClickTrackRow(int row);
  void PressPlayer(PlayerButton button);
  // Hundredths of a decibel, for the slider, the setting and the track that plays.
  void SetVolume(int value);
  // Adds or plays by the way chosen; what fails behind the charge is no failure of the caller.
  // False if nothing is taken, since a Terminal's folder is gone or "Play Now" while another track
  // starts would lose its play, or if the guest has gone elsewhere while it started: he stays
  // there.
  bool Choose(const std::string& path, PlayWay way);
  // The same from a screen, and then the way back: to the album pages if that is asked for, else
  // the screen stays.
  void ChooseOn(size_t screen, const std::string& path, PlayWay way);
  void ToggleFullScreen();

 private:
  void WireAlbumScreen();
  void WireTrackList();
  void WirePlayOptions();
  void WireQueue();
  void WireNowPlaying();
  void WirePlayer();
  template <typename Handler>
  void OnClick(Control& control, const char* name, Handler handler);

  void AfterAdding(size_t calling_screen);
  void ChooseRow(PlayWay way);
  void ChoosePlayOption(PlayWay way);
  void AddEntireAlbum();
  void PlayQueueEntry();

  Assembly& house_;
  Menu& menu_;
  // The video box's own place while it fills the screen.
  Rect video_place_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_NAVIGATION_H_
