#pragma once
// A handler as the routing tables hold it: one that takes the App alone
// (Plus_Click), or the handler of a control array, which also takes the
// member's index (Number_Click, mnuColor_Click).

#include <cstddef>

namespace brenko {

struct App;

class Handler {
 public:
  constexpr Handler(std::nullptr_t) {}  // NOLINT: rows without a handler
  constexpr Handler(void (*run)(App&)) : plain_(run) {}         // NOLINT
  constexpr Handler(void (*run)(App&, int)) : indexed_(run) {}  // NOLINT

  explicit constexpr operator bool() const {
    return plain_ != nullptr || indexed_ != nullptr;
  }
  // Runs the handler; `index` reaches only a control array's.
  void operator()(App& app, int index) const {
    if (plain_ != nullptr) plain_(app);
    if (indexed_ != nullptr) indexed_(app, index);
  }

 private:
  void (*plain_)(App&) = nullptr;
  void (*indexed_)(App&, int) = nullptr;
};

}  // namespace brenko
