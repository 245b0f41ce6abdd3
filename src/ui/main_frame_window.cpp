#include "ui/main_frame_window.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <set>
#include <vector>

#include "core/commands/app.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/memory/memory_cells.h"
#include "ui/app_windows.h"
#include "ui/memory_window.h"
#include "ui/screen_fit.h"
#include "ui/shortcuts.h"
#include "ui/twips.h"

namespace brenko::ui {

MainFrameWindow::MainFrameWindow(AppWindows& windows)
    : windows_(windows),
      area_(new QMdiArea(this)),
      // Owned by the window owner, so that it outlives every memory window.
      memoryStyle_(MakeMemoryWindowStyle(&windows)),
      placement_(windows, *this,
                 {[](App& app) { return &app.mainFrame.geometry; },
                  kFrameBorderWidth, kFrameBorderHeight, MDIForm_Resize}) {
  KeepStandardIcons();
  setObjectName(QStringLiteral("MDIForm1"));
  area_->setObjectName(QStringLiteral("MDIClient"));
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
}

MainFrameWindow::~MainFrameWindow() {
  // The area takes its memory windows down after this part of the frame is
  // gone; it must not report activations to it then.
  disconnect(area_, nullptr, this, nullptr);
  for (const auto& [number, window] : memories_) {
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
  if (bulk_.empty()) return;
  QMdiSubWindow* last = nullptr;
  for (const QPointer<MemoryWindow>& window : bulk_) {
    if (!window) continue;
    window->setEnabled(true);
    if (window->isVisible()) last = window;
  }
  bulk_.clear();
  // The last window shown is the active one, as when they came one by one.
  const UserPlacement::Following following(placement_);
  if (last != nullptr) area_->setActiveSubWindow(last);
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
  if (shownMemories_ != app.memory.Revision()) {
    MakeAndTakeAwayWindows();
    shownMemories_ = app.memory.Revision();
  }
  const ScreenInfo screen = app.platform.Screen();
  // No form changed, the screen is the same and no window was moved or
  // sized since the last look: every window still shows its form.
  const Looked now{app.memory.FormsRevision(), memoryMoves_, screen};
  if (looked_ == now) return;
  looked_ = now;
  const auto forms = app.memory.Forms();
  for (std::size_t i = 0; i < forms.size() && i < inOrder_.size(); ++i) {
    if (MemoryWindow* window = inOrder_[i].data()) {
      window->Refresh(*forms[i], screen);
    }
  }
}

void MainFrameWindow::MakeAndTakeAwayWindows() {
  const App& app = windows_.app();
  const ScreenInfo screen = app.platform.Screen();
  std::set<int> open;
  std::vector<MemoryWindow*> made;
  for (const auto& form : app.memory.Forms()) {
    open.insert(form->number);
    QPointer<MemoryWindow>& window = memories_[form->number];
    if (!window) {
      window = new MemoryWindow(windows_, form->number, memoryStyle_);
      connect(window, &MemoryWindow::PlaceChanged, this,
              [this] { ++memoryMoves_; });
      // Its place from the model, given again once the area has it.
      window->setGeometry(TwipsToPixels(form->geometry, screen.twipsPerPixelX,
                                        screen.twipsPerPixelY));
      made.push_back(window);
    }
  }
  if (made.size() > 1) {
    // A memory file's windows come all at once. Each window the area shows
    // would be made the active one in turn, and every activation walks all
    // the windows: a disabled window is never activated, so they stay
    // disabled until all are shown (EnableMadeWindows).
    for (MemoryWindow* window : made) {
      window->setEnabled(false);
      bulk_.push_back(window);
    }
  }
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
    inOrder_.push_back(memories_[form->number]);
  }
}

void MainFrameWindow::TakeAway(const std::vector<MemoryWindow*>& going) {
  if (going.empty()) return;
  QMdiSubWindow* active = area_->activeSubWindow();
  std::vector<MemoryWindow*> later;
  {
    // Many at once (Erase All, the frame's close): a window taken out of
    // the area one by one walks the focus chain of all the others, and the
    // area activates the next in turn, so they are deleted where they are,
    // the active one last, with the area's painting held until the end.
    const bool many = going.size() > 1;
    if (many) area_->setUpdatesEnabled(false);
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
    if (many) area_->setUpdatesEnabled(true);
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
