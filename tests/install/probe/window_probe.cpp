// A Qt plugin the installed-program test loads into the program (through
// QT_QPA_GENERIC_PLUGINS=brenkoprobe:FILE) to see what the windows show:
// every visible window's title, every memory window's title and value and
// its place in the memory area (with the area's visible size), the text of
// every message box, and the calculator's readout: its text, its
// tooltip, and whether the program draws the text whole or cut. The
// report is rewritten whenever it changes, so the test waits for the lines it
// expects instead of guessing a time. The program itself knows nothing of it.
#include <QApplication>
#include <QFile>
#include <QGenericPlugin>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QSaveFile>
#include <QTimer>
#include <QWidget>

namespace {

class WindowProbe : public QObject {
 public:
  explicit WindowProbe(const QString& file) : file_(file) {
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [this] { Report(); });
    timer->start(50);
  }

 private:
  static QString Bracketed(const QString& text) {
    return QLatin1Char('[') + text + QLatin1Char(']');
  }

  void Report() {
    QStringList lines;
    for (QWidget* widget : QApplication::allWidgets()) {
      if (!widget->isVisible()) continue;
      if (widget->isWindow()) {
        lines << QStringLiteral("window ") + Bracketed(widget->windowTitle());
      }
      if (auto* box = qobject_cast<QMessageBox*>(widget)) {
        lines << QStringLiteral("message ") + Bracketed(box->text());
      }
      if (auto* readout = qobject_cast<QLabel*>(widget);
          readout && widget->objectName() == QLatin1String("Readout")) {
        // What the program itself decided: it marks a label whose caption
        // it draws cut with the "captionCut" property (ui/fit_text.cpp), so
        // the probe cannot disagree with it on a pixel.
        const bool fits = !readout->property("captionCut").toBool();
        lines << QStringLiteral("readout ") + Bracketed(readout->text()) +
                     QLatin1Char(' ') + Bracketed(readout->toolTip()) +
                     (fits ? QStringLiteral(" fits") : QStringLiteral(" cut"));
      }
      if (auto* sub = qobject_cast<QMdiSubWindow*>(widget)) {
        const auto* value = sub->findChild<QLabel*>(QStringLiteral("Label1"));
        lines << QStringLiteral("memory ") + Bracketed(sub->windowTitle()) +
                     QLatin1Char(' ') +
                     Bracketed(value ? value->text() : QString());
        // Where the window lies in the area's viewport, to be compared with
        // the viewport's own size (the "area" line).
        const QRect place = sub->geometry();
        lines << QStringLiteral("memoryat ") + Bracketed(sub->windowTitle()) +
                     QStringLiteral(" %1 %2 %3 %4")
                         .arg(place.left())
                         .arg(place.top())
                         .arg(place.right() + 1)
                         .arg(place.bottom() + 1);
      }
      if (auto* area = qobject_cast<QMdiArea*>(widget)) {
        // The part of the frame the memory windows are seen in.
        const QSize seen = area->viewport()->size();
        lines << QStringLiteral("area %1 %2")
                     .arg(seen.width())
                     .arg(seen.height());
      }
    }
    lines.sort();
    const QByteArray report = lines.join(QLatin1Char('\n')).toUtf8() + '\n';
    if (report == last_) return;
    last_ = report;
    QSaveFile out(file_);
    if (out.open(QIODevice::WriteOnly)) {
      out.write(report);
      out.commit();
    }
  }

  QString file_;
  QByteArray last_;
};

}  // namespace

class WindowProbePlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE
                    "window_probe.json")

 public:
  // Loaded as "brenkoprobe:FILE": Qt hands over what follows the colon.
  QObject* create(const QString& key, const QString& file) override {
    if (key.compare(QLatin1String("brenkoprobe"), Qt::CaseInsensitive) != 0) {
      return nullptr;
    }
    return new WindowProbe(file);
  }
};

#include "window_probe.moc"
