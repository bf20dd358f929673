#include "tags/tag_reader.h"

#include <string>
#include <utility>

#include "files/files.h"
#include "files/paths.h"
#include "files/runtime_failure.h"
#include "tags/Infotag.h"
#include "tags/id3v1.h"
#include "tags/mdlID3.h"
#include "tags/media_file.h"
#include "tags/mp4_atoms.h"
#include "tags/mpeg_info.h"
#include "tags/sidecar.h"
#include "text/dates.h"
#include "text/text.h"

namespace sonotik {
namespace {

constexpr std::string_view kSidecarMark = ".tag";

struct Dispatch {
  using Reader = void (TagReader::*)(std::string_view path);
  TagCaller caller;
  Reader mp3;
  Reader m4a;
  Reader m4p;
  Reader other;
};

constexpr auto kTag = &TagReader::Readtag;
constexpr auto kTag2 = &TagReader::Readtag2;
constexpr auto kTag3 = &TagReader::Readtag3;
constexpr Dispatch kDispatch[] = {
    {TagCaller::kAddQueue, kTag, kTag3, kTag3, kTag3},
    {TagCaller::kTrackList, kTag, kTag2, kTag2, kTag3},
    {TagCaller::kShowNext, kTag, kTag2, kTag2, kTag3},
    {TagCaller::kPlayTrack, kTag, kTag2, kTag3, kTag3},
    {TagCaller::kUpdateQueue, kTag, kTag2, kTag3, kTag3},
    {TagCaller::kPlayOptions, kTag, kTag2, kTag3, kTag3},
    {TagCaller::kQueueRow, kTag, kTag2, kTag3, kTag3},
    {TagCaller::kTrackRowClick, kTag, kTag2, kTag3, kTag3},
    {TagCaller::kBurnOrDownload, kTag, kTag, kTag, kTag},
    {TagCaller::kQueueUpl, kTag, kTag2, kTag3, kTag3},
};

}  // namespace

TagReader::TagReader(TagFields& fields, std::function<bool()> use_filename_if_no_tag_found)
    : fields_(fields), use_filename_if_no_tag_found_(std::move(use_filename_if_no_tag_found)) {}

void TagReader::ReadFor(TagCaller caller, std::string_view path) {
  const std::string kind = KindOf(path);
  for (const Dispatch& row : kDispatch) {
    if (row.caller != caller) continue;
    const auto reader = kind == "MP3"   ? row.mp3
                        : kind == "M4A" ? row.m4a
                        : kind == "M4P" ? row.m4p
                                        : row.other;
    (this->*reader)(path);
  }
}

void TagReader::Readtag(std::string_view path) {
  CurrentTagFile_ = path;
  MediaFile file(path);
  TagRecord record;
  const auto copy_names = [&] {
    fields_.txtArtist = record.artist;
    fields_.txtAlbum = record.album;
    fields_.txtTitle = record.title;
    fields_.txtTrack = record.track;
    fields_.txtYear = record.year;
    fields_.txtComments = record.comment;
  };
  ReadID3v1Tag(file, record);
  copy_names();

  // No fall-back: a file without an ID3v2 tag ends with empty fields, and that is meant. The
  // catalogue has its names. What ID3v1 gave stays only if reading ID3v2 fails.
  ClearTagRecord(record);
  ReadID3v2Tag(file, record);
  copy_names();
  fields_.txtComposer = record.composer;
  fields_.txtOrigArtist = record.original_artist;
  fields_.txtCopyright = record.copyright;
  fields_.txtURL = record.url;
  fields_.txtEncodedBy = record.encoded_by;
  fields_.txtGenre = record.genre;

  MpegInfo info;
  ReadMpegInfo(file, info);
  fields_.txtmp3time = MinutesSeconds(static_cast<double>(info.Seconds));
  DoubleNames();
}

void TagReader::Readtag2(std::string_view path) {
  MediaFile file(path);
  if (!file.open()) throw RuntimeFailure("cannot open " + std::string(path));
  const AtomFrame atoms(file);
  const auto value = [&](std::string_view name) { return atoms.getItemData(atoms.Find(name)); };
  fields_.txtTitle = value("nam");
  fields_.txtArtist = value("ART");
  fields_.txtAlbum = value("alb");
  fields_.txtYear = value("day");
  fields_.txtComments = "";
}

void TagReader::Readtag3(std::string_view path) {
  const std::string_view trimmed = TrimBlanks(path);
  if (!trimmed.empty() && KindOf(trimmed) != "WMA" && FileExists(path)) {
    ReadTagSidecar(path);
  } else if (Infotag(infotag_).Find_Header_Tags(path)) {
    fields_.txtTitle = TrimBlanks(infotag_.Title);
    fields_.txtArtist = TrimBlanks(infotag_.artist);
    fields_.txtAlbum = TrimBlanks(infotag_.album);
    fields_.txtYear = TrimBlanks(infotag_.Year);
    fields_.txtComments = TrimBlanks(infotag_.Comments);
    fields_.txtmp3time = "";
    if (infotag_.Bitrate > 0) {
      const int64_t seconds = infotag_.FileSize * 8 / (infotag_.Bitrate * 1000);
      // The seconds have no leading zero here, unlike an MP3's, and stay so.
      fields_.txtmp3time = std::to_string(seconds / 60) + ":" + std::to_string(seconds % 60);
    }
  } else {
    SetNoTag(use_filename_if_no_tag_found_() ? path : kNoTag);
  }
  DoubleNames();
}

void TagReader::ReadTagSidecar(std::string_view path) {
  fields_.txtmp3time = "";
  std::string media(TrimBlanks(path));
  if (media.ends_with(kSidecarMark)) media.resize(media.size() - kSidecarMark.size());
  const std::string sidecar = media + std::string(kSidecarMark);
  if (!FileExists(sidecar)) {
    // Without a look at the option for file names, which only the other arm asks; that is meant.
    SetNoTag(kNoTag);
    return;
  }
  // A path too short to have an extension leaves all standing.
  if (media.size() <= 4) return;

  ReadSidecarText(ReadWholeFile(sidecar), fields_);
}

void TagReader::ReadOrNone(TagCaller caller, std::string_view path) {
  try {
    ReadFor(caller, path);
  } catch (const RuntimeFailure&) {
    SetNoTag(kNoTag);
    fields_.txtmp3time = "";
  }
}

void TagReader::SetNoTag(std::string_view title) {
  fields_.txtTitle = title;
  for (const auto field :
       {&TagFields::txtTrack, &TagFields::txtArtist, &TagFields::txtAlbum, &TagFields::txtYear,
        &TagFields::txtGenre, &TagFields::txtComments, &TagFields::txtComposer,
        &TagFields::txtOrigArtist, &TagFields::txtCopyright, &TagFields::txtURL,
        &TagFields::txtEncodedBy}) {
    fields_.*field = kNoTag;
  }
}

void TagReader::DoubleNames() {
  fields_.txtTitle = DoubleAmpersands(fields_.txtTitle);
  fields_.txtArtist = DoubleAmpersands(fields_.txtArtist);
}

}  // namespace sonotik
