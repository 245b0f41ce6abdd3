#pragma once
// A whole program with the scripted platform and an in-memory settings
// store, for the shell's tests.

#include <string>

#include "core/commands/app.h"
#include "core/commands/startup.h"
#include "fake/fake_platform.h"

namespace brenko::testing_support {

struct TestApp {
  FakePlatform platform;
  MemorySettingsStore store;
  App app{platform, store};

  // Runs the start-up with what the store holds.
  App& Start() {
    Form_Load(app);
    return app;
  }
  std::string Setting(const std::string& section,
                      const std::string& key) const {
    return store.GetSetting(section, key, "<none>");
  }
};

}  // namespace brenko::testing_support
