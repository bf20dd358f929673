// The chart of a month, and the pickers for month and year.
#include "tools/skins/screens.h"

namespace sonotik::skins {
namespace {

using F = FieldKind;

// The rows' own buttons keep their share of the screen, so the rows go by it.
void LayOutRows(Sheet& sheet, PanelPicture& picture) {
  const Design& d = sheet.design();
  for (int i = 0; i < 10; ++i) {
    const Rect form{24 + 480 * static_cast<float>(i / 5), 66 + 114 * static_cast<float>(i % 5), 0,
                    0};
    const Rect plate = Share(d, {form.left - 6, form.top - 2, 472, 111});
    picture.Plate(plate);
    const Rect text = Share(d, {form.left + 108, form.top, 350, 28});
    const Rect below = Share(d, {form.left + 108, form.top + 28, 350, 25});
    const Rect room = Share(d, {form.left, form.top, 104, 107});
    const float side = std::min(room.width, room.height) - 4;
    sheet.Box("decades.cover", i,
              Whole({room.left, room.top + (room.height - side) / 2, side, side}));
    sheet.Text("decades.track", i, text, Type::kLarge, Ink::kPlate);
    sheet.Text("decades.artist", i, below, Type::kBody, Ink::kPlateAccent);
  }
}

void LayOutMonths(Sheet& sheet) {
  const Design& d = sheet.design();
  const Rect panel = Share(d, {0, 60, 1280, 580});
  PanelPicture picture(sheet, {0, d.menu_height + panel.top, panel.width, panel.height});
  picture.Card();
  Rect content = picture.content();
  Rect bottom = TakeBottom(content, d.button_height, d.margin);
  sheet.Button("decades.monthBack", 0, TakeRight(bottom, d.side, 0), "BACK", Look::kBack);
  // Two of these names are misspelled since ever, and stay so.
  static constexpr const char* kMonths[] = {"January",   "Feburary", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "Octorber", "November", "December"};
  const auto cells = Grid(content, 4, 3, d.gap * 2);
  for (int i = 0; i < 12; ++i) {
    sheet.Button("decades.month", i, cells[static_cast<size_t>(i)], kMonths[i], Look::kQuiet);
  }
  picture.Save("months", "decades.monthPicker", 0);
}

void LayOutYears(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  const Rect panel = Share(d, {0, 60, 1280, 580});
  sheet.Set("decades.yearPicker", 0, F::kHeight, static_cast<int>(panel.height));
  sheet.Set("decades.yearPicker", 0, F::kWidth, static_cast<int>(panel.width));
  PanelPicture picture(sheet, {0, d.menu_height + panel.top, panel.width, panel.height});
  picture.Card();
  Rect content = picture.content();
  Rect bottom = TakeBottom(content, d.button_height, d.margin);
  sheet.Button("decades.yearBack", 0, TakeRight(bottom, d.side, 0), "BACK", Look::kBack);
  const Rect heads = TakeLeft(content, wide ? 120 : 72, d.gap);
  // A row a decade, the first beginning with its third year.
  const auto cells = Grid(content, 10, 6, d.gap);
  for (int i = 0; i < 6; ++i) {
    const Rect& first = cells[static_cast<size_t>(i * 10)];
    sheet.Text("decades.decade", i, {heads.left, first.top, heads.width, first.height},
               Type::kLarge, Ink::kStageAccent);
  }
  for (int i = 0; i < 57; ++i) {
    sheet.Button("decades.year", i, cells[static_cast<size_t>(i + 3)], std::to_string(1953 + i),
                 Look::kQuiet);
  }
  picture.Save("years", "decades.yearPicker", 0);
}

}  // namespace

void LayOutDecades(Sheet& sheet) {
  const Design& d = sheet.design();
  const bool wide = d.width > 1400;
  PanelPicture picture(sheet, d.Screen());
  Rect content = picture.content();
  Rect side = TakeSide(d, content);
  PlaceBack(sheet, "decades.back", side);
  LayOutRows(sheet, picture);

  // Month and year, each between its two steps; above the pickers, which begin below them.
  const float high = wide ? 64 : 48;
  const float top = std::round((Share(d, {0, 0, 0, 60}).height - high) / 2);
  const auto step = [&](int index, float left, Icon icon) {
    sheet.Button("decades.step", index, {left, top, high * 1.25F, high}, "", Look::kPlain, icon);
  };
  const auto pair = [&](int index, float left, float width) {
    step(index, left, Icon::kLeft);
    step(index + 1, left + width - high * 1.25F, Icon::kRight);
    sheet.Text("decades.heading", index / 2,
               Whole({left + high * 1.25F, top, width - 2.5F * high, high}), Type::kTitle,
               index == 0 ? Ink::kStage : Ink::kStageAccent);
  };
  const Rect left_rows = Share(d, {18, 0, 472, 0}), right_rows = Share(d, {498, 0, 472, 0});
  pair(0, left_rows.left, left_rows.width);
  pair(2, right_rows.left, right_rows.width);
  const Rect beside = Share(d, {984, 65, 280, 280});
  const Rect place{side.left, beside.top, side.width, side.width};
  sheet.Box("decades.picture", 0, place);
  picture.Save("decades", "screen", 5);
  LayOutMonths(sheet);
  LayOutYears(sheet);
}

}  // namespace sonotik::skins
