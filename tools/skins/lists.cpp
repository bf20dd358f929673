// The screens of rows: an album's tracks, the queue, the charts, what has been played.
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

// The cover of a row, in the plate's left, and what is left beside it.
Rect CoverIn(const Design& d, Rect& plate) {
  plate = {plate.left + d.picture_gap, plate.top + d.picture_gap, plate.width - 2 * d.picture_gap,
           plate.height - 2 * d.picture_gap};
  return TakeLeft(plate, plate.height, d.picture_gap * 2);
}

// Lines one below the other, with heights by these parts.
std::vector<Rect> Lines(const Rect& area, std::initializer_list<float> parts) {
  float sum = 0;
  for (const float part : parts) sum += part;
  std::vector<Rect> lines;
  float top = area.top;
  for (const float part : parts) {
    const float height = area.height * part / sum;
    lines.push_back(Whole({area.left, top, area.width, height}));
    top += height;
  }
  return lines;
}

void LayOutTrackList(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "trackList.back", side);
  // What is for a chosen track comes and goes, and stands together; the album's own is always
  // there.
  sheet.Button("trackList.command", 3, TakeBottom(side, d.button_height, d.gap), "Add Entire Album",
               Look::kPlain);
  struct Command {
    int index;
    const char* caption;
  };
  static constexpr Command kCommands[] = {{0, "Play NOW"},     {1, "Play NEXT"},
                                          {2, "Add To Queue"}, {4, "Add To Carousel"},
                                          {5, "Burn CD"},      {6, "DOWNLOAD"}};
  for (const Command& command : kCommands) {
    sheet.Button("trackList.command", command.index, TakeCommand(d, side), command.caption,
                 Look::kPlain);
  }

  // Cover, names, and the artist's other albums.
  const float wide = std::round(d.Screen().height * 0.46F);
  Rect album = TakeLeft(content, wide, d.margin);
  const Rect cover = TakeTop(album, wide, d.margin);
  picture.Well(cover);
  sheet.Box("trackList.cover", 0, cover);
  const float line = std::round(d.Points(Type::kLarge) * 1.9F);
  sheet.Text("trackList.heading", 0, TakeTop(album, line, 0), Type::kLarge, Ink::kStage);
  sheet.Text("trackList.heading", 1, TakeTop(album, line - 4, 0), Type::kBody, Ink::kStageAccent);
  sheet.Text("trackList.heading", 2, TakeTop(album, line - 4, 0), Type::kBody, Ink::kStageMuted);
  const auto scroll = Grid(TakeBottom(album, d.width > 1400 ? 64 : 48, d.gap), 2, 1, d.gap);
  sheet.Button("trackList.stripBack", 0, scroll[0], "", Look::kQuiet, Icon::kLeft);
  sheet.Button("trackList.stripForward", 0, scroll[1], "", Look::kQuiet, Icon::kRight);
  const float strip = std::floor((wide - 3 * d.gap) / 4);
  for (int i = 0; i < 4; ++i) {
    sheet.Box("trackList.stripCover", i,
              {album.left + static_cast<float>(i) * (strip + d.gap), album.bottom() - strip, strip,
               strip});
  }

  PlaceUpAndDown(sheet, "trackList.up", 0, "trackList.down", 0,
                 TakeBottom(content, d.button_height, d.gap * 1.5F));
  const float time = d.width > 1400 ? 120 : 72;
  const auto rows = Grid(content, 1, 13, d.width > 1400 ? 4 : 2);
  for (int i = 0; i < 13; ++i) {
    Rect row = rows[static_cast<size_t>(i)];
    picture.Plate(row);
    row = {row.left + 4, row.top + 1, row.width - 8, row.height - 2};
    Rect title = row;
    const Rect length = TakeRight(title, time, 0);
    sheet.Text("trackList.title", i, title, Type::kBody, Ink::kPlate);
    // It overlaps the title, so that both are marked as one.
    sheet.Text("trackList.time", i, {length.left - 8, length.top, length.width + 8, length.height},
               Type::kBody, Ink::kPlateMuted);
  }
  sheet.SetColor("trackList.lines", 0, FieldKind::kForeColor, d.InkOf(Ink::kPlate));
  picture.Save("tracks", "screen", 9);
}

void LayOutQueue(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "queue.back", side);
  PlaceUpAndDown(sheet, "queue.scroll", 0, "queue.scroll", 1,
                 TakeBottom(side, d.button_height, d.margin));
  struct Command {
    int index;
    const char* caption;
    Look look;
  };
  static constexpr Command kCommands[] = {
      {3, "Play Now", Look::kPlain},      {0, "Move Up", Look::kPlain},
      {1, "Move Down", Look::kPlain},     {2, "Remove Song", Look::kPlain},
      {6, "Shuffle Queue", Look::kPlain}, {4, "Clear Queue", Look::kDanger},
      {5, "Burn CD", Look::kPlain}};
  for (const Command& command : kCommands) {
    sheet.Button("queue.command", command.index, TakeCommand(d, side), command.caption,
                 command.look);
  }

  const float head = std::round(d.Points(Type::kLarge) * 1.8F);
  sheet.Text("queue.remaining", 0, TakeBottom(content, head, 0), Type::kBody, Ink::kStageMuted);
  sheet.Text("queue.head", 0, TakeTop(content, head, 0), Type::kLarge, Ink::kStageAccent);
  const float row_height = std::floor((content.height - head - 5 * d.gap) / 5);
  const float number = d.width > 1400 ? 56 : 34, time = d.width > 1400 ? 128 : 76;
  for (int i = 0; i < 5; ++i) {
    if (i == 1) {
      sheet.Text("queue.head", 1, TakeTop(content, head, 0), Type::kLarge, Ink::kStageAccent);
    }
    Rect row = TakeTop(content, row_height, d.gap);
    picture.Plate(row);
    // The next song has no number.
    Rect beside = row;
    const Rect at_left = TakeLeft(beside, number, 0);
    if (i > 0) sheet.Text("queue.number", i, at_left, Type::kTitle, Ink::kPlateMuted);
    const Rect cover = CoverIn(d, beside);
    sheet.Box("queue.cover", i, cover);
    sheet.Text("queue.time", i, TakeRight(beside, time, d.gap), Type::kLarge, Ink::kPlateMuted);
    const auto lines = Lines(beside, {5, 4, 3.5F});
    sheet.Text("queue.track", i, lines[0], Type::kLarge, Ink::kPlate);
    sheet.Text("queue.artist", i, lines[1], Type::kBody, Ink::kPlateAccent);
    sheet.Text("queue.album", i, lines[2], Type::kSmall, Ink::kPlateMuted);
  }
  sheet.SetColor("queue.lines", 0, FieldKind::kForeColor, d.InkOf(Ink::kPlate));
  sheet.SetColor("queue.heads", 0, FieldKind::kForeColor, d.InkOf(Ink::kStageAccent));
  picture.Save("queue", "screen", 3);
}

void LayOutTop20(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "top20.back", side);
  PlaceUpAndDown(sheet, "top20.scroll", 0, "top20.scroll", 1,
                 TakeBottom(side, d.button_height, d.margin));
  static constexpr const char* kCommands[] = {"Add To Queue", "Play NEXT", "Play NOW"};
  for (int i = 2; i >= 0; --i) {
    sheet.Button("top20.command", i, TakeCommand(d, side), kCommands[i], Look::kPlain);
  }
  const auto cells = Grid(content, 2, 5, d.gap * 1.5F);
  const float number = d.width > 1400 ? 64 : 36;
  for (int i = 0; i < 10; ++i) {
    // Down the left column first, as a chart reads.
    Rect cell = cells[static_cast<size_t>(i % 5 * 2 + i / 5)];
    picture.Plate(cell);
    sheet.Text("top20.number", i, TakeLeft(cell, number, 0), Type::kTitle, Ink::kPlateAccent);
    sheet.Box("top20.cover", i, CoverIn(d, cell));
    const auto lines = Lines(cell, {4.5F, 4, 3.5F});
    sheet.Text("top20.track", i, lines[0], Type::kLarge, Ink::kPlate);
    sheet.Text("top20.artist", i, lines[1], Type::kBody, Ink::kPlateAccent);
    sheet.Text("top20.played", i, lines[2], Type::kSmall, Ink::kPlateMuted);
  }
  sheet.SetColor("top20.lines", 0, FieldKind::kForeColor, d.InkOf(Ink::kPlate));
  picture.Save("top20", "screen", 1);
}

// Six lines of text want the whole width, so the buttons stand below.
void LayOutHistory(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect foot = TakeBottom(content, d.button_height, wide ? d.margin : d.gap * 1.5F);
  Rect corner = TakeRight(foot, d.side, d.margin);
  PlaceBack(sheet, "history.back", corner);
  Rect steps = TakeRight(foot, wide ? 880 : 504, d.margin);
  const auto places = Grid(steps, 4, 1, d.gap);
  static constexpr const char* kSteps[] = {"Previous", "Next", "Page Up", "Page Down"};
  for (size_t i = 0; i < places.size(); ++i) {
    sheet.Button("history.step", static_cast<int>(i), places[i], kSteps[i], Look::kPlain);
  }
  sheet.Text("history.total", 0, Whole(foot), Type::kBody, Ink::kStageMuted);
  const auto cells = Grid(content, 3, 3, d.gap * 1.5F);
  for (int i = 0; i < 9; ++i) {
    Rect cell = cells[static_cast<size_t>(i)];
    picture.Plate(cell);
    cell = cell.Inset(d.picture_gap);
    const float cover = std::round(cell.width * (wide ? 0.32F : 0.3F));
    Rect left = TakeLeft(cell, cover, 0);
    sheet.Box("history.cover", i, Centered(left, cover, cover));
    sheet.Text("history.row", i, Whole(cell), Type::kBody, Ink::kPlate);
  }
  sheet.SetColors("history.lines", 0, d.highlight, d.InkOf(Ink::kPlate));
  picture.Save("history", "screen", 0);
}

}  // namespace

void LayOutLists(Sheet& sheet) {
  LayOutTrackList(sheet);
  LayOutQueue(sheet);
  LayOutTop20(sheet);
  LayOutHistory(sheet);
}

}  // namespace sonotik::skins
