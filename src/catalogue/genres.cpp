#include "catalogue/genres.h"

#include "text/text.h"

namespace sonotik {
namespace {

constexpr int kScreenPage = 27;
constexpr int kBarPage = 7;
constexpr char kEnding[] = ".cvr";

}  // namespace

Genres::Genres(const std::string& app_path, const Settings& settings, CatalogueCursor& cursor,
               AlbumPages& pages, CoverAnimation& animation, Form1& form)
    : settings_(settings), cursor_(cursor), pages_(pages), animation_(animation), form1_(form) {
  files_.SetFolder(app_path + "\\genres");
}

std::string Genres::CaptionOf(int file) const {
  const std::string name = files_.NameAt(file);
  return DoubleAmpersands(name.substr(0, name.size() - (sizeof kEnding - 1)));
}

void Genres::show_genres() {
  files_.Refresh();
  for (int i = 1; i <= kScreenPage; ++i) {
    Label& label = form1_.genre.labels[static_cast<size_t>(i)];
    const int file = list_top_ + i - 1;
    label.SetVisible(file < files_.count());
    if (label.visible()) label.SetCaption(CaptionOf(file));
  }
}

void Genres::genre_scroll_show() {
  files_.Refresh();
  for (int i = 1; i <= kBarPage; ++i) {
    lvButtons_H& entry = form1_.genre_buttons.buttons[static_cast<size_t>(i)];
    const int file = bar_top_ + i - 1;
    // "ALL GENRES" stands in the place of the first genre, which only the screen offers; that is
    // meant.
    entry.SetVisible(file == 0 || file < files_.count());
    if (entry.visible()) entry.SetCaption(file == 0 ? kAllGenres : CaptionOf(file));
  }
}

void Genres::StepScreen(int direction) {
  files_.Refresh();
  if (direction < 0 && list_top_ > 0) list_top_ -= kScreenPage;
  if (direction > 0 && list_top_ + kScreenPage < files_.count()) list_top_ += kScreenPage;
  show_genres();
  Reveal();
}

void Genres::StepBar(int direction) {
  if (direction < 0 && bar_top_ > 0) bar_top_ -= kBarPage;
  // Without an end: the bar scrolls on to places without a genre, which is meant.
  if (direction > 0) bar_top_ += kBarPage;
  genre_scroll_show();
  Reveal();
}

void Genres::Reveal() {
  std::vector<Control*> tiles;
  for (Label& label : form1_.genre.labels) tiles.push_back(&label);
  for (size_t i = 1; i <= kBarPage; ++i) tiles.push_back(&form1_.genre_buttons.buttons[i]);
  animation_.RevealCovers(settings_, tiles, kTileDelay);
}

void Genres::ShowGenre(const std::string& caption) {
  cursor_.SetPosition(CatalogueSource::kGenre, 1);
  cursor_.source = CatalogueSource::kGenre;
  cursor_.genre_file = SingleAmpersands(caption) + kEnding;
  ShowAlbums();
}

void Genres::ShowAll() {
  cursor_.source = CatalogueSource::kRecords;
  ShowAlbums();
}

void Genres::ShowAlbums() {
  form1_.HideAllScreens();
  form1_.ShowScreen(screen::kAlbum);
  pages_.read_albums3();
}

}  // namespace sonotik
