#include "shell/key_poll.h"

namespace sonotik {
namespace {

// Slots of the key map; 21 to 33 are stored and never polled.
enum Slot : size_t {
  kUp,
  kDown,
  kLeft,
  kRight,
  kSelect,
  kBrowseBack,
  kBrowseForward,
  kRestartTrack,
  kPauseAudio,
  kNextTrack,
  kIncreaseVolume,
  kDecreaseVolume,
  kAlbumView,
  kHistory,
  kTop20,
  kSearch,
  kShowQueue,
  kOptions,
  kDecades,
  kCarouselView,
  kRandomOnOff,
  kPowerOff = 34,
};

constexpr int kEscape = 27;
constexpr int kVolumeStep = 30;

}  // namespace

bool KeyPoll::Down(size_t slot) const {
  const int code = house_.key_map.code(slot);
  return code >= 0 && house_.machine.keys.IsDown(code);
}

bool KeyPoll::KeyIsHeld() {
  if (held_ >= 0 && !house_.machine.keys.IsDown(held_)) held_ = -1;
  return held_ >= 0;
}

template <typename Action>
void KeyPoll::On(size_t slot, Action action) {
  if (held_ >= 0 || !Down(slot)) return;
  house_.state.idle_seconds = 0;
  // First: an action that starts a track lets the next poll run. The Power Off key waits for the
  // one before it; that is meant.
  held_ = house_.key_map.code(slot == kPowerOff ? kRandomOnOff : slot);
  action();
}

void KeyPoll::PollKeys() {
  // Not even the Power Off key lives then; spool files are served all the same.
  if (house_.settings.disable_keymapping) return PollEscapeOnly();
  PollTrackList();
  PollAlbumPages();
  PollFromAnywhere();
}

void KeyPoll::PollEscapeOnly() {
  if (!house_.machine.keys.IsDown(kEscape)) return;
  house_.state.idle_seconds = 0;
  // Not Escape itself but the key 48 above "Browse Back" is waited for; that stays.
  held_ = house_.key_map.code(kBrowseBack) + 48;
  menu_.EnterOptions();
}

void KeyPoll::PollTrackList() {
  if (!house_.form1.panel(screen::kTrackList).visible()) return;
  On(kUp, [this] { MoveTrackHighlight(-1); });
  On(kDown, [this] { MoveTrackHighlight(1); });
  On(kSelect, [this] { TakeTrack(); });
}

void KeyPoll::MoveTrackHighlight(int by) {
  const int row = house_.track_list.selected_row() + by;
  // Without a highlight "DOWN" begins with the first row and "UP" does nothing.
  if (row >= 0 && row < kMostTrackRows) house_.track_list.SelectRow(row);
}

void KeyPoll::TakeTrack() {
  const int row = house_.track_list.selected_row();
  if (row < 0) return;
  // The offset goes first, so a scrolled list yields the file of the unscrolled row; that is meant.
  house_.track_list.SetPageTop(0);
  const std::string path = house_.track_list.PathOfRow(row);
  menu_.Back();
  if (!path.empty()) navigation_.Choose(path, PlayWay::kAddToQueue);
}

void KeyPoll::PollAlbumPages() {
  if (!house_.form1.panel(screen::kAlbum).visible()) return;
  On(kLeft, [this] { MoveCoverHighlight(-1); });
  On(kRight, [this] { MoveCoverHighlight(1); });
  On(kSelect, [this] {
    const int position = house_.pages.highlight();
    // A place without an album would open the files of the album before.
    if (position < 0 || house_.pages.FolderAt(position).empty()) return;
    house_.track_list.Open(house_.pages.FolderAt(position));
  });
}

void KeyPoll::MoveCoverHighlight(int by) {
  const int position = house_.pages.highlight() + by;
  if (position >= 0 && position < house_.cover_layout.covers_per_page) {
    house_.pages.SetHighlight(position);
  }
}

void KeyPoll::PollFromAnywhere() {
  const auto press = [this](PlayerButton button) {
    return [this, button] { navigation_.PressPlayer(button); };
  };
  On(kBrowseBack, [this] { StepPage(-1); });
  On(kBrowseForward, [this] { StepPage(1); });
  On(kRestartTrack, press(PlayerButton::kRestart));
  On(kPauseAudio, press(PlayerButton::kPause));
  On(kNextTrack, press(PlayerButton::kNext));
  // "Increase Vol" lowers and "Decrease Vol" raises; that stays.
  On(kIncreaseVolume, [this] { StepVolume(-kVolumeStep); });
  On(kDecreaseVolume, [this] { StepVolume(kVolumeStep); });
  On(kAlbumView, [this] { menu_.Show(screen::kAlbum); });
  On(kHistory, [this] {
    menu_.hooks.history_show2();
    menu_.Show(screen::kHistory);
  });
  On(kTop20, [this] {
    menu_.HideTop20Commands();
    menu_.hooks.Top20_show3();
    menu_.Show(screen::kTop20);
  });
  On(kSearch, [this] {
    menu_.hooks.reset_search();
    menu_.Show(screen::kSearch);
  });
  On(kShowQueue, [this] {
    // As the guest left it, chosen row and all, but with the songs that it holds now.
    house_.queue_view.Update_queue2();
    menu_.Show(screen::kQueue);
  });
  On(kOptions, [this] { menu_.EnterOptions(); });
  On(kDecades, [this] { menu_.Show(screen::kDecades); });
  On(kCarouselView, [this] {
    menu_.Show(screen::kCarousel);
    house_.carousel.Carousel_show();
  });
  On(kRandomOnOff, [this] { ToggleRandom(); });
  On(kPowerOff, [this] { menu_.hooks.power_down(); });
}

void KeyPoll::StepPage(int direction) {
  CatalogueCursor& cursor = house_.cursor;
  const long covers = house_.cover_layout.covers_per_page;
  if (direction > 0) {
    house_.pages.StepWithUndo(1);
    return;
  }
  // One page back, as long as that is above 0; the page is painted in any case.
  if (cursor.position() - covers > 0) cursor.SetPosition(cursor.position() - covers);
  house_.pages.read_albums3();
}

void KeyPoll::StepVolume(int by) {
  const int volume = house_.settings.main_volume + by;
  // Strictly inside, unlike the buttons on the screen.
  if (volume > kLeastVolume && volume < kMostVolume) navigation_.SetVolume(volume);
}

void KeyPoll::ToggleRandom() {
  bool& on = house_.playback.random_mode_on;
  on = !on;
  house_.settings.enable_random_play = on;
  house_.form1.random.SetCaption(on ? "Random ON" : "Random OFF");
}

}  // namespace sonotik
