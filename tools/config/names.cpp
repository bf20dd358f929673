#include "tools/config/names.h"

#include <algorithm>

#include "text/text.h"

namespace sonotik {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }
bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// Length of a track number with its separator at the start of a name, 0 where there is none.
// "50-50", "24-7" and "99 Luftballons" begin with a number that belongs to the title.
size_t TrackNumberLength(std::string_view name) {
  const auto digits =
      static_cast<size_t>(std::find_if_not(name.begin(), name.end(), IsDigit) - name.begin());
  const size_t end = std::min(name.find_first_not_of(" -._)", digits), name.size());
  const std::string_view separator = name.substr(digits, end - digits);
  if (digits == 0 || digits > 3 || end == name.size()) return 0;
  if (separator.find_first_not_of(' ') == std::string_view::npos) return 0;
  const bool tight = separator.find(' ') == std::string_view::npos;
  return tight && (digits < 2 || IsDigit(name[end])) ? 0 : end;
}

}  // namespace

std::string CleanText(std::string_view text) {
  std::string clean(text);
  for (size_t i = 0; i < clean.size(); ++i) {
    if (IsControl(clean[i])) clean[i] = ' ';
    // The control characters U+0080 to U+009F are two bytes in UTF-8.
    if (i > 0 && clean[i - 1] == '\xC2' && static_cast<unsigned char>(clean[i]) >= 0x80 &&
        static_cast<unsigned char>(clean[i]) < 0xA0) {
      clean[i - 1] = clean[i] = ' ';
    }
  }
  for (const char* separator : {"\u2028", "\u2029"}) clean = ReplaceAll(clean, separator, " ");
  return std::string(TrimBlanks(clean));
}

std::string CutText(std::string_view text, size_t width) {
  if (text.size() <= width) return std::string(text);
  size_t end = width;
  while (end > 0 && width - end < 3 && IsContinuation(text[end])) --end;
  if (IsContinuation(text[end])) end = width;
  return std::string(TrimBlanks(text.substr(0, end)));
}

std::string TitleFromFileName(std::string_view name) {
  const size_t dot = name.rfind('.');
  std::string_view stem = name.substr(0, dot == 0 ? std::string_view::npos : dot);
  stem.remove_prefix(TrackNumberLength(stem));
  return CleanText(stem);
}

FolderNames NamesFromFolder(std::string_view folder_name) {
  const size_t middle = folder_name.find(" - ");
  if (middle != std::string_view::npos) {
    FolderNames names{CleanText(folder_name.substr(0, middle)),
                      CleanText(folder_name.substr(middle + 3))};
    if (!names.artist.empty() && !names.album.empty()) return names;
  }
  return {"", CleanText(folder_name)};
}

std::string GenreFileStem(std::string_view genre) {
  std::string stem;
  for (const char c : CleanText(genre)) {
    // A comma or a quote would end the field when random play reads its list of genres back.
    if (c == ',' || c == '"') continue;
    stem += c == '/' || c == '\\' ? '-' : c;
  }
  stem.erase(0, std::min(stem.find_first_not_of(" ."), stem.size()));
  return CutText(TrimBlanks(stem), 60);
}

}  // namespace sonotik
