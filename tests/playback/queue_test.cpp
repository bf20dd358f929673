#include "playback/queue.h"

#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class QueueTest : public JukeboxTest {
 protected:
  QueueTest() { settings.save_queue_on_shutdown = true; }
  Queue& queue() { return house().queue; }
  void Press(QueueCommand command) { Click(form().queue.commands[static_cast<size_t>(command)]); }
  // The rows' songs, the chosen one with a star.
  std::string Rows() {
    std::string text;
    for (const QueueRow& row : form().queue.rows) {
      const std::string& caption = row.track.caption();
      text += (caption.empty() ? "-" : caption.substr(8)) + (row.touch.highlighted() ? "* " : " ");
    }
    return text;
  }
  using Paths = std::vector<std::string>;
};

TEST_F(QueueTest, IsSavedInPairsWithOnePairBehindTheLast) {
  Start();
  queue().Save();
  EXPECT_EQ(folder.Read("queue.dat"), " 0 \r\n\r\n\r\n");
  queue().Append("\\m\\a, b.mp3", "\\m\\Cover.jpg");
  queue().Save();
  EXPECT_EQ(folder.Read("queue.dat"), " 1 \r\n\\m\\a, b.mp3\r\n\\m\\Cover.jpg\r\n\r\n\r\n");
  queue().Clear();
  queue().Load();
  EXPECT_EQ(Queued(), Paths{"\\m\\a, b.mp3"});
  EXPECT_EQ(queue().cover(0), "\\m\\Cover.jpg");
}

TEST_F(QueueTest, ADamagedQueueNeverKeepsTheJukeboxFromStarting) {
  const std::pair<const char*, int> cases[] = {{"", 0},
                                               {"garbage", 0},
                                               {" -5 \r\nx\r\ny\r\n", 0},
                                               {" 2 \r\na\r\nb\r\n", 1},
                                               {" 2 \r\na\r\nb\r\n   \r\nc\r\n\r\n\r\n", 1},
                                               {" 1 \r\na\r\nb\r\nc\r\nd\r\n", 2},
                                               {" 99999999999 \r\na\r\nb\r\n", 1}};
  for (const auto& [bytes, entries] : cases) {
    folder.Write("queue.dat", bytes);
    Start();
    EXPECT_EQ(result, StartUpResult::kRunning);
    EXPECT_EQ(queue().count(), entries) << bytes;
    EXPECT_TRUE(house().state_timer.enabled());
  }
}

TEST_F(QueueTest, PlayNextGoesBeforeAnEarlierPlayNextAndAnyPartOfAPathIsADuplicate) {
  Start();
  Choose("\\m\\1.wav", PlayWay::kAddToQueue);
  for (const char* path : {"\\m\\2.wav", "\\m\\Song.mp3.old"}) Choose(path, PlayWay::kPlayNext);
  EXPECT_EQ(Queued(), (Paths{"\\m\\Song.mp3.old", "\\m\\2.wav", "\\m\\1.wav"}));
  EXPECT_EQ(house().playback.play_next_flag, 0);
  EXPECT_TRUE(queue().Contains("\\M\\song.MP3"));
  EXPECT_FALSE(queue().Contains("\\m\\other.mp3"));
  // It is found through the name of a sidecar, too.
  house().settings.allow_duplicates_in_queue = false;
  house().play_options.show_play_options("\\m\\2.wav.tag", screen::kTrackList);
  EXPECT_EQ(form().play_options.message.caption(), "Track Already In Queue");
}

TEST_F(QueueTest, AShuffleKeepsEveryEntryWithItsCoverAndMovesTenAtMost) {
  Start();
  const auto shuffle = [this](int count) {
    queue().Clear();
    for (int i = 0; i < count; ++i) {
      queue().Append("p" + LastDigits(i, 2), "c" + LastDigits(i, 2));
    }
    queue().shuffle_queue();
    int moved = 0;
    for (int i = 0; i < count; ++i) {
      EXPECT_EQ(queue().path(i).substr(1), queue().cover(i).substr(1));
      moved += queue().path(i) != "p" + LastDigits(i, 2);
    }
    const Paths paths = Queued();
    EXPECT_EQ(std::set(paths.begin(), paths.end()).size(), static_cast<size_t>(count));
    return moved;
  };
  EXPECT_EQ(shuffle(1), 0);
  EXPECT_GT(shuffle(15), 0);
  shuffle(40);
  // The others stand as they stood.
  const Paths paths = Queued();
  EXPECT_TRUE(std::is_sorted(paths.begin(), paths.begin() + 30));
}

TEST_F(QueueTest, TheExportNamesEachEntryAndReadsAgainOnlyWhatHasChanged) {
  settings.use_second_monitor = true;
  const std::string path = WriteTrack("Q", "1.wav", "Ada", "Dawn");
  const std::string damaged = WriteTrack("Q", "2.wav");
  folder.Write("music/Q/2.wav.tag", "too short");
  Start();
  Choose(path, PlayWay::kAddToQueue);
  const std::string cover = AlbumPath("Q") + "Cover.jpg";
  EXPECT_EQ(folder.Read("queue.upl"),
            " 1 \r\n" + path + "\r\n" + cover + "\r\nAda\r\nDawn\r\nQ\r\n\r\n\r\n");
  WriteTrack("Q", "1.wav", "Ada Two", "Dawn");
  Choose(damaged, PlayWay::kAddToQueue);
  const std::string text = folder.Read("queue.upl");
  EXPECT_EQ(text.substr(0, 5), " 2 \r\n");
  EXPECT_NE(text.find("Ada Two\r\n"), std::string::npos);
  // By size and time the same: it isn't read again.
  const auto sidecar = folder.native() / "music/Q/1.wav.tag";
  const auto time = std::filesystem::last_write_time(sidecar);
  folder.Write("music/Q/1.wav.tag", Sidecar("Ada 222", "Dawn", "Q", "0:30"));
  std::filesystem::last_write_time(sidecar, time);
  queue().Export();
  EXPECT_EQ(folder.Read("queue.upl"), text);
}

TEST_F(QueueTest, AQueueThatCouldNotBeReadIsNotReplaced) {
  // A file whose reading fails in the middle of a disk that works.
  std::filesystem::create_symlink("/proc/self/mem", folder.native() / "queue.dat");
  Start();
  EXPECT_GE(house().boundary.failures(), 1);
  jukebox->LeaveInOrder();
  EXPECT_TRUE(std::filesystem::is_symlink(folder.native() / "queue.dat"));
}

class QueueScreenTest : public QueueTest {
 protected:
  QueueScreenTest() { folder.Write("terminal.ini", "x\r\n\r\nTrue\r\nFalse\r\n"); }
  // Seven songs behind one that plays; the screen shows.
  void Open() {
    for (int i = 0; i < 8; ++i) {
      paths.push_back(WriteTrack("Q", std::to_string(i) + ".wav", "Ada", "T" + std::to_string(i)));
    }
    Start();
    machine.player.lengths[paths[0]] = 9000;
    Choose(paths[0]);
    for (size_t i = 1; i < paths.size(); ++i) queue().Append(paths[i], "");
    jukebox->menu.Open(MenuButton::kShowQueue);
  }
  std::vector<std::string> paths;
};

TEST_F(QueueScreenTest, ScrollsBehindTheNextSongAndStopsAtTheEnd) {
  Open();
  EXPECT_EQ(Rows(), "T1 T2 T3 T4 T5 ");
  Click(form().queue.up);
  Click(form().queue.down);
  EXPECT_EQ(Rows(), "T1 T3 T4 T5 T6 ");
  EXPECT_EQ(form().queue.rows[1].number.caption(), "3");
  for (int i = 0; i < 5; ++i) Click(form().queue.down);
  EXPECT_EQ(Rows(), "T1 T4 T5 T6 T7 ");
  // The chosen entry counts the scrolling, the highlight doesn't.
  Click(form().queue.rows[1].touch);
  EXPECT_EQ(house().queue_view.selection(), 3);
  EXPECT_EQ(Rows(), "T1 T4 T5 T6* T7 ");
  Press(QueueCommand::kMoveDown);
  EXPECT_EQ(house().queue_view.selection(), 4);
  EXPECT_EQ(Rows(), "T1 T5 T4 T6 T7* ");
}

TEST_F(QueueScreenTest, MoveDownFollowsTheEntryAndStopsAtTheLast) {
  Open();
  while (queue().count() > 2) queue().RemoveAt(2);
  house().queue_view.Update_queue2();
  Click(form().queue.rows[0].touch);
  for (int i = 0; i < 3; ++i) {
    Press(QueueCommand::kMoveDown);
    EXPECT_EQ(Rows(), "T2 T1* - - - ");
  }
}

TEST_F(QueueScreenTest, ShowsAtOnceWhatAStationPutBeforeTheRows) {
  Open();
  folder.Write("Queue.QUE", " 0 \r\n 1 \r\n" + paths[0] + "\r\n");
  Advance(0.1);
  EXPECT_EQ(Rows(), "T0 T1 T2 T3 T4 ");
}

TEST_F(QueueScreenTest, TheCommandsMoveAndRemoveTheChosenEntry) {
  Open();
  const auto& clear = form().queue.commands[static_cast<size_t>(QueueCommand::kClear)];
  EXPECT_FALSE(form().queue.commands[static_cast<size_t>(QueueCommand::kRemove)].visible());
  Click(form().queue.rows[2].touch);
  for (int i = 0; i < 3; ++i) Press(QueueCommand::kMoveUp);
  EXPECT_EQ(Rows(), "T3* T1 T2 T4 T5 ");
  EXPECT_EQ(house().queue_view.selection(), 0);
  Press(QueueCommand::kRemove);
  EXPECT_EQ(queue().path(0), paths[1]);
  EXPECT_EQ(form().queue.remaining.caption(), " 6 Song(s) Remaining In Queue");
  folder.Write("queue.dat", "x");
  Press(QueueCommand::kClear);
  EXPECT_FALSE(folder.Has("queue.dat"));
  EXPECT_EQ(queue().count(), 0);
  house().settings.read_only_queue = true;
  Choose(paths[1], PlayWay::kAddToQueue);
  house().queue_view.Update_queue2();
  Click(form().queue.rows[0].touch);
  EXPECT_EQ(house().queue_view.selection(), -1);
  EXPECT_FALSE(clear.visible());
}

}  // namespace
}  // namespace sonotik
