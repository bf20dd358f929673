// sonotik.ini and sonotik.def as one table: every row with its label line, its values and their
// captions on the options pages. Reader, writer and pages all walk it.
//
// The file is positional: a line is what it is by the number of lines before it, label lines are
// never compared, and the constants of former settings hold the places of what stands behind them.
#ifndef SONOTIK_CONFIG_SETTINGS_TABLE_H_
#define SONOTIK_CONFIG_SETTINGS_TABLE_H_

#include <string>
#include <variant>
#include <vector>

#include "config/option_lists.h"
#include "config/settings.h"

namespace sonotik {

enum class SettingKind {
  kText,
  kNumberText,  // a box with a number as text, a 64-bit float in the file
  kInt16,
  kInt32,
  kIndex,      // 16 bits, in a list; -1 for none
  kCheck,      // 0 or 1
  kTruth,      // "True" or "False"
  kVersion,    // written from the program's own number, read and dropped
  kConstant,   // left over: written as it stands, skipped on reading
  kSkinNames,  // the count and that many lines
};

struct SettingValue {
  SettingKind kind = SettingKind::kText;
  std::variant<std::monostate, bool Settings::*, int Settings::*, std::string Settings::*> member;
  const char* caption = "";               // on the options page; for a constant its line
  ItemList OptionLists::*list = nullptr;  // what a kIndex points into
};

struct SettingRow {
  int number;
  const char* label;  // the label line; nullptr for a row without one
  std::vector<SettingValue> values;
};

// In the order of the file.
const std::vector<SettingRow>& SettingRows();

// Rows whose values take effect only when the whole file has been read, in the order in which they
// then do.
const std::vector<int>& HeldBackRows();

// Row numbers that other code has to name.
namespace setting_row {
inline constexpr int kCreditMode = 12;
inline constexpr int kAttractTexts = 13;
inline constexpr int kCurrentSkin = 14;
inline constexpr int kCoverLayout = 16;
inline constexpr int kMainVolume = 22;
inline constexpr int kHideMouse = 25;
inline constexpr int kFullScreen = 27;
inline constexpr int kMenuButtons = 30;
inline constexpr int kUseSecondMonitor = 34;
inline constexpr int kSecondMonitor = 35;
inline constexpr int kTabs = 43;
inline constexpr int kPlayButtons = 45;
inline constexpr int kAttractPath = 67;
inline constexpr int kJinglePath = 70;
inline constexpr int kStartupDatabase = 74;
inline constexpr int kAddAllToQueue = 79;
}  // namespace setting_row

}  // namespace sonotik

#endif  // SONOTIK_CONFIG_SETTINGS_TABLE_H_
