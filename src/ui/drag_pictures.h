#pragma once
// The drag pictures the calculator window keeps: a small page that travels
// with the pointer, plain or marked with the operation a drop would do.
// The core chooses a picture by its control name ("Image1" add, "Image2"
// subtract, "Image3" plain, "Image4" multiply, "Image5" divide and the
// converter's drop-here picture); this class only draws them.

#include <QPixmap>
#include <map>
#include <string>

namespace brenko::ui {

// Name of the converter's "drop here" picture as the drag helpers use it.
inline constexpr const char* kDropHerePicture = "DropHere";

class DragPictures {
 public:
  // Side of every picture in pixels.
  static constexpr int kSize = 32;

  DragPictures();

  // The picture by name; an unknown name gives the plain page, so a drag
  // never loses its picture.
  const QPixmap& Picture(const std::string& name) const;

  // The mark drawn on the page for a picture name ("+", "\u2212", "\u00d7",
  // "\u00f7", "\u2193" or empty for the plain page).
  static QString Mark(const std::string& name);

 private:
  std::map<std::string, QPixmap> pictures_;
};

}  // namespace brenko::ui
