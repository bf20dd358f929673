#include "config/option_lists.h"

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

ItemList Counted(int first, int last, const char* behind) {
  ItemList items;
  for (int n = first; n <= last; ++n) items.push_back(NumberCaption(n) + behind);
  return items;
}

}  // namespace

void OptionLists::FillFixed(int monitor_count) {
  monitors.clear();
  for (int n = 1; n <= monitor_count; ++n) monitors.push_back(std::to_string(n));
  startup_databases = {"Audio", "Video", "Karaoke"};
  sign_types = {"Betabrite", "Chinese BigBoard", "Name Badge"};
  sign_ports = {"COM 1", "COM 2", "COM 3", "COM 4"};
  jingle_song_counts = Counted(1, 10, " Songs");
  no_repeat_counts = Counted(1, 11, " Songs");
  double_click_actions = {"Play Now", "Play Next", "Add To Queue"};
  prices = Counted(1, 9, "");
  exit_times.clear();
  for (int hour = 0; hour < 24; ++hour) {
    exit_times.push_back(LastDigits(hour, 2) + ":00");
    exit_times.push_back(LastDigits(hour, 2) + ":30");
  }
  key_codes.clear();
  for (int code = 0; code <= 130; ++code) {
    key_codes.push_back("CHR" + NumberCaption(code) + " - " + static_cast<char>(code));
  }
  cover_animations = {"Appear From Left",
                      "Appear From Right",
                      "Appear From Top",
                      "Appear From Bottom",
                      "Generate Left Top",
                      "Generate Left Bottom",
                      "Generate Right Top",
                      "Generate Right Bottom",
                      "Strech Horizontally",
                      "Strech Vertically",
                      "Zoom Out",
                      "Fold Out",
                      "Curtain Horizontal",
                      "Curtain Vertical",
                      "Random"};
}

}  // namespace sonotik
