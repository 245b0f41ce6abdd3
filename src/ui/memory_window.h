#pragma once
// One memory cell's window (MemoryForm) inside the main frame: its caption
// is the memory's name, its value label Label1 shows the value. Geometry,
// caption, value and colours are the model's, re-read on every Refresh; the
// window's events go to the memory handlers of the core.
//
// Geometry: the model holds the window's outer rectangle in the frame's
// client area (title bar included), in twips; the value label's rectangle
// is in the window's own client area.

#include <QLabel>
#include <QMdiSubWindow>
#include <QSize>

namespace brenko {
struct MemoryForm;
}

namespace brenko::ui {

class AppWindows;

// The value label: a drag source of its memory and a drop target.
class MemoryValueLabel : public QLabel {
  Q_OBJECT

 public:
  MemoryValueLabel(AppWindows& windows, int number, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  AppWindows& windows_;
  int number_;
};

class MemoryWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  MemoryWindow(AppWindows& windows, int number);

  int Number() const { return number_; }
  QLabel* ValueLabel() const { return label_; }
  // Re-reads this memory's model.
  void Refresh(const MemoryForm& form);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  AppWindows& windows_;
  int number_;
  QWidget* client_;
  MemoryValueLabel* label_;
  // What the window was last set to, so that its own moves are told apart
  // from the user's.
  QRect applied_;
  bool applying_ = false;
};

}  // namespace brenko::ui
