#include "skins/layout_targets.h"

namespace sonotik {

LayoutTargets::LayoutTargets(Form1& form) {
  AddFrame(form);
  AddAlbumScreen(form.album);
  AddLists(form);
  AddSearch(form);
  AddDecades(form.decades);
  AddOthers(form);
}

std::span<Control* const> LayoutTargets::At(std::string_view name, int index) const {
  const auto found = targets_.find(name);
  if (found == targets_.end() || static_cast<size_t>(index) >= found->second.size()) return {};
  return found->second[static_cast<size_t>(index)];
}

void LayoutTargets::AddFrame(Form1& form) {
  Add("window", form.form);
  AddAll("screen", form.panels);
  Group screens;
  for (size_t i = 0; i <= screen::kSearchResults; ++i) screens.push_back(&form.panels[i]);
  AddGroup("screens", screens);
  Add("menu.bar", form.menu);
  AddAll("menu.button", form.menu_buttons);
  Add("player.panel", form.player);
  AddGroup("player.and.pin", {&form.player, &form.pin_screen});
  AddAll("player.button", form.player_buttons);
  Add("player.volume", form.volume);
  Add("player.indicator", form.now_playing_indicator);
  Add("player.cover", form.now_playing_cover);
  for (Label* label : {&form.now_playing_artist, &form.now_playing_title, &form.position,
                       &form.length, &form.paused}) {
    Add("player.status", *label);
  }
  Add("player.credit", form.credits);
  Add("player.credit", form.play_caption);
  Add("player.clock", form.clock);
}

void LayoutTargets::AddAlbumScreen(AlbumScreen& screen) {
  Add("album.titleStrip", screen.strip);
  for (lvButtons_H* button : {&screen.previous, &screen.jump_to_letter, &screen.next,
                              &screen.scroll_back, &screen.scroll_forward}) {
    Add("album.pageButton", *button);
  }
  Add("album.pageCaption", screen.page_caption);
  AddAll("album.tab", screen.tabs);
  AddAll("album.letter", screen.letter_buttons);
  AddTogether("album.albumLabels", screen.covers, &CoverPosition::album);
  AddTogether("album.artistLabels", screen.covers, &CoverPosition::artist);
  Group frames;
  // Those that start-up makes keep theirs.
  for (size_t i = 0; i < kDesignCovers; ++i) frames.push_back(&screen.covers[i].frame);
  AddGroup("album.frames", frames);
}

void LayoutTargets::AddLists(Form1& form) {
  TrackListScreen& tracks = form.track_list;
  Add("trackList.up", tracks.up);
  Add("trackList.down", tracks.down);
  Add("trackList.stripBack", tracks.quick_jump_left);
  Add("trackList.stripForward", tracks.quick_jump_right);
  for (lvButtons_H* button :
       {&tracks.play_now, &tracks.play_next, &tracks.add_to_queue, &tracks.add_entire_album,
        &tracks.add_to_carousel, &tracks.burn_cd, &tracks.download}) {
    Add("trackList.command", *button);
  }
  Add("trackList.back", tracks.back);
  Add("trackList.cover", tracks.cover);
  for (Label* label : {&tracks.album_heading, &tracks.artist_heading, &tracks.released_heading}) {
    Add("trackList.heading", *label);
  }
  AddAll("trackList.stripCover", tracks.quick_jump);
  AddAll("trackList.time", tracks.rows, &TrackRow::time);
  AddAll("trackList.title", tracks.rows, &TrackRow::title);
  AddTogether("trackList.lines", tracks.rows, &TrackRow::title, &TrackRow::time);

  QueueScreen& queue = form.queue;
  Add("queue.scroll", queue.up);
  Add("queue.scroll", queue.down);
  AddAll("queue.command", queue.commands);
  Add("queue.back", queue.back);
  Add("queue.remaining", queue.remaining);
  Add("queue.head", queue.next_song_caption);
  Add("queue.head", queue.followed_by_caption);
  AddGroup("queue.heads", {&queue.next_song_caption, &queue.followed_by_caption});
  AddAll("queue.cover", queue.rows, &QueueRow::cover);
  AddAll("queue.number", queue.rows, &QueueRow::number);
  AddAll("queue.artist", queue.rows, &QueueRow::artist);
  AddAll("queue.track", queue.rows, &QueueRow::track);
  AddAll("queue.album", queue.rows, &QueueRow::album);
  AddAll("queue.time", queue.rows, &QueueRow::time);
  AddTogether("queue.lines", queue.rows, &QueueRow::artist, &QueueRow::track, &QueueRow::album,
              &QueueRow::time);

  HistoryScreen& history = form.history;
  AddAll("history.step", history.steps);
  Add("history.back", history.back);
  AddAll("history.cover", history.rows, &HistoryRow::cover);
  AddAll("history.row", history.rows, &HistoryRow::text);
  AddTogether("history.lines", history.rows, &HistoryRow::text);
  Add("history.total", history.total);

  Top20Screen& top20 = form.top20;
  Add("top20.scroll", top20.up);
  Add("top20.scroll", top20.down);
  AddAll("top20.command", top20.commands);
  Add("top20.back", top20.back);
  AddAll("top20.cover", top20.rows, &Top20Row::cover);
  AddAll("top20.number", top20.rows, &Top20Row::number);
  AddAll("top20.artist", top20.rows, &Top20Row::artist);
  AddAll("top20.track", top20.rows, &Top20Row::track);
  AddAll("top20.played", top20.rows, &Top20Row::played);
  AddTogether("top20.lines", top20.rows, &Top20Row::number, &Top20Row::artist, &Top20Row::track,
              &Top20Row::played);
}

void LayoutTargets::AddSearch(Form1& form) {
  SearchScreen& search = form.search;
  AddAll("search.key", search.keys);
  AddAll("search.digit", search.digits);
  Add("search.command", search.clear);
  Add("search.command", search.search);
  Add("search.back", search.back);
  Add("search.entry", search.entry);
  AddAll("search.suggestion", search.suggestions);
  Group suggestions;
  for (Label& line : search.suggestions) suggestions.push_back(&line);
  AddGroup("search.suggestions", suggestions);
  AddAll("searchChoice.mode", form.search_choice.modes);
  Add("searching.caption", form.searching.caption);

  SearchResultsScreen& results = form.search_results;
  Add("results.heading", results.heading);
  AddAll("results.tab", results.tabs);
  AddAll("results.command", results.commands);
  Add("results.scroll", results.up);
  Add("results.scroll", results.down);
  Add("results.back", results.back);
  AddAll("results.cover", results.rows, &ResultRow::cover);
  AddAll("results.number", results.rows, &ResultRow::number);
  AddAll("results.artist", results.rows, &ResultRow::artist);
  AddAll("results.track", results.rows, &ResultRow::track);
  AddAll("results.blank", results.rows, &ResultRow::blank);
  for (ResultRow& row : results.rows) {
    AddGroup("results.line", {&row.number, &row.artist, &row.track, &row.blank});
  }
  // Both strips get their look at once.
  for (size_t i = 0; i < results.tabs.size(); ++i) {
    AddGroup("tab", {&form.album.tabs[i], &results.tabs[i]});
  }
}

void LayoutTargets::AddDecades(DecadesScreen& screen) {
  AddAll("decades.step", screen.steps);
  AddAll("decades.artist", screen.rows, &ChartRow::artist);
  AddAll("decades.track", screen.rows, &ChartRow::track);
  AddAll("decades.cover", screen.rows, &ChartRow::cover);
  Add("decades.heading", screen.month_caption);
  Add("decades.heading", screen.year_caption);
  Add("decades.picture", screen.chart_picture);
  Add("decades.back", screen.back);
  Add("decades.yearPicker", screen.year_picker);
  AddAll("decades.year", screen.year_buttons);
  AddAll("decades.decade", screen.decade_heads);
  Add("decades.yearBack", screen.year_back);
  Add("decades.monthPicker", screen.month_picker);
  AddAll("decades.month", screen.month_buttons);
  Add("decades.monthBack", screen.month_back);
}

void LayoutTargets::AddOthers(Form1& form) {
  NowPlayingScreen& playing = form.now_playing;
  Add("nowPlaying.cover", playing.cover);
  Add("nowPlaying.video", playing.video);
  Add("nowPlaying.coverFrame", playing.cover_frame);
  Add("nowPlaying.rating", playing.rating);
  Add("nowPlaying.nextCaption", playing.next_song_caption);
  Add("nowPlaying.next", playing.next_song_artist);
  Add("nowPlaying.next", playing.next_song_title);
  Add("nowPlaying.nextCover", playing.next_song_cover);
  for (Label* label : {&playing.artist, &playing.title, &playing.length}) {
    Add("nowPlaying.track", *label);
  }
  Add("nowPlaying.fullScreen", playing.full_screen);

  Add("jump.panel", form.jump_to_letter.panel);
  AddAll("jump.letter", form.jump_to_letter.letter_buttons);
  Add("jump.command", form.jump_to_letter.jump_to_start);
  Add("jump.command", form.jump_to_letter.done);

  OptionsScreen& options = form.options;
  AddAll("options.section", options.sections);
  Add("options.command", options.save_settings);
  Add("options.command", options.power_off);
  Add("options.back", options.back);
  Add("options.pages", options.pages);
  AddAll("options.panel", options.section_panels);
  Add("options.version", options.version);

  AddAll("genre.label", form.genre.labels);
  Add("genre.up", form.genre.up);
  Add("genre.down", form.genre.down);
  Add("genre.unused", form.genre.unused);
  Add("genre.back", form.genre.back);
  Add("genreBar.panel", form.genre_bar);
  AddAll("genreBar.button", form.genre_buttons.buttons);

  PlayOptionsScreen& play = form.play_options;
  Add("playOptions.cover", play.cover);
  for (Label* label : {&play.artist, &play.title, &play.message, &play.queue_line}) {
    Add("playOptions.message", *label);
  }
  for (lvButtons_H* button :
       {&play.play_now, &play.play_next, &play.add_to_queue, &play.download, &play.cancel}) {
    Add("playOptions.command", *button);
  }
  // The screen has them the other way round.
  for (size_t i = play.prices.size(); i-- > 0;) Add("playOptions.price", play.prices[i]);

  Add("pin.panel", form.pin_screen);
  Add("pin.entry", form.pin.entry);
  AddAll("pin.key", form.pin.keys);
}

}  // namespace sonotik
