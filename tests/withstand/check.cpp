// What must be true of a jukebox's folder whenever its power may have gone: check FOLDER. Names
// each file that is neither the old one nor the new one; exit status 0 if there is none.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>

#include "catalogue/records.h"
#include "config/settings_file.h"
#include "files/files.h"
#include "files/line_format.h"
#include "files/paths.h"
#include "files/record_file.h"
#include "files/runtime_failure.h"
#include "text/numbers.h"

namespace sonotik {
namespace {

// Files with so many lines, whole or not there.
constexpr struct {
  const char* name;
  long lines;
} kLineFiles[] = {{"cost.dat", 9},
                  {"keyboard.dat", 35},
                  {"permissions.ini", 10},
                  {"betabrite.ini", 5},
                  {"terminal.ini", 4}};

class Quiet : public MessageBox {
 public:
  void Show(const std::string& text) override { shown = text; }
  std::string shown;
};

class Check {
 public:
  explicit Check(std::string folder) : folder_(std::move(folder)) {}

  int Run() {
    Settings settings;
    OptionLists lists;
    lists.FillFixed(1);
    Quiet messages;
    SettingsFile(folder_, settings, lists, messages).LoadConfig();
    if (!messages.shown.empty()) Fault("sonotik.ini", messages.shown);
    for (const auto& file : kLineFiles) {
      Lines(file.name, [&](const std::string&) { return file.lines; });
    }
    // Path and cover of each entry, with so many lines of names behind each, and an empty pair.
    for (const auto& [name, names] : {std::pair{"queue.dat", 0}, {"queue.upl", 3}}) {
      Lines(name, [names = names](const std::string& text) {
        return 3 + static_cast<long>(NumberOrZero(text.substr(0, text.find('\r')))) * (2 + names);
      });
    }
    for (const char* name : {"User_history.dat", "Random_history.dat"}) History(name);
    return faults_;
  }

 private:
  std::string Path(const std::string& name) const { return folder_ + "\\" + name; }
  void Fault(const std::string& name, const std::string& what) {
    std::cout << name << ": " << what << "\n";
    ++faults_;
  }

  template <typename Expected>
  void Lines(const char* name, Expected expected) {
    if (!FileExists(Path(name))) return;
    const std::string text = ReadWholeFile(Path(name));
    const long found = std::count(text.begin(), text.end(), '\n'), due = expected(text);
    if (found != due || !text.ends_with("\r\n")) {
      Fault(name, std::to_string(found) + " lines of " + std::to_string(due));
    }
  }

  void History(const char* name) {
    if (!FileExists(Path(name))) return;
    RecordFile file(Path(name), HistoryRecord::kSize);
    for (int64_t n = 1; n <= file.whole_records(); ++n) {
      const std::string_view path = TrimBlanks(FieldOf(file.View(n), HistoryRecord::kPath));
      if (!FileExists(path)) Fault(name, "record " + std::to_string(n) + " is torn");
    }
  }

  std::string folder_;
  int faults_ = 0;
};

}  // namespace
}  // namespace sonotik

int main(int argc, char** argv) {
  using namespace sonotik;
  if (argc != 2) {
    std::cerr << "usage: check FOLDER" << std::endl;
    return 2;
  }
  try {
    return Check(ProgramPath(std::filesystem::absolute(argv[1]))).Run() == 0 ? 0 : 1;
  } catch (const RuntimeFailure& failure) {
    std::cout << failure.what() << "\n";
    return 1;
  }
}
