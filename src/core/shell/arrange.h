#pragma once
// The layout of the memory windows in the main frame MDIForm1: columns of
// windows, as many as the frame's width holds, the frame fitted around
// them.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/base/platform.h"
#include "core/base/window_model.h"
#include "core/memory/memory_form.h"
#include "core/shell/main_frame.h"

namespace brenko {

// What the arrangement does, in this order: the frame takes a new place
// and size (its resize event follows when the size changes), then the
// memory windows take their places. A step that would overflow its 16-bit
// field stops the arrangement where it is: the plan holds only what came
// before it.
struct ArrangementPlan {
  std::optional<Rect> frame;
  // True when the frame is moved as part of a column layout: its resize
  // must not lay the windows out again meanwhile.
  bool frameWhileArranging = false;
  struct Place {
    MemoryForm* form;
    float left;
    float top;
  };
  std::vector<Place> places;
  // Planned by an ArrangementBatch: instead of listing its places, the
  // plan says the first `count` memory windows go column by column of
  // `rows`, the columns `widest` apart (the batch places them later).
  struct Columns {
    std::size_t count;
    std::int16_t rows;
    std::int16_t widest;
  };
  std::optional<Columns> columns;
};

ArrangementPlan PlanArrangement(const MemoryState& memory,
                                const MainFrameForm& frame,
                                const ScreenInfo& screen);

// The grid the windows fill, grown a column or a row at a time from the
// frame's own until it holds the memories. The growth never depends on how
// many memories there are, only where it stops does: a grid kept from one
// arrangement goes on from where it stopped for the next, larger count.
struct GridGrowth {
  std::int16_t columns = 0;
  std::int16_t rows = 0;
  bool overflowed = false;
  // Grows until the grid holds `count` cells; false when a step overflowed
  // (then and for every larger count).
  bool Reach(std::int16_t count, std::int16_t widest, const ScreenInfo& screen);
};

// The arrangements of a run of new memory windows, planned one by one as
// the windows come (each moving the frame as PlanArrangement's would), with
// the windows placed once, at Place: each where the last arrangement that
// reached it would have put it. A memory file of thousands of memories so
// opens in linear time, ending exactly as if every plan had been carried
// out in turn. While the run lasts, windows may only be added: those
// already made keep their order, width and height.
class ArrangementBatch {
 public:
  // The plan PlanArrangement makes now, its places given as `columns`
  // rather than listed.
  ArrangementPlan Plan(const MemoryState& memory, const MainFrameForm& frame,
                       const ScreenInfo& screen);
  // Takes a plan's places as carried out now (after the frame's move, as
  // the places follow it).
  void Note(const ArrangementPlan::Columns& columns);
  // Puts every window where the last plan noted that reached it put it, and
  // forgets the plans. True when some window was placed (the forms came
  // from a const state: the caller says they changed).
  bool Place() noexcept;

 private:
  std::vector<ArrangementPlan::Columns> placings_;
  // The memory windows in window order, and the widest of them, taken in as
  // they come.
  std::vector<MemoryForm*> list_;
  std::size_t seen_ = 0;
  std::int16_t widest_ = 0;
  bool widthOverflowed_ = false;
  // The last arrangement's grid, with where its growth started from.
  GridGrowth growth_;
  GridGrowth growthStart_;
  std::int16_t growthWidest_ = 0;
  ScreenInfo growthScreen_;
  std::int16_t growthCount_ = 0;
  bool haveGrowth_ = false;
};

}  // namespace brenko
