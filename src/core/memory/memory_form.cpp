#include "core/memory/memory_form.h"

namespace brenko {

MemoryForm* MemoryState::Find(int number) {
  for (auto& form : forms) {
    if (form->number == number) return form.get();
  }
  return nullptr;
}

}  // namespace brenko
