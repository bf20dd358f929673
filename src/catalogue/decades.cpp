#include "catalogue/decades.h"

namespace sonotik {
namespace {

// The headings; the pickers have spellings of their own.
constexpr const char* kMonthNames[] = {"JANUARY",   "FEBRUARY", "MARCH",    "APRIL",
                                       "MAY",       "JUNE",     "JULY",     "AUGUST",
                                       "SEPTEMBER", "OCTOBER",  "NOVEMBER", "DECEMBER"};

}  // namespace

Decades::Decades(const std::string& app_path, const Clock& clock, Charts& charts,
                 DecadesScreen& screen)
    : app_path_(app_path), clock_(clock), charts_(charts), screen_(screen) {}

void Decades::SetToday() {
  const Date today = clock_.Now().date;
  month_ = today.month;
  year_ = today.year;
  ShowHeadings();
}

void Decades::ShowHeadings() {
  screen_.month_caption.SetCaption(kMonthNames[month_ - 1]);
  screen_.year_caption.SetCaption(std::to_string(year_));
}

void Decades::LoadChartFor(int month, int year) {
  charts_.load_history_chart2(ChartPath(app_path_, month, year));
}

void Decades::ChooseMonth(int month) {
  month_ = month;
  ShowHeadings();
  screen_.month_picker.SetVisible(false);
  LoadChartFor(month_, year_);
}

void Decades::ChooseYear(int year) {
  year_ = year;
  ShowHeadings();
  screen_.year_picker.SetVisible(false);
  LoadChartFor(month_, year_);
}

void Decades::Step(DecadesStep step) {
  switch (step) {
    // Past the end of a year it goes on in the same one; that is meant.
    case DecadesStep::kMonthBack:
      month_ = month_ == 1 ? 12 : month_ - 1;
      break;
    case DecadesStep::kMonthOn:
      month_ = month_ == 12 ? 1 : month_ + 1;
      break;
    case DecadesStep::kYearBack:
      if (year_ != kFirstChartYear) --year_;
      break;
    case DecadesStep::kYearOn:
      if (year_ < clock_.Now().date.year) ++year_;
      break;
  }
  ShowHeadings();
  LoadChartFor(month_, year_);
}

}  // namespace sonotik
