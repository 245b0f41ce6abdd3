#include "core/tape/tape_window.h"

#include <cmath>
#include <cstddef>

namespace brenko {

namespace {

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

void LoadTapeWindowModel(TapeWindowForm& w, TapeStore& tapes,
                         const Rect& calc) {
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
  tapes.height = kTapeGridHeight;
  PlaceScrollButtons(w);

  tapes.ResetTapes();
  tapes.ShownTape = 0;
  w.title.caption = tapes.TapeNames()[0];
  w.loaded = true;
}

void FitTapeWindow(TapeWindowForm& w, TapeStore& tapes) {
  const float inner = InnerWidth(w);
  // The grid takes whole rows of what is left below the title, at least one.
  const float room =
      w.geometry.height - kTapeNonClientHeight - kTapeTitleHeight;
  float rows = 1;
  if (tapes.rowHeight1 > 0 && std::isfinite(room)) {
    rows = std::floor(room / tapes.rowHeight1);
    if (!(rows >= 1)) rows = 1;
  }
  w.grid = {0, kTapeTitleHeight, inner, rows * tapes.rowHeight1};
  tapes.height = w.grid.height;
  w.title.rect = {0, 0, inner, kTapeTitleHeight};
  PlaceScrollButtons(w);
}

void MoveToTape(TapeStore& tapes, TapeWindowForm& window, bool right) {
  const std::int32_t last = tapes.Cols() - 1;
  if (last < 0) return;
  std::int32_t col = tapes.col;
  if (right) {
    col = col >= last ? 0 : col + 1;
  } else {
    col = col <= 0 ? last : col - 1;
  }
  tapes.col = col;
  if (tapes.HasTape(col)) {
    window.title.caption = tapes.TapeNames()[static_cast<std::size_t>(col)];
  }
  // ShownTape is a 16-bit field; a column past its range is not shown.
  if (col <= 32767) tapes.ShownTape = static_cast<std::int16_t>(col);
  tapes.leftCol = col;
  ScrollTapeToEnd(tapes);
}

}  // namespace brenko
