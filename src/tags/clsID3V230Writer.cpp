#include "tags/clsID3V230Writer.h"

#include <ostream>
#include <stdexcept>
#include <vector>

#include "files/files.h"
#include "files/runtime_failure.h"
#include "tags/clsID3V230Reader.h"
#include "tags/copy_blocks.h"
#include "tags/media_file.h"
#include "tags/picture_frame.h"
#include "tags/synced_lyrics.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr int64_t kHeaderSize = 10;
// A tag's size has four bytes of seven bits.
constexpr int64_t kLargestTag = 0x0FFFFFFF;

// What stands behind the encoding byte: text and, in pictures, a file.
struct Frame {
  std::string_view id;
  std::string text;
  std::string picture = {};
  int64_t picture_size = 0;

  int64_t body_size() const { return 1 + static_cast<int64_t>(text.size()) + picture_size; }
};
using Frames = std::vector<Frame>;

std::string Synchsafe(int64_t size) { return BigEndianBytes(size, 7); }

std::vector<std::string> Entries(std::string_view joined) {
  std::vector<std::string> entries;
  while (!joined.empty()) {
    const size_t bar = joined.find('|');
    entries.emplace_back(joined.substr(0, bar));
    joined.remove_prefix(bar == joined.npos ? joined.size() : bar + 1);
  }
  return entries;
}

std::string EntryOrNothing(const std::vector<std::string>& entries, size_t i) {
  return i < entries.size() ? entries[i] : "";
}

std::string MimeType(const std::string& picture) {
  const size_t dot = picture.rfind('.');
  const std::string kind = dot == picture.npos ? "" : LowerCase(picture.substr(dot + 1));
  return "image/" + (kind == "jpeg" ? "jpg" : kind);
}

Frames FramesOf(const clsID3V230Writer& tag) {
  Frames frames;
  const auto add = [&](std::string_view id, const std::string& text) {
    if (!text.empty()) frames.push_back({id, text});
  };
  const std::string language = tag.Language.size() == 3 ? tag.Language : "eng";
  const auto in_language = [&](const std::string& text) {
    return text.empty() ? "" : language + '\0' + text;
  };
  add("TIT2", tag.SongTitle);
  add("TPE1", tag.artist);
  add("TALB", tag.album);
  add("TYER", tag.Year);
  add("TRCK", tag.Track);
  add("TCON", tag.Genre);
  add("COMM", in_language(tag.Comment));
  add("TCOM", tag.Composer);
  add("TOPE", tag.OriginalArtist);
  add("TLAN", tag.Language);
  add("TIT3", tag.SubTitle);
  add("TCOP", tag.Copyright);
  add("TENC", tag.EncodedBy);
  for (const std::string& url : Entries(tag.URL)) add("WXXX", '\0' + url);
  add("USLT", in_language(tag.Lyrics));
  add("SYLT", TextOfLyrics(tag.SyncLyrics, language));
  const auto pictures = Entries(tag.Graphic);
  const auto types = Entries(tag.GraphicType);
  const auto titles = Entries(tag.GraphicTitle);
  for (size_t i = 0; i < pictures.size(); ++i) {
    if (!FileExists(pictures[i])) continue;
    const auto type = static_cast<char>(PictureTypeNumber(EntryOrNothing(types, i)));
    frames.push_back({"APIC",
                      MimeType(pictures[i]) + '\0' + type + EntryOrNothing(titles, i) + '\0',
                      pictures[i], FileLength(pictures[i])});
  }
  return frames;
}

void WriteFrame(const Frame& frame, std::ostream& out, const std::function<void()>& yield) {
  const int64_t size = frame.body_size();
  out << frame.id << (HasPlainSize(frame.id) ? BigEndianBytes(size) : Synchsafe(size))
      << std::string(3, '\0') << frame.text;
  if (frame.picture.empty()) return;
  MediaFile picture(frame.picture);
  if (picture.size() != frame.picture_size) throw RuntimeFailure("a picture changed its size");
  CopyBlocks(picture, 0, frame.picture_size, out, yield);
}

}  // namespace

void clsID3V230Writer::RemoveID3V230Tag(std::string_view path) const {
  MediaFile file(path);
  const auto header = file.Read<kHeaderSize>(0);
  if (!BeginsWith(header, "ID3")) return;
  const int64_t start = WeighedSize(std::span(header).subspan<6, 4>()) + kHeaderSize;
  if (start > file.size()) return;
  try {
    WriteBeside(std::string(path) + ".new", path,
                [&](std::ostream& bare) { CopyBlocks(file, start, file.size(), bare, yield_); });
  } catch (const std::runtime_error&) {
    // The file stays as it is.
  }
}

void clsID3V230Writer::WriteID3V230Tag(std::string_view path) const {
  RemoveID3V230Tag(path);
  try {
    const Frames frames = FramesOf(*this);
    int64_t total = 0;
    for (const Frame& frame : frames) total += kHeaderSize + frame.body_size();
    MediaFile file(path);
    if (total == 0 || total > kLargestTag || !file.open()) return;
    WriteBeside(std::string(path) + ".mp3", path, [&](std::ostream& tagged) {
      tagged << "ID3\3" << std::string(2, '\0') << Synchsafe(total);
      for (const Frame& frame : frames) WriteFrame(frame, tagged, yield_);
      CopyBlocks(file, 0, file.size(), tagged, yield_);
    });
  } catch (const std::runtime_error&) {
    // The file stays without a tag: the old one was taken off before.
  }
}

uint8_t clsID3V230Writer::GetGraphicType(std::string_view name) { return PictureTypeNumber(name); }

}  // namespace sonotik
