#include "skins/screen_skin.h"

#include <algorithm>

#include "files/runtime_failure.h"

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

}  // namespace

ScreenSkin::ScreenSkin(const Settings& settings, Form1& form, EventLoop& events, Displays& displays,
                       MessageBox& messages)
    : settings_(settings),
      form_(form),
      events_(events),
      displays_(displays),
      messages_(messages),
      targets_(form) {}

void ScreenSkin::ReadFiles(const std::string& folder) {
  LayoutReader reader(targets_, folder);
  reader.on_number = [this](std::string_view target, FieldKind kind, double number) {
    TakeNumber(target, kind, number);
  };
  screen_width_ = screen_height_ = 0;
  reader.Read(SkinFile());
  events_.PumpEvents();
  for (const LayoutFile& file : LayoutFiles()) ReadLayoutFile(reader, file);
}

void ScreenSkin::ReadLayoutFile(const LayoutReader& reader, const LayoutFile& file) {
  try {
    if (reader.Read(file)) FinishFile(reader, file.name);
  } catch (const RuntimeFailure&) {
    // Alone among the files: without the options nobody could choose another skin.
    if (std::string_view(file.name) != "options.ini") throw;
    messages_.Show("OPTIONS.INI is corrupt");
  }
  events_.PumpEvents();
}

void ScreenSkin::FinishFile(const LayoutReader& reader, std::string_view file) {
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
  } else if (file == "options.ini") {
    form_.options.LayOut();
  } else if (file == "queue.ini") {
    for (QueueRow& row : form_.queue.rows) CoverRow(row);
  } else if (file == "jumptoletter2.ini") {
    Spread(form_.album.letters);
  }
}

void ScreenSkin::TakeNumber(std::string_view target, FieldKind kind, double number) {
  const auto whole = [number](int least, int most) {
    return static_cast<int>(std::clamp<double>(number, least, most));
  };
  if (target == "menu.head") {
    genre_style_ = whole(-1, 1);
  } else if (target == "player.head") {
    ShowVolumeControls(number != 0);
  } else if (target == "album.paging") {
    ShowPaging(number);
  } else if (kind == FieldKind::kRowCount) {
    ShowTrackRows(whole(0, kMostTrackRows));
  } else if (kind == FieldKind::kScreenWidth) {
    screen_width_ = whole(kLeastScreen, kMostScreen);
  } else if (kind == FieldKind::kScreenHeight) {
    screen_height_ = whole(kLeastScreen, kMostScreen);
  }
}

void ScreenSkin::ShowPaging(double mode) {
  if (mode != 0 && mode != 1) return;
  AlbumScreen& screen = form_.album;
  for (lvButtons_H* button : {&screen.previous, &screen.jump_to_letter, &screen.next}) {
    button->SetVisible(mode == 0);
  }
  screen.left_scroll.SetVisible(mode == 1);
  screen.right_scroll.SetVisible(mode == 1);
}

// A skin without volume controls overrules the settings, for this load only: nothing remembers it.
void ScreenSkin::ShowVolumeControls(bool allowed) {
  for (const PlayerButton button : {PlayerButton::kVolumeDown, PlayerButton::kVolumeUp}) {
    form_.player_buttons[static_cast<size_t>(button)].SetVisible(allowed &&
                                                                 settings_.volume_buttons);
  }
  form_.volume.SetVisible(allowed && settings_.volume_slider);
}

void ScreenSkin::ShowTrackRows(int rows) {
  hooks.set_track_rows(rows);
  for (size_t i = 0; i < form_.track_list.rows.size(); ++i) {
    TrackRow& row = form_.track_list.rows[i];
    row.title.SetVisible(i < static_cast<size_t>(rows));
    row.time.SetVisible(i < static_cast<size_t>(rows));
  }
}

void ScreenSkin::PlaceBelowMainScreens() {
  // These three once more, behind the others.
  for (const size_t index : {screen::kNowPlaying, screen::kSearchResults, screen::kDecades}) {
    form_.panel(index).SetPlace(form_.panel(0).place());
  }
  const Rect strip = form_.album.strip.place();
  form_.album.strip_thumb.SetPlace({0, 2, strip.width / 27, std::max(0.0F, strip.height - 4)});
  form_.FitUnplaced();
}

void ScreenSkin::ApplyResolution() {
  form_.form.SetPlace(
      {0, 0, static_cast<float>(screen_width_), static_cast<float>(screen_height_)});
  if (settings_.full_screen) {
    displays_.SetWindowSize(screen_width_, screen_height_);
    mode_changed_ = true;
    // A mode that is refused leaves the window sized as asked; that is meant.
    displays_.ChangeResolution(screen_width_, screen_height_);
    // Not 0: so it was always done.
    displays_.SetWindowPosition(1, 1);
    displays_.FitWindow(true);
    displays_.SetTaskbarVisible(false);
  } else {
    displays_.SetWindowSize(screen_width_ + kFrameWidth, screen_height_ + kFrameHeight);
  }
  form_.FitUnplaced();
  hooks.fit_video_window();
}

void ScreenSkin::SwitchFullScreen() {
  if (settings_.full_screen) {
    mode_changed_ = true;
    // A skin that doesn't tell its size leaves the mode.
    if (screen_width_ > 0) displays_.ChangeResolution(screen_width_, screen_height_);
  } else {
    displays_.RestoreResolution();
  }
  displays_.FitWindow(settings_.full_screen);
  displays_.SetTaskbarVisible(!settings_.full_screen);
}

void ScreenSkin::LoadFixedPictures(const std::string& folder) {
  const LayoutReader reader(targets_, folder);
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

}  // namespace sonotik
