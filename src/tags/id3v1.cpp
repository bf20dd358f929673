#include "tags/id3v1.h"

#include <string>

#include "tags/media_file.h"
#include "text/text.h"

namespace sonotik {

bool HasID3v1Tag(ByteSource& file) {
  return file.size() >= kID3v1Size && BeginsWith(file.Read<3>(file.size() - kID3v1Size), "TAG");
}

bool ReadID3v1Tag(ByteSource& file, TagRecord& record) {
  if (!HasID3v1Tag(file)) return false;
  const auto tag = file.Read<kID3v1Size>(file.size() - kID3v1Size);
  const auto field = [&](size_t offset, size_t width) {
    return DecodeBytes(std::span(tag).subspan(offset, width), 0, true);
  };
  const auto trimmed = [&](size_t offset, size_t width) {
    return std::string(TrimBlanks(field(offset, width)));
  };
  ClearTagRecord(record);
  record.title = trimmed(3, 30);
  record.artist = trimmed(33, 30);
  record.album = trimmed(63, 30);
  record.year = trimmed(93, 4);
  // ID3v1.1: a zero as the last but one byte of the comment says that the last one is a track.
  const bool has_track = tag[125] == 0 && tag[126] != 0;
  record.comment = field(97, has_track ? 28 : 30);
  if (has_track) record.track = std::to_string(tag[126]);
  record.genre = GenreName(tag[127]);
  return true;
}

bool ReadID3v1Tag(std::string_view path, TagRecord& record) {
  MediaFile file(path);
  return ReadID3v1Tag(file, record);
}

}  // namespace sonotik
