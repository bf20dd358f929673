#include "desktop/form_window.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/painter_canvas.h"
#include "desktop/text_decoding.h"

namespace sonotik {
namespace {

MouseButton ButtonOf(const QMouseEvent& event) {
  if (event.button() == Qt::RightButton) return MouseButton::kRight;
  if (event.button() == Qt::MiddleButton) return MouseButton::kMiddle;
  return MouseButton::kLeft;
}

}  // namespace

FormWindow::FormWindow(Form& form, PictureCache& pictures) : form_(form), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setWindowTitle(Decode(form.title()));
  resize(static_cast<int>(form.place().width), static_cast<int>(form.place().height));
  form_.on_dirty = [this] { UpdateDirty(); };
  form_.TakeDirty();
}

FormWindow::~FormWindow() { form_.on_dirty = {}; }

double FormWindow::Scale() const {
  return std::min(width() / static_cast<double>(form_.place().width),
                  height() / static_cast<double>(form_.place().height));
}

QPointF FormWindow::Offset() const {
  return {(width() - form_.place().width * Scale()) / 2,
          (height() - form_.place().height * Scale()) / 2};
}

Point FormWindow::FormPoint(const QPointF& at) const {
  const QPointF inner = (at - Offset()) / Scale();
  return {static_cast<float>(inner.x()), static_cast<float>(inner.y())};
}

void FormWindow::UpdateDirty() {
  for (const Rect& rect : form_.TakeDirty()) {
    const QPointF corner = QPointF(rect.left, rect.top) * Scale() + Offset();
    update(QRectF(corner, QSizeF(rect.width, rect.height) * Scale())
               .toAlignedRect()
               .adjusted(-1, -1, 1, 1));
  }
}

void FormWindow::paintEvent(QPaintEvent* event) {
  ++paints_;
  QPainter painter(this);
  const double scale = Scale();
  const QPointF offset = Offset();
  for (const QRect& part : event->region()) {
    painter.save();
    painter.setClipRect(part);
    const QRectF form(offset, QSizeF(form_.place().width, form_.place().height) * scale);
    if (!form.contains(part)) painter.fillRect(part, Qt::black);
    painter.translate(offset);
    painter.scale(scale, scale);
    const Point corner = FormPoint(part.topLeft());
    const Rect visible{corner.x, corner.y, static_cast<float>(part.width() / scale),
                       static_cast<float>(part.height() / scale)};
    PainterCanvas canvas(painter, pictures_,
                         visible.Intersected({0, 0, form_.place().width, form_.place().height}),
                         scale * devicePixelRatioF());
    form_.Paint(canvas);
    painter.restore();
  }
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  form_.PressMouse(FormPoint(event->position()), ButtonOf(*event));
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  form_.MoveMouse(FormPoint(event->position()));
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  form_.ReleaseMouse(FormPoint(event->position()), ButtonOf(*event));
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  form_.DoubleClickMouse(FormPoint(event->position()));
}

void FormWindow::leaveEvent(QEvent*) { form_.LeaveMouse(); }

void FormWindow::keyPressEvent(QKeyEvent*) {
  if (form_.on_input) form_.on_input();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (may_close()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace sonotik
