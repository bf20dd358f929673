#include "widgets/button_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <numbers>

namespace sonotik {
namespace {

constexpr int kStepsOfACorner = 10;
constexpr int kStepsOfAQuarter = 28;

// From the angle `from` on, a quarter of an ellipse clockwise; 0 points right, a quarter is down.
void AddQuarter(Outline& outline, Point centre, float rx, float ry, int from, int steps) {
  for (int i = 0; i <= steps; ++i) {
    const float turn = static_cast<float>(from) + static_cast<float>(i) / static_cast<float>(steps);
    const float angle = turn * std::numbers::pi_v<float> / 2;
    const Point at{centre.x + rx * std::cos(angle), centre.y + ry * std::sin(angle)};
    // Quarters that meet share a corner: a side of no length would have no direction.
    const auto same = [&](Point p) { return std::hypot(p.x - at.x, p.y - at.y) < 0.01F; };
    if (outline.empty() || !(same(outline.back()) || same(outline.front()))) outline.push_back(at);
  }
}

Outline Rounded(const Rect& r, float rx, float ry, int steps) {
  Outline outline;
  AddQuarter(outline, {r.left + rx, r.top + ry}, rx, ry, 2, steps);
  AddQuarter(outline, {r.right() - rx, r.top + ry}, rx, ry, 3, steps);
  AddQuarter(outline, {r.right() - rx, r.bottom() - ry}, rx, ry, 0, steps);
  AddQuarter(outline, {r.left + rx, r.bottom() - ry}, rx, ry, 1, steps);
  return outline;
}

// How far a cut runs into the button.
float CutOf(const Rect& rect) { return std::min(rect.height / 2, rect.width / 4); }

// Rows of B, G, R, A.
uint8_t* PixelAt(PixelSurface& pixels, int x, int y) {
  return &pixels.bytes[static_cast<size_t>(y) * pixels.stride + static_cast<size_t>(x) * 4];
}

// Towards a level of 0 to 255, held within the alpha by which the pixel is multiplied.
uint8_t Towards(uint8_t value, int level, int share, uint8_t alpha) {
  const int target = level * alpha / 255;
  return static_cast<uint8_t>(value + (target - value) * share / 256);
}

void Tint(uint8_t* pixel, const std::array<int, 3>& blue_green_red, int share) {
  for (int i = 0; i < 3; ++i) pixel[i] = Towards(pixel[i], blue_green_red[i], share, pixel[3]);
}

}  // namespace

Outline ShapeOutline(int shape, const Rect& rect, float radius) {
  const float cut = CutOf(rect);
  const float middle = rect.top + rect.height / 2;
  const Point top_left{rect.left, rect.top}, top_right{rect.right(), rect.top};
  const Point bottom_right{rect.right(), rect.bottom()}, bottom_left{rect.left, rect.bottom()};
  const Point cut_left{rect.left + cut, rect.top}, cut_right{rect.right() - cut, rect.bottom()};
  switch (shape) {
    case shape::kCutLeft:
      return {cut_left, top_right, bottom_right, bottom_left};
    case shape::kCutRight:
      return {top_left, top_right, cut_right, bottom_left};
    case shape::kCutBoth:
      return {cut_left, top_right, cut_right, bottom_left};
    case shape::kEllipse:
      return Rounded(rect, rect.width / 2, rect.height / 2, kStepsOfAQuarter);
    case shape::kRoundEnds: {
      const float r = std::min(rect.width, rect.height) / 2;
      return Rounded(rect, r, r, kStepsOfAQuarter);
    }
    case shape::kPointedEnds:
      return {cut_left,  {rect.right() - cut, rect.top},   {rect.right(), middle},
              cut_right, {rect.left + cut, rect.bottom()}, {rect.left, middle}};
    default:
      if (radius <= 0) return {top_left, top_right, bottom_right, bottom_left};
      radius = std::min({radius, rect.width / 2, rect.height / 2});
      return Rounded(rect, radius, radius, kStepsOfACorner);
  }
}

Rect ShapeInside(int shape, const Rect& rect) {
  const float cut = CutOf(rect);
  float left = 0, right = 0, down = 0;
  switch (shape) {
    case shape::kCutLeft:
      left = cut * 0.7F;
      break;
    case shape::kCutRight:
      right = cut * 0.7F;
      break;
    case shape::kCutBoth:
    case shape::kPointedEnds:
      left = right = cut * 0.7F;
      break;
    case shape::kEllipse:
      left = right = rect.width * 0.1F;
      down = rect.height * 0.12F;
      break;
    case shape::kRoundEnds:
      left = right = std::min(rect.width, rect.height) * 0.22F;
      break;
    case shape::kCustomFlat:
    case shape::kCustomRaised:
      // A picture has its own edge; most are no wider than this.
      left = right = std::min(rect.width * 0.08F, 4.0F);
      down = std::min(rect.height * 0.08F, 2.0F);
      break;
    default:
      break;
  }
  return {rect.left + left, rect.top + down, rect.width - left - right, rect.height - 2 * down};
}

bool Inside(const Outline& outline, Point at) {
  bool inside = false;
  for (size_t i = 0, k = outline.size() - 1; i < outline.size(); k = i++) {
    const Point a = outline[i], b = outline[k];
    if ((a.y > at.y) == (b.y > at.y)) continue;
    if (at.x < a.x + (b.x - a.x) * (at.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside;
}

Outline Above(const Outline& outline, float y) {
  Outline kept;
  for (size_t i = 0; i < outline.size(); ++i) {
    const Point a = outline[i], b = outline[(i + 1) % outline.size()];
    if (a.y <= y) kept.push_back(a);
    if ((a.y <= y) != (b.y <= y)) {
      kept.push_back({a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), y});
    }
  }
  return kept;
}

void CutByCorner(PixelSurface& pixels) {
  if (pixels.width <= 0 || pixels.height <= 0) return;
  std::array<uint8_t, 4> corner;
  std::memcpy(corner.data(), pixels.bytes.data(), corner.size());
  pixels.has_alpha = true;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      uint8_t* const pixel = PixelAt(pixels, x, y);
      if (std::memcmp(pixel, corner.data(), corner.size()) == 0) std::memset(pixel, 0, 4);
    }
  }
}

void RaiseEdges(PixelSurface& pixels, bool pressed) {
  const PixelSurface whole = pixels;
  const auto empty = [&whole](int x, int y) {
    if (x < 0 || y < 0 || x >= whole.width || y >= whole.height) return true;
    return whole.bytes[static_cast<size_t>(y) * whole.stride + static_cast<size_t>(x) * 4 + 3] == 0;
  };
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      if (empty(x, y)) continue;
      const bool lit = empty(x - 1, y) || empty(x, y - 1) || empty(x - 1, y - 1);
      const bool shaded = empty(x + 1, y) || empty(x, y + 1) || empty(x + 1, y + 1);
      if (lit == shaded) continue;
      const int level = lit != pressed ? 255 : 0;
      Tint(PixelAt(pixels, x, y), {level, level, level}, 150);
    }
  }
}

void ApplyCustomClick(PixelSurface& pixels, int effect) {
  struct Effect {
    std::array<int, 3> blue_green_red;
    int share;
  };
  static constexpr std::array<Effect, 9> kEffects = {{{{0, 0, 0}, 0},
                                                      {{255, 255, 255}, 50},
                                                      {{255, 255, 255}, 110},
                                                      {{0, 0, 0}, 50},
                                                      {{0, 0, 0}, 110},
                                                      {{0, 0, 0}, 0},
                                                      {{0, 120, 255}, 70},
                                                      {{255, 120, 0}, 70},
                                                      {{0, 0, 0}, 0}}};
  constexpr int kGrey = 5;
  constexpr int kNegative = 8;
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      uint8_t* const p = PixelAt(pixels, x, y);
      if (effect == kGrey) {
        p[0] = p[1] = p[2] = static_cast<uint8_t>((p[0] * 29 + p[1] * 150 + p[2] * 77) / 256);
      } else if (effect == kNegative) {
        for (int i = 0; i < 3; ++i) p[i] = static_cast<uint8_t>(p[3] - p[i]);
      } else {
        Tint(p, kEffects[static_cast<size_t>(effect)].blue_green_red,
             kEffects[static_cast<size_t>(effect)].share);
      }
    }
  }
}

}  // namespace sonotik
