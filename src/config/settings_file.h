// Reading and writing sonotik.ini, with sonotik.def for the defaults.
#ifndef SONOTIK_CONFIG_SETTINGS_FILE_H_
#define SONOTIK_CONFIG_SETTINGS_FILE_H_

#include <functional>
#include <string>

#include "config/option_lists.h"
#include "config/settings.h"
#include "platform/message_box.h"

namespace sonotik {

class FieldReader;

class SettingsFile {
 public:
  SettingsFile(const std::string& app_path, Settings& settings, OptionLists& lists,
               MessageBox& messages)
      : app_path_(app_path), settings_(settings), lists_(lists), messages_(messages) {}

  // Told after each value that has taken its place in the record, with its row's number and whether
  // it differs from the value before. Rows take their places in the order of the file, the held
  // ones behind it. What this throws counts as an error of the file.
  std::function<void(int row, bool changed)> on_applied;

  // Reads sonotik.ini, or sonotik.def where there is none. Any error shows the one message and
  // reads sonotik.def from its first row; an error there leaves as RuntimeFailure. Values applied
  // from a bad file stay until they are overwritten.
  void LoadConfig();

  // Writes sonotik.ini from the record. Nothing is validated.
  void SaveConfig() const;

 private:
  void Read(const std::string& file, bool defaults);
  void ReadRow(FieldReader& reader, const struct SettingRow& row, Settings& into, bool defaults,
               bool tell);
  void ApplyHeldBack(const Settings& held);
  void Tell(int row, bool changed) const;

  const std::string& app_path_;
  Settings& settings_;
  OptionLists& lists_;
  MessageBox& messages_;
};

}  // namespace sonotik

#endif  // SONOTIK_CONFIG_SETTINGS_FILE_H_
