#include "ui/memory_context_menu.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

#include "core/commands/memory_commands.h"
#include "ui/app_windows.h"

namespace brenko::ui {

QMenu* MakeMemoryContextMenu(AppWindows& windows, int number, QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setObjectName(QStringLiteral("mnuMemoryPopup"));
  for (const MemoryCommandRow& row : MemoryCommands()) {
    QAction* action = menu->addAction(QString::fromUtf8(row.caption));
    action->setObjectName(QStringLiteral("mnuMemory") +
                          QString::fromUtf8(row.name));
    const MemoryCommand command = row.command;
    QObject::connect(action, &QAction::triggered, menu,
                     [&windows, number, command] {
                       windows.Run([number, command](App& app) {
                         RunMemoryCommand(app, number, command);
                       });
                     });
  }
  return menu;
}

void ShowMemoryContextMenu(AppWindows& windows, int number, QWidget* label,
                           QPoint at) {
  QMenu* menu = MakeMemoryContextMenu(windows, number, label);
  // The command may close the memory window and the label with it: the
  // menu goes when the event loop is back, not under its own feet.
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(label->mapToGlobal(at));
}

void AttachMemoryContextMenu(AppWindows& windows, int number, QWidget* label) {
  label->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(label, &QWidget::customContextMenuRequested, label,
                   [&windows, number, label](QPoint at) {
                     ShowMemoryContextMenu(windows, number, label, at);
                   });
}

}  // namespace brenko::ui
