#include "core/tape/print_tape.h"

#include <cstdint>
#include <optional>
#include <string>

#include "core/measure/blanks.h"

namespace brenko {

namespace {

constexpr std::size_t kMaxWidth = 32767;  // the width is a 16-bit field

// The tape's line count, or nothing for a tape number the store does not
// have (the steps that need it are then left out).
std::optional<std::int32_t> LineCount(const TapeStore& tapes, int tape) {
  if (!tapes.HasTape(tape)) return std::nullopt;
  return tapes.TapeLineCount()[static_cast<std::size_t>(tape)];
}

void SelectRow(TapeStore& tapes, std::int32_t row) {
  if (row >= 0 && row < tapes.Rows()) tapes.row = row;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (char c : text) {
    // Continuation bytes (10xxxxxx) belong to the character before them.
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++count;
  }
  return count;
}

void PrintTape(TapeStore& tapes, Platform& printer, int tape) {
  if (tape >= 0 && tape < tapes.Cols()) tapes.col = tape;
  printer.PrinterSetFont(kPrintFont, kPrintFontSize);

  const bool hasName = tapes.HasTape(tape);
  const std::string name =
      hasName ? tapes.TapeNames()[static_cast<std::size_t>(tape)] : "";
  const std::optional<std::int32_t> count = LineCount(tapes, tape);

  // The column is as wide as the longest trimmed line, or the name.
  const std::size_t nameLength = CharacterCount(name);
  if (nameLength > kMaxWidth) return;
  std::size_t width = nameLength;
  if (count) {
    for (std::int32_t r = 0; r <= *count; ++r) {
      SelectRow(tapes, r);
      const std::size_t length =
          CharacterCount(TrimBlanks(tapes.Cell(r, tape)));
      if (length > kMaxWidth) return;
      if (length > width) width = length;
    }
  }

  // An odd blank left over falls on the right of the name.
  if (hasName) {
    printer.PrinterPrintLine(std::string((width - nameLength) / 2, ' ') + name);
  }
  if (count) {
    for (std::int32_t r = 0; r <= *count; ++r) {
      SelectRow(tapes, r);
      const std::string_view text = TrimBlanks(tapes.Cell(r, tape));
      printer.PrinterPrintLine(std::string(width - CharacterCount(text), ' ') +
                               std::string(text));
    }
  }
  printer.PrinterEndDoc();
}

void PrintAllTapes(TapeStore& tapes, Platform& printer, int count) {
  for (int tape = 0; tape < count; ++tape) PrintTape(tapes, printer, tape);
}

}  // namespace brenko
