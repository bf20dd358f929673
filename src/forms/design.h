// The plain look: colours, sizes and the few ways in which the forms lay out their controls. What a
// skin doesn't place stays as the forms have it.
#ifndef SONOTIK_FORMS_DESIGN_H_
#define SONOTIK_FORMS_DESIGN_H_

#include <string>

#include "widgets/OptionField.h"
#include "widgets/Slider.h"
#include "widgets/controls.h"
#include "widgets/lvButtons_H.h"

namespace sonotik::design {

inline constexpr float kWidth = 1280;
inline constexpr float kHeight = 800;
inline constexpr float kMenuHeight = 64;
inline constexpr float kPlayerHeight = 96;
// Where every screen stands, between the menu bar and the player panel.
inline constexpr Rect kScreen{0, kMenuHeight, kWidth, kHeight - kMenuHeight - kPlayerHeight};

// The column of buttons at the right edge of a screen, and the place of BACK in it.
inline constexpr float kSideLeft = 1000;
inline constexpr float kSideWidth = 256;
inline constexpr Rect kBackPlace{kSideLeft, 562, kSideWidth, 62};

inline constexpr Color kNight = Rgb(16, 18, 32);
inline constexpr Color kPanel = Rgb(26, 29, 48);
inline constexpr Color kRaised = Rgb(38, 43, 68);
inline constexpr Color kButton = Rgb(52, 60, 96);
inline constexpr Color kText = Rgb(240, 241, 248);
inline constexpr Color kMuted = Rgb(168, 174, 200);
inline constexpr Color kAmber = Rgb(255, 184, 77);
inline constexpr Color kInk = Rgb(28, 20, 8);
inline constexpr Color kCoral = Rgb(255, 111, 97);
inline constexpr Color kBadge = Rgb(208, 58, 58);

void AddLabel(Panel& panel, Label& label, const Rect& place, float points, Color color = kText,
              Align align = Align::kLeft, bool bold = false);
void AddButton(Panel& panel, lvButtons_H& button, const Rect& place, const std::string& caption,
               float points = 12);
// The button that people came for.
void AddMainButton(Panel& panel, lvButtons_H& button, const Rect& place, const std::string& caption,
                   float points = 13);
void AddPicture(Panel& panel, PictureBox& picture, const Rect& place,
                PictureFit fit = PictureFit::kCover);
// A setting, a key or a command of the options pages.
void AddOption(Panel& panel, OptionField& field, const Rect& place);
void AddPanel(Panel& panel, Panel& child, const Rect& place, Color color = kNight);

}  // namespace sonotik::design

#endif  // SONOTIK_FORMS_DESIGN_H_
