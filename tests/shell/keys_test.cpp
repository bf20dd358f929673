#include <gtest/gtest.h>

#include "files/files.h"
#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class KeysTest : public JukeboxTest {
 protected:
  KeysTest() {
    for (int i = 1; i <= 15; ++i) {
      WriteTrack("Long", LastDigitsOf(i) + ".wav", "Ada", "T" + std::to_string(i));
    }
    std::vector<TestAlbum> albums = {{"Long", "Ada"}};
    for (int i = 2; i <= 30; ++i) albums.push_back({"B" + std::to_string(i), "Bob"});
    WriteAlbums(albums);
    // Each slot has the key 40 + slot.
    std::string map;
    for (int slot = 0; slot < 35; ++slot) map += " " + std::to_string(40 + slot) + " \r\n";
    folder.Write("keyboard.dat", map);
  }
  static std::string LastDigitsOf(int i) { return (i < 10 ? "0" : "") + std::to_string(i); }

  void Poll(int times = 1) {
    for (int i = 0; i < times; ++i) {
      machine.clock.Add(10);
      machine.timers.FireDue();
    }
  }
  // Held for so many polls, and let go for one.
  void Press(int code, int polls = 3) {
    machine.keys.down.insert(code);
    Poll(polls);
    machine.keys.down.erase(code);
    Poll();
  }
  void PressSlot(int slot, int polls = 3) { Press(40 + slot, polls); }
};

TEST_F(KeysTest, OnePressIsOneActionHoweverLongItIsHeld) {
  Start();
  PressSlot(6, 50);
  EXPECT_EQ(house().cursor.position(), 13);
  PressSlot(6);
  EXPECT_EQ(house().cursor.position(), 25);
  PressSlot(6);
  EXPECT_EQ(house().cursor.position(), 25);
  PressSlot(5);
  PressSlot(5);
  EXPECT_EQ(house().cursor.position(), 1);
  PressSlot(5);
  EXPECT_EQ(house().cursor.position(), 1);
}

TEST_F(KeysTest, TheTickGoesOnWhileAKeyIsHeld) {
  Start();
  house().selection.Choose(AlbumPath("Long") + "01.wav", PlayWay::kPlayNow);
  house().selection.Choose(AlbumPath("Long") + "02.wav", PlayWay::kAddToQueue);
  machine.keys.down.insert(40 + 12);
  Advance(40);
  EXPECT_EQ(machine.player.file, AlbumPath("Long") + "02.wav");
}

TEST_F(KeysTest, AKeyThatIsStuckInTheStartOfATrackDoesNotHoldIt) {
  Start();
  machine.events.on_pump = [&] {
    machine.keys.down.insert(40 + 13);
    Poll();
  };
  house().selection.Choose(AlbumPath("Long") + "01.wav", PlayWay::kPlayNow);
  machine.events.on_pump = [] {};
  EXPECT_TRUE(form().panel(screen::kHistory).visible());
  EXPECT_EQ(machine.player.file, AlbumPath("Long") + "01.wav");
  EXPECT_TRUE(house().state_timer.enabled());
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
  EXPECT_TRUE(form().panel(screen::kAlbum).visible());
  EXPECT_FALSE(form().panel(screen::kTrackList).visible());
}

TEST_F(KeysTest, AScrolledListYieldsTheFileOfTheUnscrolledRow) {
  Start();
  house().track_list.Open(AlbumPath("Long"));
  Click(form().track_list.down);
  EXPECT_EQ(form().track_list.rows[0].title.caption(), "T14");
  PressSlot(1);
  PressSlot(4);
  EXPECT_EQ(house().queue.path(0), AlbumPath("Long") + "01.wav");
}

TEST_F(KeysTest, ARowWithoutATrackOffersNothing) {
  Start();
  house().track_list.Open(AlbumPath("Long"));
  Click(form().track_list.down);
  PressSlot(1);
  EXPECT_TRUE(form().track_list.play_now.visible());
  PressSlot(1);
  PressSlot(1);
  EXPECT_EQ(house().track_list.selected_row(), 2);
  EXPECT_FALSE(form().track_list.play_now.visible());
  EXPECT_FALSE(form().track_list.add_entire_album.visible());
}

TEST_F(KeysTest, TheVolumeKeysRunAgainstTheirNamesAndStopInside) {
  Start();
  house().settings.main_volume = -60;
  PressSlot(10);
  EXPECT_EQ(house().settings.main_volume, -90);
  PressSlot(11);
  PressSlot(11);
  EXPECT_EQ(house().settings.main_volume, -30);
  PressSlot(11);
  EXPECT_EQ(house().settings.main_volume, -30);
  Click(form().player_buttons[static_cast<size_t>(PlayerButton::kVolumeUp)]);
  EXPECT_EQ(house().settings.main_volume, 0);
  house().settings.main_volume = kLeastVolume + 30;
  PressSlot(10);
  EXPECT_EQ(house().settings.main_volume, kLeastVolume + 30);
}

TEST_F(KeysTest, PauseAndNextActOnTheTrackThatPlays) {
  Start();
  house().selection.Choose(AlbumPath("Long") + "01.wav", PlayWay::kPlayNow);
  PressSlot(8);
  EXPECT_TRUE(house().playback.paused);
  PressSlot(9);
  EXPECT_FALSE(machine.player.playing());
  PressSlot(8);
  EXPECT_TRUE(machine.player.playing());
  PressSlot(9);
  EXPECT_FALSE(machine.player.playing());
  PressSlot(20);
  EXPECT_TRUE(house().playback.random_mode_on);
  EXPECT_TRUE(house().settings.enable_random_play);
  EXPECT_EQ(form().random.caption(), "Random ON");
}

TEST_F(KeysTest, TheQueueKeyShowsTheQueueAsItIsNow) {
  Start();
  machine.player.lengths[AlbumPath("Long") + "01.wav"] = 9000;
  house().selection.Choose(AlbumPath("Long") + "01.wav", PlayWay::kPlayNow);
  house().selection.Choose(AlbumPath("Long") + "02.wav", PlayWay::kAddToQueue);
  house().selection.Choose(AlbumPath("Long") + "03.wav", PlayWay::kAddToQueue);
  Click(form().menu_buttons[static_cast<size_t>(MenuButton::kShowQueue)]);
  Click(form().queue.rows[1].touch);
  Click(form().queue.back);
  house().selection.Choose(AlbumPath("Long") + "04.wav", PlayWay::kPlayNext);
  PressSlot(16);
  EXPECT_EQ(form().queue.rows[0].track.caption(), "Track : T4");
  EXPECT_EQ(form().queue.rows[1].track.caption(), "Track : T2");
  // Left as it was chosen, unlike by the menu.
  EXPECT_EQ(house().queue_view.selection(), 1);
}

TEST_F(KeysTest, KeypadKeysAreStoredAndNeverAsked) {
  Start();
  for (int slot = 21; slot <= 33; ++slot) PressSlot(slot);
  for (int slot = 21; slot <= 33; ++slot) EXPECT_FALSE(machine.keys.asked.contains(40 + slot));
  EXPECT_TRUE(machine.keys.asked.contains(40 + 34));
}

TEST_F(KeysTest, PowerOffWaitsForTheKeyBeforeIt) {
  Start();
  int offs = 0;
  jukebox->menu.hooks.power_down = [&] { ++offs; };
  PressSlot(34, 3);
  EXPECT_EQ(offs, 3);
  machine.keys.down.insert(40 + 20);
  PressSlot(34, 3);
  EXPECT_EQ(offs, 3);
}

TEST_F(KeysTest, WithoutKeyMappingOnlyEscapeLivesAndTheSpoolIsServed) {
  settings.disable_keymapping = true;
  WriteDefaults();
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

TEST_F(KeysTest, AMasterServesOneFileAPollAndADamagedOneStopsNothing) {
  folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
  Start();
  folder.Write("Queue 1.QUE", "rubbish\r\n\r\n\r\n");
  folder.Write("Queue 2.que", "");
  folder.Write("Queue 0.que", " 0 \r\n 0 \r\n  \r\n");
  std::filesystem::create_symlink("gone", folder.native() / "A.que");
  folder.Write("Queue 3.que", " 0 \r\n 1 \r\n\\m\\3.wav\r\n");
  folder.Write("Queue.QUE", " 0 \r\n 0 \r\n\\m\\4.wav\r\n 0 \r\n 0 \r\n\\m\\5.wav\r\n");
  for (int i = 0; i < 8; ++i) {
    machine.clock.Add(10);
    machine.timers.FireDue();
  }
  EXPECT_EQ(house().boundary.failures(), 2);
  EXPECT_EQ(house().queue.count(), 2);
  EXPECT_EQ(house().queue.path(0), "\\m\\3.wav");
  EXPECT_EQ(house().queue.path(1), "\\m\\4.wav");
  EXPECT_EQ(house().playback.play_next_flag, 0);
  EXPECT_TRUE(folder.Has("Queue 2.que"));
  EXPECT_FALSE(folder.Has("Queue.QUE"));
}

TEST_F(KeysTest, ATerminalHandsItsSelectionsOver) {
  const std::string shared = folder.path() + "\\shared\\";
  folder.Write("shared/x", "");
  folder.Write("terminal.ini", "x\r\n" + shared + "\r\nFalse\r\nTrue\r\n");
  Start();
  house().selection.Choose("\\m\\1.wav", PlayWay::kPlayNext);
  house().selection.Choose(AlbumPath("Long") + "01.wav", PlayWay::kPlayNow);
  EXPECT_EQ(folder.Read("shared/Queue.QUE"), " 0 \r\n 1 \r\n\\m\\1.wav\r\n");
  EXPECT_EQ(folder.Read("shared/Queue 1.QUE").substr(0, 10), " 1 \r\n 0 \r\n");
  EXPECT_EQ(house().queue.count(), 0);
  EXPECT_EQ(machine.player.file, "");
  EXPECT_TRUE(folder.Has("queue.upl"));
}

TEST_F(KeysTest, ATerminalWhoseShareIsGoneGivesThePriceBack) {
  settings.enable_credit_mode = true;
  WriteDefaults();
  folder.Write("cost.dat", " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\n");
  folder.Write("terminal.ini", "x\r\n" + folder.path() + "\\gone\\\r\nFalse\r\nTrue\r\n");
  Start();
  house().credits.Receive("5");
  jukebox->navigation.Choose("\\m\\1.wav", PlayWay::kAddToQueue);
  EXPECT_EQ(house().credits.count(), 5);
  EXPECT_EQ(form().credits.caption(), "CREDITS:  5");
  EXPECT_EQ(house().boundary.failures(), 1);
}

class SpoolTest : public KeysTest {
 protected:
  SpoolTest() {
    folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n");
    Start();
    house().playback.paused = true;  // nothing leaves the queue
  }
  std::string Queued(int index) { return house().queue.path(index); }
};

TEST_F(SpoolTest, HalfWrittenFilesWaitUntilTheyAreWholeAndKeepNoOtherWaiting) {
  const std::string whole = " 0 \r\n 0 \r\n\\m\\1.wav\r\n";
  folder.Write("B.QUE", " 0 \r\n 0 \r\n\\m\\2.wav");
  folder.Write("C.QUE", " 0 \r\n");
  folder.Write("D.QUE", " 0 \r\n 0 \r\n\\m\\4.wav\r\n");
  folder.Write("E.QUE", "");
  folder.Write("F.QUE", " 0 \r\n 0 \r\n" + std::string(100000, 'x') + "\r\n");
  // The first one grows, byte by byte.
  for (int n = 0; n < SpoolFolder::kPatience - 1; ++n) {
    folder.Write("A.QUE", whole.substr(0, static_cast<size_t>(n) % whole.size()));
    Poll(1);
  }
  EXPECT_EQ(house().queue.count(), 1);
  EXPECT_EQ(Queued(0), "\\m\\4.wav");
  folder.Write("A.QUE", whole);
  // The first is whole now, the second has stood still, the others never were selections.
  Poll(6);
  ASSERT_EQ(house().queue.count(), 3);
  EXPECT_EQ(Queued(1), "\\m\\1.wav");
  EXPECT_EQ(Queued(2), "\\m\\2.wav");
  EXPECT_EQ(folder.Read("C.QUE.bad"), " 0 \r\n");
  EXPECT_FALSE(folder.Has("C.QUE"));
  EXPECT_TRUE(folder.Has("E.QUE.bad") && folder.Has("F.QUE.bad"));
}

TEST_F(SpoolTest, AServedFileThatCanNotBeDeletedIsServedOnce) {
  namespace fs = std::filesystem;
  const fs::path file = folder.native() / "A.QUE";
  const fs::path aside = folder.native() / "aside";
  folder.Write("A.QUE", " 0 \r\n 0 \r\n\\m\\1.wav\r\n");
  ASSERT_TRUE(house().network.ReadSpool());
  // A folder with something in it can't be deleted.
  fs::rename(file, aside);
  folder.Write("A.QUE/x", "");
  EXPECT_THROW(house().network.RemoveSpool(), RuntimeFailure);
  fs::remove_all(file);
  fs::rename(aside, file);
  EXPECT_FALSE(house().network.ReadSpool());
  folder.Write("B.QUE", " 0 \r\n 0 \r\n\\m\\2.wav\r\n");
  Poll(2);
  EXPECT_EQ(house().queue.count(), 1);
  EXPECT_FALSE(house().network.ReadSpool());
  // Written anew it is another selection.
  folder.Write("A.QUE", " 0 \r\n 0 \r\n\\m\\11.wav\r\n");
  Poll(1);
  EXPECT_EQ(Queued(1), "\\m\\11.wav");
}

}  // namespace
}  // namespace sonotik
