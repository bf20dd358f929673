#include "catalogue/carousel.h"

#include <algorithm>

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {

Carousel::Carousel(const Settings& settings, Catalogue& catalogue, CatalogueCursor& cursor,
                   const CoverLayout& layout, const CoverFinder& covers, AlbumPages& pages,
                   CoverAnimation& animation, CarouselScreen& screen)
    : settings_(settings),
      catalogue_(catalogue),
      cursor_(cursor),
      layout_(layout),
      covers_(covers),
      pages_(pages),
      animation_(animation),
      screen_(screen) {}

void Carousel::read_artists() {
  RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
  const long count = file.count();
  const long covers = layout_.covers_per_page;
  const long page = FloorDiv(cursor_.position(), covers);
  if (page >= FloorDiv(count - 1, covers) + 1 || page <= -1) return;
  pages_.SetPageValid(true);

  for (auto& column : paths_) column.fill("");
  std::array<std::string, kCarouselColumns> names;
  const size_t most = std::min<size_t>(static_cast<size_t>(covers), kCarouselColumns);
  std::string artist_before;
  size_t used = 0;  // columns begun
  size_t row = 0;
  for (long pos = std::max<long>(cursor_.position(), 1); pos <= count; ++pos) {
    const AlbumRecord& record = catalogue_.ReadAlbumRecord(file, pos);
    const std::string artist = UpperCase(record.Trimmed(AlbumRecord::kArtist));
    if (used == 0 || artist != artist_before) {
      if (used == most) break;
      names[used++] = record.Trimmed(AlbumRecord::kArtist);
      row = 0;
    }
    if (!artist.empty()) artist_before = artist;
    if (row < paths_[used - 1].size()) {
      paths_[used - 1][row++] = record.Trimmed(AlbumRecord::kPath);
    }
  }

  for (size_t c = 0; c < screen_.columns.size(); ++c) {
    CarouselColumn& column = screen_.columns[c];
    column.artist.SetCaption(DoubleAmpersands(names[c]));
    column.artist.SetVisible(c < used);
    for (size_t i = 0; i < column.covers.size(); ++i) {
      const std::string& folder = paths_[c][i];
      column.covers[i].SetVisible(!folder.empty());
      if (!folder.empty()) column.covers[i].SetPicture(covers_.FindCoverPicture(folder));
    }
  }
}

void Carousel::Carousel_show() {
  read_artists();
  Reveal();
}

void Carousel::Step(int direction) {
  cursor_.source = CatalogueSource::kRecords;
  const long before = cursor_.position();
  pages_.StepWithUndo(direction, [this] { read_artists(); });
  // Last: it lets events run, and one of them may step on.
  if (cursor_.position() != before) Reveal();
}

void Carousel::Reveal() {
  std::vector<Control*> covers;
  for (CarouselColumn& column : screen_.columns) {
    for (PictureBox& cover : column.covers) covers.push_back(&cover);
  }
  animation_.RevealCovers(settings_, covers, kTileDelay);
}

}  // namespace sonotik
