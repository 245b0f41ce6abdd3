#include "ui/companions.h"

#include <QWidget>

#include "core/commands/app.h"
#include "ui/app_windows.h"

namespace brenko::ui {

void AttachCompanion(QWidget& calculator, QWidget& companion) {
  // A top-level window with a parent is its transient window; the flags
  // (a tool window, frameless or not) stay its own.
  companion.setParent(&calculator, companion.windowFlags());
}

bool CompanionsAway(const AppWindows& windows) {
  const QWidget* calculator = windows.Existing({WindowKind::kCalculator, 0});
  return windows.app().calculator.state == WindowState::kMinimized ||
         (calculator != nullptr && calculator->isMinimized());
}

void ShowCompanion(const AppWindows& windows, QWidget& companion, bool wanted) {
  const bool shown = wanted && !CompanionsAway(windows);
  if (shown && !companion.isVisible()) {
    companion.setWindowState(companion.windowState() & ~Qt::WindowMinimized);
    companion.show();
  } else if (!shown && companion.isVisible()) {
    companion.hide();
  }
}

void RaiseCompanions(const AppWindows& windows) {
  bool raised = false;
  for (WindowKind kind : {WindowKind::kTape, WindowKind::kConverter}) {
    QWidget* companion = windows.Existing({kind, 0});
    if (companion != nullptr && companion->isVisible()) {
      companion->raise();
      raised = true;
    }
  }
  QWidget* calculator = windows.Existing({WindowKind::kCalculator, 0});
  if (raised && calculator != nullptr) calculator->raise();
}

void CalculatorMoved(const AppWindows& windows, QPoint delta) {
  if (delta.isNull()) return;
  QWidget* tape = windows.Existing({WindowKind::kTape, 0});
  if (tape == nullptr || !tape->isVisible()) return;
  tape->move(tape->pos() + delta);
}

}  // namespace brenko::ui
