#include "ui/main_frame_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressBar>
#include <QProgressDialog>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <set>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/memory_window.h"
#include "ui/screen_fit.h"
#include "ui/shortcuts.h"
#include "ui/twips.h"
#include "ui/window_buttons.h"

namespace brenko::ui {

MainFrameWindow::MainFrameWindow(AppWindows& windows)
    : windows_(windows),
      area_(new QMdiArea(this)),
      veil_(new QWidget(this)),
      // Owned by the window owner, so that it outlives every memory window.
      memoryStyle_(MakeMemoryWindowStyle(&windows)),
      placement_(windows, *this,
                 {[](App& app) { return &app.mainFrame.geometry; },
                  kFrameBorderWidth, kFrameBorderHeight, MDIForm_Resize}) {
  KeepStandardIcons();
  setObjectName(QStringLiteral("MDIForm1"));
  area_->setObjectName(QStringLiteral("MDIClient"));
  veil_->setObjectName(QStringLiteral("Veil"));
  veil_->hide();
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The arrangement may make the frame as narrow as one memory window;
  // the area's own minimum (a minimised child's width) must not stop it.
  area_->setMinimumSize(1, 1);
  setCentralWidget(area_);
  // The calculator keeps the keyboard when the frame comes up with a new
  // memory: the user goes on typing where they were.
  setAttribute(Qt::WA_ShowWithoutActivating, true);
  connect(area_, &QMdiArea::subWindowActivated, this,
          &MainFrameWindow::OnSubWindowActivated);
  AddMemoryKeys(windows, this, area_);
  nextStep_.setSingleShot(true);
  nextStep_.setInterval(0);
  connect(&nextStep_, &QTimer::timeout, this, [this] {
    stepDue_ = true;
    revealDue_ = true;
    if (!windows_.ShuttingDown()) windows_.Refresh();
  });
  takeAwayStep_.setInterval(0);
  connect(&takeAwayStep_, &QTimer::timeout, this,
          [this] { DeleteTakenAway(std::max(1, pace_.perTakeAway)); });
}

MainFrameWindow::~MainFrameWindow() {
  delete progress_;
  // The area takes its memory windows down after this part of the frame is
  // gone; it must not report activations to it then.
  disconnect(area_, nullptr, this, nullptr);
  for (const auto& [number, window] : memories_) {
    if (window) disconnect(window, nullptr, this, nullptr);
  }
  for (const QPointer<MemoryWindow>& window : takenAway_) {
    if (window) disconnect(window, nullptr, this, nullptr);
  }
}

MemoryWindow* MainFrameWindow::Memory(int number) const {
  const auto it = memories_.find(number);
  return it == memories_.end() ? nullptr : it->second.data();
}

void MainFrameWindow::Refresh() {
  const MainFrameForm& frame = windows_.app().mainFrame;
  const QString caption = QString::fromStdString(frame.caption);
  if (windowTitle() != caption) setWindowTitle(caption);
  ApplyGeometry();
  SyncMemories();
  const UserPlacement::Following following(placement_);
  if (frame.visible && !isVisible()) {
    show();
  } else if (!frame.visible && isVisible()) {
    hide();
  }
  if (frame.visible && frame.state == WindowState::kNormal &&
      (isMinimized() || isMaximized())) {
    // The core put the frame back to normal (its close does).
    showNormal();
  }
  EnableMadeWindows();
}

void MainFrameWindow::EnableMadeWindows() {
  // Windows made together are enabled once all are made and the area is
  // shown, and one is made active then, which walks them all. A very large
  // file's windows come into sight a step at a time, the topmost (the last
  // made) first: a window below one already shown is then found covered
  // at once. The active one and the dialog's close come at the turn after
  // the last step.
  if (!revealing_ || areaHidden_) return;
  if (Stepping()) {
    if (!revealDue_) return;
    revealDue_ = false;
  }
  if (!bulk_.empty()) {
    const int step = Stepping() ? std::max(1, pace_.perReveal)
                                : std::numeric_limits<int>::max();
    int budget = step;
    PaintAllNext();
    while (!bulk_.empty() && budget > 0) {
      const QPointer<MemoryWindow> window = bulk_.back();
      bulk_.pop_back();
      if (!window) continue;
      --budget;
      window->Reveal();
      window->setEnabled(true);
      ++revealed_;
      // The last window shown is the active one, as when they came one by
      // one.
      if (!activeAtEnd_ && window->isVisible()) activeAtEnd_ = window;
    }
    // A step that found none left (all taken away meanwhile) is the end.
    if (Stepping() && budget < step) {
      progressBar_->setValue(std::min(progressBar_->maximum(),
                                      progressBar_->maximum() / 2 + revealed_));
      nextStep_.start();
      return;
    }
  }
  revealing_ = false;
  const QPointer<MemoryWindow> last = activeAtEnd_;
  activeAtEnd_ = nullptr;
  if (progress_) {
    nextStep_.stop();
    delete progress_;
    progressBar_ = nullptr;
  }
  const UserPlacement::Following following(placement_);
  if (last) area_->setActiveSubWindow(last);
}

// Qt paints again all that a widget being hidden covered, at its next
// paint, and takes every request for paint inside it as one already made.
// Other requests are each weighed against the windows lying above the
// window asking: with thousands of windows each one coming into sight would
// look through all the others. So before many windows change at once, a
// veil over the frame is shown and hidden again; the paint that follows is
// one paint of the frame.
void MainFrameWindow::PaintAllNext() {
  if (!isVisible()) return;
  veil_->setGeometry(rect());
  veil_->show();
  veil_->hide();
}

void MainFrameWindow::ApplyGeometry() {
  const MainFrameForm& frame = windows_.app().mainFrame;
  // A minimised or maximised frame has the window manager's size.
  if (isMinimized() || isMaximized()) return;
  const ScreenInfo screen = windows_.app().platform.Screen();
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  const QSize client(std::max(1, TwipsToPixels(frame.InnerWidth(), tx)),
                     std::max(1, TwipsToPixels(frame.InnerHeight(), ty)));
  const QPoint place(TwipsToPixels(frame.geometry.left, tx),
                     TwipsToPixels(frame.geometry.top, ty));
  const UserPlacement::Following following(placement_);
  const bool sized = placement_.TakesSize(client);
  if (sized) resize(client);
  const QPoint shown = placement_.OnScreen(
      place, client, [&] { return ShownPlace(*this, place, client); });
  // Resized just after a restore, the frame still has its maximised place
  // in Qt's eyes, and the resize would take it there: its place is given
  // again with its size.
  if (placement_.TakesPlace(shown) || sized) move(shown);
}

void MainFrameWindow::SyncMemories() {
  const App& app = windows_.app();
  const UserPlacement::Following following(placement_);
  std::vector<MadeWindow> made;
  if (shownMemories_ != app.memory.Revision()) {
    // The windows made here are shown their forms below, the others only
    // if something changed since the last look.
    if (MakeAndTakeAwayWindows(made)) {
      shownMemories_ = app.memory.Revision();
      EndProgress();
    } else {
      ShowProgress();
    }
  }
  const ScreenInfo screen = app.platform.Screen();
  const auto forms = app.memory.Forms();
  // No form changed, the screen is the same and no window was moved or
  // sized since the last look: every window still shows its form, but for
  // those just made.
  const Looked now{app.memory.FormsRevision(), memoryMoves_, screen};
  if (looked_ == now) {
    for (const MadeWindow& window : made) {
      window.window->Refresh(*forms[window.form], screen);
    }
    return;
  }
  looked_ = now;
  for (std::size_t i = 0; i < forms.size() && i < inOrder_.size(); ++i) {
    if (MemoryWindow* window = inOrder_[i].data()) {
      window->Refresh(*forms[i], screen);
    }
  }
}

bool MainFrameWindow::MakeAndTakeAwayWindows(std::vector<MadeWindow>& madeNow) {
  const App& app = windows_.app();
  const ScreenInfo screen = app.platform.Screen();
  std::size_t missing = 0;
  for (const auto& form : app.memory.Forms()) {
    const auto it = memories_.find(form->number);
    if (it == memories_.end() || !it->second) ++missing;
  }
  // A very large memory file's windows come a step at a time, the event
  // loop running in between (see ShowProgress).
  std::size_t budget = missing;
  if (missing > static_cast<std::size_t>(pace_.atOnce) || Stepping()) {
    // One step per turn of the event loop, however often the windows are
    // refreshed meanwhile.
    budget =
        stepDue_ ? static_cast<std::size_t>(std::max(1, pace_.perStep)) : 0;
    stepDue_ = false;
  }
  // Windows taken away a step at a time are all deleted before any is made,
  // and the area shown again.
  if (missing > 0 && TakingAway()) {
    DeleteTakenAway(std::numeric_limits<int>::max());
  }
  std::set<int> open;
  std::vector<MemoryWindow*> made;
  int madeSinceDelivery = 0;
  const auto forms = app.memory.Forms();
  for (std::size_t index = 0; index < forms.size(); ++index) {
    const auto& form = forms[index];
    open.insert(form->number);
    const auto found = memories_.find(form->number);
    if (found != memories_.end() && found->second) continue;
    if (budget == 0) continue;
    --budget;
    QPointer<MemoryWindow>& window = memories_[form->number];
    window = new MemoryWindow(windows_, form->number, memoryStyle_);
    // A new window and its parts ask for their polish, layout and paint by
    // posted events, and each post or removal looks through all those
    // waiting: thousands of windows made in one go would each look
    // through all the others' requests. They are delivered every hundred
    // windows (Qt's own requests; a handler of ours posted meanwhile only
    // asks for another refresh, which waits for this one).
    if (++madeSinceDelivery >= 100) {
      QCoreApplication::sendPostedEvents();
      madeSinceDelivery = 0;
    }
    connect(window, &MemoryWindow::PlaceChanged, this,
            [this] { ++memoryMoves_; });
    // Its place from the model, given again once the area has it.
    window->setGeometry(TwipsToPixels(form->geometry, screen.twipsPerPixelX,
                                      screen.twipsPerPixelY));
    made.push_back(window);
    madeNow.push_back({window, index});
  }
  if (made.size() > 1) {
    // A memory file's windows come all at once. Each window the area shows
    // would be made the active one in turn, and every activation walks all
    // the windows: a disabled window is never activated, so they stay
    // disabled until all are shown (EnableMadeWindows). Those coming a step
    // at a time are kept out of sight until then.
    const bool stepping =
        Stepping() || missing > static_cast<std::size_t>(pace_.atOnce);
    for (MemoryWindow* window : made) {
      window->setEnabled(false);
      if (stepping) window->HoldBack();
      bulk_.push_back(window);
    }
    activeAtEnd_ = nullptr;
    revealing_ = true;
  }
  // A visible area looks over every window it has for each window it
  // takes in; a hidden one leaves that until it is shown, and then passes
  // over windows already placed.
  const bool hideArea = made.size() > 1 && area_->isVisible();
  if (hideArea) area_->hide();
  for (MemoryWindow* window : made) {
    // Before and after the area's own handler of the same signal, which
    // runs between the two.
    connect(window, &QMdiSubWindow::aboutToActivate, this,
            [this, window] { HoldUnchangedTitleBars(window); });
    // The area seeks a free place for each window it takes in, weighing
    // every other window, unless the window has no size yet; the model
    // says where it goes.
    const QRect place = window->geometry();
    window->resize(0, 0);
    area_->addSubWindow(window);
    window->setGeometry(place);
    connect(window, &QMdiSubWindow::aboutToActivate, this,
            &MainFrameWindow::ReleaseTitleBars);
  }
  if (hideArea) area_->show();
  std::vector<MemoryWindow*> going;
  for (auto it = memories_.begin(); it != memories_.end();) {
    if (open.count(it->first) != 0) {
      ++it;
      continue;
    }
    if (MemoryWindow* window = it->second.data()) going.push_back(window);
    it = memories_.erase(it);
  }
  TakeAway(going);
  inOrder_.clear();
  for (const auto& form : app.memory.Forms()) {
    const auto it = memories_.find(form->number);
    inOrder_.push_back(it == memories_.end() ? nullptr : it->second);
  }
  return made.size() == missing;
}

// Shown when the windows of a memory file take more than half a second to
// come; the calculator and the frame take no input meanwhile, and the rest
// of the windows come at the next turns of the event loop.
void MainFrameWindow::ShowProgress() {
  const int total = static_cast<int>(windows_.app().memory.Forms().size());
  if (!progress_) {
    revealed_ = 0;
    // Over the calculator, where the user works; the frame may be wider
    // than the screen.
    progress_ = new QProgressDialog(windows_.Calculator(), kDialogButtons);
    progress_->setObjectName(QStringLiteral("MemoryProgress"));
    progress_->setWindowTitle(windowTitle());
    progress_->setLabelText(tr("Opening the memories\u2026"));
    progress_->setCancelButton(nullptr);
    progress_->setWindowModality(Qt::ApplicationModal);
    // Its own bar, set directly: the dialog's setValue runs the event
    // loop, and this is the middle of a refresh.
    progressBar_ = new QProgressBar(progress_);
    progressBar_->setObjectName(QStringLiteral("MemoryProgressBar"));
    progressBar_->setRange(0, 2 * total);
    progressBar_->setValue(0);
    progress_->setBar(progressBar_);
    // Shown once the windows have taken half a second (the bar at its
    // start restarts the dialog's own clock).
    progress_->setMinimumDuration(500);
  }
  if (!areaHidden_) {
    // The area comes back with all its windows at once: while it is hidden
    // a window added is neither placed nor painted nor activated, each of
    // which would look over all the windows already there.
    area_->hide();
    areaHidden_ = true;
  }
  // The windows are made, then revealed: each half of the bar.
  progressBar_->setRange(0, 2 * total);
  progressBar_->setValue(static_cast<int>(std::count_if(
      inOrder_.begin(), inOrder_.end(),
      [](const QPointer<MemoryWindow>& w) { return !w.isNull(); })));
  // A timer, not a posted call: the posted events delivered while windows
  // are made must not bring the next step into this one.
  if (!nextStep_.isActive()) nextStep_.start();
}

void MainFrameWindow::EndProgress() {
  stepDue_ = true;
  if (areaHidden_) {
    // Without the windows just made: they are revealed from the next turn
    // on (EnableMadeWindows).
    area_->show();
    areaHidden_ = false;
  }
  if (progress_ && revealing_) {
    progressBar_->setValue(progressBar_->maximum() / 2);
    revealDue_ = false;
    nextStep_.start();
    return;
  }
  nextStep_.stop();
  delete progress_;
  progressBar_ = nullptr;
}

bool MainFrameWindow::Stepping() const { return progress_ != nullptr; }

void MainFrameWindow::TakeAway(const std::vector<MemoryWindow*>& going) {
  if (going.empty()) return;
  if (going.size() > static_cast<std::size_t>(pace_.atOnce)) {
    TakeAwayLater(going);
    return;
  }
  QMdiSubWindow* active = area_->activeSubWindow();
  std::vector<MemoryWindow*> later;
  {
    // Many at once (Erase All, the frame's close): a window taken out of
    // the area one by one walks the focus chain of all the others, and the
    // area activates the next in turn, so they are deleted where they are,
    // the active one last. A visible area also lays out its minimised
    // windows again after each one goes, looking over all the others: it
    // is hidden (nor painted) until the end.
    const bool many = going.size() > 1;
    const bool hideArea = many && area_->isVisible();
    if (hideArea) area_->hide();
    for (MemoryWindow* window : going) {
      if (window->InCloseEvent() || !many) {
        later.push_back(window);
      } else if (window != active) {
        delete window;
      }
    }
    for (MemoryWindow* window : going) {
      if (window == active && many && !window->InCloseEvent()) delete window;
    }
    if (hideArea) area_->show();
  }
  for (MemoryWindow* window : later) {
    // The window may be inside its own close event: it goes later, kept
    // as the frame's hidden child until then.
    window->hide();
    area_->removeSubWindow(window);
    window->setParent(this);
    window->deleteLater();
  }
}

// The area looks over all its windows for each one it lets go, and deleting
// thousands takes seconds (Erase All of a very large file): they go out of
// sight at once and are deleted a step at a time, the event loop running in
// between. When none stay, the area stays hidden until the last is deleted
// (a visible one lays out its windows again after each that goes); a window
// made meanwhile has them all deleted first (MakeAndTakeAwayWindows).
void MainFrameWindow::TakeAwayLater(const std::vector<MemoryWindow*>& going) {
  {
    const UserPlacement::Following following(placement_);
    area_->setActiveSubWindow(nullptr);
  }
  const std::set<const MemoryWindow*> gone(going.begin(), going.end());
  // Not to be revealed any more, if they were still coming.
  std::erase_if(bulk_, [&gone](const QPointer<MemoryWindow>& window) {
    return gone.count(window.data()) != 0;
  });
  if (gone.count(activeAtEnd_.data()) != 0) activeAtEnd_ = nullptr;
  // Hidden, the area lets its windows go out of sight without making
  // another active at each. When none stay, it stays hidden until the last
  // is deleted, and they need no hiding of their own (a window made before
  // then has them deleted first).
  const bool hideArea = area_->isVisible();
  if (hideArea) area_->hide();
  const bool areaStaysHidden = hideArea && memories_.empty();
  // Deleted from the back, so the first made goes first: the area makes
  // the next window active each time it lets go of the one last active,
  // looking through all of them.
  for (auto it = going.rbegin(); it != going.rend(); ++it) {
    if (!areaStaysHidden) (*it)->hide();
    takenAway_.push_back(*it);
  }
  if (areaStaysHidden) {
    areaHiddenWhileTakingAway_ = true;
  } else if (hideArea) {
    area_->show();
  }
  takeAwayStep_.start();
}

void MainFrameWindow::DeleteTakenAway(int budget) {
  while (!takenAway_.empty() && budget > 0) {
    const QPointer<MemoryWindow> window = takenAway_.back();
    takenAway_.pop_back();
    if (!window) continue;
    --budget;
    delete window.data();
  }
  if (!takenAway_.empty()) return;
  takeAwayStep_.stop();
  if (areaHiddenWhileTakingAway_) {
    areaHiddenWhileTakingAway_ = false;
    area_->show();
  }
}

// The area deactivates every other window when one becomes active, and each
// deactivation asks for its title bar to be painted again: a thousand title
// bars painted for a new memory. Only the window that was active and the
// one becoming active look different afterwards; the others are kept from
// asking (their flag only, so that letting go paints nothing).
void MainFrameWindow::HoldUnchangedTitleBars(QMdiSubWindow* activating) {
  QMdiSubWindow* previous = area_->activeSubWindow();
  for (const auto& [number, window] : memories_) {
    if (!window || window == activating || window == previous ||
        !window->isVisible() || window->testAttribute(Qt::WA_UpdatesDisabled)) {
      continue;
    }
    window->setAttribute(Qt::WA_UpdatesDisabled, true);
    held_.push_back(window);
  }
}

void MainFrameWindow::ReleaseTitleBars() {
  for (const QPointer<MemoryWindow>& window : held_) {
    if (window) window->setAttribute(Qt::WA_UpdatesDisabled, false);
  }
  held_.clear();
}

void MainFrameWindow::OnSubWindowActivated(QMdiSubWindow* window) {
  auto* memory = qobject_cast<MemoryWindow*>(window);
  if (placement_.IsFollowing() || memory == nullptr ||
      windows_.ShuttingDown()) {
    return;
  }
  const int number = memory->Number();
  if (windows_.app().memory.Find(number) == nullptr) return;
  windows_.Run([number](App& app) { MemoryForm_Form_Activate(app, number); });
}

// A size the user (or the window manager) gave the frame. A maximised or
// minimised frame's size is the window manager's: restored, the frame comes
// back to its arranged size.
void MainFrameWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (isMinimized() || isMaximized() || SpansScreen(*this)) return;
  placement_.Resized();
}

// A place the user gave the frame: kept for the settings and the file. A
// minimised or maximised frame's place is the window manager's.
void MainFrameWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (isMinimized() || isMaximized() || SpansScreen(*this)) return;
  placement_.Moved();
}

void MainFrameWindow::closeEvent(QCloseEvent* event) {
  // The frame is never destroyed by its close: the core unloads the
  // memories and hides it, and the program goes on.
  event->ignore();
  if (windows_.ShuttingDown()) return;
  windows_.Run([](App& app) { MDIForm_Unload(app); });
}

void MainFrameWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || placement_.IsFollowing() ||
      windows_.ShuttingDown()) {
    return;
  }
  const WindowState state = isMinimized()   ? WindowState::kMinimized
                            : isMaximized() ? WindowState::kMaximized
                                            : WindowState::kNormal;
  if (windows_.app().mainFrame.state == state) return;
  windows_.Run([state](App& app) {
    app.mainFrame.state = state;
    MDIForm_Resize(app);
  });
}

}  // namespace brenko::ui
