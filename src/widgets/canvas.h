// What the controls draw on: a few primitives, in the coordinates of the control that draws.
#ifndef SONOTIK_WIDGETS_CANVAS_H_
#define SONOTIK_WIDGETS_CANVAS_H_

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "widgets/colors.h"
#include "widgets/geometry.h"

namespace sonotik {

struct Font {
  std::string family = "DejaVu Sans";
  float points = 11;  // at 96 dots an inch: a point is 4/3 pixels
  bool bold = false;
  bool operator==(const Font&) const = default;
};

enum class Align { kLeft, kRight, kCenter };

struct TextStyle {
  Font font;
  Color color = 0;
  Align align = Align::kLeft;
  // Several lines where the width asks for it. What doesn't fit is written in smaller letters, and
  // what doesn't fit even so ends in an ellipsis.
  bool wrap = false;
};

enum class PictureFit {
  kStretch,     // fills the place, whatever the ratio
  kContain,     // whole picture, its ratio kept
  kCover,       // fills the place, its ratio kept, what is too much cut off evenly
  kReflection,  // as kCover, upside down and fading out downwards
};

// Pixels that somebody else renders, such as a video: rows of B, G, R and a fourth byte.
struct PixelSurface {
  int width = 0;
  int height = 0;
  int stride = 0;  // bytes a row
  std::vector<uint8_t> bytes;
  // The fourth byte is the alpha, and B, G, R are multiplied by it. Otherwise it is unused.
  bool has_alpha = false;
};

// What an area or a line is filled with: one colour, or a run between two points. Alpha 255 covers.
struct Brush {
  Brush(Color color, uint8_t alpha = 255)  // NOLINT: a colour is a brush
      : from(color), to(color), from_alpha(alpha), to_alpha(alpha) {}
  Brush(Color a, Color b, Point at_a, Point at_b, uint8_t alpha_a = 255, uint8_t alpha_b = 255)
      : from(a), to(b), start(at_a), end(at_b), from_alpha(alpha_a), to_alpha(alpha_b) {}

  Color from;
  Color to;
  Point start, end;
  uint8_t from_alpha;
  uint8_t to_alpha;
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  // Draws from here on in the coordinates of `place`, cut to it, until Pop.
  virtual void Push(const Rect& place) = 0;
  virtual void Pop() = 0;
  // The part that has to be painted, in the present coordinates.
  virtual Rect Visible() const = 0;

  // With rounded corners where a radius is given.
  virtual void FillRect(const Rect& rect, Color color, float radius = 0) = 0;
  virtual void FillGradient(const Rect& rect, Color top, Color bottom, float radius = 0) = 0;
  // A line of this width just inside the edge.
  virtual void DrawRect(const Rect& rect, Color color, float width, float radius = 0) = 0;
  virtual void FillPolygon(std::span<const Point> corners, const Brush& brush) = 0;
  // A closed line of this width, half of it on each side of the edge.
  virtual void DrawPolygon(std::span<const Point> corners, const Brush& brush, float width) = 0;

  // A picture file (a program path); one that can't be decoded leaves a plain plate.
  virtual void DrawPicture(const std::string& path, const Rect& rect, PictureFit fit) = 0;
  virtual void DrawPixels(const PixelSurface& pixels, const Rect& rect) = 0;

  // Centred from top to bottom. Line breaks in the text stand.
  virtual void DrawText(const std::string& text, const Rect& rect, const TextStyle& style) = 0;
  // The size that DrawText takes, wrapped at `width` if the style wraps.
  virtual Rect MeasureText(const std::string& text, const TextStyle& style, float width) = 0;
};

}  // namespace sonotik

#endif  // SONOTIK_WIDGETS_CANVAS_H_
