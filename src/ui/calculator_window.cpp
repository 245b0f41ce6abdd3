#include "ui/calculator_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <algorithm>
#include <cmath>

#include "core/commands/keys.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "ui/accessible_names.h"
#include "ui/app_icon.h"
#include "ui/app_windows.h"
#include "ui/calculator_client.h"
#include "ui/clipboard.h"
#include "ui/color_number.h"
#include "ui/companions.h"
#include "ui/fit_text.h"
#include "ui/keyboard_filter.h"
#include "ui/label_view.h"
#include "ui/largest_fitting.h"
#include "ui/menu_binder.h"
#include "ui/mouse_button.h"
#include "ui/qt_platform.h"
#include "ui/screen_fit.h"
#include "ui/shortcuts.h"
#include "ui/twips.h"
#include "ui/window_buttons.h"

namespace brenko::ui {

namespace {

// The keys come in four families, told apart by a tint of the button face.
QColor KeyFace(const std::string& name) {
  if (name == "Number" || name == "Decimal") return QColor(248, 248, 244);
  if (name == "Plus" || name == "Minus" || name == "Multiply" ||
      name == "Divide" || name == "Equal") {
    return QColor(214, 228, 240);
  }
  if (name == "Cancel" || name == "CancelEntry" || name == "Backspace") {
    return QColor(244, 220, 208);
  }
  return QColor(222, 236, 222);
}

// The largest pixel size (up to half the key's height) at which the caption
// fits the key with a little room at the sides.
int FitPixelSize(const QFont& base, const QString& caption, const QSize& key) {
  constexpr int kSmallest = 7;
  const int largest = std::max(kSmallest, key.height() / 2);
  const int room = key.width() - 2;
  QFont font = base;
  auto width = [&](int size) {
    font.setPixelSize(size);
    return QFontMetricsF(font).horizontalAdvance(caption);
  };
  if (largest == kSmallest) return kSmallest;
  const qreal full = width(largest);
  if (full <= room) return largest;
  const int guess =
      largest + StepsToRoom(largest, full, room, 1, kSmallest - largest, 0);
  return LargestFitting(kSmallest, largest - 1, guess,
                        [&](int size) { return width(size) <= room; });
}

double PointsOrDefault(float points, double fallback) {
  return std::isfinite(points) && points > 0 && points < 200 ? points
                                                             : fallback;
}

}  // namespace

CalculatorWindow::CalculatorWindow(AppWindows& windows)
    : QMainWindow(nullptr),
      windows_(windows),
      menus_(new MenuBinder(windows, this)),
      keyboard_(new KeyboardFilter(windows, this)),
      client_(new CalculatorClient(this)),
      placement_(
          windows, *this,
          {[](App& app) { return &app.calculator.geometry; }, 0, 0, nullptr}) {
  setObjectName(QStringLiteral("Calculator"));
  setWindowTitle(QStringLiteral("Brenko Calculator"));
  setWindowFlags(kFixedWindowButtons);
  setCentralWidget(client_);
  client_->setFocusPolicy(Qt::StrongFocus);
  client_->installEventFilter(this);
  menuBar()->setObjectName(QStringLiteral("MenuBar"));
  menus_->BuildBar(menuBar());
  BuildControls();
  AddCalculatorClipboard(windows, client_);
  AddCalculatorContextKeys(windows, this);
  qApp->installEventFilter(keyboard_);
}

CalculatorWindow::~CalculatorWindow() { qApp->removeEventFilter(keyboard_); }

void CalculatorWindow::BuildControls() {
  for (const CalcControl& c : windows_.app().calculator.controls) {
    if (c.name == "Readout" || c.name == "ActionLabel" || c.name == "Label1") {
      auto* label =
          c.name == "Readout" ? new ReadoutLabel(client_) : new QLabel(client_);
      label->setObjectName(QString::fromStdString(c.name));
      label->setTextFormat(Qt::PlainText);
      label->setAutoFillBackground(true);
      if (c.name == "Readout") {
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setMargin(3);
        readout_ = label;
      } else if (c.name == "ActionLabel") {
        label->setAlignment(Qt::AlignCenter);
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        action_ = label;
      } else {
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->installEventFilter(this);
        label1_ = label;
      }
      continue;
    }
    if (!c.isKey) continue;
    auto* button = new QPushButton(client_);
    button->setObjectName(MenuBinder::ActionName(c.name, c.index));
    // The keyboard belongs to the window (Form_KeyPress): a key never takes
    // the focus, so neither Enter nor the space bar can click it.
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    QPalette palette = button->palette();
    palette.setColor(QPalette::Button, KeyFace(c.name));
    palette.setColor(QPalette::ButtonText, QColor(16, 16, 16));
    button->setPalette(palette);
    button->setProperty("controlName", QString::fromStdString(c.name));
    button->setProperty("controlIndex", c.index);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this,
            &CalculatorWindow::OnKeyClicked);
    keys_.push_back({c.name, c.index, button});
  }
}

QPushButton* CalculatorWindow::Key(const std::string& name, int index) const {
  for (const KeyButton& k : keys_) {
    if (k.name == name && k.index == index) return k.button;
  }
  return nullptr;
}

void CalculatorWindow::OnKeyClicked() {
  auto* button = qobject_cast<QPushButton*>(sender());
  if (!button) return;
  const std::string name =
      button->property("controlName").toString().toStdString();
  const int index = button->property("controlIndex").toInt();
  windows_.Run([&](App& app) { ClickControl(app, name, index); });
}

QMenu* CalculatorWindow::Popup(const std::string& name) {
  if (name != "mnuPopup1") return nullptr;
  if (!popup_) popup_ = menus_->BuildPopup(name, this);
  return popup_;
}

void CalculatorWindow::Refresh() {
  const App& app = windows_.app();
  const CalculatorForm& form = app.calculator;
  if (shownMenus_ != app.menus.Revision()) {
    menus_->Refresh();
    shownMenus_ = app.menus.Revision();
  }
  const ScreenInfo screen = windows_.platform().Screen();
  const bool screenChanged = shownScreen_ != screen;
  shownScreen_ = screen;
  // A window about to appear is mapped first and filled in after: the window
  // manager frames it while the keys' captions are fitted, and all of it is
  // done before the first paint either way.
  const bool appearing = form.visible && !isVisible();
  if (!appearing) ApplyControls(screen, screenChanged);
  // The window has a fixed size: only the model moves or resizes it.
  if (screenChanged || shownGeometry_ != form.geometry ||
      shownFrame_ != frameGeometry().size() ||
      (isVisible() && !placedWhileShown_)) {
    ApplyGeometry(screen);
    shownGeometry_ = form.geometry;
    placedWhileShown_ = isVisible();
  }
  if (appearing) {
    show();
    ApplyControls(screen, screenChanged);
  } else if (!form.visible && isVisible()) {
    hide();
  }
  if (form.visible) {
    const bool minimized = isMinimized();
    if (form.state == WindowState::kMinimized && !minimized) {
      showMinimized();
    } else if (form.state != WindowState::kMinimized && minimized) {
      showNormal();
    }
  }
  shownFrame_ = frameGeometry().size();
}

void CalculatorWindow::ApplyGeometry(const ScreenInfo& screen) {
  const CalculatorForm& form = windows_.app().calculator;
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  const QSize clientSize(
      std::max(1, TwipsToPixels(form.geometry.width - kCalcNonClientWidth, tx)),
      std::max(1,
               TwipsToPixels(form.geometry.height - kCalcNonClientHeight, ty)));
  FitMenuBar(clientSize.width());
  const QSize windowSize(clientSize.width(),
                         clientSize.height() + menuBar()->sizeHint().height());
  const QPoint pos(TwipsToPixels(form.geometry.left, tx),
                   TwipsToPixels(form.geometry.top, ty));
  const UserPlacement::Following following(placement_);
  if (placement_.TakesSize(windowSize)) setFixedSize(windowSize);
  const QPoint shown = placement_.OnScreen(
      pos, windowSize, [&] { return ShownPlace(*this, pos, windowSize); });
  if (placement_.TakesPlace(shown)) move(shown);
}

void CalculatorWindow::FitMenuBar(int width) {
  // The 75% window is narrower than the menu bar in the usual font: the bar
  // takes a smaller font then, so that all four menus stay in view.
  QMenuBar* bar = menuBar();
  QFont font = QApplication::font(bar);
  const double normal = font.pointSizeF();
  for (double points = normal; points >= 6; points -= 0.5) {
    font.setPointSizeF(points);
    if (bar->font() != font) bar->setFont(font);
    if (bar->sizeHint().width() <= width) break;
  }
  // The bar's own overflow menu, made by Qt when the menus do not fit.
  for (QMenu* menu : bar->findChildren<QMenu*>(Qt::FindDirectChildrenOnly)) {
    if (menu->objectName().isEmpty()) {
      menu->setObjectName(QStringLiteral("MenuBarOverflow"));
    }
  }
}

void CalculatorWindow::ApplyControls(const ScreenInfo& screen,
                                     bool screenChanged) {
  const CalculatorForm& form = windows_.app().calculator;
  const QColor background = ToQColor(form.backColor);
  static_cast<CalculatorClient*>(client_)->SetBackground(background);

  const std::vector<CalcControl>& controls = form.controls;
  const bool sameList = shownControls_.size() == controls.size();
  const auto changed = [&](std::size_t i) {
    return screenChanged || !sameList || !(shownControls_[i] == controls[i]);
  };
  bool labelsChanged = false;
  bool keysChanged = false;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    if (!changed(i)) continue;
    (controls[i].isKey ? keysChanged : labelsChanged) = true;
  }
  if (labelsChanged) {
    ApplyLabel(readout_, form.Readout(), screen);
    ApplyLabel(action_, form.ActionLabel(), screen);
    ApplyLabel(label1_, form.Label1(), screen);
    NameCalculatorLabels(this, form);
  }
  // Fitting the captions shapes the text of every key: only a change of the
  // keys themselves (the zoom, the layout, a caption) is worth it.
  if (keysChanged) {
    ApplyKeys(screen);
    NameCalculatorKeys(this, form);
  }
  if (labelsChanged || keysChanged) shownControls_ = controls;
  if (!labelsChanged) return;

  QFont readoutFont = readout_->font();
  readoutFont.setBold(true);
  readoutFont.setPointSizeF(PointsOrDefault(form.Readout().fontSize, 13.5));
  // A long volume steps the font down, then shows "…" and its tooltip.
  FitCaption(readout_, readoutFont, CaptionDrawing::kGlyphLine);
  // The prompt and operator lines follow the zoom with the readout.
  const double scale = readoutFont.pointSizeF() / 13.5;
  QFont promptFont = label1_->font();
  promptFont.setPointSizeF(std::max(6.0, 9.0 * scale));
  if (label1_->font() != promptFont) label1_->setFont(promptFont);
  QFont actionFont = action_->font();
  actionFont.setPointSizeF(std::max(6.0, 11.0 * scale));
  if (action_->font() != actionFont) action_->setFont(actionFont);
}

void CalculatorWindow::ApplyKeys(const ScreenInfo& screen) {
  const CalculatorForm& form = windows_.app().calculator;
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  // Word captions ("Circ", "Area", "Cyl") share one size, the largest that
  // fits all of them, so that the row of formula keys reads evenly.
  int wordPixels = 1000;
  for (const KeyButton& k : keys_) {
    const CalcControl* c = form.Find(k.name, k.index);
    const QString caption =
        c ? QString::fromStdString(c->label.caption) : QString();
    if (caption.size() < 3) continue;
    wordPixels = std::min(
        wordPixels, FitPixelSize(k.button->font(), caption,
                                 TwipsToPixels(c->label.rect, tx, ty).size()));
  }
  for (const KeyButton& k : keys_) {
    const CalcControl* c = form.Find(k.name, k.index);
    if (!c) continue;
    const QRect rect = TwipsToPixels(c->label.rect, tx, ty);
    if (k.button->geometry() != rect) k.button->setGeometry(rect);
    const QString caption = QString::fromStdString(c->label.caption);
    if (k.button->text() != caption) k.button->setText(caption);
    QFont font = k.button->font();
    const int pixels = caption.size() >= 3
                           ? wordPixels
                           : FitPixelSize(font, caption, rect.size());
    if (font.pixelSize() != pixels) {
      font.setPixelSize(pixels);
      k.button->setFont(font);
    }
    if (k.button->isVisibleTo(client_) != c->label.visible) {
      k.button->setVisible(c->label.visible);
    }
  }
}

bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick) {
    return QMainWindow::eventFilter(watched, event);
  }
  auto* mouse = static_cast<QMouseEvent*>(event);
  const int button = ButtonCode(mouse->button());
  if (watched == client_ || watched == label1_) {
    const bool onLabel = watched == label1_;
    // A quick second press of another button is a press, not a double
    // click.
    if (type == QEvent::MouseButtonDblClick && button == kLeftButton) {
      windows_.Run([onLabel](App& app) {
        onLabel ? Label1_DblClick(app) : Form_DblClick(app);
      });
      return true;
    }
    windows_.Run([onLabel, button](App& app) {
      onLabel ? Label1_MouseDown(app, button) : Form_MouseDown(app, button);
    });
    // Taken here, so that the press on Label1 does not reach the window
    // beneath it as a second mouse-down.
    return true;
  }
  if (auto* key = qobject_cast<QPushButton*>(watched)) {
    // Only the right button has a mouse-down of its own on a key (the
    // context menu); the left one clicks.
    if (type != QEvent::MouseButtonPress || button != kRightButton) {
      return false;
    }
    const std::string name =
        key->property("controlName").toString().toStdString();
    const int index = key->property("controlIndex").toInt();
    windows_.Run([&](App& app) { ControlMouseDown(app, name, index, button); });
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

void CalculatorWindow::closeEvent(QCloseEvent* event) {
  // Closing the calculator ends the program; nothing can cancel it.
  event->accept();
  windows_.Shutdown();
}

// A move the user made: the model keeps the place for the next run.
// The tape keeps its place beside it.
void CalculatorWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  // The tape first: the calculator's new place must not be taken as the
  // reason to show the tape anywhere else.
  CalculatorMoved(windows_, placement_.UserMoveBy());
  placement_.Moved();
}

void CalculatorWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (windows_.ShuttingDown()) return;
  // Only the calculator's own activation is the calculator's, not that of
  // its tape or converter.
  if (event->type() == QEvent::ActivationChange &&
      QApplication::activeWindow() == this) {
    RaiseCompanions(windows_);
    windows_.Run([](App& app) { Form_Activate(app); });
  } else if (event->type() == QEvent::WindowStateChange) {
    const WindowState state =
        isMinimized() ? WindowState::kMinimized : WindowState::kNormal;
    if (windows_.app().calculator.state != state) {
      // Minimising or restoring is the user's; the model records it.
      windows_.Run([state](App& app) { app.calculator.state = state; });
    }
  }
}

}  // namespace brenko::ui
