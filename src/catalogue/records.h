// The catalogue's records: fixed text fields, padded with blanks on the right, no terminator. The
// configuration program writes them, the jukebox reads them by number.
#ifndef SONOTIK_CATALOGUE_RECORDS_H_
#define SONOTIK_CATALOGUE_RECORDS_H_

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "text/text.h"

namespace sonotik {

struct RecordField {
  size_t offset;
  size_t width;
};

// The bytes of one record, blank at first. Fields come as they stand, blanks included, unless they
// are asked for trimmed.
inline std::string_view FieldOf(std::string_view record, RecordField field) {
  return record.empty() ? record : record.substr(field.offset, field.width);
}

template <size_t Size>
struct FixedRecord {
  static constexpr size_t kSize = Size;
  std::array<char, Size> bytes;

  FixedRecord() { bytes.fill(' '); }
  std::string_view Field(RecordField field) const { return FieldOf({bytes.data(), Size}, field); }
  std::string Trimmed(RecordField field) const { return std::string(TrimBlanks(Field(field))); }
};

// One media file: Records.rec, videos.rec, karaoke.rec.
struct TrackRecord : FixedRecord<447> {
  static constexpr RecordField kPath{0, 255};
  static constexpr RecordField kArtist{255, 60};
  static constexpr RecordField kTrack{315, 60};
  static constexpr RecordField kAlbum{375, 60};
  static constexpr RecordField kRating{435, 2};  // signed 16-bit, little-endian
  static constexpr RecordField kDateAdded{437, 10};
};

// One album folder: Records.cvr, videos.cvr, karaoke.cvr, new.cvr, genres\*.cvr.
struct AlbumRecord : FixedRecord<385> {
  static constexpr RecordField kPath{0, 255};  // with a closing "\"
  static constexpr RecordField kArtist{255, 60};
  static constexpr RecordField kAlbum{315, 60};
  static constexpr RecordField kDate{375, 10};
};

// One play: User_history.dat, Random_history.dat.
struct HistoryRecord : FixedRecord<1070> {
  static constexpr RecordField kArtist{0, 255};
  static constexpr RecordField kTrack{255, 255};
  static constexpr RecordField kAlbum{510, 255};
  static constexpr RecordField kPath{765, 255};
  static constexpr RecordField kPlayedOn{1020, 25};
  static constexpr RecordField kPlayedAt{1045, 25};
};

// Up to five facts of one song: songfacts.dat.
struct SongFactRecord : FixedRecord<1395> {
  static constexpr RecordField kArtist{0, 60};
  static constexpr RecordField kTrack{60, 60};
  static constexpr RecordField kFacts[5] = {
      {120, 255}, {375, 255}, {630, 255}, {885, 255}, {1140, 255}};
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_RECORDS_H_
