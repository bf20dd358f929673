// Names for the catalogue's text fields: made clean, made to fit, and made up from file and folder
// names where a file tells none.
#ifndef SONOTIK_TOOLS_CONFIG_NAMES_H_
#define SONOTIK_TOOLS_CONFIG_NAMES_H_

#include <string>
#include <string_view>

namespace sonotik {

inline constexpr char kUnknownArtist[] = "Unknown Artist";
inline constexpr char kVariousArtists[] = "Various Artists";

// NULs, line ends and all other control characters become blanks; blanks at the ends go.
std::string CleanText(std::string_view text);

// At most `width` bytes, cut between two UTF-8 characters. Bytes that are no UTF-8 are cut
// anywhere.
std::string CutText(std::string_view text, size_t width);

// "01 - Dawn.mp3" gives "Dawn"; a name that is nothing but a number stays.
std::string TitleFromFileName(std::string_view name);

// What the name of an album's folder tells: both parts of "Artist - Album"; of any other name the
// artist stays empty and the album is the whole name.
struct FolderNames {
  std::string artist;
  std::string album;
};
FolderNames NamesFromFolder(std::string_view folder_name);

// The file name of a genre's covers index, without its ending; empty if no such file can be.
std::string GenreFileStem(std::string_view genre);

}  // namespace sonotik

#endif  // SONOTIK_TOOLS_CONFIG_NAMES_H_
