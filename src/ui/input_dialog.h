#pragma once
// frmInput: the modal one-line prompt ("Named Memory"). The pre-filled answer
// is wholly selected so that typing replaces it; Cancel answers the empty
// text.

#include <QDialog>
#include <string>

#include "core/base/platform.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace brenko::ui {

class InputDialog : public QDialog {
  Q_OBJECT

 public:
  InputDialog(const InputPromptRequest& request, QWidget* parent = nullptr);
  // Shows the prompt modally; the typed text, or "" when cancelled.
  std::string Ask();

  QLineEdit* Text() const { return text_; }

 private:
  QLabel* prompt_;
  QLineEdit* text_;
  QPushButton* ok_;
  QPushButton* cancel_;
};

}  // namespace brenko::ui
