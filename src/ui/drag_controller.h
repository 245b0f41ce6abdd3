#pragma once
// Real drag and drop between the calculator's readout, the memories' value
// labels and the converter. The controls only report their mouse and drag
// events here; they go on to the core's drag routes (BeginDrag, DragOver,
// DropOn), the same the scenario runner takes: the over handlers choose the
// picture and the drop handlers do the transfer, after which every window is
// refreshed.
//
// The picture: the dragged page (the plain picture) travels with the pointer
// as the drag's pixmap; over a target the pointer itself becomes the picture
// the core chose for the dragged control (add, subtract, multiply, divide,
// drop here), drawn over the page, so it changes as the pointer crosses a
// target's midpoint.

#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <memory>
#include <optional>
#include <string>

#include "core/commands/drag_routes.h"
#include "core/memory/drag_source.h"

class QDrag;
class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;
class QMimeData;
class QMouseEvent;
class QWidget;

namespace brenko::ui {

class AppWindows;
class DragPictures;

class DragController : public QObject {
  Q_OBJECT

 public:
  // The one controller of these windows, made on first use as their child.
  static DragController& For(AppWindows& windows);

  explicit DragController(AppWindows& windows);
  ~DragController() override;

  // Makes the calculator's readout a drag source and a drop target. Every
  // press on it goes to the readout's own mouse-down: the left button
  // starts a drag, the right one opens the context menu.
  void AttachReadout(QWidget* readout);

  // Mouse events of a control that can be dragged. A press goes to the
  // core's BeginDrag; when that starts a drag it is made once the pointer
  // has moved the platform's drag distance with the left button held, so a
  // plain click never drops a value onto itself. False when the press
  // starts no drag.
  bool SourcePressed(const DragSource& source, QMouseEvent* event);
  // True when the move started (and finished) a drag.
  bool SourceMoved(QMouseEvent* event);
  void SourceReleased();
  // What a drag of the control carries: which control it is, for our own
  // windows, and its value as plain text, for other programs.
  std::unique_ptr<QMimeData> MimeFor(const DragSource& source) const;
  // Runs a whole drag of this control; returns when it is dropped or
  // cancelled.
  void StartDrag(const DragSource& source);

  // Drag events of a target control; `local` points are in its pixels.
  void Enter(const DropTarget& target, QDragEnterEvent* event);
  void Move(const DropTarget& target, QDragMoveEvent* event);
  void Drop(const DropTarget& target, QDropEvent* event);

  // What the events come to, without an event: the over and drop handlers
  // at a point of the target control (tests and the events use these).
  void OverAt(const DropTarget& target, const DragSource& source,
              QPointF local);
  void DropAt(const DropTarget& target, const DragSource& source,
              QPointF local);

  // The drop point in the handlers' coordinates: twips in the target
  // control's container.
  QPointF TargetTwips(const DropTarget& target, QPointF local) const;

  // The picture the dragged control carries now ("Image1" ... "DropHere").
  std::string SourcePicture(const DragSource& source) const;
  const DragPictures& Pictures();
  bool Dragging() const { return active_.has_value(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The source a drag event carries, when it is ours and still exists.
  std::optional<DragSource> SourceOf(const QMimeData* mime) const;
  // Text from another program dropped on `target`, when it may go there
  // and is a measurement.
  static std::optional<DragSource> TextSourceOf(const DropTarget& target,
                                                const QMimeData* mime);
  std::optional<DragSource> Accept(const DropTarget& target,
                                   QDropEvent* event) const;
  void ShowPicture();

  AppWindows& windows_;
  std::unique_ptr<DragPictures> pictures_;
  QPointer<QWidget> readout_;
  QPointer<QDrag> drag_;
  std::optional<DragSource> active_;
  std::optional<DragSource> pressed_;
  QPoint pressPos_;
};

}  // namespace brenko::ui
