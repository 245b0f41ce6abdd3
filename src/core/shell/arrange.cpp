#include "core/shell/arrange.h"

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

// Every step of the layout that can overflow its 16-bit field returns false;
// the plan then ends where it is, as an overflow stops the routine.
bool Plan(const MemoryState& memory, const MainFrameForm& frame,
          const ScreenInfo& screen, ArrangementPlan& plan) {
  if (memory.windowCounter < 2) return true;

  // The memory list: the memory windows in window order; the widest of them
  // (a tie keeps the earlier).
  std::vector<MemoryForm*> list;
  std::int16_t widest = 0;
  for (const auto& form : memory.Forms()) {
    if (!form->IsMemoryWindow()) continue;
    list.push_back(form.get());
    if (form->geometry.width > widest) {
      if (!ToInt16(form->geometry.width, widest)) return false;
    }
  }

  if (memory.nextNumber == 2) {
    std::int16_t width = 0;
    if (!CheckedAdd16(widest, kSingleMemoryFrameExtra, width)) return false;
    plan.frame = Rect{frame.geometry.left, frame.geometry.top,
                      static_cast<float>(width), kSingleMemoryFrameHeight};
    return true;
  }

  // Every memory window is made with one height; the first one's serves.
  const float memoryHeight =
      list.empty() ? kMemoryWindowHeight : list.front()->geometry.height;
  std::int16_t columns = 0;
  std::int16_t rows = 0;
  if (!ToInt16(static_cast<double>(frame.InnerWidth()) / widest, columns) ||
      !ToInt16(static_cast<double>(frame.InnerHeight()) / memoryHeight, rows)) {
    return false;
  }
  if (columns < 1) columns = 1;
  if (rows < 1) rows = 1;

  std::int16_t n = 0;
  if (!CheckedAdd16(memory.windowCounter, -1, n)) return false;
  for (;;) {
    std::int16_t cells = 0;
    if (!CheckedMul16(columns, rows, cells)) return false;
    if (n <= cells) break;
    std::int16_t next = 0;
    std::int16_t span = 0;
    if (rows < columns) {
      if (!CheckedAdd16(columns, 2, next) ||
          !CheckedMul16(next, widest, span)) {
        return false;
      }
      std::int16_t& grown = span < screen.WidthTwips() ? columns : rows;
      if (!CheckedAdd16(grown, 1, grown)) return false;
    } else {
      if (!CheckedAdd16(rows, 2, next)) return false;
      const std::int32_t tall = static_cast<std::int32_t>(next) * kRowAllowance;
      if (tall > INT16_MAX) return false;
      std::int16_t& grown = tall < screen.HeightTwips() ? rows : columns;
      if (!CheckedAdd16(grown, 1, grown)) return false;
    }
  }

  if (frame.state == WindowState::kNormal) {
    std::int16_t across = 0;
    std::int16_t borderX = 0;
    std::int16_t borderY = 0;
    std::int16_t width = 0;
    if (!CheckedMul16(widest, columns, across) ||
        !ToInt16(frame.geometry.width - frame.InnerWidth(), borderX) ||
        !ToInt16(frame.geometry.height - frame.InnerHeight(), borderY) ||
        !CheckedAdd16(across, borderX, width)) {
      return false;
    }
    const float height =
        memoryHeight * static_cast<float>(rows) + static_cast<float>(borderY);
    plan.frame = Rect{frame.geometry.left, frame.geometry.top,
                      static_cast<float>(width), height};
    plan.frameWhileArranging = true;
  }

  // Column by column, each filled from the top.
  std::int16_t left = 0;
  for (std::int16_t column = 1; column <= columns; ++column) {
    if (column > 1 && !CheckedAdd16(left, widest, left)) return false;
    float top = 0;
    for (std::int16_t row = 1; row <= rows; ++row) {
      std::int16_t before = 0;
      std::int16_t k = 0;
      if (!CheckedMul16(static_cast<std::int16_t>(column - 1), rows, before) ||
          !CheckedAdd16(before, row, k)) {
        return false;
      }
      if (k > n || static_cast<std::size_t>(k) > list.size()) return true;
      MemoryForm* form = list[static_cast<std::size_t>(k) - 1];
      plan.places.push_back({form, static_cast<float>(left), top});
      top += form->geometry.height;
    }
  }
  return true;
}

}  // namespace

ArrangementPlan PlanArrangement(const MemoryState& memory,
                                const MainFrameForm& frame,
                                const ScreenInfo& screen) {
  ArrangementPlan plan;
  Plan(memory, frame, screen, plan);
  return plan;
}

}  // namespace brenko
