#include "skins/layout_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "files/runtime_failure.h"
#include "support/skin_files.h"
#include "support/temp_folder.h"

namespace sonotik {
namespace {

using testing::HasSubstr;

class LayoutReaderTest : public testing::Test {
 protected:
  // What the failure says; empty if there was none.
  std::string Failure(const LayoutFile& file, const std::string& text) {
    try {
      reader.ReadText(file, text);
    } catch (const RuntimeFailure& failure) {
      return failure.what();
    }
    return "";
  }

  TempFolder folder;
  Form1 form;
  LayoutTargets targets{form};
  LayoutReader reader{targets, folder.path()};
  const LayoutFile& spin = *FindLayoutFile("spin.ini");
  lvButtons_H& spin_tab = form.album.tabs[5];
};

std::vector<const LayoutFile*> AllFiles() {
  std::vector<const LayoutFile*> files = {&SkinFile()};
  for (const LayoutFile& file : LayoutFiles()) files.push_back(&file);
  return files;
}

bool IsNumber(FieldKind kind) {
  switch (kind) {
    case FieldKind::kIgnored:
    case FieldKind::kVersion:
    case FieldKind::kCaption:
    case FieldKind::kFont:
    case FieldKind::kFontName:
    case FieldKind::kPicture:
    case FieldKind::kAnimation:
      return false;
    default:
      return true;
  }
}

// What a button, or else a label or a panel, has taken of a field, as a number.
double Held(const Control& control, FieldKind kind) {
  const Rect place = control.place();
  const auto* const button = dynamic_cast<const lvButtons_H*>(&control);
  const auto* const label = dynamic_cast<const Label*>(&control);
  if (kind == FieldKind::kTop) return place.top;
  if (kind == FieldKind::kLeft) return place.left;
  if (kind == FieldKind::kHeight) return place.height;
  if (kind == FieldKind::kWidth) return place.width;
  if (kind == FieldKind::kShape) return button->shape();
  if (kind == FieldKind::kMode) return button->mode();
  if (kind == FieldKind::kFontStyle) return button->cap_style();
  if (kind == FieldKind::kFontSize) return label->font().points;
  if (kind == FieldKind::kForeColor) return button ? button->cFore() : label->fore_color();
  if (button != nullptr) return button->cBack();
  if (label != nullptr) return label->back_color();
  return dynamic_cast<const Panel&>(control).back_color();
}

// All files with a value of its own in each field: what counts in the end is the last file.
TEST_F(LayoutReaderTest, HandsEachValueToItsControlAndTheLaterFileWins) {
  std::map<std::pair<Control*, FieldKind>, std::string> last;
  for (const LayoutFile* file : AllFiles()) {
    reader.ReadText(*file, LayoutText(*file));
    for (const LayoutField& field : WrittenFields(*file)) {
      const auto controls = targets.At(field.block->target, field.index);
      const BlockKind block = field.block->kind;
      EXPECT_EQ(controls.empty(), block == BlockKind::kIgnored || block == BlockKind::kHead ||
                                      block == BlockKind::kVersion ||
                                      block == BlockKind::kLabelledCount)
          << file->name << ' ' << field.number;
      for (Control* control : controls) last[{control, field.kind}] = PlainValue(field);
    }
  }
  for (const auto& [key, value] : last) {
    const auto& [control, kind] = key;
    const auto* const button = dynamic_cast<lvButtons_H*>(control);
    const auto* const label = dynamic_cast<Label*>(control);
    if (kind == FieldKind::kCaption) {
      EXPECT_EQ(button->caption(), value);
    } else if (kind == FieldKind::kFont) {
      EXPECT_EQ("Face " + std::to_string(std::lround(button->font().points)), value);
      EXPECT_TRUE(button->focus());
    } else if (kind == FieldKind::kFontName) {
      EXPECT_EQ(label->font().family, value);
    } else if (IsNumber(kind) && kind < FieldKind::kAlignment &&
               (kind != FieldKind::kForeColor || button != nullptr || label != nullptr)) {
      EXPECT_EQ(Held(*control, kind), std::stod(value)) << value;
    }
  }
  // The program's own texts are not the skin's.
  EXPECT_EQ(form.options.sections[7].caption(), "LED SIGN");
  EXPECT_EQ(form.genre.labels[0].caption(), "ALL GENRES");
}

// Some by hand, where the tables and the targets could be wrong together.
TEST_F(LayoutReaderTest, PutsTheOddOnesWhereTheyBelong) {
  for (const LayoutFile* file : AllFiles()) reader.ReadText(*file, LayoutText(*file));
  EXPECT_EQ(spin_tab.caption(), "Caption 2");  // spin.ini, over nav.ini
  EXPECT_EQ(form.album.tabs[4].caption(), "Caption 118");
  EXPECT_EQ(form.album.tabs[3].caption(), "Most Played");
  EXPECT_EQ(form.album.tabs[0].place().left, 89.5F);  // nav.ini, whatever tab.ini says of its look
  EXPECT_EQ(form.album.tabs[0].caption(), "Caption 2");
  EXPECT_EQ(form.pin_screen.place(), Rect({147.5F, 148.5F, 5.5F, 4.5F}));
  EXPECT_EQ(form.panel(4).place(), Rect({35.5F, 34.5F, 37.5F, 36.5F}));
  EXPECT_EQ(form.panel(11).place(), Rect({42.5F, 41.5F, 44.5F, 43.5F}));
  EXPECT_EQ(form.volume.place(), Rect({70.5F, 69.5F, 68.5F, 67.5F}));
  EXPECT_EQ(form.track_list.quick_jump_left.caption(), "Caption 15");
  EXPECT_EQ(form.track_list.burn_cd.caption(), "Caption 471");
  EXPECT_EQ(form.play_options.prices[2].place().top, 119.5F);  // Play Now
  EXPECT_EQ(form.queue.rows[1].number.place().top, 167.5F);
  EXPECT_EQ(form.search.suggestions[2].place().top, 442.5F);
  EXPECT_EQ(form.decades.month_buttons[11].shape(), 157 % 7);
  EXPECT_EQ(form.decades.year_buttons[56].shape(), 744 % 7);
  EXPECT_EQ(form.menu_buttons[8].caption(), "Caption 109");
  EXPECT_EQ(form.clock.font().points, 132 % 90 + 1);
}

TEST_F(LayoutReaderTest, DoesNothingWithoutAFileAndFailsAtWhatIsMissingInOne) {
  for (const LayoutFile* file : AllFiles()) {
    EXPECT_FALSE(reader.Read(*file)) << file->name;
    std::string text;
    for (const LayoutField& field : WrittenFields(*file)) {
      const std::string due = "field " + std::to_string(field.number) + ": ";
      EXPECT_THAT(Failure(*file, text), HasSubstr(due)) << file->name;
      text += PlainValue(field) + "\r\n";
    }
    EXPECT_EQ(Failure(*file, text), "") << file->name;
    EXPECT_EQ(Failure(*file, text + "more,\r\n\"than it needs"), "") << file->name;
  }
}

TEST_F(LayoutReaderTest, FailsAtAWordWhereANumberIsDueAndNowhereElse) {
  for (const LayoutFile* file : AllFiles()) {
    for (const LayoutField& field : WrittenFields(*file)) {
      const std::string failure = Failure(*file, LayoutText(*file, PlainBut(field.number, "word")));
      EXPECT_EQ(!failure.empty(), IsNumber(field.kind))
          << file->name << ' ' << field.number << ' ' << failure;
    }
  }
}

TEST_F(LayoutReaderTest, StaysWithinAnyScreenForNumbersOfAnySize) {
  const char* const kNumbers[] = {
      "1e308", "-1e308",     "1e999", "99999999999999999999", "nan",    "-inf", "0x10", "1e-320",
      "-0",    "2147483648", "",      "-2147483648",          " 7  \t", "-1",   "+3",   "1,5"};
  for (const LayoutFile* file : AllFiles()) {
    for (const char* number : kNumbers) {
      Failure(*file, LayoutText(*file, [&](const LayoutField& field) {
        return IsNumber(field.kind) ? number : PlainValue(field);
      }));
      for (const LayoutField& field : WrittenFields(*file)) {
        // Each kind of field comes by, in each file.
        if (field.number % 19 != 0) continue;
        Failure(*file, LayoutText(*file, PlainBut(field.number, number)));
        for (const Control* control : targets.At(field.block->target, field.index)) {
          const Rect place = control->place();
          for (const float value : {place.left, place.top, place.width, place.height}) {
            EXPECT_LE(std::abs(value), 100000) << file->name << ' ' << field.number;
          }
          EXPECT_GE(std::min(place.width, place.height), 0);
        }
      }
    }
  }
}

// A comma inside a value makes two fields of it, and the rest slips; quotes keep it together.
TEST_F(LayoutReaderTest, SlipsAtACommaUnlessItIsQuoted) {
  EXPECT_THAT(Failure(spin, LayoutText(spin, PlainBut(2, "Spin, on this"))), HasSubstr("field 3"));
  EXPECT_EQ(Failure(spin, LayoutText(spin, PlainBut(2, "\"Spin, on this\" and more"))), "");
  EXPECT_EQ(spin_tab.caption(), "Spin, on this");
}

TEST_F(LayoutReaderTest, EmptiesTheButtonOfAMissingPictureAndNothingElse) {
  folder.Write("Images/There.bmp", "x");
  // A shape that is cut from a picture needs one.
  for (const auto& [shape, left] : {std::pair{7, 0}, {2, 2}}) {
    const auto put_on = [&](const std::string& picture) {
      reader.ReadText(spin, LayoutText(spin, [&](const LayoutField& field) {
                        return field.kind == FieldKind::kPicture ? picture
                               : field.kind == FieldKind::kShape ? std::to_string(shape)
                                                                 : PlainValue(field);
                      }));
    };
    put_on("images\\there.bmp");
    EXPECT_EQ(spin_tab.picture(), folder.path() + "\\images\\there.bmp");
    EXPECT_EQ(spin_tab.shape(), shape);
    put_on("images\\gone.bmp");
    EXPECT_EQ(spin_tab.picture(), "");
    EXPECT_EQ(spin_tab.shape(), left);
  }
  const LayoutFile& genre = *FindLayoutFile("genre.ini");
  reader.ReadText(genre, LayoutText(genre, PlainBut(1, "Images\\There.bmp")));
  reader.ReadText(genre, LayoutText(genre, PlainBut(1, "")));
  EXPECT_EQ(form.panel(screen::kGenre).picture(), folder.path() + "\\Images\\There.bmp");
}

TEST_F(LayoutReaderTest, KeepsTheSizeOfAFontThatHasNoneAndADesktopColourAsItsNumber) {
  reader.ReadText(spin, LayoutText(spin, PlainBut(8, "-2147483633")));
  EXPECT_EQ(spin_tab.cBack(), kButtonFace);
  const struct {
    const char* value;
    const char* family;
    float points;
  } kFonts[] = {{"Arial 12", "Arial", 12},
                {"Arial", "Arial", 12},
                {"Arial Black", "Arial Black", 12},
                {"Comic Sans 8.5 ", "Comic Sans", 8.5},
                {"", "Comic Sans", 8.5},
                {"Wide 1e9", "Wide", 1000},
                {"Less -4", "Less", 1}};
  for (const auto& font : kFonts) {
    reader.ReadText(spin, LayoutText(spin, PlainBut(6, font.value)));
    EXPECT_EQ(spin_tab.font().family, font.family);
    EXPECT_EQ(spin_tab.font().points, font.points);
  }
}

}  // namespace
}  // namespace sonotik
