// The one rule by which an album folder gets its picture.
#ifndef SONOTIK_CATALOGUE_COVER_PICTURE_H_
#define SONOTIK_CATALOGUE_COVER_PICTURE_H_

#include <string>

#include "config/settings.h"

namespace sonotik {

class CoverFinder {
 public:
  CoverFinder(const std::string& app_path, const Settings& settings)
      : app_path_(app_path), settings_(settings) {}

  // The picture's path for a folder. A folder with its closing "\" gives a doubled one.
  std::string FindCoverPicture(const std::string& folder) const;
  // The skin's picture for a cover that isn't there.
  std::string NotFoundPicture() const;
  // The picture if its file is there, else the not-found picture.
  std::string OrNotFound(const std::string& picture) const;
  // Either of the two options that take the first picture of a folder.
  bool TakesFirstImage() const {
    return settings_.use_folder_name || settings_.display_first_image;
  }

 private:
  const std::string& app_path_;
  const Settings& settings_;
};

// The first *.jpg of a folder by name; empty where there is none.
std::string FirstImageIn(const std::string& folder);

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_COVER_PICTURE_H_
