#include "ui/accessible_names.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <cstring>
#include <memory>
#include <string>

#include "core/commands/app.h"
#include "core/commands/keys.h"
#include "core/measure/measure.h"
#include "ui/calculator_client.h"
#include "ui/calculator_window.h"
#include "ui/converter_window.h"
#include "ui/main_frame_window.h"
#include "ui/memory_window.h"
#include "ui/tape_window.h"

namespace brenko::ui {

namespace {

void SetName(QWidget* widget, const QString& name) {
  if (widget != nullptr && widget->accessibleName() != name) {
    widget->setAccessibleName(name);
  }
}

void SetDescription(QWidget* widget, const QString& description) {
  if (widget != nullptr && widget->accessibleDescription() != description) {
    widget->setAccessibleDescription(description);
  }
}

QString Trimmed(const std::string& caption) {
  return QString::fromStdString(caption).trimmed();
}

// The unit of a converter result, from the mark its caption carries.
// The unit of result label `index` for the value shown, `shown` (the
// converter's Label1), whose kind the converter decided by the same test.
QString ResultUnit(int index, const std::string& shown) {
  const bool cubic = IsCubicText(shown);
  const bool square = !cubic && IsSquareText(shown);
  const QString kind = square  ? QStringLiteral("square ")
                       : cubic ? QStringLiteral("cubic ")
                               : QString();
  switch (index) {
    case 2:
      return kind + QStringLiteral("feet and inches");
    case 3:
      return kind + QStringLiteral("inches");
    case 4:
      return kind + QStringLiteral("feet");
    case 5:
      return kind + QStringLiteral("yards");
    default:
      return square  ? QStringLiteral("acres")
             : cubic ? QStringLiteral("miles or acres, none for a volume")
                     : QStringLiteral("miles");
  }
}

// The tape window is a frameless tool window, which Qt would present as a
// bare filler; to a screen reader it is a window like the others.
QAccessibleInterface* TapeWindowInterface(const QString& className,
                                          QObject* object) {
  if (className != QLatin1String(TapeWindow::staticMetaObject.className())) {
    return nullptr;
  }
  auto* widget = qobject_cast<QWidget*>(object);
  if (widget == nullptr) return nullptr;
  return new QAccessibleWidget(widget, QAccessible::Window);
}

// The readout's value is its text to a screen reader (read, spelt out,
// reviewed by character), not only a description: a label alone offers no
// text to read. The value is the caption without the blank before it.
class ReadoutInterface : public QAccessibleWidget,
                         public QAccessibleTextInterface {
 public:
  explicit ReadoutInterface(QLabel* label)
      : QAccessibleWidget(label, QAccessible::StaticText) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) {
      return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return Value();
    return QAccessibleWidget::text(kind);
  }

  // A read-only line: no selection, no caret to move.
  void selection(int, int* start, int* end) const override {
    *start = 0;
    *end = 0;
  }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}

  QString text(int start, int end) const override {
    const QString value = Value();
    if (end < 0 || end > value.size()) end = static_cast<int>(value.size());
    if (start < 0 || start >= end) return QString();
    return value.mid(start, end - start);
  }
  QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                           int* start, int* end) const override {
    if (boundary == QAccessible::CharBoundary) {
      return Around(offset - 1, start, end);
    }
    *start = *end = 0;  // the value is a single line
    return QString();
  }
  QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                          int* start, int* end) const override {
    if (boundary == QAccessible::CharBoundary) {
      return Around(offset + 1, start, end);
    }
    *start = *end = characterCount();
    return QString();
  }
  QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                       int* start, int* end) const override {
    if (boundary == QAccessible::CharBoundary) {
      return Around(offset, start, end);
    }
    *start = 0;
    *end = characterCount();
    return Value();
  }
  int characterCount() const override {
    return static_cast<int>(Value().size());
  }
  QRect characterRect(int) const override { return QRect(); }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return QString();
  }

 private:
  QString Value() const {
    return static_cast<const QLabel*>(widget())->text().trimmed();
  }
  QString Around(int offset, int* start, int* end) const {
    const QString value = Value();
    if (offset < 0 || offset >= value.size()) {
      *start = *end = -1;
      return QString();
    }
    *start = offset;
    *end = offset + 1;
    return value.mid(offset, 1);
  }
};

QAccessibleInterface* ReadoutAccessible(const QString& className,
                                        QObject* object) {
  if (className != QLatin1String(ReadoutLabel::staticMetaObject.className())) {
    return nullptr;
  }
  auto* label = qobject_cast<QLabel*>(object);
  if (label == nullptr) return nullptr;
  return new ReadoutInterface(label);
}

}  // namespace

void InstallAccessibleWindows() {
  // Qt keeps each factory once, however often it is installed.
  QAccessible::installFactory(TapeWindowInterface);
  QAccessible::installFactory(ReadoutAccessible);
}

void NameCalculatorKeys(CalculatorWindow* calculator,
                        const CalculatorForm& form) {
  for (const CalcControl& c : form.controls) {
    if (!c.isKey) continue;
    const KeyWords words = SpokenKeyWords(c.name, c.index);
    QPushButton* key = calculator->Key(c.name, c.index);
    if (words.name == nullptr || key == nullptr) continue;
    SetName(key, QString::fromUtf8(words.name));
    SetDescription(key, QString::fromUtf8(words.description));
  }
}

void NameCalculatorLabels(CalculatorWindow* calculator,
                          const CalculatorForm& form) {
  SetName(calculator->Readout(), QStringLiteral("Readout"));
  // The value the readout shows, without the blank before it.
  SetDescription(calculator->Readout(), Trimmed(form.Readout().caption));
  SetName(calculator->ActionLabel(), QStringLiteral("Operation"));
  SetDescription(calculator->ActionLabel(),
                 Trimmed(form.ActionLabel().caption));
  SetName(calculator->Label1(), QStringLiteral("Prompt"));
  SetDescription(calculator->Label1(), Trimmed(form.Label1().caption));
}

void NameMemory(MemoryWindow* window, const MemoryForm& form) {
  const QString name = QString::fromStdString(form.caption);
  const QString value = Trimmed(form.label1.caption);
  SetName(window, name);
  SetDescription(window, name + QStringLiteral(": ") + value);
  SetName(window->ValueLabel(), name);
  SetDescription(window->ValueLabel(), value);
}

void NameForAssistiveTechnology(const App& app, TapeWindow* tape,
                                MainFrameWindow* frame,
                                ConverterWindow* converter) {
  if (tape != nullptr) {
    SetName(tape, QStringLiteral("Tape"));
    SetName(tape->Grid(),
            QStringLiteral("Tape: ") + Trimmed(app.tapeWindow.title.caption));
  }
  if (frame != nullptr) {
    // Each memory window names itself when its own model changed
    // (NameMemory), so a key costs the same with any number of memories.
    SetName(frame, QStringLiteral("Memories"));
  }
  if (converter != nullptr) {
    SetName(converter->Label1(), QStringLiteral("Value to convert"));
    SetDescription(converter->Label1(), Trimmed(app.converter.label1.caption));
    for (int i = 2; i < static_cast<int>(app.converter.lblLabel.size()); ++i) {
      const std::string& caption =
          app.converter.lblLabel[static_cast<std::size_t>(i)].caption;
      SetName(converter->Result(i),
              QStringLiteral("Result in ") +
                  ResultUnit(i, app.converter.label1.caption));
      SetDescription(converter->Result(i), Trimmed(caption));
    }
  }
}

}  // namespace brenko::ui
