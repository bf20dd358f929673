// The state of all keys, whichever window has the focus.
#ifndef SONOTIK_DESKTOP_X11_KEYS_H_
#define SONOTIK_DESKTOP_X11_KEYS_H_

#include <array>
#include <cstdint>
#include <memory>

#include "desktop/virtual_keys.h"
#include "platform/clock.h"
#include "platform/key_state.h"

struct _XDisplay;

namespace sonotik {

// Asks the X server on a connection of its own, for all keys at once and at most once a poll; while
// no key is mapped nobody asks. Without an X server no key is ever down.
class X11Keys : public KeyState {
 public:
  explicit X11Keys(const Clock& clock);
  ~X11Keys() override;

  bool IsDown(int virtual_key) override;

 private:
  struct Disconnect {
    void operator()(_XDisplay* display) const;
  };
  void Ask();

  const Clock& clock_;
  std::unique_ptr<_XDisplay, Disconnect> display_;
  // The server's key codes of each code's two symbols, 0 for none.
  std::array<std::array<uint8_t, 2>, kVirtualKeys> key_codes_{};
  std::array<char, 32> keys_{};  // a bit a key code
  unsigned buttons_ = 0;
  int64_t asked_ = -1;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_X11_KEYS_H_
