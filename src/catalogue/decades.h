// The browser of the monthly charts: a month and a year choose one.
#ifndef SONOTIK_CATALOGUE_DECADES_H_
#define SONOTIK_CATALOGUE_DECADES_H_

#include <string>

#include "catalogue/charts.h"
#include "platform/clock.h"

namespace sonotik {

// By the stepping buttons.
enum class DecadesStep { kMonthBack, kMonthOn, kYearBack, kYearOn };

class Decades {
 public:
  Decades(const std::string& app_path, const Clock& clock, Charts& charts, DecadesScreen& screen);

  // Today's month and year in the headings; the start of the program loads their chart.
  void SetToday();
  std::string chart_path() const { return ChartPath(app_path_, month_, year_); }

  void ChooseMonth(int month);
  void ChooseYear(int year);
  // A month beyond the year's end or start is the other end of the same year; that is meant.
  void Step(DecadesStep step);

  int month() const { return month_; }  // 1 to 12
  int year() const { return year_; }    // from kFirstChartYear

 private:
  void ShowHeadings();
  void LoadChartFor(int month, int year);

  const std::string& app_path_;
  const Clock& clock_;
  Charts& charts_;
  DecadesScreen& screen_;
  int month_ = 1;
  int year_ = kFirstChartYear;
};

}  // namespace sonotik

#endif  // SONOTIK_CATALOGUE_DECADES_H_
