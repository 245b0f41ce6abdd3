#pragma once
// The calculator's menu bar, its context menu mnuPopup1 and the tape
// window's context menu mnuPopup2, as one table of entries. The Qt layer
// builds its menus from this table and sends every command back through
// RunMenuCommand; check marks and captions live here.

#include <string>
#include <vector>

namespace brenko {

struct MenuEntry {
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
  const std::vector<MenuEntry>& Entries() const { return entries_; }
  MenuEntry* Find(const std::string& name, int index = -1);
  const MenuEntry* Find(const std::string& name, int index = -1) const;
  bool IsChecked(const std::string& name) const;
  void SetChecked(const std::string& name, bool checked);
  void SetCaption(const std::string& name, const std::string& caption);

 private:
  std::vector<MenuEntry> entries_;
};

}  // namespace brenko
