#include "ui/drag_controller.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QWidget>

#include "core/commands/app.h"
#include "core/commands/clipboard_handlers.h"
#include "core/memory/memory_drag.h"
#include "ui/app_windows.h"
#include "ui/drag_mime.h"
#include "ui/drag_pictures.h"
#include "ui/mouse_button.h"

namespace brenko::ui {

DragController& DragController::For(AppWindows& windows) {
  auto* controller =
      windows.findChild<DragController*>(QString(), Qt::FindDirectChildrenOnly);
  if (controller == nullptr) controller = new DragController(windows);
  return *controller;
}

DragController::DragController(AppWindows& windows)
    : QObject(&windows), windows_(windows) {
  setObjectName(QStringLiteral("DragController"));
}

DragController::~DragController() = default;

const DragPictures& DragController::Pictures() {
  // Drawn at the first drag, not at start-up.
  if (!pictures_) pictures_ = std::make_unique<DragPictures>();
  return *pictures_;
}

void DragController::AttachReadout(QWidget* readout) {
  if (readout == nullptr || readout_ == readout) return;
  readout_ = readout;
  readout->setAcceptDrops(true);
  readout->installEventFilter(this);
}

bool DragController::eventFilter(QObject* watched, QEvent* event) {
  if (watched != readout_ || readout_ == nullptr) {
    return QObject::eventFilter(watched, event);
  }
  const DropTarget readout{DropTarget::kReadout, 0};
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      // Taken here whatever the button: the readout's own mouse-down
      // answers them all, so the window beneath must not see the press.
      SourcePressed(DragSource{}, static_cast<QMouseEvent*>(event));
      return true;
    case QEvent::MouseMove:
      return SourceMoved(static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      SourceReleased();
      return false;
    case QEvent::DragEnter:
      Enter(readout, static_cast<QDragEnterEvent*>(event));
      return true;
    case QEvent::DragMove:
      Move(readout, static_cast<QDragMoveEvent*>(event));
      return true;
    case QEvent::Drop:
      Drop(readout, static_cast<QDropEvent*>(event));
      return true;
    default:
      return QObject::eventFilter(watched, event);
  }
}

bool DragController::SourcePressed(const DragSource& source,
                                   QMouseEvent* event) {
  const int button = ButtonCode(event->button());
  bool starts = false;
  windows_.Run([&](App& app) { starts = BeginDrag(app, source, button); });
  if (!starts) return false;
  pressed_ = source;
  pressPos_ = event->globalPosition().toPoint();
  event->accept();
  return true;
}

bool DragController::SourceMoved(QMouseEvent* event) {
  if (!pressed_ || !(event->buttons() & Qt::LeftButton)) return false;
  const QPoint moved = event->globalPosition().toPoint() - pressPos_;
  if (moved.manhattanLength() < QApplication::startDragDistance()) {
    return false;
  }
  const DragSource source = *pressed_;
  pressed_.reset();
  StartDrag(source);
  return true;
}

void DragController::SourceReleased() { pressed_.reset(); }

void DragController::StartDrag(const DragSource& source) {
  if (active_) return;  // one drag at a time
  // The drag belongs to this controller, not to the dragged control: a
  // refresh during the drag may rebuild the control, never the drag.
  auto* drag = new QDrag(this);
  drag->setMimeData(MimeFor(source).release());
  drag->setPixmap(Pictures().Picture(kPlainPicture));
  drag->setHotSpot(QPoint(DragPictures::kSize / 2, DragPictures::kSize / 2));
  drag_ = drag;
  active_ = source;
  ShowPicture();
  drag->exec(Qt::CopyAction, Qt::CopyAction);
  active_.reset();
  drag_ = nullptr;
  windows_.Refresh();
}

std::unique_ptr<QMimeData> DragController::MimeFor(
    const DragSource& source) const {
  std::unique_ptr<QMimeData> mime = MakeDragMime(source);
  // Another program takes the value as plain text.
  const App& app = windows_.app();
  mime->setText(
      QString::fromStdString(source.kind == DragSource::kMemory
                                 ? MemoryForm_CopyText(app, source.memoryNumber)
                                 : Calculator_CopyText(app)));
  return mime;
}

std::optional<DragSource> DragController::SourceOf(
    const QMimeData* mime) const {
  std::optional<DragSource> source = DragSourceOf(mime);
  if (!source) return std::nullopt;
  std::string caption;
  std::string tag;
  const App& app = windows_.app();
  if (!ReadDragSource(app.calculator, app.memory, *source, caption, tag)) {
    return std::nullopt;
  }
  return source;
}

std::optional<DragSource> DragController::TextSourceOf(const DropTarget& target,
                                                       const QMimeData* mime) {
  // Our own drags are told by their type, whatever text they also carry.
  if (mime == nullptr || DragSourceOf(mime) || !mime->hasText()) {
    return std::nullopt;
  }
  return TextDragSource(target, mime->text().toStdString());
}

// Takes the drag when it carries one of our controls or a measurement's
// text, refuses it otherwise.
std::optional<DragSource> DragController::Accept(const DropTarget& target,
                                                 QDropEvent* event) const {
  std::optional<DragSource> source = SourceOf(event->mimeData());
  if (!source) source = TextSourceOf(target, event->mimeData());
  if (!source) {
    event->ignore();
    return std::nullopt;
  }
  event->setDropAction(Qt::CopyAction);
  event->accept();
  return source;
}

void DragController::Enter(const DropTarget& target, QDragEnterEvent* event) {
  if (const std::optional<DragSource> source = Accept(target, event)) {
    OverAt(target, *source, event->position());
  }
}

void DragController::Move(const DropTarget& target, QDragMoveEvent* event) {
  if (const std::optional<DragSource> source = Accept(target, event)) {
    OverAt(target, *source, event->position());
  }
}

void DragController::Drop(const DropTarget& target, QDropEvent* event) {
  const std::optional<DragSource> source = Accept(target, event);
  if (!source) return;
  DropAt(target, *source, event->position());
}

QPointF DragController::TargetTwips(const DropTarget& target,
                                    QPointF local) const {
  const App& app = windows_.app();
  const ScreenInfo screen = app.platform.Screen();
  const Rect place = DropTargetPlace(app, target);
  return QPointF(DropTwips(place.left, local.x(), screen.twipsPerPixelX),
                 DropTwips(place.top, local.y(), screen.twipsPerPixelY));
}

void DragController::OverAt(const DropTarget& target, const DragSource& source,
                            QPointF local) {
  const QPointF at = TargetTwips(target, local);
  const float x = static_cast<float>(at.x());
  const float y = static_cast<float>(at.y());
  windows_.Run([&](App& app) { DragOver(app, target, source, x, y); });
  ShowPicture();
}

void DragController::DropAt(const DropTarget& target, const DragSource& source,
                            QPointF local) {
  const QPointF at = TargetTwips(target, local);
  const float x = static_cast<float>(at.x());
  const float y = static_cast<float>(at.y());
  windows_.Run([&](App& app) { DropOn(app, target, source, x, y); });
}

std::string DragController::SourcePicture(const DragSource& source) const {
  const App& app = windows_.app();
  return SourceDragIcon(app.calculator, app.memory, source);
}

void DragController::ShowPicture() {
  if (!drag_ || !active_) return;
  // The platform's drag reads the pointer picture of the accepted action
  // on every move, so setting it here changes the pointer at once.
  drag_->setDragCursor(Pictures().Picture(SourcePicture(*active_)),
                       Qt::CopyAction);
}

}  // namespace brenko::ui
