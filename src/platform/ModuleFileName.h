// Where the running program lives: the path of its executable and the
// program folder beside it. Tests point both elsewhere.
#pragma once

#include <QString>

namespace ModuleFileName {

// Full path of the running executable, as the operating system reports it.
QString path();

// The folder of the executable, ending in "/".
QString programFolder();

// The file name the game's own executable is built under, without folder.
QString gameExecutableName();

// The path without the extension of its file name; a dot in a folder's
// name is not an extension.
QString withoutExtension(const QString &path);

// Appends "/" unless the path already ends in one.
QString withTrailingSeparator(const QString &folder);

// Test seams: a fake executable path or program folder; an empty text
// goes back to the real one.
void overridePath(const QString &path);
void overrideProgramFolder(const QString &folder);

} // namespace ModuleFileName
