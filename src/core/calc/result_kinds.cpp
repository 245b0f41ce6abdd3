#include "core/calc/result_kinds.h"

#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {

bool HasFootMark(std::string_view text) {
  return text.find('\'') != std::string_view::npos;
}
bool HasInchMark(std::string_view text) {
  return text.find('"') != std::string_view::npos;
}
bool IsMarked(std::string_view text) {
  return HasFootMark(text) || HasInchMark(text);
}
bool IsFullyMarked(std::string_view text) {
  return HasFootMark(text) && HasInchMark(text);
}

MultiplyRule ChooseMultiplyRule(std::string_view pt, std::string_view ct) {
  const bool ptSquare = IsSquareText(pt);
  const bool ptCubic = IsCubicText(pt);
  const bool ctSquare = IsSquareText(ct);
  const bool ctCubic = IsCubicText(ct);
  if ((ptCubic && HasFootMark(ct)) || (ptCubic && HasInchMark(ct))) {
    return MultiplyRule::kCubicTimesLengthRefused;
  }
  if (ptSquare && IsMarked(ct)) return MultiplyRule::kSquareTimesMarked;
  if (ptSquare && IsFullyMarked(ct)) {
    return MultiplyRule::kSquareTimesFullyMarked;
  }
  if (ctSquare && IsMarked(pt)) return MultiplyRule::kMarkedTimesSquare;
  if (ctSquare && IsFullyMarked(pt)) {
    return MultiplyRule::kFullyMarkedTimesSquare;
  }
  if (IsMarked(pt) && IsMarked(ct)) return MultiplyRule::kMarkedTimesMarked;
  if (IsFullyMarked(ct) && ptCubic) {
    return MultiplyRule::kCubicTimesFullyMarked;
  }
  if (IsFullyMarked(pt) && ctCubic) {
    return MultiplyRule::kFullyMarkedTimesCubic;
  }
  return MultiplyRule::kPlain;
}

std::string MultiplyResultText(MultiplyRule rule, double r, int accuracy) {
  switch (rule) {
    case MultiplyRule::kCubicTimesLengthRefused:
      return {};
    case MultiplyRule::kSquareTimesMarked:
    case MultiplyRule::kMarkedTimesSquare:
    case MultiplyRule::kCubicTimesFullyMarked:
    case MultiplyRule::kFullyMarkedTimesCubic:
      return FormatCubic(r) + " cu.";
    case MultiplyRule::kSquareTimesFullyMarked:
    case MultiplyRule::kFullyMarkedTimesSquare:
    case MultiplyRule::kMarkedTimesMarked:
      return FormatSquare(r) + " sq.";
    case MultiplyRule::kPlain:
      return FormatLinear(r, accuracy);
  }
  return FormatLinear(r, accuracy);
}

namespace {

// The cubic decision (rows 4 to 7); false when the pending text is not cubic.
bool ChooseCubicDivideRule(std::string_view pt, std::string_view ct,
                           DivideRule& rule) {
  if (!IsCubicText(pt)) return false;
  if (IsCubicText(ct)) {
    rule = DivideRule::kCubicByCubic;
  } else if (IsSquareText(ct)) {
    rule = DivideRule::kCubicBySquare;
  } else if (IsFullyMarked(ct)) {
    rule = DivideRule::kCubicByFullyMarked;
  } else {
    rule = DivideRule::kCubicByOther;
  }
  return true;
}

std::string OneDivideText(DivideRule rule, double r, int accuracy) {
  switch (rule) {
    case DivideRule::kSquareByFullyMarked:
    case DivideRule::kCubicByOther:
      return FormatSquare(r) + " sq.";
    case DivideRule::kSquareBySquare:
    case DivideRule::kCubicByCubic:
      return TrimmedNumberText(r);
    case DivideRule::kSquareByOther:
    case DivideRule::kMarkedByPlain:
      return FormatLinear(r, accuracy);
    case DivideRule::kCubicBySquare:
      return FormatSquare(r);
    case DivideRule::kCubicByFullyMarked:
      return FormatCubic(r) + " cu.";
    case DivideRule::kMarkedByMarked:
    case DivideRule::kPlainByAny:
      return NumberToText(r);
  }
  return NumberToText(r);
}

}  // namespace

DivideRules ChooseDivideRules(std::string_view pt, std::string_view ct) {
  DivideRules rules;
  const bool ptSquare = IsSquareText(pt);
  if (IsFullyMarked(ct) && ptSquare) {
    rules.first = DivideRule::kSquareByFullyMarked;
    return rules;
  }
  if (ptSquare && IsSquareText(ct)) {
    rules.first = DivideRule::kSquareBySquare;
    // The second decision still runs; a square text holds no "cu", so only
    // a text marked both ways could change the result here.
    rules.hasSecond = ChooseCubicDivideRule(pt, ct, rules.second);
    return rules;
  }
  if (ptSquare) {
    rules.first = DivideRule::kSquareByOther;
    return rules;
  }
  if (ChooseCubicDivideRule(pt, ct, rules.first)) return rules;
  if (IsMarked(pt) && IsMarked(ct)) {
    rules.first = DivideRule::kMarkedByMarked;
  } else if (IsMarked(pt)) {
    rules.first = DivideRule::kMarkedByPlain;
  } else {
    rules.first = DivideRule::kPlainByAny;
  }
  return rules;
}

std::string DivideResultText(const DivideRules& rules, double r, int accuracy) {
  return OneDivideText(rules.hasSecond ? rules.second : rules.first, r,
                       accuracy);
}

}  // namespace brenko
