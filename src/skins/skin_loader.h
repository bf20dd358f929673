// The skins: the list of them, and all files of one put on the screens at once.
#ifndef SONOTIK_SKINS_SKIN_LOADER_H_
#define SONOTIK_SKINS_SKIN_LOADER_H_

#include <array>
#include <string>

#include "config/option_lists.h"
#include "config/settings.h"
#include "files/file_list.h"
#include "forms/Form1.h"
#include "platform/machine.h"
#include "skins/screen_skin.h"

namespace sonotik {

class SkinLoader {
 public:
  SkinLoader(std::string app_path, Settings& settings, OptionLists& lists, Form1& form,
             Machine& machine);

  ScreenSkin screens;

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

  // Paths of the special lists. The last place is never filled.
  const std::array<std::string, 5>& special_lists() const { return special_lists_; }

 private:
  std::string SkinFolder(const std::string& skin) const;
  void PreviewSkin();
  void FindSpecialLists();

  std::string app_path_;
  Settings& settings_;
  OptionLists& lists_;
  Form1& form_;
  MessageBox& messages_;
  FileList cover_layouts_{"*.cov"};
  std::string selected_;
  std::array<std::string, 5> special_lists_;
};

}  // namespace sonotik

#endif  // SONOTIK_SKINS_SKIN_LOADER_H_
