#include "ui/input_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/window_buttons.h"

namespace brenko::ui {

InputDialog::InputDialog(const InputPromptRequest& request, QWidget* parent)
    : QDialog(parent, kDialogButtons),
      prompt_(new QLabel(QString::fromStdString(request.prompt), this)),
      text_(new QLineEdit(QString::fromStdString(request.text), this)),
      ok_(new QPushButton(QStringLiteral("OK"), this)),
      cancel_(new QPushButton(QStringLiteral("Cancel"), this)) {
  setObjectName(QStringLiteral("frmInput"));
  setWindowTitle(QString::fromStdString(request.title));
  prompt_->setObjectName(QStringLiteral("Label1"));
  text_->setObjectName(QStringLiteral("txtText1"));
  ok_->setObjectName(QStringLiteral("Command1"));
  cancel_->setObjectName(QStringLiteral("Command2"));
  ok_->setDefault(true);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(cancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(prompt_);
  layout->addWidget(text_);
  layout->addLayout(buttons);
  setMinimumWidth(320);

  connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel_, &QPushButton::clicked, this, &QDialog::reject);
  text_->selectAll();
  text_->setFocus();
}

std::string InputDialog::Ask() {
  if (exec() != QDialog::Accepted) return {};
  return text_->text().toStdString();
}

}  // namespace brenko::ui
