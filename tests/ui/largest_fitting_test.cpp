// The search for the largest size that fits gives the answer of trying
// every size from the largest down, from any guess, and asks few sizes when
// the guess is near.
#include "ui/largest_fitting.h"

#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <vector>

using brenko::ui::LargestFitting;
using brenko::ui::StepsToRoom;

namespace {

// Every size from the largest down until one fits; the smallest unasked.
int TriedFromTheTop(int smallest, int largest, int fitsUpTo) {
  int size = largest;
  for (; size > smallest; --size) {
    if (size <= fitsUpTo) break;
  }
  return std::max(size, smallest);
}

// What the search found among sizes fitting up to `fitsUpTo`, and the sizes
// it asked, in turn.
struct Search {
  int found = 0;
  std::vector<int> asked;
};

Search Run(int smallest, int largest, int guess, int fitsUpTo) {
  Search search;
  search.found = LargestFitting(smallest, largest, guess, [&](int size) {
    search.asked.push_back(size);
    return size <= fitsUpTo;
  });
  return search;
}

}  // namespace

class LargestFittingTest : public QObject {
  Q_OBJECT

 private slots:
  void givesTheAnswerOfTryingEverySizeFromAnyGuess() {
    for (int smallest : {-12, 0, 7}) {
      for (int largest = smallest; largest <= smallest + 9; ++largest) {
        for (int fitsUpTo = smallest - 2; fitsUpTo <= largest + 2; ++fitsUpTo) {
          const int expected = TriedFromTheTop(smallest, largest, fitsUpTo);
          for (int guess = smallest - 3; guess <= largest + 3; ++guess) {
            const auto [found, asked] = Run(smallest, largest, guess, fitsUpTo);
            const QByteArray what =
                QStringLiteral("%1..%2 fitting up to %3 from %4")
                    .arg(smallest)
                    .arg(largest)
                    .arg(fitsUpTo)
                    .arg(guess)
                    .toUtf8();
            QVERIFY2(found == expected, what.constData());
            for (int size : asked) {
              QVERIFY2(size > smallest && size <= largest, what.constData());
            }
            // Never more sizes than lie between the guess and the answer,
            // and the one past it.
            const int held = std::clamp(guess, smallest, largest);
            QVERIFY2(
                static_cast<int>(asked.size()) <= std::abs(held - expected) + 2,
                what.constData());
          }
        }
      }
    }
  }

  void aGoodGuessAsksTwoSizesAtMost() {
    Search below = Run(7, 14, 10, 10);
    QCOMPARE(below.found, 10);
    QCOMPARE(below.asked, (std::vector<int>{10, 11}));
    Search above = Run(7, 14, 11, 10);
    QCOMPARE(above.found, 10);
    QCOMPARE(above.asked, (std::vector<int>{11, 10}));
  }

  void theSmallestIsNeverAsked() {
    Search one = Run(7, 7, 30, 100);
    QCOMPARE(one.found, 7);
    QVERIFY(one.asked.empty());
    Search up = Run(7, 12, 3, 100);
    QCOMPARE(up.found, 12);
    QCOMPARE(up.asked, (std::vector<int>{8, 9, 10, 11, 12}));
    Search none = Run(7, 12, 12, 0);
    QCOMPARE(none.found, 7);
    QCOMPARE(none.asked, (std::vector<int>{12, 11, 10, 9, 8}));
  }

  void theGuessScalesTheSizeToTheRoom() {
    // 15 px wide 60 at a room of 40: 10 px, five steps of one down.
    QCOMPARE(StepsToRoom(15, 60, 40, 1, -8, 0), -5);
    // 10 pt wide 100 at a room of 81: 8.1 pt, 7.6 quarter points down,
    // so eight.
    QCOMPARE(StepsToRoom(10, 100, 81, 0.25, -20, 0), -8);
    // Held to the range.
    QCOMPARE(StepsToRoom(15, 60, 1, 1, -8, 0), -8);
    QCOMPARE(StepsToRoom(15, 60, -40, 1, -8, 0), -8);
    QCOMPARE(StepsToRoom(15, 10, 40, 1, -8, 0), 0);
    // A text with no width, and no step: no guess beyond the range.
    QCOMPARE(StepsToRoom(15, 0, 40, 1, -8, -2), -2);
    QCOMPARE(StepsToRoom(15, 60, 40, 0, -8, -1), -1);
  }
};

QTEST_APPLESS_MAIN(LargestFittingTest)
#include "largest_fitting_test.moc"
