#pragma once
// frmAbout: the program's icon, title, version, the maker's lines and the
// legal notice, with OK and "&System Info...". The labels are filled from
// what the core hands over; the System Info button runs the core's handler.

#include <QDialog>
#include <functional>

#include "core/base/platform.h"

class QLabel;
class QPushButton;
class QFrame;

namespace brenko::ui {

class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  AboutDialog(const AboutInfo& info, std::function<void()> sysInfo,
              QWidget* parent = nullptr);

 private:
  std::function<void()> sysInfo_;
};

}  // namespace brenko::ui
