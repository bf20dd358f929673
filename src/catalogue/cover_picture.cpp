#include "catalogue/cover_picture.h"

#include "files/file_list.h"
#include "files/files.h"

namespace sonotik {

std::string CoverFinder::FindCoverPicture(const std::string& folder) const {
  // "Use folder name..." acts as the other option does: no picture is ever looked up by the
  // folder's name.
  if (TakesFirstImage()) {
    const std::string name = FirstImageIn(folder);
    return name.empty() ? NotFoundPicture() : folder + "\\" + name;
  }
  return OrNotFound(folder + "\\" + settings_.cover_image_name);
}

std::string CoverFinder::NotFoundPicture() const {
  return app_path_ + "\\skins\\" + settings_.current_skin + "\\images\\ImageNotFound.jpg";
}

std::string CoverFinder::OrNotFound(const std::string& picture) const {
  return FileExists(picture) ? picture : NotFoundPicture();
}

std::string FirstImageIn(const std::string& folder) {
  FileList pictures(kPicturePattern);
  pictures.SetFolder(folder);
  return pictures.NameAt(0);
}

}  // namespace sonotik
