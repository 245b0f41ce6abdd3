#include "core/keypad/pasted_entry.h"

#include "core/measure/blanks.h"

namespace brenko {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A left-to-right reader of the notation; every Read... either takes its
// piece whole and answers true, or takes nothing and answers false.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  bool AtEnd() const { return at_ == text_.size(); }

  bool Eat(char c) {
    if (at_ < text_.size() && text_[at_] == c) {
      ++at_;
      return true;
    }
    return false;
  }

  bool EatWord(std::string_view word) {
    if (text_.substr(at_, word.size()) != word) return false;
    at_ += word.size();
    return true;
  }

  bool SkipBlanks() {
    const std::size_t from = at_;
    while (Eat(' ')) {
    }
    return at_ != from;
  }

  std::size_t Digits() {
    const std::size_t from = at_;
    while (at_ < text_.size() && IsDigit(text_[at_])) ++at_;
    return at_ - from;
  }

  // 12, 12., 12.5 or .5
  bool ReadNumber() {
    const std::size_t from = at_;
    const std::size_t whole = Digits();
    if (Eat('.')) {
      const std::size_t decimals = Digits();
      if (whole > 0 || decimals > 0) return true;
    } else if (whole > 0) {
      return true;
    }
    at_ = from;
    return false;
  }

  // 3/16
  bool ReadFraction() {
    const std::size_t from = at_;
    if (Digits() > 0 && Eat('/') && Digits() > 0) return true;
    at_ = from;
    return false;
  }

  // 7, 7 3/16, 7-3/16, 7.5 or a bare 3/16
  bool ReadInches() {
    if (ReadFraction()) return true;
    if (!ReadNumber()) return false;
    const std::size_t number = at_;
    const bool blanks = SkipBlanks();
    const bool dash = Eat('-');
    SkipBlanks();
    if ((blanks || dash) && ReadFraction()) return true;
    at_ = number;
    return true;
  }

  // 12' followed by its separator and the inches, if any
  bool ReadFeet() {
    const std::size_t from = at_;
    if (!ReadNumber() || !Eat('\'')) {
      at_ = from;
      return false;
    }
    SkipBlanks();
    Eat('-');
    SkipBlanks();
    ReadInches();
    return true;
  }

  // " sq.", "sq", " cu." ...
  void ReadKindMark() {
    const std::size_t from = at_;
    SkipBlanks();
    if (EatWord("sq") || EatWord("cu")) {
      Eat('.');
      return;
    }
    at_ = from;
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

bool IsMeasurementText(std::string_view text) {
  Scanner scan(text);
  if (scan.Eat('-')) scan.SkipBlanks();
  if (!scan.ReadFeet() && !scan.ReadInches()) return false;
  scan.Eat('"');
  scan.ReadKindMark();
  return scan.AtEnd();
}

std::optional<std::string> PastedMeasurement(std::string_view text) {
  // A spreadsheet's cell comes with a line end (and a Windows one with a
  // carriage return before it); a second value on a further line is not
  // one entry.
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  if (end != std::string_view::npos) {
    const std::string_view rest = TrimBlanks(text.substr(end), " \t\r\n");
    if (!rest.empty()) return std::nullopt;
  }
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  line = TrimBlanks(line, " \t");
  if (line.empty() || line.size() > kMaxPastedLength) return std::nullopt;
  if (!IsMeasurementText(line)) return std::nullopt;
  return std::string(line);
}

std::string ValueForExport(std::string_view caption) {
  return std::string(TrimBlanks(caption));
}

}  // namespace brenko
