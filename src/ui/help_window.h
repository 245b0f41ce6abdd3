#pragma once
// The program's own help viewer: the user manual (an HTML page compiled into
// the program) with a contents list built from its chapter headings and a
// search field.

#include <QString>
#include <QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTextBrowser;

namespace brenko::ui {

// The manual among the program's resources.
inline constexpr char kCompiledManual[] = ":/docs/manual.html";

class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* parent = nullptr);

  // Shows the manual at its contents. `helpFile` is the program's help file;
  // when it is not an HTML page that exists, the compiled-in manual is used.
  void Open(const QString& helpFile);
  // Where the manual was loaded from; empty before the first Open.
  const QString& Source() const { return source_; }

  // The places the manual is looked for, in order.
  static QStringList Candidates(const QString& helpFile);

 private:
  void Load(const QString& path);
  void FillContents();
  void Find(bool backwards);
  void GoTo(QListWidgetItem* item);

  QListWidget* contents_;
  QTextBrowser* browser_;
  QLineEdit* search_;
  QString source_;
};

}  // namespace brenko::ui
