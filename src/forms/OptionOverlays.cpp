#include "forms/OptionOverlays.h"

namespace sonotik {
namespace {

using namespace design;

constexpr float kMargin = 14;
constexpr float kGap = 6;

// Cell `index` of a grid in this area.
Rect Cell(const Rect& area, size_t columns, size_t rows, size_t index, size_t span = 1) {
  const float across = (area.width + kGap) / static_cast<float>(columns);
  const float down = (area.height + kGap) / static_cast<float>(rows);
  return {area.left + across * static_cast<float>(index % columns),
          area.top + down * static_cast<float>(index / columns),
          across * static_cast<float>(span) - kGap, down - kGap};
}

// Over all of the panel that holds the pages.
Rect Whole(const Panel& panel) {
  return {0, 0, panel.parent()->place().width, panel.parent()->place().height};
}

}  // namespace

OptionPicker::OptionPicker(Panel& pages)
    : back(OptionKind::kCommand, "<<"),
      forward(OptionKind::kCommand, ">>"),
      choose(OptionKind::kCommand, "Choose"),
      none(OptionKind::kCommand, "None"),
      done(OptionKind::kCommand, "Cancel") {
  AddPanel(pages, panel, {}, kPanel);
  AddLabel(panel, heading, {}, 14, kText, Align::kLeft, true);
  for (OptionField& item : items) AddOption(panel, item, {});
  for (OptionField* command : {&back, &forward, &choose, &none, &done}) {
    AddOption(panel, *command, {});
  }
  panel.SetVisible(false);
}

void OptionPicker::LayOut() {
  panel.SetPlace(Whole(panel));
  const Rect inside = Whole(panel).Inset(kMargin);
  const float foot = inside.height * 0.13F;
  heading.SetPlace({inside.left, inside.top, inside.width, foot * 0.7F});
  const float top = inside.top + foot * 0.7F + kGap;
  const Rect grid{inside.left, top, inside.width, inside.bottom() - foot - kGap - top};
  for (size_t i = 0; i < items.size(); ++i) {
    items[i].SetPlace(Cell(grid, kPickerColumns, kPickerRows, i));
  }
  const Rect bottom{inside.left, inside.bottom() - foot, inside.width, foot};
  size_t at = 0;
  for (OptionField* button : {&back, &forward, &choose, &done}) {
    button->SetPlace(Cell(bottom, 4, 1, at++));
  }
  none.SetPlace(choose.place());
}

OptionKeyboard::OptionKeyboard(Panel& pages) {
  AddPanel(pages, panel, {}, kPanel);
  AddLabel(panel, heading, {}, 14, kText, Align::kLeft, true);
  AddLabel(panel, entry, {}, 16);
  entry.SetPlate(kNight);
  for (OptionField& key : keys) AddOption(panel, key, {});
  SetShift(false);
  static constexpr const char* kCaptions[] = {"Shift", "Space",  "Backspace",
                                              "Clear", "Cancel", "OK"};
  for (size_t i = 0; i < commands.size(); ++i) {
    AddOption(panel, commands[i], {});
    commands[i].SetCaption(kCaptions[i]);
  }
  panel.SetVisible(false);
}

void OptionKeyboard::LayOut() {
  panel.SetPlace(Whole(panel));
  const Rect inside = Whole(panel).Inset(kMargin);
  const float line = inside.height * 0.1F;
  heading.SetPlace({inside.left, inside.top, inside.width, line * 0.8F});
  entry.SetPlace({inside.left, inside.top + line * 0.8F, inside.width, line * 1.1F});
  const float top = inside.top + 2 * line + kGap;
  const Rect grid{inside.left, top, inside.width, inside.bottom() - top};
  for (size_t i = 0; i < keys.size(); ++i) keys[i].SetPlace(Cell(grid, kKeyboardColumns, 5, i));
  for (size_t i = 0; i < commands.size(); ++i) {
    commands[i].SetPlace(Cell(grid, kKeyboardColumns, 5, keys.size() + 2 * i, 2));
  }
}

void OptionKeyboard::SetShift(bool shift) {
  commands[0].SetChecked(shift);
  const char* characters = shift ? kKeyboardUpper : kKeyboardLower;
  for (size_t i = 0; i < keys.size(); ++i) {
    keys[i].SetCaption(std::string(1, characters[i]));
  }
}

OptionCalendar::OptionCalendar()
    : month_back(OptionKind::kCommand, "<<"), month_forward(OptionKind::kCommand, ">>") {
  panel.SetTransparent(true);
  AddOption(panel, month_back, {});
  AddOption(panel, month_forward, {});
  AddLabel(panel, month, {}, 12, kText, Align::kCenter, true);
  static constexpr const char* kWeekdays[kWeekDays] = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
  for (size_t i = 0; i < weekdays.size(); ++i) {
    AddLabel(panel, weekdays[i], {}, 11, kMuted, Align::kCenter);
    weekdays[i].SetCaption(kWeekdays[i]);
  }
  for (OptionField& day : days) AddOption(panel, day, {});
}

void OptionCalendar::LayOut() {
  const Rect whole{0, 0, panel.place().width, panel.place().height};
  // The months' buttons, half a line of weekdays, and six weeks.
  const float line = (whole.height + kGap) / 7.5F;
  month_back.SetPlace({0, 0, line, line - kGap});
  month_forward.SetPlace({whole.width - line, 0, line, line - kGap});
  month.SetPlace({line, 0, whole.width - 2 * line, line - kGap});
  const Rect heads{0, line, whole.width, line / 2};
  for (size_t i = 0; i < weekdays.size(); ++i) weekdays[i].SetPlace(Cell(heads, kWeekDays, 1, i));
  const Rect weeks{0, heads.bottom(), whole.width, whole.height - heads.bottom()};
  for (size_t i = 0; i < days.size(); ++i) days[i].SetPlace(Cell(weeks, kWeekDays, 6, i));
}

}  // namespace sonotik
