#pragma once
// frmTape: the tape window hanging above the calculator like the paper roll
// of an adding machine. It has no title bar (its Label1 is the title) and a
// thin frame; the grid shows one tape at a time, right-aligned in a
// fixed-pitch font, and follows every new line. The model's geometry is the
// window's outer size; the frame takes kTapeNonClientWidth/Height of it.

#include <QWidget>
#include <string>

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
  void paintEvent(QPaintEvent* event) override;

 private:
  void ApplyGeometry();
  void FitPaperFont(int width);
  void ShowColumn(int column);

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
};

}  // namespace brenko::ui
