#include "catalogue/top20.h"

#include "files/paths.h"

namespace sonotik {

Top20::Top20(const Settings& settings, const MostPlayed& list, const CoverFinder& covers,
             PlayOptions& play_options, Top20Screen& screen)
    : settings_(settings),
      list_(list),
      covers_(covers),
      play_options_(play_options),
      screen_(screen) {}

void Top20::Top20_show3() {
  for (int row = 0; row < kTop20Rows; ++row) ShowRow(row);
}

void Top20::ShowRow(int row) {
  Top20Row& items = screen_.rows[static_cast<size_t>(row)];
  std::string& path = paths_[static_cast<size_t>(row)];
  const int number = top20_top_ + row;
  path = number <= list_.count() ? list_.row(number - 1).path : "";
  for (Label* label : {&items.number, &items.artist, &items.track, &items.played}) {
    label->SetVisible(!path.empty());
  }
  if (path.empty()) return items.cover.SetPicture("");
  const MostPlayed::Row& played = list_.row(number - 1);
  items.number.SetCaption(std::to_string(number));
  items.artist.SetCaption(played.artist);
  items.track.SetCaption(played.track);
  items.played.SetCaption("Played " + played.played + " Time(s)");
  items.cover.SetPicture(covers_.FindCoverPicture(FolderOf(path)));
}

void Top20::StepPage(int direction) {
  if (direction < 0) {
    if (top20_top_ >= 11) top20_top_ -= kTop20Rows;
  } else {
    // Below, not up to: an eleventh row that is the last can't be reached, and that is meant.
    if (top20_top_ + kTop20Rows < list_.count()) top20_top_ += kTop20Rows;
  }
  Top20_show3();
}

void Top20::ChooseRow(int row) {
  const std::string& path = paths_[static_cast<size_t>(row)];
  if (path.empty()) return;
  chosen_path_ = path;
  const auto command = [this](Top20Command which) -> lvButtons_H& {
    return screen_.commands[static_cast<size_t>(which)];
  };
  command(Top20Command::kAddToQueue).SetVisible(settings_.add_to_queue);
  command(Top20Command::kPlayNext).SetVisible(settings_.play_next);
  command(Top20Command::kPlayNow).SetVisible(settings_.play_it_now);
  play_options_.show_play_options(chosen_path_, screen::kTop20);
  play_options_.Reveal();
}

}  // namespace sonotik
