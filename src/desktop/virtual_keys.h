// The key codes of the key map as this machine's key symbols.
#ifndef SONOTIK_DESKTOP_VIRTUAL_KEYS_H_
#define SONOTIK_DESKTOP_VIRTUAL_KEYS_H_

#include <array>
#include <cstdint>

namespace sonotik {

inline constexpr int kVirtualKeys = 131;  // codes 0 to 130

// X11 key symbols (keysymdef.h) of a Windows virtual-key code: Shift, Control and Alt have a left
// and a right one, most have one and 0, a code without a key has none. The mouse buttons 1, 2 and 4
// are no keys.
std::array<uint32_t, 2> KeySymbolsOf(int virtual_key);

// The X11 mouse button of a code, 1 to 3; 0 for a key.
int MouseButtonOf(int virtual_key);

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_VIRTUAL_KEYS_H_
