// What a guest may mean while he types: four albums from the covers index.
#ifndef SONOTIK_CATALOGUE_SUGGESTIONS_H_
#define SONOTIK_CATALOGUE_SUGGESTIONS_H_

#include <string>

#include "catalogue/catalogue.h"
#include "forms/SearchScreen.h"

namespace sonotik {

// What is searched, by the buttons "TRACK", "ARTIST", "ALBUM".
enum class SearchMode { kTrack, kArtist, kAlbum };

class Suggestions {
 public:
  Suggestions(Catalogue& catalogue, const CatalogueCursor& cursor, SearchScreen& screen)
      : catalogue_(catalogue), cursor_(cursor), screen_(screen) {}

  // Shows the albums from the first one on whose artist or title begins with the text. Tracks have
  // no suggestions.
  void Show(SearchMode mode, const std::string& text);
  void Clear();
  // The folder behind a line as its record holds it, blanks included; empty if there is none.
  std::string FolderOfLine(int line);

 private:
  Catalogue& catalogue_;
  const CatalogueCursor& cursor_;
  SearchScreen& screen_;
  int64_t top_ = 0;  // the record of the first line
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_SUGGESTIONS_H_
