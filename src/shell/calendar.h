// Single days with settings of their own: a holiday's skin, other attract pictures.
#ifndef SONOTIK_SHELL_CALENDAR_H_
#define SONOTIK_SHELL_CALENDAR_H_

#include <functional>
#include <string>

#include "config/settings.h"
#include "text/dates.h"

namespace sonotik {

// What a day's file holds. Only the first two take effect; the others are kept for their page.
struct DaySettings {
  std::string attract_path;
  std::string skin;
  std::string sign_path;
  std::string jingles_path;
  std::string database_path;
};

class Calendar {
 public:
  Calendar(const std::string& app_path, Settings& settings)
      : app_path_(app_path), settings_(settings) {}

  // Puts on the day's skin.
  std::function<void(const std::string& name)> swap_skin = [](const std::string&) {};
  // Fills the boxes of the operator's page.
  std::function<void(const DaySettings& page)> show_page = [](const DaySettings&) {};

  // The first tick of a day: what its file says holds until the program ends, or until a day that
  // says otherwise. Nothing is stored. Throws RuntimeFailure for a file cut short, with what stands
  // before the cut in force.
  void Apply(Date day);

  // The page of a day: false without a file. And its file.
  bool Load(Date day, DaySettings& page) const;
  void Save(Date day, const DaySettings& page) const;

  // The boxes of the page.
  const DaySettings& page() const { return page_; }

 private:
  std::string PathOf(Date day) const;

  const std::string& app_path_;
  Settings& settings_;
  DaySettings page_;
};

}  // namespace sonotik

#endif  // SONOTIK_SHELL_CALENDAR_H_
