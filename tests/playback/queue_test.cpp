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
  house().selection.Choose(path, PlayWay::kAddToQueue);
  const std::string cover = AlbumPath("Mix") + "Cover.jpg";
  EXPECT_EQ(folder.Read("queue.upl"),
            " 1 \r\n" + path + "\r\n" + cover + "\r\nAda\r\nDawn\r\nMix\r\n\r\n\r\n");
}

TEST_F(QueueTest, PlayNextGoesBeforeAnEarlierPlayNext) {
  Start();
  house().selection.Choose("\\m\\1.wav", PlayWay::kAddToQueue);
  house().selection.Choose("\\m\\2.wav", PlayWay::kPlayNext);
  house().selection.Choose("\\m\\3.wav", PlayWay::kPlayNext);
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
}

TEST_F(QueueTest, APartOfALongerPathCountsAsADuplicate) {
  Start();
  queue().Append("\\m\\Song.mp3.old", "");
  EXPECT_TRUE(queue().Contains("\\M\\song.MP3"));
  EXPECT_FALSE(queue().Contains("\\m\\other.mp3"));
}

TEST_F(QueueTest, TheCommandsMoveAndRemoveTheChosenEntry) {
  for (const char* name : {"1.wav", "2.wav", "3.wav"}) WriteTrack("Q", name, "Ada", name);
  Start();
  jukebox->menu.Open(MenuButton::kShowQueue);
  for (const char* name : {"1.wav", "2.wav", "3.wav"}) {
    house().selection.Choose(AlbumPath("Q") + name, PlayWay::kAddToQueue);
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
  house().selection.Choose(AlbumPath("Q") + "1.wav", PlayWay::kAddToQueue);
  house().queue_view.Update_queue2();
  Click(form().queue.rows[0].touch);
  EXPECT_EQ(house().queue_view.selection(), -1);
  EXPECT_FALSE(command(QueueCommand::kClear).visible());
}

}  // namespace
}  // namespace sonotik
