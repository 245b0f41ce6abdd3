#pragma once
// Qt menus built from the core's menu table: the calculator's menu bar and
// the context menus. Every action is named after its entry ("mnuOpen",
// "mnuColor3"), runs the entry's command through the core, and takes its
// caption, check mark and visibility from the table on every Refresh.

#include <QObject>
#include <string>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace brenko::ui {

class AppWindows;

class MenuBinder : public QObject {
  Q_OBJECT

 public:
  MenuBinder(AppWindows& windows, QObject* parent);

  // Fills the bar with every level-1 menu the table shows in a bar.
  void BuildBar(QMenuBar* bar);
  // Makes the context menu named `name` with its entries; nullptr if the
  // table has no such menu.
  QMenu* BuildPopup(const std::string& name, QWidget* parent);
  // Re-reads captions, check marks, visibility and enabled state.
  void Refresh();

  // The action of an entry ("mnuColor" with index 3 -> "mnuColor3").
  static QString ActionName(const std::string& name, int index);

 private:
  // Adds the entries after `first` that lie deeper than it to `menu`;
  // returns the position after the last one.
  std::size_t AddChildren(QMenu* menu, std::size_t first);
  QAction* Bind(QAction* action, std::size_t entry);

  AppWindows& windows_;
  struct Bound {
    QAction* action;
    std::size_t entry;
  };
  std::vector<Bound> bound_;
};

}  // namespace brenko::ui
