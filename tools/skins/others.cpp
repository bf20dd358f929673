// What plays, what to do with a track, and the operator's screens.
#include <algorithm>
#include <map>

#include "tools/skins/gif_writer.h"
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

using F = FieldKind;

// The frame behind the big cover is a GIF, and has few colours.
void WriteCoverFrame(Sheet& sheet, const Rect& place) {
  const int width = static_cast<int>(place.width / 2), height = static_cast<int>(place.height / 2);
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(sheet.design().dark);
  {
    QPainter painter(&image);
    sheet.brush().Frame(painter, image.rect(), 4);
  }
  std::vector<QColor> colors;
  std::map<QRgb, uint8_t> known;
  std::vector<uint8_t> pixels;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const QRgb rgb = image.pixel(x, y) & 0xFFF8F8F8;
      auto found = known.find(rgb);
      if (found == known.end()) {
        if (colors.size() == 255) {
          pixels.push_back(pixels.back());
          continue;
        }
        colors.emplace_back(rgb);
        found = known.emplace(rgb, static_cast<uint8_t>(colors.size())).first;
      }
      pixels.push_back(found->second);
    }
  }
  GifWriter gif(width, height, colors);
  gif.AddFrame(pixels, 10);
  gif.Save(sheet.PathOf("now playing.gif"));
}

void LayOutNowPlaying(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  PanelPicture picture(sheet, d.Screen());
  const Rect content = picture.content();
  // The rating's buttons keep their share of the screen, so the names stand in their column.
  const Rect column = Share(d, {836, 0, 428, 0});
  Rect left{content.left, content.top, column.left - content.left - d.margin * 1.5F,
            content.height};
  Rect bottom = TakeBottom(left, d.button_height, d.margin);
  sheet.Button("nowPlaying.fullScreen", 0, TakeLeft(bottom, wide ? 280 : 176, 0), "FULLSCREEN",
               Look::kPlain);
  const float tall = std::min(left.height, std::round(left.width * 9 / 16));
  const Rect video = Whole({left.left, left.top + (left.height - tall) / 2, left.width, tall});
  sheet.Box("nowPlaying.video", 0, video);
  // The cover stays behind a video, and must not look out beside it.
  const float edge = wide ? 8 : 6;
  const Rect frame = Centered(video, video.height, video.height);
  sheet.Box("nowPlaying.coverFrame", 0, frame);
  sheet.Box("nowPlaying.cover", 0, frame.Inset(edge));
  WriteCoverFrame(sheet, frame);

  Rect names{column.left, content.top, content.right() - column.left, content.height};
  sheet.Text("nowPlaying.track", 1, TakeTop(names, wide ? 76 : 52, 0), Type::kDisplay, Ink::kStage);
  sheet.Text("nowPlaying.track", 0, TakeTop(names, wide ? 52 : 36, d.gap), Type::kTitle,
             Ink::kStageAccent);
  sheet.Text("nowPlaying.track", 2, TakeTop(names, wide ? 44 : 30, 0), Type::kLarge,
             Ink::kStageMuted);
  Rect rating = Share(d, {836, 256, 220, 88});
  sheet.Box("nowPlaying.rating", 0, rating);

  // What comes next, at the foot of the column.
  Rect foot{column.left, content.bottom() - (wide ? 224.0F : 150.0F), content.right() - column.left,
            wide ? 224.0F : 150.0F};
  sheet.Text("nowPlaying.nextCaption", 0, TakeTop(foot, wide ? 40 : 28, d.gap), Type::kBody,
             Ink::kStageMuted);
  const Rect next = TakeLeft(foot, foot.height, d.gap * 2);
  sheet.Box("nowPlaying.nextCover", 0, Whole(next));
  const float half = std::round(foot.height * 0.3F);
  foot.top += std::round(foot.height * 0.18F);
  sheet.Text("nowPlaying.next", 1, TakeTop(foot, half, 0), Type::kLarge, Ink::kStage);
  sheet.Text("nowPlaying.next", 0, {foot.left, foot.top, foot.width, half}, Type::kBody,
             Ink::kStageAccent);
  picture.Save("playing", "screen", 7);
}

void LayOutPlayOptions(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  sheet.Box("screen", 13, d.Screen());
  PanelPicture picture(sheet, d.Screen());
  // One card in the middle: the cover at its left, the names and commands beside it.
  const float button = wide ? 96 : 60;
  const Rect card = Centered(picture.inside(), wide ? 1560 : 900, wide ? 720 : 468);
  picture.Group(card);
  Rect inside = card.Inset(wide ? 48 : 28);
  const float line = std::round(d.Points(Type::kLarge) * 2);
  const Rect below = TakeBottom(inside, line, d.gap * 2);
  const Rect cover = TakeLeft(inside, inside.height, wide ? 56 : 28);
  picture.Well(cover);
  sheet.Box("playOptions.cover", 0, cover);
  sheet.Text("playOptions.message", 3, {cover.left, below.top, cover.width, line}, Type::kBody,
             Ink::kStageMuted);

  sheet.Text("playOptions.message", 1, TakeTop(inside, wide ? 64 : 42, 0), Type::kDisplay,
             Ink::kStage);
  sheet.Text("playOptions.message", 0, TakeTop(inside, wide ? 44 : 30, 0), Type::kTitle,
             Ink::kStageAccent);
  sheet.Text("playOptions.message", 2, TakeTop(inside, wide ? 52 : 36, d.gap), Type::kLarge,
             Ink::kWarning);
  sheet.Button("playOptions.command", 4, TakeBottom(inside, d.button_height, d.margin), "Cancel",
               Look::kPlain);
  const Rect offers = inside;
  sheet.Button("playOptions.command", 0, TakeTop(inside, button, d.gap * 2), "Play Now",
               Look::kPrimary);
  const auto pair = Grid(TakeTop(inside, button, d.gap * 2), 2, 1, d.gap * 2);
  sheet.Button("playOptions.command", 1, pair[0], "Play Next", Look::kPlain);
  sheet.Button("playOptions.command", 2, pair[1], "Add To Queue", Look::kPlain);
  sheet.Button("playOptions.command", 3, TakeTop(inside, d.button_height, 0), "DOWNLOAD",
               Look::kPlain);
  // In the buttons' place while coins are wanted.
  const auto lines = Grid(offers, 1, 3, d.gap);
  for (int i = 0; i < 3; ++i) {
    sheet.Text("playOptions.price", i, lines[static_cast<size_t>(i)], Type::kTitle,
               Ink::kStageAccent);
  }
  picture.Save("play", "screen", 13);
}

void LayOutOptions(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeLeft(content, d.width > 1400 ? 320 : 208, d.margin);
  static constexpr const char* kSections[] = {
      "General Settings", "Appearence Settings", "Random Play Settings", "Button Settings",
      "Attract Mode",     "Key Shortcuts",       "Coin Settings",        "LED SIGN"};
  PlaceBack(sheet, "options.back", side);
  sheet.Button("options.command", 1, TakeBottom(side, d.tab_height, d.gap), "Power OFF",
               Look::kDanger);
  sheet.Button("options.command", 0, TakeBottom(side, d.tab_height, d.margin), "Save Settings",
               Look::kPlain);
  const auto cells = Grid(side, 1, 8, d.gap);
  for (int i = 0; i < 8; ++i) {
    sheet.ButtonKeepingCaption("options.section", i, cells[static_cast<size_t>(i)], kSections[i],
                               Look::kPlain);
  }
  const float line = std::round(d.Points(Type::kSmall) * 2);
  sheet.Text("options.version", 0, TakeBottom(content, line, d.gap), Type::kSmall,
             Ink::kStageMuted);
  const Rect pages = Whole(content);
  sheet.Box("options.pages", 0, pages);
  sheet.SetColors("options.pages", 0, d.panel, d.InkOf(Ink::kStage));
  for (int i = 0; i < 8; ++i) {
    sheet.Box("options.panel", i, {0, 0, pages.width, pages.height});
    sheet.SetColors("options.panel", i, d.panel, d.InkOf(Ink::kStage));
  }
  picture.Save("options", "screen", 4);
}

void LayOutPin(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  const float key = wide ? 120 : 84, gap = d.gap * 2, entry = wide ? 96 : 64;
  const float margin = d.margin * 1.5F;
  const float width = 3 * key * 1.2F + 2 * gap + 2 * margin;
  const float height = entry + 4 * (key + gap) + 2 * margin;
  const Rect panel = Centered({0, d.menu_height, d.width, d.Screen().height}, width, height);
  sheet.Box("pin.panel", 0, panel);
  PanelPicture picture(sheet, panel);
  picture.Card();
  Rect inside = picture.inside().Inset(margin);
  const Rect field = TakeTop(inside, entry, gap).Inset(3);
  picture.Entry(field);
  sheet.Text("pin.entry", 0, field, Type::kDisplay, Ink::kPlate);
  const auto cells = Grid(inside, 3, 4, gap);
  for (int i = 1; i < 10; ++i) {
    sheet.Button("pin.key", i, cells[static_cast<size_t>(i - 1)], std::to_string(i), Look::kQuiet);
  }
  sheet.Button("pin.key", 0,
               {cells[9].left, cells[9].top, cells[11].right() - cells[9].left, cells[9].height},
               "ENTER", Look::kPrimary);
  picture.Save("pin", "pin.panel", 0);
}

// No file places what stands here; it keeps its share, and gets a background that fits.
void LayOutCarousel(Sheet& sheet) {
  const Design& d = sheet.design();
  PanelPicture picture(sheet, d.Screen());
  for (int i = 0; i < 5; ++i) {
    picture.Group(Share(d, {22 + 206 * static_cast<float>(i), 6, 198, 628}));
  }
  picture.Save("carousel", "screen", 6);
}

}  // namespace

void LayOutOthers(Sheet& sheet) {
  LayOutNowPlaying(sheet);
  LayOutPlayOptions(sheet);
  LayOutOptions(sheet);
  LayOutPin(sheet);
  LayOutCarousel(sheet);
}

}  // namespace sonotik::skins
