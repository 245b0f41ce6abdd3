#pragma once
// The calculator's menu bar, its context menu mnuPopup1 and the tape
// window's context menu mnuPopup2: one table (menu_entries.inc) of entries
// with their captions, design-time check marks and handlers. The Qt menus
// are built from it, and every command, from the Qt menus and from the
// scenario runner alike, goes through RunMenuCommand. Check marks and
// captions live here, addressed by typed entry names: a misspelt name does
// not compile.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brenko {

struct App;

// Every entry by its name; a member of a menu array by its name and index
// (mnuColor0 ... mnuColor6).
enum class MenuId {
#define BRENKO_MENU(level, name, caption, checked, handler) name,
#define BRENKO_MENU_ITEM(level, name, index, caption, checked, handler) \
  name##index,
#include "core/commands/menu_entries.inc"
#undef BRENKO_MENU
#undef BRENKO_MENU_ITEM
};

struct MenuEntry {
  MenuId id;
  std::string name;     // "mnuOpen", "mnuColor" (with index 0 to 6)
  int index = -1;       // members of the menu array mnuColor
  std::string caption;  // "-" is a separator; "&" marks the access key
  int level = 1;        // 1: a menu of the bar or a popup; 2, 3: items
  std::string parent;   // name of the enclosing menu
  bool checked = false;
  bool visible = true;
  bool enabled = true;
};

class MenuModel {
 public:
  MenuModel();
  // In display order; an entry's place is its MenuId.
  const std::vector<MenuEntry>& Entries() const { return entries_; }
  const MenuEntry& Entry(MenuId id) const;
  bool IsChecked(MenuId id) const { return Entry(id).checked; }
  void SetChecked(MenuId id, bool checked);
  void SetCaption(MenuId id, const std::string& caption);

  // An entry by the name the windows and the scenarios use (with the index
  // for a member of a menu array); nullptr when there is none.
  const MenuEntry* Find(std::string_view name, int index = -1) const;
  // The same, for tests: an unknown name throws std::out_of_range.
  const MenuEntry& At(std::string_view name, int index = -1) const;

  // Moves on with every change of a caption or a check mark: the menus are
  // redrawn only when it did.
  std::uint64_t Revision() const { return revision_; }

 private:
  MenuEntry& Mutable(MenuId id);
  std::vector<MenuEntry> entries_;
  std::uint64_t revision_ = 0;
};

// The entry a command by name means: a member of a menu array needs its
// index, any other entry takes no notice of one. Nothing for an unknown
// name.
std::optional<MenuId> MenuCommandId(std::string_view name, int index);

// Runs the handler of an entry; false when the entry has none (a menu, a
// separator), or, by name, when no entry has that name.
bool RunMenuCommand(App& app, MenuId id);
bool RunMenuCommand(App& app, std::string_view name, int index = -1);

}  // namespace brenko
