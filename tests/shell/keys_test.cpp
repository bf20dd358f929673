#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class KeysTest : public JukeboxTest {
 protected:
  KeysTest() {
    for (int i = 1; i <= 15; ++i) {
      WriteTrack("Long", LastDigits(i, 2) + ".wav", "Ada", "T" + std::to_string(i));
    }
    std::vector<TestAlbum> albums = {{"Long", "Ada"}};
    for (int i = 2; i <= 30; ++i) albums.push_back({"B" + std::to_string(i), "Bob"});
    WriteAlbums(albums);
    // Each slot has the key 40 + slot.
    std::string map;
    for (int slot = 0; slot < 35; ++slot) map += " " + std::to_string(40 + slot) + " \r\n";
    folder.Write("keyboard.dat", map);
  }
  // Held for so many polls, and let go for one.
  void PressSlot(int slot, int polls = 3) {
    machine.keys.down.insert(40 + slot);
    Poll(polls);
    machine.keys.down.erase(40 + slot);
    Poll();
  }
};

TEST_F(KeysTest, OnePressIsOneActionHoweverLongItIsHeld) {
  Start();
  const std::tuple<int, int, int> presses[] = {{6, 50, 13}, {6, 3, 25}, {6, 3, 25},
                                               {5, 3, 13},  {5, 3, 1},  {5, 3, 1}};
  for (const auto& [slot, polls, position] : presses) {
    PressSlot(slot, polls);
    EXPECT_EQ(house().cursor.position(), position);
  }
}

TEST_F(KeysTest, AKeyThatIsHeldOrStuckInTheStartOfATrackStopsNoMusic) {
  Start();
  machine.events.on_pump = [&] {
    machine.keys.down.insert(40 + 13);
    Poll();
  };
  Choose(AlbumPath("Long") + "01.wav");
  machine.events.on_pump = [] {};
  EXPECT_TRUE(form().panel(screen::kHistory).visible());
  EXPECT_EQ(Playing(), AlbumPath("Long") + "01.wav");
  Choose(AlbumPath("Long") + "02.wav", PlayWay::kAddToQueue);
  Advance(40);
  EXPECT_EQ(Playing(), AlbumPath("Long") + "02.wav");
}

TEST_F(KeysTest, TheSelectKeyOnTwoScreensActsOnceAPress) {
  Start();
  PressSlot(3);
  // With the album pages behind it the track list has the first word, and it has no row yet.
  house().track_list.Open(AlbumPath("Long"));
  house().track_list.SelectRow(0);
  PressSlot(4);
  EXPECT_EQ(house().queue.count(), 1);
  EXPECT_FALSE(form().panel(screen::kTrackList).visible());
}

TEST_F(KeysTest, CoversAreMarkedOpenedAndTheirTracksTaken) {
  Start();
  PressSlot(2);
  EXPECT_EQ(house().pages.highlight(), -1);
  PressSlot(3);
  EXPECT_EQ(house().pages.highlight(), 0);
  EXPECT_TRUE(form().album.covers[0].album.highlighted());
  PressSlot(4);
  EXPECT_TRUE(form().panel(screen::kTrackList).visible());
  PressSlot(0);
  EXPECT_EQ(house().track_list.selected_row(), -1);
  PressSlot(4);
  EXPECT_EQ(house().queue.count(), 0);
  PressSlot(1);
  PressSlot(1);
  EXPECT_EQ(house().track_list.selected_row(), 1);
  PressSlot(4);
  EXPECT_EQ(house().queue.path(0), AlbumPath("Long") + "02.wav");
  EXPECT_EQ(Shown(), Screens{screen::kAlbum});
}

TEST_F(KeysTest, AScrolledListYieldsTheFileOfTheUnscrolledRowAndARowWithoutATrackNothing) {
  Start();
  house().track_list.Open(AlbumPath("Long"));
  Click(form().track_list.down);
  EXPECT_EQ(form().track_list.rows[0].title.caption(), "T14");
  PressSlot(1);
  EXPECT_TRUE(form().track_list.play_now.visible());
  for (int i = 0; i < 2; ++i) PressSlot(1);
  EXPECT_EQ(house().track_list.selected_row(), 2);
  EXPECT_FALSE(form().track_list.play_now.visible());
  EXPECT_FALSE(form().track_list.add_entire_album.visible());
  for (int i = 0; i < 2; ++i) PressSlot(0);
  PressSlot(4);
  EXPECT_EQ(house().queue.path(0), AlbumPath("Long") + "01.wav");
}

TEST_F(KeysTest, TheVolumeKeysRunAgainstTheirNamesAndStopInside) {
  Start();
  int& volume = house().settings.main_volume;
  const std::tuple<int, int, int> presses[] = {{10, -60, -90}, {11, -60, -30}, {11, -30, -30}};
  for (const auto& [slot, before, after] : presses) {
    volume = before;
    PressSlot(slot);
    EXPECT_EQ(volume, after);
  }
  Click(form().player_buttons[static_cast<size_t>(PlayerButton::kVolumeUp)]);
  EXPECT_EQ(volume, 0);
  volume = kLeastVolume + 30;
  PressSlot(10);
  EXPECT_EQ(volume, kLeastVolume + 30);
}

TEST_F(KeysTest, PauseAndNextActOnTheTrackThatPlays) {
  Start();
  Choose(AlbumPath("Long") + "01.wav");
  for (const auto& [slot, plays] : {std::pair(8, false), {9, false}, {8, true}, {9, false}}) {
    PressSlot(slot);
    EXPECT_EQ(machine.player.playing(), plays);
    EXPECT_EQ(house().playback.paused, form().paused.visible());
  }
  PressSlot(20);
  EXPECT_TRUE(house().playback.random_mode_on && house().settings.enable_random_play);
  EXPECT_EQ(form().random.caption(), "Random ON");
}

TEST_F(KeysTest, TheQueueKeyShowsTheQueueAsItIsNowAndTheSearchKeyBeginsAfresh) {
  const auto track = [this](int i) { return AlbumPath("Long") + LastDigits(i, 2) + ".wav"; };
  Start();
  machine.player.lengths[track(1)] = 9000;
  Choose(track(1));
  for (int i : {2, 3}) Choose(track(i), PlayWay::kAddToQueue);
  PressMenu(MenuButton::kShowQueue);
  Click(form().queue.rows[1].touch);
  Click(form().queue.back);
  Choose(track(4), PlayWay::kPlayNext);
  PressSlot(16);
  EXPECT_EQ(form().queue.rows[0].track.caption(), "Track : T4");
  EXPECT_EQ(form().queue.rows[1].track.caption(), "Track : T2");
  // Left as it was chosen, unlike by the menu.
  EXPECT_EQ(house().queue_view.selection(), 1);
  for (int i = 0; i < 2; ++i) {
    PressSlot(15);
    EXPECT_EQ(form().search.entry.caption(), "");
    Click(form().search.keys[0]);
    Click(form().search.back);
  }
}

TEST_F(KeysTest, KeypadKeysAreStoredAndNeverAskedAndPowerOffWaitsForTheKeyBeforeIt) {
  Start();
  int offs = 0;
  jukebox->menu.hooks.power_down = [&] { ++offs; };
  for (int slot = 21; slot <= 33; ++slot) PressSlot(slot);
  for (int slot = 21; slot <= 33; ++slot) EXPECT_FALSE(machine.keys.asked.contains(40 + slot));
  PressSlot(34);
  EXPECT_EQ(offs, 3);
  machine.keys.down.insert(40 + 20);
  PressSlot(34);
  EXPECT_EQ(offs, 3);
}

TEST_F(KeysTest, WithoutKeyMappingOnlyEscapeLivesAndTheSpoolIsServed) {
  settings.disable_keymapping = true;
  folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
  Start();
  PressSlot(6);
  EXPECT_EQ(house().cursor.position(), 1);
  // Escape is 27; what is waited for is the key 48 above "Browse Back".
  machine.keys.down.insert(45 + 48);
  machine.keys.down.insert(27);
  folder.Write("Queue.QUE", " 0 \r\n 0 \r\n\\m\\x, y.wav\r\n");
  Poll();
  EXPECT_TRUE(form().panel(screen::kOptions).visible());
  EXPECT_EQ(house().queue.path(0), "\\m\\x, y.wav");
  // A poll that waits serves nothing.
  folder.Write("Queue.QUE", " 0 \r\n 0 \r\n\\m\\z.wav\r\n");
  Poll(5);
  EXPECT_EQ(house().queue.count(), 1);
  machine.keys.down.clear();
  Poll();
  EXPECT_EQ(house().queue.count(), 2);
}

}  // namespace
}  // namespace sonotik
