// The search: what a guest types, the scan of a track file, and the pages of what it found.
#ifndef SONOTIK_CATALOGUE_SEARCH_H_
#define SONOTIK_CATALOGUE_SEARCH_H_

#include <array>
#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/cover_picture.h"
#include "catalogue/search_results.h"
#include "catalogue/suggestions.h"
#include "config/settings.h"
#include "forms/Form1.h"
#include "platform/machine.h"

namespace sonotik {

class Search {
 public:
  Search(Machine& machine, const Settings& settings, Catalogue& catalogue,
         const CatalogueCursor& cursor, const CoverFinder& covers, SearchResults& results,
         Form1& form);

  // Told at each record of a scan: the guest who waits for it is still there.
  std::function<void()> on_record = [] {};
  // The files of the special lists, by list button; the last place is never filled. Whoever puts
  // on a skin fills it.
  std::array<std::string, 5> list_files;

  // The entry line. A change of it moves the suggestions.
  const std::string& search_text() const { return search_text_; }
  void SetSearchText(const std::string& text);
  // A new search by this field.
  void SetMode(SearchMode mode) { mode_ = mode; }
  // The entry line and the suggestions empty, the results at their first page.
  void Reset();

  // Fills the results from the track file of the media kind: the first 99 tracks that hold the
  // search text, in the file's order. A failure leaves what was found before it.
  void search(SearchMode mode);
  // Paints the rows from result_top() on.
  void search_show();
  // The commands that have something to act on, and the special lists if nothing was found.
  void ShowCommands();
  // Hides the commands and empties the results but the first, which stays; that is meant.
  void search_clear();
  void ToFirstPage() { result_top_ = 0; }
  // A page of results up (-1) or down (1).
  void StepPage(int direction);
  // The results page of a special list, which stays empty: the lists aren't read; that is meant.
  void ShowList(size_t button);
  // Looks up the lines of a special list, "name,artist" behind a line with its kind (0 albums,
  // 1 songs, 2 videos): what a line has found comes into the results at the line's place, from 0.
  // Nobody calls it; that is meant. Throws RuntimeFailure for a list without a kind.
  void chart_show(const std::string& chart_path);

  // Marks the track in a row of the page, for the commands. False if the row holds none.
  bool ChooseRow(int row);
  // The path of the track chosen, without the blanks around it; empty if none is.
  std::string ChosenPath() const;

  SearchMode mode() const { return mode_; }
  Suggestions& suggestions() { return suggestions_; }
  const SearchResults& results() const { return results_; }
  int result_count() const { return result_count_; }
  int result_top() const { return result_top_; }

 private:
  void StoreTrack(size_t entry, const TrackRecord& record);
  void StoreAlbum(size_t entry, const AlbumRecord& record);
  void ShowHeading(long count, const char* what);
  void ShowRow(int row);

  Machine& machine_;
  const Settings& settings_;
  Catalogue& catalogue_;
  const CatalogueCursor& cursor_;
  const CoverFinder& covers_;
  SearchResults& results_;
  Form1& form1_;
  SearchResultsScreen& screen_;
  Suggestions suggestions_;
  SearchMode mode_ = SearchMode::kTrack;
  std::string search_text_;
  int result_count_ = 0;
  int result_top_ = 0;
  int chosen_ = -1;  // an entry of the results
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_SEARCH_H_
