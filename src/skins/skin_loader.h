// The skins: the list of them, and all files of one put on the screens at once.
#ifndef SONOTIK_SKINS_SKIN_LOADER_H_
#define SONOTIK_SKINS_SKIN_LOADER_H_

#include <array>
#include <functional>
#include <string>

#include "config/option_lists.h"
#include "config/settings.h"
#include "files/file_list.h"
#include "forms/Form1.h"
#include "platform/machine.h"
#include "skins/layout_reader.h"

namespace sonotik {

// What is asked of higher rooms while a skin is put on.
struct SkinHooks {
  std::function<void(int rows)> set_track_rows = [](int) {};
  // The bar's captions are its choice, so they are painted anew over those of the file.
  std::function<void()> genre_scroll_show = [] {};
  std::function<void()> fit_video_window = [] {};
};

class SkinLoader {
 public:
  SkinLoader(std::string app_path, Settings& settings, OptionLists& lists, Form1& form,
             Machine& machine);

  SkinHooks hooks;

  // Puts on the skin that the settings name: skin.ini, the layout files, the lists beside them, the
  // pictures with fixed names. What a skin doesn't say stays as it was. Pending events run after
  // each file. Throws RuntimeFailure for a damaged file, and then reads no further; options.ini
  // alone is told of by a message and passed over.
  void ApplySkin();

  // The skins anew from their folder, with a message if there are more or fewer than before.
  void UpdateSkinList();
  // The one picked in "Selected Skin:"; empty for none.
  const std::string& selected() const { return selected_; }
  // Picks one there, which shows its preview and its size and puts nothing on.
  void Select(const std::string& skin);

  // The cover layouts of the skin in force. Another folder leaves none of them selected.
  void PointCoverLayouts();
  // The file that is selected; empty for none.
  std::string SelectedCoverLayout() const;

  // Below 1 the genres have a screen, otherwise the bar in the place of the menu.
  int genre_style() const { return genre_style_; }
  // Paths of the special lists. The last place is never filled.
  const std::array<std::string, 5>& special_lists() const { return special_lists_; }
  // The display's mode has been changed, and somebody has to restore it.
  bool mode_changed() const { return mode_changed_; }
  void ForgetModeChange() { mode_changed_ = false; }

 private:
  std::string SkinFolder(const std::string& skin) const;
  void PreviewSkin();
  void ReadSkinFile(LayoutReader& reader);
  void ReadLayoutFile(LayoutReader& reader, const LayoutFile& file);
  // What a file asks for beyond its values, once it has been read.
  void FinishFile(const LayoutReader& reader, std::string_view file);
  void TakeNumber(std::string_view target, FieldKind kind, int number);
  void ShowPaging(int mode);
  void ShowVolumeControls(bool allowed);
  void ShowTrackRows(int rows);
  void PlaceBelowMainScreens();
  void ApplyResolution();
  void FindSpecialLists();
  void LoadFixedPictures(const LayoutReader& reader);

  std::string app_path_;
  Settings& settings_;
  OptionLists& lists_;
  Form1& form_;
  Machine& machine_;
  LayoutTargets targets_;
  FileList cover_layouts_{"*.cov"};
  std::string selected_;
  int genre_style_ = 0;
  int screen_width_ = 0;
  int screen_height_ = 0;
  bool mode_changed_ = false;
  std::array<std::string, 5> special_lists_;
};

}  // namespace sonotik

#endif  // SONOTIK_SKINS_SKIN_LOADER_H_
