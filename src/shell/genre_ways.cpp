#include "shell/genre_ways.h"

namespace sonotik {
namespace {

// The bar's buttons around its seven genres.
constexpr size_t kUp = 0;
constexpr size_t kFirstEntry = 1;
constexpr size_t kDown = 8;
constexpr size_t kBack = 9;

}  // namespace

template <typename Handler>
void GenreWays::OnClick(Control& control, const char* name, Handler handler) {
  control.on_click = house_.boundary.Guarded(name, handler);
}

GenreWays::GenreWays(Assembly& house) : house_(house) {
  Genres& genres = house_.genres;
  GenreScreen& screen = house_.form1.genre;
  OnClick(screen.labels[0], "genre", [&genres] { genres.ShowAll(); });
  for (size_t i = 1; i < screen.labels.size(); ++i) {
    Label& label = screen.labels[i];
    OnClick(label, "genre", [&genres, &label] { genres.ShowGenre(label.caption()); });
  }
  OnClick(screen.up, "Up", [&genres] { genres.StepScreen(-1); });
  OnClick(screen.down, "Down", [&genres] { genres.StepScreen(1); });

  auto& bar = house_.form1.genre_buttons.buttons;
  OnClick(bar[kUp], "UP", [&genres] { genres.StepBar(-1); });
  OnClick(bar[kDown], "DOWN", [&genres] { genres.StepBar(1); });
  for (size_t i = kFirstEntry; i < kDown; ++i) {
    OnClick(bar[i], "genre bar", [this, i] { PressEntry(i); });
  }
  OnClick(bar[kBack], "Back", [this] { LeaveBar(); });
}

void GenreWays::PressEntry(size_t entry) {
  // By value: what the pages let run may scroll the bar.
  const std::string caption = house_.form1.genre_buttons.buttons[entry].caption();
  house_.boundary.Run("genre", [&] { house_.genres.ShowGenre(caption); });
  // "ALL GENRES" has by now made a genre of its own name, without an album, which is listed from
  // then on. That is meant, and so is the second pass that shows all records.
  if (entry == kFirstEntry && caption == kAllGenres) house_.genres.ShowAll();
}

void GenreWays::LeaveBar() {
  house_.form1.genre_bar.SetVisible(false);
  house_.form1.menu.SetVisible(true);
}

}  // namespace sonotik
