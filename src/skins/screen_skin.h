// The files of one skin's folder, put on the screens.
#ifndef SONOTIK_SKINS_SCREEN_SKIN_H_
#define SONOTIK_SKINS_SCREEN_SKIN_H_

#include <functional>
#include <string>
#include <string_view>

#include "config/settings.h"
#include "forms/Form1.h"
#include "platform/displays.h"
#include "platform/event_loop.h"
#include "platform/message_box.h"
#include "skins/layout_reader.h"

namespace sonotik {

// What is asked of higher rooms while a skin is put on.
struct SkinHooks {
  std::function<void(int rows)> set_track_rows = [](int) {};
  // The bar's captions are its choice, so they are painted anew over those of the file.
  std::function<void()> genre_scroll_show = [] {};
  std::function<void()> fit_video_window = [] {};
};

class ScreenSkin {
 public:
  ScreenSkin(const Settings& settings, Form1& form, EventLoop& events, Displays& displays,
             MessageBox& messages);

  SkinHooks hooks;

  const LayoutTargets& targets() const { return targets_; }

  // skin.ini and the layout files, in their order; pending events run after each. Throws
  // RuntimeFailure for a damaged file, and then reads no further; options.ini alone is told of by a
  // message and passed over.
  void ReadFiles(const std::string& folder);
  // The pictures that no file names.
  void LoadFixedPictures(const std::string& folder);

  // Below 1 the genres have a screen; at 1 the bar in the place of the menu.
  int genre_style() const { return genre_style_; }
  // "Full Screen Mode..." at the moment that it is switched.
  void SwitchFullScreen();
  // The display's mode has been changed, and somebody has to restore it.
  bool mode_changed() const { return mode_changed_; }

 private:
  void ReadLayoutFile(const LayoutReader& reader, const LayoutFile& file);
  // What a file asks for beyond its values, once it has been read.
  void FinishFile(const LayoutReader& reader, std::string_view file);
  void TakeNumber(std::string_view target, FieldKind kind, double number);
  void ShowPaging(double mode);
  void ShowVolumeControls(bool allowed);
  void ShowTrackRows(int rows);
  void PlaceBelowMainScreens();
  void ApplyResolution();

  const Settings& settings_;
  Form1& form_;
  EventLoop& events_;
  Displays& displays_;
  MessageBox& messages_;
  LayoutTargets targets_;
  int genre_style_ = 0;
  int screen_width_ = 0;
  int screen_height_ = 0;
  bool mode_changed_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_SKINS_SCREEN_SKIN_H_
