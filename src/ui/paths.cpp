#include "ui/paths.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

namespace brenko::ui {

std::filesystem::path ToPath(const QString& name) {
#if defined(_WIN32)
  return std::filesystem::path(name.toStdWString());
#else
  // The bytes the file system takes for the name: UTF-8, in the form the
  // system's file names use.
  return std::filesystem::path(QFile::encodeName(name).toStdString());
#endif
}

QString FromPath(const std::filesystem::path& path) {
#if defined(_WIN32)
  return QString::fromStdWString(path.native());
#else
  return QFile::decodeName(QByteArray::fromStdString(path.native()));
#endif
}

std::filesystem::path SettingsFile() {
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return ToPath(folder) / "Brenko" / "Brenko.ini";
}

std::filesystem::path ProgramFolder() {
  return ToPath(QCoreApplication::applicationDirPath());
}

}  // namespace brenko::ui
