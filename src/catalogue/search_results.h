// The one table of found tracks that the search and the charts share.
#ifndef SONOTIK_CATALOGUE_SEARCH_RESULTS_H_
#define SONOTIK_CATALOGUE_SEARCH_RESULTS_H_

#include <array>
#include <string>

namespace sonotik {

// A search fills entries 0 to 98 at most; the charts use the paths alone, each at the place of its
// line.
inline constexpr int kResultEntries = 101;

struct SearchResults {
  using List = std::array<std::string, kResultEntries>;

  List paths;  // as the record holds them, blanks included
  List artists;
  List tracks;
  List albums;
  List folders;  // of the entries shown so far, without a closing "\"

  // Empties every list from this entry on.
  void ClearFrom(int first) {
    for (List* list : {&paths, &artists, &tracks, &albums, &folders}) {
      for (size_t i = static_cast<size_t>(first); i < list->size(); ++i) (*list)[i].clear();
    }
  }
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_SEARCH_RESULTS_H_
