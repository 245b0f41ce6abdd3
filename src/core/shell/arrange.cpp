#include "core/shell/arrange.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "core/measure/number_text.h"

namespace brenko {

namespace {

// What a memory row is allowed when the grid grows, whatever the windows'
// own height: a fixed allowance, kept as the program has always had it.
inline constexpr std::int32_t kRowAllowance = 630;
// The frame around a single memory.
inline constexpr std::int16_t kSingleMemoryFrameExtra = 120;
inline constexpr float kSingleMemoryFrameHeight = 1040;

bool CheckedMul16(std::int16_t a, std::int16_t b, std::int16_t& out) {
  const std::int32_t product = static_cast<std::int32_t>(a) * b;
  if (product < INT16_MIN || product > INT16_MAX) return false;
  out = static_cast<std::int16_t>(product);
  return true;
}

// The grid's size for one arrangement, where the windows are placed.
struct Grid {
  std::int16_t columns = 0;
  std::int16_t rows = 0;
};

// The memory list: the memory windows in window order from `from` on,
// appended to `list`; the widest of them (a tie keeps the earlier) goes on
// from `widest`. False when a width does not fit its 16-bit field.
bool TakeMemoryWindows(const MemoryState& memory, std::size_t from,
                       std::vector<MemoryForm*>& list, std::int16_t& widest) {
  const auto forms = memory.Forms();
  for (std::size_t i = from; i < forms.size(); ++i) {
    MemoryForm* form = forms[i].get();
    if (!form->IsMemoryWindow()) continue;
    list.push_back(form);
    if (form->geometry.width > widest) {
      if (!ToInt16(form->geometry.width, widest)) return false;
    }
  }
  return true;
}

// The grid the frame's inner area holds as it is, at least one by one.
bool StartingGrid(const MainFrameForm& frame, std::int16_t widest,
                  float memoryHeight, GridGrowth& grid) {
  if (!ToInt16(static_cast<double>(frame.InnerWidth()) / widest,
               grid.columns) ||
      !ToInt16(static_cast<double>(frame.InnerHeight()) / memoryHeight,
               grid.rows)) {
    return false;
  }
  if (grid.columns < 1) grid.columns = 1;
  if (grid.rows < 1) grid.rows = 1;
  return true;
}

// Every step of the layout that can overflow its 16-bit field returns
// nothing; the plan then ends where it is, as an overflow stops the
// routine. What is planned here is the frame; the grid returned is where the
// windows go, when they are placed at all. `grow` takes the grid from the
// frame's own to the one that holds the memories.
template <typename Grow>
std::optional<Grid> PlanFrame(const MemoryState& memory,
                              const MainFrameForm& frame, std::int16_t widest,
                              float memoryHeight, ArrangementPlan& plan,
                              Grow grow) {
  if (memory.nextNumber == 2) {
    std::int16_t width = 0;
    if (!CheckedAdd16(widest, kSingleMemoryFrameExtra, width)) return {};
    plan.frame = Rect{frame.geometry.left, frame.geometry.top,
                      static_cast<float>(width), kSingleMemoryFrameHeight};
    return {};
  }

  GridGrowth start;
  if (!StartingGrid(frame, widest, memoryHeight, start)) return {};
  std::int16_t n = 0;
  if (!CheckedAdd16(memory.windowCounter, -1, n)) return {};
  const std::optional<Grid> grid = grow(start, n);
  if (!grid) return {};
  const std::int16_t columns = grid->columns;
  const std::int16_t rows = grid->rows;

  if (frame.state == WindowState::kNormal) {
    std::int16_t across = 0;
    std::int16_t borderX = 0;
    std::int16_t borderY = 0;
    std::int16_t width = 0;
    if (!CheckedMul16(widest, columns, across) ||
        !ToInt16(frame.geometry.width - frame.InnerWidth(), borderX) ||
        !ToInt16(frame.geometry.height - frame.InnerHeight(), borderY) ||
        !CheckedAdd16(across, borderX, width)) {
      return {};
    }
    const float height =
        memoryHeight * static_cast<float>(rows) + static_cast<float>(borderY);
    plan.frame = Rect{frame.geometry.left, frame.geometry.top,
                      static_cast<float>(width), height};
    plan.frameWhileArranging = true;
  }
  return grid;
}

// What the frame's inner height is measured in: every memory window is made
// with one height, and the first one's serves.
float MemoryHeightOf(const std::vector<MemoryForm*>& list) {
  return list.empty() ? kMemoryWindowHeight : list.front()->geometry.height;
}

void Plan(const MemoryState& memory, const MainFrameForm& frame,
          const ScreenInfo& screen, ArrangementPlan& plan) {
  if (memory.windowCounter < 2) return;
  std::vector<MemoryForm*> list;
  std::int16_t widest = 0;
  if (!TakeMemoryWindows(memory, 0, list, widest)) return;
  const std::optional<Grid> grid =
      PlanFrame(memory, frame, widest, MemoryHeightOf(list), plan,
                [&](GridGrowth growth, std::int16_t n) -> std::optional<Grid> {
                  if (!growth.Reach(n, widest, screen)) return {};
                  return Grid{growth.columns, growth.rows};
                });
  if (!grid) return;
  const std::int16_t n = static_cast<std::int16_t>(memory.windowCounter - 1);

  // Column by column, each filled from the top.
  std::int16_t left = 0;
  for (std::int16_t column = 1; column <= grid->columns; ++column) {
    if (column > 1 && !CheckedAdd16(left, widest, left)) return;
    float top = 0;
    for (std::int16_t row = 1; row <= grid->rows; ++row) {
      std::int16_t before = 0;
      std::int16_t k = 0;
      if (!CheckedMul16(static_cast<std::int16_t>(column - 1), grid->rows,
                        before) ||
          !CheckedAdd16(before, row, k)) {
        return;
      }
      if (k > n || static_cast<std::size_t>(k) > list.size()) return;
      MemoryForm* form = list[static_cast<std::size_t>(k) - 1];
      plan.places.push_back({form, static_cast<float>(left), top});
      top += form->geometry.height;
    }
  }
}

}  // namespace

ArrangementPlan PlanArrangement(const MemoryState& memory,
                                const MainFrameForm& frame,
                                const ScreenInfo& screen) {
  ArrangementPlan plan;
  Plan(memory, frame, screen, plan);
  return plan;
}

bool GridGrowth::Reach(std::int16_t count, std::int16_t widest,
                       const ScreenInfo& screen) {
  while (!overflowed) {
    std::int16_t cells = 0;
    if (!CheckedMul16(columns, rows, cells)) break;
    if (count <= cells) return true;
    std::int16_t next = 0;
    std::int16_t span = 0;
    if (rows < columns) {
      if (!CheckedAdd16(columns, 2, next) ||
          !CheckedMul16(next, widest, span)) {
        break;
      }
      std::int16_t& grown = span < screen.WidthTwips() ? columns : rows;
      if (!CheckedAdd16(grown, 1, grown)) break;
    } else {
      if (!CheckedAdd16(rows, 2, next)) break;
      const std::int32_t tall = static_cast<std::int32_t>(next) * kRowAllowance;
      if (tall > INT16_MAX) break;
      std::int16_t& grown = tall < screen.HeightTwips() ? rows : columns;
      if (!CheckedAdd16(grown, 1, grown)) break;
    }
  }
  overflowed = true;
  return false;
}

ArrangementPlan ArrangementBatch::Plan(const MemoryState& memory,
                                       const MainFrameForm& frame,
                                       const ScreenInfo& screen) {
  ArrangementPlan plan;
  if (memory.windowCounter < 2) return plan;
  // Only the windows made since the last arrangement are new to the list;
  // a width that overflowed once overflows every later scan too.
  if (!widthOverflowed_) {
    widthOverflowed_ = !TakeMemoryWindows(memory, seen_, list_, widest_);
    seen_ = memory.Forms().size();
  }
  if (widthOverflowed_) return plan;
  const std::int16_t widest = widest_;
  const std::optional<Grid> grid = PlanFrame(
      memory, frame, widest, MemoryHeightOf(list_), plan,
      [&](const GridGrowth& start, std::int16_t n) -> std::optional<Grid> {
        // The same start, the same widest and screen, and no fewer
        // memories: the growth goes on from where it stopped last time.
        const bool resume =
            haveGrowth_ && start.columns == growthStart_.columns &&
            start.rows == growthStart_.rows && widest == growthWidest_ &&
            screen == growthScreen_ && n >= growthCount_;
        if (!resume) {
          growth_ = start;
          growthStart_ = start;
          growthWidest_ = widest;
          growthScreen_ = screen;
          haveGrowth_ = true;
        }
        growthCount_ = n;
        if (!growth_.Reach(n, widest, screen)) return {};
        return Grid{growth_.columns, growth_.rows};
      });
  if (!grid) return plan;

  // The windows the column loop reaches: no more than there are memories
  // and windows, and only the columns whose left edge fits its 16-bit
  // field (widest is at least 1 here: the grid was measured in it).
  const std::int16_t n = static_cast<std::int16_t>(memory.windowCounter - 1);
  const std::int32_t columns =
      std::min<std::int32_t>(grid->columns, 1 + INT16_MAX / widest);
  std::size_t count = std::min<std::size_t>(
      static_cast<std::size_t>(n),
      static_cast<std::size_t>(columns) * static_cast<std::size_t>(grid->rows));
  count = std::min(count, list_.size());
  plan.columns = ArrangementPlan::Columns{count, grid->rows, widest};
  return plan;
}

void ArrangementBatch::Note(const ArrangementPlan::Columns& columns) {
  placings_.push_back(columns);
}

bool ArrangementBatch::Place() noexcept {
  // From the last arrangement back: each places the windows beyond those a
  // later one reached.
  std::size_t placed = 0;
  for (auto it = placings_.rbegin(); it != placings_.rend(); ++it) {
    if (it->count <= placed) continue;
    const auto rows = static_cast<std::size_t>(it->rows);
    // The column's top edge runs down from 0 as the column loop adds the
    // windows' heights, in the same order.
    std::size_t j = placed;
    float top = 0;
    for (std::size_t i = j - j % rows; i < j; ++i) {
      top += list_[i]->geometry.height;
    }
    for (; j < it->count; ++j) {
      if (j % rows == 0) top = 0;
      const auto column = static_cast<std::int32_t>(j / rows);
      MemoryForm* form = list_[j];
      form->geometry.left = static_cast<float>(column * it->widest);
      form->geometry.top = top;
      top += form->geometry.height;
    }
    placed = it->count;
  }
  placings_.clear();
  return placed > 0;
}

}  // namespace brenko
