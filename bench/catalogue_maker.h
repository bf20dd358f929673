// Catalogues of any size for the benchmarks.
#ifndef SONOTIK_BENCH_CATALOGUE_MAKER_H_
#define SONOTIK_BENCH_CATALOGUE_MAKER_H_

#include <fstream>
#include <string>

#include "catalogue/records.h"
#include "files/record_file.h"
#include "support/temp_folder.h"
#include "text/text.h"

namespace sonotik {

// A jukebox folder with the delivered settings, `albums` albums and `tracks` tracks, none of which
// has a file.
inline void MakeJukebox(const TempFolder& folder, int albums, int tracks, int plays) {
  const std::filesystem::path app = SONOTIK_SOURCE "/app";
  std::filesystem::copy(app, folder.native(), std::filesystem::copy_options::recursive);
  std::string bytes;
  const auto put = [](auto& record, RecordField field, const std::string& text) {
    PutField(record.bytes, field.offset, field.width, text);
  };
  for (int i = 0; i < albums; ++i) {
    AlbumRecord record;
    put(record, AlbumRecord::kPath, folder.path() + "\\music\\" + std::to_string(i) + "\\");
    put(record, AlbumRecord::kArtist,
        std::string(1, static_cast<char>('A' + i * 26L / albums)) + LastDigits(i, 5));
    put(record, AlbumRecord::kAlbum, "Album " + std::to_string(i));
    put(record, AlbumRecord::kDate, "01/01/2020");
    bytes.append(record.bytes.data(), record.bytes.size());
  }
  folder.Write("Records.cvr", bytes);
  bytes.clear();
  for (int i = 0; i < tracks; ++i) {
    TrackRecord record;
    put(record, TrackRecord::kPath, folder.path() + "\\music\\" + std::to_string(i) + ".mp3");
    put(record, TrackRecord::kArtist, "The Players of " + LastDigits(i / 10, 5));
    put(record, TrackRecord::kTrack, "Song " + std::to_string(i) + " of a Long Evening");
    put(record, TrackRecord::kAlbum, "Evenings, Volume " + std::to_string(i / 10));
    bytes.append(record.bytes.data(), record.bytes.size());
  }
  folder.Write("Records.rec", bytes);
  bytes.clear();
  for (int i = 0; i < plays; ++i) {
    HistoryRecord record;
    put(record, HistoryRecord::kPath, "\\music\\" + std::to_string(i * 7919L % 5000) + ".mp3");
    bytes.append(record.bytes.data(), record.bytes.size());
  }
  if (plays > 0) folder.Write("User_history.dat", bytes);
}

}  // namespace sonotik

#endif  // SONOTIK_BENCH_CATALOGUE_MAKER_H_
