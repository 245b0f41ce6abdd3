#pragma once
// Memory cells: each a small window in the main frame holding one value (the
// caption of its value label) and a tape of its own.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/base/window_model.h"

namespace brenko {

struct MemoryForm {
  std::int16_t number = 0;
  std::string caption;  // the memory's name
  Label label1;         // the value label: caption is the value, tag "memory N"
  Rect geometry;        // within the main frame's client area, twips
  ColorNumber backColor = kTeal;
  bool visible = true;
  // The picture the value label shows while a drag passes over it or while
  // it is dragged itself: "Image1" add, "Image2" subtract, "DropHere" over
  // the converter; empty for the platform's plain drag picture.
  std::string dragIcon;

  // The windows keep the last form they showed and compare: a memory whose
  // form is unchanged costs its window nothing.
  bool operator==(const MemoryForm&) const = default;

  // Whether the window's tag marks it as a memory window. The walks over
  // the windows look at the tag, not at the window's kind, and the test is
  // case-sensitive.
  bool IsMemoryWindow() const;
};

inline constexpr float kFirstMemoryWidth = 1935;
inline constexpr float kMemoryWindowHeight = 585;
// The value label sits inside the memory window's client area; it is as wide
// as the window less kMemoryLabelMargin (borders and a little air).
inline constexpr float kMemoryLabelLeft = 60;
inline constexpr float kMemoryLabelTop = 60;
inline constexpr float kMemoryLabelHeight = 255;
inline constexpr float kMemoryLabelMargin = 240;
// The application's open windows that come before the memory windows in the
// platform's window order: Calculator, Converter, MDIForm1 and frmTape, in
// the order the start-up loads them. Walks "by window index" count them.
inline constexpr int kWindowsBeforeMemories = 4;

class MemoryState {
 public:
  std::int16_t nextNumber = 1;     // the number the next memory will get
  std::int16_t windowCounter = 1;  // one more than the open memory windows
  float sharedWidth = kFirstMemoryWidth;
  // The memory whose tape the tape operations address; 0 = none.
  std::int16_t current = 0;
  // Guard against the resize events a memory window's own moves cause.
  bool resizing = false;
  // Path of the current memory file; empty until one is opened or saved.
  std::filesystem::path filePath;

  // Open memory windows in the platform's window order (creation order).
  // Reading through a const state leaves the forms' revision alone; the
  // forms are only ever changed through a state that is not const.
  std::span<const std::unique_ptr<MemoryForm>> Forms() const { return forms_; }
  const MemoryForm* Find(int number) const;
  // The same for a caller that may change what it gets: the forms' revision
  // moves on (Find only when there is such a memory).
  std::span<const std::unique_ptr<MemoryForm>> Forms() {
    ++formsRevision_;
    return forms_;
  }
  MemoryForm* Find(int number);
  // The place of a memory's window in Forms(), or -1.
  std::ptrdiff_t IndexOf(int number) const;

  // The name every memory was given, by number (0 unused): kept after its
  // window closes, until the main frame closes.
  const std::vector<std::string>& Names() const { return names_; }

  // The windows and the names come and go only here. Add opens a window and
  // records its name under its number; RemoveAt closes the window at that
  // place (false when there is none); RemoveMarked closes the windows at
  // the places marked, the others keeping their order, as RemoveAt would
  // one after another but in one pass, and says how many closed;
  // ForgetNames keeps no name.
  MemoryForm& Add(std::unique_ptr<MemoryForm> form);
  bool RemoveAt(std::size_t index);
  std::size_t RemoveMarked(const std::vector<bool>& marked);
  void ForgetNames();

  // Moves on whenever a window comes or goes (Add, RemoveAt): the frame
  // makes or takes away windows only then. What a window shows is its
  // form's, compared by the window itself.
  std::uint64_t Revision() const { return revision_; }
  // Moves on whenever a form may have changed: with Revision, and at every
  // way in that could change a form (the non-const Forms and Find). The
  // windows look at their forms only when it moved, so that a key that
  // touches no memory costs nothing however many there are. Whoever
  // changes a form through a pointer got from a const state (a plan made
  // from it) says so with FormsChanged.
  std::uint64_t FormsRevision() const { return formsRevision_; }
  void FormsChanged() { ++formsRevision_; }

 private:
  std::vector<std::unique_ptr<MemoryForm>> forms_;
  std::vector<std::string> names_;
  std::uint64_t revision_ = 0;
  std::uint64_t formsRevision_ = 0;
};

}  // namespace brenko
