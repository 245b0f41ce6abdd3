#include "core/commands/menus.h"

#include <stdexcept>
#include <string>

#include "core/commands/calc_handlers.h"
#include "core/commands/converter_handlers.h"
#include "core/commands/display_handlers.h"
#include "core/commands/frame_handlers.h"
#include "core/commands/handler.h"
#include "core/commands/memory_file_handlers.h"
#include "core/commands/memory_handlers.h"
#include "core/commands/shell_handlers.h"
#include "core/commands/startup.h"
#include "core/commands/tape_handlers.h"

namespace brenko {

namespace {

struct Row {
  MenuId id;
  int level;
  const char* name;
  int index;
  const char* caption;
  bool checked;
  Handler handler;
};

constexpr Row kRows[] = {
#define BRENKO_MENU(level, name, caption, checked, handler) \
  {MenuId::name, level, #name, -1, caption, checked, handler},
#define BRENKO_MENU_ITEM(level, name, index, caption, checked, handler) \
  {MenuId::name##index, level, #name, index, caption, checked, handler},
#include "core/commands/menu_entries.inc"
#undef BRENKO_MENU
#undef BRENKO_MENU_ITEM
};

const Row& RowOf(MenuId id) { return kRows[static_cast<std::size_t>(id)]; }

// Whether entries of this name form a menu array (mnuColor).
bool IsMenuArray(std::string_view name) {
  for (const Row& r : kRows) {
    if (r.name == name) return r.index >= 0;
  }
  return false;
}

}  // namespace

MenuModel::MenuModel() {
  std::vector<std::string> parents(4);
  for (const Row& r : kRows) {
    MenuEntry e;
    e.id = r.id;
    e.name = r.name;
    e.index = r.index;
    e.caption = r.caption;
    e.level = r.level;
    e.parent =
        r.level > 1 ? parents[static_cast<std::size_t>(r.level - 1)] : "";
    e.checked = r.checked;
    e.visible = r.id != MenuId::mnuPopup1 && r.id != MenuId::mnuPopup2;
    parents[static_cast<std::size_t>(r.level)] = r.name;
    entries_.push_back(e);
  }
}

const MenuEntry& MenuModel::Entry(MenuId id) const {
  return entries_[static_cast<std::size_t>(id)];
}

MenuEntry& MenuModel::Mutable(MenuId id) {
  return entries_[static_cast<std::size_t>(id)];
}

void MenuModel::SetChecked(MenuId id, bool checked) {
  MenuEntry& entry = Mutable(id);
  if (entry.checked == checked) return;
  entry.checked = checked;
  ++revision_;
}

void MenuModel::SetCaption(MenuId id, const std::string& caption) {
  MenuEntry& entry = Mutable(id);
  if (entry.caption == caption) return;
  entry.caption = caption;
  ++revision_;
}

const MenuEntry* MenuModel::Find(std::string_view name, int index) const {
  for (const MenuEntry& e : entries_) {
    if (e.name == name && e.index == index) return &e;
  }
  return nullptr;
}

const MenuEntry& MenuModel::At(std::string_view name, int index) const {
  const MenuEntry* e = Find(name, index);
  if (e == nullptr) {
    throw std::out_of_range("no menu entry " + std::string(name) +
                            (index >= 0 ? " " + std::to_string(index) : ""));
  }
  return *e;
}

std::optional<MenuId> MenuCommandId(std::string_view name, int index) {
  const bool array = IsMenuArray(name);
  for (const Row& r : kRows) {
    if (r.name == name && (!array || r.index == index)) return r.id;
  }
  return std::nullopt;
}

bool RunMenuCommand(App& app, MenuId id) {
  const Row& row = RowOf(id);
  if (!row.handler) return false;
  row.handler(app, row.index);
  return true;
}

bool RunMenuCommand(App& app, std::string_view name, int index) {
  const std::optional<MenuId> id = MenuCommandId(name, index);
  return id.has_value() && RunMenuCommand(app, *id);
}

}  // namespace brenko
