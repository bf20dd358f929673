#include "desktop/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QUrl>
#include <algorithm>
#include <array>

#include "desktop/painter_canvas.h"
#include "desktop/text_decoding.h"
#include "files/paths.h"

namespace sonotik {
namespace {

MouseButton ButtonOf(const QMouseEvent& event) {
  if (event.button() == Qt::RightButton) return MouseButton::kRight;
  if (event.button() == Qt::MiddleButton) return MouseButton::kMiddle;
  return MouseButton::kLeft;
}

// Pointers by their numbers.
constexpr std::array kPointers = {
    Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
    Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};
// A picture as a pointer is no longer than this.
constexpr int kMostPointerSide = 64;

DragData DataOf(const QMimeData& mime) {
  DragData data;
  for (const QUrl& url : mime.urls()) {
    if (!url.isLocalFile()) continue;
    data.files.push_back(ProgramPath(QFile::encodeName(url.toLocalFile()).toStdString()));
  }
  data.text = mime.text().toStdString();
  return data;
}

DropEffect EffectOf(Qt::DropAction action) {
  if (action == Qt::CopyAction) return DropEffect::kCopy;
  return action == Qt::MoveAction ? DropEffect::kMove : DropEffect::kNone;
}

void Answer(QDropEvent& event, DropEffect effect) {
  event.setDropAction(effect == DropEffect::kMove   ? Qt::MoveAction
                      : effect == DropEffect::kCopy ? Qt::CopyAction
                                                    : Qt::IgnoreAction);
  event.setAccepted(effect != DropEffect::kNone);
}

// The number by which the controls know a key: letters and digits are themselves.
int KeyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return key::kLeft;
    case Qt::Key_Up:
      return key::kUp;
    case Qt::Key_Right:
      return key::kRight;
    case Qt::Key_Down:
      return key::kDown;
    case Qt::Key_Shift:
      return key::kShift;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return key::kEnter;
    case Qt::Key_Escape:
      return key::kEscape;
    default:
      return event.key() < 128 ? event.key() : 0;
  }
}

}  // namespace

FormWindow::FormWindow(Form& form, PictureCache& pictures) : form_(form), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setAcceptDrops(true);
  setWindowTitle(Decode(form.title()));
  resize(static_cast<int>(form.place().width), static_cast<int>(form.place().height));
  form_.on_dirty = [this] { UpdateDirty(); };
  form_.TakeDirty();
  form_.pictures = &pictures_;
  hover_test_.setInterval(Form::kHoverTestMs);
  connect(&hover_test_, &QTimer::timeout, this, [this] { TestHover(); });
  form_.on_hover = [this] { hover_test_.start(); };
}

FormWindow::~FormWindow() {
  form_.on_dirty = {};
  form_.on_hover = {};
  form_.pictures = nullptr;
}

void FormWindow::TestHover() {
  const QPoint at = QCursor::pos();
  if (QApplication::widgetAt(at) == this) {
    form_.TestHover(FormPoint(mapFromGlobal(at)));
  } else {
    form_.LeaveMouse();
  }
  if (!form_.hovering()) hover_test_.stop();
  ShowPointer();
}

void FormWindow::ShowPointer() {
  const MouseShape wanted = form_.PointerShape();
  if (wanted == pointer_ || cursor().shape() == Qt::BlankCursor) return;
  pointer_ = wanted;
  setCursor(CursorFor(wanted));
}

QCursor FormWindow::CursorFor(const MouseShape& shape) {
  if (shape.pointer == MouseShape::kIcon) {
    if (const auto icon = pictures_.Pixels(shape.icon, kMostPointerSide)) {
      const QImage image(icon->bytes.data(), icon->width, icon->height, icon->stride,
                         QImage::Format_ARGB32_Premultiplied);
      // It points with its top left corner.
      return QCursor(QPixmap::fromImage(image), 0, 0);
    }
  }
  const auto number = static_cast<size_t>(shape.pointer);
  return number < kPointers.size() ? kPointers[number] : kPointers[0];
}

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
    // With the whole form, its size may be another, and the bars beside it.
    if (rect.Contains(Rect{0, 0, form_.place().width, form_.place().height})) return update();
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
  ShowPointer();
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  form_.MoveMouse(FormPoint(event->position()));
  ShowPointer();
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  form_.ReleaseMouse(FormPoint(event->position()), ButtonOf(*event));
  ShowPointer();
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  form_.DoubleClickMouse(FormPoint(event->position()));
}

void FormWindow::leaveEvent(QEvent*) { form_.LeaveMouse(); }

// An enter is followed by a move in the same place, which asks the control.
void FormWindow::dragEnterEvent(QDragEnterEvent* event) { event->accept(); }

void FormWindow::dragMoveEvent(QDragMoveEvent* event) {
  Answer(*event, form_.DragMouse(FormPoint(event->position()), DataOf(*event->mimeData()),
                                 EffectOf(event->proposedAction())));
}

void FormWindow::dragLeaveEvent(QDragLeaveEvent*) { form_.LeaveDrag(); }

void FormWindow::dropEvent(QDropEvent* event) {
  Answer(*event, form_.DropMouse(FormPoint(event->position()), DataOf(*event->mimeData()),
                                 EffectOf(event->proposedAction())));
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const int key = KeyOf(*event);
  const bool access = key == key::kEnter || key == key::kEscape ||
                      (event->modifiers() & Qt::AltModifier && key != 0);
  if (access && form_.PressAccessKey(key)) return;
  form_.PressKey(key);
  const QString text = event->text();
  if (!text.isEmpty() && text[0].unicode() < 256) form_.TypeCharacter(text[0].unicode());
}

void FormWindow::keyReleaseEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat()) form_.ReleaseKey(KeyOf(*event));
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (may_close()) {
    event->accept();
  } else {
    event->ignore();
  }
}

}  // namespace sonotik
