#include "ui/about_dialog.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/app_icon.h"
#include "ui/window_buttons.h"

namespace brenko::ui {

namespace {

QLabel* MakeLabel(QWidget* parent, const char* name, const std::string& text) {
  auto* label = new QLabel(QString::fromStdString(text), parent);
  label->setObjectName(QString::fromLatin1(name));
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

AboutDialog::AboutDialog(const AboutInfo& info, std::function<void()> sysInfo,
                         QWidget* parent)
    : QDialog(parent, kDialogButtons), sysInfo_(std::move(sysInfo)) {
  setObjectName(QStringLiteral("frmAbout"));
  setWindowTitle(QStringLiteral("About ") + QString::fromStdString(info.title));

  auto* icon = new QLabel(this);
  icon->setObjectName(QStringLiteral("picIcon"));
  icon->setPixmap(AppIcon().pixmap(48, 48));
  icon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

  QLabel* title = MakeLabel(this, "lblTitle", info.title);
  QFont big = title->font();
  big.setPointSizeF(big.pointSizeF() * 1.5);
  big.setBold(true);
  title->setFont(big);
  QLabel* version = MakeLabel(this, "lblVersion", info.version);
  QLabel* description = MakeLabel(this, "lblDescription", info.description);
  QLabel* disclaimer = MakeLabel(this, "lblDisclaimer", info.disclaimer);
  QFont small = disclaimer->font();
  small.setPointSizeF(small.pointSizeF() * 0.9);
  disclaimer->setFont(small);

  auto* line = new QFrame(this);
  line->setObjectName(QStringLiteral("Line1"));
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);

  auto* ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  auto* info_button = new QPushButton(QStringLiteral("&System Info..."), this);
  info_button->setObjectName(QStringLiteral("cmdSysInfo"));
  info_button->setAutoDefault(false);

  auto* grid = new QGridLayout;
  grid->addWidget(icon, 0, 0, 3, 1);
  grid->addWidget(title, 0, 1);
  grid->addWidget(version, 1, 1);
  grid->addWidget(description, 2, 1);
  grid->setColumnStretch(1, 1);
  grid->setHorizontalSpacing(16);

  auto* buttons = new QVBoxLayout;
  buttons->addWidget(ok);
  buttons->addWidget(info_button);
  buttons->addStretch();
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(disclaimer, 1);
  bottom->addLayout(buttons);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addWidget(line);
  layout->addLayout(bottom);
  setMinimumWidth(460);

  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(info_button, &QPushButton::clicked, this, [this] {
    if (sysInfo_) sysInfo_();
  });
}

}  // namespace brenko::ui
