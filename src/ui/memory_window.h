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
#include <QRect>
#include <optional>

#include "core/base/platform.h"
#include "core/memory/memory_form.h"
#include "ui/user_placement.h"

class QStyle;

namespace brenko::ui {

class AppWindows;

// The look of the memory windows: a memory window is only 585 twips high,
// so its title bar and border are kept slim to leave the value readable.
// The style belongs to `owner`, which must outlive every memory window.
QStyle* MakeMemoryWindowStyle(QObject* owner);

// Makes the application's style read its standard icons once, for all the
// memory windows to come: done once the first memory comes.
void KeepStandardIcons();

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
  void paintEvent(QPaintEvent* event) override;

 private:
  AppWindows& windows_;
  int number_;
};

class MemoryWindow : public QMdiSubWindow {
  Q_OBJECT

 public:
  MemoryWindow(AppWindows& windows, int number, QStyle* style);

  int Number() const { return number_; }
  QLabel* ValueLabel() const { return label_; }
  // Re-reads this memory's model, measured on `screen`; nothing happens when
  // the form is the one last shown and the window is where it put it.
  void Refresh(const MemoryForm& form, const ScreenInfo& screen);
  // The label's place from the model, fitted into the client area.
  void PlaceLabel();
  // A window of a very large memory file stays out of sight, whatever its
  // form says, until the frame reveals it (see MainFrameWindow).
  void HoldBack();
  // Shows (or leaves hidden) a held-back window as its form last said.
  void Reveal();
  // Whether the window is handling its own close: it must outlive it.
  bool InCloseEvent() const { return inCloseEvent_; }
  // The title as its title bar shows it, `width` pixels wide at most.
  QString ShownTitle(int width) const;
  const QFont& TitleFont() const { return titleFont_; }

 signals:
  // The window was moved or sized, by anyone: it may no longer be where its
  // form says.
  void PlaceChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  AppWindows& windows_;
  int number_;
  QWidget* client_;
  MemoryValueLabel* label_;
  QRect labelRect_;  // the model's label rectangle in pixels
  UserPlacement placement_;
  std::optional<MemoryForm> shownForm_;
  ScreenInfo shownScreen_;
  QRect shownRect_;
  bool inCloseEvent_ = false;
  bool heldBack_ = false;
  QFont titleFont_;
  // The title last fitted into the title bar, for a title, width and font.
  struct ShownTitleKey {
    QString title;
    int width = -1;
    QFont font;
    bool operator==(const ShownTitleKey&) const = default;
  };
  mutable ShownTitleKey shownTitleFor_;
  mutable QString shownTitle_;
};

}  // namespace brenko::ui
