// One album on the screen: its tracks as its folder holds them, named by their own tags.
#ifndef SONOTIK_CATALOGUE_TRACK_LIST_H_
#define SONOTIK_CATALOGUE_TRACK_LIST_H_

#include <string>
#include <vector>

#include "catalogue/album_pages.h"
#include "files/file_list.h"
#include "tags/tag_fields.h"
#include "tags/tag_reader.h"

namespace sonotik {

class TrackList {
 public:
  TrackList(const std::string& app_path, const Settings& settings, Catalogue& catalogue,
            CatalogueCursor& cursor, const CoverLayout& layout, const CoverFinder& covers,
            const AlbumPages& pages, CoverAnimation& animation, TagReader& tags,
            const TagFields& fields, Form1& form);

  // Fills the screen for a folder, from the first row's track on. A folder that is gone keeps the
  // files of the album before.
  void track_List2(const std::string& album_path);
  // A new album from its first track, without a highlighted row.
  void Open(const std::string& album_path);
  // The three buttons that play or queue the chosen row.
  void HidePlayCommands();
  // The album of a track, if the cover page shows it.
  void show_album(const std::string& path);
  // "Up" is -1, "Down" is 1.
  void StepPage(int direction);
  // The strip of other albums by the artist.
  void quick_jump(const std::string& check_artist);
  void ScrollQuickJump(int by);
  void OpenQuickJump(int cover);

  // Marks a row and takes the mark from the one before; -1 for none.
  void SelectRow(int row);
  int selected_row() const { return selected_row_; }
  // The file behind a row of the page; empty where none is.
  std::string PathOfRow(int row) const;

  int page_top() const { return page_top_; }
  void SetPageTop(int top) { page_top_ = top; }
  void SetRowsPerPage(int rows) { rows_per_page_ = rows; }
  int rows_per_page() const { return rows_per_page_; }
  const FileList& album_files() const { return album_files_; }
  bool album_queued() const { return album_queued_; }
  void SetAlbumQueued(bool queued) { album_queued_ = queued; }

 private:
  void FillRow(int row, int file);
  std::string RowText(int number, const std::string& title) const;
  void ShowHeading();
  void ShowCommands();
  void ShowRowCommands();
  void ShowQuickJump();

  const Settings& settings_;
  Catalogue& catalogue_;
  CatalogueCursor& cursor_;
  const CoverLayout& layout_;
  const CoverFinder& covers_;
  const AlbumPages& pages_;
  CoverAnimation& animation_;
  TagReader& tags_;
  const TagFields& fields_;
  Form1& form1_;
  TrackListScreen& screen_;
  FileList album_files_{kMediaPattern};
  int rows_per_page_ = kMostTrackRows;
  int page_top_ = 0;
  int selected_row_ = -1;
  bool compilation_ = false;
  bool album_queued_ = false;
  std::string artist_of_row_before_;
  std::vector<std::string> quick_jump_paths_;
  int quick_jump_top_ = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_TRACK_LIST_H_
