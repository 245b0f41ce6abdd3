#include "core/memory/memory_form.h"

#include <utility>

namespace brenko {

bool MemoryForm::IsMemoryWindow() const {
  return label1.tag.find("memory") != std::string::npos;
}

const MemoryForm* MemoryState::Find(int number) const {
  for (const auto& form : forms_) {
    if (form->number == number) return form.get();
  }
  return nullptr;
}

MemoryForm* MemoryState::Find(int number) {
  for (const auto& form : forms_) {
    if (form->number == number) {
      ++formsRevision_;
      return form.get();
    }
  }
  return nullptr;
}

std::ptrdiff_t MemoryState::IndexOf(int number) const {
  for (std::size_t i = 0; i < forms_.size(); ++i) {
    if (forms_[i]->number == number) return static_cast<std::ptrdiff_t>(i);
  }
  return -1;
}

MemoryForm& MemoryState::Add(std::unique_ptr<MemoryForm> form) {
  const auto slot = static_cast<std::size_t>(form->number);
  if (names_.size() < slot + 1) names_.resize(slot + 1);
  names_[slot] = form->caption;
  forms_.push_back(std::move(form));
  ++revision_;
  ++formsRevision_;
  return *forms_.back();
}

bool MemoryState::RemoveAt(std::size_t index) {
  if (index >= forms_.size()) return false;
  forms_.erase(forms_.begin() + static_cast<std::ptrdiff_t>(index));
  ++revision_;
  ++formsRevision_;
  return true;
}

std::size_t MemoryState::RemoveMarked(const std::vector<bool>& marked) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < forms_.size(); ++i) {
    if (i < marked.size() && marked[i]) continue;
    if (kept != i) forms_[kept] = std::move(forms_[i]);
    ++kept;
  }
  const std::size_t removed = forms_.size() - kept;
  forms_.resize(kept);
  revision_ += removed;
  formsRevision_ += removed;
  return removed;
}

void MemoryState::ForgetNames() { names_.resize(1); }

}  // namespace brenko
