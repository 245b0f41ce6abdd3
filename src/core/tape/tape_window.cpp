#include "core/tape/tape_window.h"

#include <cmath>
#include <cstddef>

#include "core/commands/app.h"

namespace brenko {

namespace {

constexpr int kKeyLeft = 37;
constexpr int kKeyRight = 39;

float InnerWidth(const TapeWindowForm& w) {
  return w.geometry.width - kTapeNonClientWidth;
}

void PlaceScrollButtons(TapeWindowForm& w) {
  const float inner = InnerWidth(w);
  w.scrollButtons[0] = {0, 0, kTapeScrollButtonWidth, kTapeTitleHeight};
  w.scrollButtons[1] = {inner - kTapeScrollButtonWidth, 0,
                        kTapeScrollButtonWidth, kTapeTitleHeight};
}

}  // namespace

void frmTape_Form_Load(App& app) {
  TapeWindowForm& w = app.tapeWindow;
  const Rect& calc = app.calculator.geometry;
  // Just above the calculator, 240 narrower at each side, the two windows
  // overlapping by 50. The top is worked out from the height the window has
  // before it is given its own.
  w.geometry.left = calc.left + 240;
  w.geometry.top = calc.top - w.geometry.height + 50;
  w.geometry.width = calc.width - 480;
  w.geometry.height = kTapeDesignHeight;

  const float inner = InnerWidth(w);
  w.title.rect = {0, 0, inner, kTapeTitleHeight};
  w.grid = {0, kTapeTitleHeight, inner, kTapeGridHeight};
  app.tapes.height = kTapeGridHeight;
  PlaceScrollButtons(w);

  app.tapes.TapeLineCount.assign(1, 0);
  app.tapes.TapeNames.assign(1, "Calculator");
  app.tapes.SetCols(1);
  app.tapes.ShownTape = 0;
  w.title.caption = app.tapes.TapeNames[0];
  w.loaded = true;
  app.calculator.focus = "Equal";
}

void frmTape_Form_Resize(App& app) {
  if (app.calculator.state == WindowState::kMinimized) {
    app.shell.tapeResizeGuard = false;
    return;
  }
  // Hiding the window delivers one resize of its own; the guard swallows it.
  if (app.shell.tapeResizeGuard) {
    app.shell.tapeResizeGuard = false;
    return;
  }
  app.shell.tapeResizeGuard = true;
  TapeWindowForm& w = app.tapeWindow;
  const float inner = InnerWidth(w);
  // The grid takes whole rows of what is left below the title, at least one.
  const float room =
      w.geometry.height - kTapeNonClientHeight - kTapeTitleHeight;
  float rows = 1;
  if (app.tapes.rowHeight1 > 0 && std::isfinite(room)) {
    rows = std::floor(room / app.tapes.rowHeight1);
    if (!(rows >= 1)) rows = 1;
  }
  w.grid = {0, kTapeTitleHeight, inner, rows * app.tapes.rowHeight1};
  app.tapes.height = w.grid.height;
  w.title.rect = {0, 0, inner, kTapeTitleHeight};
  PlaceScrollButtons(w);
  app.platform.SetTopmost({WindowKind::kTape, 0}, true);
  app.platform.SetTopmost({WindowKind::kCalculator, 0}, true);
  app.shell.tapeResizeGuard = false;
}

void MoveToTape(App& app, bool right) {
  TapeStore& tapes = app.tapes;
  const std::int32_t last = tapes.Cols() - 1;
  if (last < 0) return;
  std::int32_t col = tapes.col;
  if (right) {
    col = col >= last ? 0 : col + 1;
  } else {
    col = col <= 0 ? last : col - 1;
  }
  tapes.col = col;
  if (static_cast<std::size_t>(col) < tapes.TapeNames.size()) {
    app.tapeWindow.title.caption =
        tapes.TapeNames[static_cast<std::size_t>(col)];
  }
  // ShownTape is a 16-bit field; a column past its range is not shown.
  if (col <= 32767) tapes.ShownTape = static_cast<std::int16_t>(col);
  tapes.leftCol = col;
  ScrollTapeToEnd(tapes);
}

void Grid1_KeyDown(App& app, int keyCode) {
  if (keyCode == kKeyLeft) MoveToTape(app, false);
  if (keyCode == kKeyRight) MoveToTape(app, true);
}

void cmdScrollTape_Click(App& app, int index) {
  Grid1_KeyDown(app, index == 0 ? kKeyLeft : kKeyRight);
}

void mnuTape_Click(App& app) {
  MenuModel& menus = app.menus;
  if (menus.IsChecked("mnuTape")) {
    app.shell.tapeResizeGuard = true;
    app.tapeWindow.visible = false;
    menus.SetChecked("mnuTape", false);
    menus.SetChecked("mnuPopup1ShowTape", false);
    // The resize that hiding the window delivers.
    frmTape_Form_Resize(app);
    return;
  }
  app.tapeWindow.visible = true;
  menus.SetChecked("mnuTape", true);
  menus.SetChecked("mnuPopup1ShowTape", true);
  // The calculator must stay above its tape.
  app.platform.SetTopmost({WindowKind::kTape, 0}, true);
  app.platform.SetTopmost({WindowKind::kCalculator, 0}, true);
}

void mnuPopup1ShowTape_Click(App& app) { mnuTape_Click(app); }

}  // namespace brenko
