#pragma once
// The one crossing between Qt's file names and the core's paths, and the
// places the program keeps things, as the desktop names them. No part of the
// program reads HOME or XDG_* itself: QStandardPaths knows each system's
// conventions (XDG on Linux, AppData on Windows, Library on macOS).

#include <QString>
#include <filesystem>

namespace brenko::ui {

// The path a Qt file name names, letter for letter (UTF-16 on Windows, the
// file system's bytes elsewhere).
std::filesystem::path ToPath(const QString& name);

// The file name of a path, for Qt.
QString FromPath(const std::filesystem::path& path);

// The user's settings file: Brenko/Brenko.ini in the desktop's folder for
// configuration files (~/.config on Linux, so settings stay where earlier
// versions kept them; the local AppData folder on Windows).
std::filesystem::path SettingsFile();

// The folder the program runs from, where the manual is looked for.
std::filesystem::path ProgramFolder();

}  // namespace brenko::ui
