// The history screen: the log of the guests' plays, nine in view, newest first.
#ifndef SONOTIK_CATALOGUE_HISTORY_VIEW_H_
#define SONOTIK_CATALOGUE_HISTORY_VIEW_H_

#include <cstdint>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/cover_picture.h"
#include "catalogue/play_options.h"
#include "catalogue/track_list.h"
#include "forms/Form1.h"

namespace sonotik {

class HistoryView {
 public:
  HistoryView(const std::string& app_path, Catalogue& catalogue, const CoverFinder& covers,
              PlayOptions& play_options, TrackList& track_list, Form1& form);

  // Paints the rows from history_top() on. A top of 0, or one above the log's count, is the newest.
  void history_show2();
  void ToFirstPage() { history_top_ = 0; }
  // The paging buttons. The top counts the log's records, so "Next" and "Page Down" lead to newer
  // plays, and beyond the newest back to it.
  void Step(HistoryStep step);

  // Opens the play options of a record of the log; throws RuntimeFailure for a number below 1.
  void history_play(int64_t history_path);
  // A touch on a row's texts or on its cover; a row without a record does nothing.
  void ChooseTexts(int row);
  void ChooseCover(int row);

  // Number of the record in the first row.
  int64_t history_top() const { return history_top_; }

 private:
  bool Filled(int row) const;
  void FillRow(int row, const HistoryRecord& record, int64_t number);
  std::string PathOfRecord(int64_t number);

  const std::string& app_path_;
  Catalogue& catalogue_;
  const CoverFinder& covers_;
  PlayOptions& play_options_;
  TrackList& track_list_;
  Form1& form1_;
  HistoryScreen& screen_;
  int64_t history_top_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_HISTORY_VIEW_H_
