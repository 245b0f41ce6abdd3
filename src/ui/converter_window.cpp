#include "ui/converter_window.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPalette>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cstddef>

#include "core/commands/app.h"
#include "core/commands/converter_handlers.h"
#include "core/converter/converter.h"
#include "ui/app_windows.h"
#include "ui/calculator_client.h"
#include "ui/color_number.h"
#include "ui/companions.h"
#include "ui/drag_controller.h"
#include "ui/fit_text.h"
#include "ui/label_view.h"
#include "ui/screen_fit.h"
#include "ui/twips.h"
#include "ui/window_buttons.h"

namespace brenko::ui {
namespace {

constexpr DropTarget kLabelTarget{DropTarget::kConverterLabel, 0};
constexpr DropTarget kWindowTarget{DropTarget::kConverter, 0};

}  // namespace

ConverterWindow::ConverterWindow(AppWindows& windows)
    : QWidget(nullptr, kConverterButtons),
      windows_(windows),
      placement_(windows, *this,
                 {[](App& app) { return &app.converter.geometry; },
                  kConverterNonClientWidth, kConverterNonClientHeight,
                  Converter_Form_Resize}) {
  setObjectName(QStringLiteral("Converter"));
  setWindowTitle(QStringLiteral("Converter"));
  setAutoFillBackground(true);
  setAcceptDrops(true);
  // Showing the converter leaves the keyboard with the calculator.
  setAttribute(Qt::WA_ShowWithoutActivating, true);
  label1_ = new QLabel(this);
  label1_->setObjectName(QStringLiteral("Label1"));
  label1_->setAutoFillBackground(true);
  label1_->setAcceptDrops(true);
  label1_->setFrameShape(QFrame::Panel);
  label1_->setFrameShadow(QFrame::Sunken);
  label1_->installEventFilter(this);
  for (std::size_t i = 0; i < lblLabel_.size(); ++i) {
    auto* label = new QLabel(this);
    label->setObjectName(QStringLiteral("lblLabel%1").arg(i));
    if (i >= 2) {
      label->setAutoFillBackground(true);
      label->setFrameShape(QFrame::Panel);
      label->setFrameShadow(QFrame::Sunken);
      label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    label->installEventFilter(this);
    lblLabel_[i] = label;
  }
}

QLabel* ConverterWindow::Result(int index) const {
  if (index < 0 || index >= static_cast<int>(lblLabel_.size())) return nullptr;
  return lblLabel_[static_cast<std::size_t>(index)];
}

void ConverterWindow::Refresh() {
  const ConverterForm& form = windows_.app().converter;
  const ScreenInfo screen = windows_.app().platform.Screen();
  if (!shown_ || *shown_ != form || shownScreen_ != screen ||
      (isVisible() && !placedWhileShown_)) {
    Apply(form, screen);
    shown_ = form;
    shownScreen_ = screen;
    placedWhileShown_ = isVisible();
  }
  const UserPlacement::Following following(placement_);
  ShowCompanion(windows_, *this, form.visible);
}

void ConverterWindow::Apply(const ConverterForm& form,
                            const ScreenInfo& screen) {
  const QColor back = ToQColor(form.backColor);
  SetBackground(this, back, true);
  ApplyLabel(label1_, form.label1, screen);
  FitCaption(label1_, font());
  for (std::size_t i = 0; i < lblLabel_.size(); ++i) {
    ApplyLabel(lblLabel_[i], form.lblLabel[i], screen);
    FitCaption(lblLabel_[i], font());
  }
  // The fixed captions are transparent: they sit on the window's colour.
  for (QLabel* fixed : {lblLabel_[0], lblLabel_[1]}) {
    QPalette text = fixed->palette();
    if (text.color(QPalette::WindowText) != TextColorOn(back)) {
      text.setColor(QPalette::WindowText, TextColorOn(back));
      fixed->setPalette(text);
    }
  }
  ApplyGeometry();
}

void ConverterWindow::ApplyGeometry() {
  const ConverterForm& form = windows_.app().converter;
  const ScreenInfo screen = windows_.app().platform.Screen();
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  const QSize client(
      std::max(
          1, TwipsToPixels(form.geometry.width - kConverterNonClientWidth, tx)),
      std::max(1, TwipsToPixels(
                      form.geometry.height - kConverterNonClientHeight, ty)));
  const QPoint place(TwipsToPixels(form.geometry.left, tx),
                     TwipsToPixels(form.geometry.top, ty));
  const UserPlacement::Following following(placement_);
  // The converter is as high as its model says (one of its two heights);
  // its width the user may change, so that a long value can be read whole,
  // but to half the screen at most: however it is asked (a window
  // manager's maximise included) it stays a window beside the calculator,
  // never a banner across the screen with its results out of sight.
  const bool sized = placement_.TakesSize(client);
  const QScreen* shownOn = this->screen();
  const QSize largest(
      std::max(client.width(), shownOn != nullptr
                                   ? shownOn->availableGeometry().width() / 2
                                   : QWIDGETSIZE_MAX),
      client.height());
  const QSize smallest(0, client.height());
  if (maximumSize() != largest) setMaximumSize(largest);
  if (minimumSize() != smallest) setMinimumSize(smallest);
  if (sized) resize(client);
  const QPoint shown = placement_.OnScreen(
      place, client, [&] { return ShownPlace(*this, place, client); });
  if (placement_.TakesPlace(shown)) move(shown);
}

bool ConverterWindow::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (watched == label1_) {
    switch (type) {
      case QEvent::MouseButtonDblClick:
        windows_.Run([](App& app) { Converter_Label1_DblClick(app); });
        return true;
      case QEvent::DragEnter:
        DragController::For(windows_).Enter(
            kLabelTarget, static_cast<QDragEnterEvent*>(event));
        return true;
      case QEvent::DragMove:
        DragController::For(windows_).Move(kLabelTarget,
                                           static_cast<QDragMoveEvent*>(event));
        return true;
      case QEvent::Drop:
        DragController::For(windows_).Drop(kLabelTarget,
                                           static_cast<QDropEvent*>(event));
        return true;
      default:
        return QWidget::eventFilter(watched, event);
    }
  }
  // The captions and result labels have no double click of their own; it
  // must not reach the window's.
  if (type == QEvent::MouseButtonDblClick) return true;
  return QWidget::eventFilter(watched, event);
}

void ConverterWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  windows_.Run([](App& app) { Converter_Form_DblClick(app); });
}

void ConverterWindow::dragEnterEvent(QDragEnterEvent* event) {
  DragController::For(windows_).Enter(kWindowTarget, event);
}

void ConverterWindow::dragMoveEvent(QDragMoveEvent* event) {
  DragController::For(windows_).Move(kWindowTarget, event);
}

void ConverterWindow::dropEvent(QDropEvent* event) {
  DragController::For(windows_).Drop(kWindowTarget, event);
}

// A size the user gave the window: the labels follow its width and the core
// puts the height back to one of its two. A maximised converter would be a
// banner across the screen with its results out of sight: it is put back at
// once, and the maximised size never reaches the model. (The window manager may
// send the new size before it says the window is maximised: a size across the
// whole screen is its.)
void ConverterWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (isMaximized() || isFullScreen() || SpansScreen(*this)) return;
  placement_.Resized();
}

void ConverterWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange &&
      (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))) {
    // Once the window manager is done maximising: asked while it is at it,
    // the request may be lost.
    QTimer::singleShot(0, this, [this] {
      if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))) {
        return;
      }
      showNormal();
      windows_.Refresh();
    });
  }
}

// A place the user gave the window: kept for the settings.
void ConverterWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  placement_.Moved();
}

void ConverterWindow::closeEvent(QCloseEvent* event) {
  // The window's own close unloads it, as its close box always did; the
  // refresh then hides it.
  event->ignore();
  if (windows_.ShuttingDown()) return;
  windows_.Run([](App& app) { Converter_Form_Unload(app); });
}

}  // namespace brenko::ui
