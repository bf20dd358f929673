// Finding music: the keyboard, what to look for, what was found, and the genres.
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

void LayOutKeyboard(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "search.back", side);

  // The fourth suggestion keeps its share of the screen, so the three before it do the same.
  const Rect last = Share(d, {24, 196, 932, 36});
  const float pitch = Share(d, {0, 0, 0, 40}).height;
  const Rect entry{content.left + 3, content.top + 3, content.width - 6,
                   last.top - 3 * pitch - content.top - d.gap - 3};
  picture.Entry(entry);
  const bool paper = d.InkOf(Ink::kPlate) != d.InkOf(Ink::kStage);
  sheet.Text("search.entry", 0,
             {entry.left + d.gap, entry.top + 2, entry.width - 2 * d.gap, entry.height - 4},
             Type::kTitle, paper ? Ink::kPlate : Ink::kStage);
  sheet.SetColors("search.entry", 0, d.highlight, d.InkOf(Ink::kPlate));
  for (int i = 0; i < 3; ++i) {
    sheet.Text("search.suggestion", i,
               {last.left, last.top - pitch * static_cast<float>(3 - i), last.width, last.height},
               Type::kLarge, Ink::kStageAccent);
  }
  sheet.SetColor("search.suggestions", 0, FieldKind::kForeColor, d.InkOf(Ink::kStageAccent));
  sheet.SetColor("searching.caption", 0, FieldKind::kForeColor, d.InkOf(Ink::kStage));

  const float top = last.bottom() + d.gap;
  const Rect keys{content.left, top, content.width, content.bottom() - top};
  const auto cells = Grid(keys, 10, 4, d.gap);
  const auto cell = [&](int column, int row) {
    return cells[static_cast<size_t>(row * 10 + column)];
  };
  // As on a keyboard, the 0 behind the 9.
  for (int i = 0; i < 10; ++i) {
    sheet.Button("search.digit", i, cell((i + 9) % 10, 0), std::to_string(i), Look::kQuiet);
  }
  for (int i = 0; i < 26; ++i) {
    sheet.Button("search.key", i, cell(i % 10, 1 + i / 10),
                 std::string(1, static_cast<char>('A' + i)), Look::kQuiet);
  }
  const auto wide = [&](int column) {
    const Rect first = cell(column, 3), second = cell(column + 1, 3);
    return Rect{first.left, first.top, second.right() - first.left, first.height};
  };
  sheet.Button("search.key", 26, wide(6), "Space", Look::kQuiet);
  sheet.Button("search.key", 27, wide(8), "", Look::kQuiet, Icon::kBackspace);
  // Beside the keys, where the hand is.
  Rect commands{side.left, cell(0, 0).top, side.width, side.bottom() - cell(0, 0).top};
  const float tall = 2 * cell(0, 0).height + d.gap;
  sheet.Button("search.command", 1,
               TakeTop(commands, std::min(tall, commands.height - d.button_height - d.gap), d.gap),
               "Search", Look::kPrimary, Icon::kSearch);
  sheet.Button("search.command", 0, TakeTop(commands, d.button_height, 0), "Clear Seach",
               Look::kPlain);
  picture.Save("search", "screen", 2);
}

void LayOutChoice(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  PanelPicture picture(sheet, d.Screen());
  sheet.Box("screen", 12, d.Screen());
  const float button = wide ? 120 : 80, gap = d.gap * 2;
  const Rect card = Centered(picture.inside(), wide ? 800 : 480, 4 * button + 3 * gap + d.margin);
  picture.Group(card);
  Rect inside = card.Inset(d.margin);
  picture.Words(TakeTop(inside, button - d.margin, gap), "What are you looking for?", Type::kTitle,
                Ink::kStage, Qt::AlignHCenter);
  static constexpr const char* kModes[] = {"TRACK", "ARTIST", "ALBUM"};
  for (int i = 0; i < 3; ++i) {
    sheet.Button("searchChoice.mode", i, TakeTop(inside, button, gap), kModes[i], Look::kPlain);
  }
  picture.Save("choice", "screen", 12);
}

void LayOutResults(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "results.back", side);
  PlaceUpAndDown(sheet, "results.scroll", 0, "results.scroll", 1,
                 TakeBottom(side, d.button_height, d.margin));
  struct Command {
    int index;
    const char* caption;
  };
  static constexpr Command kCommands[] = {{2, "Play NOW"},
                                          {3, "Play Next"},
                                          {4, "Add To Queue"},
                                          {1, "Add ALL To Queue"},
                                          {0, "New Search"}};
  for (const Command& command : kCommands) {
    sheet.Button("results.command", command.index, TakeCommand(d, side), command.caption,
                 Look::kPlain);
  }

  Rect row = TakeTop(content, d.tab_height, d.gap * 1.5F);
  static constexpr const char* kTabs[] = {"Audio", "Video", "Karaoke"};
  for (int i = 0; i < 3; ++i) {
    sheet.Button("results.tab", i, TakeLeft(row, wide ? 184 : 112, d.gap), kTabs[i], Look::kTab);
  }
  sheet.Text("results.heading", 0, row, Type::kLarge, Ink::kStageMuted);

  const auto rows = Grid(content, 1, 7, d.gap);
  for (int i = 0; i < 7; ++i) {
    Rect plate = rows[static_cast<size_t>(i)];
    picture.Plate(plate);
    // Says nothing: what a chosen row stands on.
    sheet.Text("results.blank", i, plate, Type::kSmall, Ink::kPlateMuted);
    sheet.Text("results.number", i, TakeLeft(plate, wide ? 72 : 40, 0), Type::kTitle,
               Ink::kPlateMuted);
    plate = {plate.left, plate.top + d.picture_gap, plate.width - d.picture_gap,
             plate.height - 2 * d.picture_gap};
    sheet.Box("results.cover", i, TakeLeft(plate, plate.height, d.picture_gap * 2));
    const float upper = std::round(plate.height * 0.55F);
    sheet.Text("results.track", i, TakeTop(plate, upper, 0), Type::kLarge, Ink::kPlate);
    sheet.Text("results.artist", i, plate, Type::kBody, Ink::kPlateAccent);
    sheet.SetColor("results.line", i, FieldKind::kForeColor, d.InkOf(Ink::kPlate));
  }
  picture.Save("results", "screen", 10);
}

void LayOutGenres(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "genre.back", side);
  sheet.Button("genre.up", 0, TakeCommand(d, side), "", Look::kPlain, Icon::kUp);
  sheet.Button("genre.down", 0, TakeCommand(d, side), "", Look::kPlain, Icon::kDown);
  // Does nothing, so nobody is to see it.
  sheet.Button("genre.unused", 0, {side.left, side.top, 0, 0}, "", Look::kPlain);
  const auto cells = Grid(content, 4, 7, d.gap * 1.5F);
  for (int i = 0; i < 28; ++i) {
    const Rect cell = cells[static_cast<size_t>(i % 7 * 4 + i / 7)];
    picture.Plate(cell);
    sheet.Text("genre.label", i, {cell.left + 4, cell.top + 4, cell.width - 8, cell.height - 8},
               Type::kBody, Ink::kPlate);
  }
  picture.Save("genres", "screen", 11);
}

}  // namespace

void LayOutSearch(Sheet& sheet) {
  sheet.SetColor("results.heading", 0, FieldKind::kForeColor,
                 sheet.design().InkOf(Ink::kStageMuted));
  LayOutKeyboard(sheet);
  LayOutChoice(sheet);
  LayOutResults(sheet);
  LayOutGenres(sheet);
}

}  // namespace sonotik::skins
