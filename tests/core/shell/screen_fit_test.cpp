#include "core/shell/screen_fit.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brenko {
namespace {

// A 1024x768 desktop with a 32-pixel panel at the bottom.
const PixelRect kSmall{0, 0, 1024, 736};
// Two 1920x1080 screens side by side, the second to the right.
const PixelRect kLeft{0, 0, 1920, 1080};
const PixelRect kRight{1920, 0, 1920, 1080};
constexpr int kTitle = 24;

struct FitCase {
  std::string name;
  std::vector<PixelRect> screens;
  PixelRect window;
  PixelRect shown;
};

TEST(ScreenFit, ShowsEachWindowWhereTheUserCanReachIt) {
  const std::vector<FitCase> cases = {
      {"on screen: unchanged",
       {kSmall},
       {100, 100, 300, 400},
       {100, 100, 300, 400}},
      {"from a 1920 screen onto 1024x768: pulled in at the right",
       {kSmall},
       {1898, 300, 290, 420},
       {734, 300, 290, 420}},
      {"below the bottom: pulled up",
       {kSmall},
       {200, 900, 300, 200},
       {200, 536, 300, 200}},
      {"title bar above the top edge: moved down",
       {kSmall},
       {200, -91, 300, 120},
       {200, 0, 300, 120}},
      {"a third on screen but the title bar off: moved",
       {kSmall},
       {-150, 100, 300, 300},
       {0, 100, 300, 300}},
      {"title bar partly off the side: moved",
       {kSmall},
       {900, 100, 400, 300},
       {624, 100, 400, 300}},
      {"title bar on, just a third on screen below: kept",
       {kSmall},
       {100, 536, 300, 600},
       {100, 536, 300, 600}},
      {"larger than the screen: its top left corner at the screen's",
       {kSmall},
       {300, 200, 1935, 1053},
       {0, 0, 1935, 1053}},
      {"across two screens side by side: kept",
       {kLeft, kRight},
       {1800, 200, 300, 300},
       {1800, 200, 300, 300}},
      {"on the second screen: kept",
       {kLeft, kRight},
       {3000, 500, 400, 300},
       {3000, 500, 400, 300}},
      {"the second screen went away: onto the first",
       {kLeft},
       {3000, 500, 400, 300},
       {1520, 500, 400, 300}},
      {"far off every screen: onto the nearest",
       {kLeft, kRight},
       {5000, -2000, 400, 300},
       {3440, 0, 400, 300}},
      {"no screens: unchanged", {}, {5000, 5000, 10, 10}, {5000, 5000, 10, 10}},
      {"a screen that does not start at 0",
       {{0, 30, 800, 570}},
       {10, 5, 200, 100},
       {10, 30, 200, 100}},
  };
  for (const FitCase& c : cases) {
    const PixelRect shown = FitOnScreens(c.screens, c.window, kTitle);
    EXPECT_EQ(shown, c.shown) << c.name << ": got " << shown.x << "," << shown.y
                              << " " << shown.width << "x" << shown.height;
  }
}

TEST(ScreenFit, ReachableNeedsTheWholeTitleBarAndAThird) {
  EXPECT_TRUE(ReachableOnScreens({kSmall}, {0, 0, 1024, 736}, kTitle));
  EXPECT_FALSE(ReachableOnScreens({kSmall}, {0, -1, 300, 300}, kTitle));
  EXPECT_FALSE(ReachableOnScreens({kSmall}, {800, 0, 300, 300}, kTitle));
  EXPECT_TRUE(ReachableOnScreens({kSmall}, {0, 736 - 100, 300, 300}, kTitle));
  EXPECT_FALSE(ReachableOnScreens({kSmall}, {0, 736 - 99, 300, 300}, kTitle));
  // A title bar wider than the screen is whole when it spans the screen.
  EXPECT_TRUE(ReachableOnScreens({kSmall}, {0, 0, 2000, 300}, kTitle));
}

TEST(ScreenFit, TapeGoesBelowACalculatorAtTheTopEdge) {
  const PixelRect calculator{400, 0, 240, 330};
  const PixelRect tape{400, -91, 240, 91};
  EXPECT_EQ(FitTapeOnScreens({kSmall}, tape, calculator, calculator, 16),
            (PixelRect{400, 330, 240, 91}));
}

TEST(ScreenFit, TapeStaysAboveWhenThereIsRoom) {
  const PixelRect calculator{400, 300, 240, 330};
  const PixelRect tape{400, 209, 240, 91};
  EXPECT_EQ(FitTapeOnScreens({kSmall}, tape, calculator, calculator, 16), tape);
}

TEST(ScreenFit, TapeMovesWithACalculatorBroughtOnScreen) {
  const PixelRect model{1700, 500, 240, 330};
  const PixelRect shown{784, 406, 240, 330};
  const PixelRect tape{1700, 409, 240, 91};
  EXPECT_EQ(FitTapeOnScreens({kSmall}, tape, model, shown, 16),
            (PixelRect{784, 315, 240, 91}));
}

TEST(ScreenFit, TapeTallerThanBothSidesIsFittedLikeAnyWindow) {
  const PixelRect calculator{0, 100, 240, 600};
  const PixelRect tape{0, -400, 240, 500};
  EXPECT_EQ(FitTapeOnScreens({kSmall}, tape, calculator, calculator, 16),
            (PixelRect{0, 0, 240, 500}));
}

}  // namespace
}  // namespace brenko
