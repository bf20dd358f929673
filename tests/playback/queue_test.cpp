#include "playback/queue.h"

#include <gtest/gtest.h>

#include "support/jukebox_test.h"

namespace sonotik {
namespace {

class QueueTest : public JukeboxTest {
 protected:
  QueueTest() { settings.save_queue_on_shutdown = true; }
  Queue& queue() { return house().queue; }
  std::vector<std::string> Paths() {
    std::vector<std::string> paths;
    for (int i = 0; i < queue().count(); ++i) paths.push_back(queue().path(i));
    return paths;
  }
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
  EXPECT_EQ(Paths(), std::vector<std::string>{"\\m\\a, b.mp3"});
  EXPECT_EQ(queue().cover(0), "\\m\\Cover.jpg");
}

TEST_F(QueueTest, ADamagedQueueNeverKeepsTheJukeboxFromStarting) {
  const struct {
    const char* bytes;
    int entries;
  } cases[] = {{"", 0},
               {"garbage", 0},
               {" -5 \r\nx\r\ny\r\n", 0},
               {" 2 \r\na\r\nb\r\n", 1},
               {" 2 \r\na\r\nb\r\n   \r\nc\r\n\r\n\r\n", 1},
               {" 1 \r\na\r\nb\r\nc\r\nd\r\n", 2},
               {" 99999999999 \r\na\r\nb\r\n", 1}};
  for (const auto& c : cases) {
    folder.Write("queue.dat", c.bytes);
    Start();
    EXPECT_EQ(result, StartUpResult::kRunning);
    EXPECT_EQ(queue().count(), c.entries) << c.bytes;
    EXPECT_TRUE(house().state_timer.enabled());
    jukebox.reset();
  }
}

TEST_F(QueueTest, TheExportNamesEachEntry) {
  const std::string path = WriteTrack("Mix", "1.wav", "Ada", "Dawn");
  Start();
  Choose(path, PlayWay::kAddToQueue);
  const std::string cover = AlbumPath("Mix") + "Cover.jpg";
  EXPECT_EQ(folder.Read("queue.upl"),
            " 1 \r\n" + path + "\r\n" + cover + "\r\nAda\r\nDawn\r\nMix\r\n\r\n\r\n");
}

TEST_F(QueueTest, PlayNextGoesBeforeAnEarlierPlayNext) {
  Start();
  Choose("\\m\\1.wav", PlayWay::kAddToQueue);
  Choose("\\m\\2.wav", PlayWay::kPlayNext);
  Choose("\\m\\3.wav", PlayWay::kPlayNext);
  EXPECT_EQ(Paths(), (std::vector<std::string>{"\\m\\3.wav", "\\m\\2.wav", "\\m\\1.wav"}));
  EXPECT_EQ(house().playback.play_next_flag, 0);
}

TEST_F(QueueTest, AShuffleKeepsEveryEntryWithItsCover) {
  Start();
  queue().Append("only", "cover");
  queue().shuffle_queue();
  EXPECT_EQ(queue().path(0), "only");
  queue().Clear();
  for (int i = 0; i < 15; ++i) {
    queue().Append("p" + std::to_string(i), "c" + std::to_string(i));
  }
  queue().shuffle_queue();
  std::set<std::string> seen;
  int moved = 0;
  for (int i = 0; i < queue().count(); ++i) {
    seen.insert(queue().path(i));
    EXPECT_EQ(queue().path(i).substr(1), queue().cover(i).substr(1));
    moved += queue().path(i) != "p" + std::to_string(i);
  }
  EXPECT_EQ(seen.size(), 15U);
  EXPECT_GT(moved, 0);
  // Ten songs at most have moved; the others stand as they stood.
  queue().Clear();
  for (int i = 10; i < 50; ++i) queue().Append(std::to_string(i), "");
  queue().shuffle_queue();
  int in_order = 1;
  for (int i = 1; i < 30; ++i) in_order += queue().path(i - 1) < queue().path(i);
  EXPECT_EQ(in_order, 30);
}

TEST_F(QueueTest, APartOfALongerPathCountsAsADuplicate) {
  Start();
  queue().Append("\\m\\Song.mp3.old", "");
  EXPECT_TRUE(queue().Contains("\\M\\song.MP3"));
  EXPECT_FALSE(queue().Contains("\\m\\other.mp3"));
}

TEST_F(QueueTest, ADuplicateIsFoundThroughTheNameOfASidecarToo) {
  const std::string path = WriteTrack("Q", "1.wav");
  settings.allow_duplicates_in_queue = false;
  Start();
  queue().Append(path, "");
  house().play_options.show_play_options(path + ".tag", screen::kTrackList);
  EXPECT_EQ(form().play_options.message.caption(), "Track Already In Queue");
}

TEST_F(QueueTest, TheExportReadsAgainOnlyWhatHasChanged) {
  settings.use_second_monitor = true;
  const std::string path = WriteTrack("Q", "1.wav", "Ada", "Dawn");
  const std::string damaged = WriteTrack("Q", "2.wav");
  folder.Write("music/Q/2.wav.tag", "too short");
  Start();
  Choose(path, PlayWay::kAddToQueue);
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
  EXPECT_NE(folder.Read("queue.upl").find("Ada Two\r\n"), std::string::npos);
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
  std::string Rows() {
    std::string text;
    for (const QueueRow& row : form().queue.rows) {
      const std::string& caption = row.track.caption();
      text += (caption.empty() ? "-" : caption.substr(8)) + (row.touch.highlighted() ? "* " : " ");
    }
    return text;
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
  Click(form().queue.commands[static_cast<size_t>(QueueCommand::kMoveDown)]);
  EXPECT_EQ(house().queue_view.selection(), 4);
  EXPECT_EQ(Rows(), "T1 T5 T4 T6 T7* ");
}

TEST_F(QueueScreenTest, MoveDownFollowsTheEntryAndStopsAtTheLast) {
  Open();
  while (queue().count() > 2) queue().RemoveAt(2);
  house().queue_view.Update_queue2();
  Click(form().queue.rows[0].touch);
  for (int i = 0; i < 3; ++i) {
    Click(form().queue.commands[static_cast<size_t>(QueueCommand::kMoveDown)]);
    EXPECT_EQ(Rows(), "T2 T1* - - - ");
  }
}

TEST_F(QueueScreenTest, ShowsAtOnceWhatAStationPutBeforeTheRows) {
  Open();
  folder.Write("Queue.QUE", " 0 \r\n 1 \r\n" + paths[0] + "\r\n");
  Advance(0.1);
  EXPECT_EQ(Rows(), "T0 T1 T2 T3 T4 ");
}

TEST_F(QueueScreenTest, OneDamagedFileHidesNoOther) {
  Open();
  folder.Write("music/Q/1.wav.tag", "too short");
  queue().InsertFirst(AlbumPath("Q") + "gone.m4a", "");
  house().queue_view.Update_queue2();
  EXPECT_EQ(Rows(), "No Tag No Tag T2 T3 T4 ");
  EXPECT_EQ(form().queue.remaining.caption(), " 8 Song(s) Remaining In Queue");
  EXPECT_EQ(form().now_playing.next_song_title.caption(), "No Tag");
}

TEST_F(QueueTest, TheCommandsMoveAndRemoveTheChosenEntry) {
  for (const char* name : {"1.wav", "2.wav", "3.wav"}) WriteTrack("Q", name, "Ada", name);
  Start();
  jukebox->menu.Open(MenuButton::kShowQueue);
  for (const char* name : {"1.wav", "2.wav", "3.wav"}) {
    Choose(AlbumPath("Q") + name, PlayWay::kAddToQueue);
  }
  house().queue_view.Update_queue2();
  const auto command = [&](QueueCommand which) -> lvButtons_H& {
    return form().queue.commands[static_cast<size_t>(which)];
  };
  EXPECT_FALSE(command(QueueCommand::kRemove).visible());
  Click(form().queue.rows[2].touch);
  Click(command(QueueCommand::kMoveUp));
  Click(command(QueueCommand::kMoveUp));
  Click(command(QueueCommand::kMoveUp));
  EXPECT_EQ(queue().path(0), AlbumPath("Q") + "3.wav");
  EXPECT_EQ(house().queue_view.selection(), 0);
  Click(command(QueueCommand::kRemove));
  EXPECT_EQ(queue().count(), 2);
  EXPECT_EQ(form().queue.remaining.caption(), " 2 Song(s) Remaining In Queue");
  folder.Write("queue.dat", "x");
  Click(command(QueueCommand::kClear));
  EXPECT_FALSE(folder.Has("queue.dat"));
  EXPECT_EQ(queue().count(), 0);
  house().settings.read_only_queue = true;
  Choose(AlbumPath("Q") + "1.wav", PlayWay::kAddToQueue);
  house().queue_view.Update_queue2();
  Click(form().queue.rows[0].touch);
  EXPECT_EQ(house().queue_view.selection(), -1);
  EXPECT_FALSE(command(QueueCommand::kClear).visible());
}

}  // namespace
}  // namespace sonotik
