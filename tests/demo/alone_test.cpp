#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <set>

#include "tools/demo/alone.h"
#include "tools/demo/media.h"
#include "tools/demo/shelves.h"

namespace sonotik::demo {
namespace {

TEST(Alone, FactsAreOfSongsOnTheShelvesAndNothingThatIsThereIsReplaced) {
  const QTemporaryDir folder;
  const QString root = folder.path();
  for (const char* made : {"attract", "jingles", "CALENDER"}) ASSERT_TRUE(QDir(root).mkpath(made));
  WriteFile(root + "/CALENDER/12-31-2026.DAT", "mine");
  MakeAlone(root, QDate(2026, 3, 4));
  EXPECT_TRUE(QDir(root + "/attract").isEmpty());
  EXPECT_EQ(ReadFile(root + "/CALENDER/12-31-2026.DAT"), "mine");
  std::set<QString> songs;
  for (const Album& album : Albums()) {
    for (size_t i = 0; i < album.tracks.size(); ++i) {
      songs.insert(ArtistOf(album, i) + "|" + album.tracks[i].title);
    }
  }
  const QByteArray facts = ReadFile(root + "/songfacts.dat");
  ASSERT_TRUE(facts.size() > 0 && facts.size() % 1395 == 0);
  for (qsizetype at = 0; at < facts.size(); at += 1395) {
    const QString song = QString::fromUtf8(facts.mid(at, 60).trimmed()) + "|" +
                         QString::fromUtf8(facts.mid(at + 60, 60).trimmed());
    EXPECT_TRUE(songs.contains(song)) << song.toStdString();
  }
  WriteFile(root + "/songfacts.dat", "mine");
  MakeAlone(root, QDate(2026, 3, 4));
  EXPECT_EQ(ReadFile(root + "/songfacts.dat"), "mine");
}

}  // namespace
}  // namespace sonotik::demo
