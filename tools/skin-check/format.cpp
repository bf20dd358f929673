#include "tools/skin-check/format.h"

#include <cmath>
#include <map>
#include <sstream>
#include <vector>

#include "skins/layout_tables.h"
#include "skins/layout_targets.h"

namespace sonotik {
namespace {

constexpr const char* kIntroduction =
    R"(# The files of a skin

This file is made by `skin-check --format` from the tables by which the jukebox reads.

A skin is a folder in `skins/`. All of its files are optional: what a skin doesn't say stays as it
was before, from the skin that was on or from the forms of the program. `skin-check FOLDER` says
what is wrong with one.

## Values

A file is plain text without keys: a value is what it is by its number.

- One value a line. A comma ends a value too, so a text that holds one goes into double quotes:
  `"Play, now"`. What stands behind the closing quote is dropped.
- Blanks before a value are dropped, those behind it stay. An empty line is an empty value; as a
  number it is 0.
- A font size is the one value that is a whole line: the next value begins on a line of its own.
- Places and sizes are in pixels of the skin's screen, and may have decimals. They count from the
  left top corner of the panel that the control stands on.
- A colour is a decimal number, blue times 65536 plus green times 256 plus red. One below 0 is one
  of the desktop's own: -2147483648 plus its number.
- A picture is the name of a file in the skin's folder; `\` parts folders, and the case of letters
  doesn't matter. An empty name is no picture. A button whose picture is missing has none; all
  others keep the picture that they had.
- "Arial 12" is a font with its size; a name alone keeps the size.
- A file that is too short, or holds a text where a number is due, ends the putting on of the skin
  there. What stands behind the last value of a file is not read.

)";

constexpr const char* kCoverLayouts =
    R"(## *.cov: pages of covers

A skin may have several; the operator picks one under "Resolution:", and the first of them by name
is taken when the skin is put on. Values:

| Values | For |
|---|---|
| 1 | anything |
| 2 | covers a page, 1 to 50 |
| 3 | 1: with the reflections of the covers, 0: without |
| 4 | 1: with the frames of the covers, 0: without |
| 5-28 | first cover: six boxes (top, left, height, width) for cover, frame, reflection, "NEW" badge, album's name, artist's name |
| 29-52 | second cover, and so on |

All of them stand on the album view. Half a file counts as none.

## Pictures with fixed names

| File | For |
|---|---|
| `preview.jpg` | the skin's picture in the options |
| `images\menu.bmp` | background of the menu bar |
| `images\player.bmp` | background of the player panel |
| `images\slider_back.bmp` | track of the volume slider, which becomes as large as it |
| `images\slider_button.bmp` | its thumb |
| `images\genrebar.bmp` | background of the genre bar, if there is a `genre_bar.ini` |
| `images\now playing.gif` | frame of the cover, if there is a `now_playing.ini` |
| `images\ImageNotFound.jpg` | in place of a cover that is missing |

)";

// The panels on which something stands, as a person would call them.
class PanelNames {
 public:
  explicit PanelNames(const Form1& form) {
    static constexpr const char* kScreens[] = {
        "history",        "top 20",   "search",        "queue",       "options",
        "decades",        "carousel", "now playing",   "album view",  "track list",
        "search results", "genres",   "search choice", "play options"};
    for (size_t i = 0; i < std::size(kScreens); ++i) names_[&form.panels[i]] = kScreens[i];
    names_[&form.form] = "window";
    names_[&form.menu] = "menu bar";
    names_[&form.player] = "player panel";
    names_[&form.genre_bar] = "genre bar";
    names_[&form.pin_screen] = "PIN screen";
    names_[&form.jump_to_letter.panel] = "letter panel";
    names_[&form.searching.panel] = "\"Searching\" panel";
    names_[&form.decades.year_picker] = "year picker";
    names_[&form.decades.month_picker] = "month picker";
    names_[&form.options.pages] = "holder of the settings";
    names_[&form.search_results.list_panel] = "panel of the special lists";
    names_[&form.carousel.strip] = "strip of the carousel";
    // Where a skin lays these out, they cover their screen.
    names_[&form.now_playing.next_song] = "now playing";
    for (const Panel* panel :
         {&form.album.letters, &form.album.left_scroll, &form.album.right_scroll}) {
      names_[panel] = "album view";
    }
  }

  std::string Around(const Control& control) const {
    const auto name = names_.find(control.parent());
    return name == names_.end() ? "" : name->second;
  }

 private:
  std::map<const Control*, std::string> names_;
};

void WriteBlockKinds(std::ostream& out) {
  out << "## Blocks\n\nValues come in blocks. These are all kinds, with their values in order:\n\n"
         "| Block | Values |\n|---|---|\n";
  for (int i = 0; i <= static_cast<int>(BlockKind::kScreenSize); ++i) {
    const auto kind = static_cast<BlockKind>(i);
    out << "| " << WordsOf(kind) << " | ";
    int number = 0;
    for (const FieldKind field : FieldsOf(kind)) {
      ++number;
      out << (number == 1 ? "" : "; ") << number << " " << WordsOf(field);
    }
    out << " |\n";
  }
  out << "\nMind the three orders of a button's values, and that every label begins with three "
         "values that are not looked at.\n\n";
}

bool HasPlace(BlockKind kind) {
  for (const FieldKind field : FieldsOf(kind)) {
    if (field == FieldKind::kTop || field == FieldKind::kHeight) return true;
  }
  return false;
}

std::string Range(int first, int last) {
  return first == last ? std::to_string(first) : std::to_string(first) + "-" + std::to_string(last);
}

void WriteFile(std::ostream& out, const LayoutFile& file, const LayoutTargets& targets,
               const PanelNames& panels) {
  // With all of its parts.
  const char* const head = file.blocks[0].kind == BlockKind::kVersion ? "Version 2" : "1";
  const int most = FieldCount(file, head);
  const int least = FieldCount(file, "0");
  out << "## " << file.name << ": " << file.words << "\n\n" << most << " values";
  if (least != most) {
    out << ", or " << least << " without those that depend on the first; the numbers below are "
        << "with them";
  }
  out << ".\n\n| Values | Block | For | Stands on |\n|---|---|---|---|\n";
  int number = 1;
  for (const LayoutBlock& block : file.blocks) {
    const int last = number + block.count * static_cast<int>(FieldsOf(block.kind).size()) - 1;
    out << "| " << Range(number, last) << " | ";
    if (block.count > 1) out << block.count << " x ";
    out << WordsOf(block.kind) << " | " << block.words;
    if (block.in_file == InFile::kIfHeadIsNotZero) out << " (only if value 1 is not 0)";
    if (block.in_file == InFile::kIfHeadIsVersion2) out << " (only with \"Version 2\")";
    out << " | ";
    const auto controls = targets.At(block.target, block.first);
    if (!controls.empty() && HasPlace(block.kind)) out << panels.Around(*controls.front());
    out << " |\n";
    number = last + 1;
  }
  out << "\n";
}

void WriteUnplaced(std::ostream& out, const Form1& form, const PanelNames& panels) {
  struct Unplaced {
    std::string words;
    const Control* control;
  };
  std::vector<Unplaced> rows = {
      {"tab Most Played", &form.album.tabs[3]},
      {"fourth suggestion of the search", &form.search.suggestions[3]},
      {"month picker", &form.decades.month_picker},
      {"\"Current Rating:\"", &form.now_playing.rating_caption},
      {"rating up", &form.now_playing.rating_up},
      {"rating down", &form.now_playing.rating_down},
      {"heading of the letter panel", &form.jump_to_letter.heading},
      {"random play", &form.random},
      {"panel of the special lists", &form.search_results.list_panel},
      {"\"Searching\"", &form.searching.panel},
      {"fact of the playing song", &form.song_fact},
      {"carousel: UP", &form.carousel.up},
      {"carousel: DOWN", &form.carousel.down},
      {"carousel: BACK", &form.carousel.back},
  };
  for (size_t i = 0; i < form.decades.rows.size(); ++i) {
    const std::string row = "chart row " + std::to_string(i + 1);
    rows.push_back({row + ": Play NOW", &form.decades.rows[i].play_now});
    rows.push_back({row + ": Add Queue", &form.decades.rows[i].add_queue});
  }
  for (size_t i = 0; i < form.carousel.columns.size(); ++i) {
    rows.push_back({"carousel: artist " + std::to_string(i + 1), &form.carousel.columns[i].artist});
  }
  out << "## What no file places\n\nThese keep their share of the panel that they stand on, "
         "whatever size the skin gives it. In percent of the panel's width and height:\n\n"
         "| What | Stands on | Left | Top | Width | Height |\n|---|---|---|---|---|---|\n";
  for (const Unplaced& row : rows) {
    const Rect place = row.control->place();
    const Rect around = row.control->parent()->place();
    const auto share = [&out](float part, float whole) {
      out << " | " << std::round(1000 * part / whole) / 10;
    };
    out << "| " << row.words << " | " << panels.Around(*row.control);
    share(place.left, around.width);
    share(place.top, around.height);
    share(place.width, around.width);
    share(place.height, around.height);
    out << " |\n";
  }
  out << "\nThe covers of the carousel hang below its artists. The year picker keeps its place, 60 "
         "pixels below the top of the decades, and takes its size from its file.\n";
}

}  // namespace

std::string SkinFormat() {
  Form1 form;
  const LayoutTargets targets(form);
  const PanelNames panels(form);
  std::ostringstream out;
  out << kIntroduction;
  WriteBlockKinds(out);
  out << "The files follow in the order in which they are read: where two of them place the same "
         "control, the later one wins.\n\n";
  WriteFile(out, SkinFile(), targets, panels);
  for (const LayoutFile& file : LayoutFiles()) WriteFile(out, file, targets, panels);
  out << kCoverLayouts;
  WriteUnplaced(out, form, panels);
  return out.str();
}

}  // namespace sonotik
