#include "widgets/colors.h"

#include <array>

namespace sonotik {
namespace {

// The desktop's colours by their number, from the scroll bar to the tip's back.
constexpr std::array<Color, 25> kDesktop = {
    Rgb(212, 208, 200), Rgb(58, 110, 165),  Rgb(10, 36, 106),   Rgb(128, 128, 128),
    Rgb(212, 208, 200), Rgb(255, 255, 255), Rgb(0, 0, 0),       Rgb(0, 0, 0),
    Rgb(0, 0, 0),       Rgb(255, 255, 255), Rgb(212, 208, 200), Rgb(212, 208, 200),
    Rgb(128, 128, 128), Rgb(10, 36, 106),   Rgb(255, 255, 255), Rgb(212, 208, 200),
    Rgb(128, 128, 128), Rgb(128, 128, 128), Rgb(0, 0, 0),       Rgb(212, 208, 200),
    Rgb(255, 255, 255), Rgb(64, 64, 64),    Rgb(212, 208, 200), Rgb(0, 0, 0),
    Rgb(255, 255, 225)};
constexpr Color kDesktopMark = 0x80000000;

}  // namespace

Color ShownColor(Color color) {
  if (!(color & kDesktopMark)) return color & 0xFFFFFF;
  const Color number = color & 0xFF;
  return number < kDesktop.size() ? kDesktop[number] : kDesktop[15];
}

Color Mix(Color a, Color b, uint32_t share) {
  a = ShownColor(a);
  b = ShownColor(b);
  Color mixed = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    const uint32_t from = a >> shift & 255;
    const uint32_t to = b >> shift & 255;
    mixed |= (from * (256 - share) + to * share) / 256 << shift;
  }
  return mixed;
}

}  // namespace sonotik
