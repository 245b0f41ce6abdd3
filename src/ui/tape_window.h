#pragma once
// frmTape: the tape window hanging above the calculator like the paper roll
// of an adding machine. It has no title bar (its Label1 is the title) and a
// thin frame; the grid shows one tape at a time, right-aligned in a
// fixed-pitch font, and follows every new line. The model's geometry is the
// window's outer size; the frame takes kTapeNonClientWidth/Height of it.

#include <QWidget>
#include <cstdint>
#include <optional>
#include <string>

#include "core/base/platform.h"
#include "core/tape/tape_window.h"
#include "ui/user_placement.h"

class QLabel;
class QMenu;
class QPushButton;
class QTableView;

namespace brenko::ui {

class AppWindows;
class MenuBinder;
class TapeTableModel;

class TapeWindow : public QWidget {
  Q_OBJECT

 public:
  explicit TapeWindow(AppWindows& windows);

  // Re-reads the window's model and the tape store; does nothing when
  // neither changed since the last look.
  void Refresh();
  // The context menu mnuPopup2 (made on first use).
  QMenu* Popup();

  QTableView* Grid() const { return grid_; }
  QLabel* Title() const { return title_; }
  QPushButton* ScrollButton(int index) const {
    return index == 0 ? left_ : right_;
  }
  TapeTableModel* Model() const { return model_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ApplyGeometry(const ScreenInfo& screen);
  void FitPaperFont(int width);
  void ShowColumn(int column);
  void FitColumnWidth(int column);

  AppWindows& windows_;
  MenuBinder* menus_;
  TapeTableModel* model_;
  QWidget* client_;
  QLabel* title_;
  QTableView* grid_;
  QPushButton* left_;
  QPushButton* right_;
  QMenu* popup_ = nullptr;
  int shownColumn_ = -1;
  int columns_ = -1;
  UserPlacement placement_;
  // What was last applied: the window's model with the parts of the tape
  // store its layout reads, the screen, the store's revision and view.
  struct Shown {
    TapeWindowForm form;
    float gridHeight;
    float rowHeight;
    ScreenInfo screen;
    bool operator==(const Shown&) const = default;
  };
  std::optional<Shown> shown_;
  std::optional<std::uint64_t> shownMenus_;
  struct ShownTapes {
    std::uint64_t revision;
    std::int32_t topRow;
    std::int16_t tape;
    bool operator==(const ShownTapes&) const = default;
  };
  std::optional<ShownTapes> shownTapes_;
};

}  // namespace brenko::ui
