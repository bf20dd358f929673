#include "skins/skin_loader.h"

#include <algorithm>
#include <utility>

#include "files/files.h"
#include "files/runtime_failure.h"
#include "skins/unplaced_look.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

// No screen is larger, and one of nothing can't be scaled.
constexpr int kLeastScreen = 1;
constexpr int kMostScreen = 8192;

// Over the whole of its parent, and unseen: what it holds then has its place on the screen itself.
void Spread(Panel& panel) {
  const Rect around = panel.parent()->place();
  panel.SetTransparent(true);
  panel.SetPlace({0, 0, around.width, around.height});
}

// A row is touched and marked wherever the skin has put its parts.
void CoverRow(QueueRow& row) {
  Rect all = row.cover.place();
  for (const Label* part : {&row.artist, &row.track, &row.album, &row.time}) {
    all = all.United(part->place());
  }
  row.touch.SetPlace(all);
  row.touch.SetBackColor(row.track.back_color());
  row.touch.SetPlate(std::nullopt);
}

std::string Amount(size_t number) { return NumberCaption(static_cast<long>(number)); }

}  // namespace

SkinLoader::SkinLoader(std::string app_path, Settings& settings, OptionLists& lists, Form1& form,
                       Machine& machine)
    : app_path_(std::move(app_path)),
      settings_(settings),
      lists_(lists),
      form_(form),
      machine_(machine),
      targets_(form) {}

std::string SkinLoader::SkinFolder(const std::string& skin) const {
  return app_path_ + "\\skins\\" + skin;
}

void SkinLoader::ApplySkin() {
  LayoutReader reader(targets_, SkinFolder(settings_.current_skin));
  reader.on_number = [this](std::string_view target, FieldKind kind, double number) {
    TakeNumber(target, kind, static_cast<int>(std::clamp(number, -1e9, 1e9)));
  };
  ReadSkinFile(reader);
  for (const LayoutFile& file : LayoutFiles()) ReadLayoutFile(reader, file);
  PointCoverLayouts();
  FindSpecialLists();
  LoadFixedPictures(reader);
  DressUnplaced(form_);
  // A picture may have its old name and be another file.
  form_.form.Invalidate();
}

void SkinLoader::ReadSkinFile(LayoutReader& reader) {
  reader.Read(SkinFile());
  machine_.events.PumpEvents();
}

void SkinLoader::ReadLayoutFile(LayoutReader& reader, const LayoutFile& file) {
  try {
    if (reader.Read(file)) FinishFile(reader, file.name);
  } catch (const RuntimeFailure&) {
    // Alone among the files: without the options nobody could choose another skin.
    if (std::string_view(file.name) != "options.ini") throw;
    machine_.messages.Show("OPTIONS.INI is corrupt");
  }
  machine_.events.PumpEvents();
}

void SkinLoader::FinishFile(const LayoutReader& reader, std::string_view file) {
  if (file == "main.ini") {
    PlaceBelowMainScreens();
  } else if (file == "nav.ini") {
    Spread(form_.album.left_scroll);
    Spread(form_.album.right_scroll);
  } else if (file == "decades_year.ini") {
    // It has a size and no place: it begins where the months do.
    const Rect months = form_.decades.month_picker.place();
    const Rect years = form_.decades.year_picker.place();
    form_.decades.year_picker.SetPlace({months.left, months.top, years.width, years.height});
  } else if (file == "now_playing.ini") {
    Spread(form_.now_playing.next_song);
    const std::string frame = reader.PictureAt("images\\now playing.gif");
    if (!frame.empty()) form_.now_playing.cover_frame.SetPicture(frame);
  } else if (file == "resolution.ini") {
    ApplyResolution();
  } else if (file == "genre_bar.ini") {
    const std::string picture = reader.PictureAt("images\\genrebar.bmp");
    if (!picture.empty()) form_.genre_bar.SetPicture(picture);
    hooks.genre_scroll_show();
  } else if (file == "queue.ini") {
    for (QueueRow& row : form_.queue.rows) CoverRow(row);
  } else if (file == "jumptoletter2.ini") {
    Spread(form_.album.letters);
  }
}

void SkinLoader::TakeNumber(std::string_view target, FieldKind kind, int number) {
  if (target == "menu.head") {
    genre_style_ = number;
  } else if (target == "player.head") {
    ShowVolumeControls(number != 0);
  } else if (target == "album.paging") {
    ShowPaging(number);
  } else if (kind == FieldKind::kRowCount) {
    ShowTrackRows(std::clamp(number, 0, kMostTrackRows));
  } else if (kind == FieldKind::kScreenWidth) {
    screen_width_ = std::clamp(number, kLeastScreen, kMostScreen);
  } else if (kind == FieldKind::kScreenHeight) {
    screen_height_ = std::clamp(number, kLeastScreen, kMostScreen);
  }
}

void SkinLoader::ShowPaging(int mode) {
  if (mode != 0 && mode != 1) return;
  AlbumScreen& screen = form_.album;
  for (lvButtons_H* button : {&screen.previous, &screen.jump_to_letter, &screen.next}) {
    button->SetVisible(mode == 0);
  }
  screen.left_scroll.SetVisible(mode == 1);
  screen.right_scroll.SetVisible(mode == 1);
}

// A skin without volume controls overrules the settings, for this load only: nothing remembers it.
void SkinLoader::ShowVolumeControls(bool allowed) {
  for (const PlayerButton button : {PlayerButton::kVolumeDown, PlayerButton::kVolumeUp}) {
    form_.player_buttons[static_cast<size_t>(button)].SetVisible(allowed &&
                                                                 settings_.volume_buttons);
  }
  form_.volume.SetVisible(allowed && settings_.volume_slider);
}

void SkinLoader::ShowTrackRows(int rows) {
  hooks.set_track_rows(rows);
  for (size_t i = 0; i < form_.track_list.rows.size(); ++i) {
    TrackRow& row = form_.track_list.rows[i];
    row.title.SetVisible(i < static_cast<size_t>(rows));
    row.time.SetVisible(i < static_cast<size_t>(rows));
  }
}

void SkinLoader::PlaceBelowMainScreens() {
  // These three once more, behind the others.
  for (const size_t index : {screen::kNowPlaying, screen::kSearchResults, screen::kDecades}) {
    form_.panel(index).SetPlace(form_.panel(0).place());
  }
  const Rect strip = form_.album.strip.place();
  form_.album.strip_thumb.SetPlace({0, 2, strip.width / 27, std::max(0.0F, strip.height - 4)});
  form_.FitUnplaced();
}

void SkinLoader::ApplyResolution() {
  const float width = static_cast<float>(screen_width_);
  const float height = static_cast<float>(screen_height_);
  form_.form.SetPlace({0, 0, width, height});
  Displays& displays = machine_.displays;
  if (settings_.full_screen) {
    displays.SetWindowSize(screen_width_, screen_height_);
    mode_changed_ = true;
    displays.ChangeResolution(screen_width_, screen_height_);
    // Not 0: so it was always done.
    displays.SetWindowPosition(1, 1);
    displays.FitWindow(true);
    displays.SetTaskbarVisible(false);
  } else {
    displays.SetWindowSize(screen_width_ + kFrameWidth, screen_height_ + kFrameHeight);
  }
  form_.FitUnplaced();
  hooks.fit_video_window();
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

void SkinLoader::LoadFixedPictures(const LayoutReader& reader) {
  Slider& volume = form_.volume;
  // Takes no picture away: one that this skin lacks stays from the former.
  volume.ResetPictures();
  const auto load = [&](const char* name, auto set) {
    const std::string path = reader.PictureAt(name);
    if (!path.empty()) set(path);
  };
  load("images\\slider_back.bmp", [&](const std::string& path) { volume.SetPictureBack(path); });
  load("images\\slider_button.bmp", [&](const std::string& path) { volume.SetBar(path); });
  load("images\\menu.bmp", [&](const std::string& path) { form_.menu.SetPicture(path); });
  load("images\\player.bmp", [&](const std::string& path) { form_.player.SetPicture(path); });
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
  if (now < count) machine_.messages.Show(Amount(count - now) + " Skins Removed...");
  if (now > count) machine_.messages.Show(Amount(now - count) + " Skins Added...");
}

}  // namespace sonotik
