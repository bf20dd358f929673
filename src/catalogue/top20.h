// The tracks that were played most, ten in view.
#ifndef SONOTIK_CATALOGUE_TOP20_H_
#define SONOTIK_CATALOGUE_TOP20_H_

#include <array>
#include <string>

#include "catalogue/cover_picture.h"
#include "catalogue/most_played.h"
#include "catalogue/play_options.h"
#include "forms/Top20Screen.h"

namespace sonotik {

class Top20 {
 public:
  Top20(const Settings& settings, const MostPlayed& list, const CoverFinder& covers,
        PlayOptions& play_options, Top20Screen& screen);

  // Paints the rows from top20_top() on.
  void Top20_show3();
  void ToFirstPage() { top20_top_ = 1; }
  // "Up" is -1, "Down" is 1.
  void StepPage(int direction);
  // Opens the play options of a row, and has the three play buttons act on it.
  void ChooseRow(int row);

  // The table's row, from 1, that stands first.
  int top20_top() const { return top20_top_; }
  // Of the row chosen last; empty before.
  const std::string& chosen_path() const { return chosen_path_; }

 private:
  void ShowRow(int row);

  const Settings& settings_;
  const MostPlayed& list_;
  const CoverFinder& covers_;
  PlayOptions& play_options_;
  Top20Screen& screen_;
  int top20_top_ = 1;
  // Of the rows as they were painted: a play since may have moved the table's.
  std::array<std::string, kTop20Rows> paths_;
  std::string chosen_path_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_TOP20_H_
