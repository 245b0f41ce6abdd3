// Long random sessions: a user doing everything the program allows, in any
// order, with any answer to any dialog. After every single action the rules
// that must always hold are checked. Each seed is one exact, repeatable run.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>

#include "core/commands/app.h"
#include "core/commands/menus.h"
#include "core/commands/startup.h"
#include "core/shell/random_user.h"
#include "support/model_rules.h"
#include "support/scratch_folder.h"
#include "support/test_program.h"

namespace brenko {
namespace {

using testing_support::RandomUser;
using testing_support::TestProgram;

constexpr int kActionsPerRun = 4000;
constexpr int kActionsAfterRestart = 400;

// Nothing caps the readout (a digit is never refused), but it can only grow
// by a little at a time: a key appends at most three characters ("'- "), a
// result is a formatted number of bounded length, and a drop shows one
// memory value with a sign in front. Memory values are formatted results or
// memory file lines (under 2000 characters in these runs), and operators,
// clears and results cut the entry short often, so a run stays far below
// this (about 1500 at most, from a long value dropped on the readout).
constexpr std::size_t kReadoutLengthLimit = 10000;

::testing::AssertionResult Invariants(const App& app) {
  const std::string broken =
      testing_support::BrokenModelRules(app, kReadoutLengthLimit - 1);
  if (broken.empty()) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << broken;
}

// A settings file as a user may leave it after editing it by hand: every
// key the start-up reads, with a sensible, an odd or no value at all.
void FillSettings(MemorySettingsStore& store, std::uint32_t seed) {
  std::mt19937 random(seed);
  const char* const values[] = {"True", "False", "1",     "0",       "-1",
                                "yes",  "",      "32767", "32768",   "-40000",
                                "1e5",  "abc",   " 12 ",  "8421376", "-0"};
  const char* const settings[] = {
      "Zoom",     "Accuracy", "Converter", "ShowKeys", "ShowTape", "CalcTop",
      "CalcLeft", "ConvTop",  "ConvLeft",  "MDITop",   "MDILeft"};
  const char* const colors[] = {"CalcBackGround",   "ReadoutBackGround",
                                "MemoryBackground", "MemoryReadout",
                                "Converter",        "ConvReadout",
                                "ConvResult"};
  auto any = [&]() -> std::string {
    if (random() % 3 == 0) return std::to_string(static_cast<int>(random()));
    return values[random() % std::size(values)];
  };
  for (const char* key : settings) {
    if (random() % 4 != 0) store.Save("Settings", key, any());
  }
  for (const char* key : colors) {
    if (random() % 4 != 0) store.Save("Colors", key, any());
  }
}

// Runs `count` random actions, checking after each; stops at the first
// broken rule so that the report names the action that broke it.
void RunActions(App& app, FakePlatform& platform, std::uint32_t seed,
                const std::filesystem::path& folder, int count) {
  RandomUser user(app, platform, seed, folder);
  for (int step = 0; step < count; ++step) {
    EXPECT_NO_THROW(user.Step())
        << "seed " << seed << " step " << step << ": " << user.Last();
    const ::testing::AssertionResult held = Invariants(app);
    if (!held) {
      ADD_FAILURE() << "seed " << seed << " step " << step << " after "
                    << user.Last() << ": " << held.message();
      return;
    }
    if (::testing::Test::HasFailure()) return;
  }
}

class RandomUseTest : public ::testing::TestWithParam<std::uint32_t> {};

TEST_P(RandomUseTest, EveryRuleHoldsAfterEveryAction) {
  const std::uint32_t seed = GetParam();
  // A folder of its own for the run's memory files, removed afterwards.
  const testing_support::ScratchFolder folder("brenko-random-use-" +
                                              std::to_string(seed) + "-");
  MemorySettingsStore store;
  // Half the runs start from a hand-edited settings file.
  if (seed % 2 == 1) FillSettings(store, seed);
  {
    TestProgram run(store);
    App& app = run.app;
    EXPECT_NO_THROW(Form_Load(app));
    ASSERT_TRUE(Invariants(app));
    RunActions(app, run.platform, seed, folder.Folder(), kActionsPerRun);
    if (HasFailure()) return;
    // The run ends as a user ends it: Exit writes the settings.
    EXPECT_NO_THROW(RunMenuCommand(app, "Exit"));
    EXPECT_TRUE(app.shell.quitRequested);
    EXPECT_TRUE(app.memory.Forms().empty());
  }
  // Whatever the session left in the settings, the next start-up takes it.
  TestProgram next(store);
  App& app = next.app;
  EXPECT_NO_THROW(Form_Load(app));
  ASSERT_TRUE(Invariants(app)) << "after the restart";
  RunActions(app, next.platform, seed ^ 0x9e3779b9u, folder.Folder(),
             kActionsAfterRestart);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomUseTest,
                         ::testing::Values(1u, 2u, 3u, 5u, 8u, 13u, 2024u,
                                           4294967295u),
                         [](const ::testing::TestParamInfo<std::uint32_t>& i) {
                           return "Seed" + std::to_string(i.param);
                         });

}  // namespace
}  // namespace brenko
