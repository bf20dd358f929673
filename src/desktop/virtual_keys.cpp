#include "desktop/virtual_keys.h"

#include <X11/keysym.h>

namespace sonotik {
namespace {

struct Key {
  int code;
  uint32_t left;
  uint32_t right = 0;
};

// All that is neither a digit, a letter nor one of a row of keys.
constexpr Key kKeys[] = {
    {8, XK_BackSpace},
    {9, XK_Tab},
    {12, XK_Clear},
    {13, XK_Return},
    {16, XK_Shift_L, XK_Shift_R},
    {17, XK_Control_L, XK_Control_R},
    {18, XK_Alt_L, XK_Alt_R},
    {19, XK_Pause},
    {20, XK_Caps_Lock},
    {27, XK_Escape},
    {32, XK_space},
    {33, XK_Prior},
    {34, XK_Next},
    {35, XK_End},
    {36, XK_Home},
    {37, XK_Left},
    {38, XK_Up},
    {39, XK_Right},
    {40, XK_Down},
    {41, XK_Select},
    {43, XK_Execute},
    {44, XK_Print},
    {45, XK_Insert},
    {46, XK_Delete},
    {47, XK_Help},
    {91, XK_Super_L},
    {92, XK_Super_R},
    {93, XK_Menu},
    {106, XK_KP_Multiply},
    {107, XK_KP_Add},
    {108, XK_KP_Separator},
    {109, XK_KP_Subtract},
    {110, XK_KP_Decimal},
    {111, XK_KP_Divide},
};

// Rows of keys whose codes and symbols run side by side.
struct Row {
  int first;
  int last;
  uint32_t symbol;
};
constexpr Row kRows[] = {{48, 57, XK_0}, {65, 90, XK_a}, {96, 105, XK_KP_0}, {112, 130, XK_F1}};

}  // namespace

std::array<uint32_t, 2> KeySymbolsOf(int virtual_key) {
  for (const Row& row : kRows) {
    if (virtual_key >= row.first && virtual_key <= row.last) {
      return {row.symbol + static_cast<uint32_t>(virtual_key - row.first), 0};
    }
  }
  for (const Key& key : kKeys) {
    if (key.code == virtual_key) return {key.left, key.right};
  }
  return {0, 0};
}

int MouseButtonOf(int virtual_key) {
  if (virtual_key == 1) return 1;
  if (virtual_key == 4) return 2;
  return virtual_key == 2 ? 3 : 0;
}

}  // namespace sonotik
