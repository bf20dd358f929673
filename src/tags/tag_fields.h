// The tag of the file read last, as thirteen texts.
//
// There is one such slot in the program. Every reader writes it and its caller takes what it wants
// at once. A reader may leave a field of the file before standing; the readers say which.
#ifndef SONOTIK_TAGS_TAG_FIELDS_H_
#define SONOTIK_TAGS_TAG_FIELDS_H_

#include <string>

namespace sonotik {

// In a field: nothing was found.
inline constexpr char kNoTag[] = "No Tag";

struct TagFields {
  std::string txtArtist;  // with every "&" doubled, for captions
  std::string txtAlbum;
  std::string txtTitle;  // with every "&" doubled, for captions
  std::string txtTrack;  // as the tag gives it: "3/12" stays "3/12"
  std::string txtYear;
  std::string txtComments;
  std::string txtComposer;
  std::string txtOrigArtist;
  std::string txtCopyright;
  std::string txtURL;
  std::string txtEncodedBy;
  std::string txtGenre;
  std::string txtmp3time;  // minutes, ":" and seconds
};

}  // namespace sonotik

#endif  // SONOTIK_TAGS_TAG_FIELDS_H_
