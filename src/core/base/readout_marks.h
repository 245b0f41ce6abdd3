#pragma once
// Where the first point, feet mark and inch mark of the readout's text are.
// The entry keys ask this on every key; reading the whole text each time made
// a long entry cost the square of its length. Kept as the text grows: only
// the characters added since the last look are read. A short text, one that
// got shorter (except by a Backspace, which says what it cut), or one whose
// remembered marks or last character are gone is read again from the start.
// Whoever replaces the text calls Forget (CalculatorForm::SetReadout does).

#include <cstddef>
#include <string>

namespace brenko {

class ReadoutMarks {
 public:
  static constexpr std::size_t kNone = std::string::npos;

  // Brings the marks up to date with `text`.
  void Follow(const std::string& text) {
    if (text.size() < kReadWholeBelow || !StillHolds(text)) Forget();
    for (; seen_ < text.size(); ++seen_) {
      const char c = text[seen_];
      last_ = c;
      if (c == '.' && point_ == kNone) point_ = seen_;
      if (c == '\'' && foot_ == kNone) foot_ = seen_;
      if (c == '"' && inch_ == kNone) inch_ = seen_;
    }
  }

  // The text lost everything from `size` on and kept the rest as it was.
  void Cut(const std::string& text) {
    const std::size_t size = text.size();
    if (size >= seen_) return;
    seen_ = size;
    if (size > 0) last_ = text[size - 1];
    if (point_ >= size) point_ = kNone;
    if (foot_ >= size) foot_ = kNone;
    if (inch_ >= size) inch_ = kNone;
  }

  void Forget() {
    seen_ = 0;
    point_ = foot_ = inch_ = kNone;
  }

  // Valid after Follow with the current text.
  std::size_t FirstPoint() const { return point_; }
  std::size_t FirstFoot() const { return foot_; }
  bool HasInch() const { return inch_ != kNone; }

 private:
  // Texts this short cost little to read whole, and are those that other
  // writers put into the readout.
  static constexpr std::size_t kReadWholeBelow = 256;

  bool StillHolds(const std::string& text) const {
    if (text.size() < seen_) return false;
    if (seen_ > 0 && text[seen_ - 1] != last_) return false;
    return (point_ == kNone || text[point_] == '.') &&
           (foot_ == kNone || text[foot_] == '\'') &&
           (inch_ == kNone || text[inch_] == '"');
  }

  std::size_t seen_ = 0;
  char last_ = 0;
  std::size_t point_ = kNone;
  std::size_t foot_ = kNone;
  std::size_t inch_ = kNone;
};

}  // namespace brenko
