#include "tags/sidecar.h"

#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "text/text.h"

namespace sonotik {
namespace {

// The opening tag of each line's element, in characters; the closing one has a slash more.
struct SidecarLine {
  size_t front;  // 0: nothing of the line is used
  std::string TagFields::*field;
};

constexpr SidecarLine kLines[] = {
    {0, nullptr},
    {8, &TagFields::txtArtist},
    {7, &TagFields::txtTitle},
    {7, &TagFields::txtAlbum},
    {6, &TagFields::txtComposer},
    {7, &TagFields::txtTrack},
    {6, &TagFields::txtYear},
    {7, &TagFields::txtGenre},
    {14, nullptr},  // has to be long enough, and goes nowhere
    {13, &TagFields::txtComments},
    {0, nullptr},
    {10, &TagFields::txtmp3time},
    {0, nullptr},  // only has to be there
};

}  // namespace

void ReadSidecarText(std::string text, TagFields& fields) {
  LineReader reader(std::move(text));
  std::array<std::string, std::size(kLines)> lines;
  for (std::string& line : lines) line = reader.Next();

  for (size_t i = 0; i < lines.size(); ++i) {
    const auto& [front, field] = kLines[i];
    if (front == 0) continue;
    const std::string_view trimmed = TrimBlanks(lines[i]);
    const size_t wrapping = front + front + 1;
    if (trimmed.size() < wrapping) {
      throw RuntimeFailure("a line of a sidecar is too short: " + lines[i].substr(0, 40));
    }
    if (field) fields.*field = trimmed.substr(front, trimmed.size() - wrapping);
  }
}

}  // namespace sonotik
