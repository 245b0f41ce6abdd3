#include "ui/memory_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOptionTitleBar>
#include <algorithm>
#include <map>

#include "core/commands/app.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "ui/accessible_names.h"
#include "ui/app_windows.h"
#include "ui/color_number.h"
#include "ui/drag_controller.h"
#include "ui/fit_text.h"
#include "ui/label_view.h"
#include "ui/memory_context_menu.h"
#include "ui/twips.h"

namespace brenko::ui {
namespace {

DropTarget LabelTarget(int number) {
  return {DropTarget::kMemoryLabel, number};
}

DragSource MemorySource(int number) {
  DragSource source;
  source.kind = DragSource::kMemory;
  source.memoryNumber = number;
  return source;
}

// The application's style with its standard icons read once. Every memory
// window, made under the application's style before it takes its own, asks
// for the title bar's and its window menu's icons, and the base style reads
// each from its image file every time: a memory file of a thousand memories
// read five thousand images.
class IconKeepingStyle : public QProxyStyle {
 public:
  IconKeepingStyle() = default;
  explicit IconKeepingStyle(const QString& base) : QProxyStyle(base) {}

  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override {
    if (option != nullptr || (widget != nullptr && widget->isRightToLeft())) {
      return QProxyStyle::standardIcon(icon, option, widget);
    }
    auto it = icons_.find(icon);
    if (it == icons_.end()) {
      it = icons_
               .emplace(icon, QProxyStyle::standardIcon(icon, nullptr, nullptr))
               .first;
    }
    return it->second;
  }

 private:
  mutable std::map<StandardPixmap, QIcon> icons_;
};

class MemoryWindowStyle : public IconKeepingStyle {
 public:
  // A slim title bar with a drawn cross; its icons are read once too.
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_TitleBarHeight:
        return 18;
      case PM_MdiSubWindowFrameWidth:
        return 2;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  // The slim title bar leaves the style's own close mark a dot; a cross
  // the size of the button is drawn over it.
  void drawComplexControl(ComplexControl control,
                          const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const auto* window = qobject_cast<const MemoryWindow*>(widget);
    if (control != CC_TitleBar || bar == nullptr || window == nullptr) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      return;
    }
    // The window leaves its title to be fitted here (see MemoryWindow::event).
    QStyleOptionTitleBar titled = *bar;
    titled.text = window->windowTitle();
    const int width =
        subControlRect(CC_TitleBar, &titled, SC_TitleBarLabel, widget).width();
    titled.text = window->ShownTitle(width);
    painter->save();
    painter->setFont(window->TitleFont());
    QProxyStyle::drawComplexControl(control, &titled, painter, widget);
    painter->restore();
    if (!(bar->subControls & SC_TitleBarCloseButton)) return;
    const QRect button =
        subControlRect(CC_TitleBar, bar, SC_TitleBarCloseButton, widget);
    if (!button.isValid()) return;
    const QRect cross = button.adjusted(3, 3, -3, -3);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, true);
    const bool active = (bar->titleBarState & Qt::WindowActive) != 0 ||
                        (bar->state & State_Active) != 0;
    painter->setPen(QPen(active ? QColor(Qt::white) : QColor(50, 50, 50), 1.5));
    painter->drawLine(cross.topLeft(), cross.bottomRight());
    painter->drawLine(cross.topRight(), cross.bottomLeft());
    painter->restore();
  }
};

// A memory window's parts paint their own background instead of having Qt
// fill it: a filled widget counts as opaque, and the frame then adds every
// memory window's rectangle into one region whenever a window comes, moves
// or goes, which costs milliseconds with a thousand memories.
void PaintBackground(QWidget* widget) {
  QPainter painter(widget);
  painter.fillRect(widget->rect(),
                   widget->palette().color(widget->backgroundRole()));
}

}  // namespace

void KeepStandardIcons() {
  QStyle* style = QApplication::style();
  if (style == nullptr || dynamic_cast<IconKeepingStyle*>(style) != nullptr) {
    return;
  }
  // The same style by name, its palette the one the application had.
  const QPalette palette = QApplication::palette();
  QApplication::setStyle(new IconKeepingStyle(style->name()));
  QApplication::setPalette(palette);
}

QStyle* MakeMemoryWindowStyle(QObject* owner) {
  auto* style = new MemoryWindowStyle();
  style->setParent(owner);
  return style;
}

MemoryValueLabel::MemoryValueLabel(AppWindows& windows, int number,
                                   QWidget* parent)
    : QLabel(parent), windows_(windows), number_(number) {
  setObjectName(QStringLiteral("Label1"));
  // Its background is painted by its own paint (see PaintBackground).
  setAcceptDrops(true);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFrameShape(QFrame::Panel);
  setFrameShadow(QFrame::Sunken);
}

void MemoryValueLabel::paintEvent(QPaintEvent* event) {
  PaintBackground(this);
  QLabel::paintEvent(event);
}

void MemoryValueLabel::mousePressEvent(QMouseEvent* event) {
  if (!DragController::For(windows_).SourcePressed(MemorySource(number_),
                                                   event)) {
    QLabel::mousePressEvent(event);
  }
}

void MemoryValueLabel::mouseMoveEvent(QMouseEvent* event) {
  if (!DragController::For(windows_).SourceMoved(event)) {
    QLabel::mouseMoveEvent(event);
  }
}

void MemoryValueLabel::mouseReleaseEvent(QMouseEvent* event) {
  DragController::For(windows_).SourceReleased();
  QLabel::mouseReleaseEvent(event);
}

void MemoryValueLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  DragController::For(windows_).SourceReleased();
  const int number = number_;
  windows_.Run([number](App& app) { MemoryForm_Label1_DblClick(app, number); });
}

void MemoryValueLabel::dragEnterEvent(QDragEnterEvent* event) {
  DragController::For(windows_).Enter(LabelTarget(number_), event);
}

void MemoryValueLabel::dragMoveEvent(QDragMoveEvent* event) {
  DragController::For(windows_).Move(LabelTarget(number_), event);
}

void MemoryValueLabel::dropEvent(QDropEvent* event) {
  DragController::For(windows_).Drop(LabelTarget(number_), event);
}

// The model's geometry while the memory is open.
UserPlacement::Model PlacementOf(int number) {
  return {[number](App& app) -> Rect* {
            MemoryForm* form = app.memory.Find(number);
            return form == nullptr ? nullptr : &form->geometry;
          },
          0, 0, [number](App& app) { MemoryForm_Form_Resize(app, number); },
          true};
}

MemoryWindow::MemoryWindow(AppWindows& windows, int number, QStyle* style)
    : windows_(windows),
      number_(number),
      placement_(windows, *this, PlacementOf(number)),
      titleFont_(QApplication::font("QMdiSubWindowTitleBar")) {
  setObjectName(QStringLiteral("memory%1").arg(number));
  if (style != nullptr) setStyle(style);
  // The frame decides when a memory window goes: after the core unloaded it.
  setAttribute(Qt::WA_DeleteOnClose, false);
  // Only the close button; memory windows are neither minimised nor
  // maximised inside the frame. All of them stay on top, so of nothing but
  // each other: raising a window without the hint, the area first walks
  // all the others for windows that have it, at every activation.
  setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
  // Nor the window menu Qt gives a sub-window: its commands (restore, move,
  // size, minimise, maximise) are not a memory window's, and its keyboard
  // shortcuts, one set per window, make every window that comes or goes
  // walk those of all the others.
  setSystemMenu(nullptr);
  client_ = new QWidget(this);
  client_->setObjectName(QStringLiteral("client"));
  client_->installEventFilter(this);
  label_ = new MemoryValueLabel(windows, number, client_);
  AttachMemoryContextMenu(windows, number, label_);
  setWidget(client_);
}

// The title is fitted to the title bar only when the bar is painted. The
// base class fits it again each time any window of the frame becomes
// active, for every window: with a thousand memories, a thousand texts laid
// out per click. So it is not told of the title (it shows an empty one,
// drawn over by the style with this).
bool MemoryWindow::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowTitleChange:
      update();
      return QWidget::event(event);
    case QEvent::FontChange:
      titleFont_ = font();
      break;
    default:
      break;
  }
  return QMdiSubWindow::event(event);
}

QString MemoryWindow::ShownTitle(int width) const {
  const ShownTitleKey key{windowTitle(), width, titleFont_};
  if (!(shownTitleFor_ == key)) {
    shownTitle_ =
        QFontMetrics(titleFont_).elidedText(key.title, Qt::ElideRight, width);
    shownTitleFor_ = key;
  }
  return shownTitle_;
}

void MemoryWindow::Refresh(const MemoryForm& form, const ScreenInfo& screen) {
  if (shownForm_ == form && shownScreen_ == screen &&
      geometry() == shownRect_) {
    return;
  }
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  const QString caption = QString::fromStdString(form.caption);
  if (windowTitle() != caption) setWindowTitle(caption);
  ApplyLabelLook(label_, form.label1);
  SetBackground(client_, ToQColor(form.backColor), false);

  const QRect rect = TwipsToPixels(form.geometry, tx, ty);
  {
    const UserPlacement::Following following(placement_);
    const bool place = placement_.TakesPlace(rect.topLeft());
    const bool size = placement_.TakesSize(rect.size());
    if (place || size || geometry() != rect) setGeometry(rect);
  }

  labelRect_ = TwipsToPixels(form.label1.rect, tx, ty);
  PlaceLabel();
  FitCaption(label_, client_->font());
  const bool visible = form.visible;
  if (!heldBack_ && visible == isHidden()) setVisible(visible);
  NameMemory(this, form);
  shownForm_ = form;
  shownScreen_ = screen;
  shownRect_ = geometry();
}

void MemoryWindow::HoldBack() {
  heldBack_ = true;
  // Hidden explicitly: a child never shown or hidden comes with its parent.
  hide();
}

void MemoryWindow::Reveal() {
  heldBack_ = false;
  if (shownForm_ && shownForm_->visible == isHidden()) {
    setVisible(shownForm_->visible);
  }
}

void MemoryWindow::PlaceLabel() {
  // The label keeps its place in the client area; where the window's title
  // bar leaves less room than the label's height, the label moves up (and
  // shrinks at most to what there is) so that the value stays readable.
  QRect rect = labelRect_;
  const int room = client_->height();
  if (room > 0 && rect.bottom() >= room) {
    rect.setHeight(std::min(rect.height(), room));
    rect.moveTop(std::max(0, room - rect.height()));
  }
  if (label_->geometry() != rect) label_->setGeometry(rect);
}

// A size the user gave the window by its border.
void MemoryWindow::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  emit PlaceChanged();
  placement_.Resized();
}

// A place the user dragged the window to: the model keeps it.
void MemoryWindow::moveEvent(QMoveEvent* event) {
  QMdiSubWindow::moveEvent(event);
  emit PlaceChanged();
  placement_.Moved();
}

void MemoryWindow::closeEvent(QCloseEvent* event) {
  // The core unloads the memory; the frame then takes the window away.
  event->ignore();
  const int number = number_;
  inCloseEvent_ = true;
  const QPointer<MemoryWindow> self(this);
  windows_.Run([number](App& app) { MemoryForm_Form_Unload(app, number); });
  if (self) inCloseEvent_ = false;
}

bool MemoryWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != client_) return QMdiSubWindow::eventFilter(watched, event);
  const int number = number_;
  switch (event->type()) {
    case QEvent::Paint:
      PaintBackground(client_);
      return false;
    case QEvent::Resize:
      PlaceLabel();
      return false;
    case QEvent::MouseButtonRelease:
      // As the window always had it: the mouse-up, then the click.
      windows_.Run([number](App& app) {
        MemoryForm_Form_MouseUp(app, number);
        MemoryForm_Form_Click(app, number);
      });
      return false;
    case QEvent::MouseButtonDblClick:
      windows_.Run(
          [number](App& app) { MemoryForm_Form_DblClick(app, number); });
      return true;
    default:
      return QMdiSubWindow::eventFilter(watched, event);
  }
}

}  // namespace brenko::ui
