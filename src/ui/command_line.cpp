#include "ui/command_line.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QUrl>

#include "core/shell/version.h"

namespace brenko::ui {

CommandLine ParseCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                QStringLiteral("Show this help and exit."));
  const QCommandLineOption version(
      {QStringLiteral("v"), QStringLiteral("version")},
      QStringLiteral("Show the version and exit."));
  parser.addOption(help);
  parser.addOption(version);
  parser.addPositionalArgument(QStringLiteral("FILE.mem"),
                               QStringLiteral("A memory file to open."));

  CommandLine result;
  // An empty list has not even the program's name; the parser wants one.
  QStringList list = arguments;
  if (list.isEmpty()) list << QStringLiteral("brenko");
  if (!parser.parse(list)) {
    result.action = CommandLine::Action::kUsageError;
    result.error = parser.errorText();
    return result;
  }
  if (parser.isSet(help)) {
    result.action = CommandLine::Action::kHelp;
    return result;
  }
  if (parser.isSet(version)) {
    result.action = CommandLine::Action::kVersion;
    return result;
  }
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) {
    result.action = CommandLine::Action::kUsageError;
    result.error = QStringLiteral("Only one memory file can be opened.");
    return result;
  }
  if (!files.isEmpty() && !files.first().isEmpty()) {
    QString file = files.first();
    // Some file managers hand over a URL even for a local file.
    if (file.startsWith(QStringLiteral("file:"))) {
      file = QUrl(file).toLocalFile();
    }
    result.memoryFile = QFileInfo(file).absoluteFilePath();
  }
  return result;
}

QString UsageText() {
  return QStringLiteral(
      "Usage: brenko [FILE.mem]\n"
      "       brenko --help | --version\n"
      "\n"
      "Brenko Calculator: a desktop calculator in feet, inches and fractions\n"
      "of an inch. It needs a desktop session. FILE.mem is a memory file to\n"
      "open once the calculator is up, as File, Open does.\n"
      "\n"
      "Options:\n"
      "  -h, --help     Show this help and exit.\n"
      "  -v, --version  Show the version and exit.\n");
}

QString VersionText() {
  return QStringLiteral("brenko ") + QString::fromStdString(ProgramVersion()) +
         QLatin1Char('\n');
}

}  // namespace brenko::ui
