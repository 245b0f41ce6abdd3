#include "ui/shortcuts.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QVariant>
#include <memory>

#include "core/commands/clipboard_handlers.h"
#include "core/commands/shell_handlers.h"
#include "ui/app_windows.h"
#include "ui/clipboard.h"
#include "ui/memory_context_menu.h"
#include "ui/memory_window.h"

namespace brenko::ui {

namespace {

struct EntryKey {
  MenuId entry;
  QKeyCombination key;
};

const EntryKey kEntryKeys[] = {
    {MenuId::mnuOpen, Qt::CTRL | Qt::Key_O},
    {MenuId::mnuSave, Qt::CTRL | Qt::Key_S},
    {MenuId::mnuSaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
    {MenuId::mnuPrint, Qt::CTRL | Qt::Key_P},
    {MenuId::Exit, Qt::CTRL | Qt::Key_Q},
    {MenuId::mnuHelpContents, QKeyCombination(Qt::Key_F1)},
};

// Access keys for the entries whose captions have none: the character
// before which the mark goes.
struct AccessKey {
  MenuId entry;
  int at;
};

const AccessKey kAccessKeys[] = {
    {MenuId::Sixteen, 2},        // 1/&16"
    {MenuId::thirtysecond, 2},   // 1/&32"
    {MenuId::ZoomSmall, 0},      // &75%
    {MenuId::ZoomLarge, 0},      // &100%
    {MenuId::Circumference, 0},  // &Circumference...
    {MenuId::CircArea, 0},       // &Area of circle...
    {MenuId::CylVolume, 0},      // &Volume of cylinder...
    {MenuId::mnuDiagonal, 0},    // &Diagonal...
};

// The value label of a memory window is marked while its window is the
// active one: a plain, heavier frame instead of the sunken one.
void SetMarked(QMdiSubWindow* window, bool marked) {
  auto* memory = qobject_cast<MemoryWindow*>(window);
  if (memory == nullptr) return;
  QLabel* label = memory->ValueLabel();
  label->setFrameShadow(marked ? QFrame::Plain : QFrame::Sunken);
  label->setLineWidth(marked ? 2 : 1);
  label->setProperty("activeMemory", marked);
}

// Only the window that was marked and the one becoming active are touched:
// with a thousand memories, walking them all at every activation shows.
class ActiveMark {
 public:
  void Move(QMdiSubWindow* active) {
    if (marked_ == active) return;
    if (marked_) SetMarked(marked_, false);
    if (active != nullptr) SetMarked(active, true);
    marked_ = active;
  }

 private:
  QPointer<QMdiSubWindow> marked_;
};

MemoryWindow* ActiveMemory(QMdiArea* area) {
  return qobject_cast<MemoryWindow*>(area->activeSubWindow());
}

}  // namespace

QList<QKeySequence> MenuEntryKeys(MenuId entry) {
  for (const EntryKey& key : kEntryKeys) {
    if (entry == key.entry) return {QKeySequence(key.key)};
  }
  return {};
}

QString MenuEntryCaption(MenuId entry, const std::string& caption) {
  QString text = QString::fromStdString(caption);
  for (const AccessKey& key : kAccessKeys) {
    if (entry == key.entry && !text.contains(QLatin1Char('&')) &&
        key.at < text.size()) {
      text.insert(key.at, QLatin1Char('&'));
    }
  }
  return text;
}

QList<QKeySequence> ContextMenuKeys() {
  return {QKeySequence(Qt::SHIFT | Qt::Key_F10), QKeySequence(Qt::Key_Menu)};
}

void AddCalculatorContextKeys(AppWindows& windows, QWidget* calculator) {
  QAction* open = AddKeyAction(calculator, "ContextMenuKey", ContextMenuKeys());
  QObject::connect(open, &QAction::triggered, calculator, [&windows] {
    // The key does what the right button on the calculator does.
    windows.Run([](App& app) { Form_MouseDown(app, kRightButton); });
  });
}

void AddMemoryKeys(AppWindows& windows, QMainWindow* frame, QMdiArea* area) {
  QAction* next =
      AddKeyAction(frame, "NextMemory", {QKeySequence(Qt::CTRL | Qt::Key_Tab)});
  QObject::connect(next, &QAction::triggered, area,
                   &QMdiArea::activateNextSubWindow);
  QAction* previous =
      AddKeyAction(frame, "PreviousMemory",
                   {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab)});
  QObject::connect(previous, &QAction::triggered, area,
                   &QMdiArea::activatePreviousSubWindow);
  QAction* copy = AddKeyAction(frame, "CopyMemory", CopyKeys());
  QObject::connect(copy, &QAction::triggered, area, [&windows, area] {
    if (MemoryWindow* memory = ActiveMemory(area)) {
      PutOnClipboard(MemoryForm_CopyText(windows.app(), memory->Number()));
    }
  });
  QAction* menu = AddKeyAction(frame, "MemoryMenuKey", ContextMenuKeys());
  QObject::connect(menu, &QAction::triggered, area, [&windows, area] {
    if (MemoryWindow* memory = ActiveMemory(area)) {
      QLabel* label = memory->ValueLabel();
      ShowMemoryContextMenu(windows, memory->Number(), label,
                            label->rect().bottomLeft());
    }
  });
  auto mark = std::make_shared<ActiveMark>();
  QObject::connect(area, &QMdiArea::subWindowActivated, area,
                   [mark](QMdiSubWindow* active) { mark->Move(active); });
}

}  // namespace brenko::ui
