// Several stations and one player, on real folders.
#include <atomic>
#include <set>
#include <thread>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

// The fixture's jukebox is the Master, whose folder is the shared one.
class StationTest : public JukeboxTest {
 protected:
  StationTest() { folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n"); }
  // Nothing leaves the queue.
  void StartPaused() {
    Start();
    house().playback.paused = true;
  }
  using Paths = std::vector<std::string>;
  // A Terminal whose box holds this.
  void BecomeTerminal(const std::string& box) {
    folder.Write("terminal.ini", "x\r\n" + box + "\r\nFalse\r\nTrue\r\n");
  }
  TempFolder terminal_folder;
};

// A shared folder that has gone, as the calls into it see it, until it comes back.
class Outage {
 public:
  explicit Outage(BoundedCalls& share) : share_(share) {
    share_.patience = std::chrono::milliseconds(0);
    EXPECT_FALSE(share_.Run([back = back_.get_future().share()] { back.wait(); }));
  }
  void End() {
    share_.patience = std::chrono::seconds(10);
    back_.set_value();
    while (!share_.Run([] {})) std::this_thread::yield();
  }

 private:
  BoundedCalls& share_;
  std::promise<void> back_;
};

TEST_F(StationTest, ATerminalsSelectionPlaysOnTheMasterWithinASecond) {
  const std::string song = WriteTrack("Day", "a, b & c.wav");
  Start();
  TestMachine panel;
  terminal_folder.Write("sonotik.def", folder.Read("sonotik.def"));
  terminal_folder.Write("Records.rec", "");
  terminal_folder.Write("startup.mp3", "sound");
  terminal_folder.Write("terminal.ini", "x\r\n" + folder.path() + "\\\r\nFalse\r\nTrue\r\n");
  Jukebox terminal(terminal_folder.path(), panel.machine);
  ASSERT_EQ(terminal.Start(), StartUpResult::kRunning);
  terminal.navigation.Choose(song, PlayWay::kAddToQueue);
  Advance(1);
  EXPECT_EQ(machine.player.file, song);
  EXPECT_EQ(panel.player.file, "");
  EXPECT_FALSE(folder.Has("Queue.QUE"));
  EXPECT_FALSE(folder.Has("Queue.0.part"));
}

TEST_F(StationTest, AHundredSelectionsOfFourTerminalsAtOnceArriveOnceEachAndWhole) {
  StartPaused();
  std::set<std::string> sent;
  for (int i = 0; i < 100; ++i) sent.insert("\\m\\" + std::to_string(i) + ".wav");
  std::vector<std::thread> terminals;
  for (int t = 0; t < 4; ++t) {
    terminals.emplace_back([t, shared = folder.path() + "\\"] {
      BoundedCalls share;
      share.patience = std::chrono::seconds(60);
      const std::string none;
      Network network(none, share);
      network.SetSharedFolder(shared);
      for (int i = 0; i < 25; ++i) {
        network.WriteSpool({0, 0, "\\m\\" + std::to_string(t * 25 + i) + ".wav"});
      }
    });
  }
  std::atomic<bool> written = false;
  std::thread last([&] {
    for (std::thread& terminal : terminals) terminal.join();
    written = true;
  });
  while (!written) Poll();
  last.join();
  Poll(101);
  const Paths arrived = Queued();
  EXPECT_EQ(arrived.size(), 100U);
  EXPECT_EQ(std::set(arrived.begin(), arrived.end()), sent);
  EXPECT_EQ(house().boundary.failures(), 0);
}

TEST_F(StationTest, AFolderThatDoesNotAnswerStallsNobodyAndLosesNothing) {
  StartPaused();
  for (const std::string name : {"1", "2"}) {
    folder.Write("Queue " + name + ".QUE", " 0 \r\n 0 \r\n\\m\\" + name + ".wav\r\n");
  }
  Outage outage(house().share);
  house().credits.Receive("5");
  Poll(100);
  EXPECT_EQ(house().queue.count(), 0);
  EXPECT_EQ(house().credits.count(), 5);
  outage.End();
  Poll();
  EXPECT_EQ(Queued(), Paths{"\\m\\1.wav"}) << "one file a poll";
  Poll();
  EXPECT_EQ(Queued(), Paths({"\\m\\1.wav", "\\m\\2.wav"}));
  EXPECT_EQ(house().boundary.failures(), 0);
}

TEST_F(StationTest, WhatATerminalCouldNotHandOverIsPaidBackAndNeverArrivesLater) {
  BoundedCalls share;
  const std::string none;
  Network network(none, share);
  network.SetSharedFolder(folder.path() + "\\");
  {
    Outage outage(share);
    EXPECT_THROW(network.WriteSpool({0, 0, "\\m\\lost.wav"}), RuntimeFailure);
    outage.End();
  }
  EXPECT_FALSE(folder.Has("Queue.QUE"));
  // Given up at every moment of the writing: told to have failed and lying there never go together.
  int handed_over = 0;
  for (int i = 0; i < 300; ++i) {
    share.patience = std::chrono::milliseconds(i % 3);
    try {
      network.WriteSpool({0, 0, "\\m\\" + std::to_string(i) + ".wav"});
      ++handed_over;
    } catch (const RuntimeFailure&) {
    }
  }
  share.patience = std::chrono::seconds(10);
  while (!share.Run([] {})) std::this_thread::yield();
  int lying = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder.native())) {
    EXPECT_NE(entry.path().extension(), ".part");
    if (entry.path().extension() == ".QUE") ++lying;
  }
  EXPECT_EQ(lying, handed_over);
}

TEST_F(StationTest, ATerminalHandsOverIntoItsBoxOrTheWorkingFolderAndPlaysNothing) {
  folder.Write("shared/x", "");
  const std::string song = WriteTrack("Day", "1.wav");
  for (const std::string place : {"shared/", ""}) {
    BecomeTerminal(place.empty() ? "" : folder.path() + "\\shared\\");
    Start();
    Choose("\\m\\1.wav", PlayWay::kPlayNext);
    Choose(song);
    EXPECT_EQ(folder.Read(place + "Queue.QUE"), " 0 \r\n 1 \r\n\\m\\1.wav\r\n");
    EXPECT_EQ(folder.Read(place + "Queue 1.QUE"), " 1 \r\n 0 \r\n" + song + "\r\n");
    EXPECT_EQ(house().queue.count(), 0);
    EXPECT_EQ(machine.player.file, "");
    EXPECT_TRUE(folder.Has("queue.upl"));
  }
}

TEST_F(StationTest, ATerminalTakesThePriceAndGivesItBackWhenItsShareIsGone) {
  BecomeTerminal(folder.path() + "\\shared\\");
  StartPaid(5);
  EXPECT_FALSE(jukebox->navigation.Choose("\\m\\1.wav", PlayWay::kAddToQueue)) << "asks again";
  EXPECT_EQ(form().credits.caption(), "CREDITS:  5");
  EXPECT_EQ(house().boundary.failures(), 1);
  folder.Write("shared/x", "");
  EXPECT_TRUE(jukebox->navigation.Choose("\\m\\1.wav", PlayWay::kAddToQueue));
  EXPECT_EQ(form().credits.caption(), "CREDITS:  3");
  EXPECT_TRUE(folder.Has("shared/Queue.QUE"));
}

TEST_F(StationTest, ABoxThatIsNoFolderTakesNoSelection) {
  const std::string app_path = folder.path();
  BoundedCalls share;
  for (const std::string& box : {std::string(100000, 'x') + "\\", std::string("..\\gone\\"),
                                 folder.path() + "\\terminal.ini\\"}) {
    BecomeTerminal(box);
    Network network(app_path, share);
    network.LoadTerminal();
    EXPECT_THROW(network.WriteSpool({0, 0, "\\m\\1.wav"}), RuntimeFailure) << box.substr(0, 20);
  }
}

TEST_F(StationTest, SpoolFilesOfAnyBytesStopNothing) {
  folder.Write("music/song.wav", "sound");
  Start();
  const std::string music = folder.path() + "\\music";
  const struct {
    std::string flags, path;
  } cases[] = {
      {" 2 \r\n-7 ", music + "\\..\\music\\song.wav"},
      {"1\r\n0", music},                                // a folder
      {" 1 \r\n 0 ", music + "\\gone.wav"},             // nothing
      {" 1 \r\n 0 ", folder.path() + "\\sonotik.def"},  // no media
      {" 0 \r\n 0 ", std::string(60000, 'x')},
      {" 0 \r\n 0 ", std::string(100000, 'x')},
      {"\xFF\r\n\0", "\\m\\1.wav"},
      {"70000\r\n 0 ", "\\m\\1.wav"},
      {"True\r\nFalse", "\\m\\1.wav"},
  };
  int n = 0;
  for (const auto& each : cases) {
    folder.Write("Queue " + std::to_string(++n) + ".QUE", each.flags + "\r\n" + each.path + "\r\n");
  }
  std::filesystem::create_symlink("gone", folder.native() / "A.que");
  folder.Write("Queue 91.QUE", "rubbish\r\n\r\n\r\n");
  folder.Write("Queue 92.que", " 0 \r\n 0 \r\n  \r\n");
  const std::string last = WriteTrack("Day", "1.wav");
  folder.Write("Queue.QUE", " 1 \r\n 0 \r\n" + last + "\r\n 1 \r\n 0 \r\n\\m\\second.wav\r\n");
  Poll(15);
  EXPECT_EQ(machine.player.file, last);
  EXPECT_FALSE(folder.Has("Queue.QUE"));
  EXPECT_EQ(house().playback.play_now_flag, 0);
}

TEST_F(StationTest, HalfWrittenFilesWaitUntilTheyAreWholeAndKeepNoOtherWaiting) {
  StartPaused();
  const std::string whole = " 0 \r\n 0 \r\n\\m\\1.wav\r\n";
  folder.Write("B.QUE", " 0 \r\n 0 \r\n\\m\\2.wav");
  folder.Write("C.QUE", " 0 \r\n");
  folder.Write("D.QUE", " 0 \r\n 0 \r\n\\m\\4.wav\r\n");
  folder.Write("E.QUE", "");
  folder.Write("F.QUE", " 0 \r\n 0 \r\n" + std::string(100000, 'x') + "\r\n");
  // The first one grows, byte by byte.
  for (int n = 0; n < SpoolFolder::kPatience - 1; ++n) {
    folder.Write("A.QUE", whole.substr(0, static_cast<size_t>(n) % whole.size()));
    Poll();
  }
  EXPECT_EQ(Queued(), Paths{"\\m\\4.wav"});
  folder.Write("A.QUE", whole);
  // The first is whole now, the second has stood still, the others never were selections.
  Poll(6);
  EXPECT_EQ(Queued(), Paths({"\\m\\4.wav", "\\m\\1.wav", "\\m\\2.wav"}));
  EXPECT_EQ(folder.Read("C.QUE.bad"), " 0 \r\n");
  EXPECT_FALSE(folder.Has("C.QUE"));
  EXPECT_TRUE(folder.Has("E.QUE.bad") && folder.Has("F.QUE.bad"));
}

TEST_F(StationTest, AServedFileThatCanNotBeDeletedIsServedOnce) {
  namespace fs = std::filesystem;
  StartPaused();
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
  EXPECT_EQ(Queued(), Paths{"\\m\\2.wav"});
  EXPECT_FALSE(house().network.ReadSpool());
  // Written anew it is another selection.
  folder.Write("A.QUE", " 0 \r\n 0 \r\n\\m\\11.wav\r\n");
  Poll();
  EXPECT_EQ(Queued()[1], "\\m\\11.wav");
}

}  // namespace
}  // namespace sonotik
