#include "ui/user_placement.h"

#include <QWidget>
#include <utility>

#include "core/commands/app.h"
#include "ui/app_windows.h"
#include "ui/screen_fit.h"
#include "ui/twips.h"

namespace brenko::ui {

UserPlacement::UserPlacement(AppWindows& windows, QWidget& window, Model model)
    : windows_(windows), window_(window), model_(std::move(model)) {}

UserPlacement::Following::Following(UserPlacement& placement)
    : placement_(placement), was_(placement.following_) {
  placement_.following_ = true;
}

UserPlacement::Following::~Following() { placement_.following_ = was_; }

bool UserPlacement::TakesPlace(QPoint place) {
  if (place == place_) return false;
  place_ = place;
  return true;
}

QPoint UserPlacement::OnScreen(QPoint place, QSize size,
                               const std::function<QPoint()>& fit) {
  if (place == userPlace_) return place;
  const QMargins frame = WindowFrame(window_);
  if (place != fittedFor_ || size != fittedSize_ || frame != fittedFrame_) {
    fittedFor_ = place;
    fittedSize_ = size;
    fittedFrame_ = frame;
    fitted_ = fit();
  }
  return fitted_;
}

bool UserPlacement::TakesSize(QSize size) {
  // Under a scale such as 1.5, Qt asks the window manager for sizes in steps
  // of two device pixels counted from nothing, and a window manager keeping
  // to them (openbox) cuts a window given an odd number of device pixels by
  // one: the frame of twelve memories lost the bottom row's lower border.
  // The steps are counted from the model's size instead, which makes it one
  // of the sizes allowed.
  if (window_.isWindow() && window_.baseSize() != size) {
    window_.setBaseSize(size);
  }
  if (size == size_ && window_.size() == size) return false;
  size_ = size;
  return true;
}

bool UserPlacement::Ignored() const {
  return following_ || !window_.isVisible() || windows_.ShuttingDown();
}

QPoint UserPlacement::UserMoveBy() const {
  if (Ignored() || place_ == kNowhere) return {};
  return window_.pos() - place_;
}

void UserPlacement::Moved() {
  if (Ignored()) return;
  const QPoint now = window_.pos();
  if (now == place_) return;
  place_ = now;
  userPlace_ = now;
  windows_.Run([&](App& app) {
    if (Rect* geometry = model_.geometry(app)) {
      SetTwipsPosition(*geometry, now, app.platform.Screen());
    }
  });
}

void UserPlacement::Resized() {
  if (Ignored()) return;
  const QPoint place = window_.pos();
  const QSize size = window_.size();
  if (size == size_) return;
  size_ = size;
  if (model_.placeWithSize) place_ = place;
  windows_.Run([&](App& app) {
    Rect* geometry = model_.geometry(app);
    if (geometry == nullptr) return;
    const ScreenInfo screen = app.platform.Screen();
    if (model_.placeWithSize) SetTwipsPosition(*geometry, place, screen);
    SetTwipsSize(*geometry, size, screen, model_.frameWidth,
                 model_.frameHeight);
    if (model_.resized) model_.resized(app);
  });
}

}  // namespace brenko::ui
