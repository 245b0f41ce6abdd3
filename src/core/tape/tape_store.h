#pragma once
// All tapes side by side in one grid: tape k is column k, line n of a tape is
// row n of that column. Only written cells take memory, so a tape of 32767
// lines next to two hundred short ones stays cheap.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace brenko {

class TapeStore {
 public:
  // --- the grid -----------------------------------------------------------
  std::int32_t Rows() const { return rows_; }
  void SetRows(std::int32_t rows);
  std::int32_t Cols() const { return cols_; }
  void SetCols(std::int32_t cols);
  // An unwritten cell (or one outside the grid) reads as the empty text.
  const std::string& Cell(std::int32_t row, std::int32_t col) const;
  void SetCell(std::int32_t row, std::int32_t col, std::string text);
  // The grid's current cell, as the writers select it.
  std::int32_t row = 0;
  std::int32_t col = 0;
  std::int32_t topRow = 0;
  std::int32_t leftCol = 0;
  float height = 1125;     // twips
  float rowHeight1 = 240;  // twips, the height of row 1

  // --- the tapes ----------------------------------------------------------
  // One line count and one name per tape, always side by side: tapes come
  // and go only through the calls below. The calculator's own tape 0 exists
  // from the start.
  const std::vector<std::int16_t>& TapeLineCount() const { return counts_; }
  const std::vector<std::string>& TapeNames() const { return names_; }
  bool HasTape(int tape) const;
  // A memory's tape under its number, with no lines yet unless the number
  // had a tape before; the grid gets a column for it.
  void AddTape(int tape, const std::string& name);
  // The main frame's close: the memories' tapes and every line go, the
  // calculator's tape stays with its count and name.
  void DropMemoryTapes();
  // The tape window's load: the calculator's tape alone, with no line
  // counted.
  void ResetTapes();
  // Blanks the last line of a tape and counts it off again.
  void TakeBackLastLine(int tape);
  std::int16_t ShownTape = 0;

  // --- change tracking ----------------------------------------------------
  // The views redraw only what changed since they last looked. Revision()
  // moves on with every change of the grid's size, of a cell, or of a
  // tape's line count or name; ColumnRevision(c) with every change of a cell
  // of column c (0 for a column never written). The plain fields above
  // (the current cell, the top row, the shown tape, the heights) are read
  // as they are.
  std::uint64_t Revision() const { return revision_; }
  std::uint64_t ColumnRevision(std::int32_t col) const;

 private:
  void Changed() { ++revision_; }
  void ColumnChanged(std::int32_t col);

  std::int32_t rows_ = 1;
  std::int32_t cols_ = 1;
  std::unordered_map<std::uint64_t, std::string> cells_;
  std::vector<std::int16_t> counts_{0};
  std::vector<std::string> names_{"Calculator"};
  std::uint64_t revision_ = 0;
  std::vector<std::uint64_t> columnRevisions_;

  friend void ReserveTapeLines(TapeStore& tapes, int tape, int count);
};

// The writers' operations. A tape number outside TapeLineCount makes each
// step that indexes it do nothing, and a count that would pass 32767 is left
// unchanged.
void ReserveTapeLines(TapeStore& tapes, int tape, int count);
void WriteTapeLine(TapeStore& tapes, int tape, int row,
                   const std::string& text);
void ClearTape(TapeStore& tapes, int tape);
void ScrollTapeToEnd(TapeStore& tapes);

// Reserves as many lines on the tape as are given and writes them at its
// end; false (and nothing written) when the count cannot take them all.
bool AppendTapeLines(TapeStore& tapes, int tape,
                     std::initializer_list<std::string> lines);

// Lines 1 to the line count of a tape; nothing for a tape the store does not
// have.
std::vector<std::string> TapeLines(const TapeStore& tapes, int tape);
// The same lines in one text, joined with "\n".
std::string JoinedTapeLines(const TapeStore& tapes, int tape);

// A tape line: the text without its trailing blanks, closed by one blank.
std::string TapeText(std::string_view text);

}  // namespace brenko
