// The commands for one chosen track: whether it may be added, and what it costs.
#ifndef SONOTIK_CATALOGUE_PLAY_OPTIONS_H_
#define SONOTIK_CATALOGUE_PLAY_OPTIONS_H_

#include <functional>
#include <string>

#include "access/credits.h"
#include "catalogue/catalogue.h"
#include "catalogue/cover_picture.h"
#include "skins/cover_animation.h"
#include "tags/tag_fields.h"
#include "tags/tag_reader.h"

namespace sonotik {

class PlayOptions {
 public:
  PlayOptions(const Settings& settings, const CatalogueCursor& cursor, const CoverFinder& covers,
              const Credits& credits, CoverAnimation& animation, TagReader& tags,
              const TagFields& fields, Form1& form);

  // What the queue says of a path and of itself.
  std::function<bool(const std::string& path)> is_queued = [](const std::string&) { return false; };
  std::function<int()> queue_count = [] { return 0; };

  // Opens the screen for a track. `calling_screen` is the panel to return to.
  void show_play_options(const std::string& path, size_t calling_screen);
  // Reveals it, with animated covers. Lets events run, so it comes last: a touch may already play.
  void Reveal();
  // Back to the screen that called.
  void Close();

  // The chosen track.
  const std::string& path() const { return path_; }
  size_t calling_screen() const { return calling_screen_; }

 private:
  void ShowButtons();
  void ShowPrices();

  const Settings& settings_;
  const CatalogueCursor& cursor_;
  const CoverFinder& covers_;
  const Credits& credits_;
  CoverAnimation& animation_;
  TagReader& tags_;
  const TagFields& fields_;
  Form1& form1_;
  PlayOptionsScreen& screen_;
  std::string path_;
  size_t calling_screen_ = screen::kTrackList;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_PLAY_OPTIONS_H_
