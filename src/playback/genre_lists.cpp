#include "playback/genre_lists.h"

#include "files/file_list.h"
#include "files/files.h"
#include "files/line_format.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

std::string FileOf(const std::string& app_path) { return app_path + "\\random.dat"; }

}  // namespace

void ListGenres(const std::string& app_path, OptionLists& lists) {
  FileList genres("*.cvr");
  genres.SetFolder(app_path + "\\genres");
  lists.available_genres.clear();
  lists.selected_genres.clear();
  for (const std::string& name : genres.names()) {
    lists.available_genres.push_back(name.substr(0, name.size() - 4));
  }
}

void LoadGenreLists(const std::string& app_path, OptionLists& lists) {
  if (!FileExists(FileOf(app_path))) return;
  LineReader reader(ReadWholeFile(FileOf(app_path)));
  lists.available_genres.clear();
  lists.selected_genres.clear();
  for (ItemList* list : {&lists.available_genres, &lists.selected_genres}) {
    const double count = NumberOrZero(reader.Next());
    // One line more than there are names: each list closes with an empty one.
    for (double i = 0; i <= count; ++i) {
      std::string name = reader.Next();
      if (!name.empty()) list->push_back(std::move(name));
    }
  }
}

void SaveGenreLists(const std::string& app_path, const OptionLists& lists) {
  LineWriter writer;
  for (const ItemList* list : {&lists.available_genres, &lists.selected_genres}) {
    writer.Number(static_cast<long>(list->size()));
    for (const std::string& name : *list) writer.Text(name);
    // One line beyond the last name, which the reader skips.
    writer.Text("");
  }
  ReplaceFile(FileOf(app_path), writer.text());
}

}  // namespace sonotik
