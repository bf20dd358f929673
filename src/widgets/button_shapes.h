// The shapes of a button: their outlines, and pictures cut to a shape of their own.
#ifndef SONOTIK_WIDGETS_BUTTON_SHAPES_H_
#define SONOTIK_WIDGETS_BUTTON_SHAPES_H_

#include <span>
#include <vector>

#include "widgets/canvas.h"

namespace sonotik {

namespace shape {
inline constexpr int kRectangle = 0;
inline constexpr int kCutLeft = 1;
inline constexpr int kCutRight = 2;
inline constexpr int kCutBoth = 3;
inline constexpr int kEllipse = 4;
inline constexpr int kRoundEnds = 5;
inline constexpr int kPointedEnds = 6;
inline constexpr int kCustomFlat = 7;
inline constexpr int kCustomRaised = 8;
}  // namespace shape

using Outline = std::vector<Point>;

// The corners of shapes 0 to 6 in `rect`, clockwise and without a dent. A rectangle's corners are
// rounded by `radius`; a custom shape counts as a rectangle.
Outline ShapeOutline(int shape, const Rect& rect, float radius);
// The largest box for a text that stays inside the shape.
Rect ShapeInside(int shape, const Rect& rect);
// True if the point lies in an outline.
bool Inside(const Outline& outline, Point at);
// The part of an outline above a line at y.
Outline Above(const Outline& outline, float y);

// Takes out of the pixels all that equal the top left one: a custom shape.
void CutByCorner(PixelSurface& pixels);
// Lights the edges of a cut picture from the top left, or from the bottom right if it is pressed.
void RaiseEdges(PixelSurface& pixels, bool pressed);
// What a press does to a cut picture, `effect` being 0 to 8: nothing, lighter, much lighter,
// darker, much darker, grey, warm, cold, the negative.
void ApplyCustomClick(PixelSurface& pixels, int effect);

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_BUTTON_SHAPES_H_
