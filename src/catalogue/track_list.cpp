#include "catalogue/track_list.h"

#include "files/files.h"
#include "files/paths.h"
#include "text/text.h"

namespace sonotik {

TrackList::TrackList(const std::string& app_path, const Settings& settings, Catalogue& catalogue,
                     CatalogueCursor& cursor, const CoverLayout& layout, const CoverFinder& covers,
                     const AlbumPages& pages, CoverAnimation& animation, TagReader& tags,
                     const TagFields& fields, Form1& form)
    : settings_(settings),
      catalogue_(catalogue),
      cursor_(cursor),
      layout_(layout),
      covers_(covers),
      pages_(pages),
      animation_(animation),
      tags_(tags),
      fields_(fields),
      form1_(form),
      screen_(form.track_list) {
  album_files_.SetFolder(app_path);
}

void TrackList::Open(const std::string& album_path) {
  page_top_ = 0;
  SelectRow(-1);
  // Shown first: what the guest waits for is the screen.
  form1_.ShowScreen(screen::kTrackList);
  // The files as they are now; turning pages of one visit keeps to one list.
  // A folder that has gone keeps the files that it had.
  if (FolderExists(album_files_.folder())) album_files_.Refresh();
  track_List2(album_path);
  // Last: it lets events run, and one of them may open another album.
  animation_.RevealCovers(settings_, {&screen_.cover}, settings_.cover_animation_speed);
}

void TrackList::show_album(const std::string& path) {
  const std::string folder = FolderOf(path);
  for (int position = 0; !folder.empty() && position < layout_.covers_per_page; ++position) {
    const std::string shown = pages_.FolderAt(position);
    if (ContainsIgnoringCase(shown, folder.substr(0, folder.size() - 1))) return Open(shown);
  }
}

void TrackList::track_List2(const std::string& album_path) {
  quick_jump_top_ = 0;
  album_queued_ = false;
  ShowCommands();
  const std::string folder = WithSingleSeparators(TrimBlanks(album_path));
  if (FolderExists(folder) && folder != album_files_.folder() &&
      folder != album_files_.folder() + "\\") {
    album_files_.SetFolder(folder);
  }
  screen_.cover.SetPicture(covers_.FindCoverPicture(folder));

  compilation_ = false;
  for (TrackRow& row : screen_.rows) {
    row.title.SetVisible(false);
    row.time.SetVisible(false);
    row.title.SetCaption("");
  }
  for (int row = 0; row < rows_per_page_ && page_top_ + row < album_files_.count(); ++row) {
    FillRow(row, page_top_ + row);
  }
  ShowHeading();
  if (!settings_.hide_quickjump_covers) {
    // Names come doubled for captions; the catalogue's hold a single "&".
    quick_jump(compilation_ ? "Various Artists" : SingleAmpersands(fields_.txtArtist));
  } else {
    quick_jump_paths_.clear();
    ShowQuickJump();
  }
}

void TrackList::FillRow(int row, int file) {
  TrackRow& labels = screen_.rows[static_cast<size_t>(row)];
  labels.title.SetVisible(true);
  labels.time.SetVisible(true);
  tags_.ReadOrNone(TagCaller::kTrackList, album_files_.PathAt(file));
  std::string title = fields_.txtTitle;
  if (settings_.use_filename_if_no_tag && (title == kNoTag || title.empty())) {
    title = DoubleAmpersands(album_files_.NameAt(file));
  }
  // The first row of a page is never compared, so that of a compilation keeps the plain form.
  const std::string artist = UpperCase(fields_.txtArtist);
  if (row > 0 && artist != artist_of_row_before_) compilation_ = true;
  artist_of_row_before_ = artist;
  labels.title.SetCaption(RowText(file + 1, title));
  if (fields_.txtmp3time.empty()) {
    labels.time.SetVisible(false);
  } else {
    labels.time.SetCaption("(" + fields_.txtmp3time + ")");
  }
}

std::string TrackList::RowText(int number, const std::string& title) const {
  // Two digits: track 100 shows as "00".
  const std::string digits =
      settings_.display_track_numbers ? LastDigits(number, 2) + ". " : std::string();
  if (!compilation_) return digits + title;
  const std::string& artist = fields_.txtArtist;
  return digits + (settings_.show_track_first ? title + " - " + artist : artist + " - " + title);
}

void TrackList::ShowHeading() {
  // From the last tag of the page, whatever the others say; that is meant.
  screen_.album_heading.SetCaption("Album : " + DoubleAmpersands(fields_.txtAlbum));
  screen_.artist_heading.SetCaption("Artist : " +
                                    (compilation_ ? "Various Artists" : fields_.txtArtist));
  screen_.released_heading.SetCaption("Released : " + fields_.txtYear);
}

void TrackList::ShowCommands() {
  // The three play buttons act on a row, so they wait for one to be chosen.
  HidePlayCommands();
  screen_.add_to_carousel.SetVisible(settings_.add_album_to_carousel);
  screen_.add_entire_album.SetVisible(settings_.add_entire_album);
  screen_.burn_cd.SetVisible(settings_.burn_cd);
  screen_.download.SetVisible(settings_.download_track);
}

void TrackList::StepPage(int direction) {
  if (direction < 0) {
    if (page_top_ <= rows_per_page_ - 1) return;
    page_top_ -= rows_per_page_;
  } else {
    if (page_top_ + rows_per_page_ >= album_files_.count()) return;
    page_top_ += rows_per_page_;
  }
  SelectRow(-1);
  track_List2(album_files_.folder());
}

void TrackList::quick_jump(const std::string& check_artist) {
  const std::string wanted = UpperCase(TrimBlanks(check_artist));
  RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
  const auto artist_at = [&](long n) {
    return UpperCase(catalogue_.ReadAlbumRecord(file, n).Trimmed(AlbumRecord::kArtist));
  };
  // Back to the start of the artist's run: the file keeps an artist's albums together.
  long pos = std::max<long>(cursor_.position() - layout_.covers_per_page, 1);
  while (pos >= 1 && artist_at(pos) == wanted) --pos;
  pos = std::max<long>(pos, 1);
  quick_jump_paths_.clear();
  for (; pos <= file.count(); ++pos) {
    const AlbumRecord& record = catalogue_.ReadAlbumRecord(file, pos);
    if (UpperCase(record.Trimmed(AlbumRecord::kArtist)) != wanted) continue;
    std::string folder = record.Trimmed(AlbumRecord::kPath);
    // Tested before adding, so the list may hold one more than it says.
    if (folder != album_files_.folder() + "\\" && quick_jump_paths_.size() <= 51) {
      quick_jump_paths_.push_back(std::move(folder));
    }
  }
  ShowQuickJump();
}

void TrackList::ShowQuickJump() {
  for (size_t i = 0; i < screen_.quick_jump.size(); ++i) {
    const size_t at = i + static_cast<size_t>(quick_jump_top_);
    const bool filled = at < quick_jump_paths_.size() && !quick_jump_paths_[at].empty();
    screen_.quick_jump[i].SetVisible(filled);
    if (filled) screen_.quick_jump[i].SetPicture(covers_.FindCoverPicture(quick_jump_paths_[at]));
  }
  const bool any = !quick_jump_paths_.empty();
  screen_.quick_jump_left.SetVisible(any);
  screen_.quick_jump_right.SetVisible(any);
}

void TrackList::ScrollQuickJump(int by) {
  const int top = quick_jump_top_ + by;
  if (top < 0 || top >= static_cast<int>(quick_jump_paths_.size())) return;
  quick_jump_top_ = top;
  ShowQuickJump();
}

void TrackList::OpenQuickJump(int cover) {
  const size_t at = static_cast<size_t>(cover + quick_jump_top_);
  if (at >= quick_jump_paths_.size() || quick_jump_paths_[at].empty()) return;
  // By value: filling the screen renews the list.
  const std::string folder = quick_jump_paths_[at];
  Open(folder);
}

void TrackList::HidePlayCommands() {
  for (lvButtons_H* button : {&screen_.play_now, &screen_.play_next, &screen_.add_to_queue}) {
    button->SetVisible(false);
  }
}

void TrackList::SelectRow(int row) {
  const auto mark = [&](int which, bool on) {
    if (which < 0 || which >= kMostTrackRows) return;
    TrackRow& labels = screen_.rows[static_cast<size_t>(which)];
    labels.title.SetHighlighted(on);
    labels.time.SetHighlighted(on);
  };
  mark(selected_row_, false);
  selected_row_ = row;
  mark(row, true);
  if (row >= 0) ShowRowCommands();
}

void TrackList::ShowRowCommands() {
  if (TrimBlanks(screen_.rows[static_cast<size_t>(selected_row_)].title.caption()).empty()) {
    HidePlayCommands();
    for (lvButtons_H* button : {&screen_.add_entire_album, &screen_.add_to_carousel,
                                &screen_.burn_cd, &screen_.download}) {
      button->SetVisible(false);
    }
    return;
  }
  screen_.play_now.SetVisible(settings_.play_it_now);
  screen_.play_next.SetVisible(settings_.play_next);
  screen_.add_to_queue.SetVisible(settings_.add_to_queue);
  if (settings_.hide_add_on_track_select) {
    screen_.add_to_carousel.SetVisible(false);
    screen_.add_entire_album.SetVisible(false);
  }
}

std::string TrackList::PathOfRow(int row) const {
  return row < 0 ? "" : album_files_.PathAt(page_top_ + row);
}

}  // namespace sonotik
