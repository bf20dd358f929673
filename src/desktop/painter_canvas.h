// The Canvas on the toolkit's painter.
#ifndef SONOTIK_DESKTOP_PAINTER_CANVAS_H_
#define SONOTIK_DESKTOP_PAINTER_CANVAS_H_

#include <QPainter>
#include <vector>

#include "desktop/picture_cache.h"
#include "widgets/canvas.h"

namespace sonotik {

class PainterCanvas : public Canvas {
 public:
  // The painter is set up so that its coordinates are the form's; `visible` is what has to be
  // painted, `scale` how many device pixels a unit of the form takes.
  PainterCanvas(QPainter& painter, PictureCache& pictures, const Rect& visible, double scale);

  void Push(const Rect& place) override;
  void Pop() override;
  Rect Visible() const override { return visible_.back(); }
  void FillRect(const Rect& rect, Color color, float radius) override;
  void FillGradient(const Rect& rect, Color top, Color bottom, float radius) override;
  void DrawRect(const Rect& rect, Color color, float width, float radius) override;
  void FillPolygon(std::span<const Point> corners, const Brush& brush) override;
  void DrawPolygon(std::span<const Point> corners, const Brush& brush, float width) override;
  void DrawPicture(const std::string& path, const Rect& rect, PictureFit fit) override;
  void DrawPixels(const PixelSurface& pixels, const Rect& rect) override;
  void DrawText(const std::string& text, const Rect& rect, const TextStyle& style) override;
  Rect MeasureText(const std::string& text, const TextStyle& style, float width) override;

 private:
  void Fill(const Rect& rect, const QBrush& brush, float radius);

  QPainter& painter_;
  PictureCache& pictures_;
  double scale_;
  std::vector<Rect> visible_;
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_PAINTER_CANVAS_H_
