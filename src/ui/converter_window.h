#pragma once
// The unit converter: a small floating tool window with the drop label
// Label1 and the labels lblLabel0 to lblLabel6 (0 and 1 fixed captions, 2 to
// 6 the results). It is made the first time the model wants it shown.
//
// Geometry: the model holds the window's OUTER rectangle in twips (770 high
// collapsed, 2310 expanded); the client area is that less the frame and the
// small title bar of a tool window (kConverterNonClientWidth and
// kConverterNonClientHeight). The labels' rectangles are in the client area.

#include <QWidget>
#include <array>
#include <optional>

#include "core/base/platform.h"
#include "core/converter/converter_form.h"
#include "ui/user_placement.h"

class QLabel;

namespace brenko::ui {

class AppWindows;

// What a tool window's border and title bar take of its outer height.
inline constexpr float kConverterNonClientHeight = 345;

class ConverterWindow : public QWidget {
  Q_OBJECT

 public:
  explicit ConverterWindow(AppWindows& windows);

  // Re-reads the converter's model.
  void Refresh();

  QLabel* Label1() const { return label1_; }
  // lblLabel by index (0 to 6).
  QLabel* Result(int index) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Apply(const ConverterForm& form, const ScreenInfo& screen);
  void ApplyGeometry();

  AppWindows& windows_;
  QLabel* label1_;
  std::array<QLabel*, 7> lblLabel_{};
  UserPlacement placement_;
  // What the window last showed: a refresh that changes none of it (most
  // keys) does nothing. The place is worked out once more after the window
  // is first shown, when its frame is known.
  std::optional<ConverterForm> shown_;
  ScreenInfo shownScreen_;
  bool placedWhileShown_ = false;
};

}  // namespace brenko::ui
