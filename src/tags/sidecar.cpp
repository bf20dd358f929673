#include "tags/sidecar.h"

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
  for (const SidecarLine& element : kLines) {
    const std::string line = reader.Next();
    if (element.front == 0) continue;
    const std::string_view trimmed = TrimBlanks(line);
    const size_t wrapping = element.front + element.front + 1;
    if (trimmed.size() < wrapping) {
      throw RuntimeFailure("a line of a sidecar is too short: " + line.substr(0, 40));
    }
    if (element.field) {
      fields.*element.field = trimmed.substr(element.front, trimmed.size() - wrapping);
    }
  }
}

}  // namespace sonotik
