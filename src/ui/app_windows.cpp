#include "ui/app_windows.h"

#include <QCoreApplication>
#include <QMenu>
#include <QWidget>

#include "core/commands/startup.h"
#include "ui/accessible_names.h"
#include "ui/calculator_window.h"
#include "ui/companions.h"
#include "ui/converter_window.h"
#include "ui/drag_controller.h"
#include "ui/main_frame_window.h"
#include "ui/memory_window.h"
#include "ui/qt_platform.h"
#include "ui/tape_window.h"

namespace brenko::ui {

AppWindows::AppWindows(App& app, QtPlatform& platform)
    : app_(app), platform_(platform) {
  platform_.SetWindows(this);
  InstallAccessibleWindows();
}

AppWindows::~AppWindows() {
  platform_.SetWindows(nullptr);
  // The windows are deleted by their owner: the calculator last, since the
  // converter is its (transient) child.
  delete converter_.data();
  delete mainFrame_.data();
  delete tape_.data();
  delete calculator_.data();
}

CalculatorWindow* AppWindows::Calculator() {
  if (!calculator_) {
    calculator_ = new CalculatorWindow(*this);
    WindowMade({WindowKind::kCalculator, 0}, calculator_);
    DragController::For(*this).AttachReadout(calculator_->Readout());
  }
  return calculator_;
}

TapeWindow* AppWindows::Tape() {
  if (!tape_) {
    tape_ = new TapeWindow(*this);
    WindowMade({WindowKind::kTape, 0}, tape_);
  }
  return tape_;
}

MainFrameWindow* AppWindows::MainFrame() {
  if (!mainFrame_) {
    mainFrame_ = new MainFrameWindow(*this);
    WindowMade({WindowKind::kMainFrame, 0}, mainFrame_);
  }
  return mainFrame_;
}

ConverterWindow* AppWindows::Converter() {
  if (!converter_) {
    converter_ = new ConverterWindow(*this);
    AttachCompanion(*Calculator(), *converter_);
    WindowMade({WindowKind::kConverter, 0}, converter_);
  }
  return converter_;
}

QWidget* AppWindows::Existing(WindowRef ref) const {
  switch (ref.kind) {
    case WindowKind::kCalculator:
      return calculator_;
    case WindowKind::kTape:
      return tape_;
    case WindowKind::kConverter:
      return converter_;
    case WindowKind::kMainFrame:
      return mainFrame_;
    case WindowKind::kMemory:
      return mainFrame_ ? mainFrame_->Memory(ref.memoryNumber) : nullptr;
  }
  return nullptr;
}

QMenu* AppWindows::PopupMenu(const std::string& name) {
  if (name == "mnuPopup2") return Tape()->Popup();
  return Calculator()->Popup(name);
}

void AppWindows::WindowMade(WindowRef ref, QWidget* window) {
  platform_.ApplyTopmost(ref, window);
}

void AppWindows::Refresh() {
  // A handler run from inside a refresh (a modal dialog's own event loop)
  // asks for another pass instead of nesting one.
  if (refreshing_) {
    refreshAgain_ = true;
    return;
  }
  refreshing_ = true;
  do {
    refreshAgain_ = false;
    if (app_.shell.quitRequested) {
      refreshing_ = false;
      Shutdown();
      return;
    }
    // The calculator is the program's main window: always made.
    Calculator()->Refresh();
    if (tape_ || app_.tapeWindow.visible) Tape()->Refresh();
    if (mainFrame_ || app_.mainFrame.visible) MainFrame()->Refresh();
    if (converter_ || app_.converter.visible) Converter()->Refresh();
  } while (refreshAgain_);
  NameForAssistiveTechnology(app_, tape_, mainFrame_, converter_);
  refreshing_ = false;
  emit refreshed();
}

void AppWindows::Shutdown() {
  if (shutdown_) return;
  shutdown_ = true;
  if (!app_.shell.quitRequested) {
    try {
      Form_QueryUnload(app_);
      Form_Unload(app_);
    } catch (const std::exception&) {
      // The shutdown completes whatever a step did.
    }
  }
  if (converter_) converter_->hide();
  if (mainFrame_) mainFrame_->hide();
  if (tape_) tape_->hide();
  if (calculator_) calculator_->hide();
  QCoreApplication::quit();
}

}  // namespace brenko::ui
