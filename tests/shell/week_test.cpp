// A week in a bar, evening by evening: guests at random, coins, keys and stations, with what must
// always hold checked after each of them.
#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class WeekTest : public JukeboxTest {
 protected:
  WeekTest() {
    settings.enable_credit_mode = true;
    settings.save_queue_on_shutdown = true;
    settings.use_second_monitor = true;  // so that each add is announced
    settings.enable_double_click = true;
    settings.shuffle_queue_each_play = true;
    settings.menu_options = false;  // its screen holds the idle chain by design
    settings.now_playing_wait = "90";
    std::vector<TestAlbum> albums;
    for (int album = 0; album < 30; ++album) {
      const std::string name = "Album " + std::to_string(album);
      const std::string artist = std::string(1, static_cast<char>('A' + album % 26)) + "da";
      albums.push_back({name, artist});
      for (int track = 0; track < 1 + album % 4; ++track) {
        paths.push_back(WriteTrack(name, std::to_string(track) + ".wav", artist, "T"));
      }
    }
    std::sort(albums.begin(), albums.end(),
              [](const TestAlbum& a, const TestAlbum& b) { return a.artist < b.artist; });
    WriteAlbums(albums);
    WriteAlbums(albums, "videos.cvr");
    folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
    std::string prices;
    for (int i = 0; i < 9; ++i) prices += " " + std::to_string(i) + " \r\n";
    folder.Write("cost.dat", prices);
    std::string keys;
    for (int slot = 0; slot < 35; ++slot) keys += " " + std::to_string(40 + slot) + " \r\n";
    folder.Write("keyboard.dat", keys);
  }

  void Open() {
    Start();
    // Nobody switches it off before its evening ends.
    jukebox->menu.hooks.power_down = [] {};
    // Each add comes by here behind its charge, with its flags still set. The prices are told here
    // once more: by the kind of music, then "Add To Queue", "Play Next", "Play Now".
    house().selection.hand_to_master = [this](const std::string&) {
      const PlaybackState& state = house().playback;
      const int kind = house().cursor.media_kind;
      const bool both = state.play_now_flag != 0 && state.play_next_flag != 0;
      if (state.random_in_progress || both || kind > 2) return false;
      paid += kind * 3 + (state.play_now_flag != 0 ? 3 : state.play_next_flag != 0 ? 2 : 1);
      ++selections;
      return false;
    };
    paid = earned = 0;
  }

  int Draw(int n) { return static_cast<int>(draw() % static_cast<unsigned>(n)); }

  static void Collect(const Panel& panel, std::vector<const Control*>& found) {
    for (const Control* child : panel.children()) {
      if (!child->visible()) continue;
      const auto* inner = dynamic_cast<const Panel*>(child);
      if (inner != nullptr) {
        Collect(*inner, found);
      } else if (child->TakesMouse()) {
        found.push_back(child);
      }
    }
  }

  // Any place of the window, or the middle of any button, cover or row that shows.
  void Touch() {
    Point at{static_cast<float>(Draw(1280)), static_cast<float>(Draw(800))};
    if (Draw(4) > 0) {
      std::vector<const Control*> controls;
      Collect(form().form, controls);
      at = Middle(*controls[static_cast<size_t>(Draw(static_cast<int>(controls.size())))]);
    }
    // What a guest does while a track starts.
    machine.events.on_pump = [this] {
      if (!in_pump && Draw(3) == 0) {
        in_pump = true;
        TouchAt({static_cast<float>(Draw(1280)), static_cast<float>(Draw(800))});
        in_pump = false;
      }
    };
    TouchAt(at);
    machine.events.on_pump = [] {};
  }

  void TouchAt(Point at) {
    Form& window = form().form;
    if (Draw(10) == 0) return window.DoubleClickMouse(at);
    window.PressMouse(at);
    const bool slips = Draw(8) == 0;
    window.ReleaseMouse(slips ? Point{at.x + 30, at.y} : at);
  }

  void PressKey() {
    const int code = 40 + Draw(35);
    const int polls = 1 + Draw(3);
    machine.keys.down.insert(code);
    Poll(polls);
    machine.keys.down.clear();
    Poll();
  }

  void DropSpoolFile() {
    const bool rubbish = Draw(6) == 0;
    rubbish_files += rubbish;
    const std::string flags =
        " " + std::to_string(Draw(2)) + " \r\n " + std::to_string(Draw(2)) + " \r\n";
    folder.Write("Queue " + std::to_string(Draw(5)) + ".QUE",
                 rubbish ? "rubbish\r\n\r\n\r\n" : flags + AnyPath() + "\r\n");
    Poll();
  }

  std::string AnyPath() { return paths[static_cast<size_t>(Draw(static_cast<int>(paths.size())))]; }

  void PutCoin() {
    static constexpr const char* kCoins[] = {"1", "2", "20", "", "x", "0.5", "1e1"};
    static constexpr int kWorth[] = {1, 2, 20, 0, 0, 0, 10};
    const int coin = Draw(7);
    const int before = house().credits.count();
    machine.coins.put(kCoins[coin]);
    EXPECT_EQ(house().credits.count(), before + kWorth[coin]);
    earned += kWorth[coin];
  }

  void LetTimePass(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      machine.clock.Add(1000);
      machine.player.Add(1);
      machine.timers.FireDue();
    }
  }

  // What no guest, coin or key may break.
  void CheckWhatAlwaysHolds() {
    for (int i = 0; i < house().queue.count(); ++i) {
      ASSERT_FALSE(house().queue.path(i).empty());
      ASSERT_FALSE(house().queue.cover(i).empty());
    }
    const PlaybackState& state = house().playback;
    ASSERT_FALSE(state.play_now_flag || state.play_next_flag || state.random_in_progress);
    ASSERT_EQ(house().credits.count(), earned - paid);
    ASSERT_GE(house().credits.count(), 0);
    ASSERT_TRUE(house().timer1.enabled() && house().state_timer.enabled());
    ASSERT_EQ(house().boundary.failures(), rubbish_files);
    ASSERT_EQ(form().paused.visible(), state.paused);
  }

  // Three seconds without anybody: then something plays, is paused, or nothing waits.
  void CheckNoSilence() {
    LetTimePass(3);
    ASSERT_TRUE(machine.player.playing() || house().playback.paused || house().queue.count() == 0);
  }

  void CloseAndReopen() {
    const std::vector<std::string> waiting = Queued();
    jukebox->LeaveInOrder();
    ASSERT_TRUE(machine.events.left);
    machine.events.left = false;
    machine.clock.Add(18 * 3600 * 1000);
    machine.clock.date.day += 1;
    rubbish_files = 0;
    Open();
    ASSERT_EQ(Queued(), waiting);
    ASSERT_EQ(house().credits.count(), 0);
  }

  std::mt19937 draw{20240115};
  std::vector<std::string> paths;
  int paid = 0, earned = 0, selections = 0, rubbish_files = 0;
  bool in_pump = false;
};

TEST_F(WeekTest, NoGuestCoinOrKeyBreaksTheJukebox) {
  Open();
  for (int day = 0; day < 7; ++day) {
    for (int event = 0; event < 700; ++event) {
      const int kind = Draw(20);
      if (kind < 14) {
        Touch();
      } else if (kind < 17) {
        PressKey();
      } else if (kind < 18) {
        DropSpoolFile();
      } else {
        PutCoin();
      }
      ASSERT_NO_FATAL_FAILURE(CheckWhatAlwaysHolds()) << "day " << day << ", event " << event;
      LetTimePass(Draw(60));
      if (event % 50 == 0) {
        ASSERT_NO_FATAL_FAILURE(CheckNoSilence());
      }
    }
    ASSERT_NO_FATAL_FAILURE(CloseAndReopen());
  }
  // The week was worth its name.
  EXPECT_GT(selections, 100);
  EXPECT_GT(Plays(), 100U);
}

}  // namespace
}  // namespace sonotik
