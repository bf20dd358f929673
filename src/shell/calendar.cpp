#include "shell/calendar.h"

#include <algorithm>

#include "files/files.h"
#include "files/line_format.h"

namespace sonotik {
namespace {

// The folder bears exactly this name.
constexpr char kFolder[] = "\\CALENDER";

struct Line {
  const char* label;
  std::string DaySettings::*value;
};
constexpr Line kLines[] = {{"Attract Mode Path", &DaySettings::attract_path},
                           {"Holiday Skin", &DaySettings::skin},
                           {"LED Sign Path", &DaySettings::sign_path},
                           {"Jingles Path", &DaySettings::jingles_path},
                           {"Database Path", &DaySettings::database_path}};

}  // namespace

std::string Calendar::PathOf(Date day) const {
  std::string name = DateText(day);
  std::replace(name.begin(), name.end(), '/', '-');
  return app_path_ + kFolder + "\\" + name + ".DAT";
}

void Calendar::Apply(Date day) {
  const std::string path = PathOf(day);
  if (!FileExists(path)) return;
  FieldReader reader(ReadWholeFile(path));
  for (const Line& line : kLines) {
    reader.Skip();
    page_.*line.value = reader.Text();
    // An empty attract line takes the pictures away, an empty skin line keeps the skin; both are
    // meant.
    if (line.value == &DaySettings::attract_path) settings_.attract_path = page_.attract_path;
    if (line.value == &DaySettings::skin && !page_.skin.empty()) swap_skin(page_.skin);
  }
  show_page(page_);
}

bool Calendar::Load(Date day, DaySettings& page) const {
  const std::string path = PathOf(day);
  if (!FileExists(path)) return false;
  FieldReader reader(ReadWholeFile(path));
  DaySettings whole;
  for (const Line& line : kLines) {
    reader.Skip();
    whole.*line.value = reader.Text();
  }
  page = whole;
  return true;
}

void Calendar::Save(Date day, const DaySettings& page) const {
  MakeFolder(app_path_ + kFolder);
  LineWriter writer;
  for (const Line& line : kLines) {
    writer.Text(line.label);
    writer.Text(page.*line.value);
  }
  ReplaceFile(PathOf(day), writer.text());
}

}  // namespace sonotik
