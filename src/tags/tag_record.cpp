#include "tags/tag_record.h"

#include <array>
#include <cstddef>

#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

// Several spellings differ from the customary ones; they are the ones that lists and charts know.
constexpr auto kGenres = std::to_array<std::string_view>({"Blues",
                                                          "Classic Rock",
                                                          "Country",
                                                          "Dance",
                                                          "Disco",
                                                          "Funk",
                                                          "Grunge",
                                                          "Hip-Hop",
                                                          "Jazz",
                                                          "Metal",
                                                          "New Age",
                                                          "Oldies",
                                                          "Other",
                                                          "Pop",
                                                          "R&B",
                                                          "Rap",
                                                          "Reggae",
                                                          "Rock",
                                                          "Techno",
                                                          "Industrial",
                                                          "Alternative",
                                                          "Ska",
                                                          "Death Metal",
                                                          "Pranks",
                                                          "Soundtrack",
                                                          "Euro-Techno",
                                                          "Ambient",
                                                          "Trip-Hop",
                                                          "Vocal",
                                                          "Jazz+Funk",
                                                          "Fusion",
                                                          "Trance",
                                                          "Classical",
                                                          "Instrumental",
                                                          "Acid",
                                                          "House",
                                                          "Game",
                                                          "Sound Clip",
                                                          "Gospel",
                                                          "Noise",
                                                          "Alt. Rock",
                                                          "Bass",
                                                          "Soul",
                                                          "Punk",
                                                          "Space",
                                                          "Meditative",
                                                          "Instrumental Pop",
                                                          "Instrumental Rock",
                                                          "Ethnic",
                                                          "Gothic",
                                                          "Darkwave",
                                                          "Techno-Industrial",
                                                          "Electronic",
                                                          "Pop-Folk",
                                                          "Eurodance",
                                                          "Dream",
                                                          "Southern Rock",
                                                          "Comedy",
                                                          "Cult",
                                                          "Gangsta",
                                                          "Top 40",
                                                          "Christian Rap",
                                                          "Pop/Funk",
                                                          "Jungle",
                                                          "Native American",
                                                          "Cabaret",
                                                          "New Wave",
                                                          "Psychadelic",
                                                          "Rave",
                                                          "Showtunes",
                                                          "Trailer",
                                                          "Lo-Fi",
                                                          "Tribal",
                                                          "Acid Punk",
                                                          "Acid Jazz",
                                                          "Polka",
                                                          "Retro",
                                                          "Musical",
                                                          "Rock & Roll",
                                                          "Hard Rock",
                                                          "Folk",
                                                          "Folk-Rock",
                                                          "National Folk",
                                                          "Swing",
                                                          "Fast Fusion",
                                                          "Bebob",
                                                          "Latin",
                                                          "Revival",
                                                          "Celtic",
                                                          "Bluegrass",
                                                          "Avantgarde",
                                                          "Gothic Rock",
                                                          "Progressive Rock",
                                                          "Psychedelic Rock",
                                                          "Symphonic Rock",
                                                          "Slow Rock",
                                                          "Big Band",
                                                          "Chorus",
                                                          "Easy Listening",
                                                          "Acoustic",
                                                          "Humour",
                                                          "Speech",
                                                          "Chanson",
                                                          "Opera",
                                                          "Chamber Music",
                                                          "Sonata",
                                                          "Symphony",
                                                          "Booty Bass",
                                                          "Primus",
                                                          "Porn Groove",
                                                          "Satire",
                                                          "Slow Jam",
                                                          "Club",
                                                          "Tango",
                                                          "Samba",
                                                          "Folklore",
                                                          "Ballad",
                                                          "Power Ballad",
                                                          "Rhythmic Soul",
                                                          "Freestyle",
                                                          "Duet",
                                                          "Punk Rock",
                                                          "Drum Solo",
                                                          "A capella",
                                                          "Euro-House",
                                                          "Dance Hall",
                                                          "Goa",
                                                          "Drum & Bass",
                                                          "Club-House",
                                                          "Hardcore",
                                                          "Terror",
                                                          "Indie",
                                                          "BritPop",
                                                          "Negerpunk",
                                                          "Polsk Punk",
                                                          "Beat",
                                                          "Christian Gangsta",
                                                          "Heavy Metal",
                                                          "Black Metal",
                                                          "Crossover",
                                                          "Contemporary C",
                                                          "Christian Rock",
                                                          "Merengue",
                                                          "Salsa",
                                                          "Thrash Metal",
                                                          "Anime",
                                                          "JPop",
                                                          "SynthPop"});
static_assert(kGenres.size() == 148);

}  // namespace

void ClearTagRecord(TagRecord& record) { record = TagRecord(); }

std::string DecodeBytes(std::span<const uint8_t> bytes, int encoding, bool stop_at_nul) {
  std::string text;
  if (encoding < 0 || encoding > 3) return text;
  const bool wide = encoding == 1 || encoding == 2;
  // Encoding 2 picks the high bytes. That is meant: such tags have always read so here.
  for (size_t i = encoding == 1 ? 2 : 0; i < bytes.size(); i += wide ? 2 : 1) {
    const uint8_t byte = bytes[i];
    if (byte == 0 && stop_at_nul) break;
    if (byte == '\r') continue;
    if (byte == '\n') text += '\r';
    text += static_cast<char>(byte);
  }
  return text;
}

std::optional<double> TagNumber(std::string_view text) {
  text = TrimBlanks(text);
  if (text.empty() || text.find_first_not_of("+-.0123456789") != text.npos) return {};
  return ParseNumber(text);
}

std::string GenreName(int number) {
  if (number < 0 || number >= static_cast<int>(kGenres.size())) return "";
  return std::string(kGenres[static_cast<size_t>(number)]);
}

}  // namespace sonotik
