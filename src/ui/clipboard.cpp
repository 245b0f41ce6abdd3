#include "ui/clipboard.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QWidget>
#include <vector>

#include "core/commands/clipboard_handlers.h"
#include "ui/app_windows.h"

namespace brenko::ui {

QList<QKeySequence> CopyKeys() {
  return {QKeySequence(Qt::CTRL | Qt::Key_C),
          QKeySequence(Qt::CTRL | Qt::Key_Insert)};
}

QList<QKeySequence> PasteKeys() {
  return {QKeySequence(Qt::CTRL | Qt::Key_V),
          QKeySequence(Qt::SHIFT | Qt::Key_Insert)};
}

void PutOnClipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

std::string ClipboardText() {
  return QGuiApplication::clipboard()->text().toStdString();
}

QAction* AddKeyAction(QWidget* window, const char* name,
                      const QList<QKeySequence>& keys,
                      Qt::ShortcutContext context) {
  auto* action = new QAction(window);
  action->setObjectName(QString::fromLatin1(name));
  action->setShortcuts(keys);
  action->setShortcutContext(context);
  window->addAction(action);
  return action;
}

void AddCalculatorClipboard(AppWindows& windows, QWidget* calculator) {
  // Bound to the calculator's own area, not its window: the tape is a
  // window of the calculator's too, and its Copy copies tape lines.
  QAction* copy = AddKeyAction(calculator, "CopyReadout", CopyKeys(),
                               Qt::WidgetWithChildrenShortcut);
  QObject::connect(copy, &QAction::triggered, calculator, [&windows] {
    PutOnClipboard(Calculator_CopyText(windows.app()));
  });
  QAction* paste = AddKeyAction(calculator, "PasteReadout", PasteKeys(),
                                Qt::WidgetWithChildrenShortcut);
  QObject::connect(paste, &QAction::triggered, calculator, [&windows] {
    const std::string text = ClipboardText();
    windows.Run([&text](App& app) { Readout_Paste(app, text); });
  });
}

void AddTapeClipboard(AppWindows& windows, QWidget* tapeWindow,
                      QAbstractItemView* grid) {
  // Lines can be picked for Copy; a pick changes nothing else.
  grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
  grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  QAction* copy = AddKeyAction(tapeWindow, "CopyTape", CopyKeys(),
                               Qt::WidgetWithChildrenShortcut);
  QObject::connect(copy, &QAction::triggered, tapeWindow, [&windows, grid] {
    // The grid's row n is line n of every tape (row 0 heads them); a picked
    // row spans every tape's column, so the rows are read from the ranges.
    std::vector<int> rows;
    if (QItemSelectionModel* selection = grid->selectionModel()) {
      for (const QItemSelectionRange& range : selection->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
          rows.push_back(row);
        }
      }
    }
    PutOnClipboard(TapeForm_CopyText(windows.app(), rows));
  });
}

}  // namespace brenko::ui
