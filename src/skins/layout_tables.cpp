#include "skins/layout_tables.h"

namespace sonotik {
namespace {

using B = BlockKind;

constexpr LayoutBlock kMainIni[] = {
    {B::kBox, 1, "menu.bar", 0, "menu bar"},
    {B::kBox, 1, "player.panel", 0, "player panel"},
    {B::kBox, 1, "player.indicator", 0, "animated \"now playing\" indicator"},
    {B::kBox, 1, "album.titleStrip", 0,
     "title strip of the album view: its 27 zones jump to a letter"},
    {B::kIgnored, 9},
    {B::kIgnored, 4},
    {B::kBox, 1, "player.cover", 0, "cover of the playing track"},
    {B::kTopLeft, 1, "screens", 0, "place of all main screens at once"},
    {B::kHeightWidth, 1, "screens", 0, "size of all main screens at once"},
    {B::kIgnored, 3},
    {B::kBox, 1, "screen", 11, "genre screen"},
    {B::kLabel, 5, "player.status", 0,
     "playing track: artist, title, position, length, \"PAUSED\""},
    {B::kLabel, 2, "player.credit", 0, "credits, and the line beside them"},
    {B::kLabel, 1, "player.clock", 0, "time and date"},
};

constexpr LayoutBlock kMenuIni[] = {
    {B::kHead, 1, "menu.head", 0,
     "0: the menu bar keeps its size and Genres opens the genre screen;"
     " 1: Genres opens the genre bar, and a size follows"},
    {B::kHeightWidth, 1, "menu.bar", 0, "size of the menu bar", InFile::kIfHeadIsNotZero},
    {B::kButtonHeightFirst, 9, "menu.button", 0,
     "menu bar: History, Top 20, Search, Show Queue, Options, Decades, Carousel View, Genres,"
     " Album View"},
};

constexpr LayoutBlock kPlayerIni[] = {
    {B::kVersion, 1, "player.head", 0,
     "\"Version 2\": with a place for the volume slider; 1: without;"
     " 0: no volume controls at all"},
    {B::kButtonHeightFirst, 5, "player.button", 0,
     "player: restart, pause, next, volume down, volume up"},
    {B::kHeightWidthTopLeft, 1, "player.volume", 0, "volume slider", InFile::kIfHeadIsVersion2},
};

constexpr LayoutBlock kNavIni[] = {
    {B::kHead, 1, "album.paging", 0, "0: page buttons; 1: scroll panels; other: as it was"},
    {B::kButtonHeightFirst, 5, "album.pageButton", 0,
     "Back, Jump To Letter, Forward, Back of the left scroll panel, Forward of the right one"},
    {B::kLabel, 1, "album.pageCaption", 0, "\"Current Page : 0/ 9\""},
    {B::kButtonHeightFirst, 3, "album.tab", 0, "tabs: Audio, Video, Karaoke"},
    // Most Played (3) has no page of its own, and no file places it.
    {B::kButtonHeightFirst, 2, "album.tab", 4, "tabs: New Songs, SPIN on THIS"},
};

constexpr LayoutBlock kTabIni[] = {
    {B::kTabStyle, 3, "tab", 0,
     "tabs Audio, Video, Karaoke of the album view and of the search results"},
};

constexpr LayoutBlock kFontIni[] = {
    {B::kForeColor, 1, "queue.lines", 0, "queue: lines"},
    {B::kForeColor, 1, "queue.heads", 0, "queue: heads"},
    {B::kForeColor, 1, "history.lines", 0, "history: lines"},
    {B::kForeColor, 1, "top20.lines", 0, "top 20: lines"},
    {B::kForeColor, 1, "trackList.lines", 0, "track list: lines"},
    {B::kForeColor, 7, "results.line", 0, "search results: lines 1 to 7"},
    {B::kForeColor, 1, "results.heading", 0, "search results: heading"},
    {B::kForeColor, 1, "search.suggestions", 0, "search: suggestions"},
    {B::kForeColor, 1, "searching.caption", 0, "\"Searching\""},
};

constexpr LayoutBlock kBackIni[] = {
    {B::kIgnored, 10},
    {B::kColors, 1, "search.entry", 0, "search: what has been typed"},
};

constexpr LayoutBlock kDecadesIni[] = {
    {B::kButtonShapeLast, 4, "decades.step", 0, "month back, month on, year back, year on"},
    {B::kLabel, 10, "decades.artist", 0, "rows: number and artist"},
    {B::kLabel, 2, "decades.heading", 0, "month, year"},
    {B::kBox, 10, "decades.cover", 0, "rows: cover"},
    {B::kBox, 1, "decades.picture", 0, "animated picture of the chart"},
    {B::kLabel, 10, "decades.track", 0, "rows: track"},
    {B::kButtonShapeLast, 1, "decades.back", 0, "BACK"},
};

constexpr LayoutBlock kDecadesYearIni[] = {
    {B::kPicture, 1, "decades.yearPicker", 0, "background of the year picker"},
    {B::kHeightWidth, 1, "decades.yearPicker", 0, "size of the year picker"},
    {B::kButtonShapeLast, 57, "decades.year", 0, "years 1953 to 2009"},
    {B::kLabel, 6, "decades.decade", 0, "heads of the decades, 1950s to 2000s"},
    {B::kButtonShapeLast, 1, "decades.yearBack", 0, "BACK"},
};

constexpr LayoutBlock kDecadesMonthIni[] = {
    {B::kPicture, 1, "decades.monthPicker", 0, "background of the month picker"},
    {B::kButtonShapeLast, 12, "decades.month", 0, "January to December"},
    {B::kButtonShapeLast, 1, "decades.monthBack", 0, "BACK"},
};

constexpr LayoutBlock kSearchIni[] = {
    {B::kButtonTopFirst, 28, "search.key", 0, "keys A to Z, blank, backspace"},
    {B::kButtonTopFirst, 2, "search.command", 0, "clear, search"},
    {B::kButtonTopFirst, 1, "search.back", 0, "BACK"},
    {B::kLabel, 1, "search.entry", 0, "what has been typed"},
    {B::kLabel, 3, "search.suggestion", 0, "first three of the four suggestions"},
    {B::kButtonTopFirst, 10, "search.digit", 0, "keys 0 to 9"},
};

constexpr LayoutBlock kSearchChoiceIni[] = {
    {B::kPicture, 1, "screen", 12, "background of the panel"},
    {B::kBox, 1, "screen", 12, "the panel"},
    {B::kButtonTopFirst, 3, "searchChoice.mode", 0, "TRACK, ARTIST, ALBUM"},
};

constexpr LayoutBlock kNowPlayingIni[] = {
    {B::kBox, 1, "nowPlaying.cover", 0, "cover"},
    {B::kBox, 1, "nowPlaying.video", 0, "video"},
    {B::kBox, 1, "nowPlaying.coverFrame", 0, "frame of the cover"},
    {B::kBox, 1, "nowPlaying.rating", 0, "animated rating"},
    {B::kLabel, 1, "nowPlaying.nextCaption", 0, "\"Next Song:\""},
    {B::kLabel, 2, "nowPlaying.next", 0, "next track: artist, title"},
    {B::kLabel, 3, "nowPlaying.track", 0, "playing track: artist, title, length"},
    {B::kButtonHeightFirst, 1, "nowPlaying.fullScreen", 0, "FULLSCREEN"},
    {B::kBox, 1, "nowPlaying.nextCover", 0, "cover of the next track"},
};

constexpr LayoutBlock kTrackListIni[] = {
    {B::kButtonTopFirst, 1, "trackList.up", 0, "Up"},
    {B::kButtonTopFirst, 1, "trackList.stripBack", 0, "strip of covers: back"},
    {B::kButtonTopFirst, 1, "trackList.down", 0, "Down"},
    {B::kButtonTopFirst, 1, "trackList.stripForward", 0, "strip of covers: on"},
    {B::kButtonTopFirst, 5, "trackList.command", 0,
     "Play NOW, Play NEXT, Add To Queue, Add Entire Album, Add To Carousel"},
    {B::kButtonTopFirst, 1, "trackList.back", 0, "BACK"},
    {B::kBox, 1, "trackList.cover", 0, "cover of the album"},
    {B::kLabel, 3, "trackList.heading", 0, "album, artist, year"},
    {B::kBox, 4, "trackList.stripCover", 0, "strip of the artist's covers"},
    {B::kLabel, 13, "trackList.time", 0, "rows: time"},
    {B::kLabel, 13, "trackList.title", 0, "rows: number and title"},
    {B::kButtonTopFirst, 2, "trackList.command", 5, "Burn CD, DOWNLOAD"},
};

constexpr LayoutBlock kTop20Ini[] = {
    {B::kButtonTopFirst, 2, "top20.scroll", 0, "Up, Down"},
    {B::kBox, 10, "top20.cover", 0, "rows: cover"},
    {B::kLabel, 10, "top20.number", 0, "rows: number"},
    {B::kButtonTopFirst, 1, "top20.back", 0, "BACK"},
    {B::kButtonTopFirst, 3, "top20.command", 0, "Add To Queue, Play NEXT, Play NOW"},
    {B::kLabel, 10, "top20.artist", 0, "rows: artist"},
    {B::kLabel, 10, "top20.track", 0, "rows: track"},
    {B::kLabel, 10, "top20.played", 0, "rows: how often it was played"},
};

constexpr LayoutBlock kHistoryIni[] = {
    {B::kButtonTopFirst, 4, "history.step", 0, "Previous, Next, Page Up, Page Down"},
    {B::kButtonTopFirst, 1, "history.back", 0, "BACK"},
    {B::kBox, 9, "history.cover", 0, "rows: cover"},
    {B::kColors, 1, "history.lines", 0, "all rows"},
    {B::kLabel, 9, "history.row", 0,
     "rows: number, artist, track, album, time and day, one below the other"},
    {B::kLabel, 1, "history.total", 0, "total of songs"},
};

constexpr LayoutBlock kLabelsIni[] = {
    {B::kAlignedColors, 1, "album.albumLabels", 0, "albums' names below the covers"},
    {B::kAlignedColors, 1, "album.artistLabels", 0, "artists' names below the covers"},
};

constexpr LayoutBlock kSearchResultsIni[] = {
    {B::kPicture, 1, "screen", 10, "background of the screen"},
    {B::kLabel, 7, "results.number", 0, "rows: number"},
    {B::kLabel, 7, "results.artist", 0, "rows: artist"},
    {B::kLabel, 7, "results.track", 0, "rows: track"},
    {B::kLabel, 7, "results.blank", 0,
     "rows: an empty line, which takes the touch as the others do"},
    {B::kLabel, 1, "results.heading", 0, "how many were found"},
    {B::kButtonTopFirst, 5, "results.command", 0,
     "New Search, Add ALL To Queue, Play NOW, Play Next, Add To Queue"},
    {B::kButtonTopFirst, 2, "results.scroll", 0, "UP, DOWN"},
    {B::kButtonTopFirst, 1, "results.back", 0, "BACK"},
    {B::kBox, 7, "results.cover", 0, "rows: cover"},
};

constexpr LayoutBlock kJumpToLetterIni[] = {
    {B::kPicture, 1, "jump.panel", 0, "background of the panel"},
    {B::kBox, 1, "jump.panel", 0, "the panel"},
    {B::kButtonTopFirst, 26, "jump.letter", 0, "A to Z"},
    {B::kButtonTopFirst, 2, "jump.command", 0, "Jump To Start, Done"},
};

constexpr LayoutBlock kResolutionIni[] = {
    {B::kIgnored, 3},
    {B::kScreenSize, 1, "window", 0, "the screen that the skin was drawn for"},
};

constexpr LayoutBlock kOptionsIni[] = {
    {B::kButtonKeepingCaption, 8, "options.section", 0,
     "sections: General, Appearance, Random Play, Buttons, Attract Mode, Keys, Coins, LED sign"},
    {B::kButtonTopFirst, 2, "options.command", 0, "Save Settings, Power OFF"},
    {B::kButtonTopFirst, 1, "options.back", 0, "BACK"},
    {B::kColorsAndBox, 1, "options.pages", 0, "what holds the sections' panels"},
    {B::kColorsAndBox, 8, "options.panel", 0,
     "panels of the sections, in the order of the buttons"},
    {B::kLabel, 1, "options.version", 0, "version of the program"},
};

constexpr LayoutBlock kGenreIni[] = {
    {B::kPicture, 1, "screen", 11, "background of the screen"},
    {B::kLabel, 28, "genre.label", 0, "ALL GENRES, then 27 genres"},
    {B::kButtonTopFirst, 1, "genre.up", 0, "scrolls up"},
    {B::kButtonTopFirst, 1, "genre.back", 0, "BACK"},
    {B::kButtonTopFirst, 1, "genre.down", 0, "scrolls down"},
    {B::kButtonTopFirst, 1, "genre.unused", 0, "a button that does nothing"},
};

constexpr LayoutBlock kGenreBarIni[] = {
    {B::kBox, 1, "genreBar.panel", 0, "the bar; images\\genrebar.bmp is its background"},
    {B::kButtonTopFirst, 10, "genreBar.button", 0, "UP, seven genres, DOWN, Back"},
};

constexpr LayoutBlock kQueueIni[] = {
    {B::kButtonTopFirst, 2, "queue.scroll", 0, "up, down"},
    {B::kButtonTopFirst, 7, "queue.command", 0,
     "Move Up, Move Down, Remove Song, Play Now, Clear Queue, Burn CD, Shuffle Queue"},
    {B::kButtonTopFirst, 1, "queue.back", 0, "BACK"},
    {B::kLabel, 1, "queue.remaining", 0, "how many songs wait"},
    {B::kBox, 5, "queue.cover", 0, "rows: cover"},
    {B::kLabel, 4, "queue.number", 1, "rows 2 to 5: number"},
    {B::kLabel, 2, "queue.head", 0, "Next Song..., Followed By..."},
    {B::kLabel, 5, "queue.artist", 0, "rows: artist"},
    {B::kLabel, 5, "queue.track", 0, "rows: track"},
    {B::kLabel, 5, "queue.album", 0, "rows: album"},
    {B::kLabel, 5, "queue.time", 0, "rows: time"},
};

constexpr LayoutBlock kPlayOptionsIni[] = {
    {B::kBox, 1, "playOptions.cover", 0, "cover"},
    {B::kLabel, 4, "playOptions.message", 0, "artist, title, message, songs in the queue"},
    {B::kButtonTopFirst, 5, "playOptions.command", 0,
     "Play Now, Play Next, Add To Queue, DOWNLOAD, Cancel"},
    {B::kLabel, 3, "playOptions.price", 0, "prices: Play Now, Play Next, Add To Queue"},
    // Last here, first in the other files.
    {B::kPicture, 1, "screen", 13, "background of the screen"},
    {B::kBox, 1, "screen", 13, "the screen"},
};

constexpr LayoutBlock kJumpToLetter2Ini[] = {
    {B::kButtonTopFirst, 27, "album.letter", 0, "A to Z, Jump To Start"},
};

constexpr LayoutBlock kSpinIni[] = {
    {B::kButtonTopFirst, 1, "album.tab", 5, "tab SPIN on THIS, once more"},
};

constexpr LayoutBlock kSearchTabIni[] = {
    {B::kButtonTopFirst, 3, "results.tab", 0, "tabs of the search results: Audio, Video, Karaoke"},
};

constexpr LayoutBlock kPinScreenIni[] = {
    {B::kPicture, 1, "pin.panel", 0, "background of the panel"},
    {B::kBox, 1, "pin.panel", 0, "the panel"},
    {B::kLabel, 1, "pin.entry", 0, "what has been typed"},
    {B::kButtonTopFirst, 10, "pin.key", 0, "ENTER, then the digits 1 to 9"},
    // The left edge stands first here.
    {B::kLeftTop, 1, "pin.panel", 0, "place of the panel once more: this one counts"},
};

constexpr LayoutFile kFiles[] = {
    {"main.ini", "frame of all screens", kMainIni},
    {"menu.ini", "menu bar", kMenuIni},
    {"player.ini", "player panel", kPlayerIni},
    {"nav.ini", "ways through the album view", kNavIni},
    {"tab.ini", "captions and look of the tabs", kTabIni},
    {"font.ini", "colours of the lists", kFontIni},
    {"back.ini", "text box of the search", kBackIni},
    {"decades2.ini", "decades", kDecadesIni},
    {"decades_year.ini", "year picker of the decades", kDecadesYearIni},
    {"decades_month.ini", "month picker of the decades", kDecadesMonthIni},
    {"search.ini", "search", kSearchIni},
    {"search_choice.ini", "what to search for", kSearchChoiceIni},
    {"now_playing.ini", "now playing", kNowPlayingIni},
    {"tracklist.ini", "track list of an album", kTrackListIni},
    {"top20.ini", "top 20", kTop20Ini},
    {"history.ini", "history", kHistoryIni},
    {"label.ini", "names below the covers", kLabelsIni},
    {"search_res.ini", "search results", kSearchResultsIni},
    {"jumptoletter.ini", "letters over the covers", kJumpToLetterIni},
    {"resolution.ini", "size of the screen", kResolutionIni},
    {"options.ini", "options", kOptionsIni},
    {"genre.ini", "genres", kGenreIni},
    {"genre_bar.ini", "genre bar", kGenreBarIni},
    {"queue.ini", "queue", kQueueIni},
    {"play_options.ini", "what to do with a track", kPlayOptionsIni},
    {"jumptoletter2.ini", "letters of the album view", kJumpToLetter2Ini},
    {"spin.ini", "tab SPIN on THIS", kSpinIni},
    {"search_tab.ini", "tabs of the search results", kSearchTabIni},
    {"pin_screen.ini", "PIN screen", kPinScreenIni},
};

constexpr LayoutBlock kSkinIni[] = {
    {B::kIgnored, 3},
    {B::kPicture, 1, "window", 0, "background of the main window"},
    {B::kLabelledPicture, 13, "screen", 0,
     "backgrounds: history, top 20, search, queue, options, decades, carousel, now playing, albums,"
     " track list, search results, genres, search choice"},
    {B::kLabelledPicture, 1, "album.frames", 0, "frame of the first twelve covers"},
    {B::kLabelledPicture, 1, "player.and.pin", 0, "player panel and PIN screen"},
    {B::kLabelledAnimation, 1, "player.indicator", 0, "\"now playing\" indicator"},
    {B::kLabelledCount, 1, "trackList.rows", 0, "rows of the track list, 0 to 13"},
};
constexpr LayoutFile kSkinFile = {"skin.ini", "background pictures", kSkinIni};

}  // namespace

std::span<const LayoutFile> LayoutFiles() { return kFiles; }

const LayoutFile* FindLayoutFile(std::string_view name) {
  for (const LayoutFile& file : kFiles) {
    if (file.name == name) return &file;
  }
  return nullptr;
}

const LayoutFile& SkinFile() { return kSkinFile; }

}  // namespace sonotik
