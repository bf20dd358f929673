// Colours: how they are written, what they show as, how two are mixed.
#ifndef SONOTIK_WIDGETS_COLORS_H_
#define SONOTIK_WIDGETS_COLORS_H_

#include <cstdint>

namespace sonotik {

// A colour as the skins write it: 0x00BBGGRR. With the top bit set it is the number of one of the
// desktop's own colours, and stays that number until it is drawn.
using Color = uint32_t;
constexpr Color Rgb(uint32_t red, uint32_t green, uint32_t blue) {
  return red | green << 8 | blue << 16;
}

inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);
inline constexpr Color kButtonFace = 0x8000000F;
inline constexpr Color kButtonText = 0x80000012;

// The red, green and blue behind a colour: the desktop's own become those of its plain theme.
Color ShownColor(Color color);

// Of two colours, as shown: a `share` of 0 is all of a, 256 all of b.
Color Mix(Color a, Color b, uint32_t share);

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_COLORS_H_
