#include "tools/config/sidecar.h"

#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>

#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "text/text.h"
#include "tools/config/names.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

constexpr uintmax_t kLongestSidecar = 65536;

struct Line {
  std::string_view element;
  std::string TrackInfo::*value;  // none: nobody reads this line
};

// Lines 2 to 12. The reader cuts by the lengths of the names, so another name needs as many
// letters.
constexpr Line kLines[] = {
    {"artist", &TrackInfo::artist},         {"title", &TrackInfo::title},
    {"album", &TrackInfo::album},           {"comp", &TrackInfo::composer},
    {"track", &TrackInfo::track},           {"year", &TrackInfo::year},
    {"genre", &TrackInfo::genre},           {"originaldate", nullptr},
    {"description", &TrackInfo::comment},   {"format", nullptr},
    {"duration", &TrackInfo::running_time},
};

}  // namespace

std::string SidecarText(const TrackInfo& info) {
  LineWriter lines;
  lines.Text("<tag>");
  for (const Line& line : kLines) {
    std::string text = "<" + std::string(line.element) + ">";
    if (line.value != nullptr) text += CleanText(info.*line.value);
    lines.Text(text + "</" + std::string(line.element) + ">");
  }
  lines.Text("</tag>");
  return lines.text();
}

bool ReadSidecarText(const std::string& text, TrackInfo& info) {
  TrackInfo read;
  read.path = info.path;
  try {
    LineReader lines(text);
    lines.Next();
    for (const Line& line : kLines) {
      const std::string whole = lines.Next();
      if (line.value == nullptr) continue;
      const std::string_view element = TrimBlanks(whole);
      const size_t front = line.element.size() + 2;
      if (element.size() < 2 * front + 1) return false;
      const auto value = element.substr(front, element.size() - 2 * front - 1);
      read.*line.value = CutText(CleanText(value), 255);
    }
    lines.Next();
  } catch (const RuntimeFailure&) {
    return false;
  }
  info = read;
  return true;
}

bool ReadSidecar(const fs::path& sidecar, TrackInfo& info) {
  std::error_code error;
  const auto size = fs::is_regular_file(sidecar, error) ? fs::file_size(sidecar, error) : 0;
  if (error || size > kLongestSidecar) return false;
  std::ifstream file(sidecar, std::ios::binary);
  return ReadSidecarText({std::istreambuf_iterator<char>(file), {}}, info);
}

bool StageSidecar(const fs::path& media_file, const TrackInfo& info, StagedFiles& staged) {
  fs::path sidecar = media_file;
  sidecar += kSidecarEnding;
  std::error_code error;
  if (fs::exists(fs::symlink_status(sidecar, error))) return false;
  staged.Add(sidecar, SidecarText(info));
  return true;
}

}  // namespace sonotik
