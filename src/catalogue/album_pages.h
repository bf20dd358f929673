// The pages of covers: painting, paging, the tabs.
#ifndef SONOTIK_CATALOGUE_ALBUM_PAGES_H_
#define SONOTIK_CATALOGUE_ALBUM_PAGES_H_

#include <array>
#include <functional>
#include <string>

#include "catalogue/catalogue.h"
#include "catalogue/cover_picture.h"
#include "forms/Form1.h"
#include "platform/machine.h"
#include "skins/cover_animation.h"
#include "skins/cover_layout.h"

namespace sonotik {

// What a slot of the page holds. Slot 1 is the first cover; slot 0 is not used.
struct CoverSlot {
  std::string album;
  std::string artist;
  std::string folder;
  std::string date;
};

class AlbumPages {
 public:
  AlbumPages(Machine& machine, const Settings& settings, Catalogue& catalogue,
             CatalogueCursor& cursor, const CoverLayout& layout, const CoverFinder& covers,
             CoverAnimation& animation, Form1& form);

  // Paints the page at the source's position. A position outside the file paints nothing and leaves
  // page_valid() as it was.
  void read_albums3();
  // A page of random albums; the position stays.
  void spin_on_this();

  // The paging buttons: a page on (1) or back (-1), undone where there is none. They do nothing while
  // one of them is at work.
  void StepPage(int direction);
  bool paging_busy() const { return paging_busy_; }
  void JumpToStart();
  void PressTab(AlbumTab tab);
  // "Database to use on startup...": 0 Audio, 1 Video, 2 Karaoke; others do nothing.
  void SelectDatabase(int index);

  // Moves the position by this many pages, calls `paint`, and undoes the step if that painted
  // nothing.
  void StepWithUndo(long pages, const std::function<void()>& paint);
  // The same for the page itself, which then comes in its animation.
  void StepWithUndo(long pages);

  // The cover that the keys have marked, -1 for none: the colours of its two labels are swapped.
  int highlight() const { return highlight_; }
  void SetHighlight(int position);

  bool page_valid() const { return page_valid_; }
  void SetPageValid(bool valid) { page_valid_ = valid; }
  // The folder of slot position + 1.
  const std::string& FolderAt(int position) const;
  const std::array<CoverSlot, kMostCovers + 1>& slots() const { return slots_; }

 private:
  // Whether there was a page to paint.
  bool PaintPage(bool at_random);
  // Comes last of all: it lets events run, and one of them may page on.
  void Reveal();
  void FillSlot(int slot, const AlbumRecord& record, long number);
  void ShowCover(int slot);
  void HideCover(int slot);
  void ShowSource(CatalogueSource source);

  Machine& machine_;
  const Settings& settings_;
  Catalogue& catalogue_;
  CatalogueCursor& cursor_;
  const CoverLayout& layout_;
  const CoverFinder& covers_;
  CoverAnimation& animation_;
  Form1& form1_;
  AlbumScreen& screen_;
  // One more than there are slots, so that the slot behind the last can be cleared.
  std::array<CoverSlot, kMostCovers + 1> slots_;
  int highlight_ = -1;
  bool page_valid_ = false;
  bool paging_busy_ = false;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_ALBUM_PAGES_H_
