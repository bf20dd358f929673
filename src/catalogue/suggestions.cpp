#include "catalogue/suggestions.h"

#include "text/text.h"

namespace sonotik {
namespace {

// The other sources open no file while somebody types.
bool HasSuggestions(CatalogueSource source) {
  return source == CatalogueSource::kRecords || source == CatalogueSource::kVideos ||
         source == CatalogueSource::kKaraoke;
}

bool BeginsWith(std::string_view field, std::string_view key) {
  // A name that is shorter than the key is never meant by it, but for blanks behind it.
  return key.size() <= field.size() && EqualsIgnoringCase(field.substr(0, key.size()), key);
}

}  // namespace

void Suggestions::Show(SearchMode mode, const std::string& text) {
  // There are suggestions of albums alone, so none while somebody types a song; that is meant.
  if (mode == SearchMode::kTrack) return;
  if (!HasSuggestions(cursor_.source)) return Clear();
  const RecordField field =
      mode == SearchMode::kArtist ? AlbumRecord::kArtist : AlbumRecord::kAlbum;
  RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
  const int64_t count = file.count();
  // The last record is not looked at here and may show all the same; that is meant.
  top_ = 1;
  while (top_ < count && !BeginsWith(FieldOf(file.View(top_), field), text)) ++top_;
  for (int i = 0; i < kSuggestions; ++i) {
    const AlbumRecord record = top_ + i <= file.whole_records()
                                   ? catalogue_.ReadAlbumRecord(file, top_ + i)
                                   : AlbumRecord();
    screen_.suggestions[static_cast<size_t>(i)].SetCaption(
        BeginsWith(record.Field(field), text)
            ? DoubleAmpersands(record.Trimmed(AlbumRecord::kArtist) + " - " +
                               record.Trimmed(AlbumRecord::kAlbum))
            : "");
  }
}

void Suggestions::Clear() {
  for (Label& line : screen_.suggestions) line.SetCaption("");
}

std::string Suggestions::FolderOfLine(int line) {
  if (!HasSuggestions(cursor_.source)) return "";
  RecordFile file(catalogue_.AlbumFileFor(cursor_), AlbumRecord::kSize);
  const int64_t number = top_ + line;
  // The file's last record can be seen and not be chosen, and a line without text leads to the
  // album of its number; both are meant.
  if (number <= 0 || number >= file.count()) return "";
  return std::string(catalogue_.ReadAlbumRecord(file, number).Field(AlbumRecord::kPath));
}

}  // namespace sonotik
