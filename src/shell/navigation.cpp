#include "shell/navigation.h"

#include "text/text.h"

namespace sonotik {
namespace {

// Hundredths of a decibel for one press of a volume button.
constexpr int kVolumeStep = 30;

}  // namespace

template <typename Handler>
void Navigation::OnClick(Control& control, const char* name, Handler handler) {
  control.on_click = house_.boundary.Guarded(name, handler);
}

Navigation::Navigation(Assembly& house, Menu& menu) : house_(house), menu_(menu) {
  house_.form1.form.on_input = [this] { house_.state.idle_seconds = 0; };
  WireAlbumScreen();
  WireTrackList();
  WirePlayOptions();
  WireQueue();
  WireNowPlaying();
  WirePlayer();
}

void Navigation::WireAlbumScreen() {
  AlbumScreen& screen = house_.form1.album;
  AlbumPages& pages = house_.pages;
  for (int i = 0; i < kMostCovers; ++i) {
    CoverPosition& position = screen.covers[static_cast<size_t>(i)];
    const std::initializer_list<Control*> items = {&position.cover, &position.album,
                                                   &position.artist};
    for (Control* item : items) {
      OnClick(*item, "cover", [this, i] { OpenAlbum(house_.pages.FolderAt(i)); });
    }
  }
  for (size_t i = 0; i < screen.tabs.size(); ++i) {
    OnClick(screen.tabs[i], "tab", [&pages, i] { pages.PressTab(static_cast<AlbumTab>(i)); });
  }
  for (lvButtons_H* button : {&screen.previous, &screen.scroll_back}) {
    OnClick(*button, "previous", [&pages] { pages.StepPage(-1); });
  }
  for (lvButtons_H* button : {&screen.next, &screen.scroll_forward}) {
    OnClick(*button, "next", [&pages] { pages.StepPage(1); });
  }
  JumpToLetterScreen& jump = house_.form1.jump_to_letter;
  OnClick(screen.jump_to_letter, "Jump To Letter", [this, &jump] {
    if (house_.pages.paging_busy()) return;
    house_.pages.SetPageValid(false);
    jump.panel.SetVisible(true);
    jump.panel.BringToFront();
  });
  OnClick(jump.done, "Done", [&jump] { jump.panel.SetVisible(false); });
  OnClick(jump.jump_to_start, "Jump To Start", [&pages] { pages.JumpToStart(); });
  OnClick(screen.letter_buttons[26], "Jump To Start", [&pages] { pages.JumpToStart(); });
  for (size_t i = 0; i < 26; ++i) {
    const auto jump_to = [this, i] {
      house_.letter_jump.JumpTo(static_cast<char>('A' + i), JumpControl::kLetterButton);
    };
    OnClick(jump.letter_buttons[i], "letter", jump_to);
    OnClick(screen.letter_buttons[i], "letter", jump_to);
  }

  LetterJump& strip = house_.letter_jump;
  screen.strip.on_mouse_up = house_.boundary.Guarded("letter strip", [&](const MouseEvent& event) {
    strip.Drag(event.at.x);
    strip.Release(JumpControl::kStrip);
  });
  // The thumb tells where the finger is from its own left edge.
  const auto drag_thumb = [&](const MouseEvent& event) {
    strip.Drag(screen.strip_thumb.place().left + event.at.x);
  };
  screen.strip_thumb.on_mouse_move =
      house_.boundary.Guarded("letter strip", [this, drag_thumb](const MouseEvent& event) {
        if (house_.form1.form.captured() == &house_.form1.album.strip_thumb) drag_thumb(event);
      });
  screen.strip_thumb.on_mouse_up =
      house_.boundary.Guarded("letter strip", [&strip, drag_thumb](const MouseEvent& event) {
        drag_thumb(event);
        strip.Release(JumpControl::kStripThumb);
      });

  CarouselScreen& carousel = house_.form1.carousel;
  for (size_t c = 0; c < carousel.columns.size(); ++c) {
    for (size_t i = 0; i < carousel.columns[c].covers.size(); ++i) {
      OnClick(carousel.columns[c].covers[i], "carousel",
              [this, c, i] { OpenAlbum(house_.carousel.PathAt(c, i)); });
    }
  }
  OnClick(carousel.up, "UP", [this] { house_.carousel.Step(-1); });
  OnClick(carousel.down, "DOWN", [this] { house_.carousel.Step(1); });
}

void Navigation::OpenAlbum(const std::string& folder) {
  Panel& panel = house_.form1.panel(screen::kTrackList);
  // A second touch on the covers behind takes the track list away.
  if (panel.visible()) return panel.SetVisible(false);
  house_.track_list.Open(folder);
}

void Navigation::WireTrackList() {
  TrackListScreen& screen = house_.form1.track_list;
  TrackList& list = house_.track_list;
  for (int row = 0; row < kMostTrackRows; ++row) {
    TrackRow& labels = screen.rows[static_cast<size_t>(row)];
    for (Label* label : {&labels.title, &labels.time}) {
      OnClick(*label, "track row", [this, row] { PressTrackRow(row); });
      label->on_double_click =
          house_.boundary.Guarded("track row", [this, row] { DoubleClickTrackRow(row); });
    }
  }
  OnClick(screen.up, "Up", [&list] { list.StepPage(-1); });
  OnClick(screen.down, "Down", [&list] { list.StepPage(1); });
  for (int i = 0; i < kQuickJumpCovers; ++i) {
    OnClick(screen.quick_jump[static_cast<size_t>(i)], "quick jump",
            [&list, i] { list.OpenQuickJump(i); });
  }
  OnClick(screen.quick_jump_left, "quick jump", [&list] { list.ScrollQuickJump(-1); });
  OnClick(screen.quick_jump_right, "quick jump", [&list] { list.ScrollQuickJump(1); });
  OnClick(screen.play_now, "Play NOW", [this] { ChooseRow(PlayWay::kPlayNow); });
  OnClick(screen.play_next, "Play NEXT", [this] { ChooseRow(PlayWay::kPlayNext); });
  OnClick(screen.add_to_queue, "Add To Queue", [this] { ChooseRow(PlayWay::kAddToQueue); });
  OnClick(screen.add_entire_album, "Add Entire Album", [this] { AddEntireAlbum(); });
  // These read the tag for whoever burns or fetches, and do nothing more.
  for (lvButtons_H* button : {&screen.burn_cd, &screen.download}) {
    OnClick(*button, "Burn CD", [this, &list] {
      house_.tags.ReadFor(TagCaller::kBurnOrDownload, list.PathOfRow(list.selected_row()));
    });
  }
}

void Navigation::PressTrackRow(int row) {
  TrackList& list = house_.track_list;
  list.SelectRow(row);
  const Label& title = house_.form1.track_list.rows[static_cast<size_t>(row)].title;
  if (TrimBlanks(title.caption()).empty()) return;
  const std::string path = list.PathOfRow(row);
  house_.play_options.show_play_options(path, screen::kTrackList);
  house_.tags.ReadFor(TagCaller::kTrackRowClick, path);
  // An M4A or WMA still carries the genre of the file before; that is meant.
  if (UpperCase(house_.fields.txtGenre) == "ADULT") {
    list.HidePlayCommands();
    house_.form1.panel(screen::kPlayOptions).SetVisible(false);
    house_.pin.Ask(screen::kPlayOptions);
  }
  house_.play_options.Reveal();
}

void Navigation::DoubleClickTrackRow(int row) {
  if (!house_.settings.enable_double_click) return PressTrackRow(row);
  // The first of the two taps has met a track that isn't for everybody.
  if (house_.form1.pin_screen.visible()) return;
  const std::string path = house_.track_list.PathOfRow(row);
  if (path.empty()) return;
  house_.form1.panel(screen::kPlayOptions).SetVisible(false);
  // The list's order: "Play Now", "Play Next", "Add To Queue".
  static constexpr PlayWay kWays[] = {PlayWay::kPlayNow, PlayWay::kPlayNext, PlayWay::kAddToQueue};
  const int action = house_.settings.double_click_action;
  if (action < 0 || action > 2) return;
  ChooseOn(screen::kTrackList, path, kWays[action]);
}

bool Navigation::Choose(const std::string& path, PlayWay way) {
  // A start lets events run, and the second of two quick taps must not pay again.
  if (way == PlayWay::kPlayNow && house_.playback.starting > 0) return false;
  const unsigned long shown = house_.form1.screens_shown();
  // What fails once it is charged and added (a list for others, a tag) must not leave the guest on
  // a screen that asks again.
  bool taken = true;
  house_.boundary.Run("add_queue4", [&] {
    try {
      house_.selection.Choose(path, way);
    } catch (const NothingTaken&) {
      taken = false;
      throw;
    }
  });
  return taken && house_.form1.screens_shown() == shown;
}

void Navigation::ChooseOn(size_t screen, const std::string& path, PlayWay way) {
  if (Choose(path, way)) AfterAdding(screen);
}

void Navigation::ChooseRow(PlayWay way) {
  const std::string path = house_.track_list.PathOfRow(house_.track_list.selected_row());
  if (!path.empty()) ChooseOn(screen::kTrackList, path, way);
}

void Navigation::AddEntireAlbum() {
  TrackList& list = house_.track_list;
  if (list.album_queued()) return;
  list.SetAlbumQueued(true);
  for (int i = 0; i < list.album_files().count(); ++i) {
    Choose(list.album_files().PathAt(i), PlayWay::kAddToQueue);
  }
  AfterAdding(screen::kTrackList);
}

void Navigation::AfterAdding(size_t calling_screen) {
  if (house_.settings.auto_back_on_selection) return menu_.Back();
  house_.form1.ShowScreen(calling_screen);
}

void Navigation::WirePlayOptions() {
  PlayOptionsScreen& screen = house_.form1.play_options;
  OnClick(screen.play_now, "Play Now", [this] { ChoosePlayOption(PlayWay::kPlayNow); });
  OnClick(screen.play_next, "Play Next", [this] { ChoosePlayOption(PlayWay::kPlayNext); });
  OnClick(screen.add_to_queue, "Add To Queue", [this] { ChoosePlayOption(PlayWay::kAddToQueue); });
  OnClick(screen.download, "DOWNLOAD",
          [this] { house_.tags.ReadFor(TagCaller::kBurnOrDownload, house_.play_options.path()); });
  OnClick(screen.cancel, "Cancel", [this] { house_.play_options.Close(); });
  OnClick(screen.panel, "play options", [this] {
    // The message without buttons is left by a touch, but not with credits in hand.
    const bool out_of_coins = house_.settings.enable_credit_mode && house_.credits.count() == 0;
    if (out_of_coins || house_.form1.play_options.message.caption() == "Track Already In Queue") {
      house_.play_options.Close();
    }
  });
  screen.message.on_click = screen.panel.on_click;
}

void Navigation::ChoosePlayOption(PlayWay way) {
  // By value: adding reads other tracks.
  const std::string path = house_.play_options.path();
  if (!Choose(path, way)) return;
  house_.play_options.Close();
  AfterAdding(house_.play_options.calling_screen());
}

void Navigation::WireQueue() {
  QueueScreen& screen = house_.form1.queue;
  for (int row = 0; row < kQueueRows; ++row) {
    QueueRow& labels = screen.rows[static_cast<size_t>(row)];
    OnClick(labels.touch, "queue row", [this, row] { house_.queue_view.PressRow(row); });
  }
  for (size_t i = 0; i < screen.commands.size(); ++i) {
    const auto command = static_cast<QueueCommand>(i);
    OnClick(screen.commands[i], "queue command", [this, command] {
      if (command == QueueCommand::kPlayNow) {
        PlayQueueEntry();
      } else {
        house_.queue_view.Press(command);
      }
    });
  }
  OnClick(screen.up, "Up", [this] { house_.queue_view.Scroll(-1); });
  OnClick(screen.down, "Down", [this] { house_.queue_view.Scroll(1); });
}

void Navigation::PlayQueueEntry() {
  if (house_.playback.starting > 0) return;
  // Charges anew, and the entry goes even if the credits refused it; that is meant.
  const std::string path = house_.queue.path(house_.queue_view.selection());
  house_.queue_view.HideRowCommands();
  if (!path.empty()) Choose(path, PlayWay::kPlayNow);
  // The start lets events run, and what was added meanwhile may have moved the entry.
  house_.queue_view.SetSelection(house_.queue.IndexOf(path, house_.queue_view.selection()));
  house_.queue_view.Press(QueueCommand::kPlayNow);
}

void Navigation::WireNowPlaying() {
  Form1& form = house_.form1;
  for (Label* label : {&form.now_playing_artist, &form.now_playing_title}) {
    OnClick(*label, "now playing", [this] { menu_.Show(screen::kNowPlaying); });
  }
  OnClick(form.now_playing_cover, "now-playing cover", [this] {
    if (house_.playback.current_track_folder.empty()) return;
    house_.form1.HideAllScreens();
    house_.track_list.Open(house_.playback.current_track_folder);
  });
  for (Label* label : {&form.now_playing.artist, &form.now_playing.title}) {
    OnClick(*label, "now-playing artist", [this] { menu_.Back(); });
  }
  OnClick(form.now_playing.rating_up, "rating", [this] { house_.rating.Step(1); });
  OnClick(form.now_playing.rating_down, "rating", [this] { house_.rating.Step(-1); });
  OnClick(form.now_playing.full_screen, "FULLSCREEN", [this] { ToggleFullScreen(); });
}

void Navigation::ToggleFullScreen() {
  NowPlayingScreen& screen = house_.form1.now_playing;
  const Rect& panel = screen.panel.place();
  if (screen.video.place().width < panel.width) {
    video_place_ = screen.video.place();
    screen.video.SetPlace({0, 0, panel.width, panel.height});
    screen.full_screen.SetCaption("BACK");
  } else {
    screen.video.SetPlace(video_place_);
    screen.full_screen.SetCaption("FULLSCREEN");
  }
  house_.engine.FitVideoWindow();
}

void Navigation::WirePlayer() {
  Form1& form = house_.form1;
  for (size_t i = 0; i < form.player_buttons.size(); ++i) {
    OnClick(form.player_buttons[i], "player",
            [this, i] { PressPlayer(static_cast<PlayerButton>(i)); });
  }
  form.volume.on_scroll =
      house_.boundary.Guarded("volume slider", [this](int value) { SetVolume(value); });
}

void Navigation::PressPlayer(PlayerButton button) {
  MediaEngine& engine = house_.engine;
  bool& paused = house_.playback.paused;
  const int volume = house_.settings.main_volume;
  switch (button) {
    case PlayerButton::kRestart:
      if (paused) return;
      engine.MediaStop();
      engine.MediaPlay();
      break;
    case PlayerButton::kPause:
      paused = !paused;
      if (paused) {
        engine.MediaPause();
      } else {
        engine.MediaPlay();
      }
      house_.form1.paused.SetVisible(paused);
      break;
    case PlayerButton::kNext:
      if (!paused) engine.MediaStop();
      break;
    case PlayerButton::kVolumeDown:
      if (volume - kVolumeStep >= kLeastVolume) SetVolume(volume - kVolumeStep);
      break;
    case PlayerButton::kVolumeUp:
      if (volume + kVolumeStep <= kMostVolume) SetVolume(volume + kVolumeStep);
      break;
  }
}

void Navigation::SetVolume(int value) {
  house_.settings.main_volume = value;
  house_.form1.volume.SetValue(value);
  house_.engine.MediaSetVolume(value);
}

}  // namespace sonotik
