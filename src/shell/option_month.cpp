#include "shell/option_month.h"

#include "text/numbers.h"

namespace sonotik {

OptionMonth::OptionMonth(Form1& form, Boundary& boundary,
                         std::function<void(const Date& day)> select)
    : calendar_(form.options.calendar), names_(form.decades.month_buttons) {
  calendar_.month_back.on_click = [this] { Step(-1); };
  calendar_.month_forward.on_click = [this] { Step(1); };
  for (size_t i = 0; i < calendar_.days.size(); ++i) {
    calendar_.days[i].on_click = boundary.Guarded("day", [this, select, i] {
      select({first_.year, first_.month, std::stoi(calendar_.days[i].caption())});
    });
  }
}

void OptionMonth::Show(const Date& day) {
  selected_ = day;
  first_ = {day.year, day.month, 1};
  Fill();
}

void OptionMonth::Step(int by) {
  const long month = first_.year * 12L + first_.month - 1 + by;
  first_ = {static_cast<int>(month / 12), static_cast<int>(month % 12) + 1, 1};
  Fill();
}

void OptionMonth::Fill() {
  const Date next{first_.year + first_.month / 12, first_.month % 12 + 1, 1};
  const long days = DaysBetween(first_, next);
  const Date sunday{2023, 1, 1};
  const long from_sunday = DaysBetween(sunday, first_);
  const long blanks = from_sunday - FloorDiv(from_sunday, 7) * 7;
  calendar_.month.SetCaption(names_[static_cast<size_t>(first_.month - 1)].caption() + " " +
                             std::to_string(first_.year));
  for (size_t i = 0; i < calendar_.days.size(); ++i) {
    const long day = static_cast<long>(i) - blanks + 1;
    calendar_.days[i].SetVisible(day >= 1 && day <= days);
    calendar_.days[i].SetCaption(std::to_string(day));
    calendar_.days[i].SetChecked(selected_ ==
                                 Date{first_.year, first_.month, static_cast<int>(day)});
  }
}

}  // namespace sonotik
