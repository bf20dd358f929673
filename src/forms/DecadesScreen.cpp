#include "forms/DecadesScreen.h"

namespace sonotik {
namespace {

using namespace design;

void AddRow(Panel& panel, ChartRow& row, float left, float top) {
  AddPicture(panel, row.cover, {left, top, 96, 96});
  AddLabel(panel, row.artist, {left + 108, top, 350, 26}, 12, kAmber);
  AddLabel(panel, row.track, {left + 108, top + 26, 350, 26}, 13, kText, Align::kLeft, true);
  // As low as a finger can do with on the smallest screen.
  AddButton(panel, row.play_now, {left + 108, top + 55, 150, 52}, "Play NOW");
  AddButton(panel, row.add_queue, {left + 268, top + 55, 150, 52}, "Add Queue");
  row.play_now.SetVisible(false);
  row.add_queue.SetVisible(false);
}

void AddMonths(DecadesScreen& screen) {
  // Two of these names are misspelled since ever, and stay so.
  static constexpr const char* kMonths[] = {"January",   "Feburary", "March",    "April",
                                            "May",       "June",     "July",     "August",
                                            "September", "Octorber", "November", "December"};
  for (size_t i = 0; i < screen.month_buttons.size(); ++i) {
    const float left = 56 + 296 * static_cast<float>(i % 4);
    const float top = 40 + 136 * static_cast<float>(i / 4);
    AddButton(screen.month_picker, screen.month_buttons[i], {left, top, 280, 120}, kMonths[i], 18);
  }
  AddMainButton(screen.month_picker, screen.month_back, {kSideLeft, 490, kSideWidth, 62}, "BACK");
}

void AddYears(DecadesScreen& screen) {
  constexpr float kRow = 80;
  for (size_t i = 0; i < screen.decade_heads.size(); ++i) {
    Label& head = screen.decade_heads[i];
    AddLabel(screen.year_picker, head, {16, 8 + kRow * static_cast<float>(i), 100, kRow - 8}, 13,
             kAmber);
    head.SetCaption(std::to_string(1950 + 10 * i) + "s");
  }
  for (size_t i = 0; i < screen.year_buttons.size(); ++i) {
    // A row a decade.
    const size_t place = i + kFirstChartYear - 1950;
    const float left = 124 + 114 * static_cast<float>(place % 10);
    const float top = 8 + kRow * static_cast<float>(place / 10);
    AddButton(screen.year_picker, screen.year_buttons[i], {left, top, 106, kRow - 8}, "", 14);
  }
  AddMainButton(screen.year_picker, screen.year_back, {kSideLeft, 502, kSideWidth, 62}, "BACK");
}

}  // namespace

DecadesScreen::DecadesScreen(Panel& screen) : panel(screen) {
  static constexpr const char* kSteps[] = {"<", ">", "<", ">"};
  static constexpr float kStepPlaces[] = {24, 362, 450, 736};
  for (size_t i = 0; i < steps.size(); ++i) {
    AddButton(panel, steps[i], {kStepPlaces[i], 8, 64, 50}, kSteps[i], 16);
  }
  AddLabel(panel, month_caption, {96, 8, 258, 50}, 18, kText, Align::kCenter, true);
  AddLabel(panel, year_caption, {522, 8, 206, 50}, 18, kAmber, Align::kCenter, true);
  for (size_t i = 0; i < rows.size(); ++i) {
    AddRow(panel, rows[i], 24 + 480 * static_cast<float>(i / 5),
           66 + 114 * static_cast<float>(i % 5));
  }
  panel.Add(chart_picture, {kSideLeft, 70, kSideWidth, 256});
  AddMainButton(panel, back, kBackPlace, "BACK");

  AddPanel(panel, month_picker, {0, 60, kWidth, 580}, kPanel);
  AddPanel(panel, year_picker, {0, 60, kWidth, 580}, kPanel);
  AddMonths(*this);
  AddYears(*this);
  month_picker.SetVisible(false);
  year_picker.SetVisible(false);
}

}  // namespace sonotik
