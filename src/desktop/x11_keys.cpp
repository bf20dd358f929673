#include "desktop/x11_keys.h"

#include <X11/Xlib.h>

namespace sonotik {
namespace {

// Shorter than a poll, longer than the looks within one.
constexpr int64_t kFreshMs = 5;

}  // namespace

void X11Keys::Disconnect::operator()(_XDisplay* display) const { XCloseDisplay(display); }

X11Keys::X11Keys(const Clock& clock) : clock_(clock), display_(XOpenDisplay(nullptr)) {
  if (!display_) return;
  for (int code = 0; code < kVirtualKeys; ++code) {
    const auto symbols = KeySymbolsOf(code);
    for (size_t i = 0; i < symbols.size(); ++i) {
      if (symbols[i] == 0) continue;
      key_codes_[static_cast<size_t>(code)][i] = XKeysymToKeycode(display_.get(), symbols[i]);
    }
  }
}

X11Keys::~X11Keys() = default;

void X11Keys::Ask() {
  XQueryKeymap(display_.get(), keys_.data());
  Window root = 0;
  Window child = 0;
  int root_x = 0;
  int root_y = 0;
  int x = 0;
  int y = 0;
  XQueryPointer(display_.get(), DefaultRootWindow(display_.get()), &root, &child, &root_x, &root_y,
                &x, &y, &buttons_);
}

bool X11Keys::IsDown(int virtual_key) {
  if (!display_ || virtual_key < 0 || virtual_key >= kVirtualKeys) return false;
  const int64_t now = clock_.Milliseconds();
  if (asked_ < 0 || now - asked_ >= kFreshMs) {
    Ask();
    asked_ = now;
  }
  if (const int button = MouseButtonOf(virtual_key)) {
    return (buttons_ & (Button1Mask << (button - 1))) != 0;
  }
  for (const uint8_t code : key_codes_[static_cast<size_t>(virtual_key)]) {
    if (code != 0 && (keys_[code / 8] >> (code % 8) & 1) != 0) return true;
  }
  return false;
}

}  // namespace sonotik
