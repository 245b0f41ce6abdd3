#include "ui/qt_platform.h"

#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QStringList>
#include <QWidget>
#include <algorithm>

#include "core/commands/shell_handlers.h"
#include "core/shell/about.h"
#include "ui/about_dialog.h"
#include "ui/app_windows.h"
#include "ui/calculator_window.h"
#include "ui/color_number.h"
#include "ui/help_window.h"
#include "ui/input_dialog.h"
#include "ui/paths.h"
#include "ui/screen_fit.h"
#include "ui/tape_printer.h"
#include "ui/window_buttons.h"

namespace brenko::ui {

QString ToQtFilter(const std::string& filter) {
  // The filter lists description|pattern pairs; Qt shows the descriptions,
  // which already carry their patterns in brackets.
  const QStringList parts =
      QString::fromStdString(filter).split(QLatin1Char('|'));
  QStringList descriptions;
  for (qsizetype i = 0; i < parts.size(); i += 2) {
    QString description = parts[i];
    if (i + 1 < parts.size() &&
        !description.contains(QLatin1Char('(') + parts[i + 1])) {
      description += QStringLiteral(" (") + parts[i + 1] + QLatin1Char(')');
    }
    descriptions << description;
  }
  return descriptions.join(QStringLiteral(";;"));
}

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() { delete help_.data(); }

QWidget* QtPlatform::DialogParent() const {
  if (!windows_) return nullptr;
  QWidget* calculator = windows_->Existing({WindowKind::kCalculator, 0});
  if (calculator && calculator->isVisible()) return calculator;
  return QApplication::activeWindow();
}

void QtPlatform::Beep() { QApplication::beep(); }

MsgAnswer QtPlatform::MessageBox(const std::string& text,
                                 const std::string& title, MsgButtons buttons,
                                 MsgIcon icon) {
  QMessageBox box(DialogParent());
  box.setObjectName(QStringLiteral("MessageBox"));
  box.setWindowFlags(kDialogButtons);
  box.setText(QString::fromStdString(text));
  box.setWindowTitle(QString::fromStdString(title));
  switch (icon) {
    case MsgIcon::kNone:
      box.setIcon(QMessageBox::NoIcon);
      break;
    case MsgIcon::kCritical:
      box.setIcon(QMessageBox::Critical);
      break;
    case MsgIcon::kQuestion:
      box.setIcon(QMessageBox::Question);
      break;
    case MsgIcon::kExclamation:
      box.setIcon(QMessageBox::Warning);
      break;
    case MsgIcon::kInformation:
      box.setIcon(QMessageBox::Information);
      break;
  }
  switch (buttons) {
    case MsgButtons::kOk:
      box.setStandardButtons(QMessageBox::Ok);
      break;
    case MsgButtons::kOkCancel:
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      break;
    case MsgButtons::kYesNo:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      break;
  }
  switch (box.exec()) {
    case QMessageBox::Ok:
      return MsgAnswer::kOk;
    case QMessageBox::Yes:
      return MsgAnswer::kYes;
    case QMessageBox::No:
      return MsgAnswer::kNo;
    default:
      // Closing the box counts as its cancelling answer.
      return buttons == MsgButtons::kYesNo ? MsgAnswer::kNo
             : buttons == MsgButtons::kOk  ? MsgAnswer::kOk
                                           : MsgAnswer::kCancel;
  }
}

std::optional<ColorNumber> QtPlatform::PickColor(ColorNumber initial) {
  const QColor picked =
      QColorDialog::getColor(ToQColor(initial), DialogParent(), QString());
  if (!picked.isValid()) return std::nullopt;
  return ToColorNumber(picked);
}

namespace {

std::optional<std::filesystem::path> RunFileDialog(
    QWidget* parent, const FileDialogRequest& request,
    QFileDialog::AcceptMode mode) {
  QFileDialog dialog(parent, QString::fromStdString(request.title),
                     FromPath(request.initialFolder),
                     ToQtFilter(request.filter));
  dialog.setObjectName(mode == QFileDialog::AcceptSave
                           ? QStringLiteral("SaveFileDialog")
                           : QStringLiteral("OpenFileDialog"));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptSave
                         ? QFileDialog::AnyFile
                         : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(QString::fromStdString(request.defaultExtension));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QStringList files = dialog.selectedFiles();
  if (files.isEmpty()) return std::nullopt;
  return ToPath(files.front());
}

}  // namespace

std::optional<std::filesystem::path> QtPlatform::OpenFileDialog(
    const FileDialogRequest& request) {
  return RunFileDialog(DialogParent(), request, QFileDialog::AcceptOpen);
}

std::optional<std::filesystem::path> QtPlatform::SaveFileDialog(
    const FileDialogRequest& request) {
  return RunFileDialog(DialogParent(), request, QFileDialog::AcceptSave);
}

std::string QtPlatform::InputPrompt(const InputPromptRequest& request) {
  InputDialog dialog(request, DialogParent());
  return dialog.Ask();
}

void QtPlatform::ShowAbout(const AboutInfo& info) {
  AboutDialog dialog(
      info,
      [this] {
        if (windows_) windows_->Run([](App& app) { cmdSysInfo_Click(app); });
      },
      DialogParent());
  dialog.exec();
}

void QtPlatform::ShowPopupMenu(const std::string& menuName) {
  if (!windows_) return;
  if (QMenu* menu = windows_->PopupMenu(menuName)) menu->exec(QCursor::pos());
}

bool QtPlatform::IsTopmost(WindowRef ref) const {
  for (const auto& [window, onTop] : topmost_) {
    if (window == ref) return onTop;
  }
  // A companion nobody asked about yet stays with the calculator, so that
  // it is not buried under it from start-up on.
  if (ref.kind == WindowKind::kTape || ref.kind == WindowKind::kConverter) {
    return IsTopmost({WindowKind::kCalculator, 0});
  }
  return false;
}

void QtPlatform::SetTopmost(WindowRef window, bool onTop) {
  auto it =
      std::find_if(topmost_.begin(), topmost_.end(),
                   [&](const auto& entry) { return entry.first == window; });
  if (it == topmost_.end()) {
    topmost_.emplace_back(window, onTop);
  } else {
    it->second = onTop;
  }
  if (!windows_) return;
  QWidget* widget = windows_->Existing(window);
  ApplyTopmost(window, widget);
  if (window.kind == WindowKind::kCalculator) {
    for (WindowKind kind : {WindowKind::kTape, WindowKind::kConverter}) {
      ApplyTopmost({kind, 0}, windows_->Existing({kind, 0}));
    }
  }
  // The window asked for last stays above the others (the calculator above
  // its tape); raising does not take the focus.
  if (onTop && widget && widget->isWindow() && widget->isVisible()) {
    widget->raise();
  }
}

void QtPlatform::ApplyTopmost(WindowRef ref, QWidget* window) {
  if (!window || !window->isWindow()) return;
  const bool onTop = IsTopmost(ref);
  if (window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) == onTop) {
    return;
  }
  // Changing a window's flags hides it; show it again as it was, without
  // taking the focus from the window the user is working in.
  const bool wasVisible = window->isVisible();
  const bool noActivate = window->testAttribute(Qt::WA_ShowWithoutActivating);
  window->setAttribute(Qt::WA_ShowWithoutActivating, true);
  window->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
  if (wasVisible) window->show();
  window->setAttribute(Qt::WA_ShowWithoutActivating, noActivate);
}

void QtPlatform::ShowHelp(const std::filesystem::path& helpFile) {
  if (!help_) {
    // Transient for the calculator: the window manager keeps it above the
    // calculator, which is on top of everything else.
    help_ = new HelpWindow(DialogParent());
  }
  if (!help_->isVisible()) {
    if (const QWidget* calculator = DialogParent()) {
      const QRect beside = PlaceBeside(*calculator, *help_, help_->size());
      help_->resize(beside.size());
      help_->move(beside.topLeft());
    }
  }
  help_->Open(FromPath(helpFile));
}

const std::vector<QString>& QtPlatform::SysInfoPrograms() {
  static const std::vector<QString> programs = {
      QStringLiteral("gnome-system-monitor"), QStringLiteral("hardinfo2"),
      QStringLiteral("hardinfo"), QStringLiteral("kinfocenter"),
      QStringLiteral("xfce4-taskmanager")};
  return programs;
}

bool QtPlatform::StartSysInfo() {
  for (const QString& program : SysInfoPrograms()) {
    const QString path = QStandardPaths::findExecutable(program);
    if (!path.isEmpty() && QProcess::startDetached(path, {})) return true;
  }
  return false;
}

ScreenInfo QtPlatform::Screen() {
  ScreenInfo info;
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return info;
  const QSize size = screen->size();
  info.widthPixels = size.width();
  info.heightPixels = size.height();
  const double dpiX = screen->logicalDotsPerInchX();
  const double dpiY = screen->logicalDotsPerInchY();
  if (dpiX > 0) info.twipsPerPixelX = 1440.0 / dpiX;
  if (dpiY > 0) info.twipsPerPixelY = 1440.0 / dpiY;
  return info;
}

void QtPlatform::SetPrintToFile(const QString& path) {
  printFile_ = path;
  if (printer_) printer_->SetOutputFile(path);
}

TapePrinter& QtPlatform::Printer() {
  if (!printer_) {
    printer_ = std::make_unique<TapePrinter>();
    printer_->SetOutputFile(printFile_);
  }
  return *printer_;
}

void QtPlatform::PrinterSetFont(const std::string& name, double points) {
  Printer().SetFont(QString::fromStdString(name), points);
}

void QtPlatform::PrinterPrintLine(const std::string& line) {
  Printer().AddLine(QString::fromStdString(line));
}

void QtPlatform::PrinterEndDoc() { Printer().EndDoc(); }

PrintJob QtPlatform::BeginPrintJob() {
  if (!printFile_.isEmpty()) return PrintJob::kPrint;
  if (QPrinterInfo::availablePrinterNames().isEmpty()) {
    return PrintJob::kNoPrinter;
  }
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  QPrintDialog dialog(printer.get(), DialogParent());
  dialog.setObjectName(QStringLiteral("PrintDialog"));
  if (dialog.exec() != QDialog::Accepted) return PrintJob::kCancelled;
  Printer().BeginJob(std::move(printer));
  return PrintJob::kPrint;
}

void QtPlatform::EndPrintJob() { Printer().EndJob(); }

}  // namespace brenko::ui
