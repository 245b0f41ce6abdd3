#include "core/measure/blanks.h"

#include <gtest/gtest.h>

namespace brenko {
namespace {

TEST(BlanksTest, CutsBlanksOnlyByDefault) {
  EXPECT_EQ(TrimTrailingBlanks(" 7\"  "), " 7\"");
  EXPECT_EQ(TrimLeadingBlanks("  7\" "), "7\" ");
  EXPECT_EQ(TrimBlanks("  7\"  "), "7\"");
  EXPECT_EQ(TrimBlanks("\t7 "), "\t7");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimTrailingBlanks(""), "");
  EXPECT_EQ(TrimLeadingBlanks("   "), "");
}

TEST(BlanksTest, CutsTheGivenBlanks) {
  EXPECT_EQ(TrimBlanks(" \t12 \t", " \t"), "12");
  EXPECT_EQ(TrimBlanks("\t \t", " \t"), "");
  // Only the ends: a blank inside stays.
  EXPECT_EQ(TrimBlanks(" 1 2 ", " \t"), "1 2");
}

}  // namespace
}  // namespace brenko
