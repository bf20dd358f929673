#include "files/files.h"

#include <gtest/gtest.h>

#include "files/file_list.h"
#include "files/line_format.h"
#include "files/record_file.h"
#include "files/runtime_failure.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

TEST(Paths, AreFoundWhateverTheirCaseAndSeparators) {
  const TempFolder folder;
  folder.Write("Music/Ada/Song.MP3", "x");
  EXPECT_TRUE(FileExists(folder.path() + "\\music\\\\ADA\\song.mp3"));
  EXPECT_TRUE(FolderExists(folder.path() + "\\MUSIC\\ada\\"));
  EXPECT_FALSE(FileExists(folder.path() + "\\music\\ada"));
  EXPECT_FALSE(FileExists(folder.path() + "\\music\\bob\\song.mp3"));
  EXPECT_FALSE(FileExists("  "));
  EXPECT_EQ(ReadWholeFile(folder.path() + "\\music\\ada\\SONG.mp3"), "x");
}

TEST(Paths, TheSpellingAskedForWinsOverOneThatDiffersByCase) {
  const TempFolder folder;
  folder.Write("a.txt", "lower");
  folder.Write("A.TXT", "upper");
  EXPECT_EQ(ReadWholeFile(folder.path() + "\\a.txt"), "lower");
  EXPECT_EQ(ReadWholeFile(folder.path() + "\\A.TXT"), "upper");
}

TEST(Paths, AreCutAsText) {
  EXPECT_EQ(FolderOf("\\a\\b.mp3"), "\\a\\");
  EXPECT_EQ(FolderOf("b.mp3"), "");
  EXPECT_EQ(NameOf("\\a\\b.mp3"), "b.mp3");
  EXPECT_EQ(KindOf("x.mp3"), "MP3");
  EXPECT_EQ(KindOf("x.mp3 "), "P3 ");
  EXPECT_EQ(WithoutTagMark("a.tag.mp3.tag"), "a.mp3");
  EXPECT_EQ(WithSingleSeparators("\\a\\\\b\\"), "\\a\\b\\");
}

TEST(Files, AReplacedFileIsWholeAndLeavesNothingBeside) {
  const TempFolder folder;
  folder.Write("queue.dat", "old");
  ReplaceFile(folder.path() + "\\queue.dat", "new");
  EXPECT_EQ(folder.Read("queue.dat"), "new");
  EXPECT_FALSE(folder.Has("queue.dat.part"));
  EXPECT_THROW(ReplaceFile(folder.path() + "\\gone\\queue.dat", "x"), RuntimeFailure);
}

TEST(Files, WhatHoldsAPinIsForItsOwnerAlone) {
  using std::filesystem::perms;
  const TempFolder folder;
  // Also where it was made before for everybody.
  folder.Write("log.txt", "old");
  AppendToFile(folder.path() + "\\log.txt", "1234", FileAccess::kOwnerOnly);
  ReplaceFile(folder.path() + "\\settings.ini", "1234", FileAccess::kOwnerOnly);
  for (const char* name : {"log.txt", "settings.ini"}) {
    const perms given = std::filesystem::status(folder.native() / name).permissions();
    EXPECT_EQ(given & (perms::group_all | perms::others_all), perms::none) << name;
  }
}

TEST(Files, OneFolderIsHeldOnce) {
  const TempFolder folder;
  FolderLock first, second;
  EXPECT_TRUE(first.Take(folder.path()));
  EXPECT_FALSE(second.Take(folder.path()));
}

TEST(FileLists, AreSortedByNameAndFilteredByPatternWithoutRegardToCase) {
  const TempFolder folder;
  for (const char* name : {"b.mp3", "A.MP3", "c.txt", "d.Wma", "mp3"}) folder.Write(name, "");
  folder.Write("e.mp3/inner.mp3", "");
  FileList list(kMediaPattern);
  list.SetFolder(folder.path() + "\\");
  EXPECT_EQ(list.names(), (std::vector<std::string>{"A.MP3", "b.mp3", "d.Wma"}));
  EXPECT_EQ(list.PathAt(0), folder.path() + "\\A.MP3");
  EXPECT_EQ(list.PathAt(3), "");
  list.SetFolder(folder.path() + "\\gone");
  EXPECT_EQ(list.count(), 0);
}

TEST(LineFormat, FieldsEndAtCommasAndLineEnds) {
  FieldReader reader("  a b ,\"x, y\" z,\r\n\r\n -3 \nTrue\r\nlast, line\r\nend");
  EXPECT_EQ(reader.Text(), "a b ");
  EXPECT_EQ(reader.Text(), "x, y");
  EXPECT_EQ(reader.Text(), "");
  EXPECT_EQ(reader.Int16(), 0);
  EXPECT_EQ(reader.Int16(), -3);
  EXPECT_TRUE(reader.Truth());
  EXPECT_EQ(reader.WholeLine(), "last, line");
  EXPECT_EQ(reader.Text(), "end");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_THROW(reader.Text(), RuntimeFailure);
}

TEST(LineFormat, ValuesOfAnotherKindAreRefused) {
  for (const char* none : {"32768", "abc"}) {
    EXPECT_THROW(FieldReader(none).Int16(), RuntimeFailure) << none;
  }
  EXPECT_THROW(FieldReader("2147483648").Int32(), RuntimeFailure);
  EXPECT_THROW(FieldReader("2").Check(), RuntimeFailure);
  EXPECT_THROW(FieldReader("Yes").Truth(), RuntimeFailure);
  EXPECT_EQ(FieldReader("2.5").Int16(), 2);
  EXPECT_TRUE(FieldReader("-1").Truth());
}

TEST(RecordFiles, CountWholeRecordsAndAnEmptyOneAsOne) {
  const TempFolder folder;
  const std::string path = folder.path() + "\\new.cvr";
  std::string buffer = "????";
  {
    RecordFile made(path, 4);
    EXPECT_TRUE(folder.Has("new.cvr"));
    EXPECT_EQ(made.count(), 1);
    made.Read(1, buffer);
    EXPECT_EQ(buffer, "????");
  }
  folder.Write("new.cvr", "aaaabbbbcc");
  RecordFile file(path, 4);
  EXPECT_EQ(file.count(), 2);
  file.Read(2, buffer);
  EXPECT_EQ(buffer, "bbbb");
  file.Read(3, buffer);
  EXPECT_EQ(buffer, "bbbb");
  EXPECT_THROW(file.Read(0, buffer), RuntimeFailure);
}

TEST(RecordFiles, GiveTheSameRecordsInAnyOrder) {
  const TempFolder folder;
  std::string bytes;
  constexpr int kRecords = 30000;
  for (int i = 1; i <= kRecords; ++i) bytes += std::to_string(100000 + i);
  folder.Write("all.rec", bytes);
  RecordFile file(folder.path() + "\\all.rec", 6);
  std::string buffer(6, ' ');
  for (const int step : {1, 7, -1, -13}) {
    for (int n = step > 0 ? 1 : kRecords; n >= 1 && n <= kRecords; n += step) {
      file.Read(n, buffer);
      ASSERT_EQ(buffer, std::to_string(100000 + n));
    }
  }
}

TEST(RecordFiles, AFileCutWhileItIsOpenLeavesTheBuffer) {
  const TempFolder folder;
  folder.Write("all.rec", std::string(300000, 'a'));
  RecordFile file(folder.path() + "\\all.rec", 100);
  folder.Write("all.rec", std::string(150, 'b'));
  std::string buffer(100, '?');
  file.Read(2, buffer);
  EXPECT_EQ(buffer, std::string(100, '?'));
  EXPECT_EQ(file.View(3000), "");
  file.Read(1, buffer);
  EXPECT_EQ(buffer, std::string(100, 'b'));
}

TEST(RecordFiles, ATornRecordIsOverwrittenByTheNextOne) {
  const TempFolder folder;
  folder.Write("h.dat", "aaaabb");
  AppendRecord(folder.path() + "\\h.dat", std::string("cccc"));
  EXPECT_EQ(folder.Read("h.dat"), "aaaacccc");
}

}  // namespace
}  // namespace sonotik
