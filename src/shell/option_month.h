// The operator's calendar: pages through the months and hands over the day that is touched.
#ifndef SONOTIK_SHELL_OPTION_MONTH_H_
#define SONOTIK_SHELL_OPTION_MONTH_H_

#include <functional>

#include "forms/Form1.h"
#include "shell/boundary.h"
#include "text/dates.h"

namespace sonotik {

class OptionMonth {
 public:
  OptionMonth(Form1& form, Boundary& boundary, std::function<void(const Date& day)> select);
  OptionMonth(const OptionMonth&) = delete;
  OptionMonth& operator=(const OptionMonth&) = delete;

  // The month of the day, which is marked.
  void Show(const Date& day);

 private:
  void Step(int by);
  void Fill();

  OptionCalendar& calendar_;
  // The calendar calls the months what the skin calls them.
  const std::array<lvButtons_H, 12>& names_;
  Date selected_;
  Date first_;  // of the month that shows
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_OPTION_MONTH_H_
