#include "access/key_names.h"

namespace sonotik {
namespace {

struct Named {
  int code;
  const char* name;
};
constexpr Named kNames[] = {{1, "Left mouse button"},
                            {2, "Right mouse button"},
                            {4, "Middle mouse button"},
                            {8, "Backspace"},
                            {9, "Tab"},
                            {12, "Clear"},
                            {13, "Enter"},
                            {16, "Shift"},
                            {17, "Ctrl"},
                            {18, "Alt"},
                            {19, "Pause"},
                            {20, "Caps Lock"},
                            {27, "Esc"},
                            {32, "Space"},
                            {33, "Page Up"},
                            {34, "Page Down"},
                            {35, "End"},
                            {36, "Home"},
                            {37, "Left"},
                            {38, "Up"},
                            {39, "Right"},
                            {40, "Down"},
                            {41, "Select"},
                            {43, "Execute"},
                            {44, "Print Screen"},
                            {45, "Insert"},
                            {46, "Delete"},
                            {47, "Help"},
                            {91, "Left Super"},
                            {92, "Right Super"},
                            {93, "Menu"},
                            {106, "Keypad *"},
                            {107, "Keypad +"},
                            {108, "Keypad Separator"},
                            {109, "Keypad -"},
                            {110, "Keypad ."},
                            {111, "Keypad /"}};

}  // namespace

std::string KeyName(int virtual_key) {
  const auto within = [virtual_key](int first, int last) {
    return virtual_key >= first && virtual_key <= last;
  };
  if (within('0', '9') || within('A', 'Z')) return {static_cast<char>(virtual_key)};
  if (within(96, 105)) return "Keypad " + std::to_string(virtual_key - 96);
  if (within(112, 130)) return "F" + std::to_string(virtual_key - 111);
  for (const Named& named : kNames) {
    if (named.code == virtual_key) return named.name;
  }
  return "";
}

}  // namespace sonotik
