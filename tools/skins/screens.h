// Where everything stands on the screens of a skin. All skins share these arrangements; a design's
// grid gives the sizes.
#ifndef SONOTIK_TOOLS_SKINS_SCREENS_H_
#define SONOTIK_TOOLS_SKINS_SCREENS_H_

#include "tools/skins/sheet.h"

namespace sonotik::skins {

// The whole skin, in a folder of its name.
void Make(const Design& design, const QString& folder);

// The pictures of a track's rating, which no skin brings.
void DrawThumbs(const QString& folder);

void LayOutFrame(Sheet& sheet);   // menu bar, player panel, window, album view, letters, genre bar
void LayOutLists(Sheet& sheet);   // track list, queue, top 20, history
void LayOutSearch(Sheet& sheet);  // search, its choice and results, genres
void LayOutDecades(Sheet& sheet);
void LayOutOthers(Sheet& sheet);  // now playing, play options, options, PIN, carousel

// The *.cov files.
void WriteCoverPages(Sheet& sheet);
// Where the covers of the album view may stand, on its screen.
Rect CoverArea(const Design& design);
struct CoverPlace {
  Rect cover, frame, reflection, badge, album, artist;
};
std::vector<CoverPlace> PlacesOf(const Design& design, const CoverPage& page);

// preview.jpg: the album view with made-up covers.
void PaintPreview(Sheet& sheet);

// The column of commands at the right of a screen's content, which becomes narrower by it.
Rect TakeSide(const Design& design, Rect& content);
// The next command from the top.
Rect TakeCommand(const Design& design, Rect& side);
// "BACK" stands at the column's end on every screen.
void PlaceBack(Sheet& sheet, const std::string& target, Rect& side);
// A pair of buttons for up and down that share the place of one.
void PlaceUpAndDown(Sheet& sheet, const std::string& up, int up_index, const std::string& down,
                    int down_index, const Rect& place);

// What no file places keeps its share of the screen, as on the forms of 1280 x 640. Places beside
// such controls go by the same share.
Rect Share(const Design& design, const Rect& on_form);

}  // namespace sonotik::skins

#endif  // SONOTIK_TOOLS_SKINS_SCREENS_H_
