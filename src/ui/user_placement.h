#pragma once
// Every window follows its model's place and size, and the user may move or
// resize it. This tells the two apart, for every window alike: the place
// and size the window was last given from its model are remembered, and a
// move or resize event that brings anything else is the user's. The user's
// place and size go to the model in twips and the window's resize handler
// runs, all through AppWindows::Run; the events of the window's own moves
// are passed over.

#include <QMargins>
#include <QPoint>
#include <QSize>
#include <functional>

#include "core/base/window_model.h"

class QWidget;

namespace brenko {
struct App;
}

namespace brenko::ui {

class AppWindows;

class UserPlacement {
 public:
  struct Model {
    // The model's rectangle; nullptr once the model is gone.
    std::function<Rect*(App&)> geometry;
    // What the model's size counts beyond the window's own (a frame, a
    // title bar, a menu bar).
    float frameWidth = 0;
    float frameHeight = 0;
    // The window's resize handler; empty when it has none.
    std::function<void(App&)> resized;
    // A window inside the frame is resized by any border: its place is
    // taken with its size. A top-level window's place comes with its moves.
    bool placeWithSize = false;
  };

  UserPlacement(AppWindows& windows, QWidget& window, Model model);

  // While the window follows its model, what it reports is its own.
  class Following {
   public:
    explicit Following(UserPlacement& placement);
    ~Following();
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;

   private:
    UserPlacement& placement_;
    bool was_;
  };
  bool IsFollowing() const { return following_; }

  // Whether the window must be given this place or size from its model:
  // true (and remembered) when it differs from the one last given, or, for
  // the size, from the window's own. A top-level window's size steps (the
  // window manager's resize increments) start at the size asked here.
  bool TakesPlace(QPoint place);
  bool TakesSize(QSize size);

  // Where the window shows the model's place of the given size: where fit
  // puts it on the screens, unless the place is where the user last put the
  // window (a user's move is never undone under their hand). Asked again for
  // the same place, size and frame, the answer stays the same.
  QPoint OnScreen(QPoint place, QSize size, const std::function<QPoint()>& fit);

  // How far the move the window reports now is the user's (nothing for a
  // move of the window's own), before Moved takes it.
  QPoint UserMoveBy() const;

  // The window's move and resize events.
  void Moved();
  void Resized();

 private:
  bool Ignored() const;

  AppWindows& windows_;
  QWidget& window_;
  Model model_;
  static constexpr QPoint kNowhere{-1000000, -1000000};
  QPoint place_ = kNowhere;
  QPoint userPlace_ = kNowhere;
  QPoint fittedFor_ = kNowhere;
  QSize fittedSize_;
  QMargins fittedFrame_;
  QPoint fitted_;
  QSize size_;
  bool following_ = false;
};

}  // namespace brenko::ui
