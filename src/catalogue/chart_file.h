// The lines of a chart file: ten, in the line format of the settings.
#ifndef SONOTIK_CATALOGUE_CHART_FILE_H_
#define SONOTIK_CATALOGUE_CHART_FILE_H_

#include <string>
#include <string_view>

#include "files/line_format.h"

namespace sonotik {

inline constexpr int kChartLines = 10;

// A ".txt" has three fields a line; a ".pre", the chart that somebody has resolved already, a
// fourth: the path of the catalogue's track.
enum class ChartKind { kPlain, kResolved };

struct ChartLine {
  std::string artist;
  std::string track;
  std::string picture;  // a name in history\images
  std::string path;     // empty if there is none
};

// Takes the next line's fields. A line with fewer takes those of the line behind it, as everywhere
// in this format. Throws RuntimeFailure where the file ends too early.
ChartLine ReadChartLine(FieldReader& reader, ChartKind kind);

// What a record is known by: the starts of the two names in upper case, to be found anywhere in the
// record's own. A shorter name counts whole, and an empty one is found in every record.
struct ChartKey {
  std::string artist;
  std::string track;

  explicit ChartKey(const ChartLine& line);
  // Both names of a record in upper case.
  bool Fits(std::string_view record_artist, std::string_view record_track) const {
    return record_track.find(track) != std::string_view::npos &&
           record_artist.find(artist) != std::string_view::npos;
  }
};

// Where the chart of a month lies: history\2024\03.txt. From October on the month's number has two
// digits of its own.
std::string ChartPath(const std::string& app_path, int month, int year);
// The resolved chart beside it: the same name with the extension "pre".
std::string ResolvedChartPath(const std::string& chart_path);

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_CHART_FILE_H_
