#include "shell/search_ways.h"

#include "text/text.h"

namespace sonotik {
namespace {

// Behind the 26 letters.
constexpr size_t kSpaceKey = 26;
constexpr size_t kDeleteKey = 27;

}  // namespace

template <typename Handler>
void SearchWays::OnClick(Control& control, const char* name, Handler handler) {
  control.on_click = house_.boundary.Guarded(name, handler);
}

SearchWays::SearchWays(Assembly& house, Menu& menu, Navigation& navigation)
    : house_(house), menu_(menu), navigation_(navigation) {
  WireKeyboard();
  WireResults();
}

void SearchWays::WireKeyboard() {
  auto& modes = house_.form1.search_choice.modes;
  for (size_t i = 0; i < modes.size(); ++i) {
    OnClick(modes[i], "search mode", [this, i] { PressMode(static_cast<SearchMode>(i)); });
  }
  SearchScreen& screen = house_.form1.search;
  for (size_t i = 0; i < kSpaceKey; ++i) {
    lvButtons_H& key = screen.keys[i];
    OnClick(key, "key", [this, &key] { PressKey(key.caption()); });
  }
  OnClick(screen.keys[kSpaceKey], "key", [this] { PressKey(" "); });
  OnClick(screen.keys[kDeleteKey], "key", [this] { PressDelete(); });
  for (lvButtons_H& digit : screen.digits) {
    OnClick(digit, "key", [this, &digit] { PressKey(digit.caption()); });
  }
  OnClick(screen.clear, "Clear Seach", [this] { house_.search.SetSearchText(""); });
  OnClick(screen.search, "Search", [this] { PressSearch(); });
  for (int i = 0; i < kSuggestions; ++i) {
    OnClick(screen.suggestions[static_cast<size_t>(i)], "suggestion",
            [this, i] { PressSuggestion(i); });
  }
}

void SearchWays::WireResults() {
  SearchResultsScreen& screen = house_.form1.search_results;
  Search& search = house_.search;
  for (int row = 0; row < kResultRows; ++row) {
    ResultRow& items = screen.rows[static_cast<size_t>(row)];
    for (Label* label : {&items.number, &items.artist, &items.track, &items.blank}) {
      OnClick(*label, "search result", [this, row] { PressRow(row); });
    }
  }
  for (size_t i = 0; i < screen.commands.size(); ++i) {
    OnClick(screen.commands[i], "search command",
            [this, i] { PressCommand(static_cast<ResultCommand>(i)); });
  }
  for (size_t i = 0; i < screen.tabs.size(); ++i) {
    OnClick(screen.tabs[i], "search tab", [this, i] { PressTab(static_cast<int>(i)); });
  }
  OnClick(screen.up, "UP", [&search] { search.StepPage(-1); });
  OnClick(screen.down, "DOWN", [&search] { search.StepPage(1); });
  for (size_t i = 0; i < screen.lists.size(); ++i) {
    OnClick(screen.lists[i], "special list", [&search, i] { search.ShowList(i); });
  }
}

void SearchWays::PressMode(SearchMode mode) {
  house_.search.SetMode(mode);
  house_.search.Reset();
  house_.search.search_show();
  house_.form1.panel(screen::kSearchChoice).SetVisible(false);
  house_.form1.ShowScreen(screen::kSearch);
}

void SearchWays::PressKey(const std::string& caption) {
  house_.search.SetSearchText(house_.search.search_text() + SingleAmpersands(caption));
}

void SearchWays::PressDelete() {
  std::string text = house_.search.search_text();
  if (!text.empty()) text.pop_back();
  house_.search.SetSearchText(text);
}

void SearchWays::PressSuggestion(int line) {
  const std::string folder = house_.search.suggestions().FolderOfLine(line);
  if (folder.empty()) return;
  house_.track_list.Open(folder);
  house_.form1.panel(screen::kAlbum).SetVisible(false);
}

void SearchWays::PressSearch() {
  const Settings& settings = house_.settings;
  const bool tabs[] = {settings.tab_audio, settings.tab_video, settings.tab_karaoke};
  for (size_t i = 0; i < std::size(tabs); ++i) {
    house_.form1.search_results.tabs[i].SetVisible(tabs[i]);
  }
  house_.search.search_clear();
  SearchFrom(screen::kSearch);
}

void SearchWays::PressTab(int media_kind) {
  if (!house_.search.search_text().empty()) house_.cursor.media_kind = media_kind;
  SearchFrom(screen::kSearchResults);
}

void SearchWays::SearchFrom(size_t screen_index) {
  Search& search = house_.search;
  search.ToFirstPage();
  // Without a text the guest stays where he is.
  if (search.search_text().empty()) return;
  house_.form1.panel(screen_index).SetVisible(false);
  // A file that can't be read to its end shows what was found before that.
  house_.boundary.Run("search", [&search] { search.search(search.mode()); });
  search.search_show();
  search.ShowCommands();
  house_.form1.ShowScreen(screen::kSearchResults);
}

void SearchWays::PressRow(int row) {
  if (!house_.search.ChooseRow(row)) return;
  house_.play_options.show_play_options(house_.search.ChosenPath(), screen::kSearchResults);
  house_.play_options.Reveal();
}

void SearchWays::PressCommand(ResultCommand command) {
  switch (command) {
    case ResultCommand::kNewSearch:
      house_.search.search_clear();
      house_.form1.panel(screen::kSearchResults).SetVisible(false);
      return house_.form1.ShowScreen(screen::kSearchChoice);
    case ResultCommand::kAddAllToQueue:
      AddAll();
      if (house_.settings.auto_back_on_selection) menu_.Back();
      return;
    case ResultCommand::kPlayNow:
      return Choose(PlayWay::kPlayNow);
    case ResultCommand::kPlayNext:
      return Choose(PlayWay::kPlayNext);
    case ResultCommand::kAddToQueue:
      return Choose(PlayWay::kAddToQueue);
  }
}

void SearchWays::Choose(PlayWay way) {
  // By value: the charts share the table, and one of them may be loaded while a track starts.
  const std::string path = house_.search.ChosenPath();
  navigation_.ChooseOn(screen::kSearchResults, path, way);
}

void SearchWays::AddAll() {
  // By value: the charts share the table, and one of them may be loaded while a track starts.
  const SearchResults::List paths = house_.search.results().paths;
  for (const std::string& path : paths) {
    const std::string_view trimmed = TrimBlanks(path);
    if (!trimmed.empty()) navigation_.Choose(std::string(trimmed), PlayWay::kAddToQueue);
  }
}

}  // namespace sonotik
