#include "skins/skin_loader.h"

#include <algorithm>
#include <utility>

#include "files/files.h"
#include "files/line_format.h"
#include "skins/options_look.h"
#include "skins/unplaced_look.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

std::string Amount(size_t number) { return NumberCaption(static_cast<long>(number)); }

}  // namespace

SkinLoader::SkinLoader(std::string app_path, Settings& settings, OptionLists& lists, Form1& form,
                       Machine& machine)
    : screens(settings, form, machine.events, machine.displays, machine.messages),
      app_path_(std::move(app_path)),
      settings_(settings),
      lists_(lists),
      form_(form),
      messages_(machine.messages) {}

std::string SkinLoader::SkinFolder(const std::string& skin) const {
  return app_path_ + "\\skins\\" + skin;
}

void SkinLoader::ApplySkin() {
  const std::string folder = SkinFolder(settings_.current_skin);
  screens.ReadFiles(folder);
  PointCoverLayouts();
  FindSpecialLists();
  screens.LoadFixedPictures(folder);
  DressUnplaced(form_);
  DressOptions(form_);
  // A picture may have its old name and be another file.
  form_.form.Invalidate();
}

void SkinLoader::PointCoverLayouts() {
  const std::string folder = SkinFolder(settings_.current_skin);
  if (folder == cover_layouts_.folder()) {
    cover_layouts_.Refresh();
  } else {
    cover_layouts_.SetFolder(folder);
    settings_.cover_layout = -1;
  }
  lists_.cover_layouts = cover_layouts_.names();
}

std::string SkinLoader::SelectedCoverLayout() const {
  return cover_layouts_.PathAt(settings_.cover_layout);
}

void SkinLoader::FindSpecialLists() {
  auto& buttons = form_.search_results.lists;
  for (lvButtons_H& button : buttons) button.SetVisible(false);
  FileList files("*.*");
  files.SetFolder(app_path_ + "\\lists");
  // There are four buttons, so the table's fifth place stays empty and a fifth file unseen.
  for (size_t i = 0; i < buttons.size() && i < files.names().size(); ++i) {
    special_lists_[i] = files.PathAt(static_cast<int>(i));
    buttons[i].SetVisible(true);
  }
}

void SkinLoader::Select(const std::string& skin) {
  const auto& names = lists_.skins;
  selected_ = std::find(names.begin(), names.end(), skin) == names.end() ? "" : skin;
  PreviewSkin();
}

void SkinLoader::PreviewSkin() {
  OptionsScreen& screen = form_.options;
  const std::string folder = SkinFolder(selected_);
  const std::string picture = folder + "\\preview.jpg";
  const bool there = !selected_.empty() && FileExists(picture);
  screen.skin_preview.SetPicture(there ? picture : "");
  screen.skin_preview.Invalidate();
  if (selected_.empty() || !FileExists(folder + "\\resolution.ini")) return;
  FieldReader reader(ReadWholeFile(folder + "\\resolution.ini"));
  for (int i = 0; i < 3; ++i) reader.Skip();
  const int width = reader.Int32();
  const int height = reader.Int32();
  screen.skin_resolution.SetCaption("Resolution: " + std::to_string(width) + " x " +
                                    std::to_string(height));
}

void SkinLoader::UpdateSkinList() {
  const std::string before = selected_;
  const size_t count = lists_.skins.size();
  lists_.skins = FoldersIn(app_path_ + "\\skins");
  lists_.calendar_skins = lists_.skins;
  Select(before);
  const size_t now = lists_.skins.size();
  // Said at once, also while the program starts.
  if (now < count) messages_.Show(Amount(count - now) + " Skins Removed...");
  if (now > count) messages_.Show(Amount(now - count) + " Skins Added...");
}

}  // namespace sonotik
