#include "catalogue/chart_file.h"

#include "text/text.h"

namespace sonotik {
namespace {

constexpr size_t kArtistKey = 7;
constexpr size_t kTrackKey = 8;

}  // namespace

ChartLine ReadChartLine(FieldReader& reader, ChartKind kind) {
  ChartLine line;
  line.artist = reader.Text();
  line.track = reader.Text();
  line.picture = reader.Text();
  if (kind == ChartKind::kResolved) line.path = TrimBlanks(reader.Text());
  return line;
}

ChartKey::ChartKey(const ChartLine& line)
    : artist(UpperCase(TrimBlanks(line.artist)).substr(0, kArtistKey)),
      track(UpperCase(TrimBlanks(line.track)).substr(0, kTrackKey)) {}

std::string ChartPath(const std::string& app_path, int month, int year) {
  return app_path + "\\history\\" + std::to_string(year) + (month < 10 ? "\\0" : "\\") +
         std::to_string(month) + ".txt";
}

std::string ResolvedChartPath(const std::string& chart_path) {
  return chart_path.substr(0, chart_path.rfind('.') + 1) + "pre";
}

}  // namespace sonotik
