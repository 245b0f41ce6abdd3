#include "ui/tape_window.h"

#include <QCloseEvent>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSizeGrip>
#include <QStyleOptionFrame>
#include <QTableView>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "core/commands/tape_handlers.h"
#include "core/tape/tape_window.h"
#include "ui/app_windows.h"
#include "ui/clipboard.h"
#include "ui/companions.h"
#include "ui/label_view.h"
#include "ui/largest_fitting.h"
#include "ui/menu_binder.h"
#include "ui/qt_platform.h"
#include "ui/screen_fit.h"
#include "ui/tape_table_model.h"
#include "ui/twips.h"

namespace brenko::ui {

namespace {

constexpr int kKeyLeft = 37;
constexpr int kKeyRight = 39;
const QColor kPaper(255, 255, 248);

QPushButton* MakeScrollButton(QWidget* parent, int index) {
  // Drawn as the small arrow glyphs the window always had.
  auto* button = new QPushButton(
      index == 0 ? QStringLiteral("\u25C0") : QStringLiteral("\u25B6"), parent);
  button->setObjectName(QStringLiteral("cmdScrollTape%1").arg(index));
  button->setFocusPolicy(Qt::NoFocus);
  button->setAutoDefault(false);
  button->setFlat(true);
  button->setToolTip(index == 0 ? QStringLiteral("Tape on the left")
                                : QStringLiteral("Tape on the right"));
  return button;
}

}  // namespace

TapeWindow::TapeWindow(AppWindows& windows)
    // A window of its own, found in the task list like the calculator (a
    // tool window or one transient for the calculator is left out of it):
    // the companions' rules keep it with the calculator.
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      windows_(windows),
      menus_(new MenuBinder(windows, this)),
      model_(new TapeTableModel(windows.app().tapes, this)),
      client_(new QWidget(this)),
      title_(new QLabel(client_)),
      grid_(new QTableView(client_)),
      left_(MakeScrollButton(client_, 0)),
      right_(MakeScrollButton(client_, 1)),
      placement_(windows, *this,
                 {[](App& app) { return &app.tapeWindow.geometry; }, 0, 0,
                  frmTape_Form_Resize}) {
  setObjectName(QStringLiteral("frmTape"));
  setWindowTitle(QStringLiteral("Tape"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  client_->setObjectName(QStringLiteral("TapeClient"));

  title_->setObjectName(QStringLiteral("Label1"));
  title_->setAlignment(Qt::AlignCenter);
  QFont titleFont = title_->font();
  titleFont.setBold(true);
  title_->setFont(titleFont);
  title_->installEventFilter(this);

  grid_->setObjectName(QStringLiteral("Grid1"));
  grid_->setModel(model_);
  grid_->horizontalHeader()->hide();
  grid_->verticalHeader()->hide();
  grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  // Rows are as high as the model says, however small the font's own
  // minimum would be.
  grid_->verticalHeader()->setMinimumSectionSize(1);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid_->setShowGrid(false);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  grid_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  grid_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  grid_->setWordWrap(false);
  grid_->setTextElideMode(Qt::ElideRight);
  grid_->setFrameShape(QFrame::NoFrame);
  QFont mono = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  grid_->setFont(mono);
  QPalette paper = grid_->palette();
  paper.setColor(QPalette::Base, kPaper);
  paper.setColor(QPalette::Text, QColor(20, 20, 20));
  grid_->setPalette(paper);
  grid_->verticalHeader()->setObjectName(QStringLiteral("Grid1RowHeader"));
  grid_->horizontalHeader()->setObjectName(QStringLiteral("Grid1ColumnHeader"));
  for (QWidget* part : grid_->findChildren<QWidget*>()) {
    if (part->objectName().isEmpty()) {
      part->setObjectName(QStringLiteral("Grid1Part"));
    }
  }
  grid_->verticalScrollBar()->setObjectName(QStringLiteral("Grid1VScroll"));
  grid_->horizontalScrollBar()->setObjectName(QStringLiteral("Grid1HScroll"));
  grid_->installEventFilter(this);
  grid_->viewport()->installEventFilter(this);
  connect(grid_->verticalScrollBar(), &QScrollBar::valueChanged, this,
          [this](int value) {
            // The user scrolled: the grid's top row is the model's.
            if (placement_.IsFollowing()) return;
            windows_.Run([value](App& app) { app.tapes.topRow = value; });
          });

  for (int index = 0; index < 2; ++index) {
    connect(ScrollButton(index), &QPushButton::clicked, this, [this, index] {
      windows_.Run([index](App& app) { cmdScrollTape_Click(app, index); });
    });
  }
  AddTapeClipboard(windows, this, grid_);
  auto* grip = new QSizeGrip(this);
  grip->setObjectName(QStringLiteral("SizeGrip"));
  grip->resize(grip->sizeHint());
}

QMenu* TapeWindow::Popup() {
  if (!popup_) popup_ = menus_->BuildPopup("mnuPopup2", this);
  return popup_;
}

void TapeWindow::Refresh() {
  const App& app = windows_.app();
  const TapeWindowForm& form = app.tapeWindow;
  const TapeStore& tapes = app.tapes;
  if (shownMenus_ != app.menus.Revision()) {
    menus_->Refresh();
    shownMenus_ = app.menus.Revision();
  }
  const Shown now{form, tapes.height, tapes.rowHeight1,
                  windows_.platform().Screen()};
  const bool layoutChanged = shown_ != now;
  if (layoutChanged) {
    ApplyGeometry(now.screen);
    left_->setVisible(form.scrollButtonsVisible);
    right_->setVisible(form.scrollButtonsVisible);
    shown_ = now;
  }

  const ShownTapes tapesNow{tapes.Revision(), tapes.topRow, tapes.ShownTape};
  if (layoutChanged || shownTapes_ != tapesNow) {
    const UserPlacement::Following following(placement_);
    const int column =
        std::clamp<int>(tapes.ShownTape, 0, std::max(0, tapes.Cols() - 1));
    model_->Sync(column);
    ShowColumn(column);
    // Lay the rows out now, so that the scroll range already holds the new
    // lines when the top row is set.
    grid_->doItemsLayout();
    grid_->verticalScrollBar()->setValue(std::max(0, tapes.topRow));
    // A long line in view may shrink the paper's font; the layout may have
    // brought the scroll bar in, narrowing the paper: the shown tape is as
    // wide as what is left.
    FitPaperFont(grid_->width() -
                 grid_->verticalScrollBar()->sizeHint().width());
    FitColumnWidth(column);
    shownTapes_ = tapesNow;
  }

  ShowCompanion(windows_, *this, form.visible);
}

void TapeWindow::ShowColumn(int column) {
  const int columns = model_->columnCount();
  // A header hiding a column while it is painted works out where the
  // column is, from all the columns before it: thousands of tapes coming
  // at once (a memory file) are hidden with its paint held.
  const bool afresh = columns < columns_ || columns_ < 0;
  QHeaderView* header = grid_->horizontalHeader();
  const bool many =
      (afresh ? columns : columns - columns_) > 1 && header->updatesEnabled();
  if (many) header->setUpdatesEnabled(false);
  if (afresh) {
    // Tapes went: the view was started afresh with every column shown.
    // Rare (the frame's close), so all are set once.
    for (int c = 0; c < columns; ++c) grid_->setColumnHidden(c, c != column);
    shownColumn_ = column;
    columns_ = columns;
  } else if (columns > columns_) {
    // New tapes came in shown: they are hidden, the others stay as they
    // were.
    for (int c = columns_; c < columns; ++c) grid_->setColumnHidden(c, true);
    columns_ = columns;
  }
  if (many) header->setUpdatesEnabled(true);
  if (column != shownColumn_) {
    // Stepping between tapes: one column goes, one comes, however many
    // there are.
    if (shownColumn_ >= 0 && shownColumn_ < columns) {
      grid_->setColumnHidden(shownColumn_, true);
    }
    grid_->setColumnHidden(column, false);
    shownColumn_ = column;
  }
  FitColumnWidth(column);
}

void TapeWindow::FitColumnWidth(int column) {
  const int width = grid_->viewport()->width();
  if (column < model_->columnCount() && grid_->columnWidth(column) != width) {
    grid_->setColumnWidth(column, width);
  }
}

// A tape line of an area with its operator, " +  54'- 42 3/4\" sq.", runs to
// about 21 characters; a large volume to more. In a narrow window (the 75%
// calculator) the paper's font shrinks so that whole lines stay readable
// instead of being cut: a line in view longer than 21 characters shrinks it
// further. A line is never cut on its left, where its feet are.
void TapeWindow::FitPaperFont(int width) {
  constexpr int kLineCharacters = 21;
  constexpr double kSmallestPoints = 5;
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  qsizetype characters = kLineCharacters;
  const int column = shownColumn_;
  if (column >= 0 && column < model_->columnCount()) {
    const int rows = model_->rowCount();
    auto widen = [&](int from, int to) {
      for (int row = std::max(0, from); row <= to && row < rows; ++row) {
        characters = std::max(
            characters,
            model_->data(model_->index(row, column)).toString().size());
      }
    };
    // The lines in view, and the newest ones (where the tape is about to
    // scroll): a few dozen lines however long the tape.
    constexpr int kNewest = 48;
    const int first = grid_->rowAt(0);
    const int last = grid_->rowAt(std::max(0, grid_->viewport()->height() - 1));
    if (first >= 0) widen(first, last >= 0 ? last : first + kNewest);
    widen(rows - kNewest, rows - 1);
  }
  // The cell's own margins take a few pixels of the line's room.
  const int margin = grid_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin,
                                                 nullptr, grid_) +
                     1;
  const int viewport = grid_->viewport()->width();
  const int room =
      (viewport > 0 ? std::min(width, viewport) : width) - 2 * margin;
  const QString sample(characters, QLatin1Char('0'));
  // The font steps down a quarter point at a time until the sample fits,
  // to five points at the least.
  constexpr double kStep = 0.25;
  const double full = font.pointSizeF();
  auto atStep = [&](int down) {
    return std::max(kSmallestPoints, full - kStep * down);
  };
  auto sampleWidth = [&](int down) {
    QFont trial = font;
    if (down > 0) trial.setPointSizeF(atStep(down));
    return QFontMetricsF(trial).horizontalAdvance(sample);
  };
  // A full-size sample that fits, or no room to fit it in, leaves the font.
  const qreal fullWidth =
      room > 0 && full > kSmallestPoints ? sampleWidth(0) : 0;
  if (room > 0 && fullWidth > room) {
    // Steps are counted down from the full size, as negative sizes: the
    // last one is the smallest font.
    const int last =
        static_cast<int>(std::ceil((full - kSmallestPoints) / kStep));
    const int guess = StepsToRoom(full, fullWidth, room, kStep, -last, 0);
    const int down = -LargestFitting(
        -last, -1, guess, [&](int step) { return sampleWidth(-step) <= room; });
    font.setPointSizeF(atStep(down));
  }
  if (grid_->font() != font) grid_->setFont(font);
}

void TapeWindow::ApplyGeometry(const ScreenInfo& screen) {
  const App& app = windows_.app();
  const TapeWindowForm& form = app.tapeWindow;
  const double tx = screen.twipsPerPixelX;
  const double ty = screen.twipsPerPixelY;
  const QRect outer = TwipsToPixels(form.geometry, tx, ty);
  const int insetX = TwipsToPixels(kTapeNonClientWidth / 2, tx);
  const int insetY = TwipsToPixels(kTapeNonClientHeight / 2, ty);
  const UserPlacement::Following following(placement_);
  const QSize size(std::max(1, outer.width()), std::max(1, outer.height()));
  if (placement_.TakesSize(size)) resize(size);
  const QPoint place = outer.topLeft();
  const QPoint shown = placement_.OnScreen(place, size, [&] {
    return ShownTapePlace(windows_, *this, place, size);
  });
  if (placement_.TakesPlace(shown)) move(shown);
  client_->setGeometry(insetX, insetY, std::max(1, size.width() - 2 * insetX),
                       std::max(1, size.height() - 2 * insetY));
  ApplyLabel(title_, form.title, screen);
  for (int i = 0; i < 2; ++i) {
    ScrollButton(i)->setGeometry(TwipsToPixels(form.scrollButtons[i], tx, ty));
    ScrollButton(i)->raise();
  }
  Rect gridRect = form.grid;
  gridRect.height = app.tapes.height;
  const QRect gridPixels = TwipsToPixels(gridRect, tx, ty);
  grid_->setGeometry(gridPixels);
  FitPaperFont(gridPixels.width() -
               grid_->verticalScrollBar()->sizeHint().width());
  grid_->verticalHeader()->setDefaultSectionSize(
      std::max(1, TwipsToPixels(app.tapes.rowHeight1, ty)));
  if (auto* grip = findChild<QSizeGrip*>()) {
    grip->move(width() - grip->width(), height() - grip->height());
    grip->raise();
  }
}

bool TapeWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == grid_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Left || key == Qt::Key_Right) {
      const int code = key == Qt::Key_Left ? kKeyLeft : kKeyRight;
      windows_.Run([code](App& app) { Grid1_KeyDown(app, code); });
      return true;
    }
  }
  if (watched == grid_->viewport() &&
      event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
    windows_.platform().ShowPopupMenu("mnuPopup2");
    windows_.Refresh();
    return true;
  }
  if (watched == title_ && event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
    // No title bar: the title line moves the window where a window manager
    // lets it.
    if (QWindow* handle = windowHandle()) handle->startSystemMove();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

// The user resized the window (its size grip): the model takes the new size
// and fits the grid to it.
void TapeWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  placement_.Resized();
}

void TapeWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  placement_.Moved();
}

// Closed from the task list or by the window manager's key: hidden as
// Display, Tape hides it, so that the check marks still tell whether it is
// shown.
void TapeWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (windows_.ShuttingDown() || !windows_.app().tapeWindow.visible) return;
  windows_.Run([](App& app) { mnuTape_Click(app); });
}

void TapeWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  QStyleOptionFrame frame;
  frame.initFrom(this);
  frame.rect = rect();
  frame.lineWidth = 2;
  frame.midLineWidth = 0;
  frame.state |= QStyle::State_Raised;
  style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);
}

}  // namespace brenko::ui
