#pragma once
// The Calculator window: menu bar, readout, operator indicator, prompt line
// and the keypad, all built from the core's tables and placed from the
// model's twips on every Refresh.
//
// Geometry: the model holds the window's OUTER size, as the arranging rules
// measure it (frame, title bar and menu bar included). The client area below
// the menu bar gets the outer size less kCalcNonClientWidth/Height, which is
// what the frame, title and menu bar of the original window took; the Qt
// window is that client area plus Qt's own menu bar, and the window manager
// adds its frame around it. The model's left and top are the frame's place
// on the screen (QWidget::move). Without a window manager there is no frame,
// so the window is a little smaller than its outer size but sits exactly at
// its place; with one the frame makes up the difference. The window cannot be
// resized by dragging: its sizes are the model's (zoom and key display).

#include <QMainWindow>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/base/calculator_form.h"
#include "core/base/platform.h"
#include "ui/user_placement.h"

class QLabel;
class QMenu;
class QPushButton;

namespace brenko::ui {

class AppWindows;
class KeyboardFilter;
class MenuBinder;

class CalculatorWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit CalculatorWindow(AppWindows& windows);
  ~CalculatorWindow() override;

  // Re-reads the calculator's model and the menu table, touching only what
  // changed since the last look: a refresh after which nothing changed does
  // nothing.
  void Refresh();

  // The context menu mnuPopup1 (made on first use); nullptr for other names.
  QMenu* Popup(const std::string& name);

  // The readout label. Dragging from it and dropping on it belong to the
  // memory windows' code, which installs its own event filter here.
  QLabel* Readout() const { return readout_; }
  QLabel* ActionLabel() const { return action_; }
  QLabel* Label1() const { return label1_; }
  QWidget* Client() const { return client_; }
  // A keypad key by its control name and index (-1 for single controls).
  QPushButton* Key(const std::string& name, int index = -1) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildControls();
  void ApplyGeometry(const ScreenInfo& screen);
  void ApplyControls(const ScreenInfo& screen, bool screenChanged);
  void ApplyKeys(const ScreenInfo& screen);
  void FitMenuBar(int width);
  void OnKeyClicked();

  AppWindows& windows_;
  MenuBinder* menus_;
  KeyboardFilter* keyboard_;
  QWidget* client_;
  QLabel* readout_ = nullptr;
  QLabel* action_ = nullptr;
  QLabel* label1_ = nullptr;
  QMenu* popup_ = nullptr;
  struct KeyButton {
    std::string name;
    int index;
    QPushButton* button;
  };
  std::vector<KeyButton> keys_;
  UserPlacement placement_;
  // What the window shows, as last applied: the model's controls, its
  // geometry, the screen it was measured on and the menus' revision.
  std::vector<CalcControl> shownControls_;
  std::optional<Rect> shownGeometry_;
  // The size of the window with the frame the window manager gave it: a
  // frame that came (or changed) may need the window moved onto the screen.
  QSize shownFrame_;
  // Whether the place was last worked out while the window was shown: before
  // that, its frame and menu bar are only guessed.
  bool placedWhileShown_ = false;
  std::optional<ScreenInfo> shownScreen_;
  std::optional<std::uint64_t> shownMenus_;
};

}  // namespace brenko::ui
