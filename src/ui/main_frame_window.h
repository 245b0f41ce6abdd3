#pragma once
// The main frame MDIForm1: a window whose client area holds the memory
// windows. It is made the first time the model wants it shown (the first
// memory), so a start-up without memories never pays for it.
//
// Geometry: the model holds the frame's OUTER rectangle in twips, as the
// arranging rules measure it; its client area is the outer size less the
// frame allowances kFrameBorderWidth/Height (MainFrameForm::InnerWidth and
// InnerHeight). The Qt window is exactly that client area (the memory
// windows' area) and the window manager adds its frame around it; the
// model's left and top are the frame's place on the screen (QWidget::move).
// Closing the frame never ends the program: the core empties and hides it.

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "core/base/platform.h"
#include "ui/user_placement.h"

class QMdiArea;
class QMdiSubWindow;
class QProgressBar;
class QProgressDialog;
class QStyle;

namespace brenko::ui {

class AppWindows;
class MemoryWindow;

class MainFrameWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainFrameWindow(AppWindows& windows);
  ~MainFrameWindow() override;

  // Re-reads the frame's model and makes the memory windows match the open
  // memories (made, updated, taken away).
  void Refresh();

  QMdiArea* Area() const { return area_; }
  // The window of an open memory, or nullptr.
  MemoryWindow* Memory(int number) const;
  int MemoryCount() const { return static_cast<int>(memories_.size()); }

  // How many memory windows are made in one refresh: all of them up to
  // `atOnce`, beyond that `perStep` at each turn of the event loop; those
  // are then shown `perReveal` at each turn. More than `atOnce` windows
  // going at once go out of sight at once and are deleted `perTakeAway` at
  // each turn.
  struct Pace {
    int atOnce = 2000;
    int perStep = 250;
    int perReveal = 1000;
    int perTakeAway = 2000;
  };
  void SetPace(Pace pace) { pace_ = pace; }
  // Whether the windows of the open memories are still coming, a step at a
  // time (the progress dialog is up).
  bool Stepping() const;
  // Whether windows taken away are still being deleted, a step at a time.
  bool TakingAway() const { return !takenAway_.empty(); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ApplyGeometry();
  void SyncMemories();
  // A window made in this refresh and the place of its form.
  struct MadeWindow {
    MemoryWindow* window;
    std::size_t form;
  };
  // Whether every open memory has its window now; those made are added to
  // `made`.
  bool MakeAndTakeAwayWindows(std::vector<MadeWindow>& made);
  void ShowProgress();
  void EndProgress();
  void EnableMadeWindows();
  // Makes the next paint one of the whole frame, whatever asks for one
  // meanwhile.
  void PaintAllNext();
  // Takes the windows of closed memories away.
  void TakeAway(const std::vector<MemoryWindow*>& going);
  // Takes thousands of windows out of sight now and deletes them a step at
  // a time.
  void TakeAwayLater(const std::vector<MemoryWindow*>& going);
  // Deletes up to `budget` of the windows taken away.
  void DeleteTakenAway(int budget);
  void OnSubWindowActivated(QMdiSubWindow* window);
  // Around an activation: the area marks every window's title bar for
  // painting, though only the one leaving and the one coming change.
  void HoldUnchangedTitleBars(QMdiSubWindow* activating);
  void ReleaseTitleBars();

  AppWindows& windows_;
  QMdiArea* area_;
  QWidget* veil_;
  QStyle* memoryStyle_;
  std::map<int, QPointer<MemoryWindow>> memories_;
  UserPlacement placement_;
  // The memories' revision the windows were last made for.
  std::optional<std::uint64_t> shownMemories_;
  // The windows in the order of the open memories, made with them.
  std::vector<QPointer<MemoryWindow>> inOrder_;
  // What the memory windows were last compared with their forms for.
  struct Looked {
    std::uint64_t forms = 0;
    std::uint64_t moves = 0;
    ScreenInfo screen;
    bool operator==(const Looked&) const = default;
  };
  std::optional<Looked> looked_;
  // Counts the memory windows' moves and resizes, whoever made them.
  std::uint64_t memoryMoves_ = 0;
  // Windows made together, kept disabled until all are shown; the last
  // made is revealed first.
  std::vector<QPointer<MemoryWindow>> bulk_;
  // Whether windows made together are still to be revealed, enabled and
  // one made active.
  bool revealing_ = false;
  // The window made active once all are revealed.
  QPointer<MemoryWindow> activeAtEnd_;
  // How many of a large file's windows have been revealed.
  int revealed_ = 0;
  Pace pace_;
  QPointer<QProgressDialog> progress_;
  QProgressBar* progressBar_ = nullptr;
  bool areaHidden_ = false;
  // Brings the next step of a large file's windows.
  QTimer nextStep_;
  // Windows out of sight, still to be deleted, and the timer that deletes
  // them a step at a time.
  std::vector<QPointer<MemoryWindow>> takenAway_;
  QTimer takeAwayStep_;
  bool areaHiddenWhileTakingAway_ = false;
  // Whether the next step may make windows.
  bool stepDue_ = true;
  // Whether the next step may reveal windows.
  bool revealDue_ = false;
  // Windows whose painting is held during an activation.
  std::vector<QPointer<MemoryWindow>> held_;
};

}  // namespace brenko::ui
