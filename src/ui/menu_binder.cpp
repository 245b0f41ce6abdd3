#include "ui/menu_binder.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "core/commands/menus.h"
#include "ui/app_windows.h"
#include "ui/shortcuts.h"

namespace brenko::ui {

MenuBinder::MenuBinder(AppWindows& windows, QObject* parent)
    : QObject(parent), windows_(windows) {}

QString MenuBinder::ActionName(const std::string& name, int index) {
  QString result = QString::fromStdString(name);
  if (index >= 0) result += QString::number(index);
  return result;
}

QAction* MenuBinder::Bind(QAction* action, std::size_t entry) {
  const MenuEntry& e = windows_.app().menus.Entries()[entry];
  action->setObjectName(ActionName(e.name, e.index));
  // The entry's keys work while its window is active, and the menu shows
  // them beside the caption.
  const QList<QKeySequence> keys = MenuEntryKeys(e.id);
  if (!keys.isEmpty()) action->setShortcuts(keys);
  bound_.push_back({action, entry});
  return action;
}

std::size_t MenuBinder::AddChildren(QMenu* menu, std::size_t first) {
  const auto& entries = windows_.app().menus.Entries();
  const int level = entries[first].level;
  std::size_t i = first + 1;
  while (i < entries.size() && entries[i].level > level) {
    const MenuEntry& e = entries[i];
    const bool hasChildren =
        i + 1 < entries.size() && entries[i + 1].level > e.level;
    if (hasChildren) {
      QMenu* sub = menu->addMenu(QString::fromStdString(e.caption));
      sub->setObjectName(QString::fromStdString(e.name));
      Bind(sub->menuAction(), i);
      i = AddChildren(sub, i);
      continue;
    }
    if (e.caption == "-") {
      Bind(menu->addSeparator(), i);
    } else {
      QAction* action = Bind(menu->addAction(QString()), i);
      const std::string name = e.name;
      const int index = e.index;
      connect(action, &QAction::triggered, this, [this, name, index] {
        windows_.Run([&](App& app) { RunMenuCommand(app, name, index); });
      });
    }
    ++i;
  }
  return i;
}

void MenuBinder::BuildBar(QMenuBar* bar) {
  const auto& entries = windows_.app().menus.Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const MenuEntry& e = entries[i];
    // The context menus are level-1 entries that never show in the bar.
    if (e.level != 1 || !e.visible) continue;
    QMenu* menu = bar->addMenu(QString::fromStdString(e.caption));
    menu->setObjectName(QString::fromStdString(e.name));
    Bind(menu->menuAction(), i);
    AddChildren(menu, i);
  }
  Refresh();
}

QMenu* MenuBinder::BuildPopup(const std::string& name, QWidget* parent) {
  const auto& entries = windows_.app().menus.Entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].level != 1 || entries[i].name != name) continue;
    auto* menu = new QMenu(QString::fromStdString(entries[i].caption), parent);
    menu->setObjectName(QString::fromStdString(name));
    AddChildren(menu, i);
    Refresh();
    return menu;
  }
  return nullptr;
}

void MenuBinder::Refresh() {
  const auto& entries = windows_.app().menus.Entries();
  for (const Bound& b : bound_) {
    if (b.entry >= entries.size()) continue;
    const MenuEntry& e = entries[b.entry];
    QAction* a = b.action;
    if (!a->isSeparator()) {
      const QString caption = MenuEntryCaption(e.id, e.caption);
      if (a->text() != caption) a->setText(caption);
      // Only a checked entry shows a mark: an unchecked one looks plain.
      if (a->isCheckable() != e.checked) a->setCheckable(e.checked);
      if (a->isChecked() != e.checked) a->setChecked(e.checked);
    }
    if (a->isEnabled() != e.enabled) a->setEnabled(e.enabled);
    // Level-1 popups are hidden in the bar's sense only.
    const bool visible = e.level == 1 ? true : e.visible;
    if (a->isVisible() != visible) a->setVisible(visible);
  }
}

}  // namespace brenko::ui
