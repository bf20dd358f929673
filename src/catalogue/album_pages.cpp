#include "catalogue/album_pages.h"

#include <algorithm>

#include "files/runtime_failure.h"
#include "text/dates.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

// An album is new for a week.
constexpr long kNewDays = 7;

}  // namespace

AlbumPages::AlbumPages(Machine& machine, const Settings& settings, Catalogue& catalogue,
                       CatalogueCursor& cursor, const CoverLayout& layout,
                       const CoverFinder& covers, CoverAnimation& animation, Form1& form)
    : machine_(machine),
      settings_(settings),
      catalogue_(catalogue),
      cursor_(cursor),
      layout_(layout),
      covers_(covers),
      animation_(animation),
      form1_(form),
      screen_(form.album) {}

void AlbumPages::read_albums3() {
  if (PaintPage(false)) Reveal();
}

void AlbumPages::spin_on_this() {
  if (PaintPage(true)) Reveal();
}

bool AlbumPages::PaintPage(bool at_random) {
  RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
  const long count = file.count();
  const long covers = layout_.covers_per_page;
  long pos = cursor_.position();
  const long pages = FloorDiv(count - 1, covers) + 1;
  const long page = FloorDiv(pos, covers);
  if (page >= pages || page <= -1) return false;

  // The first page reads as page 0, and the second number counts from the record before the last:
  // both are meant.
  screen_.page_caption.SetCaption("Current Page :" + NumberCaption(page) + "/" +
                                  NumberCaption(FloorDiv(count - 2, covers)));
  page_valid_ = true;
  pos = std::max(pos, 1L);
  if (at_random) {
    machine_.random.Seed(static_cast<uint64_t>(machine_.clock.Milliseconds()));
  }
  int slot = 1;
  for (; slot <= covers && pos <= count; ++slot, ++pos) {
    const long number = at_random ? std::min<long>(machine_.random.Below(count) + 1, count) : pos;
    // A random album may come twice, and the digits show the running position over it; both are
    // meant.
    FillSlot(slot, catalogue_.ReadAlbumRecord(file, number), pos);
    ShowCover(slot);
    slots_[static_cast<size_t>(slot) + 1] = {};
  }
  for (; slot <= covers; ++slot) HideCover(slot);
  return true;
}

void AlbumPages::Reveal() {
  animation_.RevealCovers(settings_, {&form1_.panel(screen::kAlbum)},
                          settings_.cover_animation_speed);
}

void AlbumPages::FillSlot(int slot, const AlbumRecord& record, long number) {
  CoverSlot& entry = slots_[static_cast<size_t>(slot)];
  entry.album = record.Trimmed(AlbumRecord::kAlbum);
  entry.artist = record.Trimmed(AlbumRecord::kArtist);
  if (settings_.show_album_digits) entry.artist += " (" + LastDigits(number, 4) + ")";
  entry.folder = record.Trimmed(AlbumRecord::kPath);
  entry.date = record.Trimmed(AlbumRecord::kDate);
}

void AlbumPages::ShowCover(int slot) {
  const CoverSlot& entry = slots_[static_cast<size_t>(slot)];
  CoverPosition& position = screen_.covers[static_cast<size_t>(slot) - 1];
  const bool names = settings_.show_album_artist_names != 0;
  if (names) {
    position.album.SetCaption(DoubleAmpersands(entry.album));
    position.artist.SetCaption(DoubleAmpersands(entry.artist));
  }
  position.album.SetVisible(names);
  position.artist.SetVisible(names);
  position.cover.SetVisible(true);
  position.reflection.SetVisible(layout_.show_reflections);
  position.frame.SetVisible(layout_.show_frames);
  bool is_new = false;
  if (settings_.show_new_on_recent_albums) {
    const auto date = ParseDate(entry.date);
    // A date that can't be read fails the page; that is meant.
    if (!date) throw RuntimeFailure("\"" + entry.date + "\" is no date");
    is_new = DaysBetween(*date, machine_.clock.Now().date) < kNewDays;
  }
  position.new_badge.SetVisible(is_new);
  // An album without a folder keeps its place on the page, without a picture.
  const std::string picture = entry.folder.empty() ? "" : covers_.FindCoverPicture(entry.folder);
  position.cover.SetPicture(picture);
  if (layout_.show_reflections) position.reflection.SetPicture(picture);
}

void AlbumPages::HideCover(int slot) {
  slots_[static_cast<size_t>(slot)] = {};
  CoverPosition& position = screen_.covers[static_cast<size_t>(slot) - 1];
  // The "new" badge is left as it is.
  const std::initializer_list<Control*> items = {&position.album, &position.artist, &position.cover,
                                                 &position.frame, &position.reflection};
  for (Control* item : items) item->SetVisible(false);
}

void AlbumPages::StepWithUndo(long pages, const std::function<void()>& paint) {
  const long before = cursor_.position();
  page_valid_ = false;
  cursor_.SetPosition(before + pages * layout_.covers_per_page);
  paint();
  if (!page_valid_) cursor_.SetPosition(before);
  page_valid_ = false;
}

void AlbumPages::StepWithUndo(long pages) {
  bool painted = false;
  StepWithUndo(pages, [&] { painted = PaintPage(false); });
  if (painted) Reveal();
}

void AlbumPages::StepPage(int direction) {
  if (paging_busy_) return;
  paging_busy_ = true;
  const struct Release {
    bool& busy;
    ~Release() { busy = false; }
  } release{paging_busy_};
  StepWithUndo(direction);
  machine_.events.PumpEvents();
}

void AlbumPages::JumpToStart() {
  // Position 0, not 1: the next page then starts at the last record of this one, which is meant.
  cursor_.SetPosition(0);
  const bool painted = PaintPage(false);
  page_valid_ = false;
  if (painted) Reveal();
}

void AlbumPages::ShowSource(CatalogueSource source) {
  cursor_.source = source;
  read_albums3();
  // 110 is no style: the page just shows.
  if (settings_.use_animated_covers && form1_.panel(screen::kAlbum).showing()) {
    animation_.Animate(form1_.panel(screen::kAlbum), 1, 110, 0, kCoverAnimationSteps);
  }
}

void AlbumPages::PressTab(AlbumTab tab) {
  // The kind first: the pages come in an animation that lets events run, and by the kind a guest
  // pays.
  switch (tab) {
    case AlbumTab::kAudio:
      // The kind changes only with the source here, and in any case for karaoke; that is meant.
      if (cursor_.source != CatalogueSource::kRecords) {
        cursor_.media_kind = kAudio;
        ShowSource(CatalogueSource::kRecords);
      }
      break;
    case AlbumTab::kVideo:
      // This tab leaves the media kind as it stood.
      if (cursor_.source != CatalogueSource::kVideos) ShowSource(CatalogueSource::kVideos);
      break;
    case AlbumTab::kKaraoke:
      cursor_.media_kind = kKaraoke;
      if (cursor_.source != CatalogueSource::kKaraoke) ShowSource(CatalogueSource::kKaraoke);
      break;
    case AlbumTab::kMostPlayed:
      // A tab without a page; that is meant.
      break;
    case AlbumTab::kNewSongs:
      cursor_.media_kind = kNewSongs;
      // From the karaoke pages only the kind changes.
      if (cursor_.source != CatalogueSource::kKaraoke) {
        cursor_.source = CatalogueSource::kNew;
        read_albums3();
      }
      break;
    case AlbumTab::kSpinOnThis:
      spin_on_this();
      break;
  }
}

void AlbumPages::SelectDatabase(int index) {
  if (index == 0) PressTab(AlbumTab::kAudio);
  if (index == 1) PressTab(AlbumTab::kVideo);
  if (index == 2) PressTab(AlbumTab::kKaraoke);
}

void AlbumPages::SetHighlight(int position) {
  const auto swap_colors = [&](int which, bool on) {
    if (which < 0 || which >= kMostCovers) return;
    CoverPosition& items = screen_.covers[static_cast<size_t>(which)];
    for (Label* label : {&items.album, &items.artist}) {
      const Color fore = label->fore_color();
      label->SetForeColor(label->back_color());
      label->SetBackColor(fore);
      label->SetHighlighted(on);
    }
  };
  swap_colors(highlight_, false);
  highlight_ = position;
  swap_colors(position, true);
}

const std::string& AlbumPages::FolderAt(int position) const {
  return slots_[static_cast<size_t>(position) + 1].folder;
}

}  // namespace sonotik
