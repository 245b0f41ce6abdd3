#include "core/tape/tape_store.h"

#include <cstddef>
#include <utility>

#include "core/measure/blanks.h"
#include "core/measure/number_text.h"

namespace brenko {

namespace {

std::uint64_t Key(std::int32_t row, std::int32_t col) {
  return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(row)) << 32) |
         static_cast<std::uint32_t>(col);
}

}  // namespace

std::uint64_t TapeStore::ColumnRevision(std::int32_t col) const {
  if (col < 0 || static_cast<std::size_t>(col) >= columnRevisions_.size()) {
    return 0;
  }
  return columnRevisions_[static_cast<std::size_t>(col)];
}

void TapeStore::ColumnChanged(std::int32_t col) {
  const auto slot = static_cast<std::size_t>(col);
  if (columnRevisions_.size() <= slot) columnRevisions_.resize(slot + 1, 0);
  ++columnRevisions_[slot];
  Changed();
}

void TapeStore::SetRows(std::int32_t rows) {
  if (rows < 0 || rows == rows_) return;
  Changed();
  if (rows < rows_) {
    // Cutting the grid back drops the lines below the new end.
    std::erase_if(cells_, [rows](const auto& cell) {
      return static_cast<std::int32_t>(cell.first >> 32) >= rows;
    });
    // Any column may have lost lines.
    for (std::uint64_t& revision : columnRevisions_) ++revision;
    if (row >= rows) row = rows > 0 ? rows - 1 : 0;
    if (topRow >= rows) topRow = rows > 0 ? rows - 1 : 0;
  }
  rows_ = rows;
}

void TapeStore::SetCols(std::int32_t cols) {
  if (cols < 0 || cols == cols_) return;
  Changed();
  if (cols < cols_) {
    std::erase_if(cells_, [cols](const auto& cell) {
      return static_cast<std::int32_t>(cell.first & 0xFFFFFFFFu) >= cols;
    });
    // A column that comes back later starts with a new revision, not the
    // one a view may have seen before it went.
    for (std::size_t c = static_cast<std::size_t>(cols);
         c < columnRevisions_.size(); ++c) {
      ++columnRevisions_[c];
    }
    if (col >= cols) col = cols > 0 ? cols - 1 : 0;
    if (leftCol >= cols) leftCol = cols > 0 ? cols - 1 : 0;
  }
  cols_ = cols;
}

const std::string& TapeStore::Cell(std::int32_t r, std::int32_t c) const {
  static const std::string kUnwritten;
  if (r < 0 || c < 0 || r >= rows_ || c >= cols_) return kUnwritten;
  auto it = cells_.find(Key(r, c));
  return it == cells_.end() ? kUnwritten : it->second;
}

void TapeStore::SetCell(std::int32_t r, std::int32_t c, std::string text) {
  if (r < 0 || c < 0 || r >= rows_ || c >= cols_) return;
  if (text.empty()) {
    if (cells_.erase(Key(r, c)) == 0) return;
  } else {
    std::string& cell = cells_[Key(r, c)];
    if (cell == text) return;
    cell = std::move(text);
  }
  ColumnChanged(c);
}

bool TapeStore::HasTape(int tape) const {
  return tape >= 0 && static_cast<std::size_t>(tape) < counts_.size();
}

void TapeStore::AddTape(int tape, const std::string& name) {
  if (tape < 0) return;
  const auto size = static_cast<std::size_t>(tape) + 1;
  if (counts_.size() < size) counts_.resize(size, 0);
  if (names_.size() < size) names_.resize(size);
  names_[size - 1] = name;
  Changed();
  if (cols_ < static_cast<std::int32_t>(counts_.size())) {
    SetCols(static_cast<std::int32_t>(counts_.size()));
  }
}

void TapeStore::DropMemoryTapes() {
  Changed();
  SetRows(1);
  counts_.resize(1);
  names_.resize(1);
  SetCols(1);
}

void TapeStore::ResetTapes() {
  Changed();
  counts_.assign(1, 0);
  names_.assign(1, "Calculator");
  SetCols(1);
}

void TapeStore::TakeBackLastLine(int tape) {
  if (!HasTape(tape)) return;
  std::int16_t& count = counts_[static_cast<std::size_t>(tape)];
  WriteTapeLine(*this, tape, count, "");
  --count;
  Changed();
}

void ReserveTapeLines(TapeStore& tapes, int tape, int count) {
  if (!tapes.HasTape(tape)) return;
  std::int16_t& lines = tapes.counts_[static_cast<std::size_t>(tape)];
  std::int16_t step = 0;
  std::int16_t reserved = 0;
  // A count that would pass 32767 stays where it is.
  if (ToInt16(count, step) && CheckedAdd16(lines, step, reserved) &&
      reserved != lines) {
    lines = reserved;
    tapes.Changed();
  }
  // Ten spare rows below the tape just extended; the grid never shrinks here.
  // Near the top of the 16-bit range the sum itself overflows and the grid
  // keeps its size.
  std::int16_t wanted = 0;
  if (CheckedAdd16(lines, 10, wanted) && tapes.Rows() < wanted) {
    tapes.SetRows(wanted);
  }
}

void WriteTapeLine(TapeStore& tapes, int tape, int row,
                   const std::string& text) {
  if (!tapes.HasTape(tape)) return;
  // The grid has one column per tape; it follows the counter array.
  if (tape >= tapes.Cols()) {
    tapes.SetCols(static_cast<std::int32_t>(tapes.TapeLineCount().size()));
  }
  if (row < 0 || row >= tapes.Rows()) return;
  tapes.col = tape;
  tapes.row = row;
  tapes.SetCell(row, tape, text);
}

void ClearTape(TapeStore& tapes, int tape) {
  if (!tapes.HasTape(tape)) return;
  ReserveTapeLines(tapes, tape, 3);
  const int count = tapes.TapeLineCount()[static_cast<std::size_t>(tape)];
  WriteTapeLine(tapes, tape, count - 2, " ");
  WriteTapeLine(tapes, tape, count - 1, "Clear ");
  WriteTapeLine(tapes, tape, count, " ");
}

void ScrollTapeToEnd(TapeStore& tapes) {
  // Whole rows that fit in the grid. A row height that rounds to nothing
  // cannot divide, and that step is passed over (no rows counted).
  std::int32_t height = 0;
  std::int32_t rowHeight = 0;
  std::int32_t visible = 0;
  if (ToInt32(tapes.height, height) && ToInt32(tapes.rowHeight1, rowHeight) &&
      rowHeight != 0) {
    visible = height / rowHeight;
  }
  if (!tapes.HasTape(tapes.ShownTape)) {
    tapes.topRow = 0;
    return;
  }
  const std::int32_t lines =
      tapes.TapeLineCount()[static_cast<std::size_t>(tapes.ShownTape)];
  if (lines - visible < 0) {
    tapes.topRow = 0;
  } else {
    tapes.topRow = lines - visible + 1;
  }
}

bool AppendTapeLines(TapeStore& tapes, int tape,
                     std::initializer_list<std::string> lines) {
  if (!tapes.HasTape(tape)) return false;
  const auto slot = static_cast<std::size_t>(tape);
  const std::int16_t before = tapes.TapeLineCount()[slot];
  const int k = static_cast<int>(lines.size());
  ReserveTapeLines(tapes, tape, k);
  const int count = tapes.TapeLineCount()[slot];
  if (count != before + k) return false;
  int row = count - k + 1;
  for (const std::string& line : lines) WriteTapeLine(tapes, tape, row++, line);
  return true;
}

std::vector<std::string> TapeLines(const TapeStore& tapes, int tape) {
  std::vector<std::string> lines;
  if (!tapes.HasTape(tape)) return lines;
  const int count = tapes.TapeLineCount()[static_cast<std::size_t>(tape)];
  for (int row = 1; row <= count; ++row) {
    lines.push_back(tapes.Cell(row, tape));
  }
  return lines;
}

std::string JoinedTapeLines(const TapeStore& tapes, int tape) {
  const std::vector<std::string> lines = TapeLines(tapes, tape);
  std::string joined;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) joined.push_back('\n');
    joined += lines[i];
  }
  return joined;
}

std::string TapeText(std::string_view text) {
  std::string line(TrimTrailingBlanks(text));
  line.push_back(' ');
  return line;
}

}  // namespace brenko
