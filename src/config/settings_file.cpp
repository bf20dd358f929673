#include "config/settings_file.h"

#include <algorithm>

#include "config/settings_table.h"
#include "config/version.h"
#include "files/files.h"
#include "files/line_format.h"
#include "files/runtime_failure.h"
#include "text/numbers.h"
#include "text/text.h"

namespace sonotik {
namespace {

bool HeldBack(int row) {
  const auto& rows = HeldBackRows();
  return std::find(rows.begin(), rows.end(), row) != rows.end();
}

int ReadIndex(FieldReader& reader, const ItemList& list) {
  const int index = reader.Int16();
  if (index < -1 || index >= static_cast<int>(list.size())) {
    throw RuntimeFailure("there is no item " + std::to_string(index) + " in a list of " +
                         std::to_string(list.size()));
  }
  return index;
}

template <typename T>
bool Assign(T& member, T value) {
  if (member == value) return false;
  member = std::move(value);
  return true;
}

}  // namespace

void SettingsFile::LoadConfig() {
  const std::string ini = app_path_ + "\\sonotik.ini";
  const std::string def = app_path_ + "\\sonotik.def";
  try {
    if (FileExists(ini)) {
      Read(ini, false);
    } else {
      Read(def, true);
    }
  } catch (const RuntimeFailure&) {
    // Any error at all: the version numbers in the file are never compared.
    messages_.Show("INI File was not the correct version, loading the defaults...");
    Read(def, true);
  }
}

void SettingsFile::Read(const std::string& file, bool defaults) {
  FieldReader reader(ReadWholeFile(file));
  Settings held = settings_;
  for (const SettingRow& row : SettingRows()) {
    // The one allowance for an older file.
    if (row.number == setting_row::kAddAllToQueue && reader.AtEnd()) break;
    if (row.label != nullptr) reader.Skip();
    const bool later = HeldBack(row.number);
    ReadRow(reader, row, later ? held : settings_, defaults, !later);
  }
  ApplyHeldBack(held);
}

void SettingsFile::ReadRow(FieldReader& reader, const SettingRow& row, Settings& into,
                           bool defaults, bool tell) {
  for (const SettingValue& value : row.values) {
    bool changed = false;
    const auto* check = std::get_if<bool Settings::*>(&value.member);
    const auto* number = std::get_if<int Settings::*>(&value.member);
    const auto* text = std::get_if<std::string Settings::*>(&value.member);
    switch (value.kind) {
      case SettingKind::kText: {
        std::string read = reader.Text();
        // The delivered file can't know where the jukebox stands.
        if (row.number == setting_row::kAttractPath && defaults) read = app_path_;
        if (row.number == setting_row::kJinglePath && defaults && read.empty()) {
          read = app_path_ + "\\jingles";
        }
        changed = Assign(into.**text, std::move(read));
        break;
      }
      case SettingKind::kNumberText:
        changed = Assign(into.**text, std::string(TrimBlanks(NumberField(reader.Float()))));
        break;
      case SettingKind::kInt16:
        changed = Assign(into.**number, static_cast<int>(reader.Int16()));
        break;
      case SettingKind::kInt32:
        changed = Assign(into.**number, static_cast<int>(reader.Int32()));
        break;
      case SettingKind::kIndex:
        // A monitor that is off now may be there again at the next start: its number is kept.
        changed = Assign(into.**number, value.list == &OptionLists::monitors
                                            ? static_cast<int>(reader.Int16())
                                            : ReadIndex(reader, lists_.*value.list));
        break;
      case SettingKind::kCheck:
        changed = Assign(into.**check, reader.Check());
        break;
      case SettingKind::kTruth:
        changed = Assign(into.**check, reader.Truth());
        break;
      case SettingKind::kVersion:
      case SettingKind::kConstant:
        reader.Skip();
        continue;
      case SettingKind::kSkinNames:
        // Names are added to both lists and nothing clears these first: reading again doubles them,
        // and that is meant.
        for (int left = reader.Int16(); left > 0; --left) {
          lists_.skins.push_back(reader.Text());
          lists_.calendar_skins.push_back(lists_.skins.back());
        }
        break;
    }
    if (tell) Tell(row.number, changed);
  }
}

void SettingsFile::ApplyHeldBack(const Settings& held) {
  for (const int number : HeldBackRows()) {
    const auto& rows = SettingRows();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [number](const SettingRow& r) { return r.number == number; });
    for (const SettingValue& value : row->values) {
      const bool changed = std::visit(
          [&](auto member) {
            if constexpr (std::is_same_v<decltype(member), std::monostate>) {
              return false;
            } else {
              return Assign(settings_.*member, held.*member);
            }
          },
          value.member);
      Tell(number, changed);
    }
  }
}

void SettingsFile::Tell(int row, bool changed) const {
  if (on_applied) on_applied(row, changed);
}

void SettingsFile::SaveConfig() const {
  LineWriter writer;
  size_t version = 0;
  for (const SettingRow& row : SettingRows()) {
    if (row.label != nullptr) writer.Text(row.label);
    for (const SettingValue& value : row.values) {
      const auto* check = std::get_if<bool Settings::*>(&value.member);
      const auto* number = std::get_if<int Settings::*>(&value.member);
      const auto* text = std::get_if<std::string Settings::*>(&value.member);
      switch (value.kind) {
        case SettingKind::kText:
          writer.Text(settings_.**text);
          break;
        case SettingKind::kNumberText:
          writer.Number(NumberOrZero(settings_.**text));
          break;
        case SettingKind::kInt16:
        case SettingKind::kInt32:
        case SettingKind::kIndex:
          writer.Number(static_cast<long>(settings_.**number));
          break;
        case SettingKind::kCheck:
          writer.Check(settings_.**check);
          break;
        case SettingKind::kTruth:
          writer.Truth(settings_.**check);
          break;
        case SettingKind::kVersion:
          writer.Number(static_cast<long>(kVersion[version++]));
          break;
        case SettingKind::kConstant:
          writer.Text(value.caption);
          break;
        case SettingKind::kSkinNames:
          writer.Number(static_cast<long>(lists_.skins.size()));
          for (const std::string& skin : lists_.skins) writer.Text(skin);
          break;
      }
    }
  }
  ReplaceFile(app_path_ + "\\sonotik.ini", writer.text(), FileAccess::kOwnerOnly);
}

}  // namespace sonotik
