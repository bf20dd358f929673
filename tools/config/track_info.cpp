#include "tools/config/track_info.h"

#include <fileref.h>
#include <mpegfile.h>
#include <tag.h>
#include <tpropertymap.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <new>
#include <string_view>
#include <system_error>

#include "files/paths.h"
#include "files/runtime_failure.h"
#include "text/dates.h"
#include "tools/config/names.h"

namespace sonotik {
namespace fs = std::filesystem;
namespace {

constexpr size_t kLongestText = 255;

bool IsAmong(std::string_view kind, std::initializer_list<std::string_view> kinds) {
  for (const std::string_view one : kinds) {
    if (kind == one) return true;
  }
  return false;
}

std::string Text(const TagLib::String& text) {
  return CutText(CleanText(text.to8Bit(true)), kLongestText);
}

// All values of a property; tags of one kind that lack it leave it to those of another.
std::string Value(const TagLib::PropertyMap& properties, const char* key,
                  const TagLib::String& otherwise) {
  const auto found = properties.find(key);
  const std::string joined = found == properties.end() ? "" : Text(found->second.toString(", "));
  return joined.empty() ? Text(otherwise) : joined;
}

void TakeTag(const TagLib::FileRef& file, TrackInfo& info) {
  const TagLib::Tag* tag = file.tag();
  if (tag == nullptr) return;
  const TagLib::PropertyMap properties = file.file()->properties();
  info.artist = Value(properties, "ARTIST", tag->artist());
  info.title = Value(properties, "TITLE", tag->title());
  info.album = Value(properties, "ALBUM", tag->album());
  info.composer = Value(properties, "COMPOSER", {});
  info.comment = Value(properties, "COMMENT", tag->comment());
  info.track = Value(
      properties, "TRACKNUMBER",
      tag->track() > 0 ? TagLib::String::number(static_cast<int>(tag->track())) : TagLib::String());
  info.year = Value(properties, "DATE",
                    tag->year() > 0 ? TagLib::String::number(static_cast<int>(tag->year()))
                                    : TagLib::String())
                  .substr(0, 4);
  // An album stands under one genre, so of several the first counts.
  const auto genres = properties.find("GENRE");
  if (genres != properties.end() && !genres->second.isEmpty()) {
    info.genre = Text(genres->second.front());
  }
  if (info.genre.empty()) info.genre = Text(tag->genre());
}

// Takes the tags before and behind an AAC stream, which are those of an MP3; TagLib knows neither
// the ending nor the frames.
TagLib::FileRef Open(const fs::path& file, std::string_view kind) {
  if (kind == "AAC") {
    return TagLib::FileRef(new TagLib::MPEG::File(file.c_str(), false));
  }
  return TagLib::FileRef(file.c_str(), true, TagLib::AudioProperties::Fast);
}

void CheckReadable(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (error) throw RuntimeFailure(error.message());
  // Opening a pipe would wait for its other end.
  if (!fs::is_regular_file(status)) throw RuntimeFailure("no ordinary file");
  errno = 0;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw RuntimeFailure(std::strerror(errno));
  if (stream.peek() == std::ifstream::traits_type::eof()) {
    throw RuntimeFailure(stream.bad() ? "it cannot be read" : "the file is empty");
  }
}

}  // namespace

bool HasOwnTag(const fs::path& file) {
  return IsAmong(KindOf(file.native()), {"MP3", "WMA", "M4A", "M4P"});
}

std::string ReadTrackInfo(const fs::path& file, TrackInfo& info) {
  CheckReadable(file);
  const std::string kind = KindOf(file.native());
  // These carry no tag, and a frame of sound found in a film would give a wrong running time.
  if (IsAmong(kind, {"MPG", "PEG", "AVI"})) return "";
  try {
    const TagLib::FileRef reader = Open(file, kind);
    if (!reader.isNull()) TakeTag(reader, info);
    if (kind == "AAC") return "";
    const TagLib::AudioProperties* sound = reader.isNull() ? nullptr : reader.audioProperties();
    if (sound == nullptr || sound->lengthInMilliseconds() <= 0) {
      return "no sound was found in it; it is listed by its name";
    }
    info.running_time = MinutesSeconds(sound->lengthInMilliseconds() / 1000.0);
    return "";
  } catch (const std::bad_alloc&) {
    return "its tag asks for more memory than there is; it is listed by its name";
  } catch (const std::exception& failure) {
    return std::string("its tag cannot be read (") + failure.what() + "); it is listed by its name";
  }
}

}  // namespace sonotik
