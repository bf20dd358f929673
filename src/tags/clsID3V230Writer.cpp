#include "tags/clsID3V230Writer.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "tags/clsID3V230Reader.h"
#include "tags/copy_blocks.h"
#include "tags/media_file.h"
#include "tags/picture_frame.h"
#include "tags/tag_record.h"
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

std::string SizeBytes(int64_t size, int bits) {
  std::string bytes;
  for (int i = 3; i >= 0; --i) bytes += static_cast<char>(size >> (i * bits) & ((1 << bits) - 1));
  return bytes;
}
std::string Synchsafe(int64_t size) { return SizeBytes(size, 7); }
std::string BigEndianBytes(int64_t size) { return SizeBytes(size, 8); }

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

// "[mm:ss]text" gives the text and its time in milliseconds. The line end goes with the text, so
// that the reader gets the lines back as they were. Lines without a time have no place among them.
std::string TimedLines(std::string_view lines) {
  std::string body;
  while (!lines.empty()) {
    const size_t end = lines.find("\r\n");
    const std::string_view line = lines.substr(0, end);
    lines.remove_prefix(end == lines.npos ? lines.size() : end + 2);
    const size_t colon = line.find(':');
    const size_t bracket = line.find(']');
    if (!line.starts_with('[') || colon == line.npos || bracket == line.npos || bracket < colon) {
      continue;
    }
    const auto minutes = TagNumber(line.substr(1, colon - 1));
    const auto seconds = TagNumber(line.substr(colon + 1, bracket - colon - 1));
    if (!minutes || !seconds) continue;
    const double milliseconds = (*minutes * 60 + *seconds) * 1000;
    if (milliseconds < 0 || milliseconds > 0xFFFFFFFFu) continue;
    body += line.substr(bracket + 1);
    if (!lines.empty()) body += '\n';
    body += '\0' + BigEndianBytes(static_cast<int64_t>(milliseconds));
  }
  return body;
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
  if (const std::string lines = TimedLines(tag.SyncLyrics); !lines.empty()) {
    // Times in milliseconds, lyrics, no description.
    add("SYLT", language + "\2\1" + '\0' + lines);
  }
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

void Replace(std::string_view old_file, const std::string& new_file) {
  std::filesystem::rename(NativePath(new_file), NativePath(old_file));
}

}  // namespace

void clsID3V230Writer::RemoveID3V230Tag(std::string_view path) const {
  const std::string beside = std::string(path) + ".new";
  try {
    MediaFile file(path);
    const auto header = file.Read<kHeaderSize>(0);
    if (!BeginsWith(header, "ID3")) return;
    const int64_t start = WeighedSize(std::span(header).subspan<6, 4>()) + kHeaderSize;
    if (start > file.size()) throw RuntimeFailure("a tag claims more than its file");
    std::ofstream bare = NewFile(beside);
    CopyBlocks(file, start, file.size(), bare, yield_);
    bare.close();
    Replace(path, beside);
  } catch (const std::runtime_error&) {
    // The file stays as it is.
  }
}

void clsID3V230Writer::WriteID3V230Tag(std::string_view path) const {
  RemoveID3V230Tag(path);
  const std::string beside = std::string(path) + ".mp3";
  try {
    const Frames frames = FramesOf(*this);
    int64_t total = 0;
    for (const Frame& frame : frames) total += kHeaderSize + frame.body_size();
    if (total == 0) return;
    if (total > kLargestTag) throw RuntimeFailure("a tag is too large");
    MediaFile file(path);
    if (!file.open()) return;
    std::ofstream tagged = NewFile(beside);
    tagged << "ID3\3" << std::string(2, '\0') << Synchsafe(total);
    for (const Frame& frame : frames) WriteFrame(frame, tagged, yield_);
    CopyBlocks(file, 0, file.size(), tagged, yield_);
    tagged.close();
    Replace(path, beside);
  } catch (const std::runtime_error&) {
    // The file stays without a tag: the old one was taken off before.
  }
}

uint8_t clsID3V230Writer::GetGraphicType(std::string_view name) { return PictureTypeNumber(name); }

}  // namespace sonotik
