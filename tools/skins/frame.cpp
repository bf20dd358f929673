// What stays on every screen, the album view, and what lies over it.
#include "tools/skins/gif_writer.h"
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

using F = FieldKind;

constexpr float kMenuButtons = 9;

void LayOutMenu(Sheet& sheet) {
  const Design& d = sheet.design();
  const Rect bar{0, 0, d.width, d.menu_height};
  PanelPicture picture(sheet, bar);
  sheet.brush().Bar(picture.painter(), ToQt(bar), true);
  sheet.SaveBmp(picture.image(), "menu.bmp");

  // Screens for the genres, not the bar: 28 of them at a glance.
  sheet.Set("menu.head", 0, F::kHead, 0);
  sheet.Box("menu.bar", 0, bar);
  struct Entry {
    int index;
    const char* caption;
    Icon icon;
  };
  // By how often a guest wants them, from the left.
  static constexpr Entry kEntries[] = {
      {8, "Album View", Icon::kAlbums},      {3, "Show Queue", Icon::kQueue},
      {6, "Carousel View", Icon::kCarousel}, {2, "Search", Icon::kSearch},
      {7, "Genres", Icon::kGenres},          {5, "Decades", Icon::kDecades},
      {1, "Top 20", Icon::kTop20},           {0, "History", Icon::kHistory},
      {4, "Options", Icon::kOptions},
  };
  const float around = d.width > 1400 ? 12 : 8;
  // The bar's lower edge is a line or a rail.
  Rect row{d.margin, around, d.width - 2 * d.margin, d.menu_height - 2 * around - 3};
  const auto cells = Grid(row, static_cast<int>(kMenuButtons), 1, d.gap);
  for (size_t i = 0; i < cells.size(); ++i) {
    const Entry& entry = kEntries[i];
    sheet.Button("menu.button", entry.index, cells[i], entry.caption, Look::kMenu, entry.icon);
  }
}

// Bars that dance while music plays.
void WriteIndicator(Sheet& sheet, const Rect& place) {
  constexpr int kFrames = 8, kBars = 5;
  static constexpr int kHeights[kFrames] = {3, 6, 9, 7, 10, 5, 8, 4};
  const int width = static_cast<int>(place.width), height = static_cast<int>(place.height);
  GifWriter gif(width, height, {sheet.design().InkOf(Ink::kStageAccent)});
  const int bar = width / (2 * kBars - 1);
  for (int frame = 0; frame < kFrames; ++frame) {
    std::vector<uint8_t> pixels(static_cast<size_t>(width * height), GifWriter::kTransparent);
    for (int i = 0; i < kBars; ++i) {
      const int tall = height * kHeights[(frame + 3 * i) % kFrames] / 10;
      for (int y = height - tall; y < height; ++y) {
        for (int x = 2 * bar * i; x < 2 * bar * i + bar; ++x) {
          pixels[static_cast<size_t>(y * width + x)] = 1;
        }
      }
    }
    gif.AddFrame(pixels, 12);
  }
  gif.Save(sheet.PathOf("indicator.gif"));
  sheet.Box("player.indicator", 0, place);
  sheet.Set("player.indicator", 0, F::kAnimation, "images\\indicator.gif");
}

void LayOutPlayer(Sheet& sheet) {
  const Design& d = sheet.design();
  const Rect panel{0, d.height - d.player_height, d.width, d.player_height};
  const bool wide = d.width > 1400;
  // From the left: what plays, the place of the random button, the transport, the volume, credits.
  const float around = wide ? 16 : 12;
  Rect rest{d.margin, around, d.width - 2 * d.margin, d.player_height - 2 * around};
  rest.top += wide ? 0 : 3;
  const Rect cover = TakeLeft(rest, rest.height, wide ? 20 : 12);
  sheet.Box("player.cover", 0, cover);

  // The random button keeps its share of the forms' bar.
  const float random_left = std::round(404 * d.width / 1280);
  const float random_right = std::round(484 * d.width / 1280);
  Rect names{rest.left, rest.top, random_left - rest.left - d.margin, rest.height};
  const float third = names.height / 12;
  sheet.Text("player.status", 1, TakeTop(names, std::round(third * 5), 0), Type::kLarge,
             Ink::kStage);
  Rect artist = TakeTop(names, std::round(third * 3.6F), 0);
  // The bars dance at the end of the artist's line.
  const float bars = wide ? 54 : 36;
  const Rect indicator = TakeRight(artist, bars, d.gap).Inset(wide ? 3 : 2);
  sheet.Text("player.status", 0, artist, Type::kBody, Ink::kStageAccent);
  const float time = wide ? 72 : 46;
  sheet.Text("player.status", 2, TakeLeft(names, time, 0), Type::kBody, Ink::kStage);
  sheet.Text("player.status", 3, TakeLeft(names, time + 10, 8), Type::kBody, Ink::kStageMuted);
  sheet.Text("player.status", 4, names, Type::kBody, Ink::kWarning);

  Rect right{random_right + d.margin, rest.top, rest.right() - random_right - d.margin,
             rest.height};
  Rect info = TakeRight(right, wide ? 384 : 190, d.margin);
  sheet.Text("player.credit", 0, TakeTop(info, std::round(third * 5), 0), Type::kLarge,
             Ink::kStageAccent);
  sheet.Text("player.credit", 1, TakeTop(info, std::round(third * 3.6F), 0), Type::kBody,
             Ink::kStageMuted);
  sheet.Text("player.clock", 0, info, Type::kBody, Ink::kStage);

  sheet.Set("player.head", 0, F::kVersion, "Version 2");
  const float button = wide ? 96 : 56;
  static constexpr Icon kIcons[] = {Icon::kRestart, Icon::kPause, Icon::kNext, Icon::kVolumeDown,
                                    Icon::kVolumeUp};
  const float high = right.height - 2 * (wide ? 6 : 4);
  const float top = right.top + (right.height - high) / 2;
  const auto place = [&](int index, float left, float width) {
    sheet.Button("player.button", index, {left, top, width, high}, "", Look::kPlayer,
                 kIcons[index]);
  };
  for (int i = 0; i < 3; ++i) {
    place(i, TakeLeft(right, button, d.gap).left, button);
  }
  TakeLeft(right, d.margin, 0);
  const float sides = wide ? 80 : 48;
  place(3, TakeLeft(right, sides, d.gap).left, sides);
  place(4, TakeRight(right, sides, d.gap).left, sides);
  const Rect volume = Whole({right.left, top, right.width, high});
  sheet.Box("player.volume", 0, volume);

  PanelPicture picture(sheet, panel);
  sheet.brush().Bar(picture.painter(), ToQt(picture.inside()), false);
  sheet.brush().Well(picture.painter(), ToQt(cover));
  const QImage background = picture.image().copy();
  sheet.SaveBmp(background, "player.bmp");
  sheet.Set("player.and.pin", 0, F::kPicture, sheet.SaveJpeg(background, "player.jpg"));
  // The slider takes its size from its pictures, and its thumb has no holes.
  QImage track = background.copy(ToQt(volume).toRect());
  {
    QPainter painter(&track);
    painter.setRenderHint(QPainter::Antialiasing);
    sheet.brush().Groove(painter, track.rect());
  }
  sheet.SaveBmp(track, "slider_back.bmp");
  QImage thumb(wide ? 28 : 18, wide ? 48 : 32, QImage::Format_RGB32);
  {
    QPainter painter(&thumb);
    sheet.brush().Thumb(painter, thumb.rect());
  }
  sheet.SaveBmp(thumb, "slider_button.bmp");
  sheet.Box("player.panel", 0, panel);
  WriteIndicator(sheet, Whole(indicator));
}

void LayOutAlbumScreen(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  const Rect area = CoverArea(d);
  const float top = std::round(d.gap * 1.5F);

  // Tabs at the left, "Jump To Letter" and the page at the right. Between them is the share of
  // "Most Played", which leads nowhere and is placed by no file.
  Rect row{d.margin, top, d.width - 2 * d.margin, d.tab_height};
  struct Tab {
    int index;
    const char* caption;
  };
  static constexpr Tab kTabs[] = {
      {0, "Audio"}, {1, "Video"}, {2, "Karaoke"}, {4, "New Songs"}, {5, "SPIN on THIS"}};
  const float tab = d.width > 1400 ? 184 : 112;
  Rect tabs = row;
  for (const Tab& entry : kTabs) {
    sheet.Button("album.tab", entry.index, TakeLeft(tabs, tab, d.width > 1400 ? d.gap : 4),
                 entry.caption, Look::kTab);
    if (entry.index < 3) {
      sheet.ButtonStyle("tab", entry.index, entry.caption, Look::kTab, Type::kButton);
    }
  }
  Rect right = row;
  sheet.Text("album.pageCaption", 0, TakeRight(right, d.width > 1400 ? 250 : 132, d.gap),
             Type::kSmall, Ink::kStageMuted);
  sheet.Button("album.pageButton", 1, TakeRight(right, d.width > 1400 ? 216 : 132, d.gap),
               "Jump To Letter", Look::kPlain);

  sheet.Set("album.paging", 0, F::kHead, 0);
  const float side = area.left - d.margin - d.gap * 2;
  const Rect back{d.margin, area.top, side, area.height};
  const Rect forward{d.width - d.margin - side, area.top, side, area.height};
  sheet.Button("album.pageButton", 0, back, "", Look::kQuiet, Icon::kLeft);
  sheet.Button("album.pageButton", 2, forward, "", Look::kQuiet, Icon::kRight);
  // The scroll panels, should somebody choose them, have their buttons in the same places.
  sheet.Button("album.pageButton", 3, back, "", Look::kQuiet, Icon::kLeft);
  sheet.Button("album.pageButton", 4, forward, "", Look::kQuiet, Icon::kRight);

  // The letters do what the strip would do.
  sheet.Box("album.titleStrip", 0, {0, 0, 0, 0});
  const float letter_height = d.width > 1400 ? 64 : 48;
  Rect letters{d.margin, d.Screen().height - top - letter_height, d.width - 2 * d.margin,
               letter_height};
  const float gap = d.width > 1400 ? 4 : 1;
  const float start = d.width > 1400 ? 180 : 92;
  sheet.Button("album.letter", 26, TakeRight(letters, start, gap * 2), "Jump To Start",
               Look::kPlain);
  const auto cells = Grid(letters, 26, 1, gap);
  for (size_t i = 0; i < cells.size(); ++i) {
    sheet.Button("album.letter", static_cast<int>(i), cells[i],
                 std::string(1, static_cast<char>('A' + i)), Look::kQuiet);
  }

  for (const char* labels : {"album.albumLabels", "album.artistLabels"}) {
    const bool album = std::string(labels) == "album.albumLabels";
    sheet.Set(labels, 0, F::kAlignment, 2);
    sheet.SetColors(labels, 0, d.title_highlight, d.InkOf(album ? Ink::kStage : Ink::kStageMuted));
  }
  // Stretched over frames of all sizes, whose edge is in proportion.
  QImage frame(280, 280, QImage::Format_ARGB32_Premultiplied);
  frame.fill(Qt::transparent);
  {
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    sheet.brush().Frame(painter, frame.rect(), 280.0 / 60);
  }
  sheet.SavePng(frame, "cover_frame.png");
  sheet.Set("album.frames", 0, F::kPicture, "images\\cover_frame.png");
  picture.Save("albums", "screen", 8);
}

void LayOutLetterPanel(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  const float key = wide ? 96 : 64, gap = d.gap, margin = d.margin;
  const float width = 7 * key + 6 * gap + 2 * margin;
  // The heading has the first seventh of the height.
  const float keys_top = wide ? 88 : 60;
  const float height = keys_top + 5 * key + 4 * gap + margin;
  const Rect panel = Centered({0, d.menu_height, d.width, d.Screen().height}, width, height);
  sheet.Box("jump.panel", 0, panel);
  PanelPicture picture(sheet, panel);
  picture.Card();
  for (int i = 0; i < 26; ++i) {
    const Rect place{margin + static_cast<float>(i % 7) * (key + gap),
                     keys_top + static_cast<float>(i / 7) * (key + gap), key, key};
    sheet.Button("jump.letter", i, place, std::string(1, static_cast<char>('A' + i)), Look::kQuiet);
  }
  const float row3 = keys_top + 3 * (key + gap), row4 = row3 + key + gap;
  sheet.Button("jump.command", 0, {margin + 5 * (key + gap), row3, 2 * key + gap, key},
               "Jump To Start", Look::kPlain);
  sheet.Button("jump.command", 1, {margin, row4, width - 2 * margin, key}, "Done", Look::kPrimary);
  picture.Save("letters", "jump.panel", 0);
}

void LayOutGenreBar(Sheet& sheet) {
  const Design& d = sheet.design();
  const Rect bar{0, 0, d.width, d.menu_height};
  sheet.Box("genreBar.panel", 0, bar);
  PanelPicture picture(sheet, bar);
  sheet.brush().Bar(picture.painter(), ToQt(bar), true);
  sheet.SaveBmp(picture.image(), "genrebar.bmp");
  const float around = d.width > 1400 ? 12 : 8;
  const auto cells = Grid(
      {d.margin, around, d.width - 2 * d.margin, d.menu_height - 2 * around - 3}, 10, 1, d.gap);
  for (size_t i = 0; i < cells.size(); ++i) {
    const char* caption = i == 9 ? "Back" : "";
    const Icon icon = i == 0 ? Icon::kLeft : i == 8 ? Icon::kRight : Icon::kNone;
    sheet.Button("genreBar.button", static_cast<int>(i), cells[i], caption,
                 i == 9 ? Look::kBack : Look::kPlain, icon);
  }
}

}  // namespace

Rect CoverArea(const Design& d) {
  const bool wide = d.width > 1400;
  const float top = std::round(d.gap * 1.5F), page_button = wide ? 72 : 48;
  const float letters = wide ? 64 : 48;
  const float side = d.margin + page_button + d.gap * 2;
  const float above = top + d.tab_height + top;
  return {side, above, d.width - 2 * side, d.Screen().height - above - letters - 2 * top};
}

void LayOutFrame(Sheet& sheet) {
  const Design& d = sheet.design();
  sheet.Set("window", 0, F::kPicture, sheet.SaveJpeg(sheet.stage(), "window.jpg"));
  sheet.Set("window", 0, F::kScreenWidth, static_cast<int>(d.width));
  sheet.Set("window", 0, F::kScreenHeight, static_cast<int>(d.height));
  sheet.Set("trackList.rows", 0, F::kRowCount, 13);
  sheet.Box("screens", 0, d.Screen());
  sheet.Box("screen", 11, d.Screen());
  LayOutMenu(sheet);
  LayOutPlayer(sheet);
  LayOutAlbumScreen(sheet);
  LayOutLetterPanel(sheet);
  LayOutGenreBar(sheet);
}

Rect TakeSide(const Design& d, Rect& content) { return TakeRight(content, d.side, d.margin); }

Rect TakeCommand(const Design& d, Rect& side) { return TakeTop(side, d.button_height, d.gap); }

void PlaceBack(Sheet& sheet, const std::string& target, Rect& side) {
  const Design& d = sheet.design();
  sheet.Button(target, 0, TakeBottom(side, d.button_height, d.margin), "BACK", Look::kBack);
}

void PlaceUpAndDown(Sheet& sheet, const std::string& up, int up_index, const std::string& down,
                    int down_index, const Rect& place) {
  const auto halves = Grid(place, 2, 1, sheet.design().gap);
  sheet.Button(up, up_index, halves[0], "", Look::kPlain, Icon::kUp);
  sheet.Button(down, down_index, halves[1], "", Look::kPlain, Icon::kDown);
}

Rect Share(const Design& d, const Rect& on_form) {
  const Rect screen = d.Screen();
  const float across = screen.width / 1280, down = screen.height / 640;
  return Whole(
      {on_form.left * across, on_form.top * down, on_form.width * across, on_form.height * down});
}

}  // namespace sonotik::skins
