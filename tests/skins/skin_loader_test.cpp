#include "skins/skin_loader.h"

#include <gmock/gmock.h>

#include "fuzz/gif_bytes.h"
#include "support/jukebox_test.h"
#include "support/skin_files.h"

namespace sonotik {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

class SkinLoaderTest : public JukeboxTest {
 protected:
  // With the forms' own look; the settings name a skin that has no files yet.
  void SetUp() override { Start(); }
  SkinLoader& Skins() { return house().skins; }
  void Write(const std::string& name, const std::string& bytes) {
    folder.Write("skins/Plain/" + name, bytes);
  }
  void WriteLayout(const char* name, const FieldText& value = PlainValue) {
    Write(name, LayoutText(*FindLayoutFile(name), value));
  }
  void PutOn(const char* name, const FieldText& value = PlainValue) {
    WriteLayout(name, value);
    Skins().ApplySkin();
  }
  void PutOnSkinFile(int number, const std::string& text) {
    Write("skin.ini", LayoutText(SkinFile(), PlainBut(number, text)));
    Skins().ApplySkin();
  }
  std::string PathOf(const std::string& name) const {
    return folder.path() + "\\skins\\Plain\\" + name;
  }
  auto ApplyingIt() {
    return [this] { Skins().ApplySkin(); };
  }
};

TEST_F(SkinLoaderTest, EndsAtADamagedFileAndKeepsWhatWasPutOn) {
  WriteLayout("search.ini");
  Write("tracklist.ini", "a\nCaption\nword\n");
  WriteLayout("top20.ini");
  EXPECT_THAT(ApplyingIt(), ThrowsMessage<RuntimeFailure>(HasSubstr("tracklist.ini: field 3")));
  EXPECT_EQ(form().search.keys[0].caption(), "Caption 2");
  EXPECT_EQ(form().track_list.up.caption(), "Caption");
  EXPECT_EQ(form().top20.up.caption(), "Up");
}

TEST_F(SkinLoaderTest, TellsOfDamagedOptionsAndGoesOn) {
  const std::string whole = LayoutText(*FindLayoutFile("options.ini"));
  Write("options.ini", whole.substr(0, 600));
  PutOn("pin_screen.ini");
  EXPECT_THAT(machine.messages.shown, ElementsAre("OPTIONS.INI is corrupt"));
  EXPECT_EQ(form().pin.keys[9].caption(), "Caption 135");
  EXPECT_EQ(form().options.sections[0].place().top, 9.5F);
}

TEST_F(SkinLoaderTest, TakesPicturesThatAreThereAndLeavesTheOthers) {
  Write("a.jpg", "x");
  Write("b.jpg", "y");
  for (const char* name : {"menu.bmp", "player.bmp", "slider_back.bmp", "slider_button.bmp"}) {
    Write(std::string("images/") + name, "x");
  }
  Write("skin.ini", LayoutText(SkinFile(), [](const LayoutField& field) {
          return field.kind == FieldKind::kPicture ? "A.JPG" : PlainValue(field);
        }));
  Skins().ApplySkin();
  EXPECT_EQ(form().form.picture(), PathOf("A.JPG"));
  for (size_t i = 0; i < 13; ++i) EXPECT_EQ(form().panel(i).picture(), PathOf("A.JPG")) << i;
  EXPECT_EQ(form().album.covers[11].frame.picture(), PathOf("A.JPG"));
  // The later one counts.
  EXPECT_EQ(form().player.picture(), PathOf("images\\player.bmp"));
  EXPECT_EQ(form().menu.picture(), PathOf("images\\menu.bmp"));
  EXPECT_EQ(form().volume.bar(), PathOf("images\\slider_button.bmp"));

  // Another skin without these keeps them, as it stands.
  folder.Write("skins/Bare/skin.ini", LayoutText(SkinFile(), PlainBut(6, "gone.jpg")));
  house().settings.current_skin = "Bare";
  Skins().ApplySkin();
  EXPECT_EQ(form().panel(0).picture(), PathOf("A.JPG"));
  EXPECT_EQ(form().volume.bar(), PathOf("images\\slider_button.bmp"));
}

TEST_F(SkinLoaderTest, PlaysTheIndicatorAndEmptiesItForWhatIsNoAnimation) {
  Write("on.gif", gif::Head() + gif::Dot() + gif::Dot());
  PutOnSkinFile(36, "on.gif");
  EXPECT_EQ(form().now_playing_indicator.frame_count(), 2);
  EXPECT_TRUE(form().now_playing_indicator.playing());
  PutOnSkinFile(36, "gone.gif");
  EXPECT_EQ(form().now_playing_indicator.frame_count(), 2);
  Write("a.jpg", "x");
  PutOnSkinFile(36, "a.jpg");
  EXPECT_EQ(form().now_playing_indicator.frame_count(), 0);
}

TEST_F(SkinLoaderTest, ShowsAsManyTrackRowsAsTheSkinAsksFor) {
  const struct {
    const char* text;
    int rows;
  } kCounts[] = {{"5", 5}, {"0", 0}, {"13", 13}, {"14", 13}, {"-1", 0}, {"2000000000", 13}};
  for (const auto& count : kCounts) {
    PutOnSkinFile(38, count.text);
    EXPECT_EQ(house().track_list.rows_per_page(), count.rows);
    for (int i = 0; i < 13; ++i) {
      EXPECT_EQ(form().track_list.rows[static_cast<size_t>(i)].title.visible(), i < count.rows);
    }
  }
}

TEST_F(SkinLoaderTest, LetsTheHeadOfThePlayerOverruleTheSettings) {
  const lvButtons_H& louder = form().player_buttons[4];
  const Rect design = form().volume.place();
  for (const char* head : {"0", "any text", "version 2", ""}) {
    PutOn("player.ini", PlainBut(1, head));
    EXPECT_FALSE(louder.visible()) << head;
    EXPECT_FALSE(form().volume.visible()) << head;
  }
  PutOn("player.ini", PlainBut(1, "1"));
  EXPECT_TRUE(louder.visible());
  EXPECT_EQ(form().volume.place(), design);
  house().settings.volume_buttons = false;
  PutOn("player.ini", PlainBut(1, "Version 2 and a half"));
  EXPECT_FALSE(louder.visible());
  EXPECT_TRUE(form().volume.visible());
  EXPECT_EQ(form().volume.place().left, 70.5F);
}

TEST_F(SkinLoaderTest, ChoosesPageButtonsOrScrollPanels) {
  const AlbumScreen& album = form().album;
  for (const char* mode : {"0", "1", "2", "0"}) {
    PutOn("nav.ini", PlainBut(1, mode));
    EXPECT_EQ(album.next.visible(), mode[0] == '0');
    EXPECT_EQ(album.jump_to_letter.visible(), mode[0] == '0');
    // Any other leaves all as it was: here the scroll panels of the mode before.
    EXPECT_EQ(album.left_scroll.visible(), mode[0] != '0');
    EXPECT_EQ(album.right_scroll.visible(), mode[0] != '0');
  }
}

TEST_F(SkinLoaderTest, TakesTheHeadOfTheMenuForTheGenres) {
  EXPECT_EQ(Skins().screens.genre_style(), 0);
  const Rect design = form().menu.place();
  WriteLayout("menu.ini", [](const LayoutField& field) {
    return field.number == 1 ? "0" : field.number <= 3 ? "ignored" : PlainValue(field);
  });
  // Without its two fields of size the file is read on at once: a caption is due there.
  EXPECT_THAT(ApplyingIt(), ThrowsMessage<RuntimeFailure>(HasSubstr("menu.ini")));
  EXPECT_EQ(form().menu.place(), design);
  PutOn("menu.ini");
  EXPECT_EQ(Skins().screens.genre_style(), 1);
  EXPECT_EQ(form().menu.place().height, 2.5F);
}

TEST_F(SkinLoaderTest, PlacesThreeScreensOnceMoreAndWhatNoFilePlaces) {
  WriteLayout("main.ini", PlainBut(37, "1920"));
  WriteLayout("now_playing.ini");
  WriteLayout("jumptoletter2.ini");
  PutOn("queue.ini", PlainBut(142 + 2, "1000"));
  for (const size_t index : {7u, 10u, 5u}) {
    EXPECT_EQ(form().panel(index).place(), form().panel(0).place());
  }
  // What no file places keeps its share of its panel; what has no panel in a file lies on the
  // screen itself.
  EXPECT_EQ(form().carousel.down.place().left, 1070 * 1.5F);
  EXPECT_EQ(form().carousel.down.place().width, 186 * 1.5F);
  EXPECT_EQ(form().now_playing.next_song.place(), Rect({0, 0, 1920, 36.5F}));
  EXPECT_EQ(form().album.letters.place(), Rect({0, 0, 1920, 36.5F}));
  EXPECT_EQ(form().album.strip_thumb.place().width, 16.5F / 27);
  // A row of the queue is touched wherever it shows.
  const QueueRow& row = form().queue.rows[0];
  EXPECT_TRUE(row.touch.place().Contains(row.cover.place()));
  EXPECT_TRUE(row.touch.place().Contains(row.time.place()));
}

TEST_F(SkinLoaderTest, GivesTheWindowItsFrameOrTheWholeScreen) {
  auto& calls = machine.displays.calls;
  Write("resolution.ini", "a\nb\nc\n1024\n768\n");
  calls.clear();
  Skins().ApplySkin();
  EXPECT_THAT(calls, ElementsAre("SetWindowSize 1028 788"));
  EXPECT_EQ(form().form.place(), Rect({0, 0, 1024, 768}));
  EXPECT_FALSE(Skins().screens.mode_changed());
  calls.clear();
  house().settings.full_screen = true;
  Skins().ApplySkin();
  EXPECT_THAT(calls,
              ElementsAre("SetWindowSize 1024 768", "ChangeResolution 1024 768",
                          "SetWindowPosition 1 1", "FitWindow 1 0", "SetTaskbarVisible 0 0"));
  EXPECT_TRUE(Skins().screens.mode_changed());
  Write("resolution.ini", "a,b,c,0,2147483647");
  Skins().ApplySkin();
  EXPECT_EQ(form().form.place(), Rect({0, 0, 1, 8192}));
}

TEST_F(SkinLoaderTest, ShowsAButtonForEachOfFourSpecialLists) {
  const auto& buttons = form().search_results.lists;
  for (const char* name : {"e.txt", "b", "A.csv", "d.txt", "c.txt"}) {
    folder.Write(std::string("lists/") + name, "0");
  }
  Skins().ApplySkin();
  for (const lvButtons_H& button : buttons) EXPECT_TRUE(button.visible());
  const std::string lists = folder.path() + "\\lists\\";
  EXPECT_THAT(Skins().special_lists(),
              ElementsAre(lists + "A.csv", lists + "b", lists + "c.txt", lists + "d.txt", ""));
  std::filesystem::remove_all(folder.native() / "lists");
  Skins().ApplySkin();
  for (const lvButtons_H& button : buttons) EXPECT_FALSE(button.visible());
}

TEST_F(SkinLoaderTest, SaysHowManySkinsCameOrWent) {
  auto& shown = machine.messages.shown;
  house().lists.skins = house().lists.calendar_skins = {"Plain"};
  Skins().Select("Plain");
  Skins().UpdateSkinList();
  EXPECT_THAT(shown, ElementsAre());
  folder.Write("skins/neon/skin.ini", "");
  folder.Write("skins/Classic/skin.ini", "");
  folder.Write("skins/readme.txt", "no skin");
  Skins().UpdateSkinList();
  EXPECT_THAT(house().lists.skins, ElementsAre("Classic", "neon", "Plain"));
  EXPECT_EQ(house().lists.calendar_skins, house().lists.skins);
  EXPECT_EQ(Skins().selected(), "Plain");
  std::filesystem::remove_all(folder.native() / "skins/Plain");
  Skins().UpdateSkinList();
  EXPECT_EQ(Skins().selected(), "");
  // Read twice, the settings have doubled the list.
  house().lists.skins = {"neon", "Classic", "neon", "Classic"};
  Skins().UpdateSkinList();
  EXPECT_THAT(shown,
              ElementsAre(" 2 Skins Added...", " 1 Skins Removed...", " 2 Skins Removed..."));
}

std::string CoverLayoutText(int covers) {
  std::string text = "label\n" + std::to_string(covers) + "\n0\n1\n";
  for (int i = 0; i < covers * 24; ++i) text += std::to_string(i) + "\n";
  return text;
}

TEST_F(SkinLoaderTest, PreviewsThePickedSkinAndPutsItOnWithItsFirstCoverLayout) {
  folder.Write("skins/Neon/resolution.ini", "a\nb\nc\n 1920 \n 1080 \n");
  folder.Write("skins/Neon/preview.jpg", "x");
  folder.Write("skins/Neon/b.cov", CoverLayoutText(7));
  folder.Write("skins/Neon/A.COV", CoverLayoutText(3));
  folder.Write("skins/Plain/twelve.cov", CoverLayoutText(12));
  Skins().UpdateSkinList();
  const OptionsScreen& options = form().options;
  for (const char* name : {"Neon", "Plain", "Neon"}) {
    Skins().Select(name);
    EXPECT_EQ(options.skin_preview.picture(),
              name[0] == 'N' ? folder.path() + "\\skins\\Neon\\preview.jpg" : "");
    // A size is not taken away.
    EXPECT_EQ(options.skin_resolution.caption(), "Resolution: 1920 x 1080");
  }
  house().state.attract_settings_loaded = false;
  jukebox->effects.ApplySelectedSkin();
  EXPECT_EQ(house().settings.current_skin, "Plain");
  EXPECT_EQ(form().form.place().width, 1280);
  house().state.attract_settings_loaded = true;
  jukebox->effects.ApplySelectedSkin();
  EXPECT_EQ(house().settings.current_skin, "Neon");
  EXPECT_EQ(form().form.place().width, 1920);
  EXPECT_EQ(house().cover_layout.covers_per_page, 3);
  EXPECT_EQ(house().settings.cover_layout, 0);
  EXPECT_THAT(house().lists.cover_layouts, ElementsAre("A.COV", "b.cov"));
  EXPECT_EQ(form().album.covers[0].cover.place(), Rect({1, 0, 3, 2}));
}

TEST_F(SkinLoaderTest, KeepsTheSelectedCoverLayoutUnlessTheFolderIsAnother) {
  Write("a.cov", CoverLayoutText(4));
  Write("b.cov", CoverLayoutText(5));
  settings.cover_layout = 1;
  WriteDefaults();
  jukebox.reset();
  Start();
  Skins().ApplySkin();
  EXPECT_EQ(house().settings.cover_layout, 1);
  EXPECT_EQ(house().cover_layout.covers_per_page, 5);
  folder.Write("skins/Neon/c.cov", CoverLayoutText(6));
  house().settings.current_skin = "Neon";
  Skins().ApplySkin();
  EXPECT_EQ(house().settings.cover_layout, -1);
  EXPECT_EQ(house().cover_layout.covers_per_page, 5);
}

TEST_F(SkinLoaderTest, TakesNoHalfCoverLayout) {
  CoverLayout layout;
  const auto load = [&](const std::string& text) {
    folder.Write("a.cov", text);
    LoadCoverLayout(folder.path() + "\\a.cov", layout, form().album);
    return layout.covers_per_page;
  };
  const std::string whole = CoverLayoutText(2);
  std::vector<std::string> broken = {"", ReplaceAll(whole, "\n11\n", "\nword\n"),
                                     "label\n99999\n0\n0\n"};
  for (size_t cut = whole.find('\n'); cut + 1 < whole.size(); cut = whole.find('\n', cut + 1)) {
    broken.push_back(whole.substr(0, cut + 1));
  }
  for (const std::string& text : broken) EXPECT_THROW(load(text), RuntimeFailure) << text;
  EXPECT_EQ(layout.covers_per_page, 12);
  EXPECT_EQ(load(ReplaceAll(CoverLayoutText(1), "label\n1\n", "label\n-3\n")), 1);
  EXPECT_EQ(load(ReplaceAll(whole, "\n", "\r")), 2);
  EXPECT_EQ(load(ReplaceAll(whole, "\n11\n", "\n-1e300\n") + std::string(10 << 20, 'x')), 2);
  EXPECT_FALSE(form().album.covers[2].new_badge.visible());
}

}  // namespace
}  // namespace sonotik
