// The calculator writes and reads "." as the point whatever the user's
// locale says; a German or French decimal comma must change nothing.

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace brenko {
namespace {

// Checks every text rule whose result could depend on the decimal point.
void ExpectLocaleIndependentResults() {
  EXPECT_EQ(NumberToText(151.1875), " 151.1875");
  EXPECT_EQ(NumberToText(-0.5), "-.5");
  EXPECT_EQ(NumberToText(1.5e-5), " 1.5E-05");
  EXPECT_EQ(NumberToText(1234567.25), " 1234567.25");
  EXPECT_EQ(LeadingNumber(" 1200.5 "), 1200.5);
  EXPECT_EQ(LeadingNumber("3,5"), 3.0);
  EXPECT_EQ(RoundHalfEven(0.00015, 4), 0.0002);
  std::string text = "12'- 7 3/16\"";
  EXPECT_EQ(ParseLinear(text), 151.1875);
  EXPECT_EQ(text, " 151.1875");
  std::string decimal = "2.5'";
  EXPECT_EQ(ParseLinear(decimal), 30.0);
  std::string square = "2'- 100.5\" sq.";
  EXPECT_EQ(ParseSquare(square), 388.5);
  EXPECT_EQ(FormatLinear(151.1875, 16), " 12'- 7 3/16\"");
  EXPECT_EQ(FormatLinear(1e20, 16).substr(0, 21), " 8.33333333333333E+18");
  EXPECT_EQ(FormatCubic(123456789.4), " 71444'- 1557 3/8\"");
}

// Restores the classic locales however the test ends.
class ClassicLocaleRestorer {
 public:
  ~ClassicLocaleRestorer() {
    std::setlocale(LC_ALL, "C");
    std::locale::global(std::locale::classic());
  }
};

TEST(LocaleTest, InstalledCommaLocaleChangesNothing) {
  ClassicLocaleRestorer restore;
  const char* const candidates[] = {"de_DE.UTF-8", "de_DE.utf8", "de_DE",
                                    "fr_FR.UTF-8", "fr_FR.utf8", "fr_FR"};
  const char* installed = nullptr;
  for (const char* name : candidates) {
    if (std::setlocale(LC_ALL, name) != nullptr) {
      installed = name;
      break;
    }
  }
  if (installed == nullptr) {
    GTEST_SKIP() << "no German or French locale is installed on this machine "
                    "(tried de_DE and fr_FR); the facet test below still "
                    "covers the C++ locale";
  }
  try {
    std::locale::global(std::locale(installed));
  } catch (const std::runtime_error&) {
    // The C library knows the locale but the C++ library does not; the C
    // locale alone is still worth checking.
  }
  ASSERT_EQ(std::string(std::localeconv()->decimal_point), ",") << installed;
  ExpectLocaleIndependentResults();
}

// A decimal comma and thousands grouping for the C++ global locale; needs no
// installed locale.
class CommaPunct : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(LocaleTest, GlobalCommaFacetChangesNothing) {
  ClassicLocaleRestorer restore;
  std::locale::global(std::locale(std::locale::classic(), new CommaPunct));
  ExpectLocaleIndependentResults();
}

}  // namespace
}  // namespace brenko
