// Where the running program lives: the path of its executable and the
// program folder beside it. Tests point both elsewhere.
#pragma once

#include <QString>

namespace ModuleFileName {

// Full path of the running executable, as the operating system reports it.
// The environment variable QUIZZARR_MODULE_PATH, when set, stands in for
// that answer: a program that drives the game (scripts/screenshots) names
// a module outside the program folder, and the game then behaves as when
// hosted by another program. The game itself never needs it.
QString path();

// The folder of the executable, ending in "/".
QString programFolder();

// The file name the game's own executable is built under, without folder.
QString gameExecutableName();

// The running executable's own file name, without folder: once the game's
// executable has declared itself, the name of the module's file, whatever
// the host renamed it to; in any other program (a test program) the name
// the game is built under, which that program's module does not carry.
QString executableName();

// Called by the game's own executable at start (tests may undo it).
void declareGameExecutable(bool isGame = true);

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
