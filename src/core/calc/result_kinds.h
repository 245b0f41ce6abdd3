#pragma once
// How the engine decides the kind of a product or a quotient from the kind
// marks of its two operand texts. The rules are tried in a fixed order and
// the first that matches decides; some can never match because an earlier
// rule always catches their case, and they are kept in their place all the
// same so that the order reads as it always has.

#include <string>
#include <string_view>

namespace brenko {

// Kind marks of an operand text.
bool HasFootMark(std::string_view text);
bool HasInchMark(std::string_view text);
// Marked: a foot mark or an inch mark. Fully marked: both.
bool IsMarked(std::string_view text);
bool IsFullyMarked(std::string_view text);

// The multiply rules, numbered as the engine's table numbers them.
enum class MultiplyRule {
  kCubicTimesLengthRefused = 1,
  kSquareTimesMarked = 2,
  kSquareTimesFullyMarked = 3,  // never reached
  kMarkedTimesSquare = 4,
  kFullyMarkedTimesSquare = 5,  // never reached
  kMarkedTimesMarked = 6,
  kCubicTimesFullyMarked = 7,  // never reached
  kFullyMarkedTimesCubic = 8,
  kPlain = 9,
};
MultiplyRule ChooseMultiplyRule(std::string_view pendingText,
                                std::string_view currentText);

// The product of `result` as text by its rule; rule 1 has no text (the
// engine refuses the product).
std::string MultiplyResultText(MultiplyRule rule, double result, int accuracy);

// The divide rules. The square rows (1 to 3) and the cubic rows (4 to 7) are
// two separate decisions: after rule 2 the cubic rows are still tried, and
// whatever they leave stands. Rules 8 to 10 apply only when the pending text
// is neither square nor cubic.
enum class DivideRule {
  kSquareByFullyMarked = 1,
  kSquareBySquare = 2,
  kSquareByOther = 3,
  kCubicByCubic = 4,
  kCubicBySquare = 5,
  kCubicByFullyMarked = 6,
  kCubicByOther = 7,
  kMarkedByMarked = 8,
  kMarkedByPlain = 9,
  kPlainByAny = 10,
};
// The rules that decide the quotient's text, in the order they were applied
// (one or two: rule 2 may be followed by a cubic rule).
struct DivideRules {
  DivideRule first = DivideRule::kPlainByAny;
  bool hasSecond = false;
  DivideRule second = DivideRule::kPlainByAny;
};
DivideRules ChooseDivideRules(std::string_view pendingText,
                              std::string_view currentText);
std::string DivideResultText(const DivideRules& rules, double result,
                             int accuracy);

}  // namespace brenko
