#include "tags/picture_frame.h"

#include <algorithm>
#include <iterator>

#include "tags/copy_blocks.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr std::string_view kMimePrefix = "image/";

// From 1. Number 17 reads with three question marks and is written without them, and stays so.
constexpr std::string_view kTypes[] = {"32x32 Icon",
                                       "Other Icon",
                                       "Front Cover",
                                       "Back Cover",
                                       "Leaflet Page",
                                       "Media",
                                       "Lead Performer",
                                       "Artist",
                                       "Conductor",
                                       "Band",
                                       "Composer",
                                       "Lyricist",
                                       "Recording Location",
                                       "During Recording",
                                       "During Performance",
                                       "Movie Capture",
                                       "A Bright Colored Fish",
                                       "Illustration",
                                       "Band Logo",
                                       "Publisher Logo"};
constexpr uint8_t kFish = 17;

}  // namespace

std::optional<PictureHead> ReadPictureHead(ByteSource& file, int64_t offset, int64_t size) {
  const auto frame = file.ReadAtMost(offset, std::min(size, kCopyBlock));
  if (frame.empty()) return {};
  const auto mime = frame.begin() + 1;
  const auto mime_end = std::find(mime, frame.end(), 0);
  if (frame.end() - mime_end < 2) return {};
  const auto title = mime_end + 2;
  const auto title_end = std::find(title, frame.end(), 0);
  if (title_end == frame.end()) return {};
  PictureHead head;
  head.kind = ReplaceAll(std::string(mime, mime_end), kMimePrefix, "");
  head.type = mime_end[1];
  head.title.assign(title, title_end);
  head.length = static_cast<size_t>(title_end - frame.begin()) + 1;
  return head;
}

std::string PictureTypeName(uint8_t type) {
  if (type < 1 || type > std::size(kTypes)) return "Other";
  return std::string(kTypes[type - 1]) + (type == kFish ? "???" : "");
}

uint8_t PictureTypeNumber(std::string_view name) {
  for (size_t i = 0; i < std::size(kTypes); ++i) {
    if (EqualsIgnoringCase(kTypes[i], name)) return static_cast<uint8_t>(i + 1);
  }
  return 0;
}

}  // namespace sonotik
