// The genres: covers indexes of their own in a folder, offered by a screen and by a bar.
#ifndef SONOTIK_CATALOGUE_GENRES_H_
#define SONOTIK_CATALOGUE_GENRES_H_

#include <string>

#include "catalogue/album_pages.h"
#include "files/file_list.h"

namespace sonotik {

class Genres {
 public:
  Genres(const std::string& app_path, const Settings& settings, CatalogueCursor& cursor,
         AlbumPages& pages, CoverAnimation& animation, Form1& form);

  // Paint the screen and the bar, with the genres as they are in the folder now.
  void show_genres();
  void genre_scroll_show();
  // Reveals what shows of them, with animated covers. Lets events run.
  void Reveal();
  // A page of genres up (-1) or down (1).
  void StepScreen(int direction);
  void StepBar(int direction);

  // The album pages of the genre with this caption, or of all records.
  void ShowGenre(const std::string& caption);
  void ShowAll();

 private:
  void ShowAlbums();
  std::string CaptionOf(int file) const;

  const Settings& settings_;
  CatalogueCursor& cursor_;
  AlbumPages& pages_;
  CoverAnimation& animation_;
  Form1& form1_;
  FileList files_{"*.cvr"};
  int list_top_ = 0;
  int bar_top_ = 0;
};

// What stands first on the screen and on the bar.
inline constexpr char kAllGenres[] = "ALL GENRES";

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_GENRES_H_
