// A window that shows one form: paints what is dirty, hands in mouse, touch and keys.
#ifndef SONOTIK_DESKTOP_FORM_WINDOW_H_
#define SONOTIK_DESKTOP_FORM_WINDOW_H_

#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/picture_cache.h"
#include "widgets/control.h"

namespace sonotik {

// The form is scaled evenly to the window, with black around it where the ratios differ.
class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, PictureCache& pictures);
  ~FormWindow() override;

  // Asked when the system wants to close the window; it stays open on false.
  std::function<bool()> may_close = [] { return true; };

  // Paint events so far: an idle screen must not add any.
  int paints() const { return paints_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  double Scale() const;
  QPointF Offset() const;
  Point FormPoint(const QPointF& at) const;
  void UpdateDirty();
  void TestHover();
  // The pointer that the control under the mouse wants, unless pointers are hidden altogether.
  void ShowPointer();
  QCursor CursorFor(const MouseShape& shape);

  Form& form_;
  PictureCache& pictures_;
  QTimer hover_test_;  // runs only while the mouse is over a control
  int paints_ = 0;
  MouseShape pointer_;  // the one that shows
};

}  // namespace sonotik

#endif  // SONOTIK_DESKTOP_FORM_WINDOW_H_
