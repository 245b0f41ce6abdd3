#include "core/shell/menus.h"

namespace brenko {

namespace {

struct Row {
  int level;
  const char* name;
  int index;
  const char* caption;
  bool checked;
};

// The menus in display order. Level 1 rows are the bar's menus and the two
// popups; deeper rows belong to the nearest shallower row above them.
constexpr Row kRows[] = {
    {1, "File", -1, "&File", false},
    {2, "mnuOpen", -1, "&Open...", false},
    {2, "mnuSave", -1, "&Save", false},
    {2, "mnuSaveAs", -1, "Save &As...", false},
    {2, "mnuSep", -1, "-", false},
    {2, "mnuPrint", -1, "&Print Current Tape", false},
    {2, "mnuPrintAll", -1, "Print All &Tapes", false},
    {2, "mnuSeperator", -1, "-", false},
    {2, "Formulas", -1, "&Formulas", false},
    {3, "Circumference", -1, "Circumference...", false},
    {3, "CircArea", -1, "Area of circle...", false},
    {3, "CylVolume", -1, "Volume of cylinder...", false},
    {3, "mnuDiagonal", -1, "Diagonal...", false},
    {2, "Exit", -1, "E&xit", false},
    {1, "Memory", -1, "&Memory", false},
    {2, "NewMemory", -1, "New &Memory", false},
    {2, "NamedMemory", -1, "&Named Memory...", false},
    {2, "mnuArrangeMemory", -1, "&Arrange", false},
    {2, "ClearMemory", -1, "&Clear All", false},
    {2, "EraseMemory", -1, "&Erase All", false},
    {1, "DisplayMenu", -1, "&Display", false},
    {2, "Accuracy", -1, "&Accuracy", false},
    {3, "Sixteen", -1, "1/16\"", true},
    {3, "thirtysecond", -1, "1/32\"", false},
    {2, "ShowKeys", -1, "Show &Keys", true},
    {2, "mnuConverter", -1, "&Converter", false},
    {2, "mnuTape", -1, "&Tape", false},
    {2, "Zoom", -1, "&Zoom", false},
    {3, "ZoomSmall", -1, "75%", false},
    {3, "ZoomLarge", -1, "100%", true},
    {2, "mnuColors", -1, "Colors", false},
    {3, "mnuColor", 0, "Calculator", false},
    {3, "mnuColor", 1, "Calculator readout ", false},
    {3, "mnuColor", 2, "Memory", false},
    {3, "mnuColor", 3, "Memory readout", false},
    {3, "mnuColor", 4, "Converter", false},
    {3, "mnuColor", 5, "Converter readout", false},
    {3, "mnuColor", 6, "Converter result readouts", false},
    {1, "HelpMenu", -1, "&Help", false},
    {2, "mnuHelpContents", -1, "&Contents", false},
    {2, "mnuAbout", -1, "&About", false},
    // The context menu of the calculator; never shown in the menu bar.
    {1, "mnuPopup1", -1, "Popup1", false},
    {2, "mnuPopup1NewMemory", -1, "New Memory", false},
    {2, "mnuPopup1NamedMemory", -1, "Named Memory", false},
    {2, "mnuPopup1Separator1", -1, "-", false},
    {2, "mnuPopup1Accuracy16", -1, "1/16\" Accuracy", true},
    {2, "mnuPopup1Accuracy32", -1, "1/32\" Accuracy", false},
    {2, "mnuPopup1Separator2", -1, "-", false},
    {2, "mnuPopup1Zoom75", -1, "Zoom 75%", false},
    {2, "mnuPopup1Zoom100", -1, "Zoom 100%", true},
    {2, "mnuPopup1ShowKeys", -1, "Show Keys", true},
    {2, "mnuPopup1ShowTape", -1, "ShowTape", false},
    {2, "mnuPopup1Separator3", -1, "-", false},
    {2, "mnuPopUp1Circumference", -1, "Circumference...", false},
    {2, "mnuPopUp1AreaofCircle", -1, "Area of Circle...", false},
    {2, "mnuPopUp1VolumeofCylinder", -1, "VolumeofCylinder...", false},
    {2, "mnuPopUp1Diagonal", -1, "Diagonal...", false},
    {2, "mnuPopup1Separator4", -1, "-", false},
    {2, "mnuPopup1Cancel", -1, "Cancel", false},
    // The tape window's context menu.
    {1, "mnuPopup2", -1, "Popup2", false},
    {2, "mnuPopup2PrintTape", -1, "Print Tape", false},
    {2, "mnuPopup2PrintAllTapes", -1, "Print All Tapes", false},
};

}  // namespace

MenuModel::MenuModel() {
  std::vector<std::string> parents(4);
  for (const Row& r : kRows) {
    MenuEntry e;
    e.name = r.name;
    e.index = r.index;
    e.caption = r.caption;
    e.level = r.level;
    e.parent = r.level > 1 ? parents[static_cast<size_t>(r.level - 1)] : "";
    e.checked = r.checked;
    e.visible = e.name != "mnuPopup1" && e.name != "mnuPopup2";
    parents[static_cast<size_t>(r.level)] = r.name;
    entries_.push_back(e);
  }
}

MenuEntry* MenuModel::Find(const std::string& name, int index) {
  for (MenuEntry& e : entries_) {
    if (e.name == name && e.index == index) return &e;
  }
  return nullptr;
}

const MenuEntry* MenuModel::Find(const std::string& name, int index) const {
  for (const MenuEntry& e : entries_) {
    if (e.name == name && e.index == index) return &e;
  }
  return nullptr;
}

bool MenuModel::IsChecked(const std::string& name) const {
  const MenuEntry* e = Find(name);
  return e != nullptr && e->checked;
}

void MenuModel::SetChecked(const std::string& name, bool checked) {
  if (MenuEntry* e = Find(name)) e->checked = checked;
}

void MenuModel::SetCaption(const std::string& name,
                           const std::string& caption) {
  if (MenuEntry* e = Find(name)) e->caption = caption;
}

}  // namespace brenko
