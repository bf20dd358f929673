// The carousel view: five artists side by side, each with the covers of his albums.
#ifndef SONOTIK_CATALOGUE_CAROUSEL_H_
#define SONOTIK_CATALOGUE_CAROUSEL_H_

#include <array>
#include <string>

#include "catalogue/album_pages.h"

namespace sonotik {

class Carousel {
 public:
  Carousel(const Settings& settings, Catalogue& catalogue, CatalogueCursor& cursor,
           const CoverLayout& layout, const CoverFinder& covers, AlbumPages& pages,
           CoverAnimation& animation, CarouselScreen& screen);

  // Paints the columns from the source's position on.
  void read_artists();
  // The way in from the menu and the keys, once the screen shows: with animated covers.
  void Carousel_show();
  // "UP" is -1, "DOWN" is 1. Both make the audio albums the source.
  void Step(int direction);
  // The album folder behind a cover; empty where none is.
  const std::string& PathAt(size_t column, size_t row) const { return paths_[column][row]; }

 private:
  void Reveal();

  const Settings& settings_;
  Catalogue& catalogue_;
  CatalogueCursor& cursor_;
  const CoverLayout& layout_;
  const CoverFinder& covers_;
  AlbumPages& pages_;
  CoverAnimation& animation_;
  CarouselScreen& screen_;
  // CarouselPaths: six columns, of which five show, of 101 albums, of which five show.
  std::array<std::array<std::string, 101>, 6> paths_;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_CAROUSEL_H_
